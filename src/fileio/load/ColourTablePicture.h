// How a table of colours travels from velara-decode: as a picture.
#pragma once

namespace velara {

constexpr int kTableSide = 33;                       // steps of each of red, green and blue
constexpr int kTableWidth = kTableSide * kTableSide; // green and, changing faster, blue
constexpr int kTableHeight = 2 * kTableSide;         // red: the high bytes of all, then the low ones

} // namespace velara
