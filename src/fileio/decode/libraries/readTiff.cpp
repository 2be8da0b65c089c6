#include "fileio/decode/libraries/InOrder.h"
#include "fileio/decode/libraries/TiffRows.h"
#include "fileio/decode/readers.h"
#include <cmath>
#include <limits>

namespace velara::decode {

namespace {

/// Writes the pixels of a line of samples.
using Convert = std::function<void(const std::uint8_t* from, Pixel* row)>;

/// Red, green and blue of samples that lie side by side; toByte makes eight bits of one.
template <class Sample, class ToByte> Convert coloursOf(const TiffKind& kind, ToByte toByte)
{
    const std::size_t width = kind.width, step = kind.samples, next = step > 2 ? 1 : 0;
    return [=](const std::uint8_t* line, Pixel* row) {
        const auto* from = reinterpret_cast<const Sample*>(line);
        for (std::size_t x = 0; x < width; ++x, from += step)
            row[x] = {{toByte(from[2 * next]), toByte(from[next]), toByte(from[0]), 0}};
    };
}

std::uint8_t highByte(std::uint16_t word) { return static_cast<std::uint8_t>(word >> 8); }

/// Light of 0 to 1; brighter values become white, not-a-number black.
std::uint8_t lightByte(float light)
{
    return static_cast<std::uint8_t>(light > 0 ? std::min(light, 1.0F) * 255 + 0.5F : 0.0F);
}

/// Inks of two bytes, 0 for none.
Convert inksOf(const TiffKind& kind)
{
    const std::size_t width = kind.width, step = kind.samples;
    return [=](const std::uint8_t* line, Pixel* row) {
        const auto* from = reinterpret_cast<const std::uint16_t*>(line);
        for (std::size_t x = 0; x < width; ++x, from += step) {
            const auto light = [&](int ink) {
                return highByte(static_cast<std::uint16_t>((0xffffU - from[ink]) * (0xffffU - from[3]) / 0xffffU));
            };
            row[x] = {{light(2), light(1), light(0), 0}};
        }
    };
}

std::array<Pixel, 256> paletteOf(const Tiff& tiff, const TiffKind& kind)
{
    std::array<Pixel, 256> palette{};
    const std::size_t count = std::size_t{1} << kind.bits;
    std::uint16_t *red = nullptr, *green = nullptr, *blue = nullptr;
    if (kind.photometric == PHOTOMETRIC_PALETTE && TIFFGetField(tiff.get(), TIFFTAG_COLORMAP, &red, &green, &blue)) {
        bool isWide = false; // some writers use only eight of the sixteen bits
        for (const std::uint16_t* part : {red, green, blue})
            isWide = isWide || std::any_of(part, part + count, [](std::uint16_t value) { return value > 255; });
        const auto byte = [&](std::uint16_t value) {
            return static_cast<std::uint8_t>(isWide ? value * 255L / 65535 : value);
        };
        for (std::size_t i = 0; i < count; ++i) palette[i] = {{byte(blue[i]), byte(green[i]), byte(red[i]), 0}};
        return palette;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const auto grey = static_cast<std::uint8_t>(i * (255 / (count - 1)));
        const auto shown = static_cast<std::uint8_t>(kind.photometric == PHOTOMETRIC_MINISWHITE ? 255 - grey : grey);
        palette[i] = {{shown, shown, shown, 0}};
    }
    return palette;
}

Convert indicesOf(const TiffKind& kind, const std::array<Pixel, 256>& palette)
{
    const unsigned bits = kind.bits, perByte = 8 / bits, most = (1U << bits) - 1, width = kind.width;
    if (bits == 8)
        return [=, step = kind.samples](const std::uint8_t* from, Pixel* row) {
            for (unsigned x = 0; x < width; ++x, from += step) row[x] = palette[*from];
        };
    return [=](const std::uint8_t* from, Pixel* row) {
        for (unsigned x = 0; x < width; ++x) // the leftmost is in the high bits
            row[x] = palette[from[x / perByte] >> (8 - bits * (x % perByte + 1)) & most];
    };
}

/// Measurements are shown from the darkest to the brightest, at least from 255 down to 0 where they are all on one
/// side.
template <class Sample> Convert measuredOf(const TiffPage& page, const TiffKind& kind)
{
    TiffLines lines(page);
    Sample low = 255, high = 0;
    const std::size_t step = kind.samples;
    for (std::uint32_t y = 0; y < kind.height; ++y) {
        const auto* from = reinterpret_cast<const Sample*>(lines.next());
        for (std::uint32_t x = 0; x < kind.width; ++x) {
            low = std::min(low, from[x * step]);
            high = std::max(high, from[x * step]);
        }
    }
    if (low == high) {
        high = 255;
        low = 0;
    }
    using Fraction = std::conditional_t<sizeof(Sample) == 2, float, Sample>;
    using Wide = std::conditional_t<std::is_integral_v<Sample>, std::int64_t, Fraction>; // differences fit
    const Wide from = low;
    const double scale = 255 / static_cast<double>(high - from);
    return coloursOf<Sample>(kind, [=](Sample value) {
        const double shown = scale * static_cast<double>(value - from) + 0.5;
        return static_cast<std::uint8_t>(shown > 0 ? std::min(shown, 255.0) : 0);
    });
}

/// Lines of samples, converted.
class TiffPixels {
  public:
    TiffPixels(const TiffPage& page, Convert convert) : lines_(page), convert_(std::move(convert)) {}
    void skip() { lines_.skip(); }
    void read(Pixel* row) { convert_(lines_.next(), row); }
    /// As Samples has them, of one and two bytes; only the first colours count.
    void readSamples(void* row)
    {
        const TiffKind& kind = lines_.kind();
        const std::size_t channels = kind.photometric == PHOTOMETRIC_SEPARATED ? 4 : 3, bytes = kind.bits / 8;
        const std::uint8_t* from = lines_.next();
        auto* to = static_cast<std::uint8_t*>(row);
        for (std::uint32_t x = 0; x < kind.width; ++x, from += bytes * kind.samples)
            for (std::size_t i = 0; i < channels; ++i, to += bytes)
                std::copy_n(from + (kind.samples < 3 ? 0 : i * bytes), bytes, to);
    }

