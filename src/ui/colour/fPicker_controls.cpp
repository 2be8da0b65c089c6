// fPicker: making and laying out its controls.
#include "colour/colourCode.h"
#include "seams/Platform.h"
#include "ui/colour/fCellGrid.h"
#include "ui/colour/fColourCell.h"
#include "ui/colour/fHexBox.h"
#include "ui/colour/fPickSurface.h"
#include "ui/colour/fPicker.h"
#include "ui/widgets/inputs/named.h"
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

namespace velara {

namespace {

constexpr int kStripWidth = 20;
constexpr QSize kWell{64, 26}, kRecentCell{22, 18};
constexpr int kRecent = 12;

} // namespace

void fPicker::makeControls()
{
    auto* grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->setHorizontalSpacing(14);
    sides_ = new QStackedWidget(this);
    sides_->addWidget(makeFrame2());
    sides_->addWidget(makePresetPanel());
    views_ = new QStackedWidget(this);
    views_->addWidget(makeField());
    views_->addWidget(makeCells());
    grid->addWidget(views_, 0, 0, Qt::AlignTop);
    grid->addWidget(sides_, 0, 1);
    grid->addWidget(makeWells(), 1, 0);
    grid->addWidget(makeButtons(), 1, 1, Qt::AlignBottom);
    grid->addWidget(makeRecent(), 2, 0, 1, 2);
}

QWidget* fPicker::makeField()
{
    auto* box = new QWidget(this);
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    field_ = new fPickSurface(QStringLiteral("field"), tr("Color field"),
                              {{1, 1}, {kField, kField}, fPickSurface::Mark::Ring}, box);
    stripBar_ = new fPickSurface(QStringLiteral("strip"), tr("Color strip"),
                                 {{kStripWidth, 1}, {1, kField}, fPickSurface::Mark::Arrows}, box);
    line->addWidget(field_, 0, Qt::AlignTop);
    line->addWidget(stripBar_, 0, Qt::AlignTop);
    line->addStretch();
    connect(field_, &fPickSurface::picked, this,
            [this](QPoint place) { setHsb(atFieldPlace(strip_, picked_.hsb(), place)); });
    connect(stripBar_, &fPickSurface::picked, this,
            [this](QPoint place) { setHsb(atStripRow(strip_, picked_.hsb(), place.y())); });
    for (fPickSurface* surface : {field_, stripBar_}) {
        connect(surface, &fPickSurface::entered, this, &fPicker::takeAndClose);
        connect(surface, &fPickSurface::hovered, this, [this, surface](QPoint place) {
            const QRgb under = surface->image().pixel(place);
            showUnder(colourOf(qRed(under), qGreen(under), qBlue(under)));
        });
        connect(surface, &fPickSurface::left, this, [this] { showUnder(colour()); });
    }
    return box;
}

QWidget* fPicker::makeCells()
{
    cells_ = new fCellGrid(this);
    connect(cells_, &fCellGrid::selectedCell, this, &fPicker::selectCell);
    connect(cells_, &fCellGrid::chosen, this, [this](int cell) {
        selectCell(cell);
        if (cells_->colour(cell)) accept();
    });
    connect(cells_, &fCellGrid::hovered, this,
            [this](int cell) { showUnder(cells_->colour(cell).value_or(colour())); });
    connect(cells_, &fCellGrid::left, this, [this] { showUnder(colour()); });
    return cells_;
}

QLineEdit* fPicker::addBox(const char* name, const QString& accessibleName, int most, std::function<int()> shown,
                           std::function<void(int)> take)
{
    auto* edit = named(new QLineEdit(this), name, accessibleName);
    edit->setAlignment(Qt::AlignRight);
    edit->setMaxLength(6);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 16);
    edit->installEventFilter(this);
    boxes_.push_back({edit, most, std::move(shown), std::move(take)});
    return edit;
}

