// fPicker: the picker's behaviour. Its controls are made in fPicker_controls.cpp.
#include "ui/colour/fPicker.h"
#include "colour/colourCode.h"
#include "seams/Platform.h"
#include "ui/colour/fCellGrid.h"
#include "ui/colour/fColourCell.h"
#include "ui/colour/fHexBox.h"
#include "ui/colour/fPickSurface.h"
#include "ui/colour/userColourFile.h"
#include <QButtonGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

namespace velara {

namespace {

/// A colour model of three numbers: letters and meanings, units, and how to get and set each part. Inverted ones show
/// 255 minus the number.
struct Model {
    const char* letters[3];
    const char* names[3];
    const char* units[3];
    Part first;
    bool inverted;
};
constexpr Model kModels[] = {
    {{"R", "G", "B"},
     {QT_TRANSLATE_NOOP("velara::fPicker", "Red"), QT_TRANSLATE_NOOP("velara::fPicker", "Green"),
      QT_TRANSLATE_NOOP("velara::fPicker", "Blue")},
     {"", "", ""},
     Part::Red,
     false},
    {{"C", "M", "Y"},
     {QT_TRANSLATE_NOOP("velara::fPicker", "Cyan"), QT_TRANSLATE_NOOP("velara::fPicker", "Magenta"),
      QT_TRANSLATE_NOOP("velara::fPicker", "Yellow")},
     {"", "", ""},
     Part::Red,
     true},
    {{"H", "S", "B"},
     {QT_TRANSLATE_NOOP("velara::fPicker", "Hue"), QT_TRANSLATE_NOOP("velara::fPicker", "Saturation"),
      QT_TRANSLATE_NOOP("velara::fPicker", "Brightness")},
     {"°", "%", "%"},
     Part::Hue,
     false},
};

Part partOf(const Model& model, int row) { return static_cast<Part>(static_cast<int>(model.first) + row); }

/// A box that was just reached by Tab stays selected, so that typing replaces its number.
void setNumber(QLineEdit& edit, const QString& number)
{
    const bool selected = edit.hasSelectedText();
    edit.setText(number);
    if (selected) edit.selectAll();
}

} // namespace

fPicker::fPicker(Platform& platform, QWidget* parent) : QDialog(parent), platform_(platform)
{
    setObjectName(QStringLiteral("fPicker"));
    setWindowTitle(tr("Color Box"));
    setModal(true);
    makeControls();
    showModel();
    LoadColorDialog(picked_.colour());
}

void fPicker::LoadColorDialog(Colour color)
{
    picked_.setColour(color);
    Label2_->setColour(color);
    lblADDColor_->setColour(color);
    DrawPicker();
}

/// Updates field, strip, boxes and wells from the colour.
void fPicker::DrawPicker()
{
    const Hsb& hsb = picked_.hsb();
    field_->setImage(pickerField(strip_, hsb));
    field_->setPlace(placeOnField(strip_, hsb));
    stripBar_->setImage(pickerStrip(strip_, hsb));
    stripBar_->setPlace({0, rowOnStrip(strip_, hsb)});
    lblSelColor_->setColour(colour());
    hex_->setColour(colour());
    field_->describe(colourText(colour()));
    stripBar_->describe(colourText(colour()));
    for (const Box& box : boxes_) setNumber(*box.edit, QString::number(box.shown()));
    showUnder(colour());
}

void fPicker::setHsb(const Hsb& hsb)
{
    picked_.setHsb(hsb);
    DrawPicker();
}

void fPicker::setColour(Colour colour)
{
    picked_.setColour(colour);
    DrawPicker();
}

void fPicker::showUnder(Colour colour)
{
    status_->setText(QStringLiteral("R: %1\nG: %2\nB: %3\nHex: #%4")
                         .arg(redOf(colour))
                         .arg(greenOf(colour))
                         .arg(blueOf(colour))
                         .arg(GetHexVal(redOf(colour), greenOf(colour), blueOf(colour))));
}

// --- Boxes

int fPicker::modelPart(int row) const
{
    const Model& model = kModels[model_->currentIndex()];
    const int shown = picked_.shown(partOf(model, row));
    return model.inverted ? 255 - shown : shown;
}

void fPicker::takeModelPart(int row, int value)
{
    const Model& model = kModels[model_->currentIndex()];
    picked_.type(partOf(model, row), model.inverted ? 255 - value : value);
}

void fPicker::showModel()
{
    const Model& model = kModels[model_->currentIndex()];
    constexpr int kFirst = 3; // of the boxes after those for hue, saturation and brightness
    for (int row = 0; row < 3; ++row) {
        const auto at = static_cast<std::size_t>(row);
        letters_[at]->setText(QLatin1String(model.letters[row]));
        parts_[at]->setAccessibleName(tr(model.names[row]));
        units_[at]->setText(QString::fromUtf8(model.units[row]));
        boxes_[kFirst + at].most = kMostOfPart[static_cast<std::size_t>(partOf(model, row))];
    }
    DrawPicker();
}

/// The user leaves a box. Anything but a number in its range is refused, and the box keeps the focus: false.
bool fPicker::leaveBox(std::size_t index)
{
    const Box& box = boxes_[index];
    if (refusing_ || !box.edit->isVisible()) return true;
    bool whole = false;
    const int value = box.edit->text().trimmed().toInt(&whole);
    if (whole && value >= 0 && value <= box.most) {
        if (value == box.shown()) return true;
        box.take(value);
        DrawPicker();
        return true;
    }
    refusing_ = true;
    const QPointer<fPicker> alive = this;
    platform_.tell(tr("Enter an Integer Value Between 0 and %1").arg(box.most));
    if (!alive) return false;
    refusing_ = false;
    box.edit->setFocus();
    box.edit->selectAll();
    return false;
}

/// OK also accepts what is in the boxes; Exit and Esc ask nothing.
void fPicker::takeAndClose()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        if (boxes_[i].edit->isModified() && !leaveBox(i)) return;
    if (hex_->isModified() && !hex_->take()) return;
    accept();
}

