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
// inside of a call, so that nobody has to ask in his middle whether he still stands. Who holds a window in then(...)
// holds it by a QPointer.
#pragma once
#include "document/Document.h"
#include "document/road/Arrival.h"
#include "document/road/Change.h"
#include "document/road/DocumentHandle.h"
#include "engine/cBitFilter.h"
#include <QObject>
#include <QThreadPool>
#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace velara {

/// What is done to a document.
struct Step {
    Job job;
    After after = After::Step;
};

class Workspace final : public QObject {
    Q_OBJECT
  public:
    using Then = std::function<void(const Outcome& outcome)>;

    /// folder: where the undo series lie, made when its parent stands; empty: no step is kept.
    explicit Workspace(QString folder, QObject* parent = nullptr);
    /// Ends what is under way, and calls nobody.
    ~Workspace() override;

    // --- Documents
    /// A new document, the last in order. A null picture: an empty one. Its path is made unique among the open ones by
    /// a mark in front ("[n]", n counts clashes and is never reused).
    DocumentHandle add(const Bits& picture, const QString& path = {}, Arrival arrival = Arrival::Made);
    /// For views, which keep what they show until they are deleted.
    std::shared_ptr<Document> share(const DocumentHandle& document) const;
    /// Its handles become null, its undo files are removed, and its changes end as Gone.
    void close(const DocumentHandle& document);
    /// In order of opening.
    std::vector<DocumentHandle> documents() const;
    /// Another path, with a mark where an open document has it.
    void rename(const DocumentHandle& document, const QString& path);

    // --- Changes
    /// The one way from a command to a document. The outcome is Gone when there is no picture. Returns the number of
    /// the change, for cancel().
    int change(const DocumentHandle& document, Step step, Then then = {});
    /// Ends a change that a tool painted directly into the document: snapshot and changed mark.
    void finish(const DocumentHandle& document);
    /// One step back or forward. False where there is none.
    bool step(const DocumentHandle& document, bool back);
    /// In its turn among the changes: what a command does once those before it are done. At once where none is.
    void inTurn(const DocumentHandle& document, std::function<void()> call);
    /// A call waits for its turn, such as a save: closing the document now would lose it.
    bool awaitsCall(const DocumentHandle& document) const;
    /// The change under way and those that wait end as Cancelled, or the one alone. False where there is none.
    bool cancel(const DocumentHandle& document, int change = kAll);
    static constexpr int kAll = 0;
    bool isBusy(const DocumentHandle& document) const;
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
    void handOver(const Document& document);

  signals:
    /// A change was taken: pixels, size, selection, steps.
    void changed(const DocumentHandle& document);
    /// Its changes are all done.
    void idle(const DocumentHandle& document);
    /// Progress of the running change, as the engine reports it.
    void progress(const DocumentHandle& document, int percent);
    /// The state before a change can't be kept; the reason is for the user.
    void stepLost(const DocumentHandle& document, const QString& reason);

  private:
    struct Run;
    struct Item;
    struct Place;
    Place* placeOf(const DocumentHandle& document) const;
    void later(std::function<void()> call);
    void begin(Place& place);
    void start(const std::shared_ptr<Run>& run);
    void finished(const std::shared_ptr<Run>& run, Outcome outcome);
    QString unique(const QString& path);

    QString folder_;
    cBitFilter engine_;
    DocumentHandle held_;
    std::vector<std::unique_ptr<Place>> places_;
    QThreadPool threads_;
    std::atomic<int> posted_{0}; // to the event loop, and not come yet
    int nextNumber_ = 1, clashes_ = 0, changes_ = kAll;
};

} // namespace velara
