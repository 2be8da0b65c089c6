// One run of velara-decode: descriptors, limits, and an end in any case.
#pragma once
#include "fileio/load/PictureLoader.h"
#include <sys/types.h>
#include <utility>

namespace velara {

/// A descriptor that closes itself.
class Descriptor {
  public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept : fd_(other.fd_) { other.fd_ = -1; }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(fd_, other.fd_);
        return *this;
    }
    int get() const { return fd_; }
    bool isOpen() const { return fd_ >= 0; }
    void close();

  private:
    int fd_;
};

/// Starts the helper; the destructor kills and reaps it.
class DecoderProcess {
  public:
    enum class Wait { Message, Nonsense, Ended, TimedOut };

    DecoderProcess(const QString& decoder, const QString& path, const QString& extension, const DecoderLimits& limits);
    ~DecoderProcess();
    DecoderProcess(const DecoderProcess&) = delete;
    DecoderProcess& operator=(const DecoderProcess&) = delete;

    bool started() const { return pid_ > 0; }
    /// The shared memory, decode::kMemoryBytes long.
    const std::uint8_t* memory() const { return memory_; }
    /// Waits for the next message until the wall-clock limit; one of another size is nonsense.
    Wait receive(void* message, std::size_t size);
    /// Gives the oldest slot back.
    void releaseSlot();
    /// Gives the child a moment to end by itself, then kills it. How it ended, as of waitpid; -1 when unknown.
    int end(std::chrono::milliseconds patience = {});

  private:
    void spawn(const QString& decoder, const QString& path, const QString& extension, int socket, int memory);

    std::chrono::steady_clock::time_point deadline_;
    Descriptor socket_;
    std::uint8_t* memory_ = nullptr;
    pid_t pid_ = -1;
};

} // namespace velara
