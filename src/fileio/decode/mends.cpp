#include "fileio/decode/mends.h"

namespace velara::decode {

void mendJpeg(FileBytes& file)
{
    enum Marker : std::uint8_t {
        App0 = 0xe0,
        App9 = 0xe9,
        App14 = 0xee,
        App15 = 0xef,
        Comment = 0xfe,
        Scan = 0xda,
        EndOfImage = 0xd9
    };
    // Needed for the colours: App0 (JFIF) and App14 (Adobe). App9 has no known use.
    const auto isMetadata = [](std::uint8_t marker) {
        return (marker > App0 && marker <= App15 && marker != App14) || marker == Comment;
    };
    const std::span<std::uint8_t> bytes = file.bytes();
    for (std::size_t at = 2; at + 4 <= bytes.size() && bytes[at] == 0xff;) {
        std::uint8_t& marker = bytes[at + 1];
        if (marker == 0xff) { // fill bytes before the marker
            ++at;
            continue;
        }
        if (marker == Scan) break;
        if (isMetadata(marker)) marker = App9;
        at += 2 + file.big16(at + 2);
    }
    if (!file.startsWith("\xff\xd8")) return;
    std::vector<std::uint8_t> ended(bytes.begin(), bytes.end());
    ended.insert(ended.end(), {0xff, EndOfImage});
    file.replace(std::move(ended));
}

} // namespace velara::decode
