#include "document/UndoStore.h"
#include "fileio/fileBytes.h"
#include <QFile>
#include <array>
#include <cstdio>

namespace velara {

namespace {

/// What stands before the pixels: the header of a top-down 32-bit bitmap that is four wider and higher than the
/// picture. Little-endian, as the machines are that this runs on.
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

/// Bytes of the pixels that the header tells of; 0 when there is no such picture.
std::int64_t pixelBytes(const Header& h)
{
    const std::int64_t width = h.width, height = -std::int64_t(h.height);
    if (!isOurs(h) || width <= 2 * Bits::kMargin || height <= 2 * Bits::kMargin) return 0;
    return width > (std::int64_t(1) << 40) / height ? 0 : width * height * std::int64_t(sizeof(Pixel));
}

QString padded(int number, int digits) { return QString::number(number).rightJustified(digits, u'0'); }

void removeFile(const QString& path) { QFile::remove(path); }

bool replaceFile(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace

UndoStore::UndoStore(QString folder, int documentNumber) : folder_(std::move(folder)), number_(documentNumber) {}

QString UndoStore::fileName(int index) const
{
    return folder_ + QStringLiteral("/b") + padded(number_, 4) + padded(index, 2) + QStringLiteral(".dat");
}

bool UndoStore::save(const Bits& bits)
{
    if (bits.isNull() || folder_.isEmpty()) return false;
    const Header header = headerOf(bits);
    const ByteView head{reinterpret_cast<const std::uint8_t*>(&header), sizeof header};
    const QString path = fileName(step_);
    // The oldest of a full series is about to go: written over in its cached pages it takes half the time of a new
    // file.
    const bool recycled = step_ >= kLimit && replaceFile(fileName(0), path);
    if (!overwriteFile(path, head, {bits.data(), bits.sizeInBytes()})) {
        if (recycled) replaceFile(path, fileName(0));
        return false;
    }
    if (recycled) QFile::resize(path, static_cast<qint64>(head.size() + bits.sizeInBytes()));
    for (int i = step_ + 1; i <= top_; ++i) removeFile(fileName(i));
    if (step_ >= kLimit)
        shiftSeries(); // the counters stay: ten snapshots stand, the state on screen is one of them
    else
        top_ = ++step_;
    return true;
}

/// Drops the oldest. Upward, so that no file is overwritten; one that fails does not stop the rest.
void UndoStore::shiftSeries()
{
    removeFile(fileName(0));
    for (int i = 1; i <= kLimit; ++i) replaceFile(fileName(i), fileName(i - 1));
}

std::optional<Bits> UndoStore::undo()
{
    auto bits = previous();
    if (bits) stepBack();
    return bits;
}

std::optional<Bits> UndoStore::redo()
{
    if (!canRedo()) return {};
    auto bits = load(step_);
    if (bits) ++step_;
    return bits;
}

std::optional<Bits> UndoStore::load(int index) const
{
    FileReader file(fileName(index));
    Header header{};
    if (!file.read({reinterpret_cast<std::uint8_t*>(&header), sizeof header})) return {};
    const std::int64_t size = pixelBytes(header);
    if (size == 0 || file.size() - std::int64_t(sizeof header) < size) return {}; // longer: the tail of an older step
    Bits bits = Bits::uninitialized(header.width - 2 * Bits::kMargin, -header.height - 2 * Bits::kMargin);
    if (!file.read({bits.data(), bits.sizeInBytes()})) return {};
    return bits;
}

void UndoStore::deleteSeries()
{
    for (int i = 0; i < 100; ++i) removeFile(fileName(i)); // a wildcard would take document 10000's for 1000's
}

} // namespace velara
