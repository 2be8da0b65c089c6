#include "tools/fuzz/inside.h"
#include <algorithm>

namespace velara::fuzz {

namespace {

std::uint32_t number(const QByteArray& bytes, qsizetype at, int count, bool bigEnd = true)
{
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i) {
        const qsizetype from = at + (bigEnd ? i : count - 1 - i);
        value = value << 8 | (from < bytes.size() ? static_cast<std::uint8_t>(bytes[from]) : 0);
    }
    return value;
}

void put(QByteArray& bytes, qsizetype at, int count, std::uint32_t value, bool bigEnd = true)
{
    for (int i = 0; i < count; ++i, value >>= 8) {
        const qsizetype to = at + (bigEnd ? count - 1 - i : i);
        if (to < bytes.size()) bytes[to] = static_cast<char>(value);
    }
}

QByteArray big(std::uint32_t value)
{
    QByteArray bytes(4, '\0');
    put(bytes, 0, 4, value);
    return bytes;
}

/// Changes numbers in place; the length is kept.
void poke(QByteArray& bytes, Dice& dice)
{
    constexpr std::uint32_t kTelling[] = {0,    1,      2,      3,      4,       7,          8,          16,        255,
                                          0x80, 0x7fff, 0x8000, 0xffff, 0x10000, 0x7fffffff, 0x80000000, 0xffffffff};
    if (bytes.isEmpty()) return;
    const std::uint32_t value = dice.oneIn(2) ? dice.next() : kTelling[dice.next() % std::size(kTelling)];
    put(bytes, dice.within(0, static_cast<int>(bytes.size()) - 1), 1 << dice.within(0, 2), value, dice.oneIn(2));
}

template <class List> qsizetype anyOf(const List& list, Dice& dice)
{
    return dice.within(0, static_cast<int>(list.size()) - 1);
}

/// Parts are duplicated, dropped, moved, or taken from the other; the first, without which nothing is parsed, is kept.
template <class Part> void shuffle(QList<Part>& parts, const QList<Part>& other, Dice& dice)
{
    if (parts.size() < 2) return;
    const qsizetype at = 1 + dice.within(0, static_cast<int>(parts.size()) - 2);
    switch (dice.within(0, 3)) {
    case 0:
        parts.insert(at, Part(parts[anyOf(parts, dice)]));
        return;
    case 1:
        return parts.removeAt(at);
    case 2:
        return parts.move(at, 1 + dice.within(0, static_cast<int>(parts.size()) - 2));
    default:
        if (!other.isEmpty()) parts.insert(at, other[anyOf(other, dice)]);
    }
}

// --- Compressed by deflate; its checksums are recomputed automatically

QByteArray unpacked(const QByteArray& bytes)
{
    constexpr std::uint32_t kGuess = 1 << 16;
    return qUncompress(big(kGuess) + bytes);
}

QByteArray packed(const QByteArray& bytes) { return qCompress(bytes).mid(4); }

/// False when it isn't compressed that way, or only claims to be.
bool mutatePacked(QByteArray& bytes, const QByteArray& other, Dice& dice)
{
    QByteArray plain = bytes.size() > 6 ? unpacked(bytes) : QByteArray();
    if (plain.isEmpty()) return false;
    mutate(plain, other, dice);
    bytes = packed(plain);
    return true;
}

// --- PNG and MNG: a signature, then chunks of length, name, contents and checksum

constexpr qsizetype kSignature = 8;

struct Chunk {
    QByteArray name, contents;
};

QByteArray sumOf(const QByteArray& bytes)
{
    std::uint32_t sum = ~0U;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ (sum & 1 ? 0xedb88320U : 0);
    }
    return big(~sum);
}

QList<Chunk> chunksOf(const QByteArray& file)
{
    QList<Chunk> chunks;
    for (qsizetype at = kSignature; at + 12 <= file.size();) {
        const qsizetype length = number(file, at, 4);
        if (at + 12 + length > file.size()) break;
        chunks += Chunk{file.mid(at + 4, 4), file.mid(at + 8, length)};
        at += 12 + length;
    }
    return chunks;
}

