#include "app/utilities/Capture.h"
#include "app/frame/fMain.h"
#include "fileio/disk/userFolders.h"
#include "fileio/readInBackground.h"
#include "fileio/savePicture.h"
#include "pixels/images.h"
#include "seams/Platform.h"
#include "ui/utilities/HiddenWindows.h"
#include "ui/utilities/fCaptureRectangle.h"
#include "ui/utilities/fWaiting.h"
#include <QFile>
#include <QPainter>
#include <cstring>
#include <utility>

namespace velara {

namespace {

constexpr int kDelay = 500;                 // ms for windows to disappear
constexpr int kPatience = 10000;            // ms; a desktop may be asking its user meanwhile
constexpr QRect kFixedArea(0, 0, 800, 600); // whatever the screen's size: odd, and kept

/// With the pointer drawn in.
ScreenPicture overlaid(ScreenPicture picture)
{
    if (!picture.pointer.image) return picture;
    const QImage& pointer = *picture.pointer.image;
    const QRect whole(0, 0, picture.bits.width(), picture.bits.height());
    const QRect place = QRect(picture.pointer.at, pointer.size()) & whole;
    if (place.isEmpty()) return picture;
    QImage below = imageOver(picture.bits).copy(place);
    QPainter(&below).drawImage(picture.pointer.at - place.topLeft(), pointer);
    for (int y = 0; y < place.height(); ++y)
        std::memcpy(picture.bits.row(place.top() + y) + place.left(), below.constScanLine(y),
                    std::size_t(place.width()) * sizeof(Pixel));
    return picture;
}

/// A capture on its way through a file.
struct Through {
    QString path;
    Bits bits;
    SaveReport saved;

