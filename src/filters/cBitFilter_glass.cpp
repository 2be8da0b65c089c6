// The glass deformations: sources displaced by sine, cosine and tangent of the pixel's number or position in radians.
#include "filters/numbers.h"
#include "filters/passes_warp.h"

namespace velara {

namespace {

enum class By { Number, Column, Row, Both };

/// Where the sources of a column and of a row lie; modes that mix both are told by themselves.
struct GlassRow {
    std::string_view style;
    int mode;
    double (*x)(double x, double y, double n);
    double (*y)(double x, double y, double n);
};

double same(double x, double, double) { return x; }
double sameY(double, double y, double) { return y; }

// clang-format off
constexpr GlassRow kGlass[] = {
    {"slanting",   0, [](double x, double, double n) { return x - 3 * std::sin(n); },               sameY},
    {"slanting",   1, same, [](double, double y, double n) { return y - 10 * std::sin(n); }},
    {"vertical",   0, [](double x, double, double) { return 2 * std::tan(x) + x; },                 sameY},
    {"vertical",   1, [](double x, double, double) { return x - 3 * std::sin(x); },                 sameY},
    {"vertical",   2, [](double x, double, double) { return x - 10 * std::cos(x); },                sameY},
    {"horizontal", 0, same, [](double, double y, double) { return 2 * std::tan(y) + y; }},
    {"horizontal", 1, same, [](double, double y, double) { return y - 3 * std::sin(y); }},
    {"horizontal", 2, same, [](double, double y, double) { return y - 10 * std::cos(y); }},
    {"squary",     0, [](double x, double, double) { return 2 * std::tan(x) + x; },  [](double, double y, double) { return 2 * std::tan(y) + y; }},
    {"squary",     1, [](double x, double, double) { return x - 5 * std::sin(x); },  [](double, double y, double) { return y - 5 * std::sin(y); }},
    {"squary",     2, [](double x, double, double) { return x - 10 * std::cos(x); }, [](double, double y, double) { return y - 10 * std::cos(y); }},
    {"curtain",    0, [](double, double y, double) { return std::tan(y); },                         sameY},
    {"curtain",    1, [](double x, double, double) { return std::tan(x); },                         sameY},
    {"curtain",    2, [](double x, double y, double) { return std::tan(y) * std::tan(x); },         sameY},
    {"curtain",    3, same, [](double x, double y, double) { return std::tan(x) + std::tan(y); }},
};
// clang-format on

} // namespace

Bits cBitFilter::GLASS(const std::string& Style, int Mode)
{
    const Box box = GetBounds(0);
    const std::int64_t columns = std::int64_t(box.xmax) - box.xmin + 1;
    const auto row = std::find_if(std::begin(kGlass), std::end(kGlass),
                                  [&](const GlassRow& r) { return r.style == Style && r.mode == Mode; });
    return eachSource(false, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
        for (int i = 0; i < n; ++i) {
            sx[i] = sy[i] = 0; // where an unknown style or mode takes its one source from
            if (row == std::end(kGlass)) continue;
            const int x = x0 + i;
            const double number = static_cast<double>((std::int64_t(y) - box.ymin) * columns + x - box.xmin + 1);
            sx[i] = roundEven(row->x(x, y, number));
            sy[i] = roundEven(row->y(x, y, number));
        }
    });
}

} // namespace velara
