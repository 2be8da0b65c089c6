// The coverage of ellipses and polygons, and the flat word form of a region.
#include "region/RegionBuilder.h"
#include <algorithm>
#include <limits>
#include <map>

namespace velara {

namespace {

constexpr std::int64_t kMostRows = std::int64_t(1) << 26; // larger shapes give a null region

/// One quadrant of an ellipse: the half-width of each row V = parity of B, .., B. All distances are doubled, so that
/// they stay whole; A and B are the doubled semi-axes, measured to the centres of the outermost pixels. Whole must hold
/// A*A*B*B.
///
/// With Q(U,V) = (U/A)^2 + (V/B)^2 the half-width is the larger of
///   along the row:    the largest U with the mean of Q(U,V) and Q(U-2,V) below 1,
///   along the column: the largest U, at least one pixel short of the row before, with the mean of Q(U,V) and Q(U,V-2)
///                     at most 1.
/// Very narrow ellipses keep the one or two middle columns.
template <class Whole> std::vector<std::int64_t> ellipseReach(std::int64_t A, std::int64_t B)
{
    const auto sq = [](std::int64_t v) { return static_cast<Whole>(v) * v; };
    const Whole AA = sq(A), BB = sq(B), full = AA * BB;
    std::vector<std::int64_t> reach{A};
    std::int64_t alongRow = A, alongColumn = A;
    for (std::int64_t V = B % 2 + 2; V <= B; V += 2) {
        while (alongRow >= 0 && (sq(alongRow - 1) + 1) * BB + sq(V) * AA >= full) alongRow -= 2;
        while (alongColumn >= 0 && sq(alongColumn) * BB + (sq(V - 1) + 1) * AA > full) alongColumn -= 2;
        const std::int64_t X = std::max(alongRow, std::min(alongColumn, reach.back() - 2));
        reach.push_back(X >= 0 ? X : A % 2);
    }
    return reach;
}

/// One edge of a polygon, walked from its upper end downwards. The crossing with the current row is kept exactly as
/// column - part / height with 0 <= part < height; column is its ceiling.
struct Edge {
    int top, bottom, direction;
    std::int64_t column, part, height, step, stepPart;

    void nextRow()
    {
        column += step;
        part += stepPart;
        if (part >= height) {
            part -= height;
            --column;
        }
    }
};

/// Edges that cross at least one row, sorted by their upper end.
std::vector<Edge> edgesOf(std::span<const std::int32_t> points)
{
    std::vector<Edge> edges;
    const std::size_t n = points.size() / 2;
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t j = (i + 1) % n;
        std::int64_t x1 = points[2 * i], y1 = points[2 * i + 1], x2 = points[2 * j], y2 = points[2 * j + 1];
        if (y1 == y2) continue;
        const int direction = y1 < y2 ? 1 : -1;
        if (direction < 0) {
            std::swap(x1, x2);
            std::swap(y1, y2);
        }
        const std::int64_t height = y2 - y1, width = x2 - x1;
        std::int64_t step = width / height, rest = step * height - width; // step is the ceiling
        if (rest < 0) {
            ++step;
            rest += height;
        }
        edges.push_back({static_cast<int>(y1), static_cast<int>(y2), direction, x1, 0, height, step, rest});
    }
    std::ranges::sort(edges, {}, &Edge::top);
    return edges;
}

/// The covered spans of one row; active is sorted by column.
void addWinding(RegionBuilder& out, const std::vector<Edge>& active)
{
    int winding = 0;
    std::int64_t start = 0;
    for (const Edge& e : active) {
        if (winding == 0) start = e.column;
        winding += e.direction;
        if (winding == 0) out.add(static_cast<int>(start), static_cast<int>(e.column));
    }
}

/// Union of rectangles in any order, by a sweep: the rows between two horizontal edges form a band, with a count of
/// open rectangles a column.
Region unionOf(std::vector<Rect> rects)
{
    std::erase_if(rects, [](const Rect& r) { return r.isEmpty(); });
    std::vector<int> rows;
    for (const Rect& r : rects) rows.insert(rows.end(), {r.top, r.bottom});
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::vector<Rect> leaving = rects;
    std::ranges::sort(rects, {}, &Rect::top);
    std::ranges::sort(leaving, {}, &Rect::bottom);

    RegionBuilder out;
    std::map<int, int> edges; // column: rectangles that begin there minus those that end there
    const auto count = [&edges](int column, int change) {
        const auto at = edges.try_emplace(column, 0).first;
        if ((at->second += change) == 0) edges.erase(at);
    };
    auto enter = rects.begin(), leave = leaving.begin();
    std::size_t work = 0;
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        for (; leave != leaving.end() && leave->bottom == rows[i]; ++leave) {
            count(leave->left, -1);
            count(leave->right, 1);
        }
        for (; enter != rects.end() && enter->top == rows[i]; ++enter) {
            count(enter->left, 1);
            count(enter->right, -1);
        }
        int depth = 0, start = 0;
        for (const auto& [column, change] : edges) {
            if (depth == 0) start = column;
            depth += change;
            if (depth == 0) out.add(start, column);
        }
        out.endBand(rows[i], rows[i + 1]);
        if (out.overflows() || (work += edges.size()) > 8 * RegionBuilder::kMostSpans) return {};
    }
    return out.take();
}

