#include "fileio/writers/PCX.h"
#include "support/files.h"
#include "support/pictures.h"

namespace velara {

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes operator+(Bytes a, const Bytes& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Bytes written(const Bits& bits, bool compress)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.pcx");
    EXPECT_TRUE(PCX().SavePCXinFile(path, bits, compress));
    const QByteArray contents = fileBytes(path);
    return Bytes(contents.begin(), contents.end());
}

Bytes header(std::uint8_t encoding, std::uint8_t width, std::uint8_t height, std::uint8_t bytesPerLine)
{
    return Bytes{10, 5, encoding, 8, 1, 0, 1, 0, width, 0, height, 0, 96, 0, 96, 0} + Bytes(48, 0) +
           Bytes{0, 3, bytesPerLine, 0, 0, 0} + Bytes(58, 0);
}

} // namespace

TEST(PCX, EncodesRuns)
{
    const std::pair<Bytes, Bytes> kCases[] = {
        {{}, {}},
        {{7}, {7}},
        {{191}, {191}},
        {{192}, {0xc1, 192}},
        {{1, 2, 2, 3}, {1, 0xc2, 2, 3}},
        {Bytes(63, 5), {0xff, 5}},
        {Bytes(64, 5), {0xff, 5, 5}},
        {Bytes(64, 200), {0xff, 200, 0xc1, 200}},
        {Bytes(65, 5), {0xff, 5, 0xc2, 5}},
        {Bytes(127, 5), {0xff, 5, 0xff, 5, 5}},
    };
    for (const auto& [data, encoded] : kCases) EXPECT_EQ(PCX::encode(data), encoded);
}

TEST(PCX, LaysTheFileOut)
{
    Bits bits(3, 2);
    for (int i = 0; i < 6; ++i)
        bits.at(i % 3, i / 3) = {{std::uint8_t(10 + i), std::uint8_t(20 + i), std::uint8_t(30 + i), 99}};
    const Bytes planes = {30, 31, 32, 0, 20, 21, 22, 0, 10, 11, 12, 0, // the first row: red, green, blue
                          33, 34, 35, 0, 23, 24, 25, 0, 13, 14, 15, 0};
    EXPECT_EQ(written(bits, false), header(0, 3, 2, 4) + planes);
    EXPECT_EQ(written(bits, true), header(1, 3, 2, 4) + planes);
    // One byte of padding in a row of 24-bit pixels: it and the start of the next row form one more pixel.
    const Bytes column = {6, 5, 5, 200, 200, 0, 6, 0, 5, 0, 200, 0};
    EXPECT_EQ(written(flatBits(1, 2, 200, 5, 6, 9), false), header(0, 1, 2, 2) + column);
    const Bytes oneRun = {0xe4, 9}; // it continues into the next row and plane
    EXPECT_EQ(written(flatBits(4, 3, 9, 9, 9), true), header(1, 4, 3, 4) + oneRun);
}

// The margin of a picture has no effect, whatever it contains.
TEST(PCX, TakesNothingFromBeyondThePicture)
{
    for (int width = 1; width < 9; ++width) {
        const Bits clean = randomBits(width, 3, unsigned(width));
        Bits marked = clean;
        for (int y = -2; y < 5; ++y)
            for (int x = -2; x < width + 2; ++x)
                if (x < 0 || x >= width || y < 0 || y > 2) marked.at(x, y) = {{99, 98, 97, 96}};
        EXPECT_EQ(written(marked, false), written(clean, false)) << width;
    }
}

TEST(PCX, CanBeStoppedWhileItWrites)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.pcx");
    int asked = 0;
    EXPECT_FALSE(PCX().SavePCXinFile(path, randomBits(900, 900, 5), true, [&] { return ++asked < 3; }));
    EXPECT_EQ(3, asked);
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace velara
