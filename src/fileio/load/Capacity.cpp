#include "fileio/load/Capacity.h"
#include "fileio/formats.h"
#include <limits>

namespace velara {

namespace {

std::int64_t unpacked(const Format* format, std::int64_t bytes)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() / (8 * Packing::Drawn);
    return format ? std::clamp<std::int64_t>(bytes, 0, kMost) * format->packing : kMost;
}

} // namespace

Capacity::Capacity(const QString& extension, std::int64_t bytes)
    : bytes_(unpacked(findFormat(extension.toStdString()), bytes))
{
}

std::int64_t Capacity::pixels(int bits) const
{
    constexpr int kMostBits = 128;
    return bytes_ * 8 / (bits < 1 || bits > kMostBits ? 1 : bits);
}

bool Capacity::mayClaim(std::int64_t pixels, int bits) const
{
    constexpr std::int64_t kLeastPart = 1000;
    return this->pixels(bits) >= pixels / kLeastPart;
}

} // namespace velara
