#include "fileio/decode/libraries/tiffTogether.h"
#include "fileio/decode/cage/Helpers.h"
#include <algorithm>
#include <cstring>

namespace velara::decode {

namespace {

constexpr std::uint64_t kLeastBytes = 1 << 20;     // of the pixels: waking the threads has to pay
constexpr std::uint64_t kBytesForThread = 1 << 20; // decoded before the rows are taken; fits into caches
constexpr std::uint64_t kMostBytes = 64ULL << 20;  // of the bands in memory
constexpr std::uint32_t kMostPieces = 1 << 16;     // strips or tiles: each thread has a list of its own

struct Piece {
    Span bytes;
    std::uint32_t width, height; // in pixels
};

bool always(const Piece&) { return true; }

/// A strip of the old kind, whose codes begin at the other end of a byte, changes how the library reads all later ones.
bool isNewLzw(const Piece& piece) { return !piece.bytes.empty() && piece.bytes[0] != 0; }

/// The library keeps the tables of one stream for the next ones, and what a stream too small leaves out shows what was
/// decoded before it.
bool isJpegWithoutTables(const Piece& piece)
{
    constexpr std::uint8_t kFrame = 0xc0, kExtended = 0xc1, kHuffman = 0xc4, kQuantisation = 0xdb;
    const std::uint8_t *at = piece.bytes.data(), *end = at + piece.bytes.size();
    bool isLarge = false;
    const auto big16 = [](const std::uint8_t* from) { return std::uint32_t{from[0]} << 8 | from[1]; };
    while (end - at >= 9 &&
           (at = static_cast<const std::uint8_t*>(std::memchr(at, 0xff, static_cast<std::size_t>(end - at) - 8)))) {
        const std::uint8_t mark = *++at;
        if (mark == kHuffman || mark == kQuantisation) return false;
        if (mark != kFrame && mark != kExtended) continue;
        if (isLarge) return false; // of two frames, which one counts?
        isLarge = big16(at + 4) >= piece.height && big16(at + 6) >= piece.width;
        if (!isLarge) return false;
    }
    return isLarge;
}

/// By compression: what is decoded the same whatever the library has decoded before.
constexpr struct {
    std::uint16_t compression;
    bool (*standsAlone)(const Piece& piece);
} kKinds[] = {
    {COMPRESSION_LZW, isNewLzw},    {COMPRESSION_ADOBE_DEFLATE, always},
    {COMPRESSION_DEFLATE, always},  {COMPRESSION_JPEG, isJpegWithoutTables},
    {COMPRESSION_PACKBITS, always}, {COMPRESSION_ZSTD, always},
};

/// Strip or tile number i.
Piece pieceOf(const Tiff& tiff, const TiffKind& kind, std::uint32_t i)
{
    Piece piece{{}, kind.width, 0};
    if (kind.isTiled) {
        piece.width = tiff.number<std::uint32_t>(TIFFTAG_TILEWIDTH, 0);
        piece.height = tiff.number<std::uint32_t>(TIFFTAG_TILELENGTH, 0);
    } else {
        const std::uint32_t rows = std::min(tiff.number(TIFFTAG_ROWSPERSTRIP, kind.height), kind.height);
        const std::uint32_t inPlane = (kind.height - 1) / rows + 1;
        piece.height = std::min(rows, kind.height - i % inPlane * rows);
    }
    const std::uint64_t size = tiff.file().size(), from = std::min(TIFFGetStrileOffset(tiff.get(), i), size);
    piece.bytes = tiff.file().subspan(from, std::min(TIFFGetStrileByteCount(tiff.get(), i), size - from));
    return piece;
}

bool standAlone(const Tiff& tiff, const TiffKind& kind)
{
    const auto compression = tiff.number<std::uint16_t>(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    const auto* row = std::ranges::find(kKinds, compression, [](const auto& each) { return each.compression; });
    const std::uint32_t pieces = kind.isTiled ? TIFFNumberOfTiles(tiff.get()) : TIFFNumberOfStrips(tiff.get());
    if (row == std::end(kKinds) || pieces > kMostPieces) return false;
    // Where bytes have changed places, those left unwritten can't be told.
    if (tiff.number<std::uint16_t>(TIFFTAG_PREDICTOR, PREDICTOR_NONE) == PREDICTOR_FLOATINGPOINT) return false;
    std::uint64_t left = tiff.file().size(); // strips that share bytes aren't looked through again and again
    for (std::uint32_t i = 0; i < pieces; ++i) {
        const Piece piece = pieceOf(tiff, kind, i);
        if (piece.bytes.size() > left || !row->standsAlone(piece)) return false;
        left -= piece.bytes.size();
    }
    return true;
}

} // namespace

std::uint32_t bandsTogether(const Tiff& tiff, const TiffKind& kind, TiffBands bands)
{
    const std::uint64_t threads = threadsTogether();
    if (threads == 1 || bands.count < 2 || bands.bytes * bands.count < kLeastBytes) return 0;
    if (2 * bands.bytes * threads > kMostBytes || !standAlone(tiff, kind)) return 0;
    const std::uint64_t wanted = threads * std::max<std::uint64_t>(kBytesForThread / bands.bytes, 1);
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(wanted, bands.count));
}

} // namespace velara::decode
