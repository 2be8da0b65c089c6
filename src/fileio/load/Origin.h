// The information in a thumbnail, which is a PNG file, about its original.
#pragma once
#include <cstdint>

namespace velara {

/// Zeros: unknown.
struct Origin {
    std::int64_t modified = 0; // seconds since 1970
    std::int32_t width = 0, height = 0;
};

} // namespace velara
