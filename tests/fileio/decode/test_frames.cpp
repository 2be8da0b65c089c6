// Frames, and what modern pictures carry beside their pixels.
#include "fileio/decode/decode.h"
#include <gtest/gtest.h>

namespace velara::decode {

namespace {

/// Two frames, red and blue.
const QByteArray kTwoFrames = QByteArray::fromHex(
    "524946468800000057454250565038580a000000020000000f00000f0000414e494d06000000ffffffff0000414e4d462a00"
    "00000000000000000f00000f0000640000025650384c110000002f0fc003000750942257a1ff8188e87f0000414e4d462a00"
    "00000000000000000f00000f0000640000005650384c110000002f0fc003000750942a14b9ff8188e87f0000");

Decoded frame(int page)
{
    wantedPage = page;
    Decoded picture = decodePicture(FileBytes(std::vector<std::uint8_t>(kTwoFrames.begin(), kTwoFrames.end())), "webp");
    wantedPage = 0;
    return picture;
}

} // namespace

TEST(Frames, AreReadOneByOne)
{
    const Pixel wanted[] = {{{10, 40, 200, 0}}, {{200, 40, 10, 0}}};
    for (int page = 0; page < 2; ++page) {
        const Decoded picture = frame(page);
        ASSERT_EQ(picture.width, 16) << picture.reason.toStdString();
        EXPECT_EQ(picture.carried.pages, 2);
        std::vector<Pixel> row(16);
        picture.row(15, row.data());
        EXPECT_TRUE(row[15] == wanted[page]) << page;
    }
    EXPECT_EQ(frame(2).reason, "it has fewer pages");
}

} // namespace velara::decode
