// The cells of the picker's second view: where they lie, the web-safe palette, and the list of the user's colours with
// the text that keeps it.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

namespace velara {

constexpr int kCells = 224, kCellColumns = 16, kCellSide = 15, kCellGap = 3, kFirstCell = 10;
constexpr int kSafeColours = 216;

/// Cell 1 to kCells, row by row.
Rect cellRect(int cell);
/// The cell at a place; 0 for none.
int cellAt(int x, int y);
/// Six levels a channel, red outermost; nothing for the cells above kSafeColours.
std::optional<Colour> safeColour(int cell);

/// Element 0 has no cell. Values are kept as they were read, whatever their highest byte.
using UserColours = std::array<std::int32_t, kCells + 1>;

/// Takes a line for each element, as far as there are lines: the number that it begins with, rounded half to even; 0
/// without one. A number beyond 32 bits leaves the element as it was.
void readUserColours(const QByteArray& text, UserColours& colours);
/// kCells + 1 lines: a blank before what is not negative, CR LF behind.
QByteArray userColoursText(const UserColours& colours);

/// The three parts in hexadecimal, one after the other. The zero that a short one lacks stands before all of it: odd,
/// and it stays.
QString GetHexVal(int red, int green, int blue);

} // namespace velara
