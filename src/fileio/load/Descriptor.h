// Descriptor: a file descriptor that closes itself.
#pragma once
#include <unistd.h>
#include <utility>

namespace velara {

class Descriptor {
  public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(fd_, other.fd_);
        return *this;
    }
    int get() const { return fd_; }
    bool isOpen() const { return fd_ >= 0; }
    void close()
    {
        if (fd_ >= 0) ::close(std::exchange(fd_, -1));
    }

  private:
    int fd_;
};

} // namespace velara
