// Bands of rows that don't depend on one another, decoded by all threads: while the caller uses some, the helpers
// decode the next ones.
#pragma once
#include "fileio/decode/cage/Helpers.h"
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace velara::decode {

/// Decoder: `bool decode(std::uint32_t band, Band& to)`, false or an exception where the band is damaged. Every thread
/// has its own.
template <class Decoder, class Band> class BandsAhead {
  public:
    /// decoder() gives a Decoder, as a unique_ptr, and room() the memory of a band. atOnce, at least 1: how many bands
    /// are decoded while as many are used.
    template <class MakeDecoder, class MakeBand>
    BandsAhead(std::uint32_t count, std::uint32_t atOnce, MakeDecoder decoder, MakeBand room) : count_(count)
    {
        for (Wave* wave : {&now_, &next_}) {
            for (std::uint32_t i = 0; i < atOnce; ++i) wave->bands.push_back(room());
            wave->isWhole.resize(atOnce);
        }
        for (unsigned thread = 0; thread < threadsTogether(); ++thread) decoders_.push_back(decoder());
    }
    ~BandsAhead()
    {
        skip_ = true;
        if (isUnderWay_) endTogether();
    }
    BandsAhead(const BandsAhead&) = delete;
    BandsAhead& operator=(const BandsAhead&) = delete;

    /// One after the other, from 0. Null where the band is damaged. Valid until the next one is asked for.
    const Band* at(std::uint32_t band)
    {
        if (band == 0) begin();
        if (band >= now_.end) {
            finish();
            begin();
        }
        return now_.isWhole[band - now_.first] ? &now_.bands[band - now_.first] : nullptr;
    }

  private:
    struct Wave {
        std::uint32_t first = 0, end = 0;
        std::vector<Band> bands;
        std::vector<char> isWhole; // not bool: neighbours would share a byte, and threads write to it
    };
    /// The bands behind those of now_.
    void begin()
    {
        next_.first = now_.end;
        next_.end = now_.end + std::min(count_ - now_.end, static_cast<std::uint32_t>(next_.bands.size()));
        isUnderWay_ = next_.end > next_.first && beginTogether(next_.first, next_.end, decode_);
    }
    void finish()
    {
        if (std::exchange(isUnderWay_, false))
            endTogether();
        else
            runTogether(next_.first, next_.end, decode_);
        std::swap(now_, next_);
    }

    const std::uint32_t count_;
    std::vector<std::unique_ptr<Decoder>> decoders_;
    Wave now_, next_;
    bool isUnderWay_ = false;
    std::atomic<bool> skip_ = false; // what is under way isn't wanted any more
    const std::function<void(std::uint32_t, unsigned)> decode_ = [this](std::uint32_t band, unsigned thread) {
        const std::uint32_t i = band - next_.first;
        try {
            next_.isWhole[i] = !skip_ && decoders_[thread]->decode(band, next_.bands[i]);
        } catch (const std::exception&) {
            next_.isWhole[i] = false;
        }
    };
};

/// Null where nothing is to be decoded ahead, as atOnce is 0, or can't be for want of memory.
template <class Decoder, class Band, class MakeDecoder, class MakeBand>
std::unique_ptr<BandsAhead<Decoder, Band>> bandsAhead(std::uint32_t count, std::uint32_t atOnce, MakeDecoder decoder,
                                                      MakeBand room)
try {
    return atOnce == 0 ? nullptr : std::make_unique<BandsAhead<Decoder, Band>>(count, atOnce, decoder, room);
} catch (const std::exception&) {
    return nullptr;
}

} // namespace velara::decode