    void go(PictureReader& reader, const GoOn& goOn)
    {
        if (bits.isNull()) return;
        QFile::remove(path); // an existing file may be a link, or readable by others
        saved = writePicture(bits, path, "bmp", OutputFile::Links::Replace);
        const LoadedPicture loaded =
            saved.result == SaveResult::Written ? reader.loadPicture(path, "bmp", goOn) : LoadedPicture();
        if (loaded.ok()) bits = loaded.bits;
        QFile::remove(path);
    }
};

} // namespace

Capture::Capture(fMain& frame) : frame_(frame), picker_(new fCaptureRectangle(this))
{
    Timer2_.setObjectName("Timer2");
    for (QTimer* timer : {&Timer2_, &patience_}) timer->setSingleShot(true);
    patience_.setInterval(kPatience);
    connect(&Timer2_, &QTimer::timeout, this, [this] { capturePic(WholeScreen); });
    connect(&patience_, &QTimer::timeout, this, [this] {
        waiting_ = new fWaiting(tr("Capture"), tr("Waiting for the desktop's picture ..."));
        waiting_->setAttribute(Qt::WA_DeleteOnClose);
        connect(waiting_, &QDialog::rejected, this, &Capture::giveUp);
        waiting_->show();
    });
    connect(picker_, &fCaptureRectangle::picked, this, [this] { frame_.Mmenu("CUSTOMCAPTURE"); });
    connect(picker_, &fCaptureRectangle::left, this, &Capture::bringBack);
}

Capture::~Capture()
{
    frame_.platform().screen().cancel();
    if (desktopShown_) frame_.platform().screen().showDesktop(false);
    delete waiting_;
}

void Capture::desktop()
{
    putAside(false, true);
    Timer2_.start(kDelay + std::exchange(delay_, 0));
}

void Capture::background()
{
    putAside(true, false);
    Timer2_.start(kDelay + std::exchange(delay_, 0));
}

void Capture::takeScreens(bool showsDesktop, const Screen::Done& done)
{
    putAside(true, showsDesktop);
    QTimer::singleShot(kDelay, this, [this, done] { grab(done); });
}

/// If the desktop can't be shown, at least the program is hidden.
void Capture::putAside(bool hides, bool showsDesktop)
{
    if (showsDesktop && !desktopShown_) desktopShown_ = frame_.platform().screen().showDesktop(true);
    if ((hides || (showsDesktop && !desktopShown_)) && !hidden_) hidden_ = std::make_unique<HiddenWindows>();
}

/// Brings back others' windows. Not later: a window of ours shown meanwhile would make the window manager keep them
/// hidden.
void Capture::endDesktop()
{
    if (std::exchange(desktopShown_, false)) frame_.platform().screen().showDesktop(false);
}

void Capture::bringBack()
{
    endDesktop();
    hidden_.reset();
}

void Capture::grab(const Screen::Done& done)
{
    patience_.start();
    frame_.platform().screen().grab([this, done](const ScreenPicture& picture) {
        patience_.stop();
        delete waiting_;
        endDesktop();
        done(std::exchange(withPointer_, false) ? overlaid(picture) : picture);
    });
}

void Capture::giveUp()
{
    patience_.stop();
    withPointer_ = false;
    frame_.platform().screen().cancel();
    bringBack();
}

QRect Capture::areaOf(int mode, const ScreenPicture& picture) const
{
    const QRect whole(0, 0, picture.bits.width(), picture.bits.height());
    if (mode == WholeScreen) return whole;
    if (mode == FixedArea) return kFixedArea;
    const fImage* image = frame_.GetActiveImage();
    if (!image) return {};
    return {image->mapToGlobal(QPoint()), QSize(image->PictureWidth(), image->PictureHeight())};
}

void Capture::capturePic(int mode)
{
    QTimer::singleShot(std::exchange(delay_, 0), this, [this, mode, picked = picker_->picRectangle()] {
        if (mode == Rectangle) return makeDocument(picked);
        grab([this, mode](const ScreenPicture& picture) {
            makeDocument(partOf(picture.bits, areaOf(mode, picture)), picture.reason);
        });
    });
}

/// By way of the file, if there is room for it; otherwise directly.
void Capture::makeDocument(const Bits& captured, const QString& reason)
{
    bringBack();
    Platform& platform = frame_.platform();
    const QString path = userFolder(platform.programFolder(), UserFolder::Cache) + "/New.bmp";
    const auto through = std::make_shared<Through>(Through{path, captured, {}});
    inBackground(
        platform, this, [through, &platform](const GoOn& goOn) { through->go(platform, goOn); },
        [this, through, reason] {
            through->saved.tell(frame_.platform());
            show(through->bits, through->path, reason);
        });
}

void Capture::show(const Bits& bits, const QString& path, const QString& reason)
{
    frame_.adopt(bits, path);
    if (bits.isNull()) frame_.report(tr("Capture"), {Outcome::Failed, tr("the screen gave no picture")});
    if (!reason.isEmpty()) frame_.platform().tell(reason, Icon::Exclamation);
}

void Capture::showDialog()
{
    if (!dialog_) {
        dialog_ = new fCapture(&frame_);
        connect(dialog_, &fCapture::captureChosen, this, &Capture::chosen);
        connect(dialog_, &fCapture::customChosen, this, &Capture::customChosen);
        connect(dialog_, &fCapture::customDue, this, &Capture::customDue);
    }
    dialog_->open();
}

void Capture::chosen(const QString& word)
{
    delay_ = dialog_->delay();
    withPointer_ = dialog_->withPointer();
    frame_.Mmenu(word);
}

void Capture::customChosen(fCapture::Where where)
{
    withPointer_ = dialog_->withPointer();
    putAside(where != fCapture::Foreground, where == fCapture::Desktop);
}

void Capture::customDue()
{
    grab([this](const ScreenPicture& picture) {
        if (picture.bits.isNull()) return makeDocument({}, picture.reason);
        if (picture.reason.isEmpty()) return picker_->ShowPicture(picture);
        bringBack();
        frame_.platform().tell(QString(picture.reason), Icon::Exclamation);
    });
}

} // namespace velara
