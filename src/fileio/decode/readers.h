// Shared by the readers of the formats. Each reads bytes in memory; decode.cpp lists them in its table.
#pragma once
#include "fileio/decode/FileBytes.h"
#include "fileio/decode/decode.h"

class QImage;

namespace velara::decode {

/// The rows of a picture, transparent pixels on white.
Decoded onWhite(const QImage& image);

/// fif is FreeImage's format number.
Decoded readByFreeImage(FileBytes& file, int fif);
/// format is the name of Qt's reader; drawn on white.
Decoded readByQt(FileBytes& file, const char* format);
/// The answer where wantedPage is beyond the last.
Decoded noSuchPage(int pages);

const char* const kCutOff = "it is cut off: its end is missing";
const char* const kTooBig = "it is wider or higher than 32767 pixels, or has more than 268 million pixels";
const char* const kTooMuchMemory = "it needs more memory than reading a picture may take";

} // namespace velara::decode
