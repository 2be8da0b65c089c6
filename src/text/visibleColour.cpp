#include "text/visibleColour.h"
#include <algorithm>

namespace velara {

namespace {

constexpr int kNear = 96; // distance in the cube of colours

/// How many pixels of the part are near to the colour.
int nearTo(Colour colour, const Bits& picture, const Rect& part)
{
    int count = 0;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x) {
            const Pixel& p = picture.row(y)[x];
            const int b = p.c[0] - blueOf(colour), g = p.c[1] - greenOf(colour), r = p.c[2] - redOf(colour);
            count += b * b + g * g + r * r < kNear * kNear;
        }
    return count;
}

} // namespace

Colour visibleColour(Colour wanted, const Bits& picture, const Rect& part)
{
    const Rect within = part.intersected({0, 0, picture.width(), picture.height()});
    constexpr Colour kBlack = 0, kWhite = 0xFFFFFF;
    if (within.isEmpty() || nearTo(wanted, picture, within) * 3 <= within.width() * within.height()) return wanted;
    return nearTo(kBlack, picture, within) <= nearTo(kWhite, picture, within) ? kBlack : kWhite;
}

} // namespace velara
