#include "fileio/decode/plain/plain.h"
#include "fileio/decode/plain/rows.h"
#include "fileio/decode/readers.h"

namespace velara::decode {

namespace {

/// The text of a file: numbers between blanks and comments.
class Words {
  public:
    Words(const FileBytes& file, std::size_t at) : file_(file), at_(at) {}
    std::size_t at() const { return at_; }

    /// The next number and the character that ends it, which must be there; -1: there is none, or it is too big.
    std::int64_t number()
    {
        if (!toDigit()) return -1;
        std::int64_t value = 0;
        for (; isDigit(); ++at_) {
            value = value * 10 + file_.byte(at_) - '0';
            if (value > INT32_MAX) return -1;
        }
        return at_++ < file_.size() ? value : -1;
    }
    /// A single digit, which need not be followed by a blank; -1: there is none.
    int digit() { return toDigit() ? static_cast<int>(file_.byte(at_++) - '0') : -1; }
    /// Goes back to the character that ended a number: in plain bitmaps a comment may follow directly.
    void unread() { --at_; }

  private:
    bool isDigit() const { return file_.byte(at_) >= '0' && file_.byte(at_) <= '9'; }
    bool toDigit()
    {
        while (at_ < file_.size() && !isDigit())
            if (file_.byte(at_++) == '#')
                while (at_ < file_.size() && file_.byte(at_) != '\n') ++at_;
        return at_ < file_.size();
    }

    const FileBytes& file_;
    std::size_t at_;
};

struct Header {
    std::uint32_t kind; // '1' to '6'
    int width, height, most, channels;
    bool isPlain() const { return kind <= '3'; }
    bool isBitmap() const { return kind == '1' || kind == '4'; }
    bool isWide() const { return most > 255; } // two bytes a sample
    Layout layout() const { return isBitmap() ? Layout::Index1 : channels == 1 ? Layout::Index8 : Layout::Rgb; }
    std::size_t samples() const { return std::size_t(width) * std::size_t(channels); }
    /// Of 255; values above the most wrap around.
    std::uint8_t scaled(std::int64_t level) const
    {
        if (!isWide()) return static_cast<std::uint8_t>(static_cast<std::int32_t>(std::uint32_t(level) * 255U) / most);
        const double wide = 65535.0 * static_cast<double>(level) / most;
        return wide < 0x80000000U ? static_cast<std::uint8_t>(static_cast<std::uint32_t>(wide) >> 8) : 0;
    }
};

Decoded readPlainBitmap(const FileBytes& file, Words words, const Header& header)
{
    const std::size_t stride = bytesOf(Layout::Index1, header.width);
    Raster raster{header.width, header.height, Layout::Index1, greys(2)};
    std::swap(raster.palette[0], raster.palette[1]);
    words.unread();
    if (std::size_t(header.width) * std::size_t(header.height) > file.size() - words.at()) return {};
    std::vector<std::uint8_t> bits(stride * std::size_t(header.height));
    for (int y = 0; y < header.height; ++y)
        for (int x = 0; x < header.width; ++x) {
            const int digit = words.digit();
            if (digit < 0) return {};
            if (digit == 1)
                bits[stride * std::size_t(y) + std::size_t(x) / 8] |= static_cast<std::uint8_t>(128 >> x % 8);
        }
    return fromMemory(std::move(bits), raster, {0, stride}, false);
}

Decoded readPlain(const FileBytes& file, Words words, const Header& header)
{
    const std::size_t all = header.samples() * std::size_t(header.height);
    if (all > file.size() - words.at()) return {}; // each takes two bytes at least
    std::vector<std::uint8_t> samples(all);
    for (std::uint8_t& sample : samples) {
        const std::int64_t level = words.number();
        if (level < 0) return {};
        sample = header.scaled(level);
    }
    return fromMemory(std::move(samples), {header.width, header.height, header.layout(), greys()},
                      {0, header.samples()}, false);
}

/// The high bytes of samples in the big order, scaled.
Decoded readWide(const FileBytes& file, std::size_t at, const Header& header)
{
    const bool isGrey = header.channels == 1;
    const std::size_t stride = 2 * header.samples();
    const auto sample = [file, header](std::size_t offset) { return header.scaled(file.big16(offset)); };
    return {header.width, header.height,
            [=](int y, Pixel* row) {
                std::size_t from = at + stride * std::size_t(y);
                for (int x = 0; x < header.width; ++x, from += isGrey ? 2 : 6)
                    row[x] = pixelOf(sample(from), sample(isGrey ? from : from + 2), sample(isGrey ? from : from + 4));
            },
            at + stride * std::size_t(header.height) > file.size() ? kCutOff : ""};
}

/// The samples that are missing are like the last one.
Decoded readRaw(const FileBytes& file, std::size_t at, const Header& header)
{
    Raster raster{header.width, header.height, header.layout(), greys(header.isBitmap() ? 2 : 256)};
    if (header.isBitmap()) std::swap(raster.palette[0], raster.palette[1]); // 1 is black
    const bool isEmpty = at >= file.size() || header.isBitmap();
    const std::size_t stride = bytesOf(raster.layout, header.width);
    const Lines lines{at, stride, false, static_cast<std::uint8_t>(isEmpty ? 0 : file.byte(file.size() - 1))};
    Palette scaled;
    for (std::size_t i = 0; i < 256; ++i) {
        const std::uint8_t level = header.scaled(std::int64_t(i));
        scaled[i] = pixelOf(level, level, level);
    }
    if (header.channels == 1 && !header.isBitmap()) raster.palette = scaled;
    Decoded picture = fromFile(file, raster, lines);
    if (header.channels == 3 && header.most != 255)
        picture.row = [row = std::move(picture.row), scaled, header](int y, Pixel* to) {
            row(y, to);
            for (int x = 0; x < header.width; ++x)
                for (int part = 0; part < 3; ++part) to[x].c[part] = scaled[to[x].c[part]].c[0];
        };
    return picture;
}

} // namespace

Decoded readPnm(FileBytes& file)
{
    Words words(file, 2);
    Header header{file.byte(1), 0, 0, 1, 1};
    if (file.byte(0) != 'P' || header.kind < '1' || header.kind > '6') return {};
    const std::int64_t width = words.number();
    if (header.kind == '1') words.unread();
    const std::int64_t height = words.number();
    if (!header.isBitmap()) {
        const std::int64_t most = words.number();
        if (most < 1 || most > 65535) return {};
        header.most = static_cast<int>(most);
        header.channels = header.kind == '3' || header.kind == '6' ? 3 : 1;
    }
    const int bits = header.isBitmap() ? 1 : (header.isWide() ? 16 : 8) * header.channels;
    if (const auto fault = faultOfSize(width, height, bits)) return refused(*fault);
    header.width = static_cast<int>(width);
    header.height = static_cast<int>(height);
    if (header.kind == '1') return readPlainBitmap(file, words, header);
    if (header.isPlain()) return readPlain(file, words, header);
    return header.isWide() ? readWide(file, words.at(), header) : readRaw(file, words.at(), header);
}

} // namespace velara::decode
