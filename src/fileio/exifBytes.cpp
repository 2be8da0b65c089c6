#include "fileio/exifBytes.h"
#include <algorithm>
#include <array>

namespace velara {

namespace {

constexpr std::size_t kEntryBytes = 12, kInEntry = 4; // a value of up to four bytes stands in the entry itself

constexpr std::uint32_t kMostEntries = 500; // a directory of more is none: cameras write some sixty

/// Bytes of a value by its type; 0: unknown.
constexpr std::array<std::uint8_t, 14> kTypeBytes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};

} // namespace

ExifBytes ExifBytes::empty() { return ExifBytes(QByteArray("II*\0\10\0\0\0\0\0\0\0\0\0", 14)); }

std::uint32_t ExifBytes::get(std::size_t at, int count) const
{
    if (!holds(at, static_cast<std::size_t>(count))) return 0;
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i) {
        const int from = isLittle() ? count - 1 - i : i;
        value = value << 8 | static_cast<std::uint8_t>(bytes_[static_cast<qsizetype>(at) + from]);
    }
    return value;
}

void ExifBytes::put(std::size_t at, int count, std::uint32_t value)
{
    if (!holds(at, static_cast<std::size_t>(count))) return;
    for (int i = 0; i < count; ++i, value >>= 8)
        bytes_[static_cast<qsizetype>(at) + (isLittle() ? i : count - 1 - i)] = static_cast<char>(value & 0xff);
}

QByteArray ExifBytes::ordered(std::uint32_t value, int count) const
{
    QByteArray bytes(count, '\0');
    for (int i = 0; i < count; ++i, value >>= 8)
        bytes[isLittle() ? i : count - 1 - i] = static_cast<char>(value & 0xff);
    return bytes;
}

std::uint32_t ExifBytes::first() const
{
    const bool isExif = bytes_.startsWith(QByteArray("II\x2a\0", 4)) || bytes_.startsWith(QByteArray("MM\0\x2a", 4));
    const std::uint32_t at = isExif ? get(4, 4) : 0;
    return holds(at, 2) ? at : 0;
}

std::uint32_t ExifBytes::entryCount(std::uint32_t directory) const
{
    const std::uint32_t count = directory ? get(directory, 2) : 0;
    return count <= kMostEntries && holds(directory, 2 + count * kEntryBytes) ? count : 0;
}

std::uint32_t ExifBytes::next(std::uint32_t directory) const
{
    const std::uint32_t count = entryCount(directory);
    return count ? get(directory + 2 + count * kEntryBytes, 4) : 0;
}

std::vector<ExifBytes::Entry> ExifBytes::entries(std::uint32_t directory) const
{
    std::vector<Entry> found;
    for (std::uint32_t i = 0; i < entryCount(directory); ++i) {
        const std::size_t at = directory + 2 + i * kEntryBytes;
        Entry entry{static_cast<std::uint16_t>(get(at, 2)), static_cast<std::uint16_t>(get(at + 2, 2)), get(at + 4, 4)};
        const std::size_t each = entry.type < kTypeBytes.size() ? kTypeBytes[entry.type] : 0;
        entry.at = at;
        entry.valueBytes = each * entry.count;
        entry.valueAt = entry.valueBytes <= kInEntry ? at + 8 : get(at + 8, 4);
        if (each > 0 && entry.count > 0 && holds(entry.valueAt, entry.valueBytes)) found.push_back(entry);
    }
    return found;
}

std::optional<ExifBytes::Entry> ExifBytes::find(std::uint32_t directory, std::uint16_t tag) const
{
    const std::vector<Entry> all = entries(directory);
    const auto found = std::ranges::find(all, tag, &Entry::tag);
    return found == all.end() ? std::nullopt : std::optional(*found);
}

std::uint32_t ExifBytes::directoryOf(std::uint32_t directory, std::uint16_t tag) const
{
    const auto entry = find(directory, tag);
    return entry ? number(*entry) : 0;
}

std::uint32_t ExifBytes::number(const Entry& entry, std::uint32_t i) const
{
    if (i >= entry.count || (entry.type != Byte && entry.type != Short && entry.type != Long && entry.type != 13))
        return 0;
    const int each = kTypeBytes[entry.type];
    return get(entry.valueAt + i * static_cast<std::size_t>(each), each);
}

std::optional<double> ExifBytes::fraction(const Entry& entry, std::uint32_t i) const
{
    if (i >= entry.count) return {};
    if (entry.type != Fraction && entry.type != SignedFraction) return number(entry, i);
    const std::size_t at = entry.valueAt + std::size_t{8} * i;
    const auto part = [&](std::size_t from) {
        const std::uint32_t bits = get(from, 4);
        return entry.type == Fraction ? double(bits) : double(static_cast<std::int32_t>(bits));
    };
    if (part(at + 4) == 0) return {};
    return part(at) / part(at + 4);
}

