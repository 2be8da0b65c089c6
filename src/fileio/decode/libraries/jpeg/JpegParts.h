// A JPEG cut at its restart marks, into parts that decoders of their own make rows of: the same as one makes of all.
#pragma once
#include "fileio/decode/libraries/jpeg/JpegRows.h"
#include <cstdint>

namespace velara::decode {

class JpegParts {
  public:
    static constexpr std::uint64_t kLeastPixels = 8 << 20; // with two processors, smaller ones aren't sooner ready

    /// Rows: of the same bytes, with the header read, not started. The bytes are the caller's.
    JpegParts(Span file, const JpegRows& rows, std::uint64_t leastPixels = kLeastPixels);

    /// 0: it can't be cut, as it has no restart marks at ends of rows, is of another kind than baseline, or anything
    /// about its segments and marks is irregular; or it is small. More than one otherwise.
    std::uint32_t count() const { return count_; }
    std::uint32_t width() const { return width_; }
    std::uint32_t rows() const { return units_ * unitRows_; } // in a part; the last one may have fewer

    /// A stream of the part's rows and of some above and below, which its colours are interpolated with.
    struct Part {
        std::vector<std::uint8_t> header;
        JpegBytes bytes; // the header and what follows it
        std::uint32_t above, rows;
    };
    Part part(std::uint32_t number) const;

  private:
    bool takeHeader(std::size_t end);
    bool takeMarks(const jpeg_decompress_struct& info, std::size_t from);

    Span file_;
    std::uint32_t width_, height_, count_ = 0;
    std::vector<std::uint8_t> header_; // the segments that the pixels depend on
    std::size_t heightAt_ = 0;         // in header_
    // A unit begins and ends at a restart mark and at an end of a row of the largest blocks.
    std::uint32_t unitRows_ = 0, blockRows_ = 0, marksInUnit_ = 1, units_ = 0; // pixels; marks; units in a part
    bool isInterpolated_ = false;                                              // downwards
    std::vector<std::size_t> unitsFrom_;                                       // and where the last one ends
};

} // namespace velara::decode
