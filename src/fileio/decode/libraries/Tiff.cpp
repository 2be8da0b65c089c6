#include "fileio/decode/libraries/Tiff.h"
#include "fileio/decode/facts/tiffExif.h"
#include <algorithm>
#include <cstdio>
#include <cstring>

namespace velara::decode {

Tiff::Tiff(const TiffPage& page) : file_(page.file)
{
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    const auto size = [](thandle_t self) -> toff_t { return static_cast<Tiff*>(self)->file_.size(); };
    const auto nothing = [](thandle_t) { return 0; };
    // Not mapped ("m"): of a strip that is cut off the library then reads what there is.
    tiff_ = TIFFClientOpen(
        "", "rm", this, read, [](thandle_t, void*, tmsize_t) { return tmsize_t{0}; }, seek, nothing, size, nullptr,
        nullptr);
    if (!tiff_) throw Damage("no picture");
    if (page.directory == 0 || TIFFSetDirectory(tiff_, page.directory)) return;
    TIFFClose(tiff_);
    throw Damage("no such page");
}

tmsize_t Tiff::read(thandle_t handle, void* to, tmsize_t count)
{
    auto& self = *static_cast<Tiff*>(handle);
    const std::size_t left = self.file_.size() - self.at_;
    const std::size_t part = std::min(left, static_cast<std::size_t>(std::max<tmsize_t>(count, 0)));
    std::memcpy(to, self.file_.bytes().data() + self.at_, part);
    self.at_ += part;
    return static_cast<tmsize_t>(part);
}

toff_t Tiff::seek(thandle_t handle, toff_t offset, int origin)
{
    auto& self = *static_cast<Tiff*>(handle);
    const toff_t size = self.file_.size(), from = origin == SEEK_SET ? 0 : origin == SEEK_CUR ? self.at_ : size;
    if (offset > size - from) return static_cast<toff_t>(-1);
    return self.at_ = static_cast<std::size_t>(from + offset);
}

Span Tiff::bytes(std::uint32_t tag) const
{
    std::uint32_t count = 0;
    void* data = nullptr;
    if (!TIFFGetField(tiff_, tag, &count, &data) || !data) return {};
    return {static_cast<const std::uint8_t*>(data), count};
}

bool Tiff::endsInside() const
{
    const std::uint32_t count = TIFFIsTiled(tiff_) ? TIFFNumberOfTiles(tiff_) : TIFFNumberOfStrips(tiff_);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint64_t from = TIFFGetStrileOffset(tiff_, i), length = TIFFGetStrileByteCount(tiff_, i);
        if (from > file_.size() || length > file_.size() - from) return false;
    }
    return true;
}

std::vector<tdir_t> pagesOf(const FileBytes& file)
{
    constexpr std::uint32_t kNoPage = FILETYPE_REDUCEDIMAGE | FILETYPE_MASK;
    const Tiff tiff(TiffPage{file});
    std::vector<tdir_t> pages{0};
    for (tdir_t directory = 1; TIFFReadDirectory(tiff.get()); ++directory)
        if (!(tiff.number<std::uint32_t>(TIFFTAG_SUBFILETYPE, 0) & kNoPage)) pages.push_back(directory);
    return pages;
}

namespace {

/// Bytes that most files call words, so that the library may have changed their order.
void takeIptc(Carried& carried, Span bytes)
{
    constexpr std::uint8_t kMark = 0x1c;
    if (bytes.size() < 4 || bytes.size() > kMostFacts) return;
    std::vector<std::uint8_t> records(bytes.begin(), bytes.end());
    const bool isChanged = records[0] != kMark;
    for (std::size_t at = 0; isChanged && at + 4 <= bytes.size(); at += 4)
        std::reverse_copy(&bytes[at], &bytes[at] + 4, &records[at]);
    for (int i = 0; i < 3 && records.back() == 0; ++i) records.pop_back(); // up to a whole word
    if (records[0] == kMark) carried.iptc = std::move(records);
}

} // namespace

Carried carriedByTiff(const Tiff& tiff)
{
    Carried carried;
    const auto orientation = tiff.number<std::uint16_t>(TIFFTAG_ORIENTATION, 0);
    if (orientation <= 8) carried.orientation = orientation;
    take(carried.profile, tiff.bytes(TIFFTAG_ICCPROFILE), kMostProfile);
    carried.exif = exifOfTiff(tiff.file(), TIFFCurrentDirOffset(tiff.get()));
    take(carried.xmp, tiff.bytes(TIFFTAG_XMLPACKET), kMostFacts);
    take(carried.iptc, iptcIn(tiff.bytes(TIFFTAG_PHOTOSHOP)), kMostFacts);
    if (carried.iptc.empty()) takeIptc(carried, tiff.bytes(TIFFTAG_RICHTIFFIPTC));
    if (const char* text = tiff.number<const char*>(TIFFTAG_IMAGEDESCRIPTION, nullptr))
        take(carried.comment, {reinterpret_cast<const std::uint8_t*>(text), std::strlen(text)}, kMostComment);
    const auto unit = tiff.number<std::uint16_t>(TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    if (unit != RESUNIT_NONE) {
        const double scale = unit == RESUNIT_CENTIMETER ? 2.54 : 1;
        carried.dotsAcross = tiff.number(TIFFTAG_XRESOLUTION, 0.0F) * scale;
        carried.dotsDown = tiff.number(TIFFTAG_YRESOLUTION, 0.0F) * scale;
    }
    return carried;
}

} // namespace velara::decode
