// DocumentHandle: names one document without keeping it. A dialog, a box or a job that lasts longer than one event
// holds this and asks for the document each time; once the document is closed the answer is null, even while its window
// waits to be deleted.
#pragma once
#include <memory>

namespace velara {

class Document;

class DocumentHandle {
  public:
    DocumentHandle() = default; // names none
    explicit DocumentHandle(const std::shared_ptr<Document>& life) : life_(life) {}

    /// The document, or null when it is gone. Never to be kept over a call that runs events.
    Document* get() const { return life_.lock().get(); }
    Document& operator*() const { return *get(); }
    Document* operator->() const { return get(); }
    explicit operator bool() const { return !life_.expired(); }
    friend bool operator==(const DocumentHandle& a, const DocumentHandle& b)
    {
        return !a.life_.owner_before(b.life_) && !b.life_.owner_before(a.life_);
    }

  private:
    std::weak_ptr<Document> life_;
};

} // namespace velara
