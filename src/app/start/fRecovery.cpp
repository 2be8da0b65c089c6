#include "app/start/fRecovery.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "ui/widgets/inputs/named.h"
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace velara {

namespace {

constexpr int kThumbnail = 96, kMostRows = 4; // shown without scrolling

QLabel* plain(const QString& text, const QString& name)
{
    auto* label = named(new QLabel(text), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

fRecovery::fRecovery(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("fRecovery"));
    setWindowTitle(tr("Recover Pictures"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* all = new QVBoxLayout(this);
    all->addWidget(plain(tr("The program ended before the changes of these pictures were saved."), "lblWhat"));
    auto* area = named(new QScrollArea, "areaRows", tr("Pictures"));
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    auto* rows = new QWidget;
    rows->setObjectName(QStringLiteral("rows"));
    column_ = new QVBoxLayout(rows);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    column_->addStretch();
    area->setWidget(rows);
    all->addWidget(area, 1);
    auto* last = new QHBoxLayout;
    auto* recover = named(new QPushButton(tr("&Recover All")), "cmdRecoverAll");
    auto* discard = named(new QPushButton(tr("&Discard All ...")), "cmdDiscardAll");
    auto* later = named(new QPushButton(tr("&Later")), "cmdLater");
    later->setToolTip(tr("They stay on the start page, and in the File menu"));
    recover->setDefault(true);
    last->addWidget(discard);
    last->addStretch();
    last->addWidget(recover);
    last->addWidget(later);
    all->addLayout(last);
    connect(recover, &QPushButton::clicked, this, [this] { emit recovers(left()); });
    connect(discard, &QPushButton::clicked, this, [this] { emit discards(left()); });
    connect(later, &QPushButton::clicked, this, &QWidget::close);
    recover->setFocus();
}

std::vector<const Leftover*> fRecovery::left() const
{
    std::vector<const Leftover*> leftovers;
    for (const Row& row : rows_)
        if (!row.isPutOff) leftovers.push_back(row.leftover);
    return leftovers;
}

void fRecovery::follow(const std::vector<Offer>& offers)
{
    const auto isGone = [&](const Row& row) {
        const auto isIt = [&](const Offer& offer) { return offer.leftover.get() == row.leftover; };
        if (std::ranges::any_of(offers, isIt)) return false;
        row.box->hide();
        row.box->deleteLater(); // one of its buttons may have been clicked
        return true;
    };
    std::erase_if(rows_, isGone);
    for (const Offer& offer : offers) {
        auto row = std::ranges::find(rows_, offer.leftover.get(), &Row::leftover);
        if (row == rows_.end()) {
            addRow(offer);
            row = rows_.end() - 1;
        }
        fill(*row, offer);
    }
    closeIfEmpty();
}

void fRecovery::closeIfEmpty()
{
    if (left().empty()) close();
}

void fRecovery::addRow(const Offer& offer)
{
    const Leftover* leftover = offer.leftover.get();
    const int number = int(column_->count()) - 1;
    const auto name = [number](const char* control) {
        return QString("%1_%2").arg(QLatin1String(control)).arg(number);
    };
    auto* box = new QFrame;
    box->setObjectName(name("row"));
    auto* line = new QHBoxLayout(box);
    Row row{leftover, box, named(new QLabel, name("lblPicture"), tr("Thumbnail")), plain({}, name("lblTrouble"))};
    row.picture->setFixedSize(kThumbnail, kThumbnail);
    row.picture->setAlignment(Qt::AlignCenter);
    line->addWidget(row.picture);
    auto* texts = new QVBoxLayout;
    auto* title = plain(offer.name, name("lblName"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    texts->addStretch();
    texts->addWidget(title);
    if (!offer.path.isEmpty()) texts->addWidget(plain(offer.path, name("lblPath")));
    texts->addWidget(plain(offer.facts, name("lblFacts")));
    texts->addWidget(row.trouble);
    texts->addStretch();
    line->addLayout(texts, 1);
    auto* buttons = new QVBoxLayout;
    const auto add = [&](const char* control, const QString& caption, auto act) {
        auto* button = named(new QPushButton(caption), name(control), QString("%1: %2").arg(caption, offer.name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, act);
        buttons->addWidget(button);
    };
    buttons->addStretch();
    add("cmdRecover", tr("Recover"), [this, leftover] { emit recovers({leftover}); });
    add("cmdDiscard", tr("Discard ..."), [this, leftover] { emit discards({leftover}); });
    add("cmdLater", tr("Later"), [this, leftover] { putOff(leftover); });
    buttons->addStretch();
    line->addLayout(buttons);
    column_->insertWidget(number, box);
    rows_.push_back(row);
    fit();
}

void fRecovery::fill(Row& row, const Offer& offer)
{
    const QSize size(kThumbnail, kThumbnail);
    const bool isBroken = offer.isRead && offer.thumbnail.isNull();
    const QIcon icon =
        isBroken ? QIcon::fromTheme(QStringLiteral("image-missing")) : thumbnailIcon(offer.thumbnail, size);
    row.picture->setPixmap(icon.pixmap(isBroken ? size / 2 : size, devicePixelRatio()));
    row.trouble->setText(offer.trouble);
    row.trouble->setVisible(!offer.trouble.isEmpty());
}

void fRecovery::putOff(const Leftover* leftover)
{
    const auto row = std::ranges::find(rows_, leftover, &Row::leftover);
    if (row == rows_.end()) return;
    row->isPutOff = true;
    row->box->hide();
    closeIfEmpty();
}

/// As high as its rows need, within reason.
void fRecovery::fit()
{
    const int rows = std::min(kMostRows, int(rows_.size()));
    const int margin = 2 * style()->pixelMetric(QStyle::PM_LayoutTopMargin);
    resize(620, rows * (kThumbnail + margin) + 140);
}

} // namespace velara
