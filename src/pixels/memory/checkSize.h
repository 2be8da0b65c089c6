// What size a picture may have, asked before it is made.
#pragma once
#include "pixels/RuntimeError.h"
#include <cstdint>
#include <string>

namespace velara {

/// A picture would be too large or have no pixels: OutOfRange in a person's words, with the number wanted and the most.
class SizeRefused : public RuntimeError {
  public:
    SizeRefused(std::int64_t width, std::int64_t height);
    const char* what() const noexcept override { return words_.c_str(); }

  private:
    std::string words_;
};

/// SizeRefused for a size that no picture may have (Bits::sizeAllowed).
void checkSize(std::int64_t width, std::int64_t height);

} // namespace velara
