// Data from outside: the configuration record, and the flat form of regions.
#include "fileio/SetupStore.h"
#include "platform/WindowlessPlatform.h"
#include "region/cBitRegion.h"
#include "tools/fuzz/Subject.h"
#include <QFile>
#include <algorithm>
#include <climits>
#include <cstring>

namespace velara::fuzz {

namespace {

struct InFolder final : WindowlessPlatform {
    explicit InFolder(QString folder) : folder(std::move(folder)) {}
    void message(const QString&, const QString&, Icon) override {}
    QString programFolder() override { return folder; }
    QString folder;
};

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray noise(Dice& dice, int size)
{
    QByteArray bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(dice.next());
    return bytes;
}

/// Coordinates in and around a small square, with some that are invalid.
std::int32_t coordinate(Dice& dice)
{
    static constexpr std::int32_t kOdd[] = {INT_MIN, INT_MAX, INT_MIN + 1, INT_MAX - 1, 1 << 30, -(1 << 30)};
    return dice.oneIn(40) ? kOdd[dice.next() % std::size(kOdd)] : dice.within(-3, 20);
}

std::vector<std::int32_t> regionWords(Dice& dice)
{
    const int count = dice.within(0, 12);
    std::vector<std::int32_t> words{32, 1, count, 16 * count, 0, 0, 20, 20};
    for (int i = 0; i < 4 * count; ++i) words.push_back(coordinate(dice));
    while (dice.oneIn(3)) words[dice.next() % words.size()] = coordinate(dice);
    if (dice.oneIn(4)) words.resize(dice.next() % (words.size() + 1));
    return words;
}

/// Whether a point lies in one of the rectangles, by testing each.
bool isIn(const std::vector<std::int32_t>& words, int x, int y)
{
    for (std::size_t i = 8; i + 4 <= 8 + 4 * static_cast<std::size_t>(words[2]); i += 4)
        if (x >= words[i] && x < words[i + 2] && y >= words[i + 1] && y < words[i + 3]) return true;
    return false;
}

QString faultOf(const Region& region, const std::vector<std::int32_t>& words)
{
    if (!(Region::fromWords(region.words()) == region)) return "its words make another region";
    for (int y = -4; y < 22; ++y)
        for (int x = -4; x < 22; ++x)
            if (region.contains(x, y) != isIn(words, x, y)) return QString("wrong at %1, %2").arg(x).arg(y);
    const Region all = Region::rectangle(-4, -4, 22, 22), inside = region.combined(all, Combine::And);
    if (!(inside.combined(all.combined(region, Combine::Diff), Combine::Or) == all))
        return "parts don't make the whole";
    return region.combined(region, Combine::Xor).isEmpty() ? QString() : QString("differs from itself");
}

} // namespace

QString tryConfiguration(const Place& place, std::uint64_t number)
{
    Dice dice = diceOf("configuration", number);
    InFolder platform(place.input);
    QByteArray bytes = noise(dice, kSetupBytes);
    if (!dice.oneIn(4)) {
        const SetupRecord usual = setupBytes(Setup());
        bytes = QByteArray(reinterpret_cast<const char*>(usual.data()), kSetupBytes);
        mutate(bytes, noise(dice, 200), dice);
    }
    const QString path = writeInput(place.input, "Vlaera.dat", bytes);
    Setup setup = LoadSetup(platform);
    AddRecent(setup, "/a/path/" + QString::fromUtf8(noise(dice, 300).replace('\0', '/')));
    if (!SaveSetup(platform, setup)) return "the configuration can't be written";
    const QByteArray once = contents(path);
    if (once.size() != std::max<qsizetype>(bytes.size(), kSetupBytes)) return "a file of another length";
    if (once.mid(kSetupBytes) != bytes.mid(kSetupBytes)) return "what stood behind the record has changed";
    constexpr qsizetype kFont = 2755, kFontBytes = 256; // a text that is never edited
    const QByteArray font = bytes.mid(kFont, kFontBytes);
    const bool isForeign = QString::fromUtf8(font.constData()).contains(QChar::ReplacementCharacter);
    if (font.size() == kFontBytes && isForeign && once.mid(kFont, kFontBytes) != font)
        return "a text of another code page was written anew";
    if (!SaveSetup(platform, LoadSetup(platform))) return "the configuration can't be written again";
    const QByteArray twice = contents(path);
    const auto [a, b] = std::ranges::mismatch(once, twice);
    if (a != once.end() || b != twice.end())
        return QString("read and written again it differs at %1").arg(a - once.begin());
    QFile::remove(path);
    return {};
}

QString tryRegion(const Place& place, std::uint64_t number)
{
    Dice dice = diceOf("regions", number);
    const auto words = regionWords(dice);
    QByteArray bytes(reinterpret_cast<const char*>(words.data()), qsizetype(words.size() * 4));
    if (dice.oneIn(5)) mutate(bytes, noise(dice, 50), dice);
    const QString path = writeInput(place.input, "region.dat", bytes);
    cBitRegion selection;
    selection.Init(0, 0, 20, 20);
    const bool loaded = selection.LoadFromFile(path);
    std::vector<std::int32_t> read(static_cast<std::size_t>(bytes.size() / 4));
    if (!read.empty()) std::memcpy(read.data(), bytes.constData(), read.size() * 4);
    const Region region = Region::fromWords(read);
    if (loaded == region.isNull()) return "loaded from a file it is not what its words make";
    const QString fault = region.isNull() ? QString() : faultOf(region, read);
    if (!fault.isEmpty()) return fault;
    selection.setZoomFactor(static_cast<float>(dice.between(-1, 40)));
    selection.Offset(coordinate(dice), coordinate(dice));
    selection.Invert();
    selection.Crop();
    if (!selection.SaveToFile(path)) return "it can't be saved";
    if (QFile::exists(path)) QFile::remove(path);
    return {};
}

} // namespace velara::fuzz
