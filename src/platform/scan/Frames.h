// Frames: the bytes that a scanner gives, put together to a picture. No library, no device.
#pragma once
#include <QImage>
#include <cstdint>
#include <span>

namespace velara {

/// One frame: what its bytes are.
struct FrameFormat {
    int channel = -1; // 0 red, 1 green, 2 blue: a pass of three; -1: all of the pixel
    int samples = 1;  // a pixel: 1 grey, 3 red, green, blue
    int depth = 8;    // bits a sample: 1 (set is black), 8, 16 in this machine's order
    int bytesPerLine = 0;
    int width = 0;
};

class Frames {
  public:
    /// A new frame begins at the upper left. False for a format or a size that is not taken.
    bool begin(const FrameFormat& format);
    /// The next bytes of it, in pieces of any length. False when the picture becomes too large.
    bool add(std::span<const std::uint8_t> bytes);
    /// All whole lines so far, 32 bits; null when there are none.
    QImage picture() const { return picture_.copy(0, 0, picture_.width(), lines_); }

  private:
    void putLine(const std::uint8_t* line);
    bool grow();

    FrameFormat format_;
    QImage picture_;
    QByteArray line_; // begun and not whole
    int row_ = 0, lines_ = 0;
};

} // namespace velara
