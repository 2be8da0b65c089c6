#include "fileio/decode/modern/modern.h"
#include <cstring>

namespace velara::decode {

std::vector<std::uint8_t> exifFrom(std::vector<std::uint8_t> bytes, std::size_t from)
{
    constexpr std::size_t kMark = 4, kFarthest = 16;
    for (std::size_t at = from; at + kMark <= bytes.size() && at <= from + kFarthest; ++at)
        if (std::memcmp(&bytes[at], "II*\0", kMark) == 0 || std::memcmp(&bytes[at], "MM\0*", kMark) == 0) {
            bytes.erase(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
            return bytes;
        }
    return {};
}

} // namespace velara::decode
