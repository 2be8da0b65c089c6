// Writes 24-bit ZSoft PCX files. They are read in the child, not here.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

namespace velara {

class PCX {
  public:
    /// Writes the header and the planes of bits, run-length encoded if Compress is true. A longer file of that name
    /// keeps its tail after the new data. No messages; false when it could not be written, and then the old file is
    /// intact. goOn is called now and then; false ends it as a failure.
    bool SavePCXinFile(const QString& FileName, const Bits& bits, bool Compress,
                       const std::function<bool()>& goOn = {});
    /// Why it failed, as OutputFile::error().
    int error = 0;

    /// The encoder: runs of up to 63 equal bytes, across rows and planes, as 0xC0 + length and the byte; single bytes
    /// below 0xC0 are stored unchanged.
    static std::vector<std::uint8_t> encode(const std::vector<std::uint8_t>& data);
};

} // namespace velara
