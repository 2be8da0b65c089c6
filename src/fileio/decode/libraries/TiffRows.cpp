#include "fileio/decode/libraries/TiffRows.h"
#include <algorithm>
#include <cstring>

namespace velara::decode {

namespace {

constexpr std::uint64_t kMostInBand = 3ULL << 29; // bytes: the largest picture has that much of three in one strip

std::uint32_t rowsInBand(const Tiff& tiff, const TiffKind& kind)
{
    const auto rows = tiff.number<std::uint32_t>(kind.isTiled ? TIFFTAG_TILELENGTH : TIFFTAG_ROWSPERSTRIP, kind.height);
    if (rows == 0) throw Damage("strips without rows");
    return kind.isTiled ? rows : std::min(rows, kind.height);
}

} // namespace

TiffKind::TiffKind(const Tiff& tiff)
    : width(tiff.number<std::uint32_t>(TIFFTAG_IMAGEWIDTH, 0)),
      height(tiff.number<std::uint32_t>(TIFFTAG_IMAGELENGTH, 0)),
      bits(tiff.number<std::uint16_t>(TIFFTAG_BITSPERSAMPLE, 1)),
      samples(tiff.number<std::uint16_t>(TIFFTAG_SAMPLESPERPIXEL, 1)),
      photometric(tiff.number<std::uint16_t>(TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE)),
      planes(tiff.number<std::uint16_t>(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_SEPARATE ? samples
                                                                                                            : 1),
      format(tiff.number<std::uint16_t>(TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT)), isTiled(TIFFIsTiled(tiff.get()))
{
}

TiffLines::TiffLines(const TiffPage& page) : tiff_(page), kind_(tiff_), rowsInBand_(rowsInBand(tiff_, kind_))
{
    const auto whole = [](tmsize_t size) {
        if (size <= 0) throw Damage("strips without size");
        return static_cast<std::uint64_t>(size);
    };
    std::uint64_t stride = whole(kind_.isTiled ? TIFFTileRowSize(tiff_.get()) : TIFFScanlineSize(tiff_.get()));
    if (kind_.isTiled) {
        const auto width = tiff_.number<std::uint32_t>(TIFFTAG_TILEWIDTH, 0);
        if (width == 0) throw Damage("tiles without width");
        const std::uint64_t tile = whole(TIFFTileSize(tiff_.get()));
        if (tile > kMostInBand) throw Damage("tiles without bounds");
        tile_.resize(tile);
        stride *= (kind_.width + std::uint64_t{width} - 1) / width;
    }
    const std::uint64_t rows = std::min(rowsInBand_, kind_.height);
    if (stride > kMostInBand / rows / kind_.planes) throw Damage("strips without bounds");
    stride_ = stride;
    bands_.resize(kind_.planes);
    for (auto& band : bands_)
        band.resize(std::max<std::uint64_t>(stride * rows, kind_.isTiled ? 0 : whole(TIFFStripSize(tiff_.get()))));
    if (kind_.planes > 1) line_.resize((std::size_t{kind_.bits} * kind_.samples * kind_.width + 7) / 8);
}

void TiffLines::readStrip(std::uint32_t plane)
{
    const std::uint64_t rows = std::min(rowsInBand_, kind_.height - y_);
    TIFFReadEncodedStrip(tiff_.get(), TIFFComputeStrip(tiff_.get(), y_, static_cast<std::uint16_t>(plane)),
                         bands_[plane].data(), static_cast<tmsize_t>(rows * stride_));
}

void TiffLines::readTiles(std::uint32_t plane)
{
    const auto width = tiff_.number<std::uint32_t>(TIFFTAG_TILEWIDTH, 0);
    const auto line = static_cast<std::size_t>(TIFFTileRowSize(tiff_.get()));
    std::uint8_t* to = bands_[plane].data();
    for (std::uint64_t x = 0; x < kind_.width; x += width, to += line) {
        if (TIFFReadTile(tiff_.get(), tile_.data(), static_cast<std::uint32_t>(x), y_, 0,
                         static_cast<std::uint16_t>(plane)) < 0)
            throw Damage("a damaged tile");
        const std::size_t rows = std::min(rowsInBand_, kind_.height - y_);
        for (std::size_t row = 0; row < rows; ++row) std::memcpy(to + row * stride_, tile_.data() + row * line, line);
    }
}

const std::uint8_t* TiffLines::next()
{
    if (y_ % rowsInBand_ == 0)
        for (std::uint32_t plane = 0; plane < kind_.planes; ++plane)
            kind_.isTiled ? readTiles(plane) : readStrip(plane);
    const std::size_t at = y_++ % rowsInBand_ * stride_;
    if (kind_.planes == 1) return bands_[0].data() + at;
    merge(at);
    return line_.data();
}

/// Puts the samples of the planes side by side.
void TiffLines::merge(std::size_t at)
{
    const std::size_t bytes = kind_.bits / 8;
    if (bytes == 0) std::ranges::fill(line_, 0);
    for (std::size_t plane = 0; plane < bands_.size(); ++plane) {
        const std::uint8_t* from = bands_[plane].data() + at;
        std::uint8_t* to = line_.data() + plane * bytes;
        if (bytes == 0)
            for (std::size_t x = 0; x < kind_.width; ++x)
                small_.put(line_.data(), x * kind_.samples + plane, small_(from, x));
        else
            for (std::uint32_t x = 0; x < kind_.width; ++x, from += bytes, to += bytes * kind_.samples)
                std::memcpy(to, from, bytes);
    }
}

TiffColours::TiffColours(const TiffPage& page) : tiff_(page)
{
    char why[1024] = "";
    if (!TIFFRGBAImageOK(tiff_.get(), why) || !TIFFRGBAImageBegin(&image_, tiff_.get(), 1, why)) throw Damage(why);
    image_.req_orientation = image_.orientation; // nothing is turned
    try {
        rowsInBand_ = std::min(rowsInBand(tiff_, TiffKind(tiff_)), image_.height);
        band_.resize(std::size_t{image_.width} * rowsInBand_);
    } catch (...) {
        TIFFRGBAImageEnd(&image_);
        throw;
    }
}

void TiffColours::skip()
{
    if (y_ % rowsInBand_ == 0) {
        image_.row_offset = static_cast<int>(y_);
        if (!TIFFRGBAImageGet(&image_, band_.data(), image_.width, std::min(rowsInBand_, image_.height - y_)))
            throw Damage("damaged pixels");
    }
    ++y_;
}

void TiffColours::read(Pixel* row)
{
    const std::size_t at = y_ % rowsInBand_ * std::size_t{image_.width};
    skip();
    const std::uint32_t* from = band_.data() + at;
    for (std::uint32_t x = 0; x < image_.width; ++x, ++from)
        row[x] = {{static_cast<std::uint8_t>(TIFFGetB(*from)), static_cast<std::uint8_t>(TIFFGetG(*from)),
                   static_cast<std::uint8_t>(TIFFGetR(*from)), 0}};
}

} // namespace velara::decode
