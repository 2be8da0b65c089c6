#include "document/undo/UndoFiles.h"
#include "fileio/disk/fileBytes.h"
#include <QFile>
#include <array>
#include <cstdio>
#include <sys/stat.h>

namespace velara {

namespace {

/// What precedes the pixels: the header of a top-down 32-bit bitmap, four wider and higher than the picture.
/// Little-endian, as are the machines that this runs on.
struct Header {
    std::int32_t size, width, height;
    std::int16_t planes, bitCount;
    std::array<std::int32_t, 6> rest;
};
static_assert(sizeof(Header) == 40);

Header headerOf(const Bits& bits)
{
    return {sizeof(Header), bits.width() + 2 * Bits::kMargin, -(bits.height() + 2 * Bits::kMargin), 1, 32, {}};
}

bool isOurs(const Header& h) { return h.size == sizeof(Header) && h.planes == 1 && h.bitCount == 32; }

/// Bytes of the pixels that the header describes; 0 when it is invalid.
std::int64_t pixelBytes(const Header& h)
{
    const std::int64_t width = h.width, height = -std::int64_t(h.height);
    if (!isOurs(h) || width <= 2 * Bits::kMargin || height <= 2 * Bits::kMargin) return 0;
    return width > (std::int64_t(1) << 40) / height ? 0 : width * height * std::int64_t(sizeof(Pixel));
}

/// False when it is missing, damaged, or the file too short for it. A longer one has an older step's tail.
bool readHeader(FileReader& file, Header& header)
{
    if (!file.read({reinterpret_cast<std::uint8_t*>(&header), sizeof header})) return false;
    const std::int64_t size = pixelBytes(header);
    return size > 0 && file.size() - std::int64_t(sizeof header) >= size;
}

QString padded(int number, int digits) { return QString::number(number).rightJustified(digits, u'0'); }

bool replaceFile(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace

QString UndoFiles::name(int index) const
{
    return folder_ + QStringLiteral("/b") + padded(number_, 4) + padded(index, 2) + QStringLiteral(".dat");
}

QString UndoFiles::nameOf(const QString& ending) const
{
    return folder_ + QStringLiteral("/b") + padded(number_, 4) + u'.' + ending;
}

bool UndoFiles::write(int index, const Bits& bits, const Before& before) const
{
    const Header header = headerOf(bits);
    const ByteView head{reinterpret_cast<const std::uint8_t*>(&header), sizeof header};
    return overwriteFile(name(index), head, {bits.data(), bits.sizeInBytes()}, before);
}

bool UndoFiles::writeOverOldest(int index, const Bits& bits, const Before& before) const
{
    const bool recycled = replaceFile(name(0), name(index));
    if (!write(index, bits, before)) return false;
    if (recycled) QFile::resize(name(index), static_cast<qint64>(sizeof(Header) + bits.sizeInBytes()));
    return true;
}

std::optional<Bits> UndoFiles::read(int index) const
{
    FileReader file(name(index));
    Header header{};
    if (!readHeader(file, header)) return {};
    Bits bits = Bits::uninitialized(header.width - 2 * Bits::kMargin, -header.height - 2 * Bits::kMargin);
    if (!file.read({bits.data(), bits.sizeInBytes()})) return {};
    return bits;
}

void UndoFiles::remove(int index) const { QFile::remove(name(index)); }

std::uint64_t UndoFiles::identity(int index) const
{
    struct stat status {};
    const bool found = lstat(QFile::encodeName(name(index)).constData(), &status) == 0 && S_ISREG(status.st_mode);
    return found ? std::uint64_t{status.st_ino} : 0;
}

bool UndoFiles::isWhole(int index) const
{
    FileReader file(name(index));
    Header header{};
    return readHeader(file, header);
}

bool UndoFiles::move(int from, int to) const { return replaceFile(name(from), name(to)); }

void UndoFiles::drop(int index, int last) const
{
    remove(index);
    for (int i = index + 1; i <= last; ++i) replaceFile(name(i), name(i - 1));
}

void UndoFiles::removeAll() const
{
    if (folder_.isEmpty()) return;             // no steps are kept
    for (int i = 0; i < kMost; ++i) remove(i); // a wildcard would match document 10000's files for 1000's
}

} // namespace velara
