// TIFFs whose strips or tiles several threads decode, against what one thread makes of them.
#include "fileio/decode/decode.h"
#include "fileio/decode/libraries/tiffTogether.h"
#include "withHelpers.h"
#include <QString>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <tiffio.h>

namespace velara::decode {

namespace {

constexpr std::uint32_t kWidth = 801, kHeight = 700;

struct Kind {
    const char* name;
    int compression, samples, bits, photometric, planar;
    std::uint32_t rows; // in a strip; of a tile, which is a square
    bool isTiled;
};
// clang-format off
constexpr int kGrey = PHOTOMETRIC_MINISBLACK, kRgb = PHOTOMETRIC_RGB, kInks = PHOTOMETRIC_SEPARATED, kYcc = PHOTOMETRIC_YCBCR;
constexpr int kOne = PLANARCONFIG_CONTIG, kPlanes = PLANARCONFIG_SEPARATE;
constexpr Kind kKinds[] = {
    {"LZW",                 COMPRESSION_LZW,           3,  8, kRgb,  kOne,    16, false},
    {"LZW in tiles",        COMPRESSION_LZW,           3,  8, kRgb,  kOne,    64, true},
    {"LZW of 16 bits",      COMPRESSION_LZW,           3, 16, kRgb,  kOne,     9, false},
    {"deflate",             COMPRESSION_ADOBE_DEFLATE, 3,  8, kRgb,  kOne,     1, false},
    {"deflate in tiles",    COMPRESSION_ADOBE_DEFLATE, 3, 16, kRgb,  kOne,   128, true},
    {"deflate in planes",   COMPRESSION_DEFLATE,       3, 16, kRgb,  kPlanes, 50, false},
    {"planes of tiles",     COMPRESSION_ADOBE_DEFLATE, 3,  8, kRgb,  kPlanes, 96, true},
    {"real grey",           COMPRESSION_ADOBE_DEFLATE, 1, 32, kGrey, kOne,    20, false},
    {"inks",                COMPRESSION_LZW,           4,  8, kInks, kOne,    33, false},
    {"PackBits",            COMPRESSION_PACKBITS,      3,  8, kRgb,  kOne,    37, false},
    {"JPEG",                COMPRESSION_JPEG,          3,  8, kRgb,  kOne,    16, false},
    {"JPEG of inks in tiles",  COMPRESSION_JPEG,          4,  8, kInks, kOne,    48, true},
    {"JPEG of YCbCr",       COMPRESSION_JPEG,          3,  8, kYcc,  kOne,    32, false},
    {"tiles of YCbCr",      COMPRESSION_JPEG,          3,  8, kYcc,  kOne,   112, true},
};
// clang-format on

/// Smooth with noise, so that every compression has something to do.
std::vector<std::uint8_t> anyBytes(std::size_t size, std::uint32_t seed)
{
    std::mt19937 random(seed);
    std::vector<std::uint8_t> bytes(size);
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>((i / 90 + random() % 5) & 0x3f);
    return bytes;
}

/// Tables of JPEG: beside the streams, or in each.
std::string written(const Kind& kind, int tablesApart = JPEGTABLESMODE_QUANT | JPEGTABLESMODE_HUFF)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath("a.tif").toStdString();
    TIFF* tiff = TIFFOpen(path.c_str(), "wl");
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, kWidth);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, kHeight);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, kind.samples);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, kind.bits);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, kind.photometric);
    TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, kind.bits == 32 ? SAMPLEFORMAT_IEEEFP : SAMPLEFORMAT_UINT);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, kind.planar);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, kind.compression);
    if (kind.compression == COMPRESSION_JPEG) TIFFSetField(tiff, TIFFTAG_JPEGTABLESMODE, tablesApart);
    if (kind.photometric == kYcc) TIFFSetField(tiff, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
    if (kind.isTiled) TIFFSetField(tiff, TIFFTAG_TILEWIDTH, kind.rows);
    TIFFSetField(tiff, kind.isTiled ? TIFFTAG_TILELENGTH : TIFFTAG_ROWSPERSTRIP, kind.rows);
    const std::uint32_t pieces = kind.isTiled ? TIFFNumberOfTiles(tiff) : TIFFNumberOfStrips(tiff);
    const auto write = kind.isTiled ? TIFFWriteEncodedTile : TIFFWriteEncodedStrip;
    for (std::uint32_t i = 0; i < pieces; ++i) {
        const std::uint32_t top = i % ((kHeight - 1) / kind.rows + 1) * kind.rows;
        auto bytes =
            anyBytes(static_cast<std::size_t>(kind.isTiled ? TIFFTileSize(tiff)
                                                           : TIFFVStripSize(tiff, std::min(kind.rows, kHeight - top))),
                     i);
        write(tiff, i, bytes.data(), static_cast<tmsize_t>(bytes.size()));
    }
    TIFFClose(tiff);
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

FileBytes bytesOf(const std::string& file) { return FileBytes(std::vector<std::uint8_t>(file.begin(), file.end())); }

/// What becomes of a file: its rows up to a fault, and what is said of it.
struct Outcome {
    std::vector<std::uint8_t> rows;
    std::string words;
    bool operator==(const Outcome&) const = default;
};

Outcome outcomeOf(const std::string& file)
{
    Outcome all;
    const Decoded picture = decodePicture(bytesOf(file), "tif", {.srgb = false});
    all.words = picture.reason.toStdString();
    std::vector<Pixel> row(static_cast<std::size_t>(picture.width));
    try {
        for (int y = 0; y < picture.height; ++y) {
            picture.row(y, row.data());
            const auto* bytes = reinterpret_cast<const std::uint8_t*>(row.data());
            all.rows.insert(all.rows.end(), bytes, bytes + row.size() * sizeof row[0]);
        }
    } catch (const Damage& damage) {
        all.words += damage.what();
    }
    return all;
}

struct Trial {
    std::string name, file;
    bool isTogether; // when whole
    Outcome alone{};
};

/// Of the first of the 32-bit numbers of a tag.
std::size_t placeOf(const FileBytes& file, std::uint16_t tag)
{
    std::size_t at = file.little32(4) + 2;
    while (file.little16(at) != tag) at += 12;
    return file.little32(at + 8);
}

/// The file as it is; with a part in the middle overwritten, some bits changed, a strip or tile that lies behind the
/// end.
void addTrials(std::vector<Trial>& trials, const std::string& name, const std::string& file, const Kind& kind,
               bool isTogether)
{
    const auto add = [&](const std::string& what) -> std::string& {
        return trials.emplace_back(name + what, file, isTogether).file;
    };
    add("");
    add(", overwritten").replace(file.size() / 2, 3000, 3000, '\0');
    const std::size_t places = placeOf(bytesOf(file), kind.isTiled ? TIFFTAG_TILEOFFSETS : TIFFTAG_STRIPOFFSETS);
    const auto behind = static_cast<std::uint32_t>(file.size() - 9);
    std::memcpy(add(", cut off").data() + places + 4 * 5, &behind, 4);
    for (std::uint32_t seed = 0; seed < 4; ++seed) {
        std::mt19937 random(seed);
        std::string& damaged = add(", damaged by seed " + std::to_string(seed));
        for (int i = 0; i < 3; ++i)
            damaged[8 + random() % (file.size() * 9 / 10)] ^= static_cast<char>(1 << random() % 8);
    }
}

/// Those of later streams become comments.
void keepFirstTables(std::string& file)
{
    for (std::size_t at = file.find("\xff\xda"); at + 1 < file.size(); ++at)
        if (file[at] == '\xff' && (file[at + 1] == '\xdb' || file[at + 1] == '\xc4')) file[at + 1] = '\xfe';
}

/// Codes of the first kind of LZW, which begin at the lowest bit: a new table for every hundred bytes.
std::string oldLzw(const std::vector<std::uint8_t>& bytes)
{
    constexpr std::size_t kBits = 9, kClear = 256;
    std::vector<std::size_t> codes;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i % 100 == 0) codes.push_back(kClear);
        codes.push_back(bytes[i]);
    }
    std::string packed(codes.size() * kBits / 8 + 1, '\0');
    for (std::size_t bit = 0; bit < codes.size() * kBits; ++bit)
        packed[bit / 8] = static_cast<char>(packed[bit / 8] | (codes[bit / kBits] >> bit % kBits & 1) << bit % 8);
    return packed;
}

