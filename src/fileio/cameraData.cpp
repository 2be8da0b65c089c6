#include "fileio/cameraData.h"
#include "fileio/exifBytes.h"
#include <QStringConverter>
#include <algorithm>
#include <cmath>
#include <string_view>

namespace velara {

namespace {

// --- EXIF

using Directory = std::uint32_t;

void setAll(ExifBytes& exif, Directory directory, std::uint16_t tag, int value)
{
    for (const ExifBytes::Entry& entry : exif.entries(directory))
        if (entry.tag == tag) exif.setNumber(entry, static_cast<std::uint32_t>(value));
}

/// Where the directory and its values end.
std::size_t endOf(const ExifBytes& exif, Directory directory)
{
    std::size_t end = directory;
    for (const ExifBytes::Entry& entry : exif.entries(directory))
        end = std::max({end, entry.at + 16, entry.valueAt + entry.valueBytes});
    return end;
}

/// Unlinks the second directory. Its picture goes, too, where it lies behind everything else, as cameras put it.
void dropSmallPicture(ExifBytes& exif, Directory first, Directory details)
{
    const Directory second = exif.next(first);
    if (second == 0) return;
    const auto at = exif.find(second, ExifTag::SmallPicture), length = exif.find(second, ExifTag::SmallPictureLength);
    const std::size_t from = at ? exif.number(*at) : 0, count = length ? exif.number(*length) : 0;
    exif.setNext(first, 0);
    const std::size_t used =
        std::max({endOf(exif, first), endOf(exif, details), endOf(exif, exif.directoryOf(first, ExifTag::Place))});
    if (from < used) return;
    if (from + count >= static_cast<std::size_t>(exif.bytes().size()))
        exif.cut(from);
    else
        exif.fill(from, count);
}

QByteArray fittedExif(const QByteArray& bytes, int width, int height)
{
    ExifBytes exif(bytes);
    const Directory first = exif.first(), details = exif.directoryOf(first, ExifTag::Details);
    if (exif.entries(first).empty()) return {};
    setAll(exif, first, ExifTag::Orientation, 1);
    setAll(exif, first, ExifTag::Width, width);
    setAll(exif, first, ExifTag::Height, height);
    setAll(exif, details, ExifTag::PixelWidth, width);
    setAll(exif, details, ExifTag::PixelHeight, height);
    dropSmallPicture(exif, first, details);
    return exif.bytes();
}

/// Takes an entry of the first directory out with its values, which are returned.
QByteArray takeOut(ExifBytes& exif, std::uint16_t tag)
{
    const Directory first = exif.first();
    const auto entry = exif.find(first, tag);
    if (!entry) return {};
    const QByteArray values = exif.valuesOf(*entry);
    const auto size = static_cast<std::size_t>(exif.bytes().size());
    exif.clearValues(*entry);
    if (entry->valueAt > first && entry->valueBytes > 4 && entry->valueAt + entry->valueBytes == size)
        exif.cut(entry->valueAt);
    exif.remove(first, *entry);
    return values;
}

/// The place's own directory is cleared with its values before its link goes. EXIF has one link; more are suspect.
QByteArray exifWithoutPlace(const QByteArray& bytes)
{
    constexpr int kMostLinks = 4;
    ExifBytes exif(bytes);
    const Directory first = exif.first();
    for (int links = 0; const auto link = exif.find(first, ExifTag::Place); ++links) {
        if (links == kMostLinks) return {};
        const Directory place = exif.number(*link);
        if (place != first && place != exif.directoryOf(first, ExifTag::Details)) {
            const std::vector<ExifBytes::Entry> entries = exif.entries(place);
            for (const ExifBytes::Entry& entry : entries) exif.clearValues(entry);
            for (const ExifBytes::Entry& entry : entries) exif.fill(entry.at, 12);
        }
        const auto still = exif.find(first, ExifTag::Place); // clearing may have reached it
        if (!still) break;
        exif.remove(first, *still);
    }
    for (const std::uint16_t tag : {ExifTag::Xmp, ExifTag::Iptc, ExifTag::Photoshop}) // which may tell it, too
        takeOut(exif, tag);
    return exif.entries(exif.first()).empty() ? QByteArray() : exif.bytes();
}

// --- What stands in EXIF where the container has no place for it

constexpr qsizetype kCode = 8; // bytes that name the characters of a comment

QByteArray codeOf(const char* name) { return QByteArray(name).leftJustified(kCode, '\0'); }

QStringConverter::Encoding utf16Of(const ExifBytes& exif)
{
    return exif.bytes().startsWith('I') ? QStringConverter::Utf16LE : QStringConverter::Utf16BE;
}

QString commentIn(const ExifBytes& exif)
{
    const auto entry = exif.find(exif.directoryOf(exif.first(), ExifTag::Details), ExifTag::UserComment);
    if (!entry) return {};
    const QByteArray bytes = exif.valuesOf(*entry), code = bytes.left(kCode), text = bytes.mid(kCode);
    QString comment;
    if (code == codeOf("UNICODE")) {
        comment = QStringDecoder(utf16Of(exif)).decode(text);
    } else if (code == codeOf("ASCII") || code == codeOf("")) {
        QStringDecoder decoder(QStringDecoder::Utf8);
        comment = decoder.decode(text);
        if (decoder.hasError()) comment = QString::fromLatin1(text);
    }
    return comment.left(comment.indexOf(QChar(0)) < 0 ? comment.size() : comment.indexOf(QChar(0))).trimmed();
}

ExifBytes::Addition commentFor(const ExifBytes& exif, const QString& comment)
{
    const bool isPlain = std::ranges::all_of(comment, [](QChar c) { return c.unicode() < 0x80; });
    const QByteArray bytes = isPlain ? codeOf("ASCII") + comment.toLatin1()
                                     : codeOf("UNICODE") + QByteArray(QStringEncoder(utf16Of(exif)).encode(comment));
    return {ExifTag::UserComment, ExifBytes::Undefined, static_cast<std::uint32_t>(bytes.size()), bytes};
}

/// The directory is where it was, or moves to the end of the block with these entries.
Directory grown(ExifBytes& exif, Directory directory, const std::vector<ExifBytes::Addition>& additions,
                ExifBytes::Values values = ExifBytes::Values::BeforeDirectory)
{
    return additions.empty() ? directory : exif.extended(directory, additions, values);
}

void putComment(ExifBytes& exif, const QString& comment)
{
    const Directory first = exif.first(), details = exif.directoryOf(first, ExifTag::Details);
    if (comment.isEmpty() || !commentIn(exif).isEmpty()) return;
    const Directory now = grown(exif, details, {commentFor(exif, comment)});
    if (const auto link = exif.find(first, ExifTag::Details))
        exif.setLink(*link, now);
    else
        exif.setFirst(grown(exif, first, {{ExifTag::Details, ExifBytes::Long, 1, exif.ordered(now, 4)}}));
}

/// Per inch, with four decimals where they are needed.
void putDots(ExifBytes& exif, double across, double down)
{
    if (resolutionText(across, down).isEmpty()) return;
    const Directory first = exif.first();
    std::vector<ExifBytes::Addition> additions;
    for (const auto& [tag, dots] : {std::pair{ExifTag::XResolution, across}, std::pair{ExifTag::YResolution, down}}) {
        const std::uint32_t below = dots == std::round(dots) ? 1 : 10000;
        const auto above = static_cast<std::uint32_t>(std::llround(dots * below));
        const auto entry = exif.find(first, tag);
        if (entry && entry->type == ExifBytes::Fraction)
            exif.setFraction(*entry, above, below);
        else
            additions.push_back({tag, ExifBytes::Fraction, 1, exif.ordered(above, 4) + exif.ordered(below, 4)});
    }
    constexpr std::uint32_t kInches = 2;
    if (const auto unit = exif.find(first, ExifTag::ResolutionUnit); unit && unit->type == ExifBytes::Short)
        exif.setNumber(*unit, kInches);
    else
        additions.push_back({ExifTag::ResolutionUnit, ExifBytes::Short, 1, exif.ordered(kInches, 2)});
    if (!additions.empty()) exif.setFirst(grown(exif, first, additions));
}

/// Behind everything else, so that nothing of it is left when it is taken out.
void putIptc(ExifBytes& exif, const QByteArray& iptc)
{
    if (iptc.isEmpty() || exif.bytes().size() + iptc.size() + 1024 > kMostExif) return;
    const ExifBytes::Addition addition{ExifTag::Iptc, ExifBytes::Undefined, static_cast<std::uint32_t>(iptc.size()),
                                       iptc};
    exif.setFirst(grown(exif, exif.first(), {addition}, ExifBytes::Values::BehindDirectory));
}

// --- XMP, as text

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

/// Sets a property of whole numbers, as an attribute or an element, where it stands the first few times.
void setXmp(QByteArray& xmp, std::string_view name, int value)
{
    const auto key = QByteArrayView(name.data(), static_cast<qsizetype>(name.size()));
    constexpr int kMostTimes = 16;
    qsizetype at = 0;
    for (int times = 0; times < kMostTimes && (at = xmp.indexOf(key, at)) >= 0; ++times) {
        at += key.size();
        const bool isAttribute = xmp.mid(at, 2) == "=\"" || xmp.mid(at, 2) == "='";
        if (!isAttribute && xmp.mid(at, 1) != ">") continue;
        at += isAttribute ? 2 : 1;
        qsizetype end = at;
        while (end < xmp.size() && xmp[end] >= '0' && xmp[end] <= '9') ++end;
        if (end > at) xmp.replace(at, end - at, QByteArray::number(value));
    }
}

/// The end of the attribute or element that begins at the first letter of its name; at itself: it is neither.
qsizetype endOfProperty(const QByteArray& xmp, qsizetype at)
{
    qsizetype end = at;
    while (end < xmp.size() && !isBlank(xmp[end]) && xmp[end] != '=' && xmp[end] != '>' && xmp[end] != '/') ++end;
    const QByteArray name = xmp.mid(at, end - at);
    if (at > 0 && xmp[at - 1] == '<') {
        const qsizetype close = xmp.indexOf('>', end);
        if (close < 0) return at;
        if (xmp[close - 1] == '/') return close + 1;
        const QByteArray last = "</" + name;
        const qsizetype found = xmp.indexOf(last, close), after = found < 0 ? -1 : xmp.indexOf('>', found);
        return after < 0 ? at : after + 1;
    }
    while (end < xmp.size() && isBlank(xmp[end])) ++end;
    if (end >= xmp.size() || xmp[end] != '=') return at;
    do ++end;
    while (end < xmp.size() && isBlank(xmp[end]));
    if (end >= xmp.size() || (xmp[end] != '"' && xmp[end] != '\'')) return at;
    const qsizetype close = xmp.indexOf(xmp[end], end + 1);
    return close < 0 ? at : close + 1;
}

/// Without the properties whose names begin so; empty where one of them can't be told from the rest.
QByteArray xmpWithout(const QByteArray& xmp, const char* beginning)
{
    QByteArray kept;
    qsizetype from = 0;
    for (qsizetype at = 0; (at = xmp.indexOf(beginning, from)) >= 0;) {
        const qsizetype end = endOfProperty(xmp, at);
        if (end == at) return {};
        const bool isElement = at > 0 && xmp[at - 1] == '<';
        kept += xmp.mid(from, at - from - (isElement ? 1 : 0));
        from = end;
    }
    return kept + xmp.mid(from);
}

constexpr const char* kPlacesInXmp[] = {"exif:GPS",
                                        "photoshop:City",
                                        "photoshop:State",
                                        "photoshop:Country",
                                        "Iptc4xmpCore:Location",
                                        "Iptc4xmpCore:CountryCode",
                                        "Iptc4xmpExt:Location"};

QByteArray xmpWithoutPlace(QByteArray xmp)
{
    for (const char* beginning : kPlacesInXmp) xmp = xmpWithout(xmp, beginning);
    return xmp.contains("GPS") ? QByteArray() : xmp; // under another prefix
}

// --- IPTC: records of 0x1c, record, number, two bytes of length (a high bit: a longer form, which no place has)

QByteArray iptcWithoutPlace(const QByteArray& iptc)
{
    constexpr int kHead = 5;
    constexpr std::uint8_t kPlaces[] = {26, 27,  90, 92,
                                        95, 100, 101}; // codes and names from the location to the country
    QByteArray kept;
    for (qsizetype at = 0; at + kHead <= iptc.size();) {
        const auto byte = [&](qsizetype i) { return static_cast<std::uint8_t>(iptc[at + i]); };
        const qsizetype size = kHead + (byte(3) << 8 | byte(4));
        if (byte(0) != 0x1c || byte(3) & 0x80 || size > iptc.size() - at) break;
        if (byte(1) != 2 || std::ranges::find(kPlaces, byte(2)) == std::end(kPlaces)) kept += iptc.mid(at, size);
        at += size;
    }
    return kept;
}

} // namespace

QString resolutionText(double across, double down)
{
    const auto isUsable = [](double dots) { return dots > 0 && dots < 1e5; };
    if (!isUsable(across) || !isUsable(down)) return {};
    return QStringLiteral("%1 x %2 dots per inch").arg(across, 0, 'g', 5).arg(down, 0, 'g', 5);
}

CameraData fitted(CameraData camera, int width, int height)
{
    camera.exif = fittedExif(camera.exif, width, height);
    setXmp(camera.xmp, "tiff:Orientation", 1);
    for (const char* name : {"tiff:ImageWidth", "exif:PixelXDimension"}) setXmp(camera.xmp, name, width);
    for (const char* name : {"tiff:ImageLength", "exif:PixelYDimension"}) setXmp(camera.xmp, name, height);
    if (camera.xmp.contains("xmp:Thumbnails")) camera.xmp = xmpWithout(camera.xmp, "xmp:Thumbnails");
    return camera;
}

CameraData withoutPlace(CameraData camera)
{
    camera.exif = exifWithoutPlace(camera.exif);
    camera.xmp = xmpWithoutPlace(camera.xmp);
    camera.iptc = iptcWithoutPlace(camera.iptc);
    return camera;
}

CameraData inExif(CameraData camera)
{
    const QString comment = camera.comment.left(kMostExif / 32);
    if (camera.iptc.isEmpty() && comment.isEmpty() && resolutionText(camera.dotsAcross, camera.dotsDown).isEmpty())
        return camera;
    ExifBytes exif(camera.exif);
    if (exif.entries(exif.first()).empty()) exif = ExifBytes::empty();
    putComment(exif, comment);
    putDots(exif, camera.dotsAcross, camera.dotsDown);
    putIptc(exif, camera.iptc);
    if (exif.bytes().size() <= kMostExif) camera.exif = exif.bytes();
    return camera;
}

CameraData outOfExif(CameraData camera)
{
    ExifBytes exif(camera.exif);
    if (camera.comment.isEmpty()) camera.comment = commentIn(exif);
    const QByteArray iptc = takeOut(exif, ExifTag::Iptc);
    if (camera.iptc.isEmpty() && iptc.startsWith('\x1c')) camera.iptc = iptc;
    camera.exif = exif.bytes();
    return camera;
}

CameraData keptFor(const CameraData& camera, CameraKept kept, int width, int height)
{
    if (kept == CameraKept::None)
        return {.dotsAcross = camera.dotsAcross, .dotsDown = camera.dotsDown, .profile = camera.profile};
    return fitted(kept == CameraKept::NoPlace ? withoutPlace(camera) : camera, width, height);
}

CameraData keptForWeb(const CameraData& camera, CameraKept kept, int width, int height)
{
    return kept == CameraKept::None ? CameraData{.profile = camera.profile} : keptFor(camera, kept, width, height);
}

} // namespace velara
