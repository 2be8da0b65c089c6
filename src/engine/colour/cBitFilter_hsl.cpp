// Filters by hue, saturation and lightness, and the greys and false colours that depend on brightness alone.
#include "engine/colour/kernels_colour.h"
#include "engine/colour/kernels_hsl.h"
#include "engine/colour/lookUps.h"
#include "engine/passes.h"
#include "pixels/mHSLRGB.h"
#include "pixels/numbers.h"
#include <numeric>

namespace velara {

namespace {

/// The hundred steps of a slider as a full turn of six hue units.
float hueOffset(int percent) { return static_cast<float>(percent / 16.67); }

std::uint32_t bytesOf(const Rgb& c) { return toByte(c.b) | toByte(c.g) << 8 | std::uint32_t(toByte(c.r)) << 16; }

/// The colours for the 766 sums of three channels. A sum whose colour is out of byte range raises Overflow when a pixel
/// has it.
class SumColours {
  public:
    template <class Function> explicit SumColours(Function colour)
    {
        for (int sum = 0; sum <= kMostSum; ++sum) {
            try {
                colours_[std::size_t(sum)] = bytesOf(colour(sum));
            } catch (const RuntimeError&) {
                fails_.resize(kMostSum + 1);
                fails_[std::size_t(sum)] = true;
            }
        }
    }
    void operator()(const SpanOf& s) const
    {
        if (!fails_.empty())
            for (int x = s.x0; x < s.x1; ++x)
                if (fails_[std::size_t(s.from[x].c[0] + s.from[x].c[1] + s.from[x].c[2])])
                    throw RuntimeError(Fault::Overflow);
        colourKernels().bySum(s, colours_.data());
    }

  private:
    static constexpr int kMostSum = 765;
    std::array<std::uint32_t, kMostSum + 1> colours_{};
    std::vector<bool> fails_;
};

/// round(sin(sum/1000/255*frequency + phase)*127.5 + 127.5) of the weighted sums 0..255000. kGreyInDoubt where the
/// rounding depends on the last bits: within 1e-4 of a half or of the ends.
std::vector<std::uint16_t> greysOfSums(float phase, float frequency)
{
    constexpr std::size_t kSums = 255001, kRun = 64;
    constexpr double kNear = 1e-4;
    const double step = double(frequency) / 255000;
    double cosOf[kRun], sinOf[kRun]; // of the steps within a run; combined by the addition theorem
    for (std::size_t i = 0; i < kRun; ++i) cosOf[i] = std::cos(double(i) * step), sinOf[i] = std::sin(double(i) * step);
    std::vector<std::uint16_t> greys((kSums / kRun + 1) * kRun);
    for (std::size_t run = 0; run < greys.size(); run += kRun) {
        const double angle = double(run) * step + phase, s = std::sin(angle), c = std::cos(angle);
        for (std::size_t i = 0; i < kRun; ++i) {
            const double u = (s * cosOf[i] + c * sinOf[i]) * 127.5 + 127.5;
            const double rounded = std::nearbyint(u), off = std::abs(u - rounded);
            const bool sure = off < 0.5 - kNear && u > kNear && u < 255 - kNear;
            greys[run + i] = sure ? static_cast<std::uint16_t>(static_cast<int>(rounded)) : kGreyInDoubt;
        }
    }
    return greys;
}

} // namespace

Pixel HueTurn::operator()(const Pixel& p) const
{
    Hsl hsl = RGBToHSL(p.c[2], p.c[1], p.c[0]);
    hsl.h = static_cast<float>(double(hsl.h) + offset);
    if (hsl.h > 5) hsl.h = static_cast<float>(double(hsl.h) - 6);
    const Rgb rgb = HSLToRGB(hsl.h, static_cast<float>(double(saturation) * hsl.s), hsl.l);
    return {{toByte(rgb.b), toByte(rgb.g), toByte(rgb.r), p.c[3]}};
}

Bits cBitFilter::RotateH(int Offset, int Saturation)
{
    const HueTurn turn{hueOffset(Offset), static_cast<float>(Saturation / 100.0)};
    const bool usual = Offset >= 0 && Offset <= 100 && Saturation > 0 && Saturation <= 100;
    if (usual) {
        const auto ends = pairTable<std::int32_t>([&](int least, int most) {
            if (least > most) return 0;
            const auto low = static_cast<std::uint8_t>(least), high = static_cast<std::uint8_t>(most);
            const Pixel p = HueTurn{0, turn.saturation}({{low, low, high, 0}});
            return p.c[0] | p.c[2] << 8;
        });
        // Twice the least channel is a sum less a range * Saturation / 100: whole for gcd in a hundred ranges.
        const bool hasHalves = Saturation < 100 && std::gcd(Saturation, 100) >= 10;
        const auto kernel = hasHalves ? hslKernels().turnWithHalves : hslKernels().turn;
        return eachSpan(0, [&](const SpanOf& s) { kernel(s, turn, ends.data()); });
    }
    if (Saturation == 0) { // only L remains: half the sum of the greatest and the least channel
        const auto greys = pairTable<std::uint8_t>([&](int most, int least) {
            const auto high = static_cast<std::uint8_t>(std::max(most, least)),
                       low = static_cast<std::uint8_t>(std::min(most, least));
            return turn({{low, low, high, 0}}).c[0];
        });
        return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1) {
            inBlocks(from, to, x0, x1, [&](const Pixel* p, Pixel* q, int n) {
                for (int i = 0; i < n; ++i) {
                    const int b = p[i].c[0], g = p[i].c[1], r = p[i].c[2];
                    q[i] = greyPixel(greys[std::size_t(std::max({b, g, r}) | std::min({b, g, r}) << 8)], p[i]);
                }
            });
        });
    }
    return eachSpan(0, [=](const Pixel* from, Pixel* to, int x0, int x1) {
        for (int x = x0; x < x1; ++x) to[x] = turn(from[x]);
    });
}

