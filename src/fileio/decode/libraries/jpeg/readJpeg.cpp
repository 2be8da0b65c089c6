#include "fileio/decode/libraries/InOrder.h"
#include "fileio/decode/libraries/jpeg/JpegTogether.h"
#include "fileio/decode/libraries/jpeg/jpegFacts.h"
#include "fileio/decode/readers.h"
#include <cstring>

namespace velara::decode {

namespace {

/// The end mark follows the data of the first scan.
bool endsPlainly(Span scan)
{
    const std::uint8_t *at = scan.data(), *const end = at + scan.size();
    const auto left = [&] { return static_cast<std::size_t>(end - at); };
    while (at < end && (at = static_cast<const std::uint8_t*>(std::memchr(at, 0xff, left()))) && left() > 1) {
        const std::uint8_t mark = *++at;
        if (mark == JPEG_EOI) return true;
        if (mark != 0 && mark != 0xff && (mark < JPEG_RST0 || mark > JPEG_RST0 + 7)) return false;
    }
    return false;
}

/// All rows, kept: for files that tell only with the last row whether they are whole.
std::function<void(int, Pixel*)> keptRows(JpegRows& rows, std::size_t width, std::size_t height)
{
    const auto pixels = std::make_shared<std::vector<Pixel>>(width * height);
    for (std::size_t y = 0; y < height; ++y) rows.read(pixels->data() + y * width);
    return [pixels, width](int y, Pixel* row) {
        std::copy_n(pixels->data() + static_cast<std::size_t>(y) * width, width, row);
    };
}

/// begin makes rows that stand at the top, as atTop does.
template <class Begin>
std::function<void(int, Pixel*)> rowsTogether(const std::shared_ptr<const JpegParts>& parts, Begin begin,
                                              std::unique_ptr<JpegRows> atTop)
{
    const auto beginParts = [begin, parts] { return std::make_unique<JpegTogether>(parts, begin()); };
    return rowsInOrder(&JpegTogether::read, beginParts, std::make_unique<JpegTogether>(parts, std::move(atTop)));
}

} // namespace

Needs prepareJpeg() { return Needs::Helpers; }

Decoded readJpeg(FileBytes& file)
try {
    const auto cutOff = std::make_shared<bool>(false);
    const auto begin = [file, cutOff] {
        auto rows = std::make_unique<JpegRows>(JpegBytes{file.bytes()}, cutOff);
        rows->start();
        return rows;
    };
    auto rows = std::make_unique<JpegRows>(JpegBytes{file.bytes()}, cutOff);
    const std::int64_t width = rows->info().image_width, height = rows->info().image_height;
    if (!Bits::sizeAllowed(width, height)) return width > 0 && height > 0 ? refused(kTooBig) : Decoded{};
    if (rows->info().jpeg_color_space == JCS_UNKNOWN) return {};
    sizeFound(width, height, rows->info().num_components == 1 ? 8 : 24);

    const auto parts = jpegPartsOf(file.bytes(), *rows);
    const bool isToldAtStart = parts || rows->hasScans() || endsPlainly(rows->scan());
    Decoded picture{static_cast<int>(width), static_cast<int>(height), {}, {}};
    picture.carried = carriedByJpeg(file.bytes());
    if (rows->isInked()) picture.samples = {4, 1, rowsInOrder(&JpegRows::readInks, begin)};
    rows->start();
    if (!isToldAtStart)
        picture.row = keptRows(*rows, static_cast<std::size_t>(width), static_cast<std::size_t>(height));
    if (*cutOff) picture.reason = kCutOff; // the available part is shown
    if (!picture.row) {
        picture.row =
            parts ? rowsTogether(parts, begin, std::move(rows)) : rowsInOrder(&JpegRows::read, begin, std::move(rows));
        picture.lastWord = [cutOff] { return *cutOff ? QString(kCutOff) : QString(); };
    }
    return picture;
} catch (const Damage&) {
    return {};
}

} // namespace velara::decode
