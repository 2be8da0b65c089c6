#include "fileio/writers/GifWriter.h"
#include "fileio/disk/OutputFile.h"
#include <algorithm>
#include <array>
#include <gif_lib.h>
#include <memory>
#include <span>

namespace velara {

namespace {

constexpr int kLongestSide = 65535;

struct FreeMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using ColourMap = std::unique_ptr<ColorMapObject, FreeMap>;

/// The palette, padded with black to a power of two that is at least that of least.
ColourMap mapOf(const std::vector<Colour>& palette, int least)
{
    std::array<GifColorType, 256> colours{};
    std::transform(palette.begin(), palette.end(), colours.begin(), [](Colour c) {
        return GifColorType{static_cast<GifByteType>(redOf(c)), static_cast<GifByteType>(greenOf(c)),
                            static_cast<GifByteType>(blueOf(c))};
    });
    const int bits = std::clamp(GifBitSize(static_cast<int>(palette.size())), std::clamp(least, 1, 8), 8);
    return ColourMap(GifMakeMapObject(1 << bits, colours.data()));
}

int writeOut(GifFileType* gif, const GifByteType* bytes, int size)
{
    auto* file = static_cast<OutputFile*>(gif->UserData);
    return file->write(bytes, static_cast<std::size_t>(size)) ? size : 0;
}

bool writeRows(GifFileType* gif, const IndexedPicture& picture, bool interlaced)
{
    struct Pass {
        int first, step;
    };
    static constexpr Pass kInterlaced[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    static constexpr Pass kPlain[] = {{0, 1}};
    std::vector<GifByteType> row(static_cast<std::size_t>(picture.width)); // giflib masks the row passed to it
    for (const Pass pass : interlaced ? std::span<const Pass>(kInterlaced) : std::span<const Pass>(kPlain))
        for (int y = pass.first; y < picture.height; y += pass.step) {
            const auto from = picture.indices.begin() + std::ptrdiff_t{y} * picture.width;
            std::copy(from, from + picture.width, row.begin());
            if (EGifPutLine(gif, row.data(), picture.width) != GIF_OK) return false;
        }
    return true;
}

} // namespace

bool writeGif(const IndexedPicture& picture, OutputFile& file, bool interlaced, int bits)
{
    const bool fits = picture.width > 0 && picture.height > 0 && picture.width <= kLongestSide &&
                      picture.height <= kLongestSide && !picture.palette.empty() && picture.palette.size() <= 256;
    if (!fits || !file.isOpen()) return false;
    const ColourMap map = mapOf(picture.palette, bits);
    int error = 0;
    GifFileType* gif = map ? EGifOpen(&file, writeOut, &error) : nullptr;
    if (!gif) return false;
    const bool drawn =
        EGifPutScreenDesc(gif, picture.width, picture.height, map->BitsPerPixel, 0, map.get()) == GIF_OK &&
        EGifPutImageDesc(gif, 0, 0, picture.width, picture.height, interlaced, nullptr) == GIF_OK &&
        writeRows(gif, picture, interlaced);
    const bool ended = EGifCloseFile(gif, &error) == GIF_OK;
    return drawn && ended;
}

bool writeGif(const IndexedPicture& picture, const QString& fileName, bool interlaced)
{
    OutputFile file(fileName);
    return writeGif(picture, file, interlaced, 1) && file.commit();
}

} // namespace velara
