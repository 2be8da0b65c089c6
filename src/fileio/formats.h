// The picture formats in one table: their names, how they open and how they are saved. The readers of the child process
// (fileio/decode/decode.cpp) and the writers (savePicture.cpp) are bound to its rows; file dialogs, the browser, what
// may be dropped on the frame, and the targets of the batch program are derived from it.
#pragma once
#include <QString>
#include <algorithm>
#include <string_view>

namespace velara {

enum class Saving {
    No,
    Directly, // under its own name
    AsAnymap, // by the name of its family: the colours decide which of the three it becomes
    Refused,  // with a message to the user
};

enum FormatTraits : unsigned {
    Plain = 0,
    FailsAloud = 1, // an unreadable file is refused; with all other formats it opens empty
    SavesSlowly = 2,
};

/// Upper bound of bytes of pixels per byte of a file, for a picture of a single colour.
enum Packing : int {
    Flat = 1,
    Runs = 128,      // two bytes encode up to 255
    Blocks = 1024,   // half a bit encodes 64: blocks of 8 by 8, with half of the chroma omitted
    Deflated = 1032, // the limit of the method
    Codes = 2731,    // 12 bits encode 4096
    Lines = 32768,   // one bit per line, as in fax encoding
    Drawn = 65536,   // a few words fill a whole drawing; a code that is certain, as of a single colour, takes no bits
};

struct Format {
    std::string_view extension; // lower case
    std::string_view name;      // as in "it is damaged or not a PNG picture"
    Saving saving;
    Packing packing; // the best one that a file of the extension may use
    unsigned traits;

