// A 24-bit bitmap with rows aligned to four bytes, bottom row first: thumbnails, previews, printing and icons.
#pragma once
#include "pixels/Bits.h"
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace velara {

class Machine;
class Platform;

class cDIBSection {
  public:
    /// A black bitmap. False, and empty, below 1 by 1 or when memory is short.
    bool Create(int width, int height);
    bool CreateFromPicture(const Bits& picture);
    void ClearUp() { *this = {}; }

    int Width() const { return width_; }
    int Height() const { return height_; }
    int BytesPerScanLine() const { return (width_ + 1) * 3 & ~3; }
    /// Blue, green, red of each pixel; the bottom row first.
    std::uint8_t* DIBSectionBitsPtr() { return bytes_.data(); }
    const std::uint8_t* DIBSectionBitsPtr() const { return bytes_.data(); }
    /// Row y counted from the top.
    std::uint8_t* row(int y) { return bytes_.data() + rowAt(y); }
    const std::uint8_t* row(int y) const { return bytes_.data() + rowAt(y); }

    /// Copies from x, y of source to 0, 0; a negative width or height means the section's own. Clipped to both.
    void LoadPictureBlt(const Bits& source, int x = 0, int y = 0, int width = -1, int height = -1);
    void LoadPictureBlt(const cDIBSection& source, int x = 0, int y = 0, int width = -1, int height = -1);
    /// Copies from sourceX, sourceY to x, y of target, clipped likewise. The target's fourth bytes are kept.
    void PaintPicture(Bits& target, int x = 0, int y = 0, int width = -1, int height = -1, int sourceX = 0,
                      int sourceY = 0) const;
    /// The section as a picture.
    Bits toBits() const;

    /// Random pixels: one value for all three channels, or blue 0 and independent green and red.
    void RandomiseBits(Machine& machine, bool grey);
    /// Bilinear, corner pixels onto corner pixels; the same size gives a copy. Nothing when the section is empty or a
    /// size is below 1; otherwise DivisionByZero when a new side is 1.
    std::optional<cDIBSection> Resample(int newHeight, int newWidth) const;
    /// False when asDib, after a message, and when the clipboard refuses it.
    bool CopyToClipboard(Platform& platform, bool asDib) const;

  private:
    std::size_t rowAt(int y) const
    {
        return static_cast<std::size_t>(height_ - 1 - y) * static_cast<std::size_t>(BytesPerScanLine());
    }

    int width_ = 0, height_ = 0;
    std::vector<std::uint8_t> bytes_;
};

} // namespace velara
