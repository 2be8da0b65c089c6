#include "document/cDIBSection.h"
#include "pixels/numbers.h"
#include "seams/Clipboard.h"
#include "seams/Platform.h"
#include <QRect>
#include <algorithm>
#include <cstring>
#include <new>

namespace velara {

namespace {

/// The part of a rectangle of the source that falls on the target, each in its own coordinates.
struct Overlap {
    QRect source;
    QPoint target;
};

Overlap overlap(QSize sourceSize, QPoint from, QSize targetSize, QPoint to, QSize wanted)
{
    const QRect inTarget = QRect(to, wanted) & QRect({0, 0}, targetSize);
    const QRect source = inTarget.translated(from - to) & QRect({0, 0}, sourceSize);
    return {source, source.topLeft() + to - from};
}

/// The two pixels of a row or column next to a position between them, and the weight of the second.
struct Between {
    int first, second;
    double weight;
};

std::vector<Between> positions(int oldSize, int newSize)
{
    const double scale = quotient(oldSize - 1, newSize - 1);
    std::vector<Between> all;
    for (int i = 0; i < newSize; ++i) {
        const double at = i * scale;
        const int first = std::min(static_cast<int>(at), oldSize - 1);
        all.push_back({first, std::min(first + 1, oldSize - 1), at - first});
    }
    return all;
}

} // namespace

bool cDIBSection::Create(int width, int height)
try {
    ClearUp();
    if (width < 1 || height < 1) return false;
    cDIBSection made;
    made.width_ = width;
    made.height_ = height;
    made.bytes_.resize(static_cast<std::size_t>(made.BytesPerScanLine()) * static_cast<std::size_t>(height));
    *this = std::move(made);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

bool cDIBSection::CreateFromPicture(const Bits& picture)
{
    if (!Create(picture.width(), picture.height())) return false;
    LoadPictureBlt(picture);
    return true;
}

void cDIBSection::LoadPictureBlt(const Bits& source, int x, int y, int width, int height)
{
    const QSize wanted(width < 0 ? width_ : width, height < 0 ? height_ : height);
    const Overlap o = overlap({source.width(), source.height()}, {x, y}, {width_, height_}, {0, 0}, wanted);
    for (int line = 0; line < o.source.height(); ++line) {
        const Pixel* from = source.row(o.source.top() + line) + o.source.left();
        std::uint8_t* to = row(o.target.y() + line) + 3 * o.target.x();
        for (int i = 0; i < o.source.width(); ++i, to += 3) std::memcpy(to, from[i].c, 3);
    }
}

void cDIBSection::LoadPictureBlt(const cDIBSection& source, int x, int y, int width, int height)
{
    LoadPictureBlt(source.toBits(), x, y, width, height);
}

void cDIBSection::PaintPicture(Bits& target, int x, int y, int width, int height, int sourceX, int sourceY) const
{
    const QSize wanted(width < 0 ? width_ : width, height < 0 ? height_ : height);
    const Overlap o = overlap({width_, height_}, {sourceX, sourceY}, {target.width(), target.height()}, {x, y}, wanted);
    for (int line = 0; line < o.source.height(); ++line) {
        const std::uint8_t* from = row(o.source.top() + line) + 3 * o.source.left();
        Pixel* to = target.row(o.target.y() + line) + o.target.x();
        for (int i = 0; i < o.source.width(); ++i, from += 3) std::memcpy(to[i].c, from, 3);
    }
}

Bits cDIBSection::toBits() const
{
    Bits bits(width_, height_);
    PaintPicture(bits);
    return bits;
}

void cDIBSection::RandomiseBits(Machine& machine, bool grey)
{
    const auto value = [&] { return static_cast<std::uint8_t>(machine.random() * 256); };
    for (int y = 0; y < height_; ++y) {
        std::uint8_t* pixel = row(y);
        for (int x = 0; x < width_; ++x, pixel += 3) {
            pixel[0] = grey ? value() : std::uint8_t{0};
            pixel[1] = grey ? pixel[0] : value();
            pixel[2] = grey ? pixel[0] : value();
        }
    }
}

std::optional<cDIBSection> cDIBSection::Resample(int newHeight, int newWidth) const
{
    cDIBSection made;
    if (bytes_.empty() || !made.Create(newWidth, newHeight)) return std::nullopt;
    if (newWidth == width_ && newHeight == height_) return *this;
    const std::vector<Between> columns = positions(width_, newWidth), rows = positions(height_, newHeight);
    const auto line = [](auto& section, int y) { // in storage order, from the bottom
        return section.DIBSectionBitsPtr() + static_cast<std::ptrdiff_t>(y) * section.BytesPerScanLine();
    };
    for (int y = 0; y < newHeight; ++y) {
        const Between v = rows[static_cast<std::size_t>(y)];
        const std::uint8_t *lower = line(*this, v.first), *upper = line(*this, v.second);
        std::uint8_t* to = line(made, y);
        for (const Between h : columns)
            for (int c = 0; c < 3; ++c) {
                const int left = 3 * h.first + c, right = 3 * h.second + c;
                const double atLeft = lower[left] * (1 - v.weight) + upper[left] * v.weight;
                const double atRight = lower[right] * (1 - v.weight) + upper[right] * v.weight;
                *to++ = toByte(atLeft * (1 - h.weight) + atRight * h.weight);
            }
    }
    return made;
}

bool cDIBSection::CopyToClipboard(Platform& platform, bool asDib) const
{
    if (!asDib) return !bytes_.empty() && platform.clipboard().setBitmap(toBits());
    platform.tell("I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!", Icon::Exclamation);
    return false;
}

} // namespace velara