QWidget* fPicker::makeFrame2()
{
    auto* frame = named(new QWidget(this), "Frame2", {});
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    constexpr struct {
        const char *option, *box, *name, *letter, *unit;
    } kRows[] = {{"optH", "txtH", QT_TR_NOOP("Hue"), "&H", "°"},
                 {"optS", "txtS", QT_TR_NOOP("Saturation"), "&S", "%"},
                 {"optB", "txtB", QT_TR_NOOP("Brightness"), "&B", "%"}};
    strips_ = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        const auto part = static_cast<Part>(i);
        const QString name = tr(kRows[i].name);
        auto* option = named(new QRadioButton(QLatin1String(kRows[i].letter), frame), kRows[i].option,
                             tr("%1 on the strip").arg(name));
        option->setToolTip(option->accessibleName());
        option->setChecked(i == 0);
        strips_->addButton(option, i);
        auto* edit = addBox(
            kRows[i].box, name, kMostOfPart[static_cast<std::size_t>(i)], [this, part] { return picked_.shown(part); },
            [this, part](int value) { picked_.type(part, value); });
        grid->addWidget(option, i, 0);
        grid->addWidget(edit, i, 1);
        grid->addWidget(new QLabel(QString::fromUtf8(kRows[i].unit), frame), i, 2);
    }
    connect(strips_, &QButtonGroup::idClicked, this, [this](int id) {
        strip_ = static_cast<Strip>(id);
        DrawPicker();
    });

    model_ = named(new QComboBox(frame), "cmbModel", tr("Color model"));
    model_->addItems({QStringLiteral("R G B"), QStringLiteral("C M Y"), QStringLiteral("H S B")});
    grid->setRowMinimumHeight(3, 8);
    grid->addWidget(model_, 4, 0, 1, 3);
    constexpr struct {
        const char *label, *box, *name;
    } kParts[] = {{"lblR", "Text1", QT_TR_NOOP("Red")},
                  {"lblG", "Text2", QT_TR_NOOP("Green")},
                  {"lblB", "Text3", QT_TR_NOOP("Blue")}};
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        letters_[at] = named(new QLabel(frame), kParts[i].label, {});
        units_[at] = new QLabel(frame);
        parts_[at] = addBox(
            kParts[i].box, tr(kParts[i].name), 255, [this, i] { return modelPart(i); },
            [this, i](int value) { takeModelPart(i, value); });
        letters_[at]->setBuddy(parts_[at]);
        grid->addWidget(letters_[at], 5 + i, 0, Qt::AlignRight);
        grid->addWidget(parts_[at], 5 + i, 1);
        grid->addWidget(units_[at], 5 + i, 2);
    }
    hex_ = new fHexBox(QStringLiteral("txtHex"), frame);
    auto* code = new QLabel(tr("He&x"), frame);
    code->setBuddy(hex_);
    grid->setRowMinimumHeight(8, 8);
    grid->addWidget(code, 9, 0, Qt::AlignRight);
    grid->addWidget(hex_, 9, 1, 1, 2);
    connect(hex_, &fHexBox::picked, this, &fPicker::setColour);
    connect(hex_, &fHexBox::refused, this, [this](const QString& why) { platform_.tell(why); });
    grid->setColumnStretch(3, 1);
    connect(model_, &QComboBox::currentIndexChanged, this, &fPicker::showModel);
    return frame;
}

QWidget* fPicker::makePresetPanel()
{
    auto* panel = new QWidget(this);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    cmbPreset_ = named(new QComboBox(panel), "cmbPreset", tr("Preset colors"));
    cmbPreset_->addItems({tr("Custom..."), tr("Safe Palette (216)")});
    column->addWidget(cmbPreset_);
    column->addSpacing(10);
    auto* line = new QHBoxLayout;
    cmdADD_ = named(new QPushButton(QStringLiteral("<<"), panel), "cmdADD", tr("Put the color into the selected cell"));
    cmdADD_->setToolTip(cmdADD_->accessibleName());
    cmdADD_->setAutoDefault(false);
    lblADDColor_ = new fColourCell(QStringLiteral("lblADDColor"), tr("Color to put into a cell"), kWell, panel);
    line->addWidget(cmdADD_);
    line->addWidget(lblADDColor_);
    line->addStretch();
    column->addLayout(line);
    addHint_ = new QLabel(tr("Select a cell, then << keeps\nthe color in your list."), panel);
    addHint_->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(addHint_);
    column->addStretch();
    connect(cmbPreset_, &QComboBox::currentIndexChanged, this, [this](int entry) {
        if (view_ != Picker) showPreset(entry);
    });
    connect(cmdADD_, &QPushButton::clicked, this, &fPicker::addToList);
    connect(lblADDColor_, &fColourCell::clicked, this, [this] { lblADDColor_->setColour(colour()); });
    return panel;
}

