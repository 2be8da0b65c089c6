#include "tools/compare/oldReaders.h"
#include "fileio/decode/readers.h"
#include "fileio/formats.h"
#include "tools/compare/oldMends.h"
#include <FreeImage.h>
#include <algorithm>
#include <iterator>
#include <new>

namespace velara::compare {

using decode::Decoded;
using decode::FileBytes;

Decoded readByOldLibrary(FileBytes& file, int fif);

namespace {

using Mend = void (*)(FileBytes&);

void mendNothing(FileBytes&) {}

template <int fif, Mend mend = mendNothing> Decoded byLibrary(FileBytes& file)
{
    mend(file);
    return readByOldLibrary(file, fif);
}

/// A window of one column or row is read as one of two, then cropped.
Decoded readPcx(FileBytes& file)
{
    const bool isColumn = file.little16(4) == file.little16(8), isRow = file.little16(6) == file.little16(10);
    mendPcx(file);
    Decoded picture = readByOldLibrary(file, FIF_PCX);
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

bool isGifCutOff(const FileBytes& file)
{
    constexpr std::size_t kHeader = 13, kImageHeader = 10;
    enum Block : std::uint32_t { Extension = 0x21, Image = 0x2c };
    const auto colours = [&](std::size_t flagsAt) { // bytes of the palette announced by the flags
        const std::uint32_t flags = file.byte(flagsAt);
        return flags & 0x80 ? std::size_t{3} << ((flags & 7) + 1) : 0;
    };
    for (std::size_t at = kHeader + colours(kHeader - 3); at < file.size();) {
        const std::uint32_t block = file.byte(at);
        if (block != Extension && block != Image) return false; // damaged, but not truncated
        at += block == Extension ? 2 : kImageHeader + colours(at + kImageHeader - 1) + 1;
        while (at < file.size() && file.byte(at) != 0) at += 1 + file.byte(at);
        if (at++ >= file.size()) return true;
        if (block == Image) return false;
    }
    return true;
}

Decoded readGif(FileBytes& file)
{
    Decoded picture = decode::readByQt(file, "gif");
    if (picture.reason.isEmpty() && file.startsWith("GIF8") && isGifCutOff(file)) picture.reason = decode::kCutOff;
    return picture;
}

struct Reader {
    std::string_view extension;
    Decoded (*read)(FileBytes& file);
};

// clang-format off
constexpr Reader kReaders[] = {
    {"gif",   readGif},
    {"bmp",   byLibrary<FIF_BMP, mendBmp>},
    {"cut",   byLibrary<FIF_CUT>},
    {"iff",   byLibrary<FIF_IFF, mendIff>},
    {"jpg",   byLibrary<FIF_JPEG, mendJpeg>},
    {"koa",   byLibrary<FIF_KOALA>},
    {"lbm",   byLibrary<FIF_LBM, mendIff>},
    {"mng",   byLibrary<FIF_MNG>},
    {"pcd",   byLibrary<FIF_PCD>},
    {"pcx",   readPcx},
    {"png",   byLibrary<FIF_PNG>},
    {"psd",   byLibrary<FIF_PSD>},
    {"ras",   byLibrary<FIF_RAS, mendRas>},
    {"tga",   byLibrary<FIF_TARGA>},
    {"tif",   byLibrary<FIF_TIFF>},
    {"wbmp",  byLibrary<FIF_WBMP>},
    {"pbm",   byLibrary<FIF_PPM, mendPnm>},
    {"pgm",   byLibrary<FIF_PPM, mendPnm>},
    {"ppm",   byLibrary<FIF_PPM, mendPnm>},
    {"jng",   byLibrary<FIF_BMP, mendBmp>},
};
// clang-format on

const Reader* readerOf(const QString& extension)
{
    const std::string name = extension.toStdString();
    const auto* reader = std::ranges::find(kReaders, usualExtension(name), &Reader::extension);
    return reader == std::end(kReaders) ? nullptr : reader;
}

} // namespace

bool isOldFormat(const QString& extension) { return readerOf(extension) != nullptr; }

Decoded decodeOld(FileBytes&& file, const QString& extension)
try {
    const Reader* reader = readerOf(extension);
    if (!reader || file.size() == 0) return decode::refused("it is empty");
    Decoded decoded = reader->read(file);
    if (!decoded.ok() && decoded.reason.isEmpty()) decoded.reason = "it is damaged";
    return decoded;
} catch (const std::bad_alloc&) {
    return decode::refused(decode::kTooMuchMemory);
}

} // namespace velara::compare
