#include "app/frame/fStatus.h"
#include "ui/widgets/inputs/named.h"
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>

namespace velara {

namespace {

struct PanelRow {
    Panel panel;
    const char* key;
    const char* meaning;
    const char* widest; // the text it must have room for; the name takes the remaining width
};

// clang-format off
constexpr PanelRow kPanels[] = {
    {Panel::Pos,  "Pos",  QT_TRANSLATE_NOOP("velara::fStatus", "Position of the pointer"),   "X:00000 Y:00000"},
    {Panel::Ext,  "Ext",  QT_TRANSLATE_NOOP("velara::fStatus", "Extent of the drag"),        "00000,00000"},
    {Panel::Size, "Size", QT_TRANSLATE_NOOP("velara::fStatus", "Size of the picture"),       "00000x00000"},
    {Panel::Page, "Page", QT_TRANSLATE_NOOP("velara::fStatus", "Page of the file"),          "00 of 00"},
    {Panel::Name, "Name", QT_TRANSLATE_NOOP("velara::fStatus", "Name of the picture"),       ""},
    {Panel::Hint, "Hint", QT_TRANSLATE_NOOP("velara::fStatus", "Keys of what is under way"), ""},
    {Panel::Zoom, "Zoom", QT_TRANSLATE_NOOP("velara::fStatus", "Zoom"),                      "00 : 1"},
};
// clang-format on

/// Shortens its text in the middle where there is no room: the beginning and the ending of a name tell most.
class fShortened final : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void paintEvent(QPaintEvent* event) override
    {
        const QString whole = text(), shown = fontMetrics().elidedText(whole, Qt::ElideMiddle, contentsRect().width());
        if (shown == whole) return QLabel::paintEvent(event);
        QPainter painter(this);
        drawFrame(&painter);
        style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown,
                              foregroundRole());
    }
};

} // namespace

fStatus::fStatus(QWidget* parent) : QStatusBar(parent)
{
    setObjectName("PicStatus");
    auto* info = named(new QWidget(this), "sbInfo");
    auto* row = new QHBoxLayout(info);
    row->setContentsMargins(4, 0, 4, 0);
    for (const PanelRow& p : kPanels) {
        auto* label =
            named(*p.widest ? new QLabel(info) : new fShortened(info), QString("sbInfo_") + p.key, tr(p.meaning));
        label->setToolTip(tr(p.meaning));
        label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        label->setTextFormat(Qt::PlainText);
        if (*p.widest)
            label->setMinimumWidth(fontMetrics().horizontalAdvance(p.widest) + 12);
        else
            label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long one never widens the frame
        row->addWidget(label, *p.widest ? 0 : 1);
        panels_[static_cast<int>(p.panel)] = label;
    }
    for (const Panel passing : {Panel::Hint, Panel::Page}) setPanel(passing, {});
    progress_ = named(new QProgressBar(this), "cFilterProgress", tr("Progress of the filter"));
    progress_->setRange(0, 100);
    progress_->setTextVisible(false);
    progress_->setFixedWidth(140); // taken from the name, while it is shown
    progress_->hide();
    addWidget(info, 1);
    addPermanentWidget(progress_);
}

void fStatus::setPanel(Panel panel, const QString& text)
{
    QLabel* label = panels_[static_cast<int>(panel)];
    label->setText(printable(text));
    if (panel == Panel::Hint || panel == Panel::Page) label->setVisible(!text.isEmpty());
    if (panel == Panel::Hint && !text.isEmpty()) clearMessage(); // the keys are needed now
    if (panel != Panel::Hint) return;
    for (const Panel still : {Panel::Size, Panel::Name, Panel::Zoom}) // those that no gesture replaces
        panels_[static_cast<int>(still)]->setVisible(text.isEmpty());
}

void fStatus::setPath(const QString& path)
{
    QLabel* label = panels_[static_cast<int>(Panel::Name)];
    label->setToolTip(path.isEmpty() ? tr("Name of the picture") : printable(path));
}

QString fStatus::panel(Panel panel) const { return panels_[static_cast<int>(panel)]->text(); }

void fStatus::setProgress(int percent)
{
    if (percent < 0) return;
    if (percent > 0) clearMessage();
    progress_->setValue(percent);
    progress_->setVisible(percent > 0 && percent < progress_->maximum()); // hidden when idle
}

} // namespace velara