Bits cBitFilter::RotateL(int Offset, int Steps)
{
    const float phase = static_cast<float>(Offset / 10.0), frequency = static_cast<float>(Steps / 2.5);
    const auto grey = [=](const Pixel& p) {
        float u = static_cast<float>(std::sin(greyOf(p) / 255 * frequency + phase) * 127.5 + 127.5);
        if (u > 255)
            u = static_cast<float>(double(u) - 255);
        else if (u < 0)
            u = static_cast<float>(double(u) + 255);
        return toByte(u);
    };
    const std::vector<std::uint16_t> greys = greysOfSums(phase, frequency);
    return eachSpan(0, [&, redo = std::function<std::uint8_t(const Pixel&)>(grey)](const SpanOf& s) {
        colourKernels().byGreySum(s, greys.data(), redo);
    });
}

Bits cBitFilter::COLORIZE(float Hue, float Saturation, float Luminosity)
{
    return eachSpan(0, SumColours([=](int sum) {
                        return HSLToRGB(Hue, Saturation, static_cast<float>(sum / 765.0 * Luminosity));
                    }));
}

Bits cBitFilter::StretchH(int Offset, int Saturation, int Stretch)
{
    const float saturation = static_cast<float>(Saturation / 100.0), frequency = static_cast<float>(Stretch / 10.0),
                offset = hueOffset(Offset);
    return eachSpan(0, SumColours([=](int sum) {
                        const float l = static_cast<float>(sum / 765.0);
                        float h = static_cast<float>(std::sin(double(frequency) * l) * 3 + offset);
                        if (h < -1)
                            h = static_cast<float>(double(h) + 6);
                        else if (h > 5)
                            h = static_cast<float>(double(h) - 6);
                        return HSLToRGB(h, saturation, l);
                    }));
}

} // namespace velara
