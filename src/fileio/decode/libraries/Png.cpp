#include "fileio/decode/libraries/Png.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <zlib.h>

namespace velara::decode {

namespace {

void fail(png_structp, png_const_charp message) { throw Damage(message); }

/// The number at the beginning of a text; 0: there is none.
std::int64_t numberIn(std::string_view text) { return std::strtoll(std::string(text).c_str(), nullptr, 10); }

std::int32_t sideIn(std::string_view text)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(numberIn(text), 0, 1 << 30));
}

/// Bytes in a text: line end, name, line end, count, line end, then two hexadecimal digits each.
std::vector<std::uint8_t> rawProfile(std::string_view text)
{
    const auto line = [&] {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view first = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        return first;
    };
    line();
    line();
    const auto count = static_cast<std::size_t>(std::clamp<std::int64_t>(numberIn(line()), 0, kMostFacts));
    std::vector<std::uint8_t> bytes;
    unsigned value = 1; // a leading 1 tells how many digits there are
    for (const char c : text) {
        const char* const digits = "0123456789abcdef";
        const char* digit = std::strchr(digits, c | 0x20);
        if (!digit || *digit == 0) continue;
        value = value << 4 | static_cast<unsigned>(digit - digits);
        if (value < 0x100) continue;
        bytes.push_back(static_cast<std::uint8_t>(value));
        value = 1;
    }
    bytes.resize(std::min(count, bytes.size()));
    return bytes;
}

void takeExif(Carried& carried, Span bytes)
{
    takeName(bytes, std::string_view("Exif\0\0", 6));
    take(carried.exif, bytes, kMostFacts);
}

void takeIptc(Carried& carried, Span bytes)
{
    takeName(bytes, std::string_view("Photoshop 3.0\0", 14));
    take(carried.iptc, !bytes.empty() && bytes[0] == 0x1c ? bytes : iptcIn(bytes), kMostFacts);
}

/// A text that means something to the editor; the last one of a key counts for the origin.
struct Text {
    std::string_view key;
    void (*take)(Decoded& picture, std::string_view text);
};
// clang-format off
constexpr Text kTexts[] = {
    {"Thumb::MTime",         [](Decoded& p, std::string_view text) { p.origin.modified = numberIn(text); }},
    {"Thumb::Image::Width",  [](Decoded& p, std::string_view text) { p.origin.width = sideIn(text); }},
    {"Thumb::Image::Height", [](Decoded& p, std::string_view text) { p.origin.height = sideIn(text); }},
    {"Comment",              [](Decoded& p, std::string_view text) { if (text.size() <= kMostComment && p.carried.comment.empty()) p.carried.comment = text; }},
    {"XML:com.adobe.xmp",    [](Decoded& p, std::string_view text) { take(p.carried.xmp, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, kMostFacts); }},
    {"Raw profile type exif", [](Decoded& p, std::string_view text) { takeExif(p.carried, rawProfile(text)); }},
    {"Raw profile type APP1", [](Decoded& p, std::string_view text) { takeExif(p.carried, rawProfile(text)); }},
    {"Raw profile type iptc", [](Decoded& p, std::string_view text) { takeIptc(p.carried, rawProfile(text)); }},
};
// clang-format on

void takeTexts(const Png& file, Decoded& picture)
{
    png_textp texts = nullptr;
    int count = 0;
    png_get_text(file.png(), file.info(), &texts, &count);
    for (const png_text& entry : std::span(texts, static_cast<std::size_t>(count))) {
        const auto* row = std::ranges::find(kTexts, std::string_view(entry.key), &Text::key);
        if (row != std::end(kTexts) && entry.text)
            row->take(picture, {entry.text, std::max(entry.text_length, entry.itxt_length)});
    }
}