void fPicker::accept()
{
    QStringList codes{colourCode(colour())};
    for (const fColourCell* cell : recent_)
        if (!cell->isHidden()) codes += colourCode(cell->colour());
    codes.removeDuplicates();
    platform_.setSetting(kRecentSection, kRecentKey, codes.mid(0, qsizetype(recent_.size())).join(u' '));
    QDialog::accept();
}

bool fPicker::eventFilter(QObject* watched, QEvent* event)
{
    const auto box = std::ranges::find(boxes_, watched, [](const Box& b) -> const QObject* { return b.edit; });
    if (box == boxes_.end()) return QDialog::eventFilter(watched, event);
    const auto index = static_cast<std::size_t>(box - boxes_.begin());
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            leaveBox(index);
            return true; // the dialog stays open
        }
    }
    // Once the focus has moved: a message during the move would catch it.
    if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason)
        QTimer::singleShot(0, this, [this, index] {
            if (isVisible() && !boxes_[index].edit->hasFocus() && !Command2_->hasFocus()) leaveBox(index);
        });
    return QDialog::eventFilter(watched, event);
}

// --- The view of cells

void fPicker::togglePreset()
{
    const bool toCells = view_ == Picker;
    Command3_->setText(toCells ? tr("&Picker") : tr("&Preset"));
    views_->setCurrentIndex(toCells);
    sides_->setCurrentIndex(toCells);
    if (!toCells) {
        view_ = Picker;
        return DrawPicker();
    }
    lblADDColor_->setColour(colour());
    showPreset(cmbPreset_->currentIndex());
    cells_->setFocus();
}

void fPicker::showPreset(int entry)
{
    view_ = entry == 0 ? UserList : SafePalette;
    if (view_ == UserList) loadUserColours(platform_.programFolder(), UserColors_);
    for (int cell = 1; cell <= kCells; ++cell)
        cells_->setColour(cell, view_ == UserList ? UserColors_[static_cast<std::size_t>(cell)] & 0xFFFFFF
                                                  : safeColour(cell));
    for (QWidget* widget : std::initializer_list<QWidget*>{cmdADD_, lblADDColor_, addHint_})
        widget->setVisible(view_ == UserList);
    cells_->select(cells_->selected());
}

void fPicker::selectCell(int cell)
{
    if (const auto chosen = cells_->colour(cell)) setColour(*chosen);
}

void fPicker::addToList()
{
    const int cell = cells_->selected();
    UserColors_[static_cast<std::size_t>(cell)] = lblADDColor_->colour();
    cells_->setColour(cell, lblADDColor_->colour());
    cells_->select(cell);
    setColour(lblADDColor_->colour()); // OK gives what was kept
    saveUserColours(platform_.programFolder(), UserColors_);
}

} // namespace velara
