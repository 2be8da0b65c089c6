#include "commands/sizeWords.h"

namespace velara {

namespace {

// clang-format off
constexpr SizeWord kSizeWords[] = {
    {SizeWord::Reduce,  "50",       2, false},
    {SizeWord::Reduce,  "33",       3, false},
    {SizeWord::Reduce,  "25",       4, false},
    {SizeWord::Reduce,  "20",       5, false},
    {SizeWord::Reduce,  "15",       7, false}, // a seventh and a ninth: odd, and kept
    {SizeWord::Reduce,  "10",       9, false},
    {SizeWord::Reduce,  "ORIGINAL", 1, false},
    {SizeWord::Enlarge, "2x",       2, true},
    {SizeWord::Enlarge, "3x",       3, true},
    {SizeWord::Enlarge, "4x",       4, true},
    {SizeWord::Enlarge, "5x",       5, true},
    {SizeWord::Reduce,  "x2",       2, true},
    {SizeWord::Reduce,  "x3",       3, true},
    {SizeWord::Reduce,  "x4",       4, true},
    {SizeWord::Reduce,  "x5",       5, true},
    {SizeWord::Rotate,  "N45",    -45, false},
    {SizeWord::Rotate,  "N90",    -90, false},
    {SizeWord::Rotate,  "N180",  -180, false},
    {SizeWord::Rotate,  "N270",    90, false},
    {SizeWord::Rotate,  "A45",    -45, true},
    {SizeWord::Rotate,  "A90",    -90, true},
    {SizeWord::Rotate,  "A180",  -180, true},
    {SizeWord::Rotate,  "A270",    90, true},
};
// clang-format on

} // namespace

std::span<const SizeWord> sizeWords() { return kSizeWords; }

} // namespace velara