  private:
    TiffLines lines_;
    const Convert convert_;
};

/// Where the library makes the colours.
bool isColoured(const TiffKind& kind)
{
    switch (kind.photometric) {
    case PHOTOMETRIC_RGB:
        return kind.bits < 8;
    case PHOTOMETRIC_SEPARATED:
        return kind.bits <= 8;
    case PHOTOMETRIC_YCBCR:
    case PHOTOMETRIC_CIELAB:
    case PHOTOMETRIC_ICCLAB:
    case PHOTOMETRIC_ITULAB:
    case PHOTOMETRIC_LOGLUV:
        return true;
    default:
        return false;
    }
}

/// Nothing: a kind that isn't read.
Convert converterOf(const TiffPage& page, const Tiff& tiff, const TiffKind& kind)
{
    const bool isRgb = kind.photometric == PHOTOMETRIC_RGB;
    if (isRgb && kind.samples < 3) return {};
    if (isRgb && kind.bits == 8) return coloursOf<std::uint8_t>(kind, [](std::uint8_t byte) { return byte; });
    if (kind.bits == 8 || (kind.samples == 1 && kind.bits < 8 && 8 % kind.bits == 0))
        return indicesOf(kind, paletteOf(tiff, kind));
    if (kind.photometric == PHOTOMETRIC_PALETTE) return {};
    const bool isFloat = kind.format == SAMPLEFORMAT_IEEEFP, isSigned = kind.format == SAMPLEFORMAT_INT;
    if (kind.bits == 16 && !isFloat && !isSigned)
        return kind.photometric == PHOTOMETRIC_SEPARATED && kind.samples > 3 ? inksOf(kind)
                                                                             : coloursOf<std::uint16_t>(kind, highByte);
    if (kind.bits == 32 && isFloat && kind.samples >= 3) return coloursOf<float>(kind, lightByte);
    if (kind.bits == 16 && isFloat && kind.samples >= 3) return coloursOf<_Float16>(kind, lightByte);
    if (kind.samples > 1) return {};
    if (kind.bits == 16 && isFloat) return measuredOf<_Float16>(page, kind);
    if (kind.bits == 16 && isSigned) return measuredOf<std::int16_t>(page, kind);
    if (kind.bits == 32 && isFloat) return measuredOf<float>(page, kind);
    if (kind.bits == 32) return isSigned ? measuredOf<std::int32_t>(page, kind) : measuredOf<std::uint32_t>(page, kind);
    if (kind.bits == 64 && isFloat) return measuredOf<double>(page, kind);
    return {};
}

template <class Rows> bool areWhole(Rows& rows, std::uint32_t height)
try {
    for (std::uint32_t y = 0; y < height; ++y) rows.skip();
    return true;
} catch (const Damage&) {
    return false;
}

} // namespace

Decoded readTiff(FileBytes& file)
try {
    const std::vector<tdir_t> pages = pagesOf(file);
    const int count = static_cast<int>(pages.size());
    if (wantedPage >= count) return noSuchPage(count);
    const TiffPage page{file, pages[static_cast<std::size_t>(wantedPage)]};
    const Tiff tiff(page);
    const TiffKind kind(tiff);
    if (kind.width == 0 || kind.height == 0 || kind.bits == 0 || kind.samples == 0) return {};
    if (!Bits::sizeAllowed(kind.width, kind.height)) return refused(kTooBig);
    sizeFound(kind.width, kind.height, kind.bits * kind.samples);

    Decoded picture{static_cast<int>(kind.width), static_cast<int>(kind.height), {}, {}};
    const bool endsInside = tiff.endsInside();
    if (isColoured(kind)) {
        const auto begin = [page] { return std::make_unique<TiffColours>(page); };
        if (!endsInside && !areWhole(*begin(), kind.height)) return {};
        picture.row = rowsInOrder(&TiffColours::read, begin, begin());
    } else {
        const Convert convert = converterOf(page, tiff, kind);
        if (!convert) return {};
        const auto begin = [page, convert] { return std::make_unique<TiffPixels>(page, convert); };
        if (!endsInside) picture.reason = kCutOff; // the available part is shown
        if (!endsInside && kind.isTiled && !areWhole(*begin(), kind.height)) return {};
        picture.row = rowsInOrder(&TiffPixels::read, begin, begin());
    }
    picture.carried = carriedByTiff(tiff);
    picture.carried.pages = count;
    const bool isInked = kind.photometric == PHOTOMETRIC_SEPARATED && kind.samples > 3;
    const bool isPlain = kind.format == SAMPLEFORMAT_UINT || kind.format == SAMPLEFORMAT_VOID;
    if (isPlain && ((isInked && kind.bits == 8) || (kind.bits == 16 && (isInked || !isColoured(kind))))) {
        const auto stored = [page] { return std::make_unique<TiffPixels>(page, Convert()); };
        picture.samples = {isInked ? 4 : 3, kind.bits / 8, rowsInOrder(&TiffPixels::readSamples, stored)};
    }
    return picture;
} catch (const Damage&) {
    return {};
}

} // namespace velara::decode
