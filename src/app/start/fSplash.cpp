#include "app/start/fSplash.h"
#include "app/start/defaultPictures.h"
#include "app/start/fAboutFacts.h"
#include "fileio/disk/fileBytes.h"
#include "fileio/disk/userFolders.h"
#include "seams/Platform.h"
#include "ui/widgets/marks/motion.h"
#include <QBuffer>
#include <QMouseEvent>
#include <QPainter>

namespace velara {

fSplash::fSplash(Platform& platform, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), platform_(platform), ripples_(splashPicture())
{
    setObjectName("fSplash");
    setWindowTitle(tr("About Velara Studio"));
    setAccessibleName(kProgramName);
    const QImage& picture = ripples_.picture();
    const QString program = platform.programFolder(), folder = userFolder(program, UserFolder::Cache);
    const QString path = folder + (folder == program ? "" : "/") + "logo.bmp"; // no separator there: odd, and kept
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "BMP");
    // Don't reread the file: another process may have replaced it, and the picture is in memory.
    overwriteFile(path, {reinterpret_cast<const std::uint8_t*>(bytes.constData()), std::size_t(bytes.size())});
    setFixedSize(picture.size());
    Timer1.setInterval(1);
    connect(&Timer1, &QTimer::timeout, this, &fSplash::tick);
}

void fSplash::showFacts()
{
    auto* facts = new fAboutFacts(this);
    connect(facts, &fAboutFacts::closed, this, &fSplash::close);
    const QSize picture = ripples_.picture().size();
    const int room = facts->heightForWidth(picture.width());
    facts->setGeometry(0, picture.height(), picture.width(), room);
    setFixedSize(picture + QSize(0, room));
}

void fSplash::paintEvent(QPaintEvent*)
{
    const QImage& picture = ripples_.picture();
    QPainter(this).drawImage(picture.rect(), picture);
}

/// Many ripples take several ticks, so that presses keep coming.
void fSplash::tick()
{
    constexpr std::uint32_t kAtMost = 8; // milliseconds
    const std::uint32_t begin = platform_.milliseconds();
    while (!ripples_.drawNext([this] { return platform_.random(); }))
        if (platform_.milliseconds() - begin >= kAtMost) return;
    update();
}

void fSplash::mousePressEvent(QMouseEvent* event)
{
    if (lessMotion()) return;
    ripples_.add(event->pos().x(), event->pos().y());
    Timer1.start();
}

void fSplash::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton && !lessMotion()) ripples_.add(event->pos().x(), event->pos().y());
}

void fSplash::mouseReleaseEvent(QMouseEvent*) { close(); }

} // namespace velara
