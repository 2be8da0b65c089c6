// Workspace: the open documents and the one way in which they change. Knows no window: the editor, velara-batch and the
// tests use the same one.
//
//     workspace.change(document, {job}, [](const Outcome& outcome) { ... });
//
// A worker thread computes the job on a draft; the window's thread never waits for it. When it is done, the result is
// put into the document on the window's thread, in one place, and then(outcome) is called. Changes of one document are
// made in the order in which they were given, each on the result of the one before; different documents change in
// parallel.
//
// Called from the window's thread only. then(...) and signals come there too, always from the event loop and never from
// inside of a call, so that no function has to check in its middle whether its object still exists; only changed()
// comes before finish() returns. A then(...) that refers to a window does so by a QPointer.
#pragma once
#include "document/Document.h"
#include "document/road/Arrival.h"
#include "document/road/Change.h"
#include "document/road/DocumentHandle.h"
#include "engine/cBitFilter.h"
#include "fileio/savePicture.h"
#include "pixels/threads/Workers.h"
#include <QObject>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace velara {

class Leftover;
class PictureReader;

/// What happens with a file that no reader can read.
enum class Unreadable { OpensEmpty, Refused };

/// What became of a file that was to be opened.
struct Opened {
    enum Kind { Open, Gone, Refused, Cancelled }; // Gone: there is no such file
    Kind kind = Refused;
    DocumentHandle document = {}; // names none unless it is Open
    QString reason = {};          // why it, or part of it, can't be read
};

/// What is done to a document.
struct Step {
    Job job;
    After after = After::Step;
    QString name = {};  // for the user, in "Undo Blur"
    QString words = {}; // what velara-batch would take for it, one step a line; empty: it can't be said
    int state = 0;      // with After::Back or Forward: where to, by its number (UndoStore::listed); 0: the next one
};

class Workspace final : public QObject {
    Q_OBJECT
  public:
    using Then = std::function<void(const Outcome& outcome)>;

    /// folder: for the undo series, made if its parent exists; empty: no steps are kept. reader is asked from
    /// another thread.
    Workspace(QString folder, PictureReader& reader, QObject* parent = nullptr);
    /// Where the undo series are.
    const QString& folder() const { return folder_; }
    /// Cancels what is under way, finishes what is being written, and calls nobody back.
    ~Workspace() override;

    // --- Documents
    /// Reads a file, or a page of it (from 1), into a new document, after the files asked for before.
    void open(const QString& path, Unreadable unreadable, std::function<void(const Opened& opened)> then, int page = 1);
    /// Cancels the file that is being read and the queued ones. False when there is none.
    bool cancelOpening();
    /// A new document, the last in order; a null picture makes an empty one. If an open document has the path already,
    /// the new one gets a mark (n counts clashes and is never reused).
    DocumentHandle add(const Bits& picture, const QString& path = {}, Arrival arrival = Arrival::Made)
    {
        return add(picture, FileFacts{.path = path}, arrival);
    }
    /// Opens what a dead program left, as changed, with its steps; reads it in its turn with the files.
    void recover(std::shared_ptr<Leftover> leftover, std::function<void(const Opened& opened)> then);
    /// For views, which keep what they show until they are deleted.
    std::shared_ptr<Document> share(const DocumentHandle& document) const;
    /// Its handles become null, its changes end as Gone, and its undo files are removed in the background.
    void close(const DocumentHandle& document);
    /// In order of opening.
    std::vector<DocumentHandle> documents() const;
    /// Writes the picture in the format of the path's extension, in its turn in the queue; later changes don't wait
    /// until it is written. Then the path becomes the document's own, with a mark if another one has it. The file gets
    /// as much of the camera's data as file.kept says.
    void save(const DocumentHandle& document, const QString& path, std::function<void(const SaveReport&)> then = {});
    /// Ends the saves of the document that are being written, or wait for that, as Stopped. False: there is none.
    bool cancelSaving(const DocumentHandle& document);
    /// Writes a picture that belongs to no document. goOn is asked by the writing thread; false ends it.
    void write(const Bits& picture, const QString& path, std::function<void(const SaveReport&)> then,
               const CameraData& camera = {}, const std::function<bool()>& goOn = {});

