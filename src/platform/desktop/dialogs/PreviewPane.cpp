#include "platform/desktop/dialogs/PreviewPane.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "platform/desktop/dialogs/fPathLabel.h"
#include "seams/text.h"
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace velara {

using namespace std::chrono_literals;

namespace {

QString folderWords(const QFileInfo& folder)
{
    return folder.isReadable() && folder.isExecutable() ? PreviewPane::tr("Folder")
                                                        : PreviewPane::tr("There is no permission to look into it.");
}

} // namespace

PreviewPane::PreviewPane(Previews& previews, QWidget* parent)
    : QWidget(parent), previews_(previews), surface_(new QWidget)
{
    setObjectName("preview");
    surface_->setObjectName("previewPicture");
    surface_->setAccessibleName(tr("Preview"));
    surface_->setMinimumSize(180, 140);
    surface_->installEventFilter(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(surface_, 1);
    name_ = new fPathLabel("previewName");
    column->addWidget(name_);
    const auto line = [&](const char* name) {
        auto* label = new QLabel;
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        column->addWidget(label);
        return label;
    };
    kind_ = line("previewKind");
    size_ = line("previewSize");
    file_ = line("previewFile");
    QFont bold = name_->font();
    bold.setBold(true);
    name_->setFont(bold);
    for (QTimer* timer : {&slow_, &resized_}) {
        timer->setSingleShot(true);
        timer->setInterval(200ms);
    }
    connect(&slow_, &QTimer::timeout, this, [this] { say(tr("Reading ...")); });
    connect(&resized_, &QTimer::timeout, this, &PreviewPane::ask);
    showFile(QString());
}

void PreviewPane::showFile(const QString& path)
{
    request_.reset();
    slow_.stop();
    pictureSize_ = {};
    const QFileInfo file(path);
    const auto status = statusOf(path);
    const bool isFolder = status && S_ISDIR(status->st_mode), isFile = status && S_ISREG(status->st_mode);
    const Family* family = isFolder ? nullptr : familyOf(path);
    path_ = family ? path : QString();
    name_->setPath(file.fileName().isEmpty() ? path : file.fileName());
    kind_->setText(family ? shown("Formats", family->name) : QString());
    size_->clear();
    file_->setText(
        isFile ? QLocale().formattedDataSize(status->st_size) + "\n" +
                     QLocale().toString(QDateTime::fromSecsSinceEpoch(status->st_mtim.tv_sec), QLocale::ShortFormat)
               : QString());
    if (path.isEmpty()) return say(tr("No picture is selected."));
    if (isFolder) return say(folderWords(file));
    if (!family) return say(tr("Not a picture."));
    slow_.start(); // the previous picture stays that long: no flicker while browsing a folder
    ask();
}

void PreviewPane::ask()
{
    if (path_.isEmpty()) return;
    const QSize box = (QSizeF(surface_->size()) * devicePixelRatioF()).toSize();
    request_ = previews_.picture(path_, box, [this](const Preview& preview) { answered(preview); });
}

void PreviewPane::answered(const Preview& preview)
{
    slow_.stop();
    pictureSize_ = preview.size;
    size_->setText(preview.size.isEmpty() ? QString()
                                          : tr("%1 x %2 pixels").arg(preview.size.width()).arg(preview.size.height()));
    if (preview.image.isNull()) return say(preview.reason);
    instead_.clear();
    image_ = preview.image;
    surface_->update();
}

void PreviewPane::say(const QString& instead)
{
    instead_ = instead;
    image_ = {};
    surface_->update();
}

void PreviewPane::paintSurface()
{
    QPainter painter(surface_);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRect(surface_->rect().adjusted(0, 0, -1, -1));
    if (image_.isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        return painter.drawText(surface_->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, instead_);
    }
    const QRectF room = surface_->rect().adjusted(1, 1, -1, -1);
    QSizeF size = QSizeF(image_.size()) / devicePixelRatioF();
    if (size.width() > room.width() || size.height() > room.height()) size.scale(room.size(), Qt::KeepAspectRatio);
    QRectF place({}, size);
    place.moveCenter(room.center());
    place.moveTopLeft(place.topLeft().toPoint());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, image_);
}

bool PreviewPane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != surface_) return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::Paint) {
        paintSurface();
        return true;
    }
    if (event->type() == QEvent::Resize && !image_.isNull() && image_.size() != pictureSize_) resized_.start();
    return false;
}

} // namespace velara