void takeColours(const Png& file, Carried& carried)
{
    png_charp name = nullptr;
    png_bytep profile = nullptr;
    png_uint_32 length = 0;
    int compression = 0;
    if (png_get_iCCP(file.png(), file.info(), &name, &compression, &profile, &length))
        take(carried.profile, {profile, length}, kMostProfile);
    if (file.has(PNG_INFO_iCCP) || file.has(PNG_INFO_sRGB)) return;
    if (file.has(PNG_INFO_gAMA)) png_get_gAMA(file.png(), file.info(), &carried.gamma);
    auto& c = carried.chromaticities;
    if (file.has(PNG_INFO_cHRM))
        png_get_cHRM(file.png(), file.info(), &c[0], &c[1], &c[2], &c[3], &c[4], &c[5], &c[6], &c[7]);
}

} // namespace

Png::Png(std::vector<Span> pieces) : pieces_(std::move(pieces))
{
    png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, fail, [](png_structp, png_const_charp) {});
    info_ = png_ ? png_create_info_struct(png_) : nullptr;
    if (!info_) {
        png_destroy_read_struct(&png_, nullptr, nullptr);
        throw std::bad_alloc();
    }
    png_set_read_fn(png_, this, [](png_structp png, png_bytep to, std::size_t count) {
        static_cast<Png*>(png_get_io_ptr(png))->read(to, count);
    });
}

void Png::read(png_bytep to, std::size_t count)
{
    while (count > 0) {
        if (piece_ == pieces_.size()) throw Damage("the end is missing");
        Span& left = pieces_[piece_];
        const std::size_t part = std::min(count, left.size());
        to = std::copy_n(left.data(), part, to);
        count -= part;
        left = left.subspan(part);
        if (left.empty()) ++piece_;
    }
}

std::vector<Span> withoutPixels(Span file)
{
    constexpr std::size_t kSignature = 8, kHead = 8, kCheck = 4; // a head: length, name
    static constexpr std::uint8_t kPixels[kHead] = {0, 0, 0, 0, 'I', 'D', 'A', 'T'};
    std::vector<Span> pieces;
    std::size_t firstPixels = 0; // where they begin; 0: not met yet
    std::string_view name;
    for (std::size_t at = kSignature; name != "IEND";) {
        if (at + kHead > file.size()) throw Damage("the end is missing");
        const std::size_t length = png_get_uint_32(&file[at]);
        if (length > file.size() - at - kHead || file.size() - at - kHead - length < kCheck)
            throw Damage("the end is missing");
        name = {reinterpret_cast<const char*>(&file[at + 4]), 4};
        const Span chunk = file.subspan(at, kHead + length + kCheck);
        const bool isCritical = (name[0] & 0x20) == 0;
        if (isCritical &&
            crc32(0, &file[at + 4], static_cast<uInt>(4 + length)) != png_get_uint_32(&file[at + kHead + length]))
            throw Damage("a wrong checksum");
        if (name == "IDAT" && firstPixels == 0) {
            firstPixels = at;
            pieces.push_back(file.first(at));
        } else if (firstPixels > 0 && isCritical && name != "IDAT" && name != "PLTE" && name != "IEND") {
            throw Damage("a chunk that nobody knows");
        } else if (firstPixels > 0 && (name == "tEXt" || name == "zTXt" || name == "iTXt" || name == "eXIf")) {
            pieces.push_back(chunk);
        }
        at += chunk.size();
    }
    if (firstPixels == 0) throw Damage("no pixels");
    pieces.push_back(kPixels);
    return pieces;
}

void takeFacts(const Png& chunks, Decoded& picture)
{
    takeTexts(chunks, picture);
    Carried& carried = picture.carried;
    takeColours(chunks, carried);
    png_bytep exif = nullptr;
    png_uint_32 length = 0, across = 0, down = 0;
    if (png_get_eXIf_1(chunks.png(), chunks.info(), &length, &exif)) {
        carried.exif.clear(); // the chunk counts more than a text
        take(carried.exif, {exif, length}, kMostFacts);
    }
    int unit = PNG_RESOLUTION_UNKNOWN;
    constexpr double kMetresAnInch = 0.0254;
    if (png_get_pHYs(chunks.png(), chunks.info(), &across, &down, &unit) && unit == PNG_RESOLUTION_METER) {
        carried.dotsAcross = across * kMetresAnInch;
        carried.dotsDown = down * kMetresAnInch;
    }
}

} // namespace velara::decode
