#include "ui/history/fHistory.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "pixels/images.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "seams/printable.h"
#include "ui/widgets/inputs/named.h"
#include <QListWidget>
#include <QMenu>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr QSize kPicture{StepNote::kSmallSide, StepNote::kSmallSide - 8};
constexpr qsizetype kMostShown = 60; // characters of a step's words

/// Its lines, joined by a separator.
QString shownWords(const QString& words, const char* separator)
{
    QStringList lines;
    for (const QString& line : words.split(u'\n')) lines << printable(line);
    return lines.join(QLatin1String(separator));
}

QString shortened(const QString& words)
{
    return words.size() > kMostShown ? words.left(kMostShown - 3) + QStringLiteral("...") : words;
}

} // namespace

fHistory::fHistory(Frame& frame, QWidget* parent)
    : QWidget(parent, Qt::Tool), frame_(frame),
      lstHistory_(named(new QListWidget, "lstHistory", tr("Steps, oldest first")))
{
    setObjectName("fHistory");
    setWindowTitle(tr("History"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(lstHistory_);
    lstHistory_->setIconSize(kPicture);
    lstHistory_->setSpacing(1);
    lstHistory_->setTextElideMode(Qt::ElideRight);
    lstHistory_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstHistory_->setContextMenuPolicy(Qt::CustomContextMenu);
    const int width = lstHistory_->fontMetrics().averageCharWidth() * 26 + kPicture.width();
    lstHistory_->setMinimumSize(width, 3 * kPicture.height());
    connect(lstHistory_, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { goTo(lstHistory_->row(item)); });
    connect(lstHistory_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { goTo(lstHistory_->row(item)); });
    connect(lstHistory_, &QWidget::customContextMenuRequested, this, &fHistory::showMenu);
    resize(sizeHint());
}

void fHistory::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    follow();
}

void fHistory::follow()
{
    if (!isVisible()) return;
    const DocumentHandle document = frame_.active();
    const bool isThere = document && document->PictureExists();
    const UndoStore::Listed listed = isThere ? document->undo.listed() : UndoStore::Listed();
    const bool isSame = document == document_;
    if (!isSame) rows_.clear();
    document_ = document;
    shown_ = listed.shown;
    std::vector<Row> now;
    for (std::size_t i = 0; i < listed.notes.size(); ++i)
        now.push_back({listed.notes[i].number, listed.stands[i], static_cast<int>(i) == listed.shown,
                       static_cast<int>(i) > listed.shown});
    if (isSame && now == rows_) return lstHistory_->setCurrentRow(shown_);
    fill(listed.notes, now);
    rows_ = std::move(now);
    lstHistory_->setCurrentRow(shown_);
    if (shown_ >= 0) lstHistory_->scrollToItem(lstHistory_->item(shown_));
}

/// Most rows stay as they are: only those that differ are made anew.
void fHistory::fill(const std::vector<StepNote>& notes, const std::vector<Row>& now)
{
    while (lstHistory_->count() > static_cast<int>(now.size())) delete lstHistory_->takeItem(lstHistory_->count() - 1);
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (i < rows_.size() && rows_[i] == now[i]) continue;
        if (static_cast<int>(i) == lstHistory_->count()) new QListWidgetItem(lstHistory_);
        describe(*lstHistory_->item(static_cast<int>(i)), notes[i], now[i]);
    }
}

/// The present state is bold, what can be redone is slanted, what can't be gone back to is grey.
void fHistory::describe(QListWidgetItem& item, const StepNote& note, const Row& row) const
{
    const bool isFirst = note.name.isEmpty() && note.words.isEmpty() && lstHistory_->row(&item) == 0;
    const QString name = isFirst ? tr("At the start") : note.name.isEmpty() ? tr("A change") : note.name;
    const QString words = isFirst                ? QStringLiteral("%1 x %2").arg(note.width).arg(note.height)
                          : note.words.isEmpty() ? tr("painted by hand")
                                                 : shortened(shownWords(note.words, "; "));
    item.setIcon(thumbnailIcon(imageOver(note.small).copy(), kPicture));
    item.setText(name + u'\n' + words);
    QString hover = isFirst || note.words.isEmpty() ? words : shownWords(note.words, "\n").left(1000);
    if (!note.selection.isEmpty()) hover += tr("\nin a selection");
    item.setToolTip(row.stands ? hover : hover + tr("\nThis step is not kept any more."));
    QFont font = item.font();
    font.setItalic(row.isRedo);
    font.setBold(row.isShown);
    item.setFont(font);
    item.setForeground(row.stands ? QBrush() : palette().brush(QPalette::Disabled, QPalette::Text));
}

/// The present state stays marked until the document is there.
void fHistory::goTo(int row)
{
    lstHistory_->setCurrentRow(shown_);
    if (!document_ || row < 0 || row >= static_cast<int>(rows_.size()) || row == shown_) return;
    const Row& wanted = rows_[static_cast<std::size_t>(row)];
    if (wanted.stands)
        frame_.workspace().goTo(document_, wanted.number,
                                [&frame = frame_](const Outcome& outcome) { frame.report(tr("History"), outcome); });
}

void fHistory::showMenu(QPoint at)
{
    const QListWidgetItem* item = lstHistory_->itemAt(at);
    const int row = item ? lstHistory_->row(item) : 0;
    if (rows_.empty()) return;
    auto* menu = new QMenu(this);
    menu->setObjectName("mnuHistory");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToHide, this, [this] { lstHistory_->setCurrentRow(shown_); });
    const auto add = [&](const char* name, const QString& caption, auto signal) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(QLatin1String(name));
        action->setToolTip(row == 0 ? tr("All steps") : tr("From this step on"));
        connect(action, &QAction::triggered, this,
                [=, this, document = document_] { emit(this->*signal)(document, row); });
    };
    add("mnuCopyCommand", tr("&Copy as command"), &fHistory::copyWanted);
    add("mnuSaveRecipe", tr("&Save recipe ..."), &fHistory::saveWanted);
    menu->addSeparator();
    add("mnuRunOnOthers", tr("&Run from here on the other open pictures"), &fHistory::runOnOthersWanted);
    menu->popup(lstHistory_->viewport()->mapToGlobal(at));
}

} // namespace velara
