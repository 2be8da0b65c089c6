// Writes 24-bit ZSoft PCX files. There is no reader here: PCX files are read by FreeImage.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

namespace velara {

class PCX {
  public:
    /// The header and the planes of bits, run-length encoded when Compress is true. A longer file of that name keeps
    /// its tail behind the new data. Reports nothing; false when it could not be written, and then the old file is
    /// whole. goOn is asked now and then; no ends it as a failure.
    bool SavePCXinFile(const QString& FileName, const Bits& bits, bool Compress,
                       const std::function<bool()>& goOn = {});
    /// Why it could not, as OutputFile::error().
    int error = 0;

    /// The encoder: runs of up to 63 equal bytes, across rows and planes, as 0xC0 + length and the byte; single bytes
    /// below 0xC0 as they are.
    static std::vector<std::uint8_t> encode(const std::vector<std::uint8_t>& data);
};

} // namespace velara
