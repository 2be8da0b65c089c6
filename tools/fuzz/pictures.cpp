// Damaged pictures through the programs' loader.
#include "platform/WindowlessPlatform.h"
#include "tools/fuzz/inside.h"
#include <QFile>

namespace velara::fuzz {

namespace {

struct Loader final : WindowlessPlatform {
    void message(const QString&, const QString&, Icon) override {}
};

struct Meaning {
    const char* words;
    PictureOutcome outcome;
};
constexpr Meaning kMeanings[] = {
    {"its reader gave up", ReaderDied}, {"took too long", TookTooLong}, {"wanted what no picture needs", Caged}};
/// A reader that reports one of these for any picture is broken.
constexpr const char* kFaults[] = {"velara-decode", "no reader for", "no permission", "the system says", "sanitizer"};

PictureOutcome outcomeOf(const LoadedPicture& picture)
{
    if (picture.ok()) return picture.reason.isEmpty() ? Read : CutOff;
    for (const Meaning& row : kMeanings)
        if (picture.reason.contains(QLatin1String(row.words))) return row.outcome;
    return Refused;
}

QString faultOf(const LoadedPicture& picture)
{
    const QString& reason = picture.reason;
    for (const char* fault : kFaults)
        if (reason.contains(QLatin1String(fault))) return reason;
    if (!picture.ok() && reason.isEmpty()) return "no picture and no reason";
    for (const QChar c : reason)
        if (c.category() == QChar::Other_Control) return "a control character in the reason: " + reason;
    if (!picture.ok()) return {};
    const Bits& bits = picture.bits;
    if (!Bits::sizeAllowed(bits.width(), bits.height())) return "a picture of a size that there is not";
    for (const int y : {-2, -1, bits.height(), bits.height() + 1})
        for (int x = -2; x < bits.width() + 2; ++x)
            if (bits.at(x, y) != Pixel{}) return "the margin is not zero";
    return {};
}

/// An index of kFormats.
std::size_t formatOf(const Place& place, std::uint64_t number)
{
    if (place.formats.isEmpty()) return number % std::size(kFormats);
    const QString& wanted = place.formats[static_cast<qsizetype>(number % std::size_t(place.formats.size()))];
    return static_cast<std::size_t>(findFormat(wanted.toStdString()) - kFormats);
}

/// Reads a picture made by damaging a seed of the format, with another one for parts.
template <class Damage> QString tryOne(const Place& place, std::size_t format, Dice& dice, const Damage& damage)
{
    static Loader loader;
    const QString extension = nameOf(kFormats[format]);
    const QList<QByteArray>& seeds = seedsOf(format, place.samples);
    const auto pick = [&] { return seeds[dice.within(0, static_cast<int>(seeds.size()) - 1)]; };
    QByteArray bytes = pick();
    damage(bytes, extension, pick(), dice);
    const QString path = writeInput(place.input, "picture." + extension, bytes);
    const LoadedPicture picture = loader.loadPicture(path, extension);
    const PictureOutcome outcome = outcomeOf(picture);
    ++(*place.tally)[format][outcome];
    QString fault = faultOf(picture);
    if (place.noDeaths && (outcome == ReaderDied || outcome == TookTooLong)) fault = picture.reason;
    if (fault.isEmpty()) QFile::remove(path);
    return fault;
}

} // namespace

QString tryPicture(const Place& place, std::uint64_t number)
{
    Dice dice = diceOf("pictures", number);
    return tryOne(place, formatOf(place, number), dice,
                  [](QByteArray& bytes, const QString&, const QByteArray& other, Dice& d) { mutate(bytes, other, d); });
}

QString tryInside(const Place& place, std::uint64_t number)
{
    Dice dice = diceOf("inside", number);
    const auto* format = findFormat(kInside[number % std::size(kInside)]);
    return tryOne(place, static_cast<std::size_t>(format - kFormats), dice, mutateInside);
}

} // namespace velara::fuzz