QByteArray ExifBytes::text(const Entry& entry) const
{
    if (entry.type != Text) return {};
    const QByteArray all = bytes_.mid(static_cast<qsizetype>(entry.valueAt), static_cast<qsizetype>(entry.valueBytes));
    return all.left(std::max<qsizetype>(all.indexOf('\0'), all.contains('\0') ? 0 : all.size())).trimmed();
}

void ExifBytes::setNumber(const Entry& entry, std::uint32_t value)
{
    if (entry.type != Byte && entry.type != Short && entry.type != Long) return;
    const int each = kTypeBytes[entry.type];
    if (each == 4 || value < 1U << 8 * each) put(entry.valueAt, each, value);
}

void ExifBytes::setFraction(const Entry& entry, std::uint32_t above, std::uint32_t below)
{
    if (entry.type != Fraction) return;
    put(entry.valueAt, 4, above);
    put(entry.valueAt + 4, 4, below);
}

std::size_t ExifBytes::endOf(std::uint32_t directory) const
{
    const std::size_t end = directory + 2 + entryCount(directory) * kEntryBytes;
    return holds(end, 4) ? end + 4 : end;
}

/// At an even offset.
std::uint32_t ExifBytes::append(const QByteArray& bytes)
{
    if (bytes_.size() % 2 == 1) bytes_.append('\0');
    const auto at = static_cast<std::uint32_t>(bytes_.size());
    bytes_.append(bytes);
    return at;
}

std::uint32_t ExifBytes::extended(std::uint32_t directory, const std::vector<Addition>& additions, Values place)
{
    struct Row {
        std::uint16_t tag = 0;
        QByteArray bytes; // all 12
    };
    std::vector<Row> rows;
    for (std::uint32_t i = 0; i < entryCount(directory); ++i) {
        const std::size_t at = directory + 2 + i * kEntryBytes;
        const auto tag = static_cast<std::uint16_t>(get(at, 2));
        if (std::ranges::find(additions, tag, &Addition::tag) == additions.end())
            rows.push_back({tag, bytes_.mid(static_cast<qsizetype>(at), kEntryBytes)});
    }
    const QByteArray link = ordered(next(directory), 4);
    const bool isLast = directory > 0 && endOf(directory) == static_cast<std::size_t>(bytes_.size());
    if (isLast)
        cut(directory);
    else if (directory > 0)
        fill(directory, endOf(directory) - directory);
    const std::size_t size = 2 + (rows.size() + additions.size()) * kEntryBytes + 4;
    const bool isBefore = place == Values::BeforeDirectory;
    std::uint32_t behind = 0; // bytes of the values behind the directory
    const std::uint32_t start = isBefore ? 0 : append({});
    QByteArray values;
    for (const Addition& addition : additions) {
        QByteArray row = ordered(addition.tag, 2) + ordered(addition.type, 2) + ordered(addition.count, 4);
        if (addition.bytes.size() <= qsizetype(kInEntry)) {
            row += addition.bytes.leftJustified(kInEntry, '\0');
        } else if (isBefore) {
            row += ordered(append(addition.bytes), 4);
        } else {
            row += ordered(start + static_cast<std::uint32_t>(size) + behind, 4);
            values += addition.bytes;
            behind += static_cast<std::uint32_t>(addition.bytes.size());
        }
        rows.push_back({addition.tag, row});
    }
    std::ranges::stable_sort(rows, {}, &Row::tag);
    QByteArray whole = ordered(static_cast<std::uint32_t>(rows.size()), 2);
    for (const Row& row : rows) whole += row.bytes;
    return append(whole + link + values);
}

void ExifBytes::remove(std::uint32_t directory, const Entry& entry)
{
    const std::uint32_t count = entryCount(directory);
    const std::size_t end = directory + 2 + count * kEntryBytes;
    if (count == 0 || entry.at + kEntryBytes > end) return;
    const std::size_t tail = holds(end, 4) ? 4 : 0; // the link to the next directory moves up, too
    char* data = bytes_.data();
    std::copy(data + entry.at + kEntryBytes, data + end + tail, data + entry.at);
    fill(end + tail - kEntryBytes, kEntryBytes);
    put(directory, 2, count - 1);
    if (end + tail == static_cast<std::size_t>(bytes_.size())) cut(end + tail - kEntryBytes);
}

void ExifBytes::setNext(std::uint32_t directory, std::uint32_t value)
{
    if (const std::uint32_t count = entryCount(directory)) put(directory + 2 + count * kEntryBytes, 4, value);
}

void ExifBytes::fill(std::size_t at, std::size_t count)
{
    if (!holds(at, count)) return;
    std::fill_n(bytes_.data() + at, count, '\0');
}

} // namespace velara
