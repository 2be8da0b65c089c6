#include "fileio/decode/decode.h"
#include "fileio/decode/facts/carry.h"
#include "fileio/decode/facts/colours.h"
#include "fileio/decode/facts/screenTable.h"
#include "fileio/decode/facts/upright.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/readers.h"
#include "fileio/marks.h"
#ifdef VELARA_FREEIMAGE
#include <FreeImage.h>
#endif
#include <algorithm>
#include <iterator>
#include <new>

namespace velara::decode {

// The readers in files of their own, read*.cpp; metafiles get their natural size at 96 dpi, drawn on white.
Decoded readDib(FileBytes&file), readWmf(FileBytes&file), readEmf(FileBytes&file);
Decoded readIcon(FileBytes&file), readCursor(FileBytes&file);
Decoded readGif(FileBytes&file), readJpeg(FileBytes&file), readPng(FileBytes&file), readTiff(FileBytes&file);
Decoded readWebp(FileBytes&file), readHeif(FileBytes&file), readJxl(FileBytes&file), readSvg(FileBytes&file);
Decoded readRaw(FileBytes& file);
// What they load from the disk before the cage closes.
Needs loadQtReaders(), loadIconReaders(), prepareWmf(), prepareEmf(), prepareHeif(), prepareJxl(), prepareSvg();
Needs prepareJpeg(), prepareTiff(); // have threads started

namespace {

#ifdef VELARA_FREEIMAGE
template <int fif> Decoded byFreeImage(FileBytes& file) { return readByFreeImage(file, fif); }
#else
enum : int { FIF_MNG, FIF_PCD, FIF_PSD };
template <int...> constexpr std::nullptr_t byFreeImage = nullptr;
#endif

// What most files don't need and takes long to load is left out of the small velara-decode; see main.cpp.
#ifdef VELARA_COMMON_READERS
template <auto read> constexpr std::nullptr_t rare = nullptr;
constexpr auto kLacking = "velara-decode-all, which reads %1 picture, can't be started";
#else
template <auto read> constexpr auto rare = read;
constexpr auto kLacking = "this build lacks the library that reads %1 picture";
#endif

Needs prepareNothing() { return Needs::Nothing; }

struct Reader {
    std::string_view extension;
    Decoded (*read)(FileBytes& file); // null: the build has no library for it
    Needs (*prepare)() = prepareNothing;
    std::size_t leastShared = 32 << 10; // bytes: a smaller file is decoded sooner by one thread than others are started
};

// clang-format off
constexpr Reader kReaders[] = {
    {"gif",   readGif},
    {"wmf",   rare<readWmf>, rare<prepareWmf>},
    {"emf",   rare<readEmf>, rare<prepareEmf>},
    {"ico",   rare<readIcon>, rare<loadIconReaders>},
    {"cur",   rare<readCursor>, rare<loadIconReaders>},
    {"dib",   rare<readDib>, rare<loadQtReaders>},
    {"bmp",   readBmp},
    {"cut",   readCut},
    {"iff",   readIff},
    {"jpg",   readJpeg, prepareJpeg, 1 << 20},
    {"koa",   readKoala},
    {"lbm",   readIff},
    {"mng",   rare<byFreeImage<FIF_MNG>>},
    {"pcd",   rare<byFreeImage<FIF_PCD>>},
    {"pcx",   readPcx},
    {"png",   readPng},
    {"psd",   rare<byFreeImage<FIF_PSD>>},
    {"ras",   readRas},
    {"tga",   readTga},
    {"tif",   readTiff, prepareTiff},
    {"wbmp",  readWbmp},
    {"pbm",   readPnm},
    {"pgm",   readPnm},
    {"ppm",   readPnm},
    {"jng",   readBmp},
    {"webp",  readWebp},
    {"heic",  readHeif, prepareHeif},
    {"avif",  readHeif, prepareHeif},
    {"jxl",   readJxl, prepareJxl},
    {"svg",   rare<readSvg>, rare<prepareSvg>},
    {"dng",   rare<readRaw>},
    {"cr2",   rare<readRaw>},
    {"nef",   rare<readRaw>},
    {"arw",   rare<readRaw>},
    {"raf",   rare<readRaw>},
    {"orf",   rare<readRaw>},
    {"rw2",   rare<readRaw>},
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

bool readsHere(std::string_view extension, std::span<const std::uint8_t> bytes)
{
    const auto isHere = [](const Reader* reader) { return !reader || reader->read; };
    return isHere(readerOf(extension)) && isHere(readerOf(markOf(bytes)));
}

Decoded noSuchPage(int pages)
{
    return refused(pages > 1 ? QString("it has only %1 pages").arg(pages) : QString("it has only one page"));
}

Needs prepareReaders(const QString& extension, std::span<const std::uint8_t> bytes)
{
    prepareColours();
    const Reader *reader = readerOf(extension.toStdString()), *other = readerOf(markOf(bytes));
    const auto needsOf = [&](const Reader* one) {
        const Needs needs = one && one->prepare ? one->prepare() : Needs::Nothing;
        return one && bytes.size() < one->leastShared ? without(needs, Needs::Helpers) : needs;
    };
    return other == reader ? needsOf(reader) : needsOf(reader) | needsOf(other);
}

namespace {

constexpr bool areSame(const Reader* one, const Reader* other) { return one && other && one->read == other->read; }

QString kindOf(const Reader& reader) { return QLatin1String(findFormat(reader.extension)->name); }

Decoded readBy(const Reader& reader, FileBytes& file)
{
    if (!reader.read) return refused(QString(kLacking).arg(kindOf(reader)));
    Decoded decoded = reader.read(file);
    if (!decoded.ok() && decoded.reason.isEmpty())
        decoded.reason = QString("it is damaged or not %1 picture").arg(kindOf(reader));
    return decoded;
}

/// Nothing when the file bears no mark of another reader or isn't what its mark says.
Decoded readByMark(FileBytes& file, const Reader* first, std::string_view mark)
{
    const Reader* reader = readerOf(mark);
    Decoded decoded = reader && reader->read && !areSame(reader, first) ? reader->read(file) : Decoded{};
    decoded.format = mark;
    return decoded;
}

Decoded readByNameOrMark(FileBytes& file, const QString& extension)
{
    const Reader* reader = readerOf(extension.toStdString());
    if (file.size() > (std::size_t{1} << 31) - 1) return refused("it has more than two gigabytes");
    if (file.size() == 0 && reader) return refused("it is empty or can't be opened");
    const std::string_view mark = markOf(file.bytes()); // a reader may mend the bytes
    Decoded decoded = reader                ? readBy(*reader, file)
                      : extension.isEmpty() ? refused("its name has no extension to tell what it is")
                                            : refused(QString("there is no reader for .%1 files").arg(extension));
    if (decoded.ok()) {
        decoded.format = areSame(reader, readerOf(mark)) ? mark : reader->extension; // several formats may share one
        return decoded;
    }
    Decoded other = readByMark(file, reader, mark);
    return other.ok() ? other : decoded;
}

} // namespace

Decoded decodePicture(FileBytes&& file, const QString& extension, Wanted wanted)
try {
    if (wanted.table) return screenTable(file);
    Decoded decoded = readByNameOrMark(file, extension);
    if (!decoded.ok()) return decoded;
    if (wantedPage >= decoded.carried.pages) return noSuchPage(decoded.carried.pages);
    if (wanted.facts) decoded.properties = propertiesOf(decoded);
    QByteArray profile;
    wanted.srgb ? convertToSrgb(decoded) : void(profile = profileOfStored(decoded));
    decoded = upright(std::move(decoded));
    if (wanted.facts) decoded.camera = cameraOf(decoded);
    decoded.camera.profile = profile;
    return decoded;
} catch (const std::bad_alloc&) {
    return refused(kTooMuchMemory);
} catch (const Damage&) { // between the pixels, where a picture is turned
    return refused("it is damaged between its first row and its last");
}

} // namespace velara::decode
