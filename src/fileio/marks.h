// The marks by which files of a format are known, whatever their names say. Formats without a mark aren't listed.
#pragma once
#include "fileio/formats.h"
#include <cstdint>
#include <span>

namespace velara {

struct FileMark {
    std::string_view extension; // of the format's row
    std::size_t at;             // bytes from the beginning
    std::string_view bytes;
};

// clang-format off
inline constexpr FileMark kMarks[] = { // the first that fits decides
    {"png",   0, {"\x89PNG\r\n\x1a\n", 8}},
    {"jpg",   0, "\xff\xd8\xff"},
    {"gif",   0, "GIF8"},
    {"cr2",   8, {"CR\2", 3}},
    {"rw2",   0, {"IIU\0", 4}},
    {"orf",   0, "IIRO"},
    {"orf",   0, "IIRS"},
    {"raf",   0, "FUJIFILM"},
    {"tif",   0, {"II*\0", 4}},
    {"tif",   0, {"MM\0*", 4}},
    {"webp",  8, "WEBPVP8"},
    {"avif",  4, "ftypavi"},
    {"heic",  4, "ftyphei"},
    {"heic",  4, "ftyphev"},
    {"heic",  4, "ftypmif1"},
    {"heic",  4, "ftypmsf1"},
    {"jxl",   0, {"\xff\x0a", 2}},
    {"jxl",   4, "JXL \r\n\x87\n"},
    {"psd",   0, "8BPS"},
    {"mng",   0, {"\x8aMNG\r\n\x1a\n", 8}},
    {"emf",  40, " EMF"},
    {"wmf",   0, "\xd7\xcd\xc6\x9a"},
    {"ras",   0, "\x59\xa6\x6a\x95"},
    {"ico",   0, {"\0\0\1\0", 4}},
    {"cur",   0, {"\0\0\2\0", 4}},
    {"svg",   0, "<svg"},
    {"svg",   0, "<?xml"},
    {"bmp",   0, "BM"},
    {"iff",   0, "FORM"},
    {"pbm",   0, "P1"},
    {"pgm",   0, "P2"},
    {"ppm",   0, "P3"},
    {"pbm",   0, "P4"},
    {"pgm",   0, "P5"},
    {"ppm",   0, "P6"},
};
// clang-format on
// Counted instead of searched: under the sanitizers a pointer's null is not a constant expression.
static_assert(std::ranges::all_of(kMarks,
                                  [](const FileMark& mark) {
                                      return std::ranges::count(kFormats, mark.extension, &Format::extension) == 1;
                                  }),
              "a mark of an unknown format: see kFormats in src/fileio/formats.h");

constexpr std::size_t kMarkedBytes = 64; // all marks lie in the first ones

/// The extension of the format whose mark the bytes bear; empty when there is none.
constexpr std::string_view markOf(std::span<const std::uint8_t> bytes)
{
    const auto* found = std::ranges::find_if(kMarks, [&](const FileMark& mark) {
        return bytes.size() >= mark.at + mark.bytes.size() &&
               std::ranges::equal(mark.bytes, bytes.subspan(mark.at, mark.bytes.size()),
                                  [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
    });
    return found == std::end(kMarks) ? std::string_view() : found->extension;
}

} // namespace velara
