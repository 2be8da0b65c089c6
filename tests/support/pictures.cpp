#include "support/pictures.h"
#include <algorithm>
#include <random>

namespace velara {

Bits randomBits(int width, int height, std::uint32_t seed)
{
    std::mt19937 random(seed);
    Bits bits(width, height);
    std::generate_n(bits.data(), bits.sizeInBytes(), [&] { return static_cast<std::uint8_t>(random()); });
    return bits;
}

void drawStroke(Bits& bits, std::uint32_t seed)
{
    std::mt19937 random(seed);
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    const int left = upTo(bits.width() + 1) - 2, top = upTo(bits.height() + 1) - 2;
    const int right = std::min(left + 1 + upTo(9), bits.width() + 2), bottom = std::min(top + 6, bits.height() + 2);
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            for (std::uint8_t& c : bits.at(x, y).c) c = static_cast<std::uint8_t>(random());
}

Bits flatBits(int width, int height, std::uint8_t blue, std::uint8_t green, std::uint8_t red, std::uint8_t fourth)
{
    return drawnBits(width, height, [&](int, int) { return Pixel{{blue, green, red, fourth}}; });
}

Bits plain(const Bits& bits)
{
    return drawnBits(bits.width(), bits.height(), [&](int x, int y) {
        const Pixel& p = bits.at(x, y);
        return Pixel{{p.c[0], p.c[1], p.c[2], 0}};
    });
}

::testing::AssertionResult sameBits(const Bits& wanted, const Bits& got)
{
    if (wanted.width() != got.width() || wanted.height() != got.height())
        return ::testing::AssertionFailure() << "size: wanted " << wanted.width() << "x" << wanted.height() << ", got "
                                             << got.width() << "x" << got.height();
    if (wanted == got) return ::testing::AssertionSuccess();
    for (int y = -Bits::kMargin; y < wanted.height() + Bits::kMargin; ++y)
        for (int x = -Bits::kMargin; x < wanted.width() + Bits::kMargin; ++x)
            for (int c = 0; c < 4; ++c)
                if (wanted.at(x, y).c[c] != got.at(x, y).c[c])
                    return ::testing::AssertionFailure()
                           << "first difference at x " << x << ", y " << y << ", channel " << c << ": wanted "
                           << int(wanted.at(x, y).c[c]) << ", got " << int(got.at(x, y).c[c]);
    return ::testing::AssertionSuccess();
}

} // namespace velara
