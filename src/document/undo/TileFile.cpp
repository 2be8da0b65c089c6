#include "document/undo/TileFile.h"
#include "document/undo/xxh3.h"
#include "fileio/disk/fileBytes.h"
#include <algorithm>
#include <cstring>
#include <memory>

namespace velara {

namespace {

constexpr std::array<char, 8> kMark = {'V', 'e', 'l', 'u', 'T', 'i', 'l', 'e'};

constexpr int kSmallestSide = 4; // pixels: it bounds how many tiles a header may claim

struct Header {
    std::array<char, 8> mark;
    std::uint32_t version;
    std::int32_t width, height, side;
    std::uint32_t count, unused;
    std::uint64_t beneath, sum, check;
};
static_assert(sizeof(Header) == 56);

std::span<std::uint8_t> bytesOf(auto& value) { return {reinterpret_cast<std::uint8_t*>(&value), sizeof value}; }

TileGrid gridOf(const Header& h)
{
    TileGrid grid;
    grid.width = h.width, grid.height = h.height, grid.side = h.side;
    return grid;
}

/// The checksum of a file's header and the rest, as it comes.
class Check {
  public:
    explicit Check(Header header) : state_(XXH3_createState(), XXH3_freeState)
    {
        if (!state_) throw std::bad_alloc();
        XXH3_64bits_reset(state_.get());
        header.check = 0;
        add(bytesOf(header));
    }
    void add(ByteView bytes) { XXH3_64bits_update(state_.get(), bytes.data(), bytes.size()); }
    std::uint64_t sum() const { return XXH3_64bits_digest(state_.get()); }

  private:
    std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state_;
};

std::size_t pixelsOf(const Rect& tile)
{
    return static_cast<std::size_t>(tile.width()) * static_cast<std::size_t>(tile.height());
}

/// Calls visit with each row of a tile of a block: its first byte and its size.
void eachRow(const TileGrid& grid, const Rect& tile, auto* block, auto visit)
{
    for (int y = tile.top; y < tile.bottom; ++y)
        visit(block + sizeof(Pixel) * (static_cast<std::size_t>(y) * static_cast<std::size_t>(grid.width) +
                                       static_cast<std::size_t>(tile.left)),
              sizeof(Pixel) * static_cast<std::size_t>(tile.width()));
}

bool readHeader(FileReader& file, Header& h)
{
    if (!file.read(bytesOf(h)) || h.mark != kMark || h.version != 1) return false;
    if (!Bits::sizeAllowed(h.width - 2 * Bits::kMargin, h.height - 2 * Bits::kMargin)) return false;
    return h.side >= kSmallestSide && h.side <= Bits::kMostASide && h.count <= gridOf(h).count();
}

/// The numbers of the tiles; nothing where they are invalid, or the file is too short or long for them.
std::optional<std::vector<std::uint32_t>> readNumbers(FileReader& file, const Header& h)
{
    std::vector<std::uint32_t> numbers(h.count);
    if (!file.read({reinterpret_cast<std::uint8_t*>(numbers.data()), numbers.size() * sizeof(std::uint32_t)}))
        return {};
    const TileGrid grid = gridOf(h);
    const bool ascend = std::ranges::adjacent_find(numbers, std::greater_equal()) == numbers.end();
    if (!ascend || (!numbers.empty() && numbers.back() >= grid.count())) return {};
    std::size_t size = sizeof h + numbers.size() * sizeof(std::uint32_t);
    for (const std::uint32_t number : numbers) size += sizeof(Pixel) * pixelsOf(grid.tile(number));
    if (static_cast<std::size_t>(file.size()) != size) return {};
    return numbers;
}

/// Puts the tiles of a file over the picture, whose sum is checked where it isn't 0, and becomes that of the new
/// picture. False when the file is missing, damaged, or belongs over another one: the picture may be half changed.
bool putTiles(const UndoFiles& files, int index, Bits& bits, std::uint64_t& sum)
{
    FileReader file(files.name(index));
    Header h{};
    if (!readHeader(file, h) || gridOf(h) != TileGrid(bits, h.side)) return false;
    if (sum != 0 && h.beneath != sum) return false;
    const auto numbers = readNumbers(file, h);
    if (!numbers) return false;
    Check check(h);
    check.add({reinterpret_cast<const std::uint8_t*>(numbers->data()), numbers->size() * sizeof(std::uint32_t)});
    std::vector<std::uint8_t> pixels;
    std::uint8_t* block = bits.data();
    for (const std::uint32_t number : *numbers) {
        const Rect tile = gridOf(h).tile(number);
        pixels.resize(sizeof(Pixel) * pixelsOf(tile));
        if (!file.read(pixels)) return false;
        check.add(pixels);
        const std::uint8_t* from = pixels.data();
        eachRow(gridOf(h), tile, block, [&](std::uint8_t* row, std::size_t bytes) {
            std::memcpy(row, from, bytes);
            from += bytes;
        });
    }
    sum = h.sum;
    return check.sum() == h.check;
}

} // namespace

std::optional<StateFile> stateFile(const UndoFiles& files, int index)
{
    if (files.isWhole(index)) return StateFile{};
    FileReader file(files.name(index));
    Header h{};
    if (!readHeader(file, h) || !readNumbers(file, h)) return {};
    return StateFile{true, h.beneath, h.sum, h.side};
}

std::int64_t tileFileSize(const TileGrid& grid, std::size_t tiles)
{
    const auto side = static_cast<std::size_t>(grid.side);
    return static_cast<std::int64_t>(sizeof(Header) + tiles * (sizeof(std::uint32_t) + side * side * sizeof(Pixel)));
}

bool writeTiles(const UndoFiles& files, int index, const Bits& bits, const TileSums& sums, std::uint64_t beneath,
                std::span<const std::uint32_t> tiles)
{
    const TileGrid& grid = sums.grid();
    Header h{kMark,        1, grid.width, grid.height, grid.side, static_cast<std::uint32_t>(tiles.size()), 0, beneath,
             sums.whole(), 0};
    const auto* numbers = reinterpret_cast<const std::uint8_t*>(tiles.data()); // of none, where no pixel differs
    std::vector<std::uint8_t> body(numbers, numbers + tiles.size_bytes());
    std::size_t size = body.size();
    for (const std::uint32_t tile : tiles) size += sizeof(Pixel) * pixelsOf(grid.tile(tile));
    body.reserve(size);
    for (const std::uint32_t tile : tiles)
        eachRow(grid, grid.tile(tile), bits.data(),
                [&](const std::uint8_t* row, std::size_t bytes) { body.insert(body.end(), row, row + bytes); });
    Check check(h);
    check.add(body);
    h.check = check.sum();
    files.remove(index);
    return overwriteFile(files.name(index), bytesOf(h), body);
}

std::optional<Bits> readLayers(const UndoFiles& files, std::span<const LayerFile> layers)
{
    if (layers.empty()) return {};
    std::optional<Bits> bits = files.read(layers[0].index);
    std::uint64_t sum = layers[0].sum;
    for (const LayerFile& layer : layers.subspan(1)) {
        if (!bits || !putTiles(files, layer.index, *bits, sum)) return {};
        if (layer.sum != 0 && layer.sum != sum) return {};
    }
    return bits;
}

} // namespace velara
