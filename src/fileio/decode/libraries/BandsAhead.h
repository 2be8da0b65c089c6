// Bands of rows that don't depend on one another, decoded some ahead by all threads at once.
#pragma once
#include "fileio/decode/cage/Helpers.h"
#include <algorithm>
#include <cstdint>
#include <exception>
#include <memory>
#include <vector>

namespace velara::decode {

/// Decoder: `bool decode(std::uint32_t band, Band& to)`, false where the band is damaged. Every thread has its own.
template <class Decoder, class Band> class BandsAhead {
  public:
    /// make() gives a Decoder, as a unique_ptr; atOnce, at least 1: the bands that are in memory together, each made
    /// from a copy of `empty`.
    template <class Make>
    BandsAhead(std::uint32_t count, std::uint32_t atOnce, const Band& empty, Make make)
        : count_(count), bands_(atOnce, empty), isWhole_(atOnce)
    {
        for (unsigned thread = 0; thread < threadsTogether(); ++thread) decoders_.push_back(make());
    }
    /// Null where the band is damaged. Valid until a band beyond those in memory is asked for; downwards only.
    const Band* at(std::uint32_t band)
    {
        if (band >= end_) decodeFrom(band);
        return isWhole_[band - first_] ? &bands_[band - first_] : nullptr;
    }

  private:
    void decodeFrom(std::uint32_t band)
    {
        first_ = band;
        end_ = first_ + std::min(count_ - first_, static_cast<std::uint32_t>(bands_.size()));
        runTogether(first_, end_, [this](std::uint32_t item, unsigned thread) {
            isWhole_[item - first_] = decoders_[thread]->decode(item, bands_[item - first_]);
        });
    }

    std::uint32_t count_, first_ = 0, end_ = 0;
    std::vector<std::unique_ptr<Decoder>> decoders_;
    std::vector<Band> bands_;
    std::vector<char> isWhole_; // not bool: neighbours would share a byte, and threads write to it
};

/// Null where nothing is to be decoded ahead, as atOnce is 0, or can't be for want of memory.
template <class Decoder, class Band, class Make>
std::unique_ptr<BandsAhead<Decoder, Band>> bandsAhead(std::uint32_t count, std::uint32_t atOnce, const Band& empty,
                                                      Make make)
try {
    return atOnce == 0 ? nullptr : std::make_unique<BandsAhead<Decoder, Band>>(count, atOnce, empty, make);
} catch (const std::exception&) {
    return nullptr;
}

} // namespace velara::decode
