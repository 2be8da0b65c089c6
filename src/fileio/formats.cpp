#include "fileio/formats.h"
#include <QFileInfo>
#include <QStringList>
#include <ranges>
#include <span>

namespace velara {

namespace {

/// A line of a file dialog's list of kinds.
struct Kinds {
    std::string_view caption;
    std::string_view extensions; // split by blanks
};

// clang-format off
constexpr Kinds kOpened[] = {
    {"All Supported Picture Formats", "bmp wbmp dib wmf emf gif jpg png pcx pbm pgm ppm ico psd jng mng tif koa pcd ras "
                                      "tga cut iff lbm"},
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
};

constexpr Kinds kSaved[] = {
    {"All Supported graphic formats ",          "bmp gif jpg png tga pcx tif pbm pgm ppm"},
    {"Windows Bitmap Files (*.bmp)",            "bmp"},
    {"Graphical Interface Format (*.GIF)",      "gif"},
    {"Independent JPEG Group (*.JPG)",          "jpg"},
    {"Portable Network Graphics (*.PNG)",       "png"},
    {"Targa files (*.TGA)",                     "tga"},
    {"Zsoft Paintbrush (*.PCX)",                "pcx"},
    {"Tagged Image File Format (*.TIF)",        "tif"},
    {"ASCII bitmap format(*.ppm)(*.pgm)(*.pbm)", "ppm pgm pbm"},
};
// clang-format on

/// How often the extension stands in the list: as a kind of its own, and in the first line, which has them all.
constexpr int countOf(std::string_view extension, std::span<const Kinds> kinds)
{
    int count = 0;
    for (const Kinds& line : kinds)
        for (const auto part : std::views::split(line.extensions, ' '))
            if (std::ranges::equal(part, extension)) ++count;
    return count;
}
static_assert(std::ranges::all_of(kFormats, [](const Format& f) {
    return countOf(f.extension, kOpened) == (f.extension == "cur" ? 0 : 2) &&
           countOf(f.extension, kSaved) == (f.saved() ? 2 : 0);
}));

QString filterOf(std::span<const Kinds> kinds)
{
    QStringList parts;
    for (const Kinds& line : kinds) {
        const QString extensions = QString::fromUtf8(line.extensions.data(), qsizetype(line.extensions.size()));
        parts << QString::fromUtf8(line.caption.data(), qsizetype(line.caption.size()))
              << QStringLiteral("*.") + extensions.split(u' ').join(QStringLiteral(";*."));
    }
    return parts.join(u'|');
}

} // namespace

QString extensionOf(const QString& path) { return QFileInfo(path).suffix().toLower(); }

const Format* formatOf(const QString& path) { return findFormat(extensionOf(path).toStdString()); }

const QString& openFilter()
{
    static const QString filter = filterOf(kOpened);
    return filter;
}

const QString& saveFilter()
{
    static const QString filter = filterOf(kSaved);
    return filter;
}

SaveTarget saveTargetOf(const QString& path)
{
    const QString extension = extensionOf(path);
    const Format* format = formatOf(path);
    if (!format || format->saving != Saving::AsAnymap) return {path, extension, path};
    const QString name = path.chopped(extension.size());
    return {name, QStringLiteral("pnm"), name + QStringLiteral("ppm")};
}

} // namespace velara
