// WebpEncoder: a picture of libwebp, and the file that it becomes; for the programs and for velara-encode.
#pragma once
#include "fileio/writers/webp/WebpForm.h"
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <webp/encode.h>
#include <webp/mux_types.h>

namespace velara {

class WebpEncoder {
  public:
    explicit WebpEncoder(const WebpForm& form);
    ~WebpEncoder();
    WebpEncoder(const WebpEncoder&) = delete;
    WebpEncoder& operator=(const WebpEncoder&) = delete;

    /// Rows of three bytes a pixel, without padding. False: it is too large, or there is no memory.
    bool takeRgb(const std::uint8_t* pixels, int width, int height);
    /// Rows of four bytes a pixel, `stride` bytes apart; the fourth says nothing.
    bool takeBgrx(const std::uint8_t* pixels, int width, int height, int stride);
    /// `goesOn` is asked at each percent; false ends it.
    bool encode(const std::function<bool()>& goesOn);
    /// Puts what the camera wrote beside the picture; any of it may be empty.
    bool finish(std::span<const std::uint8_t> exif, std::span<const std::uint8_t> xmp,
                std::span<const std::uint8_t> profile);
    /// The finished file.
    std::span<const std::uint8_t> file() const;

  private:
    void setSize(int width, int height);

    WebpForm form_;
    WebPConfig config_;
    WebPPicture picture_;
    WebPMemoryWriter bytes_; // the library goes back in them until the end
    WebPData muxed_{};
};

} // namespace velara
