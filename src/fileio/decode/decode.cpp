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

template <int fif, Mend mend = nullptr> Decoded byFreeImage(FileBytes& file)
{
    if constexpr (mend != nullptr) mend(file);
    return readByFreeImage(file, fif);
}

struct Reader {
    const char* extension;
    const char* name; // as in "it is damaged or not a PNG picture"
    Decoded (*read)(FileBytes& file);
};

// clang-format off
constexpr Reader kReaders[] = {                 // the first row of an extension counts
    {"gif",  "GIF",                 [](FileBytes& f) { return readByQt(f, "gif"); }},
    {"wmf",  "Windows metafile",    readWmf},
    {"emf",  "enhanced metafile",   readEmf},
    {"ico",  "icon",                [](FileBytes& f) { return readByQt(f, "ico"); }},
    {"cur",  "cursor",              [](FileBytes& f) { return readByQt(f, "cur"); }},
    {"dib",  "bitmap",              readDib},
    {"bmp",  "BMP",                 byFreeImage<FIF_BMP, mendBmp>},
    {"cut",  "Dr. Halo",            byFreeImage<FIF_CUT>},
    {"iff",  "IFF",                 byFreeImage<FIF_IFF>},
    {"jpg",  "JPEG",                byFreeImage<FIF_JPEG, mendJpeg>},
    {"koa",  "Koala",               byFreeImage<FIF_KOALA>},
    {"lbm",  "IFF",                 byFreeImage<FIF_LBM>},
    {"mng",  "MNG",                 byFreeImage<FIF_MNG>},
    {"pcd",  "Photo CD",            byFreeImage<FIF_PCD>},
    {"pcx",  "PCX",                 byFreeImage<FIF_PCX>},
    {"png",  "PNG",                 byFreeImage<FIF_PNG>},
    {"psd",  "Photoshop",           byFreeImage<FIF_PSD>},
    {"ras",  "Sun raster",          byFreeImage<FIF_RAS, mendRas>},
    {"tga",  "Targa",               byFreeImage<FIF_TARGA>},
    {"tif",  "TIFF",                byFreeImage<FIF_TIFF>},
    {"wbmp", "WBMP",                byFreeImage<FIF_WBMP>},
    {"pbm",  "portable anymap",     byFreeImage<FIF_PPM, mendPnm>},
    {"pgm",  "portable anymap",     byFreeImage<FIF_PPM, mendPnm>},
    {"ppm",  "portable anymap",     byFreeImage<FIF_PPM, mendPnm>},
    {"jng",  "BMP",                 byFreeImage<FIF_BMP, mendBmp>}, // odd, and it stays: .jng goes to the BMP reader
};
// clang-format on

} // namespace

Decoded decodePicture(const QString& path, const QString& extension)
try {
    const auto reader = std::find_if(std::begin(kReaders), std::end(kReaders),
                                     [&](const Reader& row) { return extension == QLatin1String(row.extension); });
    if (extension.isEmpty()) return refused("its name has no extension to tell what it is");
    if (reader == std::end(kReaders)) return refused(QString("there is no reader for .%1 files").arg(extension));
    FileBytes file(path);
    if (file.size() == 0) return refused("it is empty or can't be opened");
    if (file.size() > (std::size_t{1} << 31) - 1) return refused("it has more than two gigabytes");
    Decoded decoded = reader->read(file);
    if (!decoded.ok() && decoded.reason.isEmpty())
        decoded.reason = QString("it is damaged or not a %1 picture").arg(reader->name);
    return decoded;
} catch (const std::bad_alloc&) {
    return refused(kTooMuchMemory);
}

} // namespace velara::decode
