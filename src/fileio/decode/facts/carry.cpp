#include "fileio/decode/facts/carry.h"
#include "fileio/cameraData.h"
#include "fileio/decode/facts/colours.h"
#include "fileio/decode/facts/upright.h"
#include "fileio/exifBytes.h"
#include <QStringConverter>
#include <QStringList>
#include <cmath>

namespace velara::decode {

namespace {

constexpr int kMostLetters = 200; // of a value

QByteArray bounded(const std::vector<std::uint8_t>& bytes)
{
    if (bytes.size() > kMostCarried) return {};
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

/// UTF-8, else Latin-1.
QString textOf(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

struct Dots {
    double across = 0, down = 0; // per inch
};

struct Directories {
    explicit Directories(const QByteArray& bytes) : exif(bytes) {}

    ExifBytes exif;
    std::uint32_t first = exif.first();
    std::uint32_t details = exif.directoryOf(first, ExifTag::Details);
    std::uint32_t place = exif.directoryOf(first, ExifTag::Place);

    QString text(std::uint32_t directory, std::uint16_t tag) const
    {
        const auto entry = exif.find(directory, tag);
        return entry ? textOf(exif.text(*entry)).simplified().left(kMostLetters) : QString();
    }
    /// 0: unknown.
    double number(std::uint32_t directory, std::uint16_t tag, std::uint32_t i = 0) const
    {
        const auto entry = exif.find(directory, tag);
        return entry ? exif.fraction(*entry, i).value_or(0) : 0;
    }
};

Dots dotsOf(const Carried& carried, const Directories& d)
{
    if (carried.dotsAcross > 0 && carried.dotsDown > 0) return {carried.dotsAcross, carried.dotsDown};
    constexpr double kCentimetres = 3;
    const double unit = d.number(d.first, ExifTag::ResolutionUnit) == kCentimetres ? 2.54 : 1;
    return {d.number(d.first, ExifTag::XResolution) * unit, d.number(d.first, ExifTag::YResolution) * unit};
}

// --- Lines

/// "NIKON D70" where the model repeats its maker, as most do.
QString cameraText(const Directories& d)
{
    const QString make = d.text(d.first, ExifTag::Make), model = d.text(d.first, ExifTag::Model);
    return model.startsWith(make.section(' ', 0, 0), Qt::CaseInsensitive) ? model : (make + ' ' + model).trimmed();
}

QString exposureText(const Directories& d)
{
    QStringList parts;
    const double time = d.number(d.details, ExifTag::ExposureTime);
    if (time > 0 && time < 0.3) parts << QStringLiteral("1/%1 s").arg(1 / time, 0, 'f', 0);
    if (time >= 0.3) parts << QStringLiteral("%1 s").arg(time, 0, 'g', 3);
    if (const double stop = d.number(d.details, ExifTag::FNumber); stop > 0)
        parts << QStringLiteral("f/%1").arg(stop, 0, 'g', 3);
    if (const double iso = d.number(d.details, ExifTag::Sensitivity); iso > 0)
        parts << QStringLiteral("ISO %1").arg(iso, 0, 'f', 0);
    if (const double length = d.number(d.details, ExifTag::FocalLength); length > 0)
        parts << QStringLiteral("%1 mm").arg(length, 0, 'g', 4);
    return parts.join(QStringLiteral(", "));
}

/// "2026:11:26 10:00:00" has hyphens here.
QString dateText(const Directories& d)
{
    QString date = d.text(d.details, ExifTag::DateTaken);
    if (date.isEmpty()) date = d.text(d.first, ExifTag::Date);
    for (const int at : {4, 7})
        if (date.size() > at && date[at] == ':') date[at] = '-';
    return date;
}

/// Degrees with five decimals, about a metre.
QString placeText(const Directories& d)
{
    enum : std::uint16_t { SideOfLatitude = 1, Latitude, SideOfLongitude, Longitude };
    const auto degrees = [&](std::uint16_t tag) {
        return d.number(d.place, tag) + d.number(d.place, tag, 1) / 60 + d.number(d.place, tag, 2) / 3600;
    };
    if (!d.exif.find(d.place, Latitude) || !d.exif.find(d.place, Longitude)) return {};
    const double latitude = degrees(Latitude), longitude = degrees(Longitude);
    if (!(std::abs(latitude) <= 90 && std::abs(longitude) <= 180)) return {};
    return QStringLiteral("%1 %2, %3 %4")
        .arg(latitude, 0, 'f', 5)
        .arg(d.text(d.place, SideOfLatitude).left(1))
        .arg(longitude, 0, 'f', 5)
        .arg(d.text(d.place, SideOfLongitude).left(1));
}

QString coloursText(const Carried& carried)
{
    if (!carried.profile.empty()) {
        const QString name = nameOfProfile(carried.profile);
        return name.isEmpty() ? QStringLiteral("a profile that can't be read") : name.left(kMostLetters);
    }
    return carried.gamma > 0 ? QStringLiteral("gamma %1").arg(1 / carried.gamma, 0, 'f', 2) : QString();
}

QString commentOf(const Carried& carried)
{
    if (carried.comment.empty()) return outOfExif({.exif = bounded(carried.exif)}).comment;
    return textOf(QByteArray::fromStdString(carried.comment.substr(0, kMostLetters * 4)));
}

} // namespace

CameraData cameraOf(const Decoded& picture)
{
    if (!picture.ok()) return {};
    const Carried& carried = picture.carried;
    CameraData camera{bounded(carried.exif), bounded(carried.xmp), bounded(carried.iptc)};
    if (carried.comment.size() <= kMostCarried) camera.comment = textOf(QByteArrayView(carried.comment));
    const Dots dots = dotsOf(carried, Directories(camera.exif));
    const bool isTurned = orientationOf(carried) > 4;
    camera.dotsAcross = isTurned ? dots.down : dots.across;
    camera.dotsDown = isTurned ? dots.across : dots.down;
    return outOfExif(fitted(std::move(camera), picture.width, picture.height));
}

QString propertiesOf(const Decoded& picture)
{
    if (!picture.ok()) return {};
    const Carried& carried = picture.carried;
    const Directories d(bounded(carried.exif));
    const Dots dots = dotsOf(carried, d);
    const std::pair<const char*, QString> lines[] = {
        {QT_TRANSLATE_NOOP("Properties", "Profile"), coloursText(carried)},
        {QT_TRANSLATE_NOOP("Properties", "Camera"), cameraText(d)},
        {QT_TRANSLATE_NOOP("Properties", "Lens"), d.text(d.details, ExifTag::Lens)},
        {QT_TRANSLATE_NOOP("Properties", "Exposure"), exposureText(d)},
        {QT_TRANSLATE_NOOP("Properties", "Date"), dateText(d)},
        {QT_TRANSLATE_NOOP("Properties", "Place"), placeText(d)},
        {QT_TRANSLATE_NOOP("Properties", "Resolution"), resolutionText(dots.across, dots.down)},
        {QT_TRANSLATE_NOOP("Properties", "Comment"), commentOf(carried).simplified().left(kMostLetters)},
        {QT_TRANSLATE_NOOP("Properties", "Pages"), carried.pages > 1 ? QString::number(carried.pages) : QString()},
    };
    QString text;
    for (const auto& [name, value] : lines)
        if (!value.isEmpty()) text += QLatin1String(name) + '\t' + value + '\n';
    return text;
}

} // namespace velara::decode
