// The parts of a change of a document's pixels: the job, what follows it, and its outcome. Workspace puts them
// together.
#pragma once
#include <QString>
#include <exception>
#include <functional>

namespace velara {

class Document;
class cBitFilter;

/// Work on a document, without a window. It gets a draft (a document of its own with the committed picture and the
/// selection) and an engine that holds both. What it leaves in the draft is the result: pixels, size, selection. It
/// runs on a worker thread, may paint by draft.paint, and ends early by an exception: RuntimeError is a failure,
/// Cancelled the user's wish. It refers to no window, Setup or handle: all it needs is captured by value.
using Job = std::function<void(Document& draft, cBitFilter& filter)>;

enum class After {
    Step,   // one undo step, the document is marked as changed, and a run of sizing words ends
    Sizing, // one undo step of a run of sizing words; each of them starts from the picture before the first
    Back,   // no job: the document goes one step back or
    Forward // forward; where there is none that is Failed, for no reason
};

constexpr bool isStep(After after) { return after == After::Back || after == After::Forward; }

/// How a change ended. In all cases but Done the document, its selection and its undo series are unchanged.
struct Outcome {
    enum Kind {
        Done,
        Failed,    // the job threw; reason says why
        Cancelled, // the job threw Cancelled
        Gone,      // no such document any more, no picture in it, or the frame closes: nothing to report
    };
    Kind kind = Done;
    QString reason = {};           // for the user; empty where there is nothing to say
    std::exception_ptr fault = {}; // what the job threw

    explicit operator bool() const { return kind == Done; }
};

} // namespace velara
