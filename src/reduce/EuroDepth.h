// EuroDepth: a picture as a display of lower depth shows it: each pixel mapped to the nearest colour of a fixed table
// without dithering, or reduced to the high bits of its channels.
#pragma once
#include "pixels/Bits.h"
#include "reduce/palettes.h"
#include <functional>

namespace velara {

/// Percent done; may throw to end the work.
using ReduceProgress = std::function<void(int percent)>;

/// True for 1, 4, 8, 15, 16, 24 and 32.
bool isColourDepth(int depth);

/// The table of a depth of 1, 4 or 8 bits: black and white, the 16 of VGA, the halftone palette; empty for others.
Palette tableOfDepth(int depth);

/// The whole picture at a depth. 1, 4, 8: the nearest of its table by squared distance, ties to the lowest index. 15
/// and 16 alike: five bits a channel, replicated into the low bits so that white stays white. Any other: unchanged. The
/// fourth bytes and the margin are kept.
Bits bitsAtDepth(const Bits& bits, int depth, const ReduceProgress& progress = {});

class EuroDepth {
  public:
    // Each writes the reduced source to target, or in place without one.
    void SetDepth_01Bit(Bits& Source, Bits* Target = nullptr) { set(1, Source, Target); }
    void SetDepth_04Bit(Bits& Source, Bits* Target = nullptr) { set(4, Source, Target); }
    void SetDepth_08Bit(Bits& Source, Bits* Target = nullptr) { set(8, Source, Target); }
    void SetDepth_15Bit(Bits& Source, Bits* Target = nullptr) { set(15, Source, Target); }
    void SetDepth_16Bit(Bits& Source, Bits* Target = nullptr) { set(16, Source, Target); }
    void SetDepth_24Bit_32K(Bits& Source, Bits* Target = nullptr) { set(24, Source, Target); }
    void SetDepth_24Bit_64k(Bits& Source, Bits* Target = nullptr) { set(32, Source, Target); }

    ReduceProgress Progress;

  private:
    void set(int depth, Bits& source, Bits* target)
    {
        (target ? *target : source) = bitsAtDepth(source, depth, Progress);
    }
};

} // namespace velara
