// The formats that a person browses for, by the names they know: what the browser shows as a picture, what a preview
// calls it, and the list of file types.
#pragma once
#include "fileio/formats.h"

namespace velara {

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
};
// clang-format on

/// Of the path's extension in any case; null where that is no picture's.
inline const Family* familyOf(const QString& path)
{
    const std::string extension = extensionOf(path).toStdString();
    const auto* found = std::ranges::find_if(kFamilies, [&](const Family& each) { return each.holds(extension); });
    return extension.empty() || found == std::end(kFamilies) ? nullptr : found;
}

constexpr bool hasFamily(const Format& format)
{
    return std::ranges::any_of(kFamilies, [&](const Family& each) { return each.holds(format.extension); });
}
// A format is browsed for under some name; cursors alone are not.
static_assert(std::ranges::count_if(kFormats, hasFamily) == std::ssize(kFormats) - 1);

} // namespace velara
