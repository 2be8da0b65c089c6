// Reads bytes one after another, never beyond the end: what is missing there stays as it was, and is remembered.
#pragma once
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace velara::decode {

class Cursor {
  public:
    explicit Cursor(std::span<const std::uint8_t> bytes, std::size_t at = 0)
        : bytes_(bytes), at_(std::min(at, bytes.size()))
    {
    }
    std::size_t at() const { return at_; }
    std::size_t left() const { return bytes_.size() - at_; }
    /// Whether more was asked for than there is.
    bool ranDry() const { return ranDry_; }
    /// Stays where it is when that is beyond the end.
    void seek(std::size_t at)
    {
        if (at <= bytes_.size()) at_ = at;
    }

    /// Copies count bytes; returns false when some are missing.
    bool read(std::uint8_t* to, std::size_t count)
    {
        const std::size_t there = std::min(count, left());
        if (there > 0) std::memcpy(to, bytes_.data() + at_, there);
        at_ += there;
        if (there < count) ranDry_ = true;
        return there == count;
    }
    bool read(std::uint8_t& to) { return read(&to, 1); }
    /// The next byte; 0 beyond the end.
    std::uint8_t byte()
    {
        std::uint8_t value = 0;
        read(value);
        return value;
    }
    void skip(std::size_t count)
    {
        if (count > left()) ranDry_ = true;
        at_ += std::min(count, left());
    }

  private:
    std::span<const std::uint8_t> bytes_;
    std::size_t at_;
    bool ranDry_ = false;
};

} // namespace velara::decode
