#include "fileio/decode/facts/tiffExif.h"
#include "fileio/cameraData.h"
#include "fileio/exifBytes.h"
#include <algorithm>

namespace velara::decode {

namespace {

using Directory = std::uint32_t;
using Additions = std::vector<ExifBytes::Addition>;

ExifBytes::Addition copyOf(const ExifBytes& tiff, const ExifBytes::Entry& entry)
{
    return {entry.tag, entry.type, entry.count, tiff.valuesOf(entry)};
}

ExifBytes::Addition linkTo(const ExifBytes& block, std::uint16_t tag, Directory directory)
{
    return {tag, ExifBytes::Long, 1, block.ordered(directory, 4)};
}

/// The directories beside the file's own; 0: there is none.
struct Linked {
    Directory details, place, interoperability;

    Linked(const ExifBytes& tiff, Directory main)
        : details(tiff.directoryOf(main, ExifTag::Details)), place(tiff.directoryOf(main, ExifTag::Place)),
          interoperability(details ? tiff.directoryOf(details, ExifTag::Interoperability) : 0)
    {
    }
    template <class Take> void each(const ExifBytes& tiff, const Take& take) const
    {
        for (const Directory directory : {interoperability, details, place})
            if (!tiff.entries(directory).empty()) take(directory);
    }
};

/// Bytes of the directories and their values, and where the last of them ends.
struct Extent {
    std::size_t used = 0, end = 0;

    Extent(const ExifBytes& tiff, const Linked& linked)
    {
        linked.each(tiff, [&](Directory directory) {
            add(directory, tiff.endOf(directory) - directory);
            for (const ExifBytes::Entry& entry : tiff.entries(directory)) add(entry.valueAt, entry.valueBytes);
        });
    }
    /// Not much beside them would have to be filled with zeros.
    bool isDense() const { return end <= std::size_t(kMostExif) / 2 && end <= 2 * used + 1024; }

  private:
    void add(std::size_t at, std::size_t bytes)
    {
        used += bytes;
        end = std::max(end, at + bytes);
    }
};

QByteArray headOf(const ExifBytes& tiff) { return tiff.bytes().left(4) + QByteArray(4, '\0'); }

/// Copies what the directories are made of to where it stands in the file; the rest is zeros.
ExifBytes inPlace(const ExifBytes& tiff, const Linked& linked, std::size_t end)
{
    QByteArray block = headOf(tiff) + QByteArray(std::max<qsizetype>(qsizetype(end) - 8, 0), '\0');
    const auto copy = [&](std::size_t at, std::size_t bytes) {
        const std::size_t from = std::max<std::size_t>(at, 8); // behind the head
        if (at + bytes > from) std::copy_n(tiff.bytes().constData() + from, at + bytes - from, block.data() + from);
    };
    linked.each(tiff, [&](Directory directory) {
        for (const ExifBytes::Entry& entry : tiff.entries(directory)) copy(entry.valueAt, entry.valueBytes);
    });
    ExifBytes made(block);
    linked.each(tiff, [&](Directory directory) {
        QByteArray bytes = made.bytes();
        const std::size_t size = tiff.endOf(directory) - directory;
        std::copy_n(tiff.bytes().constData() + directory, size, bytes.data() + directory);
        made = ExifBytes(bytes);
        made.setNext(directory, 0);
    });
    return made;
}

/// A directory and its values at the end of the block; 0 for none.
Directory copied(ExifBytes& block, const ExifBytes& tiff, Directory directory, const Additions& links = {})
{
    Additions all = links;
    for (const ExifBytes::Entry& entry : tiff.entries(directory))
        if (std::ranges::find(links, entry.tag, &ExifBytes::Addition::tag) == links.end())
            all.push_back(copyOf(tiff, entry));
    return all.empty() ? 0 : block.extended(0, all, ExifBytes::Values::BeforeDirectory);
}

/// One after the other.
ExifBytes oneAfterTheOther(const ExifBytes& tiff, Linked& linked)
{
    ExifBytes block(headOf(tiff));
    linked.interoperability = copied(block, tiff, linked.interoperability);
    Additions links;
    if (linked.interoperability) links = {linkTo(block, ExifTag::Interoperability, linked.interoperability)};
    linked.details = copied(block, tiff, linked.details, links);
    linked.place = copied(block, tiff, linked.place);
    return block;
}

} // namespace

std::vector<std::uint8_t> exifOfTiff(Span file, std::uint64_t directory)
{
    const ExifBytes tiff(QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()), qsizetype(file.size())));
    if (tiff.first() == 0 || directory > UINT32_MAX) return {};
    const auto main = static_cast<Directory>(directory);
    Linked linked(tiff, main);
    const Extent extent(tiff, linked);
    std::size_t bytes = extent.used;
    for (const ExifBytes::Entry& entry : tiff.entries(main))
        if (std::ranges::find(kTagsOfPicture, entry.tag) != std::end(kTagsOfPicture)) bytes += entry.valueBytes;
    if (bytes > std::size_t(kMostExif) / 2) return {};
    ExifBytes block = extent.isDense() ? inPlace(tiff, linked, extent.end) : oneAfterTheOther(tiff, linked);
    Additions all;
    for (const ExifBytes::Entry& entry : tiff.entries(main))
        if (std::ranges::find(kTagsOfPicture, entry.tag) != std::end(kTagsOfPicture))
            all.push_back(copyOf(tiff, entry));
    if (linked.details) all.push_back(linkTo(block, ExifTag::Details, linked.details));
    if (linked.place) all.push_back(linkTo(block, ExifTag::Place, linked.place));
    if (all.empty()) return {};
    block.setFirst(block.extended(0, all, ExifBytes::Values::BeforeDirectory));
    return {block.bytes().begin(), block.bytes().end()};
}

} // namespace velara::decode
