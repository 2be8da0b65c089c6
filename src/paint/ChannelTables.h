// New values of pixels by channel and old value.
#pragma once
#include "pixels/Bits.h"
#include <array>
#include <cstdint>
#include <vector>

namespace velara {

class ChannelTables {
  public:
    using Table = std::array<std::uint8_t, 256>;

    explicit ChannelTables(const std::array<Table, 3>& tables);
    /// Changes count pixels in place; fourth bytes stay.
    void apply(Pixel* pixels, int count) const;

  private:
    std::array<Table, 3> tables_;
    // Two channels a look-up, which is twice as fast over a whole picture; empty where vectors look up.
    std::vector<std::uint16_t> pairs_;
    std::array<std::uint32_t, 256> reds_;
};

} // namespace velara
