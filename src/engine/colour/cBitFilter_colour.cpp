// Channel arithmetic: filters that add to, swap, kill or complement the channels of each pixel by itself.
#include "engine/colour/kernels_colour.h"
#include "engine/passes.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

constexpr std::uint32_t kAllBytes = 0xFFFFFFFF;

/// bits in byte c.
constexpr std::uint32_t inChannel(int c, std::uint32_t bits) { return bits << 8 * c; }

auto mapped(const ChannelMap& map)
{
    return [=](const SpanOf& s) { colourKernels().channels(s, map); };
}

/// The amounts, by channel, split into bytes to add and bytes to subtract.
auto added(const std::array<int, 3>& amounts)
{
    std::uint32_t plus = 0, minus = 0;
    for (int c = 0; c < 3; ++c) {
        plus |= inChannel(c, clamp(amounts[std::size_t(c)]));
        minus |= inChannel(c, clamp(-std::int64_t(amounts[std::size_t(c)])));
    }
    return [=](const SpanOf& s) { colourKernels().add(s, plus, minus); };
}

std::uint32_t byteArgument(int v)
{
    if (v < 0 || v > 255) throw RuntimeError(Fault::Overflow);
    return static_cast<std::uint32_t>(v);
}

} // namespace

Bits cBitFilter::BRIGHTNESS(int Level) { return eachSpan(0, added({Level, Level, Level})); }

Bits cBitFilter::ShiftRGB(int Red, int Green, int Blue) { return eachSpan(0, added({Blue, Green, Red})); }

Bits cBitFilter::Invert() { return eachSpan(0, mapped({kChannelsInPlace, kAllBytes, ~kFourthByte})); }

Bits cBitFilter::KillChannel(bool KillRed, bool KillGreen, bool KillBlue)
{
    return SpecialColors(!KillRed, !KillGreen, !KillBlue);
}

Bits cBitFilter::SpecialColors(bool KeepRed, bool KeepGreen, bool KeepBlue)
{
    const std::uint32_t keep = inChannel(0, KeepBlue ? 255 : 0) | inChannel(1, KeepGreen ? 255 : 0) |
                               inChannel(2, KeepRed ? 255 : 0) | kFourthByte;
    return eachSpan(0, mapped({kChannelsInPlace, keep, 0}));
}

Bits cBitFilter::SwapRGB(int SourceRed, int SourceGreen, int SourceBlue, bool InvertRed, bool InvertGreen,
                         bool InvertBlue, int KillRed, int KillGreen, int KillBlue)
{
    const struct {
        int source;
        bool invert;
        int kill;
    } channels[] = {
        {SourceBlue, InvertBlue, KillBlue}, {SourceGreen, InvertGreen, KillGreen}, {SourceRed, InvertRed, KillRed}};
    ChannelMap map{inChannel(3, 3), kFourthByte, 0};
    bool outside = false;
    for (int c = 0; c < 3; ++c) {
        const auto& from = channels[c];
        const std::uint32_t source = byteArgument(from.source), keep = ~byteArgument(from.kill) & 255;
        outside |= source > 3; // a pixel has four bytes
        map.from |= inChannel(c, source & 3);
        map.keep |= inChannel(c, keep);
        if (from.invert) map.flip |= inChannel(c, keep);
    }
    return eachSpan(0, [=, run = mapped(map)](const SpanOf& s) {
        if (outside) throw RuntimeError(Fault::OutOfRange);
        run(s);
    });
}

Bits cBitFilter::SwapBanks(int Mode)
{
    constexpr std::uint32_t kOrders[] = {kChannelsInPlace, 0x03000201, 0x03010002, 0x03020001, 0x03000102, 0x03010200};
    const bool known = Mode >= 1 && Mode <= 5;
    return eachSpan(0, mapped({kOrders[known ? Mode : 0], kAllBytes, 0}));
}

} // namespace velara
