// One run of velara-decode: descriptors, limits, and an end in any case.
#pragma once
#include "fileio/load/PictureLoader.h"
#include <optional>
#include <sys/types.h>
#include <utility>

namespace velara {

/// While one lives no other process can look into the memory of this one, a child that a picture took over least of
/// all.
class UnreadableByOthers {
  public:
    UnreadableByOthers();
    ~UnreadableByOthers();
    UnreadableByOthers(const UnreadableByOthers&) = delete;
    UnreadableByOthers& operator=(const UnreadableByOthers&) = delete;
};

/// Starts the helper; the destructor kills and reaps it.
class DecoderProcess {
  public:
    enum class Wait { Message, Nonsense, Ended, TimedOut, Stopped };

    /// file is open for reading; the child inherits it.
    DecoderProcess(const QString& decoder, const Descriptor& file, const QString& extension,
                   const DecoderLimits& limits, const GoOn& goOn);
    ~DecoderProcess();
    DecoderProcess(const DecoderProcess&) = delete;
    DecoderProcess& operator=(const DecoderProcess&) = delete;

    bool started() const { return pid_ > 0; }
    /// The shared memory, decode::kMemoryBytes long.
    const std::uint8_t* memory() const { return memory_; }
    /// Allows the processor time that a picture of so many pixels may take.
    void claim(std::int64_t pixels);
    /// Waits for the next message until a limit; one of another size is nonsense. Stopped: goOn said so. The limits are
    /// looked at and goOn is asked twenty times a second, at the first call and however many messages come.
    Wait receive(void* message, std::size_t size);
    /// Gives the oldest slot back.
    void releaseSlot();
    /// Gives the child a moment to end by itself, then kills it. How it ended, as of waitpid; -1 when unknown.
    int end(std::chrono::milliseconds patience = {});

  private:
    /// Looks at the limits and asks the caller; how it ends, if it does. silent: no message is waiting.
    std::optional<Wait> look(bool silent);

    UnreadableByOthers unreadable_;
    const GoOn& goOn_;
    DecoderLimits limits_;
    std::chrono::steady_clock::time_point started_, nextLook_;
    int idleLooks_ = 0; // at which the child did nothing
    Descriptor socket_;
    std::uint8_t* memory_ = nullptr;
    pid_t pid_ = -1;
};

} // namespace velara
