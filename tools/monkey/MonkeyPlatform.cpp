#include "tools/monkey/MonkeyPlatform.h"
#include "platform/desktop/dialogs/boxes.h"
#include "support/pictures.h"
#include <QDir>
#include <QFile>
#include <QImage>

namespace velara::monkey {

namespace {

constexpr const char* kKinds[] = {"bmp", "png", "jpg", "gif", "pcx", "tif", "tga", "ppm", "ico", "xyz", ""};
constexpr QSize kSizes[] = {{1, 1}, {7, 300}, {64, 48}, {320, 200}, {640, 480}, {1200, 900}};

QImage drawn(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) image.setPixel(x, y, qRgb(x % 256, (x * y / 16) % 256, y % 256));
    return image;
}

} // namespace

MonkeyPlatform::MonkeyPlatform(const QString& files, std::function<Dice()> dice) : files_(files), dice_(std::move(dice))
{
}

void MonkeyPlatform::makeFiles()
{
    QDir().mkpath(files_);
    int number = 0;
    for (const QSize size : kSizes)
        for (const char* kind : {"bmp", "png", "jpg"})
            drawn(size).save(QStringLiteral("%1/picture%2.%3").arg(files_).arg(++number).arg(kind));
    QFile none(files_ + "/none.png"), empty(files_ + "/empty.bmp");
    if (none.open(QIODevice::WriteOnly)) none.write("this is no picture");
    empty.open(QIODevice::WriteOnly);
}

QString MonkeyPlatform::anyFile(Dice& dice) const
{
    QStringList names = QDir(files_).entryList(QDir::Files);
    return files_ + "/" + (dice.oneIn(10) ? QString("missing.bmp") : dice.of(names));
}

void MonkeyPlatform::tidy(Dice& dice)
{
    log.clear();
    screen().log.clear();
    wallpaper().log.clear();
    scanner().jobs.clear();
    printers().pages.clear();
    printers().log.clear();
    recordingFonts.drawn.clear();
    if (dice.oneIn(3)) screen().answer();
    if (dice.oneIn(3)) printers().answer();
    for (const QString& what : std::exchange(previews().asked, {}))
        previews().answer(what, dice.oneIn(4) ? Preview{{}, {}, "no picture"} : Preview{drawn({60, 40}), {60, 40}, {}});
}

void MonkeyPlatform::change(Dice& dice)
{
    const QSize size = dice.of(kSizes);
    recordingClipboard.bits = dice.oneIn(3) ? Bits() : randomBits(size.width(), size.height(), 1);
    recordingClipboard.fault = dice.oneIn(5) ? "the owner is silent" : "";
    screen().silent = dice.oneIn(3);
    screen().picture = {randomBits(640, 480, 2), {{QRect(0, 0, 640, 480), QRect(0, 0, 640, 480)}}};
    if (dice.oneIn(5)) screen().picture = {};
    printers().silent = dice.oneIn(3);
    printers().printers = dice.oneIn(2) ? Printers::List{} : Printers::List{{"one", "two"}, "two"};
    printers().reason = dice.oneIn(4) ? "out of paper" : "";
    scanner().silent = dice.oneIn(4);
    scanner().reason = dice.oneIn(4) ? "it is away" : "";
    scanner().sources = dice.oneIn(3) ? QList<ScanSource>{} : QList<ScanSource>{{"flat", "A flatbed"}};
    const ScanChoice bed{"Flatbed", "Color", false, {75, 150}, 0, 75, {210, 297}};
    scanner().range = {{bed, {"ADF", "Gray", true, {50, 600}, 5, 0, {210, 350}}}};
    scanner().pages = dice.below(4);
    scanner().write = [](const QString& path) { drawn({80, 60}).save(path, "BMP"); };
}

void MonkeyPlatform::stand(const QString& title)
{
    if (dice_().oneIn(3)) showBox(title, title, Icon::Information, QMessageBox::Ok | QMessageBox::Cancel);
}

void MonkeyPlatform::message(const QString& title, const QString&, Icon) { stand(title); }

Answer MonkeyPlatform::askYesNoCancel(const QString& title, const QString&, Icon)
{
    stand(title);
    constexpr Answer kAnswers[] = {Answer::Yes, Answer::No, Answer::No, Answer::Cancel};
    return dice_().of(kAnswers);
}

int MonkeyPlatform::choose(const QString& title, const QString&, const QStringList& choices)
{
    stand(title);
    Dice dice = dice_();
    return dice.below(static_cast<int>(choices.size()) + 1) - 1;
}

std::optional<QString> MonkeyPlatform::openFileName(const FileDialog& dialog)
{
    stand(dialog.title);
    Dice dice = dice_();
    if (dice.oneIn(4)) return std::nullopt;
    return anyFile(dice);
}

std::optional<QString> MonkeyPlatform::saveFileName(const FileDialog& dialog)
{
    stand(dialog.title);
    Dice dice = dice_();
    if (dice.oneIn(4)) return std::nullopt;
    if (dice.oneIn(8)) return files_ + "/no folder/saved.bmp";
    return files_ + "/saved" + QString::number(dice.below(6)) + "." + dice.of(kKinds);
}

std::optional<QString> MonkeyPlatform::pickFolder(const QString& title, const QString&)
{
    stand(title);
    Dice dice = dice_();
    if (dice.oneIn(4)) return std::nullopt;
    return dice.oneIn(4) ? files_ + "/no folder" : files_;
}

} // namespace velara::monkey
