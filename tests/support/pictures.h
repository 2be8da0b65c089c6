// Small pictures and an exact comparer for tests.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include <cstdint>
#include <gtest/gtest.h>

namespace velara {

/// Every byte of the buffer random, margin and fourth byte included.
Bits randomBits(int width, int height, std::uint32_t seed);
/// One colour 0xFFBBGGRR-like: fourth byte, blue, green, red from the high byte down; the margin stays 0.
Bits flatBits(int width, int height, std::uint8_t blue, std::uint8_t green, std::uint8_t red, std::uint8_t fourth = 0);

/// Equal in size and in every byte, margin included; the failure names the first differing pixel: x, y, channel,
/// wanted, got.
::testing::AssertionResult sameBits(const Bits& wanted, const Bits& got);

} // namespace velara
