#include "commands/recipe/geometrySteps.h"
#include "document/resizing.h"

namespace velara {

namespace {

int whole(const Arguments& arguments, std::size_t i) { return std::get<int>(arguments[i]); }
bool yes(const Arguments& arguments, std::size_t i) { return std::get<bool>(arguments[i]); }

/// Runs work on a document with the filter's picture; its result becomes the filter's.
template <class Work> void onDocument(cBitFilter& filter, Work work)
{
    Document document({}, 0);
    document.takePicture(filter.bits());
    work(document);
    document.handTo(filter);
}

void canvasSize(const Operation&, cBitFilter& filter, const Arguments& a)
{
    onDocument(filter,
               [&](Document& d) { resizeCanvas(d, filter, whole(a, 0), whole(a, 1), whole(a, 2), whole(a, 3)); });
}

void orientation(const Operation&, cBitFilter& filter, const Arguments& a)
{
    if (whole(a, 0) < 0 || whole(a, 0) > 3) throw std::invalid_argument("Turns (0 to 3)");
    onDocument(filter, [&](Document& d) { orientImage(d, filter, whole(a, 0), yes(a, 1), yes(a, 2)); });
}

void rotateOnSquare(const Operation&, cBitFilter& filter, const Arguments& a)
{
    onDocument(filter, [&](Document& d) { turnOnSquare(d, filter, whole(a, 0), yes(a, 1)); });
}

using enum ArgumentType;

} // namespace

std::span<const Operation> geometryOperations()
{
    // clang-format off
    static const Operation all[] = {
        {"CanvasSize", {{"Width", Integer, "side", "100", "pixels", 1, 100, 100}, {"Height", Integer, "side", "80", "pixels", 1, 100, 80},
                        {"Left", Integer, "column", "5", "of the picture's first column on it", -10, 60, 5},
                        {"Top", Integer, "row", "5", "of its first row", -10, 40, 5}}, 0, canvasSize},
        {"Orientation", {{"Turns", Integer, "0..3", "1", "quarter turns to the left", 0, 3, 1},
                         {"Vertical", Boolean, {}, {}, "then top and bottom exchanged"},
                         {"Horizontal", Boolean, {}, {}, "then left and right exchanged"}}, 0, orientation},
        {"RotateImage", {{"Degrees", Integer, "-400..400", "30", "to the left; the picture becomes a square that holds it", -400, 400, 30},
                         {"Smooth", Boolean, {}, {}, "blended and not by the nearest pixel"}}, 0, rotateOnSquare},
    };
    // clang-format on
    return all;
}

} // namespace velara
