// The writers of picture files: from a picture to the bytes of its file. Rows are packed in bands, so that no second
// copy of the picture is in memory. Each returns false when its bytes can't be taken or goesOn() says no, within 100
// ms.
#pragma once
#include "fileio/disk/OutputFile.h"
#include "reduce/reduceColours.h"

namespace velara {

constexpr double kUsualDots = 72; // per inch, of pictures that say nothing else

/// 24 bits a pixel, not compressed.
bool writeBmp(const Bits& picture, ByteSink& to);
/// 1, 4, 8, 16 (five bits a channel) or 24 bits a pixel, the least that holds it; false for others. The palette is
/// padded with black.
bool writeBmp(const ReducedPicture& picture, ByteSink& to);
/// 24 bits a pixel, not compressed, bottom row first.
bool writeTga(const Bits& picture, ByteSink& to);
/// A binary pixmap ("P6").
bool writePpm(const Bits& picture, ByteSink& to);

/// How well zlib looks for repetitions, 1 to 9.
enum PngEffort : int { kUsualEffort = 6, kBestEffort = 9 };
/// 24 bits a pixel.
bool writePng(const Bits& picture, int effort, ByteSink& to);
/// 8 bits a pixel, as greys where the palette is those.
bool writePng(const IndexedPicture& picture, int effort, ByteSink& to);

/// 24 bits a pixel, by LZW with differences.
bool writeTiff(const Bits& picture, OutputFile& to);

/// The quality of a JPEG is a class or 1 to 100 in the lower seven bits. 0 is the usual one, 75.
enum JpegQuality : int {
    kSuperbJpeg = 0x80,
    kGoodJpeg = 0x100,
    kNormalJpeg = 0x200,
    kAverageJpeg = 0x400,
    kBadJpeg = 0x800
};
/// Three channels, the chroma at half the width and height unless higher bits of `quality` say otherwise.
bool writeJpeg(const Bits& picture, int quality, ByteSink& to);

} // namespace velara
