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

/// Rectangle of cell 1 to kCells, row by row.
Rect cellRect(int cell);
/// The cell at a position; 0 for none.
int cellAt(int x, int y);
/// Six levels a channel, red outermost; nothing for the cells above kSafeColours.
std::optional<Colour> safeColour(int cell);

/// Element 0 has no cell. Values are kept as they were read, whatever their highest byte.
using UserColours = std::array<std::int32_t, kCells + 1>;

/// Reads one line an element, as far as there are lines: the number at its start, rounded half to even, or 0 without
/// one. A number beyond 32 bits leaves the element unchanged.
void readUserColours(const QByteArray& text, UserColours& colours);
/// kCells + 1 lines, each with a leading blank unless negative, and CR LF.
QByteArray userColoursText(const UserColours& colours);

/// Red, green and blue in hexadecimal, concatenated. Missing leading zeros of a component are put in front of the whole
/// text, not of the component: a quirk that is kept.
QString GetHexVal(int red, int green, int blue);

} // namespace velara
