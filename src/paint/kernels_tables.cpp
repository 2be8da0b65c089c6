#include "paint/ChannelTables.h"
#include "pixels/pairTable.h"
#include <algorithm>
#include <bit>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "paint/kernels_tables.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

using Table = ChannelTables::Table;

#if HWY_TARGET == HWY_AVX3_DL

/// Changes the pixels by look-ups of 64 bytes in 128 entries at a time. False where there are none.
bool lookUp(const std::array<Table, 3>& tables, Pixel* pixels, int count)
{
    constexpr int kPixels = 16;
    __m512i quarters[3][4];
    for (int c = 0; c < 3; ++c)
        for (int i = 0; i < 4; ++i) quarters[c][i] = _mm512_loadu_si512(tables[std::size_t(c)].data() + 64 * i);
    for (int i = 0; i < count; i += kPixels) {
        const auto there = static_cast<__mmask16>((1u << std::min(kPixels, count - i)) - 1);
        const __m512i old = _mm512_maskz_loadu_epi32(there, pixels + i);
        const __mmask64 isHigh = _mm512_movepi8_mask(old);
        __m512i changed = old;
        for (int c = 0; c < 3; ++c) {
            const __m512i low = _mm512_permutex2var_epi8(quarters[c][0], old, quarters[c][1]);
            const __m512i high = _mm512_permutex2var_epi8(quarters[c][2], old, quarters[c][3]);
            const __mmask64 ofChannel = 0x1111111111111111u << c;
            changed = _mm512_mask_blend_epi8(ofChannel, changed, _mm512_mask_blend_epi8(isHigh, low, high));
        }
        _mm512_mask_storeu_epi32(pixels + i, there, changed);
    }
    return true;
}

#else

bool lookUp(const std::array<Table, 3>&, Pixel*, int) { return false; }

#endif

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

static_assert(std::endian::native == std::endian::little, "channel 0 is the lowest byte of a pixel");

HWY_EXPORT(lookUp);

ChannelTables::ChannelTables(const std::array<Table, 3>& tables) : tables_(tables)
{
    if (HWY_DYNAMIC_DISPATCH(lookUp)(tables_, nullptr, 0)) return;
    pairs_ = pairTable<std::uint16_t>([&](int blue, int green) {
        return tables[0][static_cast<std::size_t>(blue)] | tables[1][static_cast<std::size_t>(green)] << 8;
    });
    for (std::size_t i = 0; i < reds_.size(); ++i) reds_[i] = static_cast<std::uint32_t>(tables[2][i]) << 16;
}

void ChannelTables::apply(Pixel* pixels, int count) const
{
    if (pairs_.empty()) {
        HWY_DYNAMIC_DISPATCH(lookUp)(tables_, pixels, count);
        return;
    }
    const std::uint16_t* pairs = pairs_.data(); // a member would be loaded again after each store
    const std::uint32_t* reds = reds_.data();
    for (Pixel *p = pixels, *end = pixels + count; p < end; ++p) {
        const auto v = std::bit_cast<std::uint32_t>(*p);
        *p = std::bit_cast<Pixel>(pairs[v & 0xFFFF] | reds[v >> 16 & 255] | (v & 0xFF000000));
    }
}

} // namespace velara
#endif