/// All strips but the first one are one of the old kind; the library goes by the first one that it decodes.
void addOldStrips(std::vector<Trial>& trials, const Kind& kind)
{
    std::string file = written(kind);
    const std::size_t bytes = kWidth * kind.rows * 3, count = (kHeight - 1) / kind.rows;
    const std::string strip = oldLzw(anyBytes(bytes, 1));
    const std::size_t offsets = placeOf(bytesOf(file), TIFFTAG_STRIPOFFSETS);
    const std::size_t sizes = placeOf(bytesOf(file), TIFFTAG_STRIPBYTECOUNTS);
    for (std::size_t i = 1; i <= count; ++i) {
        const std::array<std::uint32_t, 2> put{static_cast<std::uint32_t>(file.size()),
                                               static_cast<std::uint32_t>(strip.size())};
        std::memcpy(file.data() + offsets + 4 * i, put.data(), 4);
        std::memcpy(file.data() + sizes + 4 * i, put.data() + 1, 4);
        file += strip;
    }
    trials.push_back({"old strips", file, false});
}

std::vector<Trial> allTrials()
{
    std::vector<Trial> trials;
    addOldStrips(trials, kKinds[0]);
    for (const Kind& kind : kKinds) {
        addTrials(trials, kind.name, written(kind), kind, true);
        if (kind.compression != COMPRESSION_JPEG) continue;
        std::string file = written(kind, 0);
        addTrials(trials, std::string(kind.name) + " with tables", file, kind, false);
        keepFirstTables(file);
        addTrials(trials, std::string(kind.name) + " with tables once", file, kind, false);
    }
    return trials;
}

bool isTogether(const std::string& file)
{
    const Tiff tiff({bytesOf(file)});
    return bandsTogether(tiff, TiffKind(tiff), {10, 1 << 20}) > 0;
}

} // namespace

TEST(TiffTogether, ThreadsMakeWhatOneMakes)
{
    std::vector<Trial> trials = allTrials();
    for (Trial& trial : trials) trial.alone = outcomeOf(trial.file);
    withHelpers([&] {
        for (const Trial& trial : trials) {
            const Outcome together = outcomeOf(trial.file);
            EXPECT_EQ(together.words, trial.alone.words) << trial.name;
            EXPECT_TRUE(together.rows == trial.alone.rows) << trial.name;
            const bool isWhole = trial.name.find(',') == trial.name.npos;
            EXPECT_TRUE(!isWhole || isTogether(trial.file) == trial.isTogether) << trial.name;
        }
    });
}

} // namespace velara::decode
