#include "reduce/bestColours.h"
#include "pixels/Register.h"
#include "pixels/RuntimeError.h"
#include "pixels/threads/parallelFor.h"
#include "reduce/best/refinePalette.h"
#include "reduce/dither.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <libimagequant.h>
#include <memory>
#include <new>
#include <omp.h>
#include <unordered_set>

namespace velara {

namespace {

/// Big pictures are sampled: more pixels than this cost time and improve the palette by nothing visible.
constexpr double kSampledPixels = 1 << 17;
constexpr int kSpeed = 4; // the quantiser's scale is 1 (slow, best) to 10; below 4 it gains little

Colour colourAt(const Pixel& pixel) { return colourOf(pixel.c[2], pixel.c[1], pixel.c[0]); }

/// Nothing when the picture has more colours.
std::optional<Palette> ownColours(const Bits& bits, int colours, const ReduceProgress& progress)
{
    constexpr int kRowsAtATime = 64;
    std::unordered_set<Colour> known;
    Palette palette;
    Colour last = -1;
    for (int y = 0; y < bits.height(); ++y) {
        if (progress && y % kRowsAtATime == 0) progress(0);
        for (int x = 0; x < bits.width(); ++x) {
            const Colour colour = colourAt(bits.row(y)[x]);
            if (colour == std::exchange(last, colour) || !known.insert(colour).second) continue;
            if (static_cast<int>(palette.size()) == colours) return std::nullopt;
            palette.push_back(colour);
        }
    }
    return palette;
}

/// Every n-th pixel in both directions.
struct Sample {
    static constexpr int kFetched = 16; // a cache line of pixels for each
    int width, height;
    std::vector<Pixel> pixels;

    explicit Sample(const Bits& bits)
    {
        const int step = static_cast<int>(std::ceil(std::sqrt(double(bits.width()) * bits.height() / kSampledPixels)));
        width = (bits.width() + step - 1) / step;
        height = (bits.height() + step - 1) / step;
        pixels.resize(std::size_t(width) * std::size_t(height));
        parallelFor(height, turnsTogether(kFetched * width), [&](int y) {
            const Pixel* from = bits.row(y * step);
            Pixel* const to = &pixels[std::size_t(y) * std::size_t(width)];
            for (int x = 0; x < width; ++x) to[x] = from[x * step];
        });
    }
    /// A row in the quantiser's format: red, green, blue, opaque.
    static void giveRow(liq_color* row, int y, int width, void* user)
    {
        const auto* from = &static_cast<const Sample*>(user)->pixels[std::size_t(y) * std::size_t(width)];
        std::transform(from, from + width, row, [](const Pixel& p) { return liq_color{p.c[2], p.c[1], p.c[0], 255}; });
    }
};

constexpr std::size_t kManyColours = 1 << 14;

/// The means and numbers of the pixels that have the high `bits` bits of each channel in common, by first use. Nothing
/// where there would be more than kManyColours.
std::optional<std::vector<liq_histogram_entry>> countedBy(int bits, const std::vector<Pixel>& pixels)
{
    constexpr int kSlotBits = 16; // four slots an entry, so that most are found at once
    struct Slot {
        std::uint32_t colour, entry;
    };
    constexpr std::uint32_t kNone = ~std::uint32_t{0};
    std::vector<Slot> table(std::size_t{1} << kSlotBits, {kNone, 0});
    std::vector<Lanes> sums;
    const std::uint32_t high = (0xFFU << (8 - bits) & 0xFF) * 0x010101U;
    for (const Pixel& p : pixels) {
        const std::uint32_t colour = std::bit_cast<std::uint32_t>(p) & high;
        std::size_t at = colour * 2654435769U >> (32 - kSlotBits); // golden ratio
        while (table[at].colour != colour && table[at].colour != kNone) at = (at + 1) % table.size();
        if (table[at].colour == kNone) {
            if (sums.size() == kManyColours) return std::nullopt;
            table[at] = {colour, static_cast<std::uint32_t>(sums.size())};
            sums.push_back(Lanes{});
        }
        sums[table[at].entry] += wide({p.c[0], p.c[1], p.c[2], 1});
    }
    std::vector<liq_histogram_entry> entries;
    for (const Lanes& sum : sums) {
        const auto mean = [&](int channel) { return static_cast<unsigned char>((sum[channel] + sum[3] / 2) / sum[3]); };
        entries.push_back({{mean(2), mean(1), mean(0), 255}, static_cast<unsigned>(sum[3])});
    }
    return entries;
}

template <class T, void (*destroy)(T*)> struct Destroy {
    void operator()(T* object) const { destroy(object); }
};
using Attributes = std::unique_ptr<liq_attr, Destroy<liq_attr, liq_attr_destroy>>;
using Image = std::unique_ptr<liq_image, Destroy<liq_image, liq_image_destroy>>;
using Histogram = std::unique_ptr<liq_histogram, Destroy<liq_histogram, liq_histogram_destroy>>;
using Result = std::unique_ptr<liq_result, Destroy<liq_result, liq_result_destroy>>;

/// One thread for what this thread asks OpenMP for, as long as this lives. The quantiser's own threads wait for one
/// another in busy loops, which takes longer than they save, and more so where other programs run.
class OneThread {
  public:
    OneThread() { omp_set_num_threads(1); }
    ~OneThread() { omp_set_num_threads(before_); }
    OneThread(const OneThread&) = delete;
    OneThread& operator=(const OneThread&) = delete;

