#include "fileio/decode/decode.h"
#include "fileio/decode/mends.h"
#include "fileio/decode/readers.h"
#include <FreeImage.h>
#include <algorithm>
#include <iterator>
#include <new>

namespace velara::decode {

namespace {

using Mend = void (*)(FileBytes&);

void mendNothing(FileBytes&) {}

template <int fif, Mend mend = mendNothing> Decoded byFreeImage(FileBytes& file)
{
    mend(file);
    return readByFreeImage(file, fif);
}

/// A window of one column or row is read as one of two, then cut.
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
    const char* extension;
    const char* name; // as in "it is damaged or not a PNG picture"
    Decoded (*read)(FileBytes& file);
    Needs (*prepare)() = prepareNothing;
};

// clang-format off
constexpr Reader kReaders[] = {                 // the first row of an extension counts
    {"gif",  "a GIF",                readGif, loadQtReaders},
    {"wmf",  "a Windows metafile",   readWmf, prepareWmf},
    {"emf",  "an enhanced metafile", readEmf, prepareEmf},
    {"ico",  "an icon",              [](FileBytes& f) { return readByQt(f, "ico"); }, loadIconReaders},
    {"cur",  "a cursor",             [](FileBytes& f) { return readByQt(f, "cur"); }, loadIconReaders},
    {"dib",  "a bitmap",             readDib, loadQtReaders},
    {"bmp",  "a BMP",                byFreeImage<FIF_BMP, mendBmp>},
    {"cut",  "a Dr. Halo",           byFreeImage<FIF_CUT>},
    {"iff",  "an IFF",               byFreeImage<FIF_IFF>},
    {"jpg",  "a JPEG",               byFreeImage<FIF_JPEG, mendJpeg>},
    {"koa",  "a Koala",              byFreeImage<FIF_KOALA>},
    {"lbm",  "an IFF",               byFreeImage<FIF_LBM>},
    {"mng",  "an MNG",               byFreeImage<FIF_MNG>},
    {"pcd",  "a Photo CD",           byFreeImage<FIF_PCD>},
    {"pcx",  "a PCX",                readPcx},
    {"png",  "a PNG",                byFreeImage<FIF_PNG>},
    {"psd",  "a Photoshop",          byFreeImage<FIF_PSD>},
    {"ras",  "a Sun raster",         byFreeImage<FIF_RAS, mendRas>},
    {"tga",  "a Targa",              byFreeImage<FIF_TARGA>},
    {"tif",  "a TIFF",               byFreeImage<FIF_TIFF>},
    {"wbmp", "a WBMP",               byFreeImage<FIF_WBMP>},
    {"pbm",  "a portable anymap",    byFreeImage<FIF_PPM, mendPnm>},
    {"pgm",  "a portable anymap",    byFreeImage<FIF_PPM, mendPnm>},
    {"ppm",  "a portable anymap",    byFreeImage<FIF_PPM, mendPnm>},
    {"jng",  "a BMP",                byFreeImage<FIF_BMP, mendBmp>}, // odd, and it stays: .jng goes to the BMP reader
};
// clang-format on

const Reader* readerOf(const QString& extension)
{
    const auto reader = std::find_if(std::begin(kReaders), std::end(kReaders),
                                     [&](const Reader& row) { return extension == QLatin1String(row.extension); });
    return reader == std::end(kReaders) ? nullptr : reader;
}

} // namespace

void (*sizeFound)(std::int64_t width, std::int64_t height) = [](std::int64_t, std::int64_t) {};

Needs prepareReader(const QString& extension)
{
    const Reader* reader = readerOf(extension);
    return reader ? reader->prepare() : Needs::Nothing;
}

Decoded decodePicture(FileBytes&& file, const QString& extension)
try {
    const Reader* reader = readerOf(extension);
    if (extension.isEmpty()) return refused("its name has no extension to tell what it is");
    if (!reader) return refused(QString("there is no reader for .%1 files").arg(extension));
    if (file.size() == 0) return refused("it is empty or can't be opened");
    if (file.size() > (std::size_t{1} << 31) - 1) return refused("it has more than two gigabytes");
    Decoded decoded = reader->read(file);
    if (!decoded.ok() && decoded.reason.isEmpty())
        decoded.reason = QString("it is damaged or not %1 picture").arg(reader->name);
    return decoded;
} catch (const std::bad_alloc&) {
    return refused(kTooMuchMemory);
}

} // namespace velara::decode