QWidget* fPicker::makeWells()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(2);
    lblSelColor_ = new fColourCell(QStringLiteral("lblSelColor"), tr("Selected color"), kWell, box);
    lblSelColor_->setFocusPolicy(Qt::NoFocus);
    Label2_ = new fColourCell(QStringLiteral("Label2"), tr("Color before"), kWell, box);
    connect(Label2_, &fColourCell::clicked, this, [this] { setColour(Label2_->colour()); });
    auto* now = new QLabel(tr("New"), box);
    auto* before = new QLabel(tr("Before"), box);
    for (QLabel* label : {now, before}) label->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(now, 0, 0);
    grid->addWidget(before, 0, 1);
    grid->addWidget(lblSelColor_, 1, 0);
    grid->addWidget(Label2_, 1, 1);
    status_ = named(new QLabel(box), "lblStatus", tr("Color under the pointer"));
    status_->setMinimumWidth(status_->fontMetrics().horizontalAdvance(QStringLiteral("Hex: #DDDDDD")) + 4);
    grid->setColumnMinimumWidth(2, 12);
    grid->addWidget(status_, 0, 3, 3, 1, Qt::AlignTop);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(4, 1);
    return box;
}

QWidget* fPicker::makeRecent()
{
    auto* box = named(new QWidget(this), "recent", tr("Recent colors"));
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 4, 0, 0);
    line->setSpacing(3);
    auto* title = new QLabel(tr("Recent"), box);
    title->setForegroundRole(QPalette::PlaceholderText);
    line->addWidget(title);
    const QStringList codes =
        platform_.setting(kRecentSection, kRecentKey, {}).split(u' ', Qt::SkipEmptyParts).mid(0, kRecent);
    for (int i = 0; i < kRecent; ++i) {
        auto* cell =
            new fColourCell(QStringLiteral("recent_%1").arg(i), tr("Recent color %1").arg(i + 1), kRecentCell, box);
        QSizePolicy kept = cell->sizePolicy();
        kept.setRetainSizeWhenHidden(true);
        cell->setSizePolicy(kept);
        const auto colour = i < codes.size() ? colourOfCode(codes[i]) : std::nullopt;
        cell->setVisible(colour.has_value());
        if (colour) cell->setColour(*colour);
        connect(cell, &fColourCell::clicked, this, [this, cell] { setColour(cell->colour()); });
        connect(cell, &fColourCell::doubleClicked, this, &fPicker::accept);
        line->addWidget(cell);
        recent_.push_back(cell);
    }
    line->addStretch();
    box->setVisible(!codes.isEmpty());
    return box;
}

QWidget* fPicker::makeButtons()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto button = [&](const char* name, const QString& text, int row, int column, int columns) {
        auto* made = named(new QPushButton(text, box), name, QString(text).remove('&'));
        made->setAutoDefault(false);
        grid->addWidget(made, row, column, 1, columns);
        return made;
    };
    Command3_ = button("Command3", tr("&Preset"), 0, 0, 2);
    auto* ok = button("Command1", tr("O&K"), 1, 0, 1);
    ok->setDefault(true);
    Command2_ = button("Command2", tr("Exit"), 1, 1, 1);
    connect(Command3_, &QPushButton::clicked, this, &fPicker::togglePreset);
    connect(ok, &QPushButton::clicked, this, &fPicker::takeAndClose);
    connect(Command2_, &QPushButton::clicked, this, &QDialog::reject);
    return box;
}

} // namespace velara
