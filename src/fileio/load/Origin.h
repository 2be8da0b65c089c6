// What a thumbnail, which is a PNG file, says of the picture that it was made of.
#pragma once
#include <cstdint>

namespace velara {

/// Zeros: it says nothing.
struct Origin {
    std::int64_t modified = 0; // seconds since 1970
    std::int32_t width = 0, height = 0;
};

} // namespace velara
