#include "fileio/IndexedPicture.h"
#include <cstring>
#include <libimagequant.h>
#include <memory>
#include <new>
#include <optional>
#include <unordered_map>

namespace velara {

namespace {

std::uint32_t keyOf(const Pixel& pixel)
{
    return std::uint32_t{pixel.c[0]} << 16 | std::uint32_t{pixel.c[1]} << 8 | pixel.c[2];
}

/// Nothing when there are more colours.
std::optional<IndexedPicture> exactly(const Bits& bits, int colours)
{
    IndexedPicture picture{bits.width(), bits.height(), {}, {}};
    picture.indices.resize(static_cast<std::size_t>(bits.width()) * static_cast<std::size_t>(bits.height()));
    std::unordered_map<std::uint32_t, std::uint8_t> known;
    std::uint8_t* to = picture.indices.data();
    std::uint32_t lastKey = ~0U;
    std::uint8_t lastIndex = 0;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x) {
            const std::uint32_t key = keyOf(bits.row(y)[x]);
            if (key != lastKey) {
                const auto [entry, isNew] = known.try_emplace(key, static_cast<std::uint8_t>(known.size()));
                if (isNew && static_cast<int>(known.size()) > colours) return std::nullopt;
                if (isNew) picture.palette.push_back(static_cast<Colour>(key));
                lastKey = key;
                lastIndex = entry->second;
            }
            *to++ = lastIndex;
        }
    return picture;
}

/// A row of the picture as the quantiser wants it: red, green, blue, opaque.
void giveRow(liq_color* row, int y, int width, void* user)
{
    const Pixel* from = static_cast<const Bits*>(user)->row(y);
    for (int x = 0; x < width; ++x) row[x] = {from[x].c[2], from[x].c[1], from[x].c[0], 255};
}

template <class T, void (*destroy)(T*)> struct Destroy {
    void operator()(T* object) const { destroy(object); }
};
using Attributes = std::unique_ptr<liq_attr, Destroy<liq_attr, liq_attr_destroy>>;
using Image = std::unique_ptr<liq_image, Destroy<liq_image, liq_image_destroy>>;
using Result = std::unique_ptr<liq_result, Destroy<liq_result, liq_result_destroy>>;

IndexedPicture quantised(const Bits& bits, int colours)
{
    const Attributes attributes(liq_attr_create());
    liq_set_max_colors(attributes.get(), colours);
    const bool isBig = std::int64_t{bits.width()} * bits.height() > 4 << 20;
    liq_set_speed(attributes.get(),
                  isBig ? 8 : 4); // a big picture has pixels enough for a palette from a coarser count
    Bits source = bits;
    const Image image(liq_image_create_custom(attributes.get(), giveRow, &source, bits.width(), bits.height(), 0));
    liq_result* made = nullptr;
    if (!image || liq_image_quantize(image.get(), attributes.get(), &made) != LIQ_OK) throw std::bad_alloc();
    const Result result(made);
    liq_set_dithering_level(result.get(), 0);

    IndexedPicture picture{bits.width(), bits.height(), {}, {}};
    picture.indices.resize(static_cast<std::size_t>(bits.width()) * static_cast<std::size_t>(bits.height()));
    if (liq_write_remapped_image(result.get(), image.get(), picture.indices.data(), picture.indices.size()) != LIQ_OK)
        throw std::bad_alloc();
    const liq_palette* palette = liq_get_palette(result.get());
    for (unsigned i = 0; i < palette->count; ++i) {
        const liq_color& c = palette->entries[i];
        picture.palette.push_back(colourOf(c.r, c.g, c.b));
    }
    return picture;
}

} // namespace

IndexedPicture reduceToBestColours(const Bits& bits, int colours)
{
    if (std::optional<IndexedPicture> exact = exactly(bits, colours)) return *std::move(exact);
    return quantised(bits, colours);
}

} // namespace velara
