// The glass deformations: sources displaced by sine, cosine and tangent of the pixel's index or position in radians.
#include "engine/deform/kernels_slant.h"
#include "engine/deform/passes_warp.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

/// The sources that depend on more than one coordinate.
enum class Mixed { None, NumberX, NumberY, RowX, ProductX, SumY };

/// The sources of a column and of a row as a function of x or y; null leaves them in place.
struct GlassRow {
    std::string_view style;
    int mode;
    double (*column)(double);
    double (*row)(double);
    Mixed mixed;
};

double tangent(double v) { return std::tan(v); }
double tangents(double v) { return 2 * std::tan(v) + v; }
double cosines(double v) { return v - 10 * std::cos(v); }
template <int weight> double sines(double v) { return v - weight * std::sin(v); }

// clang-format off
constexpr GlassRow kGlass[] = {
    {"slanting",   0, nullptr,  nullptr,  Mixed::NumberX},
    {"slanting",   1, nullptr,  nullptr,  Mixed::NumberY},
    {"vertical",   0, tangents, nullptr,  Mixed::None},
    {"vertical",   1, sines<3>, nullptr,  Mixed::None},
    {"vertical",   2, cosines,  nullptr,  Mixed::None},
    {"horizontal", 0, nullptr,  tangents, Mixed::None},
    {"horizontal", 1, nullptr,  sines<3>, Mixed::None},
    {"horizontal", 2, nullptr,  cosines,  Mixed::None},
    {"squary",     0, tangents, tangents, Mixed::None},
    {"squary",     1, sines<5>, sines<5>, Mixed::None},
    {"squary",     2, cosines,  cosines,  Mixed::None},
    {"curtain",    0, nullptr,  nullptr,  Mixed::RowX},
    {"curtain",    1, tangent,  nullptr,  Mixed::None},
    {"curtain",    2, nullptr,  nullptr,  Mixed::ProductX},
    {"curtain",    3, nullptr,  nullptr,  Mixed::SumY},
};
// clang-format on

/// The sources of first..last along one axis; 0 for positions before first.
std::vector<std::int32_t> sources(int first, int last, double (*function)(double))
{
    std::vector<std::int32_t> table(static_cast<std::size_t>(std::max(last + 1, 0)));
    for (int i = first; i <= last; ++i) table[i] = function ? roundEven(function(i)) : i;
    return table;
}

/// Sine and cosine of the numbers of a picture's pixels: those of a row's first number and of a column's place in the
/// row are known, so none is computed a run.
class Numbers {
  public:
    /// number(x, y) = (y - box.ymin) * (box's width) + x - box.xmin + 1.
    Numbers(const Box& box, const Box& inside) : box_(box), inside_(inside)
    {
        for (int y = inside.ymin; y <= inside.ymax; ++y) rows_.push_back(turnOf(ofRow(y)));
        for (int x = inside.xmin; x <= inside.xmax; ++x) columns_.push_back(turnOf(double(x) - inside.xmin));
    }
    /// The waves of the pixels from (x, y) on.
    SlantWave wave(int x, int y, int weight) const
    {
        const Turn row = rows_[static_cast<std::size_t>(y - inside_.ymin)];
        const Turn column = columns_[static_cast<std::size_t>(x - inside_.xmin)];
        return {tables_, row.sine * column.cosine + row.cosine * column.sine,
                row.cosine * column.cosine - row.sine * column.sine, weight};
    }
    /// Displaces the positions by the waves of the n pixels from (x, y).
    void addWaves(int x, int y, int weight, int n, std::int32_t* places) const
    {
        const SlantWave at = wave(x, y, weight);
        std::int32_t offsets[kPlaces];
        const std::uint64_t doubtful = waveOffsets(tables_, at.sine, at.cosine, static_cast<float>(weight), n, offsets);
        const double number = ofRow(y) + (double(x) - inside_.xmin);
        eachPlace(doubtful, n,
                  [&](int i) { offsets[i] = roundEven(places[i] - weight * std::sin(number + i)) - places[i]; });
        for (int i = 0; i < n; ++i) places[i] += offsets[i];
    }

  private:
    struct Turn {
        double sine, cosine;
    };
    static Turn turnOf(double number) { return {std::sin(number), std::cos(number)}; }
    double ofRow(int y) const // of its first pixel
    {
        return (static_cast<double>(y) - box_.ymin) * (static_cast<double>(box_.xmax) - box_.xmin + 1) +
               (static_cast<double>(inside_.xmin) - box_.xmin) + 1;
    }

    const Box box_, inside_;
    const WaveTables tables_;
    std::vector<Turn> rows_, columns_;
};

/// The slanting styles: each pixel is displaced along its row or its column by the sine of its number.
class Slanted {
  public:
    Slanted(const Bits& in, const Region& region, const Box& box, const Box& inside, bool alongRows)
        : in_(in), source_(in, region), numbers_(box, inside), alongRows_(alongRows),
          streams_(in.sizeInBytes() >= kPastTheCache)
    {
    }
    /// Rows of a tile: those that the pixels of a row come from should stay in the first cache.
    int rowsTogether() const { return alongRows_ ? 1 : kPlaces; }
    /// Whole runs along columns whose places are known, to be written together.
    struct Waiting {
        static constexpr int kRuns = 16;
        struct Run {
            alignas(64) std::int32_t places[kPlaces];
            const Pixel* from;
            Pixel* to;
            bool streams;
        };
        Run runs[kRuns];
        int count = 0;

