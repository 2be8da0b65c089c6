// The MIME types of the formats, as the desktop's database names them; file managers offer the editor for these. The
// two types that the database lacks are declared by our package.
#pragma once
#include "fileio/formats.h"

namespace velara {

struct MimeType {
    std::string_view extension; // of the format's row
    std::string_view type;
    std::string_view comment = {}; // of one that is ours to declare
    bool hasThumbnail = false;     // made by us, as usual desktops make none
};

// clang-format off
inline constexpr MimeType kMimeTypes[] = {
    {"bmp",  "image/bmp"},
    {"wbmp", "image/vnd.wap.wbmp",         {}, true},
    {"dib",  "image/bmp"},
    {"wmf",  "image/wmf",                  {}, true},
    {"emf",  "image/emf",                  {}, true},
    {"gif",  "image/gif"},
    {"jpg",  "image/jpeg"},
    {"png",  "image/png"},
    {"pcx",  "image/vnd.zbrush.pcx",       {}, true},
    {"pbm",  "image/x-portable-bitmap"},
    {"pgm",  "image/x-portable-graymap"},
    {"ppm",  "image/x-portable-pixmap"},
    {"ico",  "image/vnd.microsoft.icon"},
    {"cur",  "image/x-win-bitmap"},
    {"psd",  "image/vnd.adobe.photoshop",  {}, true},
    {"jng",  "image/x-jng"}, // .jng goes to the BMP reader, so that there is nothing to show
    {"mng",  "video/x-mng",                {}, true},
    {"tif",  "image/tiff"},
    {"koa",  "image/x-koala",              "Koala Painter picture", true},
    {"pcd",  "image/x-photo-cd",           {}, true},
    {"ras",  "image/x-cmu-raster",         {}, true},
    {"tga",  "image/x-tga"},
    {"cut",  "image/x-dr-halo-cut",        "Dr. Halo picture", true},
    {"iff",  "image/x-ilbm",               {}, true},
    {"lbm",  "image/x-ilbm",               {}, true},
    {"webp", "image/webp"},
    {"heic", "image/heif"},
    {"avif", "image/avif"},
    {"jxl",  "image/jxl"},
    {"svg",  "image/svg+xml"},
    {"dng",  "image/x-adobe-dng"},
    {"cr2",  "image/x-canon-cr2"},
    {"nef",  "image/x-nikon-nef"},
    {"arw",  "image/x-sony-arw"},
    {"raf",  "image/x-fuji-raf"},
    {"orf",  "image/x-olympus-orf"},
    {"rw2",  "image/x-panasonic-rw2"},
};
// clang-format on

static_assert(std::ranges::equal(kMimeTypes, kFormats, {}, &MimeType::extension, &Format::extension),
              "each format has its MIME type, in the same order: add its row to src/fileio/mimeTypes.h");

} // namespace velara
