// The writers of picture files: from a picture to the bytes of its file. Rows are packed in bands, so that no second
// copy of the picture is in memory. Each returns false when its bytes can't be taken or goesOn() says no, within 100
// ms.
#pragma once
#include "fileio/disk/OutputFile.h"
#include "fileio/writers/webp/WebpForm.h"
#include "reduce/reduceColours.h"
#include "seams/CameraData.h"

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
/// 24 bits a pixel. IPTC, for which there is no chunk, stands in a text as other programs write it.
bool writePng(const Bits& picture, int effort, ByteSink& to, const CameraData& camera = {});
/// 8 bits a pixel, as greys where the palette is those.
bool writePng(const IndexedPicture& picture, int effort, ByteSink& to, const CameraData& camera = {});

/// 24 bits a pixel, by LZW with differences, in the byte order of the EXIF. Of its first directory the file gets what
/// kTagsOfPicture names, of the others all.
bool writeTiff(const Bits& picture, OutputFile& to, const CameraData& camera = {});

/// The quality of a JPEG is a class or 1 to 100 in the lower seven bits. 0 is the usual one, 75.
enum JpegQuality : int {
    kSuperbJpeg = 0x80,
    kGoodJpeg = 0x100,
    kNormalJpeg = 0x200,
    kAverageJpeg = 0x400,
    kBadJpeg = 0x800
};
/// The percentage that such a number means, 1 to 100.
int percentOf(int quality);
/// Three channels, the chroma at half the width and height unless higher bits of `quality` say otherwise. What the
/// camera wrote is left out where it is too long for a segment of 65533 bytes; an XMP packet loses its padding first.
bool writeJpeg(const Bits& picture, int quality, ByteSink& to, const CameraData& camera = {});

/// Whether the format can hold it: at most 16383 pixels a side.
bool fitsWebp(const Bits& picture);
/// The chroma of one that isn't lossless is at half the width and height. Resolution, comment and IPTC stand in the
/// EXIF. Pictures of more than 2^20 pixels are made by a velara-encode.
bool writeWebp(const Bits& picture, const WebpForm& form, ByteSink& to, const CameraData& camera = {});

/// By a velara-encode, which is ended when goesOn() says no; quality 1 to 100. It gets a copy of the pixels, three
/// bytes each. Resolution, comment and IPTC stand in the EXIF. AVIF: from 90 on the chroma has all pixels, below that
/// half the width and height.
bool writeAvif(const Bits& picture, int quality, ByteSink& to, const CameraData& camera = {});
/// JPEG XL: 90 is a distance of 1, the smallest that an eye may notice; 100 is without loss.
bool writeJxl(const Bits& picture, int quality, ByteSink& to, const CameraData& camera = {});

} // namespace velara
