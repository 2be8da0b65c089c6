#include "pixels/memory/checkSize.h"
#include "pixels/Bits.h"
#include <algorithm>

namespace velara {

SizeRefused::SizeRefused(std::int64_t width, std::int64_t height)
    : RuntimeError(Fault::OutOfRange), words_("the picture would have ")
{
    constexpr std::int64_t kMega = 1 << 20;
    const std::string size = std::to_string(width) + " x " + std::to_string(height) + " pixels";
    if (width < 1 || height < 1)
        words_ += "no pixels";
    else if (std::max(width, height) > Bits::kMostASide)
        words_ += size + "; a side has at most " + std::to_string(Bits::kMostASide);
    else
        words_ += std::to_string((width * height + kMega - 1) / kMega) + " megapixels (" + size + "); at most " +
                  std::to_string(Bits::kMostPixels / kMega) + " are possible";
}

void checkSize(std::int64_t width, std::int64_t height)
{
    if (!Bits::sizeAllowed(width, height)) throw SizeRefused(width, height);
}

} // namespace velara
