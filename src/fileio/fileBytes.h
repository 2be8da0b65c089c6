// Whole blocks of bytes to and from files: how undo steps and the configuration record reach the disk.
#pragma once
#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace velara {

using ByteView = std::span<const std::uint8_t>;

/// Writes head and body from offset 0 in one call, creating the file if need be, for its owner alone. It is not
/// truncated: a longer file keeps its tail. A link that stands there is not followed: a new file takes its place. On
/// failure false, with errno; what stood there before is whole, save after a device error, when it is removed.
bool overwriteFile(const QString& path, ByteView head, ByteView body = {});

/// A regular file opened for reading; size() is -1 when there is none. Never waits on pipes and devices, and follows no
/// link.
class FileReader {
  public:
    explicit FileReader(const QString& path);
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    std::int64_t size() const { return size_; }
    /// Reads the next bytes into target. False when there are fewer.
    bool read(std::span<std::uint8_t> target);

  private:
    int file_;
    std::int64_t size_ = -1;
};

/// True when something has this path. The wildcards * and ? in its last part match as many and one character.
bool FileFound(const QString& path);

} // namespace velara
