#include "fileio/decode/facts/upright.h"
#include "fileio/exifBytes.h"
#include <algorithm>
#include <memory>

namespace velara::decode {

namespace {

/// How a stored picture becomes an upright one: rows and columns change places first, then the result is mirrored.
struct Turn {
    bool columns = false; // row y of the file is column y
    bool leftRight = false, upsideDown = false;
};
constexpr Turn kTurns[] = {
    {},                                                       // 1
    {.leftRight = true},                                      // 2
    {.leftRight = true, .upsideDown = true},                  // 3
    {.upsideDown = true},                                     // 4
    {.columns = true},                                        // 5
    {.columns = true, .leftRight = true},                     // 6: a quarter turn clockwise
    {.columns = true, .leftRight = true, .upsideDown = true}, // 7
    {.columns = true, .upsideDown = true},                    // 8: a quarter turn to the left
};
constexpr int kLast = 8;

/// Upright pixels, to be handed out row by row.
struct Turned {
    Turned(int w, int h) : width(w), height(h), pixels(std::make_unique_for_overwrite<Pixel[]>(std::size_t(w) * h)) {}
    Pixel* row(int y) const { return pixels.get() + std::size_t(y) * width; }

    int width, height;
    std::unique_ptr<Pixel[]> pixels;
};

std::shared_ptr<Turned> byRows(const Decoded& picture, Turn turn)
{
    const auto turned = std::make_shared<Turned>(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y) {
        Pixel* row = turned->row(turn.upsideDown ? picture.height - 1 - y : y);
        picture.row(y, row);
        if (turn.leftRight) std::reverse(row, row + picture.width);
    }
    return turned;
}

/// A band of 16 rows becomes 16 columns: each row of the result gets a cache line at a time, and the band stays in the
/// cache.
std::shared_ptr<Turned> byColumns(const Decoded& picture, Turn turn)
{
    constexpr int kBand = 16;
    const int width = picture.width, height = picture.height;
    const auto turned = std::make_shared<Turned>(height, width);
    const auto band = std::make_unique_for_overwrite<Pixel[]>(std::size_t(kBand) * width);
    for (int y = 0; y < height; y += kBand) {
        const int rows = std::min(kBand, height - y);
        for (int i = 0; i < rows; ++i) // mirrored within the band already
            picture.row(y + i, band.get() + std::size_t(turn.leftRight ? rows - 1 - i : i) * width);
        const int at = turn.leftRight ? height - y - rows : y;
        for (int x = 0; x < width; ++x) {
            Pixel* to = turned->row(turn.upsideDown ? width - 1 - x : x) + at;
            const Pixel* from = band.get() + x;
            for (int i = 0; i < rows; ++i, from += width) to[i] = *from;
        }
    }
    return turned;
}

} // namespace

int orientationOf(const Carried& carried)
{
    const auto known = [](std::uint32_t value) { return value >= 1 && value <= kLast; };
    if (known(static_cast<std::uint32_t>(carried.orientation))) return carried.orientation;
    const ExifBytes exif(QByteArray::fromRawData(reinterpret_cast<const char*>(carried.exif.data()),
                                                 static_cast<qsizetype>(carried.exif.size())));
    const auto entry = exif.find(exif.first(), ExifTag::Orientation);
    const std::uint32_t value = entry ? exif.number(*entry) : 0;
    return known(value) ? static_cast<int>(value) : 1;
}

Decoded upright(Decoded picture)
{
    const int orientation = orientationOf(picture.carried);
    if (!picture.ok() || orientation == 1) return picture;
    const Turn turn = kTurns[orientation - 1];
    if (!turn.columns && !turn.upsideDown) { // rows can be mirrored as they come
        picture.row = [stored = std::move(picture.row), width = picture.width](int y, Pixel* row) {
            stored(y, row);
            std::reverse(row, row + width);
        };
        return picture;
    }
    const auto turned = turn.columns ? byColumns(picture, turn) : byRows(picture, turn);
    picture.width = turned->width;
    picture.height = turned->height;
    picture.samples = {};
    picture.row = [turned](int y, Pixel* row) { std::copy_n(turned->row(y), turned->width, row); };
    return picture; // the reader's own pixels are freed
}

} // namespace velara::decode
