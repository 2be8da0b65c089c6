// giflib over bytes in memory, frame by frame.
#pragma once
#include "fileio/decode/decode.h"
#include <gif_lib.h>

namespace velara::decode {

/// Where a frame lies in the file: from its descriptor to the byte behind its pixels.
struct GifPlace {
    std::size_t begin = 0, end = 0;
};

/// The frames of which the file has at least the head. A last block of pixels that is cut off is shortened to what is
/// there, so that the library reads it; isCutOff then.
struct GifPlaces {
    explicit GifPlaces(FileBytes& file);

    std::vector<GifPlace> frames{};
    bool isCutOff = false; // the last frame
};

class Gif {
  public:
    /// Throws Damage.
    explicit Gif(const FileBytes& file);
    ~Gif() { DGifCloseFile(gif_, nullptr); }
    Gif(const Gif&) = delete;
    Gif& operator=(const Gif&) = delete;

    /// Goes on at a byte of the file.
    void goTo(std::size_t at) { at_ = at; }
    /// Reads up to the pixels of the next frame; false where there is none.
    bool nextFrame();
    /// The next indices of the frame, across its rows; false, with some of them written, where no more are there.
    bool read(std::span<GifPixelType> indices);

    const GifFileType& get() const { return *gif_; }
    const GifImageDesc& frame() const { return gif_->Image; }
    /// How the frame is shown and taken away.
    const GraphicsControlBlock& control() const { return control_; }
    /// The first comment up to here.
    const std::string& comment() const { return comment_; }

  private:
    bool takeExtension();

    const FileBytes file_;
    std::size_t at_ = 0;
    GifFileType* gif_ = nullptr;
    GraphicsControlBlock control_{};
    std::string comment_;
};

} // namespace velara::decode
