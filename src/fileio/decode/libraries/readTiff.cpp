#include "fileio/decode/libraries/InOrder.h"
#include "fileio/decode/libraries/TiffRows.h"
#include "fileio/decode/readers.h"
#include <cmath>
#include <limits>

namespace velara::decode {

namespace {

/// Writes the pixels of a line of samples.
using Convert = std::function<void(const std::uint8_t* from, Pixel* row)>;

/// Grey by the first sample of each pixel.
template <class Sample, class ToByte> Convert greyOf(const TiffKind& kind, ToByte toByte)
{
    const std::size_t width = kind.width, step = kind.samples;
    return [=](const std::uint8_t* line, Pixel* row) {
        const auto* from = reinterpret_cast<const Sample*>(line);
        for (std::size_t x = 0; x < width; ++x, from += step) {
            const std::uint8_t grey = toByte(*from);
            row[x] = {{grey, grey, grey, 0}};
        }
    };
}

/// Whole numbers give their highest byte. Light is of 0 to 1: brighter values become white, not-a-number black.
template <class Number> std::uint8_t byteOf(Number value)
{
    if constexpr (std::is_integral_v<Number>) return static_cast<std::uint8_t>(value >> 8 * (sizeof(Number) - 1));
    const auto light = static_cast<float>(value);
    return static_cast<std::uint8_t>(light > 0 ? std::min(light, 1.0F) * 255 + 0.5F : 0.0F);
}

/// Red, green and blue of samples that lie side by side; grey of fewer than three.
template <class Sample> Convert coloursOf(const TiffPage&, const TiffKind& kind)
{
    const std::size_t width = kind.width, step = kind.samples;
    if (step < 3) return greyOf<Sample>(kind, byteOf<Sample>);
    return [=](const std::uint8_t* line, Pixel* row) {
        const auto* from = reinterpret_cast<const Sample*>(line);
        for (std::size_t x = 0; x < width; ++x, from += step)
            row[x] = {{byteOf(from[2]), byteOf(from[1]), byteOf(from[0]), 0}};
    };
}

/// Inks, 0 for none; black may be missing.
template <class Sample> Convert inksOf(const TiffKind& kind)
{
    constexpr std::uint32_t kMost = std::numeric_limits<Sample>::max();
    const std::size_t width = kind.width, step = kind.samples;
    const bool hasBlack = step > 3;
    return [=](const std::uint8_t* line, Pixel* row) {
        const auto* from = reinterpret_cast<const Sample*>(line);
        for (std::size_t x = 0; x < width; ++x, from += step) {
            const std::uint32_t white = hasBlack ? kMost - from[3] : kMost;
            const auto light = [&](int ink) {
                return static_cast<std::uint8_t>((kMost - from[ink]) * white / kMost >> 8 * (sizeof(Sample) - 1));
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
    const unsigned width = kind.width, step = kind.samples;
    if (kind.bits == 8)
        return [=](const std::uint8_t* from, Pixel* row) {
            for (unsigned x = 0; x < width; ++x, from += step) row[x] = palette[*from];
        };
    return [=, sample = SmallSamples(kind.bits)](const std::uint8_t* from, Pixel* row) {
        for (unsigned x = 0; x < width; ++x) row[x] = palette[sample(from, std::size_t{x} * step)];
    };
}

/// Red, green and blue of fewer than eight bits each.
Convert smallColoursOf(const TiffKind& kind)
{
    const unsigned width = kind.width, step = kind.samples, scale = 255 / ((1U << kind.bits) - 1);
    return [=, sample = SmallSamples(kind.bits)](const std::uint8_t* from, Pixel* row) {
        for (unsigned x = 0; x < width; ++x) {
            const auto byte = [&](unsigned i) {
                return static_cast<std::uint8_t>(sample(from, std::size_t{x} * step + i) * scale);
            };
            row[x] = {{byte(2), byte(1), byte(0), 0}};
        }
    };
}

template <class Part> struct Complex {
    Part real, imaginary;
};

template <class Number> Number measureOf(Number value) { return value; }
template <class Part> double measureOf(const Complex<Part>& value)
{
    const double real = value.real, imaginary = value.imaginary;
    return std::sqrt(real * real + imaginary * imaginary);
}

/// Measurements are shown from the darkest to the brightest, at least from 255 down to 0 where they are all on one
/// side; complex numbers by their magnitude, and of several samples the first.
template <class Sample> Convert measuredOf(const TiffPage& page, const TiffKind& kind)
{
    using Measure = decltype(measureOf(Sample()));
    TiffLines lines(page);
    Measure low = 255, high = 0;
    const std::size_t step = kind.samples;
    for (std::uint32_t y = 0; y < kind.height; ++y) {
        const auto* from = reinterpret_cast<const Sample*>(lines.next());
        for (std::uint32_t x = 0; x < kind.width; ++x) {
            low = std::min(low, measureOf(from[x * step]));
            high = std::max(high, measureOf(from[x * step]));
        }
    }
    if (low == high) {
        high = 255;
        low = 0;
    }
    using Fraction = std::conditional_t<sizeof(Measure) == 2, float, Measure>;
    using Wide = std::conditional_t<std::is_integral_v<Measure>, std::int64_t, Fraction>; // differences fit
    const Wide from = low;
    const double scale = 255 / static_cast<double>(high - from);
    return greyOf<Sample>(kind, [=](const Sample& value) {
        const double shown = scale * static_cast<double>(measureOf(value) - from) + 0.5;
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
    case PHOTOMETRIC_SEPARATED:
        return kind.bits <= 8 && kind.samples > 3;
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

using Converter = Convert (*)(const TiffPage& page, const TiffKind& kind);

/// Samples of more than a byte, by their format and bits: three and more of them may be colours, fewer are measured.
struct Numbers {
    std::uint16_t format, bits;
    Converter colours; // null: there are none
    Converter measured;
};
// clang-format off
constexpr Numbers kNumbers[] = {
    {SAMPLEFORMAT_UINT,           16, coloursOf<std::uint16_t>, coloursOf<std::uint16_t>},
    {SAMPLEFORMAT_INT,            16, nullptr,                  measuredOf<std::int16_t>},
    {SAMPLEFORMAT_IEEEFP,         16, coloursOf<_Float16>,      measuredOf<_Float16>},
    {SAMPLEFORMAT_UINT,           32, nullptr,                  measuredOf<std::uint32_t>},
    {SAMPLEFORMAT_INT,            32, nullptr,                  measuredOf<std::int32_t>},
    {SAMPLEFORMAT_IEEEFP,         32, coloursOf<float>,         measuredOf<float>},
    {SAMPLEFORMAT_IEEEFP,         64, nullptr,                  measuredOf<double>},
    {SAMPLEFORMAT_COMPLEXINT,     32, nullptr,                  measuredOf<Complex<std::int16_t>>},
    {SAMPLEFORMAT_COMPLEXINT,     64, nullptr,                  measuredOf<Complex<std::int32_t>>},
    {SAMPLEFORMAT_COMPLEXIEEEFP,  64, nullptr,                  measuredOf<Complex<float>>},
    {SAMPLEFORMAT_COMPLEXIEEEFP, 128, nullptr,                  measuredOf<Complex<double>>},
};
// clang-format on

Convert numbersOf(const TiffPage& page, const TiffKind& kind)
{
    const auto format = kind.format == SAMPLEFORMAT_VOID ? std::uint16_t{SAMPLEFORMAT_UINT} : kind.format;
    const auto* row = std::ranges::find_if(
        kNumbers, [&](const Numbers& each) { return each.format == format && each.bits == kind.bits; });
    if (row == std::end(kNumbers)) return {};
    if (kind.samples > 2 && row->colours) return row->colours(page, kind);
    const bool isRgb = kind.photometric == PHOTOMETRIC_RGB && kind.samples > 2;
    return isRgb ? Convert() : row->measured(page, kind);
}

/// Nothing: a kind that isn't read.
Convert converterOf(const TiffPage& page, const Tiff& tiff, const TiffKind& kind)
{
    const bool isSmall = kind.bits < 8 && 8 % kind.bits == 0, isByte = kind.bits == 8;
    if (kind.photometric == PHOTOMETRIC_SEPARATED) {
        if (kind.samples < 3 || (!isByte && kind.bits != 16)) return {};
        return isByte ? inksOf<std::uint8_t>(kind) : inksOf<std::uint16_t>(kind);
    }
    if (kind.photometric == PHOTOMETRIC_RGB && kind.samples > 2 && (isSmall || isByte))
        return isByte ? coloursOf<std::uint8_t>(page, kind) : smallColoursOf(kind);
    if (isSmall || isByte) return indicesOf(kind, paletteOf(tiff, kind));
    return kind.photometric == PHOTOMETRIC_PALETTE ? Convert() : numbersOf(page, kind);
}

/// Null: the library doesn't read that kind.
std::unique_ptr<TiffColours> coloured(const TiffPage& page)
try {
    return std::make_unique<TiffColours>(page);
} catch (const Damage&) {
    return nullptr;
}

Decoded refusedKind(const TiffKind& kind)
{
    if (kind.photometric == PHOTOMETRIC_SEPARATED && kind.samples < 3)
        return refused("it has fewer inks than cyan, magenta and yellow");
    return refused(QString("its pixels are of a kind that isn't read: %1 x %2 bits").arg(kind.samples).arg(kind.bits));
}

template <class Rows> bool areWhole(Rows& rows, std::uint32_t height)
try {
    for (std::uint32_t y = 0; y < height; ++y) rows.skip();
    return true;
} catch (const Damage&) {
    return false;
}

} // namespace

Needs prepareTiff() { return Needs::Helpers; }

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
        auto atTop = coloured(page);
        if (!atTop) return refusedKind(kind);
        if (!endsInside && !areWhole(*begin(), kind.height)) return {};
        picture.row = rowsInOrder(&TiffColours::read, begin, std::move(atTop));
    } else {
        const Convert convert = converterOf(page, tiff, kind);
        if (!convert) return refusedKind(kind);
        const auto begin = [page, convert] { return std::make_unique<TiffPixels>(page, convert); };
        if (!endsInside) picture.reason = kCutOff; // the available part is shown
        if (!endsInside && kind.isTiled && !areWhole(*begin(), kind.height)) return {};
        picture.row = rowsInOrder(&TiffPixels::read, begin, begin());
    }
    picture.carried = carriedByTiff(tiff);
    picture.carried.pages = count;
    const bool isInked = kind.photometric == PHOTOMETRIC_SEPARATED && kind.samples > 3;
    const bool isPlain = kind.format == SAMPLEFORMAT_UINT || kind.format == SAMPLEFORMAT_VOID;
    const bool hasColours = !isColoured(kind) && kind.photometric != PHOTOMETRIC_SEPARATED;
    if (isPlain && ((isInked && kind.bits <= 16 && kind.bits % 8 == 0) || (kind.bits == 16 && hasColours))) {
        const auto stored = [page] { return std::make_unique<TiffPixels>(page, Convert()); };
        picture.samples = {isInked ? 4 : 3, kind.bits / 8, rowsInOrder(&TiffPixels::readSamples, stored)};
    }
    return picture;
} catch (const Damage&) {
    return {};
}

} // namespace velara::decode
