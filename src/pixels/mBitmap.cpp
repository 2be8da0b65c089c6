#include "pixels/mBitmap.h"
#include "pixels/numbers.h"
#include <cstring>

namespace velara {

ByteArray byteArrayFor(int width, int height)
{
    ByteArray array;
    if (width < 1 || height < 1) return array;
    array.header.biWidth = width;
    array.header.biHeight = -height;
    array.bytes.resize(sizeof(Pixel) * static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    return array;
}

ByteArray bytesOfPicture(const Bits& bits)
{
    ByteArray array = byteArrayFor(bits.width(), bits.height());
    const std::size_t bytesARow = sizeof(Pixel) * static_cast<std::size_t>(bits.width());
    for (int y = 0; y < bits.height(); ++y)
        std::memcpy(array.bytes.data() + static_cast<std::size_t>(y) * bytesARow, bits.row(y), bytesARow);
    return array;
}

} // namespace velara
