// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "engine/colour/lookUps.h"
#include "engine/colour/mPalette.h"
#include "engine/passes.h"
#include "pixels/NearestColours.h"
#include "pixels/PixelLanes.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

/// NearestColor as lanes, faster where all entries are bytes.
class Nearest {
  public:
    Nearest()
    {
        const std::vector<PaletteColor>& all = PaletteColors();
        const auto isByte = [](const PaletteColor& c) { return ((c.red | c.green | c.blue) & ~255) == 0; };
        if (all.empty() || all.size() > NearestColours::kMost || !std::all_of(all.begin(), all.end(), isByte)) return;
        std::vector<Pixel> pixels;
        std::transform(all.begin(), all.end(), std::back_inserter(pixels), asPixel);
        std::transform(pixels.begin(), pixels.end(), std::back_inserter(colours_), wide);
        nearest_ = std::make_unique<NearestColours>(pixels, Distance::Sum);
    }
    /// The palette's colour as bytes. Overflow if it is none; OutOfRange without a palette.
    Lanes operator()(Lanes p) { return nearest_ ? colours_[std::size_t((*nearest_)(narrow(p)))] : oneByOne(p); }

  private:
    [[gnu::noinline, gnu::cold]] static Lanes oneByOne(Lanes p)
    {
        return wide(asPixel(NearestColor(p[2], p[1], p[0])));
    }
    static Pixel asPixel(const PaletteColor& c) { return {{toByte(c.blue), toByte(c.green), toByte(c.red), 0}}; }

    std::vector<Lanes> colours_;
    std::unique_ptr<NearestColours> nearest_; // null unless all are bytes, and few enough
};

constexpr Lanes kColour = {-1, -1, -1, 0};
constexpr int kUnseen = 3; // an error of all channels that is not spread

/// The channels with a sixteenth of the error given, cut towards zero, and clamped to bytes.
inline Lanes plusSixteenth(Lanes v, Lanes error) { return limited(v + ((error + ((error >> 31) & 15)) >> 4), 0, 255); }

} // namespace

Bits cBitFilter::PaletteApply()
{
    const Bits before = bits_;
    const Region region = region_;
    const Box box = insidePicture(GetBounds(0), before);
    Bits source = before, out = before;
    Nearest nearest;
    for (int y = box.ymin; y <= box.ymax; ++y) {
        Pixel *row = source.row(y), *below = source.row(std::min(y + 1, source.maxY())), *to = out.row(y);
        for (const Span s : region.spans(y)) {
            const int x0 = std::max(s.x0, box.xmin), end = std::min(s.x1, box.xmax + 1);
            Lanes p = wide(x0 < end ? row[x0] : Pixel{}); // kept at hand: the next one waits for its share of the error
            for (int x = x0; x < end; ++x) {
                const Lanes found = nearest(p);
                to[x] = pixelFrom((wordOf(narrow(found)) & ~kFourthByte) | (wordOf(to[x]) & kFourthByte));
                const Lanes error = (p - found) & kColour, size = absolute(error);
                Lanes next = wide(row[x + 1]); // may be margin
                if (size[0] + size[1] + size[2] > kUnseen) {
                    if (x < source.maxX()) row[x + 1] = narrow(next = plusSixteenth(next, error * 7));
                    if (y < source.maxY() && x >= 1 && x < source.maxX())
                        below[x] = narrow(plusSixteenth(wide(below[x]), error * 4));
                }
                p = next;
            }
        }
        progressDue(y, source.maxY());
    }
    report(100);
    if (bits_.sharesWith(before)) bits_ = source; // unless a yield has brought another picture
    return out;
}

} // namespace velara
