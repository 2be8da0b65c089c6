// Frames: assembles the bytes of a scanner into a picture. Uses no library and no device.
#pragma once
#include <QImage>
#include <cstdint>
#include <span>

namespace velara {

/// The format of one frame.
struct FrameFormat {
    int channel = -1; // 0 red, 1 green, 2 blue: one pass of three; -1: whole pixels
    int samples = 1;  // per pixel: 1 grey, 3 red, green, blue
    int depth = 8;    // bits per sample: 1 (set is black), 8, or 16 in this machine's byte order
    int bytesPerLine = 0;
    int width = 0;
};

class Frames {
  public:
    /// Begins a new frame at the upper left. False for an unsupported format or size.
    bool begin(const FrameFormat& format);
    /// The next bytes of the frame, in pieces of any length. False when the picture becomes too large.
    bool add(std::span<const std::uint8_t> bytes);
    /// All complete lines so far, 32 bits; null when there are none.
    QImage picture() const { return picture_.copy(0, 0, picture_.width(), lines_); }

  private:
    void putLine(const std::uint8_t* line);
    bool grow();

    FrameFormat format_;
    QImage picture_;
    QByteArray line_; // an incomplete line
    int row_ = 0, lines_ = 0;
};

} // namespace velara