QByteArray fileOf(const QByteArray& signature, const QList<Chunk>& chunks)
{
    QByteArray file = signature;
    for (const Chunk& chunk : chunks) {
        const QByteArray summed = chunk.name + chunk.contents;
        file += big(static_cast<std::uint32_t>(chunk.contents.size())) + summed + sumOf(summed);
    }
    return file;
}

void mutatePixels(QList<Chunk>& chunks, const QByteArray& other, Dice& dice)
{
    const auto isData = [](const Chunk& chunk) { return chunk.name == "IDAT"; };
    const auto first = std::ranges::find_if(chunks, isData);
    if (first == chunks.end()) return;
    const auto end = std::find_if_not(first, chunks.end(), isData);
    QByteArray all;
    for (auto chunk = first; chunk != end; ++chunk) all += chunk->contents;
    if (!mutatePacked(all, other, dice)) mutate(all, other, dice);
    first->contents = all;
    chunks.erase(first + 1, end);
}

/// A chunk with compressed contents, or with tables that are checked against the pixels.
Chunk strangeChunk(Dice& dice)
{
    constexpr const char* kNames[] = {"PLTE", "tRNS", "gAMA", "cHRM", "sBIT", "bKGD", "hIST", "pHYs", "sPLT", "eXIf",
                                      "iTXt", "zTXt", "iCCP", "IHDR", "IDAT", "IEND", "MHDR", "JHDR", "JDAT", "FRAM",
                                      "DEFI", "BACK", "LOOP", "ENDL", "TERM", "DHDR", "BASI", "CLON", "PAST", "MAGN"};
    const char* name = kNames[dice.next() % std::size(kNames)];
    QByteArray contents(dice.within(0, dice.oneIn(4) ? 800 : 40), '\0');
    for (char& byte : contents) byte = static_cast<char>(dice.next());
    if (dice.oneIn(2)) contents = QByteArray("name\0\0", 6) + packed(contents);
    return {name, contents};
}

void mutateChunks(QByteArray& file, const QByteArray& other, Dice& dice)
{
    QList<Chunk> chunks = chunksOf(file);
    const QList<Chunk> others = chunksOf(other);
    if (chunks.isEmpty()) return mutate(file, other, dice);
    Chunk& any = chunks[dice.oneIn(3) ? 0 : anyOf(chunks, dice)];
    switch (dice.within(0, 5)) {
    case 0:
    case 1:
        mutatePixels(chunks, other, dice);
        break;
    case 2:
        shuffle(chunks, others, dice);
        break;
    case 3:
        chunks.insert(anyOf(chunks, dice), strangeChunk(dice));
        break;
    case 4:
        mutate(any.contents, other, dice);
        break;
    default:
        poke(any.contents, dice);
    }
    file = fileOf(file.left(kSignature), chunks);
}

// --- GIF: the screen with its palette, then blocks, each a head and contents in pieces of up to 255 bytes

struct Block {
    QByteArray head, contents;
};

qsizetype paletteBytes(const QByteArray& head, qsizetype flagsAt)
{
    const std::uint32_t flags = number(head, flagsAt, 1);
    return flags & 0x80 ? qsizetype{3} << ((flags & 7) + 1) : 0;
}

constexpr qsizetype kScreen = 13, kScreenFlags = 10, kImage = 10, kImageFlags = 9;
constexpr char kExtension = 0x21, kImageMark = 0x2c, kEnd = 0x3b;

/// The first block is the screen, without contents.
QList<Block> blocksOf(const QByteArray& file)
{
    QList<Block> blocks{{file.left(kScreen + paletteBytes(file, kScreenFlags)), {}}};
    for (qsizetype at = blocks[0].head.size(); at < file.size() && file[at] != kEnd;) {
        const qsizetype image = kImage + paletteBytes(file, at + kImageFlags) + 1; // the code size comes last
        Block block{file.mid(at, file[at] == kImageMark ? image : 2), {}};
        at += block.head.size();
        for (qsizetype length; (length = number(file, at, 1)) > 0; at += 1 + length)
            block.contents += file.mid(at + 1, length);
        ++at;
        blocks += block;
    }
    return blocks;
}

