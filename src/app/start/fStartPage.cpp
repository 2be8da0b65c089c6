#include "app/start/fStartPage.h"
#include "app/menus/fIcons.h"
#include "fileio/disk/nativeName.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "seams/text.h"
#include "ui/widgets/inputs/named.h"
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace velara {

namespace {

struct StartRow {
    const char *word, *caption, *name;
};
constexpr StartRow kStarts[] = {
    {"NEW", QT_TRANSLATE_NOOP("velara::fStartPage", "&New ..."), "cmdStartNew"},
    {"OPEN", QT_TRANSLATE_NOOP("velara::fStartPage", "&Open ..."), "cmdStartOpen"},
    {"CREATEFROMCLIPBOARD", QT_TRANSLATE_NOOP("velara::fStartPage", "From the &clipboard"), "cmdStartPaste"},
};
constexpr int kMargin = 24;
constexpr int kSide = 128;           // of the recent pictures
constexpr int kIndex = Qt::UserRole; // of the recent list

} // namespace

fStartPage::fStartPage(Platform& platform, QWidget* parent)
    : QWidget(parent), platform_(platform), heading_(new QLabel(tr("Recent pictures"))), list_(new QListWidget)
{
    setObjectName("fStartPage");
    setAccessibleName(tr("How to start"));
    setAutoFillBackground(true);
    auto* title = new QLabel(tr("Open a picture to begin"));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    title->setFont(large);
    auto* drop = new QLabel(tr("Pictures may also be dropped here."));
    drop->setWordWrap(true);
    makeList();
    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addWidget(title);
    column->addWidget(makeButtons());
    column->addWidget(drop);
    column->addSpacing(6);
    column->addWidget(makeRecovery());
    column->addWidget(heading_);
    column->addWidget(list_, 1);
    column->addStretch();
    heading_->hide();
    list_->hide();
    parent->installEventFilter(this);
    place();
}

void fStartPage::place()
{
    const QRect area = parentWidget()->rect();
    QRect covered;
    if (taken)
        for (const QRect& rect : taken())
            covered |= area & QRect(parentWidget()->mapFromGlobal(rect.topLeft()), rect.size());
    layout()->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    const QSize least = layout()->minimumSize();
    QRect best; // of the strips beside, above and below the covered rectangles
    const auto strip = [&](int left, int top, int right, int bottom) {
        const QRect room(QPoint(left, top), QPoint(right, bottom));
        const QSize size = room.size(), found = best.size();
        if (size.expandedTo(least) != size) return;
        if (size.width() * size.height() > found.width() * found.height()) best = room;
    };
    if (!covered.isEmpty()) {
        strip(area.left(), area.top(), covered.left() - 1, area.bottom());
        strip(covered.right() + 1, area.top(), area.right(), area.bottom());
        strip(area.left(), area.top(), area.right(), covered.top() - 1);
        strip(area.left(), covered.bottom() + 1, area.right(), area.bottom());
    }
    if (best.isEmpty()) best = area;
    layout()->setContentsMargins(best.left() + kMargin, best.top() + kMargin, area.right() - best.right() + kMargin,
                                 area.bottom() - best.bottom() + kMargin);
    setGeometry(area);
}

QWidget* fStartPage::makeButtons()
{
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    for (const StartRow& start : kStarts) {
        auto* button =
            named(new QPushButton(iconOf(start.word), tr(start.caption)), start.name, tr(start.caption).remove('&'));
        connect(button, &QPushButton::clicked, this, [this, &start] { emit commandChosen(start.word); });
        row->addWidget(button);
        if (!focusProxy()) setFocusProxy(button);
    }
    row->addStretch();
    return box;
}

void fStartPage::setUp(QListWidget& list)
{
    list.setViewMode(QListView::IconMode);
    list.setResizeMode(QListView::Adjust);
    list.setMovement(QListView::Static);
    list.setIconSize({kSide, kSide});
    list.setGridSize({kSide + 20, kSide + 2 * fontMetrics().height()});
    list.setTextElideMode(Qt::ElideMiddle);
    list.setUniformItemSizes(true);
    list.setFrameShape(QFrame::NoFrame);
    QPalette colours = list.palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    list.setPalette(colours);
}

/// One row of them; the dialog has all that can be done.
QWidget* fStartPage::makeRecovery()
{
    recovery_ = named(new QWidget, "recovery");
    auto* heading = new QLabel(tr("Not saved when the program ended"));
    auto* more = named(new QPushButton(tr("&Recover ...")), "cmdStartRecover", tr("Recover"));
    connect(more, &QPushButton::clicked, this, [this] { emit commandChosen(QStringLiteral("@RECOVER")); });
    recoverable_ = named(new QListWidget, "lstRecoverable", heading->text());
    heading->setBuddy(recoverable_);
    setUp(*recoverable_);
    recoverable_->setFixedHeight(recoverable_->gridSize().height() + 4);
    const auto choose = [this](const QListWidgetItem* item) { // the list changes by it
        const auto* leftover = static_cast<const Leftover*>(item->data(kIndex).value<const void*>());
        QTimer::singleShot(0, this, [this, leftover] { emit recoverableChosen(leftover); });
    };
    connect(recoverable_, &QListWidget::itemClicked, this, choose);
    connect(recoverable_, &QListWidget::itemActivated, this, choose);
    auto* line = new QHBoxLayout;
    line->addWidget(heading);
    line->addWidget(more);
    line->addStretch();
    auto* column = new QVBoxLayout(recovery_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(line);
    column->addWidget(recoverable_);
    recovery_->hide();
    return recovery_;
}

void fStartPage::showRecoverable(const std::vector<Offer>& offers)
{
    recoverable_->clear();
    for (const Offer& offer : offers) {
        const bool isBroken = offer.isRead && offer.thumbnail.isNull();
        auto* item = new QListWidgetItem(isBroken ? QIcon::fromTheme("image-missing")
                                                  : thumbnailIcon(offer.thumbnail, {kSide, kSide}),
                                         offer.name, recoverable_);
        item->setData(kIndex, QVariant::fromValue<const void*>(offer.leftover.get()));
        item->setToolTip(QStringList({offer.path, offer.facts, offer.trouble}).join('\n').trimmed());
    }
    recovery_->setVisible(!offers.empty());
    place();
}

void fStartPage::makeList()
{
    heading_->setBuddy(list_);
    named(list_, "lstRecent", heading_->text());
    setUp(*list_);
    // One click opens, as usual on such a page; so does Enter.
    const auto choose = [this](const QListWidgetItem* item) { emit recentChosen(item->data(kIndex).toInt()); };
    connect(list_, &QListWidget::itemClicked, this, choose);
    connect(list_, &QListWidget::itemActivated, this, choose);
}

void fStartPage::showRecent(const std::array<QString, 8>& recent)
{
    std::vector<QString> found;
    for (const QString& path : recent)
        if (!path.trimmed().isEmpty() && isThere(path.trimmed())) found.push_back(path.trimmed());
    heading_->setVisible(!found.empty());
    list_->setVisible(!found.empty());
    if (found == shown_ && isVisible()) return;
    shown_ = found;
    requests_.clear();
    list_->clear();
    for (int i = 0; i < int(recent.size()); ++i) {
        const QString path = recent[std::size_t(i)].trimmed();
        if (std::ranges::find(found, path) == found.end()) continue;
        auto* item =
            new QListWidgetItem(thumbnailIcon({}, {kSide, kSide}), printable(QFileInfo(path).fileName()), list_);
        item->setToolTip(printable(path));
        item->setData(kIndex, i);
        askThumbnail(list_->row(item), path);
    }
}

void fStartPage::askThumbnail(int row, const QString& path)
{
    requests_.push_back(platform_.previews().thumbnail(path, [this, row](const Preview& preview) {
        QListWidgetItem* item = list_->item(row);
        if (!item) return;
        if (preview.image.isNull())
            item->setIcon(QIcon::fromTheme("image-missing"));
        else
            item->setIcon(thumbnailIcon(preview.image, {kSide, kSide}));
    }));
}

void fStartPage::hideEvent(QHideEvent* event)
{
    requests_.clear(); // nobody is looking
    shown_.clear();
    QWidget::hideEvent(event);
}

bool fStartPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize) place();
    return QWidget::eventFilter(watched, event);
}

} // namespace velara
