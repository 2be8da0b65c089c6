#include "fileio/web/WebSettings.h"
#include "pixels/numbers.h"
#include <utility>

namespace velara {

namespace {

// clang-format off
constexpr WebEntry kMaps[] = {
    {"MS Map", kMapped}, {"Optimal", kOptimal}, {"Fixed Color", kFixedColour}, {"VGA", kVgaPalette},
    {"iNet", kWebPalette}, {"MS 256", kHalftonePalette}, {"Fixed Grey", kGreyPalette},
};
constexpr unsigned kMsMap = 1, kBest = 2, kFixed = 4, kVga = 8, kINet = 16, kMs256 = 32, kGrey = 64;
constexpr unsigned kFew = kBest | kFixed | kGrey, kMany = kMsMap | kFew | kINet | kMs256;
constexpr int kCompressed = 16; // the preset in which the choice of palette has no effect

constexpr WebPreset kPresets[] = {
    {"GIF-2 Colors",                1, kCounted, kGifOutput,    kBmp, kMsMap | kFixed,      "2 Colors"},
    {"GIF-4 Colors",                2, kCounted, kGifOutput,    kBmp, kFixed,               "4 Colors"},
    {"GIF-8 Colors",                3, kOptimal, kGifOutput,    kBmp, kFew,                 "8 Colors"},
    {"GIF-16 Colors",               4, kOptimal, kGifOutput,    kBmp, kMsMap | kFew | kVga, "16 Colors"},
    {"GIF-32 Colors",               5, kOptimal, kGifOutput,    kBmp, kFew,                 "32 Colors"},
    {"GIF-64 Colors",               6, kOptimal, kGifOutput,    kBmp, kFew,                 "64 Colors"},
    {"GIF-128 Colors",              7, kOptimal, kGifOutput,    kBmp, kFew,                 "128 Colors"},
    {"GIF-256 Colors",              8, kOptimal, kGifOutput,    kBmp, kMany,                "256 Colors"},
    {"BMP-2 Colors",                1, kCounted, kBitmapOutput, kBmp, kMsMap | kFixed,      "2 Colors"},
    {"BMP-16 Colors",               4, kOptimal, kBitmapOutput, kBmp, kMsMap | kFew | kVga, "16 Colors"},
    {"BMP-256 Colors",              8, kOptimal, kBitmapOutput, kBmp, kMany,                "256 Colors"},
    {"BMP-16 bit",                 16, kMapped,  kBitmapOutput, kBmp, kMsMap,               "16 bit"},
    {"BMP-24 bit",                 24, kMapped,  kBitmapOutput, kBmp, kMsMap,               "24 bit"},
    {"PNG-8 bit",                   8, kOptimal, kBitmapOutput, kPng, kMany,                "8 bit"},
    {"PNG-24 bit",                 24, kMapped,  kBitmapOutput, kPng, kMsMap,               "24 bit"},
    {"JPEG",                        0, 0,        kBitmapOutput, kBmp, 0,                    "24 bit"},
    {"PCX-24 bit (Compressed)",    16, kMapped,  kBitmapOutput, kPcx, kMsMap,               "24 bit"},
    {"PCX-24 bit (Uncompressed)",  24, kMapped,  kBitmapOutput, kPcx, kMsMap,               "24 bit"},
    {"TGA-24 bit (Compressed)",    16, kMapped,  kBitmapOutput, kTga, kMsMap,               "24 bit"},
    {"TGA-24 bit (Uncompressed)",  24, kMapped,  kBitmapOutput, kTga, kMsMap,               "24 bit"},
    {"TIFF-24 bit (Uncompressed)", 24, kMapped,  kBitmapOutput, kTif, kMsMap,               "24 bit"},
    {"WebP",                        0, 0,        kBitmapOutput, kWebp, 0,                   "24 bit"},
    {"WebP (Lossless)",            24, kMapped,  kBitmapOutput, kWebp, kMsMap,              "24 bit"},
    {"AVIF",                        0, 0,        kBitmapOutput, kAvif, 0,                   "24 bit"},
    {"JPEG XL",                     0, 0,        kBitmapOutput, kJxl, 0,                    "24 bit"},
};
constexpr WebEntry kDithers[] = {
    {"None", 0}, {"Binary", 1}, {"Ordered", 2}, {"Haftone", 4}, {"Forward Diag", 8}, {"Backward Diag", 0x10},
    {"Horizontal", 0x20}, {"Vertical", 0x40}, {"Odd", 0x100}, {"Even", 0x200}, {"Equal", kUnchanged},
};
constexpr WebEntry kModes[] = {{"Colors", 0}, {"Greyscale", kGreyscale}};
constexpr WebEntry kQualities[] = {
    {"Bad", 0x800}, {"Average", 0x400}, {"Normal", 0x200}, {"Good", 0x100}, {"Superb", 0x80},
};
struct KindRow {
    const char *type, *filter;
};
constexpr KindRow kKinds[] = { // by FileKind
    {"BMP", "Windows Bitmap Format (*.bmp)|*.bmp"}, {"PNG", "Portable Network Graphics (*.png)|*.png"},
    {"TGA", "Targa Format (*.tga)|*.tga"},          {"TIF", "Tagged Image Format (*.tif)|*.tif)"}, // extra bracket: kept
    {"PCX", "PCX Format (*.pcx)|*.pcx"},            {"WEBP", "WebP (*.webp)|*.webp"},
    {"AVIF", "AVIF (*.avif)|*.avif"},               {"JXL", "JPEG XL (*.jxl)|*.jxl"},
};
// clang-format on
constexpr KindRow kGif{"GIF", "Graphical Interface Format (*.gif)|*.gif"};
constexpr KindRow kJpeg{"JPG", "Independent JPEG (*.jpg)|*.jpg"};

const KindRow& kindOf(const WebSettings& s) { return s.isJpeg() ? kJpeg : s.isGif() ? kGif : kKinds[s.FileKind]; }

} // namespace

std::span<const WebPreset> webPresets() { return kPresets; }
std::span<const WebEntry> webMaps() { return kMaps; }
std::span<const WebEntry> webDithers() { return kDithers; }
std::span<const WebEntry> webModes() { return kModes; }
std::span<const WebEntry> webJpegQualities() { return kQualities; }

void WebSettings::choosePreset(int index, bool interlaced)
{
    preset = index;
    BitCount = row().bitCount;
    PaletteWord = row().paletteWord == kCounted ? kCounted | 1 << BitCount : row().paletteWord;
    FileKind = row().fileKind;
    OutputKind = row().outputKind;
    setInterlaced(interlaced);
    ColorMode = DitherWord = 0;
    takesDither = PaletteWord != kMapped;
}

bool WebSettings::holdsCamera() const
{
    constexpr int kHolding[] = {kPng, kTif, kWebp, kAvif, kJxl};
    return isJpeg() || (OutputKind == kBitmapOutput && std::ranges::find(kHolding, FileKind) != std::end(kHolding));
}

std::vector<int> WebSettings::maps() const
{
    std::vector<int> list;
    for (int i = 0; i < int(std::size(kMaps)); ++i)
        if (row().maps >> i & 1) list.push_back(i);
    return list;
}

void WebSettings::chooseMap(int index)
{
    if (preset == kCompressed) return;
    BitCount = row().bitCount; // which a fit to a size may have lowered
    PaletteWord = kMaps[index].word;
    takesDither = PaletteWord != kMapped;
    if (!takesDither) DitherWord = 0;
}

bool WebSettings::choosesMap() const { return preset != kCompressed && maps().size() > 1; }

int WebSettings::map() const
{
    for (const int i : maps())
        if (kMaps[i].word == PaletteWord) return i;
    return -1;
}

void WebSettings::chooseDither(int index)
{
    if (takesDither && kDithers[index].word != kUnchanged) DitherWord = kDithers[index].word;
}

std::vector<WebSettings> WebSettings::bySize() const
{
    std::vector<WebSettings> list;
    for (int bits = 8; bits > 0; --bits) {
        WebSettings s = *this;
        if (bits != BitCount) {
            s.choosePreset(isGif() ? bits - 1 : preset, OutputKind == kInterlacedGifOutput);
            s.ColorMode = ColorMode;
            s.BitCount = bits;
            if (isGif() && map() >= 0 && (s.row().maps >> map() & 1)) s.PaletteWord = PaletteWord;
            s.takesDither = s.PaletteWord != kMapped;
            s.DitherWord = s.takesDither ? DitherWord : 0;
        }
        list.push_back(s);
        if (std::exchange(s.DitherWord, 0) != 0) list.push_back(s);
    }
    return list;
}

void WebSettings::setInterlaced(bool on)
{
    if (isGif()) OutputKind = on ? kInterlacedGifOutput : kGifOutput;
}

int WebSettings::transformFlags() const
{
    return (flipV ? ColorReducer::kFlipVertically : 0) | (flipH ? ColorReducer::kFlipHorizontally : 0) |
           (invert ? ColorReducer::kInvert : 0);
}

QString WebSettings::typeText() const { return QLatin1String(kindOf(*this).type); }

std::optional<QString> WebSettings::sizeText(std::int64_t bytes) const
{
    const double kilobytes = roundToEven(double(bytes) / 1024);
    if (kilobytes > 32767) return {};
    return QString::number(kilobytes, 'f', 0) + (isJpeg() ? " Kb" : " KB");
}

QString WebSettings::saveFilter() const
{
    return !isJpeg() && OutputKind == kInterlacedGifOutput ? QString() : QLatin1String(kindOf(*this).filter);
}

} // namespace velara
