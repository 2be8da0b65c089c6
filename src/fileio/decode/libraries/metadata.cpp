#include "fileio/decode/libraries/metadata.h"
#include <cstring>

namespace velara::decode {

bool takeName(Span& bytes, std::string_view name)
{
    if (bytes.size() < name.size() || std::memcmp(bytes.data(), name.data(), name.size()) != 0) return false;
    bytes = bytes.subspan(name.size());
    return true;
}

Span iptcIn(Span blocks)
{
    constexpr std::uint32_t kIptc = 0x0404;
    const auto evened = [](std::size_t length) { return length + length % 2; };
    while (takeName(blocks, "8BIM") && blocks.size() >= 3) {
        const std::uint32_t kind = blocks[0] << 8 | blocks[1];
        const std::size_t name = 2 + evened(1 + std::size_t{blocks[2]});
        if (blocks.size() < name + 4) break;
        blocks = blocks.subspan(name);
        const std::size_t length = std::uint32_t{blocks[0]} << 24 | blocks[1] << 16 | blocks[2] << 8 | blocks[3];
        blocks = blocks.subspan(4);
        if (length > blocks.size()) break;
        if (kind == kIptc) return blocks.first(length);
        blocks = blocks.subspan(std::min(evened(length), blocks.size()));
    }
    return {};
}

} // namespace velara::decode
