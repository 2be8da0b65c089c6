#include "platform/desktop/screen/QtScreen.h"
#include "fileio/readInBackground.h"
#include "pixels/numbers.h"
#include "platform/desktop/PortalRequest.h"
#include "platform/desktop/x11.h"
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QUrl>
#include <algorithm>
#include <cstring>
#include <utility>

namespace velara {

namespace {

constexpr int kSettle = 120; // ms: a menu has closed and what was below it is repainted

/// Each screen separately, at its position: on X positions are device pixels whatever the scale, sizes are not.
ScreenPicture grabByQt()
{
    ScreenPicture picture;
    QList<QImage> images;
    QRect all;
    for (QScreen* screen : QGuiApplication::screens()) {
        images << screen->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
        const QRect device(screen->geometry().topLeft(), images.last().size());
        picture.parts.push_back({screen->geometry(), device});
        all |= device;
    }
    if (!Bits::sizeAllowed(all.width(), all.height())) return {};
    picture.bits = Bits(all.width(), all.height());
    for (int i = 0; i < images.size(); ++i) {
        QRect& place = picture.parts[std::size_t(i)].device;
        place.translate(-all.topLeft());
        for (int y = 0; y < place.height(); ++y)
            std::memcpy(picture.bits.row(place.top() + y) + place.left(), images[i].constScanLine(y),
                        std::size_t(place.width()) * sizeof(Pixel));
    }
    picture.windows = x11Windows();
    for (QRect& window : picture.windows) window = window.translated(-all.topLeft());
    picture.pointer.image = std::make_shared<QImage>(x11Pointer(picture.pointer.at));
    picture.pointer.at -= all.topLeft();
    return picture;
}

bool isWaylandSession()
{
    return QGuiApplication::platformName().startsWith("wayland") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           qEnvironmentVariable("XDG_SESSION_TYPE") == "wayland";
}

bool isBlack(const Bits& bits)
{
    const auto black = [](const Pixel& pixel) { return !(pixel.c[0] | pixel.c[1] | pixel.c[2]); };
    for (int y = 0; y < bits.height(); ++y)
        if (!std::all_of(bits.row(y), bits.row(y) + bits.width(), black)) return false;
    return true;
}

constexpr const char* kNoPortal =
    "This is a session of Wayland, where only the desktop's portal shows the screens to a program, and there is no "
    "portal for screenshots (org.freedesktop.portal.Screenshot). The packages xdg-desktop-portal and the one for this "
    "desktop (xdg-desktop-portal-gnome, -kde, -wlr ...) bring it.";
constexpr const char* kBlack = "The picture of the screen is all black.";

/// On Wayland, the session's X server may have a picture of its own.
ScreenPicture grabWithoutPortal()
{
    ScreenPicture picture = QGuiApplication::platformName() == "xcb" ? grabByQt() : ScreenPicture();
    if (!picture.bits.isNull() && !isBlack(picture.bits)) return picture;
    ScreenPicture none;
    none.reason = kNoPortal;
    return none;
}

/// The path of the portal's picture on this machine; empty for any other URL.
QString localFile(const QVariantMap& results) { return QUrl(results.value("uri").toString()).toLocalFile(); }

} // namespace

ScreenPicture wholeDesktop(const Bits& bits, const QList<QRect>& screens)
{
    QRect all;
    for (const QRect& screen : screens) all |= screen;
    if (bits.isNull() || all.isEmpty()) return {bits, {}};
    const double across = double(bits.width()) / all.width(), down = double(bits.height()) / all.height();
    ScreenPicture picture{bits, {}};
    for (const QRect& screen : screens) {
        const QRect at = screen.translated(-all.topLeft());
        const int left = roundEven(at.left() * across), top = roundEven(at.top() * down);
        const int right = roundEven((at.left() + at.width()) * across);
        const int bottom = roundEven((at.top() + at.height()) * down);
        picture.parts.push_back({screen, QRect(left, top, right - left, bottom - top)});
    }
    return picture;
}

QtScreen::QtScreen(Platform& platform, std::optional<QDBusConnection> bus) : platform_(platform), bus_(std::move(bus))
{
    settle_.setSingleShot(true);
    settle_.setInterval(kSettle);
    connect(&settle_, &QTimer::timeout, this, [this] {
        if (isWaylandSession())
            grabByPortal();
        else
            answer(grabByQt());
    });
}

QtScreen::~QtScreen() { cancel(); }

void QtScreen::grab(Done done)
{
    cancel();
    done_ = std::move(done);
    settle_.start();
}

void QtScreen::cancel()
{
    done_ = nullptr;
    settle_.stop();
    delete request_;
    delete reading_;
}

void QtScreen::answer(ScreenPicture picture)
{
    if (picture.reason.isEmpty() && !picture.bits.isNull() && isBlack(picture.bits)) picture.reason = kBlack;
    if (const Done done = std::exchange(done_, nullptr)) done(picture);
}

void QtScreen::grabByPortal()
{
    request_ = new PortalRequest(
        bus_.value_or(QDBusConnection::sessionBus()), "Screenshot", "Screenshot", {QString()}, {{"interactive", false}},
        [this](auto code, const auto& results) { received(code, results); }, this);
}

void QtScreen::received(int code, const QVariantMap& results)
{
    request_->deleteLater();
    request_ = nullptr;
    if (code == PortalRequest::Missing) return answer(grabWithoutPortal());
    const QString file = localFile(results);
    if (code != PortalRequest::Granted || file.isEmpty()) return answer({});
    reading_ = new QObject(this);
    // The desktop made the file for us, among the user's own pictures; it goes even if nobody wants it any more.
    connect(reading_, &QObject::destroyed, [file] { QFile::remove(file); });
    readInBackground(platform_, reading_, file, [this](const LoadedPicture& loaded) {
        delete reading_;
        QList<QRect> screens;
        for (const QScreen* screen : QGuiApplication::screens()) screens << screen->geometry();
        answer(wholeDesktop(loaded.bits, screens));
    });
}

bool QtScreen::showDesktop(bool on) { return x11ShowDesktop(on); }

} // namespace velara
