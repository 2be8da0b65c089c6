#include "app/start/fSplash.h"
#include "app/start/defaultPictures.h"
#include "app/start/fAboutFacts.h"
#include "fileio/fileBytes.h"
#include "seams/Platform.h"
#include <QBuffer>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace velara {

fSplash::fSplash(Platform& platform, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), platform_(platform)
{
    setObjectName("fSplash");
    setWindowTitle("About Velara Studio");
    setAccessibleName(kProgramName);
    const QImage picture = splashPicture();
    const QString path = platform.programFolder() + "logo.bmp"; // no separator: odd, and it stays
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "BMP");
    // Don't reread the file: another process may have replaced it, and the picture is in memory.
    overwriteFile(path, {reinterpret_cast<const std::uint8_t*>(bytes.constData()), std::size_t(bytes.size())});
    ripples_ = std::make_shared<Ripples>(picture);
    setFixedSize(picture.size());
    Timer1.setInterval(1);
    connect(&Timer1, &QTimer::timeout, this, &fSplash::tick);
}

void fSplash::showFacts()
{
    auto* facts = new fAboutFacts(this);
    connect(facts, &fAboutFacts::closed, this, &fSplash::close);
    const QSize picture = ripples_->picture().size();
    const int room = facts->heightForWidth(picture.width());
    facts->setGeometry(0, picture.height(), picture.width(), room);
    setFixedSize(picture + QSize(0, room));
}

void fSplash::paintEvent(QPaintEvent*)
{
    const QImage& picture = ripples_->picture();
    QPainter(this).drawImage(picture.rect(), picture);
}

void fSplash::tick()
{
    const QPointer<fSplash> self = this;
    const std::shared_ptr<Ripples> ripples = ripples_;
    Platform& platform = platform_;
    ripples->tick([&] { return platform.random(); }, [&] { platform.yield(); });
    if (self) update();
}

void fSplash::mousePressEvent(QMouseEvent* event)
{
    ripples_->add(event->pos().x(), event->pos().y());
    Timer1.start();
}

void fSplash::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton) ripples_->add(event->pos().x(), event->pos().y());
}

void fSplash::mouseReleaseEvent(QMouseEvent*) { close(); }

} // namespace velara
