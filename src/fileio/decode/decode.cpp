#include "fileio/decode/decode.h"
#include "fileio/decode/mends.h"
#include "fileio/decode/readers.h"
#include "fileio/marks.h"
#include <FreeImage.h>
#include <algorithm>
#include <iterator>
#include <new>

namespace velara::decode {

// The readers in files of their own, read*.cpp; metafiles get their natural size at 96 dpi, drawn on white.
Decoded readGif(FileBytes&file), readDib(FileBytes&file), readWmf(FileBytes&file), readEmf(FileBytes&file);
Decoded readWebp(FileBytes&file), readHeif(FileBytes&file), readJxl(FileBytes&file), readSvg(FileBytes&file);
Decoded readRaw(FileBytes& file);
// What they load from the disk before the cage closes.
Needs loadQtReaders(), loadIconReaders(), prepareWmf(), prepareEmf(), prepareHeif(), prepareJxl(), prepareSvg();

namespace {

using Mend = void (*)(FileBytes&);

void mendNothing(FileBytes&) {}

template <int fif, Mend mend = mendNothing> Decoded byFreeImage(FileBytes& file)
{
    mend(file);
    return readByFreeImage(file, fif);
}

/// A window of one column or row is read as one of two, then cropped.
Decoded readPcx(FileBytes& file)
{
    const bool isColumn = file.little16(4) == file.little16(8), isRow = file.little16(6) == file.little16(10);
    mendPcx(file);
    Decoded picture = readByFreeImage(file, FIF_PCX);
    if (picture.ok() && isRow) picture.height = 1;
    if (picture.ok() && isColumn) {
        picture.width = 1;
        picture.row = [wide = std::move(picture.row)](int y, Pixel* row) {
            Pixel both[2];
            wide(y, both);
            *row = both[0];
        };
    }
    return picture;
}

Needs prepareNothing() { return Needs::Nothing; }

struct Reader {
    std::string_view extension;
    Decoded (*read)(FileBytes& file);
    Needs (*prepare)() = prepareNothing;
};

// clang-format off
constexpr Reader kReaders[] = {
    {"gif",   readGif, loadQtReaders},
    {"wmf",   readWmf, prepareWmf},
    {"emf",   readEmf, prepareEmf},
    {"ico",   [](FileBytes& f) { return readByQt(f, "ico"); }, loadIconReaders},
    {"cur",   [](FileBytes& f) { return readByQt(f, "cur"); }, loadIconReaders},
    {"dib",   readDib, loadQtReaders},
    {"bmp",   byFreeImage<FIF_BMP, mendBmp>},
    {"cut",   byFreeImage<FIF_CUT>},
    {"iff",   byFreeImage<FIF_IFF, mendIff>},
    {"jpg",   byFreeImage<FIF_JPEG, mendJpeg>},
    {"koa",   byFreeImage<FIF_KOALA>},
    {"lbm",   byFreeImage<FIF_LBM, mendIff>},
    {"mng",   byFreeImage<FIF_MNG>},
    {"pcd",   byFreeImage<FIF_PCD>},
    {"pcx",   readPcx},
    {"png",   byFreeImage<FIF_PNG>},
    {"psd",   byFreeImage<FIF_PSD>},
    {"ras",   byFreeImage<FIF_RAS, mendRas>},
    {"tga",   byFreeImage<FIF_TARGA>},
    {"tif",   byFreeImage<FIF_TIFF>},
    {"wbmp",  byFreeImage<FIF_WBMP>},
    {"pbm",   byFreeImage<FIF_PPM, mendPnm>},
    {"pgm",   byFreeImage<FIF_PPM, mendPnm>},
    {"ppm",   byFreeImage<FIF_PPM, mendPnm>},
    {"jng",   byFreeImage<FIF_BMP, mendBmp>},
    {"webp",  readWebp},
    {"heic",  readHeif, prepareHeif},
    {"avif",  readHeif, prepareHeif},
    {"jxl",   readJxl, prepareJxl},
    {"svg",   readSvg, prepareSvg},
    {"dng",   readRaw},
    {"cr2",   readRaw},
    {"nef",   readRaw},
    {"arw",   readRaw},
    {"raf",   readRaw},
    {"orf",   readRaw},
    {"rw2",   readRaw},
};
// clang-format on

constexpr const Reader* readerOf(std::string_view extension)
{
    const auto* reader = std::ranges::find(kReaders, usualExtension(extension), &Reader::extension);
    return reader == std::end(kReaders) ? nullptr : reader;
}
// Counted instead of searched: under the sanitizers a pointer's null is not a constant expression.
static_assert(std::ranges::all_of(kFormats,
                                  [](const Format& format) {
                                      return std::ranges::count(kReaders, format.extension, &Reader::extension) == 1;
                                  }),
              "a format without its reader: add one row to kReaders in src/fileio/decode/decode.cpp");
static_assert(std::ranges::all_of(kReaders,
                                  [](const Reader& reader) {
                                      return std::ranges::count(kFormats, reader.extension, &Format::extension) == 1;
                                  }),
              "a reader without its format: add the row to kFormats in src/fileio/formats.h");

} // namespace

void (*sizeFound)(std::int64_t width, std::int64_t height, int bits) = [](std::int64_t, std::int64_t, int) {};
int wantedPage = 0;

Needs prepareReaders(const QString& extension, std::span<const std::uint8_t> bytes)
{
    const Reader *reader = readerOf(extension.toStdString()), *other = readerOf(markOf(bytes));
    const Needs needs = reader ? reader->prepare() : Needs::Nothing;
    return other && other != reader ? needs | other->prepare() : needs;
}

namespace {

QString kindOf(const Reader& reader) { return QLatin1String(findFormat(reader.extension)->name); }

Decoded readBy(const Reader& reader, FileBytes& file)
{
    Decoded decoded = reader.read(file);
    if (!decoded.ok() && decoded.reason.isEmpty())
        decoded.reason = QString("it is damaged or not %1 picture").arg(kindOf(reader));
    return decoded;
}

/// Nothing when the file bears no mark of another reader or isn't what its mark says.
Decoded readByMark(FileBytes& file, const Reader* first, std::string_view mark)
{
    const Reader* reader = readerOf(mark);
    return reader && !(first && reader->read == first->read) ? reader->read(file) : Decoded{};
}

} // namespace

Decoded decodePicture(FileBytes&& file, const QString& extension)
try {
    const Reader* reader = readerOf(extension.toStdString());
    if (file.size() > (std::size_t{1} << 31) - 1) return refused("it has more than two gigabytes");
    if (file.size() == 0 && reader) return refused("it is empty or can't be opened");
    const std::string_view mark = markOf(file.bytes()); // a reader may mend the bytes
    Decoded decoded = reader                ? readBy(*reader, file)
                      : extension.isEmpty() ? refused("its name has no extension to tell what it is")
                                            : refused(QString("there is no reader for .%1 files").arg(extension));
    if (decoded.ok()) return decoded;
    Decoded other = readByMark(file, reader, mark);
    return other.ok() ? other : decoded;
} catch (const std::bad_alloc&) {
    return refused(kTooMuchMemory);
}

} // namespace velara::decode
