#include "fileio/decode/libraries/TiffRows.h"
#include "fileio/decode/libraries/tiffTogether.h"
#include <algorithm>
#include <cstring>

namespace velara::decode {

namespace {

constexpr std::uint64_t kMostInBand = 3ULL << 29; // bytes: the largest picture has that much of three in one strip

constexpr std::uint8_t kUnwritten = 0xa7; // a value, and a difference, that few strips end with

std::uint32_t rowsInBand(const Tiff& tiff, const TiffKind& kind)
{
    const auto rows = tiff.number<std::uint32_t>(kind.isTiled ? TIFFTAG_TILELENGTH : TIFFTAG_ROWSPERSTRIP, kind.height);
    if (rows == 0) throw Damage("strips without rows");
    return kind.isTiled ? rows : std::min(rows, kind.height);
}

std::uint32_t countOf(std::uint32_t height, std::uint32_t inBand) { return (height - 1) / inBand + 1; }

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

TiffStrips::TiffStrips(const TiffPage& page, bool isShared)
    : tiff_(page), kind_(tiff_), isShared_(isShared),
      isDifferences_(tiff_.number<std::uint16_t>(TIFFTAG_PREDICTOR, PREDICTOR_NONE) == PREDICTOR_HORIZONTAL),
      rows_(rowsInBand(tiff_, kind_))
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
    const std::uint64_t rows = std::min(rows_, kind_.height);
    if (stride > kMostInBand / rows / kind_.planes) throw Damage("strips without bounds");
    stride_ = stride;
    bandBytes_ = std::max<std::uint64_t>(stride * rows, kind_.isTiled ? 0 : whole(TIFFStripSize(tiff_.get())));
}

TiffStrips::Band TiffStrips::emptyBand() const { return Band(kind_.planes, std::vector<std::uint8_t>(bandBytes_)); }

/// The library takes a stream for whole that is longer than its strip, and may leave the strip's end as it was. False
/// for few others, which end with that value, too. Lines have so many bytes.
bool TiffStrips::isWritten(const std::uint8_t* end, std::size_t line) const
{
    if (!isShared_) return true;
    const std::size_t bytes = std::clamp<std::size_t>(kind_.bits / 8, 1, 8);
    const std::size_t pixel = bytes * (kind_.planes > 1 ? 1 : kind_.samples);
    const auto sample = [&](const std::uint8_t* from) {
        std::uint64_t value = 0;
        std::memcpy(&value, from, bytes);
        return value;
    };
    std::uint64_t last = sample(end - bytes);
    if (isDifferences_ && line > pixel) last -= sample(end - bytes - pixel);
    const auto low = static_cast<std::uint8_t>(last), high = static_cast<std::uint8_t>(last >> (bytes - 1) * 8);
    return low != kUnwritten && high != kUnwritten; // either, as the library may have changed their order
}

bool TiffStrips::readStrip(std::uint32_t y, std::uint16_t plane, std::uint8_t* to)
{
    const std::size_t size = std::min(rows_, kind_.height - y) * stride_;
    if (isShared_) to[size - 1] = kUnwritten;
    return TIFFReadEncodedStrip(tiff_.get(), TIFFComputeStrip(tiff_.get(), y, plane), to,
                                static_cast<tmsize_t>(size)) >= 0 &&
           isWritten(to + size, stride_);
}

bool TiffStrips::readTiles(std::uint32_t y, std::uint16_t plane, std::uint8_t* to)
{
    const auto width = tiff_.number<std::uint32_t>(TIFFTAG_TILEWIDTH, 0);
    const auto line = static_cast<std::size_t>(TIFFTileRowSize(tiff_.get()));
    const std::size_t rows = std::min(rows_, kind_.height - y);
    for (std::uint64_t x = 0; x < kind_.width; x += width, to += line) {
        if (isShared_) tile_.back() = kUnwritten;
        if (TIFFReadTile(tiff_.get(), tile_.data(), static_cast<std::uint32_t>(x), y, 0, plane) < 0) return false;
        if (!isWritten(tile_.data() + tile_.size(), line)) return false;
        for (std::size_t row = 0; row < rows; ++row) std::memcpy(to + row * stride_, tile_.data() + row * line, line);
    }
    return true;
}

bool TiffStrips::decode(std::uint32_t band, Band& to)
{
    bool isWhole = true;
    for (std::uint16_t plane = 0; plane < kind_.planes; ++plane) {
        std::uint8_t* data = to[plane].data();
        isWhole &= kind_.isTiled ? readTiles(band * rows_, plane, data) : readStrip(band * rows_, plane, data);
    }
    return isWhole;
}

TiffLines::TiffLines(const TiffPage& page) : strips_(page), band_(strips_.emptyBand())
{
    if (kind().planes > 1) line_.resize((std::size_t{kind().bits} * kind().samples * kind().width + 7) / 8);
    const TiffBands bands{countOf(kind().height, strips_.rows()), band_.size() * band_[0].size()};
    ahead_ = bandsAhead<TiffStrips, TiffStrips::Band>(
        bands.count, bandsTogether(strips_.tiff(), kind(), bands),
        [&] { return std::make_unique<TiffStrips>(page, true); }, [&] { return strips_.emptyBand(); });
}

/// Reads the band, which follows the last one, into now_.
void TiffLines::take(std::uint32_t band)
{
    const bool isLastHere = now_ == &band_;
    now_ = ahead_ ? ahead_->at(band) : nullptr;
    if (now_) return;
    if (ahead_ && band > 0 && !isLastHere) strips_.decode(band - 1, band_); // damage leaves parts of what was there
    now_ = &band_;
    if (strips_.decode(band, band_)) return;
    if (kind().isTiled) throw Damage("a damaged tile");
    ahead_.reset(); // where there is damage, there may be more: nothing else is decoded twice
}

const std::uint8_t* TiffLines::next()
{
    if (y_ % strips_.rows() == 0) take(y_ / strips_.rows());
    const std::size_t at = y_++ % strips_.rows() * strips_.stride();
    if (kind().planes == 1) return now_->front().data() + at;
    merge(at);
    return line_.data();
}

/// Puts the samples of the planes side by side.
void TiffLines::merge(std::size_t at)
{
    const std::size_t bytes = kind().bits / 8;
    if (bytes == 0) std::ranges::fill(line_, 0);
    for (std::size_t plane = 0; plane < now_->size(); ++plane) {
        const std::uint8_t* from = (*now_)[plane].data() + at;
        std::uint8_t* to = line_.data() + plane * bytes;
        if (bytes == 0)
            for (std::size_t x = 0; x < kind().width; ++x)
                small_.put(line_.data(), x * kind().samples + plane, small_(from, x));
        else
            for (std::uint32_t x = 0; x < kind().width; ++x, from += bytes, to += bytes * kind().samples)
                std::memcpy(to, from, bytes);
    }
}

TiffRaster::TiffRaster(const TiffPage& page) : tiff_(page)
{
    char why[1024] = "";
    if (!TIFFRGBAImageOK(tiff_.get(), why) || !TIFFRGBAImageBegin(&image_, tiff_.get(), 1, why)) throw Damage(why);
    image_.req_orientation = image_.orientation; // nothing is turned
    try {
        rows_ = std::min(rowsInBand(tiff_, TiffKind(tiff_)), image_.height);
    } catch (...) {
        TIFFRGBAImageEnd(&image_);
        throw;
    }
}

bool TiffRaster::decode(std::uint32_t band, Band& to)
{
    const std::uint32_t y = band * rows_;
    image_.row_offset = static_cast<int>(y);
    return TIFFRGBAImageGet(&image_, to.data(), image_.width, std::min(rows_, image_.height - y));
}

TiffColours::TiffColours(const TiffPage& page) : raster_(page), band_(raster_.emptyBand())
{
    const TiffBands bands{countOf(raster_.height(), raster_.rows()), band_.size() * sizeof band_[0]};
    ahead_ = bandsAhead<TiffRaster, TiffRaster::Band>(
        bands.count, bandsTogether(raster_.tiff(), TiffKind(raster_.tiff()), bands),
        [&] { return std::make_unique<TiffRaster>(page); }, [&] { return raster_.emptyBand(); });
}

void TiffColours::skip()
{
    if (y_ % raster_.rows() == 0) {
        const std::uint32_t band = y_ / raster_.rows();
        now_ = ahead_ ? ahead_->at(band) : nullptr;
        if (!now_ && !raster_.decode(band, band_)) throw Damage("damaged pixels");
        if (!now_) now_ = &band_;
    }
    ++y_;
}

void TiffColours::read(Pixel* row)
{
    const std::size_t at = y_ % raster_.rows() * std::size_t{raster_.width()};
    skip();
    const std::uint32_t* from = now_->data() + at;
    for (std::uint32_t x = 0; x < raster_.width(); ++x, ++from)
        row[x] = {{static_cast<std::uint8_t>(TIFFGetB(*from)), static_cast<std::uint8_t>(TIFFGetG(*from)),
                   static_cast<std::uint8_t>(TIFFGetR(*from)), 0}};
}

} // namespace velara::decode
