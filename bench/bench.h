// The benchmark rows. Each file bench_<family>.cpp registers its own; an operation of the engine's table that no row
// names is measured as well, with its typical arguments.
#pragma once
#include "engine/operations.h"
#include <functional>
#include <string>
#include <vector>

namespace velara::bench {

struct Size {
    int width, height;
};

/// What is timed: body against reference, run in turns. The row's figure is the median of body / (reference * share).
struct Timing {
    std::function<void()> body;
    std::function<void()> reference; // empty: one memcpy of the picture's buffer into a warm destination
    double share = 1;
    std::function<void()> before = {}; // runs before each body, untimed
};

/// One line of the table. must and goal are the highest figures allowed, 0 for none. prepare runs before the timing.
struct Row {
    std::string family, name;
    double must, goal;
    std::function<Timing(Size)> prepare;
    std::string unit = "memcpy"; // what the figure counts; "ms" stands for itself, without a reference
    std::string operation = {};  // of the engine's table, if the row measures one
};

std::vector<Row>& rows();
/// At file scope: static const Rows rows{{...}, ...};
struct Rows {
    Rows(std::initializer_list<Row> list) { rows().insert(rows().end(), list); }
};

/// A photograph's stand-in: smooth colours, edges and a little noise. The last one is kept.
const Bits& picture(Size size);

enum class Selected { All, Ellipse };

/// An operation on the whole picture, against memcpy. Result buffers are recycled as in the program.
Row operation(std::string family, double must, double goal, std::string name, Arguments arguments);
/// The same within an ellipse of one band a row, against the whole picture's time a pixel.
Row inEllipse(std::string family, double must, double goal, std::string name, Arguments arguments);

} // namespace velara::bench