        void take()
        {
            for (const Run* run = runs; run < runs + count; ++run)
                takePlaces(run->from, run->places, run->to, run->streams);
            count = 0;
        }
    };
    /// Writes the n <= kPlaces pixels from (x, y) on, or puts them among those that wait.
    void run(Pixel* row, int x, int y, int n, Waiting& waiting) const
    {
        const bool streams = streams_ && reinterpret_cast<std::uintptr_t>(row + x) % 64 == 0;
        if (n < kPlaces ? isPartOfWhole(row, x, y, n) : isWhole(row + x, x, y, streams, waiting)) return;
        alignas(64) std::int32_t sx[kPlaces], sy[kPlaces];
        for (int i = 0; i < n; ++i) sx[i] = x + i;
        std::fill_n(sy, n, y);
        numbers_.addWaves(x, y, weight(), n, alongRows_ ? sx : sy);
        source_.take(sx, sy, n, in_.row(y) + x, false, row + x);
    }

  private:
    int weight() const { return alongRows_ ? kWeightX : kWeightY; }
    /// All sources of kPlaces pixels are selected.
    bool holdsAround(int x, int y) const
    {
        const Rect& r = source_.rect();
        const int across = alongRows_ ? kWeightX : 0, down = alongRows_ ? 0 : kWeightY;
        return source_.isRectangle() && x - across >= r.left && x + kPlaces + across <= r.right && y - down >= r.top &&
               y + down < r.bottom;
    }
    /// kPlaces pixels; false where one has a source that is not selected, or to be computed exactly.
    bool isWhole(Pixel* to, int x, int y, bool streams, Waiting& waiting) const
    {
        if (!holdsAround(x, y)) return false;
        const SlantWave wave = numbers_.wave(x, y, weight());
        const Pixel* from = in_.row(y) + x;
        if (alongRows_) return slantAlongRow(wave, from, to, streams);
        if (waiting.count == Waiting::kRuns) waiting.take();
        Waiting::Run& next = waiting.runs[waiting.count];
        if (!slantedPlaces(wave, from, in_.stride(), next.places)) return false;
        next.from = from, next.to = to, next.streams = streams;
        ++waiting.count;
        return true;
    }

    /// Fewer, at an end of a row, as a part of kPlaces pixels.
    bool isPartOfWhole(Pixel* row, int x, int y, int n) const
    {
        const int across = alongRows_ ? kWeightX : 0, first = std::min(x, source_.rect().right - kPlaces - across);
        if (x + n > first + kPlaces) return false;
        alignas(64) Pixel all[kPlaces];
        Waiting alone;
        if (!isWhole(all, first, y, false, alone)) return false;
        alone.take();
        copyPixels(all + (x - first), row + x, 0, n);
        return true;
    }

    const Bits& in_;
    const SourcePixels source_;
    const Numbers numbers_;
    const bool alongRows_, streams_;
};

} // namespace

Bits cBitFilter::GLASS(const std::string& Style, int Mode)
{
    const Box box = GetBounds(0), inside = insidePicture(box, bits_);
    const auto glass = std::find_if(std::begin(kGlass), std::end(kGlass),
                                    [&](const GlassRow& r) { return r.style == Style && r.mode == Mode; });
    if (glass == std::end(kGlass)) // then every source is (0, 0)
        return eachSource(false, [](int, int, int n, std::int32_t* sx, std::int32_t* sy) {
            std::fill_n(sx, n, 0);
            std::fill_n(sy, n, 0);
        });
    const auto columns = sources(inside.xmin, inside.xmax, glass->column);
    const auto rows = sources(inside.ymin, inside.ymax, glass->row);
    if (glass->mixed == Mixed::None) return eachCrossing(false, columns, rows);
    if (glass->mixed == Mixed::NumberX || glass->mixed == Mixed::NumberY) {
        const Bits in = bits_;
        const Slanted slanted(in, region_, box, inside, glass->mixed == Mixed::NumberX);
        return eachBand(slanted.rowsTogether(), [&](const Box& box, int y0, int y1, const WrittenRows& to) {
            Slanted::Waiting waiting;
            inTiles(box, y0, y1, to, [&](int x, int n, int y) { slanted.run(to.row(y), x, y, n, waiting); });
            waiting.take();
        });
    }
    std::vector<double> tangents;
    for (int i = 0; i <= std::max(inside.xmax, inside.ymax); ++i) tangents.push_back(std::tan(i));
    return eachSource(
        false,
        [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
            std::copy_n(columns.data() + x0, n, sx);
            std::fill_n(sy, n, rows[y]);
            switch (glass->mixed) {
            case Mixed::None:
            case Mixed::NumberX:
            case Mixed::NumberY:
                break;
            case Mixed::RowX:
                std::fill_n(sx, n, roundEven(tangents[y]));
                break;
            case Mixed::ProductX:
                for (int i = 0; i < n; ++i) sx[i] = roundEven(tangents[y] * tangents[x0 + i]);
                break;
            case Mixed::SumY:
                for (int i = 0; i < n; ++i) sy[i] = roundEven(tangents[x0 + i] + tangents[y]);
                break;
            }
        },
        1);
}

} // namespace velara