QByteArray fileOf(const QList<Block>& blocks)
{
    QByteArray file;
    for (const Block& block : blocks) {
        file += block.head;
        for (qsizetype at = 0; at < block.contents.size(); at += 255) {
            const QByteArray piece = block.contents.mid(at, 255);
            file += static_cast<char>(piece.size()) + piece;
        }
        if (block.head.startsWith(kImageMark) || block.head.startsWith(kExtension)) file += '\0';
    }
    return file + kEnd;
}

/// Changes numbers of a head; its palette is resized to what it then announces, and its marker is kept.
void pokeHead(QByteArray& head, Dice& dice)
{
    const bool isScreen = head.startsWith("GIF8"), isImage = head.startsWith(kImageMark);
    const qsizetype mark = isScreen ? 6 : 1, fixed = isScreen ? kScreen : isImage ? kImage : 2;
    QByteArray fields = head.mid(mark, fixed - mark);
    poke(fields, dice);
    head.replace(mark, fields.size(), fields);
    if (isScreen) head.resize(kScreen + paletteBytes(head, kScreenFlags), 'p');
    if (!isImage) return;
    const char codes = dice.oneIn(4) ? static_cast<char>(dice.within(0, 13)) : head.back();
    head.chop(1);
    head.resize(kImage + paletteBytes(head, kImageFlags), 'p');
    head += codes;
}

void mutateBlocks(QByteArray& file, const QByteArray& other, Dice& dice)
{
    if (!file.startsWith("GIF8")) return mutate(file, other, dice);
    QList<Block> blocks = blocksOf(file);
    const qsizetype at = anyOf(blocks, dice);
    switch (dice.within(0, 3)) {
    case 0:
        shuffle(blocks, other.startsWith("GIF8") ? blocksOf(other).mid(1) : QList<Block>(), dice);
        break;
    case 1:
        pokeHead(blocks[at].head, dice);
        break;
    default: // the screen has no contents
        at > 0 ? mutate(blocks[at].contents, other, dice) : pokeHead(blocks[0].head, dice);
    }
    file = fileOf(blocks);
}

// --- TIFF: a header, then a directory of entries with tag, type, count, and the value or its offset

class Directory {
  public:
    explicit Directory(QByteArray& file) : file_(file), bigEnd_(file.startsWith('M'))
    {
        const qsizetype at = get(4, 4), count = get(at, 2);
        if ((file.startsWith("II*") || file.startsWith("MM")) && at + 2 + kEntry * count <= file.size())
            first_ = at + 2, entries_ = static_cast<int>(count);
    }
    int entries() const { return entries_; }
    qsizetype entry(int i) const { return first_ + kEntry * i; }
    std::uint32_t get(qsizetype at, int count) const { return number(file_, at, count, bigEnd_); }
    void set(qsizetype at, int count, std::uint32_t value) { put(file_, at, count, value, bigEnd_); }
    std::uint32_t value(int tag) const
    {
        const qsizetype at = valueAt(tag);
        return at > 0 ? get(at, get(find(tag) + 2, 2) == kShort ? 2 : 4) : 0;
    }
    /// The offset of the first number of a tag: in its entry, or where that points to. 0: there is none.
    qsizetype valueAt(int tag) const
    {
        const qsizetype at = find(tag);
        if (at == 0) return 0;
        const std::uint32_t bytes = get(at + 4, 4) * (get(at + 2, 2) == kShort ? 2 : 4);
        return bytes <= 4 ? at + 8 : get(at + 8, 4);
    }
    void setValue(int tag, std::uint32_t value)
    {
        if (const qsizetype at = valueAt(tag)) set(at, get(find(tag) + 2, 2) == kShort ? 2 : 4, value);
    }

  private:
    static constexpr qsizetype kEntry = 12;
    static constexpr std::uint32_t kShort = 3;
    qsizetype find(int tag) const
    {
        for (int i = 0; i < entries_; ++i)
            if (get(entry(i), 2) == static_cast<std::uint32_t>(tag)) return entry(i);
        return 0;
    }

    QByteArray& file_;
    bool bigEnd_;
    qsizetype first_ = 0;
    int entries_ = 0;
};

enum Tag { Compression = 259, StripOffsets = 273, StripBytes = 279, TileOffsets = 324, TileBytes = 325 };

