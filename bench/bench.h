// The benchmark rows. Each file bench_<family>.cpp registers its own; operations of the engine's table without a row
// are measured as well, with their typical arguments.
#pragma once
#include "engine/operations.h"
#include <functional>
#include <string>
#include <vector>

namespace velara::bench {

struct Size {
    int width, height;
};

/// What is timed: body and reference, alternately. The row's figure is the median of body / (reference * share).
struct Timing {
    std::function<void()> body;
    std::function<void()> reference; // empty: one memcpy of the picture's buffer into a warm destination
    double share = 1;
    std::function<void()> before = {}; // runs before each body, untimed
};

/// What no implementation of a row gets below, counted from its arithmetic: operations on vectors of four-byte lanes,
/// loads and stores among them; operations on single pixels; and cycles that a pixel waits for the one before it. At
/// the rate that the machine reaches in the same run (rate.h), with a quarter more for what a loop loses, this is the
/// goal where it is more than the row's own, which was set on a machine with slower memory.
struct Bound {
    double ofVector = 0, ofPixel = 0, cycles = 0;
};

/// One line of the table. must and goal are the highest permitted figures, 0 for none. prepare runs before the timing.
struct Row {
    std::string family, name;
    double must, goal;
    std::function<Timing(Size)> prepare;
    std::string unit = "memcpy"; // the figure's unit; "ms" is absolute, without a reference
    std::string operation = {};  // of the engine's table, if the row measures one
    Bound bound = {};
    double copied = 0; // the part of the picture that is copied beside what must and goal speak of
};

std::vector<Row>& rows();
/// To be used at file scope: static const Rows rows{{...}, ...};
struct Rows {
    Rows(std::initializer_list<Row> list) { rows().insert(rows().end(), list); }
};

/// A substitute for a photograph: smooth colours, edges and a little noise. The last one is cached.
const Bits& picture(Size size);

enum class Selected { All, Ellipse };

/// An operation on the whole picture, relative to memcpy. Result buffers are recycled as in the program.
Row operation(std::string family, double must, double goal, std::string name, Arguments arguments);
/// Where a selection is looked up: at the pixels that are written, or at those that they are taken from, which may be
/// for any pixel of the box.
enum class Tested { Target, Source };
/// The same within an ellipse of one band per row, relative to the whole picture's time per pixel that is computed: of
/// the ellipse, or of the box. Goals are for these; the copies of the others are added.
Row inEllipse(std::string family, double must, double goal, std::string name, Arguments arguments,
              Tested tested = Tested::Target);
/// The same of a filter that needs a sum of the whole picture first: the other pixels are read once more, which is half
/// of what their copy moves.
Row afterASum(Row row);

/// The row with its bound.
Row bounded(Bound bound, Row row);

} // namespace velara::bench
