// Reads and writes whole blocks of bytes: how undo steps and the configuration record reach the disk.
#pragma once
#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace velara {

using ByteView = std::span<const std::uint8_t>;

/// Writes head and body, one after the other, at the file's place. False with errno: a part may have been written.
bool writeBlocks(int file, ByteView head, ByteView body = {});

/// Writes head and body from offset 0, creating the file if need be, accessible to its owner only. It is not truncated:
/// a longer file keeps its tail. A symbolic link is not followed: a new file replaces it. On failure false, with errno;
/// the previous file is intact, except after a device error, when it is removed. before(end), which must not throw, is
/// called before the bytes of body up to end are written, a few megabytes at a time: who has to read them all, too,
/// fetches them once from memory.
bool overwriteFile(const QString& path, ByteView head, ByteView body = {},
                   const std::function<void(std::size_t end)>& before = {});

/// A regular file opened for reading; size() is -1 when there is none. Never blocks on pipes and devices, and follows
/// no links.
class FileReader {
  public:
    explicit FileReader(const QString& path);
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    std::int64_t size() const { return size_; }
    /// Reads the next bytes into target. False when fewer are left.
    bool read(std::span<std::uint8_t> target);

  private:
    int file_;
    std::int64_t size_ = -1;
};

/// True when the path exists. The wildcards * and ? in its last part match any number of characters and one character.
bool FileFound(const QString& path);

} // namespace velara