  private:
    const int before_ = omp_get_max_threads();
};

/// Progress callback of the quantiser, a C library: exceptions must not cross it.
int tell(float, void* user)
try {
    (*static_cast<const ReduceProgress*>(user))(0);
    return 1;
} catch (const Cancelled&) {
    return 0;
}

void check(liq_error error)
{
    if (error == LIQ_ABORTED) throw Cancelled();
    if (error != LIQ_OK) throw std::bad_alloc();
}

/// What the quantiser makes of a sample, on one thread; its time grows with the number of different colours, so that
/// similar ones are given to it as one where there are many.
Palette quantisedPalette(Sample& sample, int colours, const ReduceProgress& progress)
{
    const OneThread oneThread;
    const Attributes attributes(liq_attr_create());
    if (!attributes) throw std::bad_alloc();
    liq_set_max_colors(attributes.get(), colours);
    liq_set_speed(attributes.get(), kSpeed);
    ReduceProgress told = progress;
    if (progress) liq_attr_set_progress_callback(attributes.get(), tell, &told);
    const Histogram histogram(liq_histogram_create(attributes.get()));
    if (!histogram) throw std::bad_alloc();
    if (countedBy(8, sample.pixels)) {
        const Image image(
            liq_image_create_custom(attributes.get(), Sample::giveRow, &sample, sample.width, sample.height, 0));
        check(image ? liq_histogram_add_image(histogram.get(), attributes.get(), image.get()) : LIQ_OUT_OF_MEMORY);
    } else {
        std::optional<std::vector<liq_histogram_entry>> entries;
        for (int bits = 7; !entries; --bits) entries = countedBy(bits, sample.pixels); // 4 bits do for all
        check(liq_histogram_add_colors(histogram.get(), attributes.get(), entries->data(), int(entries->size()), 0));
    }
    liq_result* made = nullptr;
    const liq_error error = liq_histogram_quantize(histogram.get(), attributes.get(), &made);
    const Result result(made);
    check(error);
    const liq_palette* entries = liq_get_palette(result.get());
    Palette palette;
    for (unsigned i = 0; i < entries->count; ++i)
        palette.push_back(colourOf(entries->entries[i].r, entries->entries[i].g, entries->entries[i].b));
    return palette;
}

/// Of so few, the outermost ones are worth more to a dither than means are to a picture without one.
constexpr int kFewColours = 32;

} // namespace

Palette bestPalette(const Bits& bits, int colours, const ReduceProgress& progress)
{
    if (std::optional<Palette> own = ownColours(bits, colours, progress)) return *std::move(own);
    Sample sample(bits);
    const Palette quantised = quantisedPalette(sample, colours, progress);
    if (colours <= kFewColours) return quantised;
    return refinedPalette(sample.pixels, quantised, progress);
}

IndexedPicture reduceToBestColours(const Bits& bits, int colours, const ReduceProgress& progress)
{
    return dithered(bits, bestPalette(bits, colours, progress), Dither::None, progress);
}

} // namespace velara
