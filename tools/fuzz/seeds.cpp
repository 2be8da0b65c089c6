// Intact pictures to start from.
#include "fileio/savePicture.h"
#include "platform/WindowlessPlatform.h"
#include "tools/fuzz/inside.h"
#include "tools/fuzz/rawSeeds.h"
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
    if (format == "webp")
        return hex("524946468800000057454250565038580a000000020000000f00000f0000414e494d06000000ffffffff0000414e4d46"
                   "2a0000000000000000000f00000f0000640000025650384c110000002f0fc003000750942257a1ff8188e87f0000414e"
                   "4d462a0000000000000000000f00000f0000640000005650384c110000002f0fc003000750942a14b9ff8188e87f0000",
                   0, 0);
    if (format == "jxl")
        return hex("ff0a434040e5de2a82080201005c004b188b1500d48c31e8222f10010021913818e40fc4ad02", 0, 0);
    if (format == "avif")
        return hex("00000020667479706176696600000000617669666d6966316d6961664d413141000000f26d6574610000000000000028"
                   "68646c720000000000000000706963740000000000000000000000006c696261766966000000000e7069746d00000000"
                   "00010000001e696c6f6300000000440000010001000000010000011a000000230000002869696e660000000000010000"
                   "001a696e6665020000000001000061763031436f6c6f72000000006a697072700000004b6970636f0000001469737065"
                   "000000000000001000000010000000107069786900000000030808080000000c617631438120000000000013636f6c72"
                   "6e636c780001000d0000800000001769706d610000000000000001000104010283040000002b6d64617412000a08380c"
                   "ffd84043400832151000003950bb246f289fbab5666042688e5a913ed0",
                   0, 0);
    if (format == "heic")
        return hex("0000001c6674797068656963000000006d696631686569636d696166000001426d657461000000000000002168646c72"
                   "000000000000000070696374000000000000000000000000000000000e7069746d00000000000100000022696c6f6300"
                   "0000004440000100010000000001660001000000000000001e0000002369696e6600000000000100000015696e666502"
                   "000000000100006876633100000000c269707270000000a46970636f0000007868766343010370000000000000000000"
                   "1ef000fcfdf8f800000f03200001001840010c01ffff03700000030090000003000003001eba0240210001002b420101"
                   "03700000030090000003000003001ea020810596ea4929ae6e04040c08000003000800000300084022000100074401c1"
                   "72b022400000001469737065000000000000004000000040000000107069786900000000030808080000001669706d61"
                   "0000000000000001000103810283000000266d6461740000001a2801af09e02139755ffffccddffffd307721fb27ca74"
                   "1cc3d7e0",
                   0, 0);
    if (format == "svg")
        return "<svg xmlns='http://www.w3.org/2000/svg' width='23' height='17'><g transform='rotate(9)'>"
               "<path d='M1 2L9 9Q3 4 5 6Z' fill='#c8280a'/></g><text x='2' y='9'>abc</text></svg>";
    return QByteArray(64, 'x');
}

QList<QByteArray> collect(const QString& format, const QString& samples)
{
    QList<QByteArray> seeds = rawSeeds(format);
    if (seeds.isEmpty()) seeds += made(format);
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
