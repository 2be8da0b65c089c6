#include "fileio/decode/decode.h"
#include "fileio/decode/mends.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/readers.h"
#include "fileio/formats.h"
#ifdef VELARA_FREEIMAGE
#include <FreeImage.h>
#endif
#include <algorithm>
#include <iterator>
#include <new>

namespace velara::decode {

// The readers in files of their own, read*.cpp; metafiles get their natural size at 96 dpi, drawn on white.
Decoded readGif(FileBytes&file), readDib(FileBytes&file), readWmf(FileBytes&file), readEmf(FileBytes&file);
// What they load from the disk before the cage closes.
Needs loadQtReaders(), loadIconReaders(), prepareWmf(), prepareEmf();

namespace {

#ifdef VELARA_FREEIMAGE
using Mend = void (*)(FileBytes&);

void mendNothing(FileBytes&) {}

template <int fif, Mend mend = mendNothing> Decoded byFreeImage(FileBytes& file)
{
    mend(file);
    return readByFreeImage(file, fif);
}
#else
enum : int { FIF_JPEG, FIF_MNG, FIF_PCD, FIF_PNG, FIF_PSD, FIF_TIFF };
template <int, void (*)(FileBytes&) = nullptr> constexpr std::nullptr_t byFreeImage = nullptr;
#endif

Needs prepareNothing() { return Needs::Nothing; }

struct Reader {
    std::string_view extension;
    Decoded (*read)(FileBytes& file); // null: the build has no library for it
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
    {"bmp",   readBmp},
    {"cut",   readCut},
    {"iff",   readIff},
    {"jpg",   byFreeImage<FIF_JPEG, mendJpeg>},
    {"koa",   readKoala},
    {"lbm",   readIff},
    {"mng",   byFreeImage<FIF_MNG>},
    {"pcd",   byFreeImage<FIF_PCD>},
    {"pcx",   readPcx},
    {"png",   byFreeImage<FIF_PNG>},
    {"psd",   byFreeImage<FIF_PSD>},
    {"ras",   readRas},
    {"tga",   readTga},
    {"tif",   byFreeImage<FIF_TIFF>},
    {"wbmp",  readWbmp},
    {"pbm",   readPnm},
    {"pgm",   readPnm},
    {"ppm",   readPnm},
    {"jng",   readBmp},
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

Needs prepareReader(const QString& extension)
{
    const Reader* reader = readerOf(extension.toStdString());
    return reader ? reader->prepare() : Needs::Nothing;
}

Decoded decodePicture(FileBytes&& file, const QString& extension)
try {
    const Reader* reader = readerOf(extension.toStdString());
    if (extension.isEmpty()) return refused("its name has no extension to tell what it is");
    if (!reader) return refused(QString("there is no reader for .%1 files").arg(extension));
    if (file.size() == 0) return refused("it is empty or can't be opened");
    if (file.size() > (std::size_t{1} << 31) - 1) return refused("it has more than two gigabytes");
    const QLatin1String name(findFormat(reader->extension)->name);
    if (!reader->read) return refused(QString("this build lacks the library that reads %1 picture").arg(name));
    Decoded decoded = reader->read(file);
    if (!decoded.ok() && decoded.reason.isEmpty())
        decoded.reason = QString("it is damaged or not %1 picture").arg(name);
    return decoded;
} catch (const std::bad_alloc&) {
    return refused(kTooMuchMemory);
}

} // namespace velara::decode