/// Damages the first strip or tile and moves it to the end.
void mutateStrip(QByteArray& file, const QByteArray& other, Dice& dice)
{
    constexpr std::uint32_t kDeflate = 8, kOldDeflate = 32946;
    Directory directory(file);
    const bool tiled = directory.valueAt(TileOffsets) > 0;
    const std::uint32_t kind = directory.value(Compression);
    QByteArray strip =
        file.mid(directory.value(tiled ? TileOffsets : StripOffsets), directory.value(tiled ? TileBytes : StripBytes));
    const bool isPacked = kind == kDeflate || kind == kOldDeflate;
    if (!isPacked || !mutatePacked(strip, other, dice)) mutate(strip, other, dice);
    directory.setValue(tiled ? TileOffsets : StripOffsets, static_cast<std::uint32_t>(file.size()));
    directory.setValue(tiled ? TileBytes : StripBytes, static_cast<std::uint32_t>(strip.size()));
    file += strip;
}

/// Sets a tag to another meaningful value, or to any number; offsets stay inside the file.
void mutateEntry(QByteArray& file, Dice& dice)
{
    constexpr struct {
        int tag;
        std::array<std::uint16_t, 8> values;
    } kMeanings[] = {{258, {1, 2, 4, 8, 16, 24, 32, 64}},
                     {Compression, {1, 2, 3, 4, 5, 7, 8, 32773}},
                     {Compression, {6, 32946, 34661, 34676, 34925, 50000, 50001, 32809}},
                     {262, {0, 1, 2, 3, 4, 5, 6, 8}},
                     {262, {9, 10, 32803, 32844, 32845, 34892, 7, 255}},
                     {266, {1, 2, 0, 3, 1, 2, 1, 2}},
                     {274, {1, 2, 3, 4, 5, 6, 7, 8}},
                     {277, {0, 1, 2, 3, 4, 5, 8, 255}},
                     {284, {1, 2, 1, 2, 0, 3, 1, 2}},
                     {317, {1, 2, 3, 1, 2, 3, 4, 0}},
                     {338, {0, 1, 2, 3, 0, 1, 2, 65535}},
                     {339, {1, 2, 3, 4, 5, 6, 0, 7}}};
    Directory directory(file);
    const qsizetype entry = directory.entry(dice.within(0, directory.entries() - 1));
    const auto& meaning = kMeanings[dice.next() % std::size(kMeanings)];
    switch (dice.within(0, 5)) {
    case 0: { // any entry becomes one of those
        directory.set(entry, 2, static_cast<std::uint32_t>(meaning.tag));
        directory.set(entry + 2, 2, 3);
        directory.set(entry + 4, 4, 1);
        [[fallthrough]];
    }
    case 1:
    case 2:
        return directory.setValue(meaning.tag, meaning.values[dice.next() % meaning.values.size()]);
    case 3:
        return directory.set(entry + 2, 2, static_cast<std::uint32_t>(dice.within(1, 18)));
    case 4:
        return directory.set(entry + 4, 4, static_cast<std::uint32_t>(dice.within(0, 300)));
    default:
        directory.set(entry + 8, 4,
                      dice.oneIn(2) ? dice.next() % static_cast<std::uint32_t>(file.size()) : dice.next() % 20000);
    }
}

void mutateDirectory(QByteArray& file, const QByteArray& other, Dice& dice)
{
    if (Directory(file).entries() == 0) return mutate(file, other, dice);
    dice.oneIn(2) ? mutateStrip(file, other, dice) : mutateEntry(file, dice);
}

// --- Boxes of length, name and contents: HEIF, AVIF and JPEG XL in a container (the length counts its head, too), and
// WebP (it does not; low byte first, padded to an even length, behind the head of the file)

struct BoxKind {
    bool bigEnd;
    qsizetype counted; // bytes of the head that the length counts
    qsizetype even;    // contents are padded to a multiple of it
};
constexpr BoxKind kIsoBoxes{true, 8, 1}, kRiffChunks{false, 0, 2};
constexpr qsizetype kBoxHead = 8, kRiffHead = 12;

