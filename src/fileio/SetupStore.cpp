#include "fileio/SetupStore.h"
#include "fileio/disk/fileBytes.h"
#include "fileio/disk/nativeName.h"
#include "fileio/disk/userFolders.h"
#include "seams/Platform.h"
#include <QFile>
#include <algorithm>
#include <cstring>
#include <type_traits>
#include <vector>

namespace velara {

namespace {

// --- One element in the file. Numbers are little-endian, as in memory here; a flag is 16 bits, -1 or 0; a text is
// padded with blanks.

template <class T> void put(T value, std::uint8_t* to, int) { std::memcpy(to, &value, sizeof value); }
void put(bool value, std::uint8_t* to, int width) { put(static_cast<std::int16_t>(value ? -1 : 0), to, width); }

template <class T> void get(T& value, const std::uint8_t* from, int) { std::memcpy(&value, from, sizeof value); }
void get(bool& value, const std::uint8_t* from, int)
{
    std::int16_t flag = 0;
    get(flag, from, 0);
    value = flag != 0;
}

/// The bytes of text up to width, without splitting a character.
QByteArray wholeCharacters(QByteArray text, int width)
{
    if (text.size() <= width) return text;
    const auto continues = [&](int i) { return (static_cast<std::uint8_t>(text[i]) & 0xC0) == 0x80; };
    while (width > 0 && continues(width)) --width;
    return text.left(width);
}

/// Up to the first zero, without trailing blanks.
void get(QString& value, const std::uint8_t* from, int width)
{
    const auto* text = reinterpret_cast<const char*>(from);
    auto length = static_cast<int>(strnlen(text, static_cast<std::size_t>(width)));
    while (length > 0 && text[length - 1] == ' ') --length;
    value = nameFrom({text, length});
}

/// A text that wasn't changed keeps its bytes: they may be in a foreign code page.
void put(const QString& value, std::uint8_t* to, int width)
{
    QString before;
    get(before, to, width);
    if (value == before && std::ranges::any_of(before, [](QChar c) { return c.isSurrogate(); })) return;
    const QByteArray text = wholeCharacters(nativeName(value), width);
    std::memset(to, ' ', static_cast<std::size_t>(width));
    std::memcpy(to, text.constData(), static_cast<std::size_t>(text.size()));
}

// --- One field: how its elements are reached

template <class T> constexpr int countOf = 1;
template <class T, std::size_t N> constexpr int countOf<std::array<T, N>> = N;

template <class T> struct ElementOf {
    using type = T;
};
template <class T, std::size_t N> struct ElementOf<std::array<T, N>> {
    using type = T;
};

/// Calls body(element, index) for the field itself, or for each of its elements.
template <class T, class Body> void eachElement(T& field, Body body)
{
    if constexpr (countOf<std::remove_const_t<T>> == 1)
        body(field, 0);
    else
        for (std::size_t i = 0; i < field.size(); ++i) body(field[i], static_cast<int>(i));
}

struct Field {
    int offset, width, count; // width: bytes of one element
    void (*write)(const Field&, const Setup&, std::uint8_t* record);
    void (*read)(const Field&, Setup&, std::span<const std::uint8_t> record);
};

template <auto Member> constexpr Field field(int offset, int width)
{
    using Type = std::remove_cvref_t<decltype(std::declval<Setup&>().*Member)>;
    using Element = typename ElementOf<Type>::type;
    constexpr int own = std::is_same_v<Element, bool> ? 2 : std::is_same_v<Element, QString> ? 0 : sizeof(Element);
    if (own != 0 && own != width) throw "the width is not that of the field's type";
    return {offset, width, countOf<Type>,
            [](const Field& f, const Setup& s, std::uint8_t* record) {
                eachElement(s.*Member, [&](const auto& e, int i) { put(e, record + f.offset + i * f.width, f.width); });
            },
            [](const Field& f, Setup& s, std::span<const std::uint8_t> record) {
                eachElement(s.*Member, [&](auto& e, int i) {
                    const auto from = static_cast<std::size_t>(f.offset + i * f.width);
                    if (from + static_cast<std::size_t>(f.width) <= record.size())
                        get(e, record.data() + from, f.width);
                });
            }};
}

// clang-format off
constexpr Field kFields[] = { // offset, width of an element
    field<&Setup::FrameWidth>            (   0,   2),
    field<&Setup::FrameHeight>           (   2,   2),
    field<&Setup::FrameMaximized>        (   4,   2),
    field<&Setup::ImagesMaximized>       (   6,   2),
    field<&Setup::ImagesPath>            (   8, 256),
    field<&Setup::PreserveLastFolder>    ( 264,   2),
    field<&Setup::AskToSave>             ( 266,   2),
    field<&Setup::OpenZoom>              ( 268,   2),
    field<&Setup::Recent>                ( 270, 256),
    field<&Setup::ColorBoxVisible>       (2318,   2),
    field<&Setup::TexturesBoxVisible>    (2320,   2),
    field<&Setup::ClipboardBoxVisible>   (2322,   2),
    field<&Setup::BarVisible>            (2324,   2),
    field<&Setup::StatusBarVisible>      (2338,   2),
    field<&Setup::SideBarHidden>         (2340,   2),
    field<&Setup::Reserved2342>          (2342,   2),
    field<&Setup::PaletteHue>            (2344,   4),
    field<&Setup::ForeColor>             (2348,   4),
    field<&Setup::BackColor>             (2352,   4),
    field<&Setup::CustomColors>          (2356,   4),
    field<&Setup::PaletteFlag>           (2420,   2),
    field<&Setup::Reserved2422>          (2422,   2),
    field<&Setup::CurrentTool>           (2424,  25),
    field<&Setup::SelectionMode>         (2449,   2),
    field<&Setup::SelectionShape>        (2451,   2),
    field<&Setup::SelectionPressure>     (2453,   2),
    field<&Setup::MoveSelection>         (2455,   2),
    field<&Setup::BrushMode>             (2457,   2),
    field<&Setup::BrushSize>             (2459,   2),
    field<&Setup::BrushPressure>         (2461,   2),
    field<&Setup::BrushContinuous>       (2463,   2),
    field<&Setup::AirbrushSize>          (2465,   2),
    field<&Setup::AirbrushPressure>      (2467,   2),
    field<&Setup::AirbrushQuantity>      (2469,   2),
    field<&Setup::AirbrushDefinition>    (2471,   2),
    field<&Setup::FillMode>              (2473,   2),
    field<&Setup::FillTolerance>         (2475,   2),
    field<&Setup::FillPressure>          (2477,   2),
    field<&Setup::ShapeKind>             (2479,   2),
    field<&Setup::ShapePressure>         (2481,   2),
    field<&Setup::ShapeSides>            (2483,   2),
    field<&Setup::Reserved2485>          (2485,   2),
    field<&Setup::StampMaskColor>        (2487,   4),
    field<&Setup::StampUseMaskColor>     (2491,   2),
    field<&Setup::StampMask>             (2493,   2),
    field<&Setup::StampClearBack>        (2495,   2),
    field<&Setup::StampPressure>         (2497,   2),
    field<&Setup::Version>               (2499, 256),
    field<&Setup::TextFont>              (2755, 256),
    field<&Setup::TextSize>              (3011,   2),
    field<&Setup::TextFlag1>             (3013,   2),
    field<&Setup::TextFlag2>             (3015,   2),
    field<&Setup::TextFlag3>             (3017,   2),
    field<&Setup::TextMode>              (3019,   2),
    field<&Setup::ToolOpacity>           (3021,   2),
    field<&Setup::Reserved3023>          (3023,   1),
    field<&Setup::GradientMode>          (3031,   4),
    field<&Setup::GradientColor1>        (3035,   4),
    field<&Setup::GradientColor2>        (3039,   4),
    field<&Setup::GradientTransparent1>  (3043,   2),
    field<&Setup::GradientTransparent2>  (3045,   2),
    field<&Setup::GradientPressure>      (3047,   2),
    field<&Setup::GradientFrequency>     (3049,   2),
    field<&Setup::EffectFlags>           (3051,   2),
    field<&Setup::Reserved3067>          (3067,   1),
    field<&Setup::Reserved3075>          (3075,   2),
    field<&Setup::ClipOpacity>           (3077,   2),
    field<&Setup::PasteMode>             (3079,   2),
};
// clang-format on

/// The length of the fields when each begins where the previous one ends; 0 otherwise.
consteval std::size_t lengthWithoutGaps()
{
    int end = 0;
    for (const Field& f : kFields) {
        if (f.offset != end) return 0;
        end += f.width * f.count;
    }
    return static_cast<std::size_t>(end);
}
static_assert(lengthWithoutGaps() > 0, "src/fileio/SetupStore.cpp: a row of kFields begins where the one before ends");

/// Converts to a value of any member type.
struct AnyValue {
    template <class T> operator T() const;
};
template <std::size_t... I> consteval bool hasMembers(std::index_sequence<I...>)
{
    return requires { Setup{(void(I), AnyValue{})...}; };
}
/// Setup takes exactly as many values as there are rows.
static_assert(hasMembers(std::make_index_sequence<std::size(kFields)>()) &&
                  !hasMembers(std::make_index_sequence<std::size(kFields) + 1>()),
              "a member of src/seams/Setup.h has no row in kFields of src/fileio/SetupStore.cpp, or a row no member");

QString setupPath(Platform& platform)
{
    return userFolder(platform.programFolder(), UserFolder::Settings) + QStringLiteral("/Vlaera.dat");
}

/// The record in the file; nothing when it can't be read or is all zeros: no run writes that, but a power failure may
/// leave it.
std::vector<std::uint8_t> recordOf(const QString& path)
{
    FileReader file(path);
    std::vector<std::uint8_t> record(static_cast<std::size_t>(std::clamp<std::int64_t>(file.size(), 0, kSetupBytes)));
    const bool isWritten =
        file.read(record) && std::ranges::any_of(record, [](std::uint8_t byte) { return byte != 0; });
    return isWritten ? record : std::vector<std::uint8_t>();
}

/// Reads the fields that lie completely in the bytes; the others are unchanged.
void readFields(Setup& setup, std::span<const std::uint8_t> bytes)
{
    for (const Field& f : kFields) f.read(f, setup, bytes);
}

} // namespace

const int kSetupBytes = int(lengthWithoutGaps());

SetupRecord setupBytes(const Setup& setup, SetupRecord record)
{
    record.resize(lengthWithoutGaps());
    for (const Field& f : kFields) f.write(f, setup, record.data());
    return record;
}

Setup setupFromBytes(std::span<const std::uint8_t> bytes)
{
    Setup setup;
    readFields(setup, bytes);
    return setup;
}

Setup LoadSetup(Platform& platform)
{
    const QString path = setupPath(platform);
    if (FileFound(path) && path.isEmpty()) { // odd, and kept: the path is tested instead of the file, so never
        platform.tell(QStringLiteral("Configuration data file is corrupted\r\nValues will be initilized"),
                      Icon::Exclamation);
        QFile::remove(path);
    }
    Setup setup;
    setup.ImagesPath = platform.programFolder() + QStringLiteral("/Images/");
    const std::vector<std::uint8_t> record = recordOf(path);
    readFields(setup, record);
    if (record.size() < lengthWithoutGaps())
        SaveSetup(platform, setup); // at once: a run that is killed leaves a valid file
    return setup;
}

bool SaveSetup(Platform& platform, const Setup& setup)
{
    const QString path = setupPath(platform);
    return overwriteFile(path, setupBytes(setup, recordOf(path)));
}

void AddRecent(Setup& setup, const QString& path)
{
    for (QString& entry : setup.Recent) {
        while (entry.endsWith(u' ')) entry.chop(1);
        if (entry == path) return;
        if (entry.isEmpty()) {
            entry = path;
            return;
        }
    }
    std::shift_right(setup.Recent.begin(), setup.Recent.end(), 1);
    setup.Recent[0] = path;
}

} // namespace velara
