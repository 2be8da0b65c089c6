#include "tools/fuzz/rawSeeds.h"
#include <QString>
#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace velara::fuzz {

namespace {

constexpr int kWidth = 64, kHeight = 48;

QByteArray number(std::uint64_t value, int bytes, bool isBig = false)
{
    QByteArray text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> 8 * (isBig ? bytes - 1 - i : i));
    return text;
}

/// What the sensor saw: a slope of 12 bits with some noise.
int sampleAt(int x, int y) { return (x * 37 + y * 53 + (x * 7919 + y * 104729) % 61) % 4096; }

/// Bits, the first one in the highest of a byte.
class BitWriter {
  public:
    void put(unsigned value, int count)
    {
        for (int i = count - 1; i >= 0; --i, ++used_) {
            if (used_ % 8 == 0) bytes_ += '\0';
            if (value >> i & 1) bytes_.back() = static_cast<char>(bytes_.back() | 0x80 >> used_ % 8);
        }
    }
    const QByteArray& bytes() const { return bytes_; }

  private:
    QByteArray bytes_;
    int used_ = 0;
};

QByteArray packed12()
{
    BitWriter bits;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) bits.put(static_cast<unsigned>(sampleAt(x, y)), 12);
    return bits.bytes();
}

QByteArray words(int shift = 0)
{
    QByteArray bytes;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) bytes += number(std::uint64_t(sampleAt(x, y)) << shift, 2);
    return bytes;
}

/// A lossless JPEG of two components side by side, each sample predicted by its left neighbour; all codes have four
/// bits.
QByteArray losslessJpeg()
{
    constexpr int kSymbols = 15;
    QByteArray file = QByteArray::fromHex("ffd8 ffc4 0022 00 0000000f000000000000000000000000");
    for (char i = 0; i < kSymbols; ++i) file += i;
    file += QByteArray::fromHex("ffc3 000e 0c") + number(kHeight, 2, true) + number(kWidth / 2, 2, true);
    file += QByteArray::fromHex("02 001100 011100 ffda 000a 02 0000 0100 01 00 00");
    BitWriter bits;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            const int before = x > 1 ? sampleAt(x - 2, y) : y > 0 ? sampleAt(x, y - 1) : 1 << 11;
            const int change = sampleAt(x, y) - before;
            const auto size = std::bit_width(static_cast<unsigned>(std::abs(change)));
            bits.put(static_cast<unsigned>(size), 4);
            bits.put(static_cast<unsigned>(change < 0 ? change - 1 : change), static_cast<int>(size));
        }
    for (const char byte : bits.bytes()) {
        file += byte;
        if (byte == '\xff') file += '\0';
    }
    return file + QByteArray::fromHex("ffd9");
}

enum Type { Byte = 1, Text = 2, Short = 3, Long = 4, Ratio = 5, Raw = 7, SignedRatio = 10 };

struct Entry {
    int tag;
    Type type;
    QByteArray value;
};

int sizeOf(Type type) { return type == Short ? 2 : type == Long ? 4 : type == Ratio || type == SignedRatio ? 8 : 1; }

Entry one(int tag, std::uint32_t value) { return {tag, Long, number(value, 4)}; }
Entry shorts(int tag, const std::vector<int>& values)
{
    QByteArray bytes;
    for (const int value : values) bytes += number(std::uint64_t(value), 2);
    return {tag, Short, bytes};
}
Entry text(int tag, const char* value) { return {tag, Text, QByteArray(value) + '\0'}; }
Entry ratios(int tag, Type type, const std::vector<int>& hundredths)
{
    QByteArray bytes;
    for (const int value : hundredths) bytes += number(static_cast<std::uint32_t>(value), 4) + number(100, 4);
    return {tag, type, bytes};
}

/// A little-endian directory as it stands at a place of the file, with its longer values behind it.
QByteArray directory(std::vector<Entry> entries, qsizetype at, std::uint32_t next = 0)
{
    std::ranges::sort(entries, {}, &Entry::tag);
    QByteArray head = number(entries.size(), 2), rest;
    const qsizetype behind = at + 2 + 12 * qsizetype(entries.size()) + 4;
    for (const Entry& entry : entries) {
        head += number(std::uint64_t(entry.tag), 2) + number(entry.type, 2);
        head += number(std::uint64_t(entry.value.size() / sizeOf(entry.type)), 4);
        if (entry.value.size() <= 4) {
            head += entry.value.leftJustified(4, '\0');
        } else {
            head += number(std::uint64_t(behind + rest.size()), 4);
            rest += entry.value;
        }
    }
    return head + number(next, 4) + rest;
}

constexpr int kData = 4096; // where the samples lie

/// A file of a head (up to where its directory stands), a directory and the samples.
QByteArray fileOf(const QByteArray& head, const std::vector<Entry>& entries, const QByteArray& samples)
{
    return (head + directory(entries, head.size())).leftJustified(kData, '\0') + samples;
}

std::vector<Entry> picture(const char* make, const char* model, int compression, int bits, const QByteArray& samples)
{
    return {one(254, 0),         one(256, kWidth),           one(257, kHeight),
            shorts(258, {bits}), shorts(259, {compression}), shorts(262, {32803}), // filters over the pixels
            text(271, make),     text(272, model),           one(273, kData),
            shorts(277, {1}),    one(278, kHeight),          one(279, static_cast<std::uint32_t>(samples.size())),
            shorts(284, {1}),    shorts(33421, {2, 2}),      {33422, Byte, QByteArray::fromHex("00010102")}};
}

