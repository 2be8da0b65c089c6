// Rows on demand from a library that gives them from the top downwards.
#pragma once
#include <memory>
#include <utility>

namespace velara::decode {

/// Decoder: `void skip()` passes over a row. Begin: makes a Decoder that stands at the top row, as a unique_ptr.
template <class Decoder, class Begin> class InOrder {
  public:
    explicit InOrder(Begin begin, std::unique_ptr<Decoder> atTop = {})
        : begin_(std::move(begin)), decoder_(std::move(atTop))
    {
    }
    /// Calls read(decoder) with a decoder that stands at row y; asked for an earlier row, it begins again. What the
    /// decoder throws goes on to the caller, and the next call begins again.
    template <class Read> void at(int y, Read read)
    try {
        if (!decoder_ || y < next_) {
            decoder_ = begin_();
            next_ = 0;
        }
        for (; next_ < y; ++next_) decoder_->skip();
        read(*decoder_);
        ++next_;
    } catch (...) {
        decoder_.reset();
        throw;
    }

  private:
    Begin begin_;
    std::unique_ptr<Decoder> decoder_;
    int next_ = 0; // the row at which the decoder stands
};

/// A function for Decoded::row or Samples::row; read is a member of Decoder that writes the next row.
template <class Decoder, class To, class Begin>
auto rowsInOrder(void (Decoder::*read)(To*), Begin begin, std::unique_ptr<Decoder> atTop = {})
{
    auto rows = std::make_shared<InOrder<Decoder, Begin>>(std::move(begin), std::move(atTop));
    return [rows, read](int y, To* to) { rows->at(y, [&](Decoder& decoder) { (decoder.*read)(to); }); };
}

} // namespace velara::decode
