#include "reduce/bestColours.h"
#include "pixels/RuntimeError.h"
#include "reduce/dither.h"
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

/// Every n-th pixel in both directions, in the quantiser's format: red, green, blue, opaque.
struct Sample {
    const Bits& bits;
    int step, width, height;

    explicit Sample(const Bits& of)
        : bits(of), step(static_cast<int>(std::ceil(std::sqrt(double(of.width()) * of.height() / kSampledPixels)))),
          width((of.width() + step - 1) / step), height((of.height() + step - 1) / step)
    {
    }
    static void giveRow(liq_color* row, int y, int width, void* user)
    {
        const auto* sample = static_cast<const Sample*>(user);
        const Pixel* from = sample->bits.row(y * sample->step);
        for (int x = 0; x < width; ++x, from += sample->step) row[x] = {from->c[2], from->c[1], from->c[0], 255};
    }
};

template <class T, void (*destroy)(T*)> struct Destroy {
    void operator()(T* object) const { destroy(object); }
};
using Attributes = std::unique_ptr<liq_attr, Destroy<liq_attr, liq_attr_destroy>>;
using Image = std::unique_ptr<liq_image, Destroy<liq_image, liq_image_destroy>>;
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

} // namespace

Palette bestPalette(const Bits& bits, int colours, const ReduceProgress& progress)
{
    if (std::optional<Palette> own = ownColours(bits, colours, progress)) return *std::move(own);
    const Attributes attributes(liq_attr_create());
    liq_set_max_colors(attributes.get(), colours);
    liq_set_speed(attributes.get(), kSpeed);
    ReduceProgress told = progress;
    if (progress) liq_attr_set_progress_callback(attributes.get(), tell, &told);
    const OneThread oneThread;
    Sample sample(bits);
    const Image image(
        liq_image_create_custom(attributes.get(), Sample::giveRow, &sample, sample.width, sample.height, 0));
    liq_result* made = nullptr;
    const liq_error error = image ? liq_image_quantize(image.get(), attributes.get(), &made) : LIQ_OUT_OF_MEMORY;
    const Result result(made);
    if (error == LIQ_ABORTED) throw Cancelled();
    if (error != LIQ_OK) throw std::bad_alloc();
    const liq_palette* entries = liq_get_palette(result.get());
    Palette palette;
    for (unsigned i = 0; i < entries->count; ++i)
        palette.push_back(colourOf(entries->entries[i].r, entries->entries[i].g, entries->entries[i].b));
    return palette;
}

IndexedPicture reduceToBestColours(const Bits& bits, int colours, const ReduceProgress& progress)
{
    return dithered(bits, bestPalette(bits, colours, progress), Dither::None, progress);
}

} // namespace velara