constexpr std::size_t kHeaderWords = 8;

} // namespace

Region Region::ellipse(int left, int top, int right, int bottom)
{
    const auto [l, r] = std::minmax(left, right);
    const auto [t, b] = std::minmax(top, bottom);
    const std::int64_t A = std::int64_t(r) - l - 2, B = std::int64_t(b) - t - 2;
    RegionBuilder out;
    if (A < 0 || B < 0) return out.take();
    if (A >= kMostRows || B >= kMostRows) return {};
    const auto reach = A * B < 2'000'000'000 ? ellipseReach<std::int64_t>(A, B) : ellipseReach<__int128>(A, B);
    for (std::int64_t row = 0; row <= B; ++row) {
        const std::int64_t X = reach[static_cast<std::size_t>(std::abs(B - 2 * row) / 2)];
        out.add(static_cast<int>(l + (A - X) / 2), static_cast<int>(l + (A + X) / 2 + 1));
        out.endBand(static_cast<int>(t + row), static_cast<int>(t + row + 1));
    }
    return out.take();
}

Region Region::polygon(std::span<const std::int32_t> points)
{
    const std::vector<Edge> edges = edgesOf(points);
    RegionBuilder out;
    if (edges.empty()) return out.take();
    const std::int64_t bottom = std::ranges::max(edges, {}, &Edge::bottom).bottom;
    if (bottom - edges.front().top > kMostRows) return {};
    std::vector<Edge> active;
    auto next = edges.begin();
    for (int y = edges.front().top; y < bottom; ++y) {
        std::erase_if(active, [y](const Edge& e) { return e.bottom == y; });
        for (; next != edges.end() && next->top == y; ++next) active.push_back(*next);
        std::ranges::sort(active, {}, &Edge::column);
        addWinding(out, active);
        out.endBand(y, y + 1);
        if (out.overflows()) return {};
        for (Edge& e : active) e.nextRow();
    }
    return out.take();
}

std::vector<std::int32_t> Region::words() const
{
    if (isNull()) return {};
    const auto count = static_cast<std::int32_t>(rectangleCount());
    const Rect box = bounds();
    std::vector<std::int32_t> words{32, 1, count, 16 * count, box.left, box.top, box.right, box.bottom};
    words.reserve(kHeaderWords + 4 * rectangleCount());
    forEachRectangle([&](const Rect& r) { words.insert(words.end(), {r.left, r.top, r.right, r.bottom}); });
    return words;
}

Region Region::fromWords(std::span<const std::int32_t> words)
{
    if (words.size() < kHeaderWords || words[0] < 32) return {};
    const std::size_t there = (words.size() - kHeaderWords) / 4;
    if (words[2] < 0 || static_cast<std::size_t>(words[2]) > std::min(there, RegionBuilder::kMostSpans)) return {};
    std::vector<Rect> rects(static_cast<std::size_t>(words[2]));
    for (std::size_t i = 0; i < rects.size(); ++i) {
        const std::int32_t* w = &words[kHeaderWords + 4 * i];
        rects[i] = {w[0], w[1], w[2], w[3]};
    }
    return unionOf(std::move(rects));
}

} // namespace velara