const char kHead[] = "II*\0\x08\0\0";                           // and its end
QByteArray headOf() { return QByteArray(kHead, sizeof kHead); } // eight bytes

QByteArray dng(int compression, int bits, const QByteArray& samples)
{
    std::vector<Entry> entries = picture("Maker", "Model", compression, bits, samples);
    entries.push_back({50706, Byte, QByteArray::fromHex("01040000")});
    entries.push_back(text(50708, "Maker Model"));
    entries.push_back(shorts(50714, {16}));
    entries.push_back(one(50717, 4095));
    entries.push_back(ratios(50721, SignedRatio, {90, -20, -10, -40, 130, 10, -5, 20, 60}));
    entries.push_back(ratios(50728, Ratio, {50, 100, 70}));
    entries.push_back(shorts(50778, {21}));
    return fileOf(headOf(), entries, samples);
}

QByteArray cr2()
{
    const QByteArray samples = losslessJpeg();
    QByteArray head("II*\0\x10\0\0\0CR\2\0", 12);
    const qsizetype first = 16, second = 1024;
    head += number(std::uint64_t(second), 4);
    head += directory({text(271, "Canon"), text(272, "Canon EOS 5D"), one(256, kWidth), one(257, kHeight)}, first,
                      std::uint32_t(second));
    head = head.leftJustified(second, '\0');
    return fileOf(head, {shorts(259, {6}), one(273, kData), one(279, static_cast<std::uint32_t>(samples.size()))},
                  samples);
}

/// Compressed by the maker's own codes, whose table the maker's note has.
QByteArray nef()
{
    QByteArray samples = packed12().first(4000);
    const qsizetype facts = 1024, note = 1100;
    std::vector<Entry> entries = picture("NIKON CORPORATION", "NIKON D70", 34713, 12, samples);
    entries.push_back(one(34665, std::uint32_t(facts)));
    QByteArray head = headOf() + directory(entries, 8);
    const QByteArray table = QByteArray::fromHex("4630 0001 0001 0001 0001 0000");
    const QByteArray inner = QByteArray("Nikon\0\2\x10\0\0", 10) + headOf() + directory({{0x96, Raw, table}}, 8);
    head = head.leftJustified(facts, '\0') + number(1, 2) + number(37500, 2) + number(Raw, 2) +
           number(std::uint64_t(inner.size()), 4) + number(std::uint64_t(note), 4) + number(0, 4);
    return (head.leftJustified(note, '\0') + inner).leftJustified(kData, '\0') + samples;
}

QByteArray arw(int bits, const QByteArray& samples)
{
    return fileOf(headOf(), picture("SONY", "SLT-A77V", 32767, bits, samples), samples);
}

QByteArray orf(const QByteArray& samples)
{
    return fileOf(QByteArray("IIRO\x08\0\0\0", 8), picture("OLYMPUS IMAGING CORP.", "E-510", 1, 16, samples), samples);
}

QByteArray raf()
{
    const QByteArray samples = words(2);
    QByteArray head = QByteArray("FUJIFILMCCD-RAW 0201FF129502").leftJustified(28, '\0');
    head += QByteArray("FinePix S5Pro").leftJustified(32, '\0') + QByteArray("0100").leftJustified(24, '\0');
    constexpr std::uint32_t kSmall = 160, kSizes = 512;
    for (const std::uint32_t value : {kSmall, 64U, kSizes, 64U, std::uint32_t(kData), std::uint32_t(samples.size())})
        head += number(value, 4, true);
    head = head.leftJustified(kSmall, '\0') + QByteArray::fromHex("ffd8ffe1") + number(60, 2, true) +
           QByteArray("Exif\0\0", 6) + headOf() + directory({text(271, "FUJIFILM"), text(272, "FinePix S5Pro")}, 8);
    head = head.leftJustified(kSizes, '\0') + number(3, 4, true);
    for (const int tag : {0x100, 0x111, 0x121})
        head += number(std::uint64_t(tag), 2, true) + number(4, 2, true) + number(kHeight, 2, true) +
                number(kWidth, 2, true);
    return head.leftJustified(kData, '\0') + samples;
}

QByteArray rw2()
{
    QByteArray samples; // blocks of 16 bytes for 14 pixels, in order of the file's pieces
    for (int i = 0; i < 0x8000; ++i) samples += static_cast<char>(i * 37 + i / 16);
    return fileOf(QByteArray("IIU\0\x08\0\0\0", 8),
                  {text(271, "Panasonic"),
                   text(272, "DMC-LX3"),
                   shorts(2, {kWidth}),
                   shorts(3, {kHeight}),
                   {1, Raw, "0310"},
                   shorts(4, {0}),
                   shorts(5, {0}),
                   shorts(6, {kHeight}),
                   shorts(7, {kWidth}),
                   shorts(45, {4}),
                   shorts(9, {1}),
                   shorts(10, {12}),
                   shorts(11, {34316}),
                   one(273, kData),
                   one(280, kData),
                   one(279, static_cast<std::uint32_t>(samples.size()))},
                  samples);
}

} // namespace

QList<QByteArray> rawSeeds(const QString& format)
{
    if (format == "dng") return {dng(7, 12, losslessJpeg()), dng(1, 16, words()), dng(1, 12, packed12())};
    if (format == "cr2") return {cr2()};
    if (format == "nef") return {nef()};
    if (format == "arw") return {arw(8, packed12().first(kWidth * kHeight)), arw(12, packed12().first(3000))};
    if (format == "raf") return {raf()};
    if (format == "orf") return {orf(words(4)), orf(packed12())};
    if (format == "rw2") return {rw2()};
    return {};
}

} // namespace velara::fuzz
