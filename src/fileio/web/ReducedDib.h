// FreeImage's bitmap of a reduced picture.
#pragma once
#include "fileio/ModFreeImage.h"
#include "reduce/reduceColours.h"
#include <optional>

namespace velara {

/// 1, 4, 8, 16 (five bits a channel) or 24 bits per pixel, the next that holds a palette's colours; get() is null for
/// other bit counts and when memory is short.
class ReducedDib {
  public:
    explicit ReducedDib(const ReducedPicture& picture);
    ~ReducedDib();
    ReducedDib(const ReducedDib&) = delete;
    ReducedDib& operator=(const ReducedDib&) = delete;
    FIBITMAP* get() const { return dib_ ? dib_ : full_ ? full_->get() : nullptr; }

  private:
    FIBITMAP* dib_ = nullptr;
    std::optional<Dib24> full_;
};

/// The reduced picture in true colour.
Bits pictureOf(const ReducedPicture& picture);

} // namespace velara