/// What is no box comes last, without a name.
QList<Chunk> boxesOf(const QByteArray& bytes, const BoxKind& kind)
{
    const qsizetype name = kind.bigEnd ? 4 : 0;
    QList<Chunk> boxes;
    qsizetype at = 0;
    while (at + kBoxHead <= bytes.size()) {
        const qsizetype length = number(bytes, at + 4 - name, 4, kind.bigEnd) - kind.counted;
        if (length < 0 || at + kBoxHead + length > bytes.size()) break;
        boxes += Chunk{bytes.mid(at + name, 4), bytes.mid(at + kBoxHead, length)};
        at += kBoxHead + length + length % kind.even;
    }
    if (at < bytes.size()) boxes += Chunk{{}, bytes.mid(at)};
    return boxes;
}

QByteArray bytesOf(const QList<Chunk>& boxes, const BoxKind& kind)
{
    QByteArray bytes;
    for (const Chunk& box : boxes) {
        if (box.name.isEmpty()) {
            bytes += box.contents;
            continue;
        }
        QByteArray length(4, '\0');
        put(length, 0, 4, static_cast<std::uint32_t>(box.contents.size() + kind.counted), kind.bigEnd);
        bytes += kind.bigEnd ? length + box.name : box.name + length;
        bytes += box.contents + QByteArray(box.contents.size() % kind.even, '\0');
    }
    return bytes;
}

void mutateBoxList(QByteArray& bytes, const QByteArray& other, const BoxKind& kind, Dice& dice)
{
    constexpr std::string_view kOfBoxes[] = {"meta", "iprp", "ipco", "iinf", "dinf", "grpl"};
    QList<Chunk> boxes = boxesOf(bytes, kind);
    if (boxes.isEmpty()) return mutate(bytes, other, dice);
    Chunk& any = boxes[anyOf(boxes, dice)];
    if (std::ranges::count(kOfBoxes, std::string_view(any.name)) > 0 && !dice.oneIn(6)) {
        const qsizetype version = any.name == "meta" ? 4 : any.name == "iinf" ? 6 : 0;
        QByteArray within = any.contents.mid(version);
        mutateBoxList(within, other, kind, dice);
        any.contents = any.contents.left(version) + within;
    } else if (dice.oneIn(4)) {
        shuffle(boxes, boxesOf(other, kind), dice);
    } else {
        dice.oneIn(2) ? mutate(any.contents, other, dice) : poke(any.contents, dice);
    }
    bytes = bytesOf(boxes, kind);
}

void mutateBoxes(QByteArray& file, const QByteArray& other, Dice& dice)
{
    if (!file.startsWith("RIFF")) return mutateBoxList(file, other, kIsoBoxes, dice);
    QByteArray chunks = file.mid(kRiffHead);
    mutateBoxList(chunks, other.mid(kRiffHead), kRiffChunks, dice);
    file = file.left(kRiffHead) + chunks;
    put(file, 4, 4, static_cast<std::uint32_t>(file.size() - kBoxHead), false);
}

} // namespace

void mutateInside(QByteArray& bytes, const QString& format, const QByteArray& other, Dice& dice)
{
    constexpr struct {
        const char* format;
        void (*once)(QByteArray& bytes, const QByteArray& other, Dice& dice);
    } kRows[] = {{"gif", mutateBlocks},    {"png", mutateChunks},    {"mng", mutateChunks},
                 {"tif", mutateDirectory}, {"dng", mutateDirectory}, {"cr2", mutateDirectory},
                 {"nef", mutateDirectory}, {"arw", mutateDirectory}};
    const auto* row = std::ranges::find_if(kRows, [&](const auto& r) { return format == QLatin1String(r.format); });
    const auto once = row == std::end(kRows) ? mutateBoxes : row->once;
    for (int i = dice.within(1, 4); i > 0; --i) once(bytes, other, dice);
}

QByteArray asMng(const QByteArray& png)
{
    QList<Chunk> chunks = chunksOf(png);
    const QByteArray size = chunks.isEmpty() ? QByteArray(8, '\0') : chunks.front().contents.left(8);
    chunks.prepend(Chunk{"MHDR", size + QByteArray(16, '\0') + big(1)});
    chunks.append(Chunk{"MEND", {}});
    return fileOf("\x8aMNG\r\n\x1a\n", chunks);
}

} // namespace velara::fuzz
