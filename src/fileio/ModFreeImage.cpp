#include "fileio/ModFreeImage.h"
#include <FreeImage.h>
#include <cstring>
#include <mutex>
#include <new>

namespace velara {

namespace {

QString& lastError()
{
    static thread_local QString text;
    return text;
}

/// FreeImage counts those who have opened it without a lock.
std::mutex& opening()
{
    static std::mutex mutex;
    return mutex;
}

void FreeImageMessage(FREE_IMAGE_FORMAT, const char* message)
{
    FreeImageSetError(QString::fromLocal8Bit(message), false);
}

} // namespace

FreeImageStart::FreeImageStart()
{
    const std::lock_guard one(opening());
    lastError().clear();
    FreeImage_Initialise(0);
    FreeImage_SetOutputMessage(FreeImageMessage);
}

FreeImageStart::~FreeImageStart()
{
    const std::lock_guard one(opening());
    FreeImage_DeInitialise();
}

const QString& FreeImageLastError() { return lastError(); }

void FreeImageSetError(const QString& text, bool keepFirst)
{
    if (!keepFirst || lastError().isEmpty()) lastError() = text;
}

void packRow24(const Pixel* row, std::uint8_t* to, int width)
{
    int x = 0;
    for (; x < width - 1; ++x, to += 3) std::memcpy(to, row + x, 4); // the fourth byte is overwritten by the next pixel
    std::memcpy(to, row + x, 3);
}

// FreeImage's own allocation faults its pages in one by one and clears them; a block of the picture's size is likely to
// wait in the pool.
Dib24::Dib24(const Bits& bits)
try {
    if (bits.isNull()) {
        FreeImageSetError("[FreeImage_DIB_From_BMP] No bitmap specified to convert", true);
        return;
    }
    const int width = bits.width(), height = bits.height();
    const std::size_t bytesARow = static_cast<std::size_t>(width) * 3, pitch = (bytesARow + 3) / 4 * 4;
    block_ = Bits::uninitialized(width, height);
    std::uint8_t* const bytes = block_.data();
    for (int y = 0; y < height; ++y) { // bottom row first
        std::uint8_t* const row = bytes + pitch * static_cast<std::size_t>(height - 1 - y);
        packRow24(bits.row(y), row, width);
        std::memset(row + bytesARow, 0, pitch - bytesARow); // the padding goes into bmp files
    }
    dib_ = FreeImage_ConvertFromRawBitsEx(FALSE, bytes, FIT_BITMAP, width, height, static_cast<int>(pitch), 24,
                                          FI_RGBA_RED_MASK, FI_RGBA_GREEN_MASK, FI_RGBA_BLUE_MASK, FALSE);
    if (!dib_) FreeImageSetError("[FreeImage_DIB_From_BMP] FreeImage_GetBits failed to get the DIB bits", true);
} catch (const std::bad_alloc&) {
    FreeImageSetError("[FreeImage_DIB_From_BMP] FreeImage_Allocate failed to create a DIB to work with", true);
}

Dib24::~Dib24()
{
    if (dib_) FreeImage_Unload(dib_);
}

} // namespace velara
