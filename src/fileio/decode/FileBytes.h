// A file's bytes in memory, which may be repaired before a reader sees them; the file itself is never changed.
#pragma once
#include <QString>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace velara::decode {

/// Copies share the bytes: readers that produce rows on demand keep one.
class FileBytes {
  public:
    /// Maps the file privately: it is read page by page, and changing a byte copies its page.
    explicit FileBytes(const QString& path);
    /// The file behind a descriptor, which stays open.
    explicit FileBytes(int descriptor);
    explicit FileBytes(std::vector<std::uint8_t> bytes) { replace(std::move(bytes)); }

    /// Empty when the file can't be read.
    std::span<std::uint8_t> bytes() const { return bytes_; }
    std::size_t size() const { return bytes_.size(); }
    /// Replaces the contents.
    void replace(std::vector<std::uint8_t> bytes)
    {
        const auto owned = std::make_shared<std::vector<std::uint8_t>>(std::move(bytes));
        bytes_ = *owned;
        owner_ = owned;
    }

    bool startsWith(std::string_view magic) const;
    /// Numbers at an offset; 0 beyond the end.
    std::uint32_t byte(std::size_t at) const { return at < size() ? bytes_[at] : 0; }
    std::uint32_t little16(std::size_t at) const { return byte(at) | byte(at + 1) << 8; }
    std::uint32_t little32(std::size_t at) const { return little16(at) | little16(at + 2) << 16; }
    std::uint32_t big16(std::size_t at) const { return byte(at) << 8 | byte(at + 1); }
    std::uint32_t big32(std::size_t at) const { return big16(at) << 16 | big16(at + 2); }

  private:
    void map(int fd);

    std::shared_ptr<void> owner_;
    std::span<std::uint8_t> bytes_;
};

} // namespace velara::decode
