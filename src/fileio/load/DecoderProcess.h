// One run of velara-decode: descriptors, limits, and guaranteed termination.
#pragma once
#include "fileio/load/PictureLoader.h"
#include <optional>
#include <sys/types.h>
#include <utility>

namespace velara {

/// While an object lives, no other process can read the memory of this one, in particular no child that a picture has
/// taken over.
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

    /// file is open for reading; the child inherits it. wishes: see DecodeProtocol.h.
    DecoderProcess(const QString& decoder, const Descriptor& file, const QString& extension, const QStringList& wishes,
                   const DecoderLimits& limits, const GoOn& goOn);
    ~DecoderProcess();
    DecoderProcess(const DecoderProcess&) = delete;
    DecoderProcess& operator=(const DecoderProcess&) = delete;

    bool started() const { return pid_ > 0; }
    /// The shared memory, decode::kMemoryBytes long.
    const std::uint8_t* memory() const { return memory_; }
    /// Allows the processor time for a picture of the given pixels.
    void claim(std::int64_t pixels);
    /// Waits for the next message until a limit; one of another size is Nonsense. Stopped: goOn returned false. The
    /// limits are checked and goOn is called twenty times a second, from the first call on and however many messages
    /// come.
    Wait receive(void* message, std::size_t size);
    /// Gives the oldest slot back.
    void releaseSlot();
    /// Gives the child a moment to end by itself, then kills it. Returns its status as of waitpid; -1 when unknown.
    int end(std::chrono::milliseconds patience = {});

  private:
    /// Checks the limits and asks the caller; the result if the wait is over. silent: no message is pending.
    std::optional<Wait> look(bool silent);

    UnreadableByOthers unreadable_;
    const GoOn& goOn_;
    DecoderLimits limits_;
    std::chrono::steady_clock::time_point started_, nextLook_;
    int idleLooks_ = 0; // checks at which the child was idle
    Descriptor socket_;
    std::uint8_t* memory_ = nullptr;
    pid_t pid_ = -1;
};

} // namespace velara
