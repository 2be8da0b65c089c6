// TIFF by libtiff.
#include "fileio/exifBytes.h"
#include "fileio/writers/iptcResource.h"
#include "fileio/writers/packRows.h"
#include "fileio/writers/pictureFiles.h"
#include <memory>
#include <tiffio.h>

namespace velara {

namespace {

constexpr std::size_t kStrip = 64 << 10; // bytes before compression, at least one row

OutputFile& fileOf(thandle_t handle) { return *static_cast<OutputFile*>(handle); }

struct Close {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

std::unique_ptr<TIFF, Close> opened(OutputFile& to, const char* mode)
{
    const std::unique_ptr<TIFFOpenOptions, Close> options(TIFFOpenOptionsAlloc());
    if (!options) return nullptr;
    const TIFFErrorHandlerExtR silent = [](TIFF*, void*, const char*, const char*, va_list) { return 1; };
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), silent, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), silent, nullptr);
    const auto read = [](thandle_t handle, void* bytes, tmsize_t size) {
        return static_cast<tmsize_t>(fileOf(handle).read(bytes, static_cast<std::size_t>(size)));
    };
    const auto write = [](thandle_t handle, void* bytes, tmsize_t size) -> tmsize_t {
        return fileOf(handle).write(bytes, static_cast<std::size_t>(size)) ? size : 0;
    };
    const auto seek = [](thandle_t handle, toff_t offset, int whence) -> toff_t {
        OutputFile& file = fileOf(handle);
        return file.seek(static_cast<std::int64_t>(offset), whence) ? static_cast<toff_t>(file.tell()) : toff_t(-1);
    };
    const auto size = [](thandle_t handle) -> toff_t {
        OutputFile& file = fileOf(handle);
        const std::int64_t at = file.tell();
        const std::int64_t end = file.seek(0, SEEK_END) ? file.tell() : 0;
        file.seek(at, SEEK_SET);
        return static_cast<toff_t>(end);
    };
    return std::unique_ptr<TIFF, Close>(TIFFClientOpenExt(
        "", mode, &to, read, write, seek, [](thandle_t) { return 0; }, size, nullptr, nullptr, options.get()));
}

void setUp(TIFF* tiff, const Bits& picture, int rowsAStrip, const CameraData& camera)
{
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, picture.width());
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, picture.height());
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, rowsAStrip);
    TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(tiff, TIFFTAG_XRESOLUTION, camera.dotsAcross > 0 ? camera.dotsAcross : kUsualDots);
    TIFFSetField(tiff, TIFFTAG_YRESOLUTION, camera.dotsDown > 0 ? camera.dotsDown : kUsualDots);
    const auto bytes = [&](std::uint32_t tag, const QByteArray& of) {
        if (!of.isEmpty()) TIFFSetField(tiff, tag, static_cast<std::uint32_t>(of.size()), of.constData());
    };
    bytes(TIFFTAG_ICCPROFILE, camera.profile);
    bytes(TIFFTAG_XMLPACKET, camera.xmp);
    bytes(TIFFTAG_PHOTOSHOP, iptcResource(camera.iptc));
    if (!camera.comment.isEmpty()) TIFFSetField(tiff, TIFFTAG_IMAGEDESCRIPTION, camera.comment.toUtf8().constData());
}

// --- EXIF: a file begins as a block of EXIF does, and the block's directories become the file's at the same offsets

/// One value of what the first directory says of the picture.
void setTag(TIFF* tiff, const ExifBytes& exif, const ExifBytes::Entry& entry)
{
    if (entry.type == ExifBytes::Text) {
        TIFFSetField(tiff, entry.tag, exif.text(entry).constData());
    } else if (entry.type == ExifBytes::Short && entry.count == 1) {
        TIFFSetField(tiff, entry.tag, static_cast<int>(exif.number(entry)));
    } else if (entry.type == ExifBytes::Byte) {
        const QByteArray bytes = exif.valuesOf(entry);
        TIFFSetField(tiff, entry.tag, static_cast<std::uint32_t>(bytes.size()), bytes.constData());
    }
}

/// The tags that the library doesn't know.
void makeKnown(TIFF* tiff)
{
    static const auto own = [](std::uint16_t tag, TIFFDataType type, bool isList) {
        static char name[] = "of the picture";
        const short count = isList ? TIFF_VARIABLE2 : 1;
        return TIFFFieldInfo{tag, count, count, type, FIELD_CUSTOM, 1, isList, name};
    };
    static const TIFFFieldInfo kOwn[] = {
        own(ExifTag::Rating, TIFF_SHORT, false), own(ExifTag::RatingPercent, TIFF_SHORT, false),
        own(ExifTag::XpTitle, TIFF_BYTE, true),  own(ExifTag::XpComment, TIFF_BYTE, true),
        own(ExifTag::XpAuthor, TIFF_BYTE, true), own(ExifTag::XpKeywords, TIFF_BYTE, true),
        own(ExifTag::XpSubject, TIFF_BYTE, true)};
    TIFFMergeFieldInfo(tiff, kOwn, std::size(kOwn));
}

bool putExif(TIFF* tiff, OutputFile& to, const QByteArray& block)
{
    constexpr std::size_t kHead = 8; // of both
    const ExifBytes exif(block);
    const std::uint32_t first = exif.first();
    if (first == 0) return true;
    if (!to.seek(kHead, SEEK_SET) || !to.write(block.constData() + kHead, std::size_t(block.size()) - kHead))
        return false;
    makeKnown(tiff);
    for (const std::uint16_t tag : kTagsOfPicture)
        if (const auto entry = exif.find(first, tag)) setTag(tiff, exif, *entry);
    for (const auto& [link, tag] :
         {std::pair{ExifTag::Details, TIFFTAG_EXIFIFD}, std::pair{ExifTag::Place, TIFFTAG_GPSIFD}})
        if (const std::uint64_t directory = exif.directoryOf(first, link)) TIFFSetField(tiff, tag, directory);
    return true;
}

} // namespace

bool writeTiff(const Bits& picture, OutputFile& to, const CameraData& camera)
{
    const int width = picture.width(), height = picture.height();
    const std::size_t bytes = std::size_t(width) * 3;
    const int together = static_cast<int>(std::clamp<std::size_t>(kStrip / bytes, 1, std::size_t(height)));
    std::vector<std::uint8_t> strip(bytes * std::size_t(together));
    const auto tiff = opened(to, camera.exif.startsWith("MM") ? "wb" : "wl"); // the byte order of the EXIF
    if (!tiff || !putExif(tiff.get(), to, camera.exif)) return false;
    setUp(tiff.get(), picture, together, camera);
    std::uint32_t number = 0;
    for (int y = 0; y < height; y += together) {
        const int rows = std::min(together, height - y);
        if (!to.awaitRow(y + rows - 1)) return false;
        for (int i = 0; i < rows; ++i)
            packRow24(picture.row(y + i), strip.data() + bytes * std::size_t(i), width, Order::RedFirst);
        const auto size = static_cast<tmsize_t>(bytes * std::size_t(rows));
        if (!to.goesOn() || TIFFWriteEncodedStrip(tiff.get(), number++, strip.data(), size) != size) return false;
    }
    return TIFFWriteDirectory(tiff.get()) == 1;
}

} // namespace velara