    // --- Changes
    /// The one way from a command to a document. The outcome is Gone when there is no picture. Returns the number of
    /// the change, for cancel().
    int change(const DocumentHandle& document, Step step, Then then = {});
    /// Ends a change that a tool painted directly into the document: snapshot, under that name, and changed mark.
    void finish(const DocumentHandle& document, const QString& name = {});
    /// One step back or forward, in its turn. Where changes are under way, nothing steps: a step back ends them as
    /// Cancelled, which is what the user wants back. The outcome is Failed, for no reason, where there is no such step.
    void step(const DocumentHandle& document, bool back, Then then = {});
    /// To a state of the undo series, by its number (UndoStore::listed), in its turn. The outcome is Failed, for no
    /// reason, where it is not in the series any more.
    void goTo(const DocumentHandle& document, int state, Then then = {});
    /// Calls in turn, once the changes queued before it are done; at once when there are none.
    void inTurn(const DocumentHandle& document, std::function<void()> call);
    /// A call or a step waits for its turn, or a save is being written: closing the document now would lose it.
    bool closeAwaits(const DocumentHandle& document) const;
    /// The changes and steps under way and those that wait end as Cancelled, or the one alone: at once, though the
    /// thread may go on until it hears of it. False where there is none.
    bool cancel(const DocumentHandle& document, int change = kAll);
    static constexpr int kAll = 0;
    bool isBusy(const DocumentHandle& document) const;
    /// The name of the change that a step back would end now, the newest of several; no value where none is under way.
    std::optional<QString> underWay(const DocumentHandle& document) const;
    /// A stroke under way holds its document's queue: asked before each change begins. Whoever answered true calls
    /// goOn() when the stroke is over.
    std::function<bool(const Document& document)> held;
    void goOn(const DocumentHandle& document);
    /// Runs events until nothing is under way, in one document or in all. For programs without a window, for tests, and
    /// where a question needs the outcome.
    void wait(const DocumentHandle& document);
    void wait();

    // --- The engine
    /// Holds the committed picture and the working region of the document that was handed over last.
    cBitFilter& engine() { return engine_; }
    bool engineHolds(const Document& document) const { return held_ == document.handle(); }
    /// Calls leaves(the document before it).
    void handOver(const Document& document);
    /// Called before the engine takes another document: pixels that a tool shows for now can still be taken back.
    std::function<void(const DocumentHandle& document)> leaves;

  signals:
    /// The file that is being read; empty: none is any more.
    void reading(const QString& path);
    /// It was saved, possibly under another name.
    void renamed(const DocumentHandle& document);
    /// A change was put in: pixels, size, selection, steps.
    void changed(const DocumentHandle& document);
    /// A change has begun.
    void busy(const DocumentHandle& document);
    /// All its changes are done.
    void idle(const DocumentHandle& document);
    /// Progress of the running change, as the engine reports it.
    void progress(const DocumentHandle& document, int percent);
    /// The state before a change can't be kept; the reason is for the user.
    void stepLost(const DocumentHandle& document, const QString& reason);
    /// From now on its unsaved work could not be recovered after a crash; the reason is for the user.
    void unrecorded(const DocumentHandle& document, const QString& reason);

  private:
    struct Run;
    struct Item;
    struct Place;
    struct FileRead;
    Place* placeOf(const DocumentHandle& document) const;
    void later(std::function<void()> call);
    void customEvent(QEvent* event) override;
    bool hasCalls();
    void begin(Place& place);
    void start(const std::shared_ptr<Run>& run);
    void finished(std::shared_ptr<Run> run, Outcome outcome);
    template <class Meant> bool end(Place& place, Meant meant);
    DocumentHandle add(const Bits& picture, const FileFacts& file, Arrival arrival);
    DocumentHandle take(std::shared_ptr<Document> document);
    void name(Document& document, const QString& path);
    DocumentHandle recovered(Leftover& leftover, const Bits& picture);
    void readNext();
    void opened(FileRead& opening);
    void saved(const DocumentHandle& document, const QString& path, int commits);

    QString folder_;
    PictureReader& reader_;
    cBitFilter engine_;
    DocumentHandle held_;
    std::mutex callsGuard_;                   // before the documents, whose undo stores call until they end
    std::deque<std::function<void()>> calls_; // an event is on its way for each
    std::vector<std::unique_ptr<Place>> places_;
    std::deque<std::shared_ptr<FileRead>> openings_; // the first is being read
    int nextNumber_ = 1, clashes_ = 0, changes_ = kAll, writes_ = 0, removals_ = 0;
    Workers threads_, reading_, writing_, removing_, freeing_;
};

} // namespace velara
