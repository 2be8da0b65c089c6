#include "ui/colour/fPresetWell.h"
#include "seams/text.h"
#include "ui/colour/fColourCell.h"
#include "ui/widgets/inputs/named.h"
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace velara {

namespace {

struct Role {
    QPalette::ColorRole role;
    const char* name;
};
constexpr Role kDesktop[] = {
    {QPalette::Window, QT_TRANSLATE_NOOP("velara::fPresetWell", "Window")},
    {QPalette::WindowText, QT_TRANSLATE_NOOP("velara::fPresetWell", "Window text")},
    {QPalette::Base, QT_TRANSLATE_NOOP("velara::fPresetWell", "Field")},
    {QPalette::Text, QT_TRANSLATE_NOOP("velara::fPresetWell", "Text")},
    {QPalette::Button, QT_TRANSLATE_NOOP("velara::fPresetWell", "Button")},
    {QPalette::ButtonText, QT_TRANSLATE_NOOP("velara::fPresetWell", "Button text")},
    {QPalette::Highlight, QT_TRANSLATE_NOOP("velara::fPresetWell", "Selection")},
    {QPalette::HighlightedText, QT_TRANSLATE_NOOP("velara::fPresetWell", "Selected text")},
    {QPalette::ToolTipBase, QT_TRANSLATE_NOOP("velara::fPresetWell", "Tool tip")},
    {QPalette::ToolTipText, QT_TRANSLATE_NOOP("velara::fPresetWell", "Tool tip text")},
    {QPalette::Link, QT_TRANSLATE_NOOP("velara::fPresetWell", "Link")},
    {QPalette::LinkVisited, QT_TRANSLATE_NOOP("velara::fPresetWell", "Visited link")},
    {QPalette::Light, QT_TRANSLATE_NOOP("velara::fPresetWell", "Light edge")},
    {QPalette::Midlight, QT_TRANSLATE_NOOP("velara::fPresetWell", "Pale edge")},
    {QPalette::Mid, QT_TRANSLATE_NOOP("velara::fPresetWell", "Middle edge")},
    {QPalette::Dark, QT_TRANSLATE_NOOP("velara::fPresetWell", "Dark edge")},
    {QPalette::Shadow, QT_TRANSLATE_NOOP("velara::fPresetWell", "Shadow")},
    {QPalette::AlternateBase, QT_TRANSLATE_NOOP("velara::fPresetWell", "Other rows")},
};

constexpr QSize kIcon{40, 16}, kCell{20, 18};

Colour valueOf(const QColor& colour) { return colourOf(colour.red(), colour.green(), colour.blue()); }

} // namespace

fPresetWell::fPresetWell(const QString& name, const PresetSet& set, QWidget* parent)
    : QToolButton(parent), colours_(set.colours()), columns_(set.columns)
{
    setObjectName(name);
    setAccessibleName(shown("Colors", set.name));
    setIconSize(kIcon);
    setFocusPolicy(Qt::StrongFocus);
    setArrowType(Qt::NoArrow);
    setToolTip(tr("Choose one of the set"));
    connect(this, &QToolButton::clicked, this, &fPresetWell::openList);
    colour_ = colours_.empty() ? valueOf(palette().color(kDesktop[0].role)) : colours_[std::size_t(set.shown)];
    showColour();
}

void fPresetWell::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) showColour();
}

void fPresetWell::showColour()
{
    // The colour, and an arrow that indicates a list.
    const double ratio = devicePixelRatioF();
    QPixmap pixmap((QSizeF(kIcon) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(0, 0, 28, 16), palette().mid());
    painter.fillRect(QRect(1, 1, 26, 14), QColor(redOf(colour_), greenOf(colour_), blueOf(colour_)));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().buttonText());
    painter.drawPolygon(QPolygonF({{31, 6}, {39, 6}, {35, 11}}));
    painter.end();
    setIcon(pixmap);
    setAccessibleDescription(colourText(colour_));
}

void fPresetWell::openList()
{
    closeList();
    popup_ = named(new QFrame(this, Qt::Popup), objectName() + QStringLiteral("_list"), accessibleName());
    popup_->setAttribute(Qt::WA_DeleteOnClose);
    static_cast<QFrame*>(popup_.data())->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    auto* grid = new QGridLayout(popup_);
    grid->setContentsMargins(5, 5, 5, 5);
    grid->setSpacing(2);
    cells_.clear();
    const std::size_t count = colours_.empty() ? std::size(kDesktop) : colours_.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Colour colour = colours_.empty() ? valueOf(palette().color(kDesktop[i].role)) : colours_[i];
        const QString name = colours_.empty() ? tr(kDesktop[i].name) : colourText(colour);
        auto* cell = new fColourCell(objectName() + u'_' + QString::number(i), name, kCell, popup_);
        cell->setColour(colour);
        if (colours_.empty()) cell->setToolTip(name + u'\n' + colourText(colour));
        cell->installEventFilter(this);
        const auto chosen = [this, colour] { take(colour); };
        connect(cell, &fColourCell::clicked, this, chosen);
        connect(cell, &fColourCell::doubleClicked, this, chosen);
        grid->addWidget(cell, static_cast<int>(i) / columns_, static_cast<int>(i) % columns_);
        cells_.push_back(cell);
    }
    popup_->adjustSize();
    const QRect room = screen()->availableGeometry();
    const QPoint below = mapToGlobal(QPoint(0, height()));
    popup_->move(std::clamp(below.x(), room.left(), std::max(room.left(), room.right() - popup_->width())),
                 below.y() + popup_->height() > room.bottom() ? mapToGlobal(QPoint()).y() - popup_->height()
                                                              : below.y());
    popup_->show();
    const auto at = std::ranges::find(cells_, colour_, &fColourCell::colour);
    (at == cells_.end() ? cells_.front() : *at)->setFocus();
}

void fPresetWell::closeList()
{
    if (popup_) popup_->close();
    popup_.clear();
    cells_.clear();
}

void fPresetWell::take(Colour colour)
{
    closeList();
    colour_ = colour;
    showColour();
    emit picked(colour);
}

bool fPresetWell::eventFilter(QObject* watched, QEvent* event)
{
    const auto at = std::ranges::find(cells_, watched);
    if (event->type() != QEvent::KeyPress || at == cells_.end()) return QToolButton::eventFilter(watched, event);
    int to = static_cast<int>(at - cells_.begin());
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Left:
        --to;
        break;
    case Qt::Key_Right:
        ++to;
        break;
    case Qt::Key_Up:
        to -= columns_;
        break;
    case Qt::Key_Down:
        to += columns_;
        break;
    default:
        return QToolButton::eventFilter(watched, event);
    }
    if (to >= 0 && to < static_cast<int>(cells_.size())) cells_[static_cast<std::size_t>(to)]->setFocus();
    return true;
}

} // namespace velara
