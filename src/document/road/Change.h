// What a change of a document's pixels is made of: the job, what follows it, and what became of it. Workspace puts
// them together.
#pragma once
#include <QString>
#include <exception>
#include <functional>

namespace velara {

class Document;
class cBitFilter;

/// Work on a document that knows no window. It gets a draft: a document of its own with the committed picture and the
/// selection, and an engine that holds both. What it leaves in the draft is the result: pixels, size, selection. It
/// runs on a thread of its own, may paint by draft.paint, and ends early by an exception: RuntimeError is a failure,
/// Cancelled is the user's wish. It holds no window, no Setup and no handle: what it needs it has been given as values.
using Job = std::function<void(Document& draft, cBitFilter& filter)>;

enum class After {
    Step,   // one undo step, the document counts as changed, and a run of sizing words is over
    Sizing, // one undo step of a run of sizing words; each of them starts from the picture before the first
    Back,   // no job: the document goes one step back or
    Forward // forward; where there is none that is Failed, for no reason
};

constexpr bool isStep(After after) { return after == After::Back || after == After::Forward; }

/// What became of a change. In all cases but Done the document, its selection and its undo series are as they were.
struct Outcome {
    enum Kind {
        Done,
        Failed,    // the job threw; reason says what
        Cancelled, // the job threw Cancelled
        Gone,      // no such document any more, no picture in it, or the frame closes: nobody to tell
    };
    Kind kind = Done;
    QString reason = {};           // in words for a person; empty where there is nothing to say
    std::exception_ptr fault = {}; // what the job threw

    explicit operator bool() const { return kind == Done; }
};

} // namespace velara