    constexpr bool has(FormatTraits trait) const { return (traits & trait) != 0; }
    constexpr bool saved() const { return saving == Saving::Directly || saving == Saving::AsAnymap; }
};

// clang-format off
inline constexpr Format kFormats[] = {
    {"bmp",  "a BMP",                Saving::Directly, Runs,     Plain},
    {"wbmp", "a WBMP",               Saving::No,       Flat,     Plain},
    {"dib",  "a bitmap",             Saving::No,       Runs,     FailsAloud},
    {"wmf",  "a Windows metafile",   Saving::No,       Drawn,    FailsAloud},
    {"emf",  "an enhanced metafile", Saving::No,       Drawn,    FailsAloud},
    {"gif",  "a GIF",                Saving::Directly, Codes,    FailsAloud | SavesSlowly},
    {"jpg",  "a JPEG",               Saving::Directly, Blocks,   Plain},
    {"png",  "a PNG",                Saving::Directly, Deflated, Plain},
    {"pcx",  "a PCX",                Saving::Directly, Runs,     Plain},
    {"pbm",  "a portable anymap",    Saving::AsAnymap, Flat,     Plain},
    {"pgm",  "a portable anymap",    Saving::AsAnymap, Flat,     Plain},
    {"ppm",  "a portable anymap",    Saving::AsAnymap, Flat,     Plain},
    {"ico",  "an icon",              Saving::Refused,  Deflated, FailsAloud},
    {"cur",  "a cursor",             Saving::No,       Deflated, FailsAloud},
    {"psd",  "a Photoshop",          Saving::No,       Runs,     Plain},
    {"jng",  "a BMP",                Saving::No,       Runs,     Plain}, // odd, and kept: .jng goes to the BMP reader
    {"mng",  "an MNG",               Saving::No,       Deflated, Plain},
    {"tif",  "a TIFF",               Saving::Directly, Lines,    Plain},
    {"koa",  "a Koala",              Saving::No,       Flat,     Plain},
    {"pcd",  "a Photo CD",           Saving::No,       Flat,     Plain},
    {"ras",  "a Sun raster",         Saving::No,       Runs,     Plain},
    {"tga",  "a Targa",              Saving::Directly, Runs,     Plain},
    {"cut",  "a Dr. Halo",           Saving::No,       Runs,     Plain},
    {"iff",  "an IFF",               Saving::No,       Runs,     Plain},
    {"lbm",  "an IFF",               Saving::No,       Runs,     Plain},
    {"webp", "a WebP",               Saving::Directly, Drawn,    SavesSlowly},
    {"heic", "a HEIF",               Saving::No,       Drawn,    Plain},
    {"avif", "an AVIF",              Saving::Directly, Drawn,    SavesSlowly},
    {"jxl",  "a JPEG XL",            Saving::Directly, Drawn,    SavesSlowly},
    {"svg",  "an SVG",               Saving::No,       Drawn,    Plain},
    {"dng",  "a camera's",           Saving::No,       Deflated, Plain},
    {"cr2",  "a camera's",           Saving::No,       Runs,     Plain},
    {"nef",  "a camera's",           Saving::No,       Runs,     Plain},
    {"arw",  "a camera's",           Saving::No,       Runs,     Plain},
    {"raf",  "a camera's",           Saving::No,       Runs,     Plain},
    {"orf",  "a camera's",           Saving::No,       Runs,     Plain},
    {"rw2",  "a camera's",           Saving::No,       Runs,     Plain},
};
// clang-format on

/// A line of a file dialog's list of file types.
struct Kinds {
    std::string_view caption;
    std::string_view extensions; // separated by blanks
};

inline constexpr std::string_view kAllOpened = "All Supported Picture Formats"; // the first line

// clang-format off
inline constexpr Kinds kOpened[] = { // follow a line for all formats that are browsed for
    {"Bitmap Files (*.BMP;*.DIB)",              "bmp dib"},
    {"Meta Files (*.WMF;*.EMF)",                "wmf emf"},
    {"Graphical Interface Format(*.GIF)",       "gif"},
    {"Independent JPEG Group (*.JPG)",          "jpg"},
    {"Portable Network Graphics (*.PNG)",       "png"},
    {"Zsoft Paintbrush Files (*.PCX)",          "pcx"},
    {"Wireless Bitmap (*.WBMP)",                "wbmp"},
    {"Portable Bitmap (*.PBM)",                 "pbm"},
    {"Portable Graymap (*.PGM)",                "pgm"},
    {"Portable Pixelmap (*.PPM)",               "ppm"},
    {"Windows Icon (*.ICO)",                    "ico"},
    {"Photoshop (*.PSD)",                       "psd"},
    {"JPEG Network Graphics (*.JNG)",           "jng"},
    {"Multiple Network Graphics (*.MNG)",       "mng"},
    {"Tagged Image File Format (*.TIF)",        "tif"},
    {"Commodore 64 Koala format (*.KOA)",       "koa"},
    {"Kodak PhotoCD (*.PCD)",                   "pcd"},
    {"Sun Rasterfile (*.RAS)",                  "ras"},
    {"Targa files (*.TGA)",                     "tga"},
    {"Dr.Halo bitmap (*.CUT)",                  "cut"},
    {"Interchanged File Format (*.IFF)",        "iff"},
    {"Deluxe Paint package (*.LBM)",            "lbm"},
    {"WebP (*.WEBP)",                           "webp"},
    {"High Efficiency Image File (*.HEIC)",     "heic"},
    {"AV1 Image File (*.AVIF)",                 "avif"},
    {"JPEG XL (*.JXL)",                         "jxl"},
    {"Scalable Vector Graphics (*.SVG)",        "svg"},
    {"Camera Files (*.DNG;*.CR2;*.NEF;*.ARW;*.RAF;*.ORF;*.RW2)", "dng cr2 nef arw raf orf rw2"},
};

inline constexpr Kinds kSaved[] = {
    {"All Supported graphic formats ",          "bmp gif jpg png tga pcx tif pbm pgm ppm webp avif jxl"},
    {"Windows Bitmap Files (*.bmp)",            "bmp"},
    {"Graphical Interface Format (*.GIF)",      "gif"},
    {"Independent JPEG Group (*.JPG)",          "jpg"},
    {"Portable Network Graphics (*.PNG)",       "png"},
    {"Targa files (*.TGA)",                     "tga"},
    {"Zsoft Paintbrush (*.PCX)",                "pcx"},
    {"Tagged Image File Format (*.TIF)",        "tif"},
    {"ASCII bitmap format(*.ppm)(*.pgm)(*.pbm)", "ppm pgm pbm"},
    {"WebP (*.WEBP)",                           "webp"},
    {"AV1 Image File (*.AVIF)",                 "avif"},
    {"JPEG XL (*.JXL)",                         "jxl"},
};
// clang-format on

/// Other extensions by which files of a format go.
struct OtherName {
    std::string_view extension, usual;
};
inline constexpr OtherName kOtherNames[] = {{"jpeg", "jpg"},  {"jpe", "jpg"}, {"jfif", "jpg"}, {"tiff", "tif"},
                                            {"heif", "heic"}, {"svgz", "svg"}}; // and dialogs list them with it

/// The extension, in lower case, of the format's row.
constexpr std::string_view usualExtension(std::string_view extension)
{
    const auto* found = std::ranges::find(kOtherNames, extension, &OtherName::extension);
    return found == std::end(kOtherNames) ? extension : found->usual;
}

/// Finds a format by an extension in lower case; null when there is none.
constexpr const Format* findFormat(std::string_view extension)
{
    const auto* found = std::ranges::find(kFormats, usualExtension(extension), &Format::extension);
    return found == std::end(kFormats) ? nullptr : found;
}
/// Finds it by the extension of a path.
const Format* formatOf(const QString& path);

/// The part of the file's name after the last dot, in lower case.
QString extensionOf(const QString& path);
/// The path, with the extension added if its name has none.
QString withExtension(const QString& path, const QString& extension);

/// The path under the ending of a format: "a.jpg" becomes "a.png", "a" and "a.2" become "a.png" and "a.2.png". Another
/// name of the format is as good.
QString withEnding(const QString& path, const QString& extension);

/// The kinds of picture by the names that users know: what the browser shows as a picture, what a preview calls it, and
/// the list of file types.
struct Family {
    std::string_view patterns; // "*.bmp; *.dib"
    std::string_view name;

