// Region: a set of pixels, stored as bands of spans in canonical form, so that equal sets are stored equally. Offers
// the spans of a row, set algebra in time linear in the bands, the flat word form of files, and the exact pixel
// coverage of ellipses and polygons. An immutable value, shared by its copies.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace velara {

/// Columns x0 up to but not including x1.
struct Span {
    int x0, x1;
    friend bool operator==(const Span&, const Span&) = default;
};

/// Rows and columns, both ends inclusive; empty when a maximum is below its minimum.
struct Box {
    int xmin, xmax, ymin, ymax;
    bool isEmpty() const { return xmax < xmin || ymax < ymin; }
};

/// Half-open rectangle, right and bottom excluded.
struct Rect {
    int left = 0, top = 0, right = 0, bottom = 0;
    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool isEmpty() const { return right <= left || bottom <= top; }
    bool contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
    Rect intersected(const Rect& other) const;
    /// Bounding rectangle of both; empty ones are ignored.
    Rect united(const Rect& other) const;
    friend bool operator==(const Rect&, const Rect&) = default;
};

/// How two regions are combined; the numbers are part of the vocabulary.
enum class Combine { And = 1, Or = 2, Xor = 3, Diff = 4, Copy = 5 };

class Region {
  public:
    /// No region at all (isNull), as before anything was selected; it also counts as empty.
    Region() = default;

    /// Corners may come in any order; zero width or height gives the empty region.
    static Region rectangle(int left, int top, int right, int bottom);
    /// Coverage as in RegionShapes.cpp; the box's last column and row stay outside. Null above 2^26 pixels a side.
    static Region ellipse(int left, int top, int right, int bottom);
    /// points is x0, y0, x1, y1, ...; nonzero winding rule; a pixel is sampled at its upper left corner, so right and
    /// bottom edges are excluded. Null above 2^26 rows or 2^24 rectangles.
    static Region polygon(std::span<const std::int32_t> points);

    bool isNull() const { return !data_; }
    bool isEmpty() const;
    /// Bounding box; 0, 0, 0, 0 when empty.
    Rect bounds() const;
    bool contains(int x, int y) const;
    std::size_t rectangleCount() const;
    /// From top to bottom, within a band from left to right.
    void forEachRectangle(const std::function<void(const Rect&)>& visit) const;

    /// The spans of row y from left to right. Empty outside of the region.
    std::span<const Span> spans(int y) const;

    /// A null operand counts as empty; Copy gives this region.
    Region combined(const Region& other, Combine mode) const;
    /// Returned unmoved when a coordinate would overflow 32 bits.
    Region translated(int dx, int dy) const;
    /// Every coordinate times factor >= 0, rounded half to even and clamped to 32 bits.
    Region scaled(double factor) const;

    /// The flat form: header size 32, type 1, rectangle count n, 16n, bounding box, then n rectangles of four words.
    std::vector<std::int32_t> words() const;
    /// Union of the rectangles in words, in any order, overlapping or not; inverted and empty ones are ignored. Null
    /// when there are fewer words than the count claims, the header claims less than 32 bytes, or the union needs more
    /// than 2^24 rectangles. Safe for any input.
    static Region fromWords(std::span<const std::int32_t> words);

    friend bool operator==(const Region& a, const Region& b);

  private:
    friend class RegionBuilder;
    struct Data;
    template <class MapX, class MapY> Region mapped(MapX mapX, MapY mapY) const; // monotone maps only
    std::shared_ptr<const Data> data_;
};

} // namespace velara
