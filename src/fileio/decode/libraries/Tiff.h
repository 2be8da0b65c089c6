// libtiff over bytes in memory, without a word to the terminal.
#pragma once
#include "fileio/decode/decode.h"
#include "fileio/decode/libraries/metadata.h"
#include <tiffio.h>

namespace velara::decode {

/// A picture of a file, by the number of its directory.
struct TiffPage {
    FileBytes file;
    tdir_t directory = 0;
};

class Tiff {
  public:
    /// Throws Damage.
    explicit Tiff(const TiffPage& page);
    ~Tiff() { TIFFClose(tiff_); }
    Tiff(const Tiff&) = delete;
    Tiff& operator=(const Tiff&) = delete;

    TIFF* get() const { return tiff_; }
    Span file() const { return file_.bytes(); }
    /// The value of a tag of one number; otherwise: it isn't there.
    template <class Number> Number number(std::uint32_t tag, Number otherwise) const
    {
        Number value = otherwise;
        return TIFFGetField(tiff_, tag, &value) ? value : otherwise;
    }
    /// The bytes of a tag that has them and their number.
    Span bytes(std::uint32_t tag) const;
    /// True when all pixels lie inside of the file as far as their places tell.
    bool endsInside() const;

  private:
    static tmsize_t read(thandle_t self, void* to, tmsize_t count);
    static toff_t seek(thandle_t self, toff_t offset, int origin);

    const FileBytes file_;
    std::size_t at_ = 0;
    TIFF* tiff_ = nullptr;
};

/// The directories of the pages: the first one, and those behind it that are neither a smaller copy of another page
/// nor a mask, up to one that is damaged.
std::vector<tdir_t> pagesOf(const FileBytes& file);

/// What the picture carries, but for the number of pages; orientation is the tag's: the rows are as the file has them.
Carried carriedByTiff(const Tiff& tiff);

} // namespace velara::decode
