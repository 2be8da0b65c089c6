#include "fileio/writers/PCX.h"
#include "fileio/disk/OutputFile.h"
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cstring>

namespace velara {

namespace {

constexpr std::size_t kHeader = 128;

std::size_t evenWidth(const Bits& bits) { return static_cast<std::size_t>(bits.width() + bits.width() % 2); }

std::array<std::uint8_t, kHeader> headerOf(const Bits& bits, bool compressed)
{
    struct Field {
        std::size_t at;
        int value;
    };
    // clang-format off
    const Field bytes[] = {{0, 10},                 // manufacturer
                           {1, 5},                  // version
                           {2, compressed ? 1 : 0}, // bits per pixel and plane
                           {3, 8},                  // bits a pixel and plane
                           {65, 3}};                // planes
    const Field words[] = {{4, 1}, {6, 1},          // the window counts from 1
                           {8, bits.width()}, {10, bits.height()},
                           {12, 96}, {14, 96},      // dots an inch
                           {66, static_cast<int>(evenWidth(bits))}};
    // clang-format on
    std::array<std::uint8_t, kHeader> header{};
    for (const Field f : bytes) header[f.at] = static_cast<std::uint8_t>(f.value);
    for (const Field f : words) {
        header[f.at] = static_cast<std::uint8_t>(f.value);
        header[f.at + 1] = static_cast<std::uint8_t>(f.value >> 8);
    }
    return header;
}

/// The extra pixel of an odd row: the padding of a row of 24-bit pixels to a multiple of four bytes, and where that is
/// one byte, the start of the next row. It is never shown.
Pixel pixelBeyond(const Bits& bits, int y)
{
    const bool oneByteOfPadding = bits.width() * 3 % 4 == 3;
    if (!oneByteOfPadding || y == bits.maxY()) return {};
    const Pixel& next = bits.at(0, y + 1);
    return {{0, next.c[0], next.c[1], 0}};
}

/// A row: red, green and blue, each an even number of bytes.
void putPlanes(const Bits& bits, int y, std::vector<std::uint8_t>& planes)
{
    const std::size_t even = evenWidth(bits);
    planes.resize(3 * even);
    const auto put = [&](std::size_t x, const Pixel& pixel) {
        for (std::size_t plane = 0; plane < 3; ++plane) planes[plane * even + x] = pixel.c[2 - plane];
    };
    const Pixel* row = bits.row(y);
    for (int x = 0; x < bits.width(); ++x) put(static_cast<std::size_t>(x), row[x]);
    if (bits.width() % 2) put(even - 1, pixelBeyond(bits, y));
}

/// Encodes piece by piece; a run continues from one piece to the next.
class RunEncoder {
  public:
    void add(const std::vector<std::uint8_t>& data, std::vector<std::uint8_t>& encoded)
    {
        for (const std::uint8_t byte : data) {
            if (byte != value_ || run_ == kLongestRun) end(encoded);
            value_ = byte;
            ++run_;
        }
    }
    void end(std::vector<std::uint8_t>& encoded)
    {
        if (run_ == 0) return;
        if (run_ > 1 || value_ >= kRun) encoded.push_back(static_cast<std::uint8_t>(kRun + run_));
        encoded.push_back(value_);
        run_ = 0;
    }

  private:
    static constexpr int kLongestRun = 63;
    static constexpr std::uint8_t kRun = 0xc0;
    std::uint8_t value_ = 0;
    int run_ = 0;
};

/// The bytes of an older, longer file after length: they are kept.
QByteArray tailOf(const QString& path, qint64 length)
{
    QFile old(path);
    const bool isLonger = QFileInfo(path).isFile() && old.open(QIODevice::ReadOnly) && old.size() > length;
    return isLonger && old.seek(length) ? old.readAll() : QByteArray();
}

} // namespace

std::vector<std::uint8_t> PCX::encode(const std::vector<std::uint8_t>& data)
{
    RunEncoder encoder;
    std::vector<std::uint8_t> encoded;
    encoder.add(data, encoded);
    encoder.end(encoded);
    return encoded;
}

bool PCX::SavePCXinFile(const QString& FileName, const Bits& bits, bool Compress, const std::function<bool()>& goOn)
{
    OutputFile file(FileName);
    file.setGoOn(goOn);
    const auto write = [&file](const auto& bytes) { return file.write(bytes.data(), bytes.size()); };
    bool written = write(headerOf(bits, Compress));
    RunEncoder encoder;
    std::vector<std::uint8_t> row, encoded;
    for (int y = 0; y < bits.height() && written; ++y) {
        putPlanes(bits, y, row);
        encoded.clear();
        if (Compress) encoder.add(row, encoded);
        written = write(Compress ? encoded : row);
    }
    encoded.clear();
    encoder.end(encoded);
    written = written && write(encoded) && write(tailOf(FileName, file.tell())) && file.commit();
    error = file.error();
    return written;
}

} // namespace velara
