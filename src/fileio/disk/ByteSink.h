// ByteSink: what takes the bytes of a file, one after the other, and knows whether the file is still wanted.
#pragma once
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

namespace velara {

class ByteSink {
  public:
    ByteSink() = default;
    virtual ~ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;

    /// False when they can't be taken, or the file isn't wanted any more; later ones can't be taken then.
    virtual bool write(const void* bytes, std::size_t size) = 0;
    /// So many bytes are to come next: room for them may be taken at once, which is faster.
    virtual void expect(std::int64_t /*bytes*/) {}
    /// For long work between two writes: false ends it.
    virtual bool goesOn() = 0;
    /// Of a picture that is still being read: waits for a row. False: it doesn't come, and the file isn't wanted.
    virtual bool awaitRow(int) { return true; }
};

/// Keeps only the number of bytes.
class ByteCounter final : public ByteSink {
  public:
    explicit ByteCounter(std::function<bool()> goOn = {}) : goOn_(std::move(goOn)) {}
    bool write(const void*, std::size_t size) override
    {
        bytes += static_cast<std::int64_t>(size);
        return goesOn();
    }
    bool goesOn() override { return !goOn_ || goOn_(); }

    std::int64_t bytes = 0;

  private:
    std::function<bool()> goOn_;
};

} // namespace velara
