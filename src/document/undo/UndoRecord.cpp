#include "document/undo/UndoRecord.h"
#include "document/undo/TileSums.h"
#include "document/undo/UndoFiles.h"
#include "document/undo/UndoStore.h"
#include "document/undo/xxh3.h"
#include "fileio/disk/nativeName.h"
#include <QCborArray>
#include <QCborMap>
#include <QCborParserError>
#include <QtEndian>
#include <limits>

namespace velara {

namespace {

constexpr char kMark[] = "VeluUndo"; // eight bytes; then the version and the checksum of the rest, little-endian
constexpr qsizetype kMarkSize = 8, kHead = kMarkSize + 4 + 8;
constexpr std::uint32_t kVersion = 2; // 1: without tiles

// --- A value in a map, both ways. Texts go as bytes: names of files may be no UTF-8.

QCborValue put(const QString& text) { return QCborValue(nativeName(text)); }
QCborValue put(const QByteArray& bytes) { return QCborValue(bytes); }
QCborValue put(bool on) { return QCborValue(on); }
QCborValue put(int number) { return QCborValue(qint64(number)); }
QCborValue put(double number) { return QCborValue(number); }
QCborValue put(std::uint64_t number) { return QCborValue(static_cast<qint64>(number)); }
QCborValue put(std::int64_t number) { return QCborValue(qint64(number)); }
QCborValue put(CameraKept kept) { return put(static_cast<int>(kept)); }

void get(const QCborValue& value, QString& text) { text = nameFrom(value.toByteArray(nativeName(text))); }
void get(const QCborValue& value, QByteArray& bytes) { bytes = value.toByteArray(bytes); }
void get(const QCborValue& value, bool& on) { on = value.toBool(on); }
void get(const QCborValue& value, double& number) { number = value.toDouble(number); }
void get(const QCborValue& value, std::uint64_t& number) { number = static_cast<std::uint64_t>(value.toInteger(0)); }
void get(const QCborValue& value, std::int64_t& number) { number = value.toInteger(number); }
void get(const QCborValue& value, int& number)
{
    const qint64 read = value.toInteger(number);
    if (read == static_cast<int>(read)) number = static_cast<int>(read);
}
void get(const QCborValue& value, CameraKept& kept)
{
    int number = static_cast<int>(kept);
    get(value, number);
    if (number >= 0 && number <= static_cast<int>(CameraKept::None)) kept = static_cast<CameraKept>(number);
}

// --- The fields of each kind, named once for both ways.

template <class Facts, class Field>
requires std::same_as<std::remove_const_t<Facts>, FileFacts>
void eachField(Facts& f, Field field)
{
    field("path", f.path), field("mark", f.mark), field("isFile", f.isFile), field("isCutOff", f.isCutOff);
    field("isBrought", f.isBrought), field("kept", f.kept), field("properties", f.properties);
    field("page", f.page), field("pages", f.pages), field("format", f.format);
    auto& camera = f.camera;
    field("exif", camera.exif), field("xmp", camera.xmp), field("iptc", camera.iptc), field("comment", camera.comment);
    field("profile", camera.profile);
    field("dotsAcross", camera.dotsAcross), field("dotsDown", camera.dotsDown);
}

template <class Kept, class Field>
requires std::same_as<std::remove_const_t<Kept>, Layers::Kept>
void eachField(Kept& k, Field field)
{
    auto& layer = k.layer;
    field("text", layer.text), field("colour", layer.colour), field("shown", layer.shown), field("sized", k.sized);
    auto& place = layer.place;
    field("left", place.left), field("top", place.top), field("right", place.right), field("bottom", place.bottom);
    auto& style = layer.style;
    field("family", style.family), field("size", style.size), field("bold", style.bold);
    field("italic", style.italic), field("underline", style.underline), field("strikeOut", style.strikeOut);
}

template <class State, class Field>
requires std::same_as<std::remove_const_t<State>, KeptState>
void eachField(State& s, Field field)
{
    field("gap", s.gap), field("file", s.file), field("sum", s.sum);
    field("side", s.side), field("isTiles", s.isTiles);
    auto& note = s.note;
    field("name", note.name), field("width", note.width), field("height", note.height);
    if (note.selection.isEmpty()) field("words", note.words); // without the place that they are for they are of no use
}

template <class Facts> QCborMap mapOf(const Facts& facts)
{
    QCborMap map;
    eachField(facts, [&](const char* name, const auto& value) { map.insert(QLatin1String(name), put(value)); });
    return map;
}

template <class Facts> void readFrom(const QCborMap& map, Facts& facts)
{
    eachField(facts, [&](const char* name, auto& value) { get(map.value(QLatin1String(name)), value); });
}

} // namespace

QByteArray bytesOf(const UndoRecord& record)
{
    QCborMap texts;
    for (const auto& [index, kept] : record.about.texts) texts.insert(qint64(index), mapOf(kept));
    QCborArray states, ground;
    for (const KeptState& state : record.states) states.append(mapOf(state));
    for (const KeptState& state : record.ground) ground.append(mapOf(state));
    QCborMap map{{QLatin1String("file"), mapOf(record.about.file)},
                 {QLatin1String("isUnsaved"), record.about.isUnsaved},
                 {QLatin1String("texts"), texts},
                 {QLatin1String("step"), record.step},
                 {QLatin1String("states"), states},
                 {QLatin1String("ground"), ground},
                 {QLatin1String("when"), put(record.when)}};
    const QByteArray body = map.toCborValue().toCbor();
    QByteArray bytes(kMark, kMarkSize);
    bytes.resize(kHead);
    qToLittleEndian(kVersion, bytes.data() + kMarkSize);
    qToLittleEndian(checksumOf(body.constData(), static_cast<std::size_t>(body.size())), bytes.data() + kMarkSize + 4);
    return bytes + body;
}

RecordState recordFrom(const QByteArray& bytes, UndoRecord& record)
{
    if (bytes.size() < kHead || !bytes.startsWith(QByteArray(kMark, kMarkSize))) return RecordState::Damaged;
    if (qFromLittleEndian<std::uint32_t>(bytes.constData() + kMarkSize) > kVersion) return RecordState::Newer;
    const QByteArray body = bytes.mid(kHead);
    const auto sum = qFromLittleEndian<std::uint64_t>(bytes.constData() + kMarkSize + 4);
    if (sum != checksumOf(body.constData(), static_cast<std::size_t>(body.size()))) return RecordState::Damaged;
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(body, &error);
    const QCborArray states = value[QLatin1String("states")].toArray();
    const QCborArray ground = value[QLatin1String("ground")].toArray();
    const qint64 step = value[QLatin1String("step")].toInteger(-1);
    if (error.error != QCborError::NoError || states.size() > UndoStore::kLimit || step < 0 || step > states.size())
        return RecordState::Damaged;
    if (ground.size() > UndoFiles::kMost - UndoFiles::kGround) return RecordState::Damaged;
    record = {};
    record.step = static_cast<int>(step);
    get(value[QLatin1String("isUnsaved")], record.about.isUnsaved);
    get(value[QLatin1String("when")], record.when);
    readFrom(value[QLatin1String("file")].toMap(), record.about.file);
    for (const auto& [key, text] : value[QLatin1String("texts")].toMap())
        if (const qint64 index = key.toInteger(); index >= Layers::kFirst && index < std::numeric_limits<int>::max())
            readFrom(text.toMap(), record.about.texts[static_cast<int>(index)]);
    for (const QCborValue& state : states) readFrom(state.toMap(), record.states.emplace_back());
    for (const QCborValue& state : ground) readFrom(state.toMap(), record.ground.emplace_back());
    return RecordState::Whole;
}

std::uint64_t checksumOf(const void* bytes, std::size_t size) { return XXH3_64bits(bytes, size); }

bool isPictureOf(const KeptState& state, const Bits& bits)
{
    if (state.sum == 0) return true;
    const bool isOfTiles = state.side > 0;
    return state.sum == (isOfTiles ? TileSums(bits, state.side).whole() : checksumOf(bits.data(), bits.sizeInBytes()));
}

} // namespace velara
