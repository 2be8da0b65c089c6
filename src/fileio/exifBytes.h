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
    Description = 0x10e,
    Orientation = 0x112,
    XResolution = 0x11a,
    YResolution = 0x11b,
    ResolutionUnit = 0x128,
    Software = 0x131,
    Date = 0x132,
    Artist = 0x13b,
    HostComputer = 0x13c,
    SmallPicture = 0x201,
    SmallPictureLength = 0x202,
    Xmp = 0x2bc,
    Rating = 0x4746,
    RatingPercent = 0x4749,
    Copyright = 0x8298,
    ExposureTime = 0x829a,
    FNumber = 0x829d,
    Iptc = 0x83bb,
    Photoshop = 0x8649,
    Details = 0x8769,
    Place = 0x8825,
    Sensitivity = 0x8827,
    DateTaken = 0x9003,
    FocalLength = 0x920a,
    UserComment = 0x9286,
    XpTitle = 0x9c9b,
    XpComment = 0x9c9c,
    XpAuthor = 0x9c9d,
    XpKeywords = 0x9c9e,
    XpSubject = 0x9c9f,
    PixelWidth = 0xa002,
    PixelHeight = 0xa003,
    Interoperability = 0xa005,
    Lens = 0xa434,
};
}

/// What the first directory says of the picture and not of its bytes: in a TIFF file it stands among the file's tags.
constexpr std::uint16_t kTagsOfPicture[] = {
    ExifTag::Description, ExifTag::Make,      ExifTag::Model,        ExifTag::Software,      ExifTag::Date,
    ExifTag::Artist,      ExifTag::Rating,    ExifTag::HostComputer, ExifTag::RatingPercent, ExifTag::Copyright,
    ExifTag::XpTitle,     ExifTag::XpComment, ExifTag::XpAuthor,     ExifTag::XpKeywords,    ExifTag::XpSubject};

class ExifBytes {
  public:
    /// How values are stored.
    enum Type : std::uint16_t { Byte = 1, Text, Short, Long, Fraction, Undefined = 7, SignedFraction = 10 };

    struct Entry {
        std::uint16_t tag = 0, type = 0;
        std::uint32_t count = 0;    // of values of that type
        std::size_t at = 0;         // of its 12 bytes
        std::size_t valueAt = 0;    // of the first value; all lie in the block
        std::size_t valueBytes = 0; // of all
    };

    /// An entry to be added; bytes are the values, in the block's byte order.
    struct Addition {
        std::uint16_t tag = 0, type = 0;
        std::uint32_t count = 0;
        QByteArray bytes = {};
    };
    enum class Values { BeforeDirectory, BehindDirectory };

    explicit ExifBytes(QByteArray bytes) : bytes_(std::move(bytes)) {}
    /// A block in the byte order of Intel with an empty directory.
    static ExifBytes empty();

    const QByteArray& bytes() const { return bytes_; }
    /// The offset of the first directory; 0: this is no EXIF.
    std::uint32_t first() const;
    /// The offset of the directory that a directory links to; 0: none.
    std::uint32_t next(std::uint32_t directory) const;
    /// The entries of the directory at an offset, none if it has more than 500; those of an unknown type are left out.
    std::vector<Entry> entries(std::uint32_t directory) const;
    std::optional<Entry> find(std::uint32_t directory, std::uint16_t tag) const;
    /// Where a directory ends, with the link to the next one as far as that is there.
    std::size_t endOf(std::uint32_t directory) const;
    /// The directory that an entry of another one points to; 0: none.
    std::uint32_t directoryOf(std::uint32_t directory, std::uint16_t tag) const;

    /// Value number i of an entry of whole numbers; 0 for other types.
    std::uint32_t number(const Entry& entry, std::uint32_t i = 0) const;
    /// Value number i as a fraction or a whole number; no value for other types, or where it is divided by 0.
    std::optional<double> fraction(const Entry& entry, std::uint32_t i = 0) const;
    /// The characters of a text, up to its zero.
    QByteArray text(const Entry& entry) const;
    /// All values as they stand.
    QByteArray valuesOf(const Entry& entry) const
    {
        return bytes_.mid(static_cast<qsizetype>(entry.valueAt), static_cast<qsizetype>(entry.valueBytes));
    }
    /// Bytes of a number in the block's byte order.
    QByteArray ordered(std::uint32_t value, int count) const;

    /// Changes the first value of an entry of whole numbers, where the value fits; others are left alone.
    void setNumber(const Entry& entry, std::uint32_t value);
    /// Changes the first value of an entry of fractions.
    void setFraction(const Entry& entry, std::uint32_t above, std::uint32_t below);
    /// Changes where an entry finds its values, or what directory it links to.
    void setLink(const Entry& entry, std::uint32_t at) { put(entry.at + 8, 4, at); }
    void setFirst(std::uint32_t directory) { put(4, 4, directory); }
    /// A copy of the directory at the end of the block, with these entries in place of, or beside, its own; where it
    /// stood is cleared, or cut off. Values of more than four bytes stand before or behind it. 0: a directory without
    /// entries is begun. Returns its offset, for the link to it.
    std::uint32_t extended(std::uint32_t directory, const std::vector<Addition>& additions, Values place);
    /// Clears the values of an entry; what of them isn't in the entry itself becomes zeros.
    void clearValues(const Entry& entry) { fill(entry.valueAt, entry.valueBytes); }
    /// Takes an entry out of its directory: the later ones move up. Entries found before are no longer valid. A
    /// directory at the end of the block leaves nothing behind.
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
    std::uint32_t append(const QByteArray& bytes);

    QByteArray bytes_;
};

} // namespace velara