    constexpr bool holds(std::string_view extension) const
    {
        for (std::size_t from = 0; from < patterns.size();) {
            const std::size_t end = std::min(patterns.find(';', from), patterns.size());
            if (patterns.substr(from + 2, end - from - 2) == extension) return true;
            from = end + 2;
        }
        return false;
    }
};

// clang-format off
inline constexpr Family kFamilies[] = {
    {"*.bmp; *.dib",  "Windows Bitmap"},
    {"*.emf; *.wmf",  "Meta Files"},
    {"*.gif",         "Graphical Interface Format"},
    {"*.jpg; *.jpeg", "Independent JPEG group"},
    {"*.png",         "Portable Network Group"},
    {"*.pcx",         "ZSoft Paintbrush Format"},
    {"*.wbmp",        "Wireless Bitmap"},
    {"*.pbm",         "Portable Bitmap"},
    {"*.pgm",         "Portable Graymap"},
    {"*.ppm",         "Portable Pixelmap"},
    {"*.ico",         "Windows Icon"},
    {"*.psd",         "Photoshop"},
    {"*.jng",         "JPEG Network Graphics"},
    {"*.mng",         "Multiple Network Graphics"},
    {"*.tif",         "Tagged Image File Format"},
    {"*.koa",         "Commodore 64 Koala format"},
    {"*.pcd",         "Kodak PhotoCD"},
    {"*.ras",         "Sun Rasterfile"},
    {"*.tga",         "Targa files"},
    {"*.cut",         "Dr.Halo bitmap"},
    {"*.iff",         "Interchanged File Format"},
    {"*.lbm",         "Deluxe Paint package"},
    {"*.webp",        "WebP"},
    {"*.heic; *.heif", "High Efficiency Image File"},
    {"*.avif",        "AV1 Image File"},
    {"*.jxl",         "JPEG XL"},
    {"*.svg",         "Scalable Vector Graphics"},
    {"*.dng; *.cr2; *.nef; *.arw; *.raf; *.orf; *.rw2", "Camera Files"},
};
// clang-format on

/// The family of the path's extension in any case; null when it isn't a picture's.
const Family* familyOf(const QString& path);

constexpr bool hasFamily(const Format& format)
{
    return std::ranges::any_of(kFamilies, [&](const Family& each) { return each.holds(format.extension); });
}
// Every format belongs to a family, except cursors.
static_assert(std::ranges::all_of(kFormats, [](const Format& f) { return hasFamily(f) == (f.extension != "cur"); }),
              "a format that the browser doesn't know: add its row to kFamilies in src/fileio/formats.h");

/// "photo.jpg is a PNG picture"; empty where the name says so, too. format: the extension of the format that the file
/// has, or empty where that is unknown.
QString otherKind(const QString& name, const QString& format);

/// The filters of the file dialogs, in the form of seams/Dialogs.h.
QString openFilter();
QString saveFilter();

/// The name and extension to pass to savePicture, and the file that it will write.
struct SaveTarget {
    QString name, extension, file;
};
SaveTarget saveTargetOf(const QString& path);

} // namespace velara
