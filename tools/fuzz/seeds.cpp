// Intact pictures to start from.
#include "fileio/savePicture.h"
#include "platform/WindowlessPlatform.h"
#include "tools/fuzz/inside.h"
#include <QDir>
#include <QTemporaryDir>

namespace velara::fuzz {

namespace {

static_assert(std::size(kFormats) <= kMostFormats);

struct Silent final : WindowlessPlatform {
    void message(const QString&, const QString&, velara::Icon) override {}
};

/// The file that the writer of an extension makes of a small picture.
QByteArray saved(const QString& extension)
{
    const QTemporaryDir folder;
    Silent platform;
    Dice dice("picture");
    savePicture(platform, dice.patches(23, 17, 30), folder.filePath("a."), extension == "pnm" ? extension : QString());
    savePicture(platform, dice.patches(23, 17, 30), folder.filePath("a." + extension), extension);
    const QFileInfoList files = QDir(folder.path()).entryInfoList(QDir::Files);
    if (files.isEmpty()) return {};
    QFile file(files.front().filePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A bitmap as inside an icon: no file header, double height, a mask after the pixels.
QByteArray asIcon(char type)
{
    QByteArray bitmap = QByteArray::fromHex("28000000 10000000 20000000 0100 1800") + QByteArray(24, '\0');
    for (int i = 0; i < 16 * 16 * 3; ++i) bitmap += static_cast<char>(i * 7);
    bitmap += QByteArray(16 * 4, '\x55');
    QByteArray icon = QByteArray::fromHex("0000 0100 0100 1010 0000 0100 1800 00000000 16000000") + bitmap;
    icon[2] = type;
    icon[14] = static_cast<char>(bitmap.size());
    icon[15] = static_cast<char>(bitmap.size() >> 8);
    return icon;
}

QByteArray hex(const char* head, int rest, char fill) { return QByteArray::fromHex(head) + QByteArray(rest, fill); }

/// The smallest file of each format that its reader recognises.
QByteArray made(const QString& format)
{
    static const QStringList kSaved = {"gif", "jpg", "bmp", "tif", "pcx", "tga", "png"};
    if (kSaved.contains(format)) return saved(format);
    if (format == "ppm") return saved("pnm");
    if (format == "jng") return saved("bmp");
    if (format == "mng") return asMng(saved("png"));
    if (format == "dib") return saved("bmp").mid(14);
    if (format == "ico") return asIcon(1);
    if (format == "cur") return asIcon(2);
    if (format == "pbm") return "P1\n9 3\n" + QByteArray("1 0 ").repeated(14);
    if (format == "pgm") return "P5\n9 4\n255\n" + QByteArray(36, 'g');
    if (format == "wbmp") return hex("00000908", 16, '\x5a');
    if (format == "koa") return QByteArray(10003, '\x1b');
    if (format == "ras") return hex("59a66a95 00000008 00000004 00000018 00000060 00000001 00000000 00000000", 96, 'r');
    if (format == "psd")
        return hex("38425053 0001 000000000000 0003 00000004 00000006 0008 0003 00000000 00000000 00000000 0000", 72,
                   'p');
    if (format == "iff" || format == "lbm")
        return hex("464f524d 00000054 494c424d 424d4844 00000014 0008 0004 0000 0000 18 00 00 00 0000 0101 0008 0004"
                   "424f4459 00000030",
                   48, 'i');
    if (format == "cut") return hex("0800 0200 0000 0300 88 41 00 0300 88 42 00", 8, '\0');
    if (format == "wmf")
        return hex("d7cdc69a 0000 0000 0000 e803 e803 e803 00000000 1157 0100 0900 0003 15000000 0000"
                   "07000000 0000 07000000 1b04 0002 0002 1000 1000 03000000 0000",
                   0, 0);
    return QByteArray(64, 'x');
}

QList<QByteArray> collect(const QString& format, const QString& samples)
{
    QList<QByteArray> seeds{made(format)};
    const QDir folder(samples + '/' + format);
    for (const QFileInfo& info : samples.isEmpty() ? QFileInfoList() : folder.entryInfoList(QDir::Files, QDir::Name)) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly)) seeds += file.readAll();
    }
    return seeds;
}

} // namespace

const QList<QByteArray>& seedsOf(std::size_t format, const QString& samples)
{
    static std::array<QList<QByteArray>, std::size(kFormats)> all;
    if (all[format].isEmpty()) all[format] = collect(nameOf(kFormats[format]), samples);
    return all[format];
}

QString writeInput(const QString& folder, const QString& name, const QByteArray& bytes)
{
    QFile file(folder + '/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("%s: no room", qPrintable(name));
    return file.fileName();
}

} // namespace velara::fuzz
