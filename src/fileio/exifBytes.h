// ExifBytes: the directories in a block of EXIF, read and changed in place. Nothing that the block says is trusted: an
// entry whose value lies outside of it doesn't exist, and no link is followed but by the caller.
#pragma once
#include <QByteArray>
#include <cstdint>
#include <optional>
#include <vector>

namespace velara {

/// Tags by their numbers in the standard.
namespace ExifTag {
enum : std::uint16_t {
    Width = 0x100,
    Height = 0x101,
    Make = 0x10f,
    Model = 0x110,
    Orientation = 0x112,
    XResolution = 0x11a,
    YResolution = 0x11b,
    ResolutionUnit = 0x128,
    Date = 0x132,
    SmallPicture = 0x201,
    SmallPictureLength = 0x202,
    ExposureTime = 0x829a,
    FNumber = 0x829d,
    Details = 0x8769,
    Place = 0x8825,
    Sensitivity = 0x8827,
    DateTaken = 0x9003,
    FocalLength = 0x920a,
    PixelWidth = 0xa002,
    PixelHeight = 0xa003,
    Lens = 0xa434,
};
}

class ExifBytes {
  public:
    struct Entry {
        std::uint16_t tag = 0, type = 0;
        std::uint32_t count = 0;    // of values of that type
        std::size_t at = 0;         // of its 12 bytes
        std::size_t valueAt = 0;    // of the first value; all lie in the block
        std::size_t valueBytes = 0; // of all
    };

    explicit ExifBytes(QByteArray bytes) : bytes_(std::move(bytes)) {}

    const QByteArray& bytes() const { return bytes_; }
    /// The offset of the first directory; 0: this is no EXIF.
    std::uint32_t first() const;
    /// The offset of the directory that a directory links to; 0: none.
    std::uint32_t next(std::uint32_t directory) const;
    /// The entries of the directory at an offset, none if it has more than 500; those of an unknown type are left out.
    std::vector<Entry> entries(std::uint32_t directory) const;
    std::optional<Entry> find(std::uint32_t directory, std::uint16_t tag) const;
    /// The directory that an entry of another one points to; 0: none.
    std::uint32_t directoryOf(std::uint32_t directory, std::uint16_t tag) const;

    /// Value number i of an entry of whole numbers; 0 for other types.
    std::uint32_t number(const Entry& entry, std::uint32_t i = 0) const;
    /// Value number i as a fraction or a whole number; no value for other types, or where it is divided by 0.
    std::optional<double> fraction(const Entry& entry, std::uint32_t i = 0) const;
    /// The characters of a text, up to its zero.
    QByteArray text(const Entry& entry) const;

    /// Changes the first value of an entry of whole numbers, where the value fits; others are left alone.
    void setNumber(const Entry& entry, std::uint32_t value);
    /// Clears the values of an entry; what of them isn't in the entry itself becomes zeros.
    void clearValues(const Entry& entry) { fill(entry.valueAt, entry.valueBytes); }
    /// Takes an entry out of its directory: the later ones move up. Entries found before are no longer valid.
    void remove(std::uint32_t directory, const Entry& entry);
    /// Ends a chain of directories.
    void setNext(std::uint32_t directory, std::uint32_t value);
    /// Zeros, as far as they lie in the block.
    void fill(std::size_t at, std::size_t count);
    void cut(std::size_t size) { bytes_.truncate(static_cast<qsizetype>(size)); }

  private:
    bool isLittle() const { return bytes_.startsWith('I'); }
    bool holds(std::size_t at, std::size_t count) const
    {
        const auto size = static_cast<std::size_t>(bytes_.size());
        return at <= size && count <= size - at;
    }
    std::uint32_t get(std::size_t at, int count) const;
    void put(std::size_t at, int count, std::uint32_t value);
    std::uint32_t entryCount(std::uint32_t directory) const;

    QByteArray bytes_;
};

} // namespace velara
