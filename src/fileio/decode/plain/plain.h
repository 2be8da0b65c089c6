// Readers of the formats that need no library. All read within the bytes of the file; what is missing at its end is
// black unless said otherwise, and told as cut off.
#pragma once
#include "fileio/decode/decode.h"

namespace velara::decode {

/// 1, 4, 8, 16, 24 and 32 bits, run-length encoded or with colour masks, by every header but that of OS/2 2.
Decoded readBmp(FileBytes& file);
Decoded readCut(FileBytes& file);
/// ILBM and PBM, up to 8 planes or 24; pixels are the indices of their planes.
Decoded readIff(FileBytes& file);
Decoded readKoala(FileBytes& file);
Decoded readPcx(FileBytes& file);
/// P1 to P6, with up to 16 bits a sample.
Decoded readPnm(FileBytes& file);
Decoded readRas(FileBytes& file);
Decoded readTga(FileBytes& file);
Decoded readWbmp(FileBytes& file);

} // namespace velara::decode
