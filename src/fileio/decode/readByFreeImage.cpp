#include "fileio/decode/plain/rows.h"
#include "fileio/decode/readers.h"
#include "fileio/load/DecodeProtocol.h"
#include <FreeImage.h>
#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace velara::decode {

namespace {

using Dib = std::shared_ptr<FIBITMAP>;
using RowMaker = std::function<void(const std::uint8_t* from, Pixel* row)>;

Dib owned(FIBITMAP* dib) { return dib ? Dib(dib, FreeImage_Unload) : Dib(); }

/// FreeImage, initialised while an object lives.
class Library {
  public:
    Library() { FreeImage_Initialise(0); }
    ~Library() { FreeImage_DeInitialise(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

/// Reads from memory, faster than FreeImage's own routines, which some readers call for every pixel.
class Stream {
  public:
    explicit Stream(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    Dib load(int fif, int flags)
    {
        at_ = 0;
        ranDry_ = false;
        FreeImageIO io{read, write, seek, tell};
        return owned(FreeImage_LoadFromHandle(static_cast<FREE_IMAGE_FORMAT>(fif), &io, this, flags));
    }
    /// True when the last load asked for more than there is.
    bool ranDry() const { return ranDry_; }

  private:
    static unsigned DLL_CALLCONV read(void* to, unsigned size, unsigned count, fi_handle handle)
    {
        auto& stream = *static_cast<Stream*>(handle);
        const std::size_t left = stream.bytes_.size() - stream.at_;
        const std::size_t wanted = std::size_t{size} * count;
        if (wanted > left) {
            count = static_cast<unsigned>(left / size);
            stream.ranDry_ = true;
        }
        const std::size_t bytes = wanted > left ? left : wanted; // as fread: the last item may be partial
        std::memcpy(to, stream.bytes_.data() + stream.at_, bytes);
        stream.at_ += bytes;
        return count;
    }
    static unsigned DLL_CALLCONV write(void*, unsigned, unsigned, fi_handle) { return 0; }
    static int DLL_CALLCONV seek(fi_handle handle, long offset, int origin)
    {
        auto& stream = *static_cast<Stream*>(handle);
        const auto size = static_cast<long>(stream.bytes_.size());
        const long from = origin == SEEK_SET ? 0 : origin == SEEK_CUR ? static_cast<long>(stream.at_) : size;
        if (offset < -from || offset > size - from) return -1;
        stream.at_ = static_cast<std::size_t>(from + offset);
        return 0;
    }
    static long DLL_CALLCONV tell(fi_handle handle) { return static_cast<long>(static_cast<Stream*>(handle)->at_); }

    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
    bool ranDry_ = false;
};

// --- Sizes from headers

struct Size {
    std::int64_t width = 0, height = 0;
    int bits = 0; // per pixel; 0: unknown
};

/// The library can't give it without the pixels.
Size sizeOfMng(const FileBytes& file) // signature, length, "MHDR", width, height
{
    return {file.big32(16), file.big32(20)};
}

Size sizeOf(const FileBytes& file, Stream& stream, int fif)
{
    if (fif == FIF_MNG) return sizeOfMng(file);
    const Dib header = stream.load(fif, FIF_LOAD_NOPIXELS);
    if (!header) return {};
    return {FreeImage_GetWidth(header.get()), FreeImage_GetHeight(header.get()),
            static_cast<int>(FreeImage_GetBPP(header.get()))};
}

// --- Rows of every depth converted to blue, green, red, 0

Palette paletteOf(FIBITMAP* dib)
{
    Palette palette{};
    const RGBQUAD* colours = FreeImage_GetPalette(dib);
    const unsigned count = colours ? std::min(FreeImage_GetColorsUsed(dib), 256U) : 0;
    for (unsigned i = 0; i < count; ++i) palette[i] = {{colours[i].rgbBlue, colours[i].rgbGreen, colours[i].rgbRed, 0}};
    return palette;
}

RowMaker palettedRows(FIBITMAP* dib, int width, int bits)
{
    return [=, palette = paletteOf(dib)](const std::uint8_t* from, Pixel* row) {
        expandIndices(from, row, width, bits, palette);
    };
}

RowMaker trueColourRows(int width, int bits)
{
    if (bits == 24) return [=](const std::uint8_t* from, Pixel* row) { expandBgr(from, row, width); };
    return [=](const std::uint8_t* from, Pixel* row) {
        std::memcpy(row, from, sizeof(Pixel) * static_cast<std::size_t>(width));
        for (int x = 0; x < width; ++x) row[x].c[3] = 0; // the colour of transparent pixels is shown
    };
}

/// Light of 0 to 1; brighter values become white.
template <class Colour> RowMaker floatRows(int width)
{
    return [=](const std::uint8_t* from, Pixel* row) {
        const auto byte = [](float light) { // not-a-number becomes black
            return static_cast<std::uint8_t>(light > 0 ? std::min(light, 1.0F) * 255 + 0.5F : 0.0F);
        };
        const auto* colours = reinterpret_cast<const Colour*>(from);
        for (int x = 0; x < width; ++x)
            row[x] = {{byte(colours[x].blue), byte(colours[x].green), byte(colours[x].red), 0}};
    };
}

/// Converts depths without a row reader of their own to one that has it.
Dib simplified(const Dib& dib)
{
    switch (FreeImage_GetImageType(dib.get())) {
    case FIT_BITMAP:
        return FreeImage_GetBPP(dib.get()) == 16 ? owned(FreeImage_ConvertTo24Bits(dib.get())) : dib;
    case FIT_RGBF:
    case FIT_RGBAF:
        return dib;
    case FIT_UINT16:
        return owned(FreeImage_ConvertTo8Bits(dib.get())); // the high byte, as for 16-bit colours
    case FIT_RGB16:
    case FIT_RGBA16:
        return owned(FreeImage_ConvertTo24Bits(dib.get()));
    default:
        return owned(FreeImage_ConvertToStandardType(dib.get(), TRUE)); // measurements: darkest to brightest
    }
}

RowMaker rowsOf(FIBITMAP* dib, int width)
{
    const FREE_IMAGE_TYPE type = FreeImage_GetImageType(dib);
    if (type == FIT_RGBF) return floatRows<FIRGBF>(width);
    if (type == FIT_RGBAF) return floatRows<FIRGBAF>(width);
    const int bits = static_cast<int>(FreeImage_GetBPP(dib));
    return bits <= 8 ? palettedRows(dib, width, bits) : trueColourRows(width, bits);
}

} // namespace

Decoded readByFreeImage(FileBytes& file, int fif)
{
    const Library library;
    Stream stream(file.bytes());
    const Size size = sizeOf(file, stream, fif);
    if (size.width < 1 || size.height < 1) return {};
    if (!Bits::sizeAllowed(size.width, size.height)) return refused(kTooBig);

    sizeFound(size.width, size.height, size.bits);
    Dib dib = stream.load(fif, 0);
    const QString note = stream.ranDry() ? kCutOff : ""; // the available part can be shown
    if (dib) dib = simplified(dib);
    if (!dib || !FreeImage_HasPixels(dib.get())) return {};
    const int width = static_cast<int>(FreeImage_GetWidth(dib.get()));
    const int height = static_cast<int>(FreeImage_GetHeight(dib.get()));
    if (!Bits::sizeAllowed(width, height)) return refused(kTooBig);
    return {width, height,
            [dib, height, maker = rowsOf(dib.get(), width)](int y, Pixel* row) {
                maker(FreeImage_GetScanLine(dib.get(), height - 1 - y), row);
            },
            note};
}

} // namespace velara::decode
