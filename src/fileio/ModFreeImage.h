// The bridge to FreeImage for writing: opened and closed around each operation, with the text of the last error.
#pragma once
#include "pixels/Bits.h"
#include <QString>

struct FIBITMAP;

namespace velara {

/// FreeImage is open while an object lives; its messages become the last error of the thread, which is empty at
/// first. For any thread.
class FreeImageStart {
  public:
    FreeImageStart();
    ~FreeImageStart();
    FreeImageStart(const FreeImageStart&) = delete;
    FreeImageStart& operator=(const FreeImageStart&) = delete;
};

/// Nothing shows it; it serves a debugger.
const QString& FreeImageLastError();
/// Stores text, unless one is already stored and keepFirst is true.
void FreeImageSetError(const QString& text, bool keepFirst);

/// A 24-bit bitmap of a picture, in a recycled block.
class Dib24 {
  public:
    /// Converts; get() is null, with the reason as last error, when bits is empty or memory is short.
    explicit Dib24(const Bits& bits);
    ~Dib24();
    Dib24(const Dib24&) = delete;
    Dib24& operator=(const Dib24&) = delete;
    FIBITMAP* get() const { return dib_; }

  private:
    Bits block_;
    FIBITMAP* dib_ = nullptr;
};

/// Blue, green and red of W pixels, packed.
void packRow24(const Pixel* row, std::uint8_t* to, int width);

} // namespace velara
