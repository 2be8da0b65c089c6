#include "ui/colour/fPalette.h"
#include "colour/planes.h"
#include "colour/presetColours.h"
#include "document/road/Frame.h"
#include "pixels/twips.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include "seams/text.h"
#include "ui/colour/fColourCell.h"
#include "ui/colour/fHexBox.h"
#include "ui/colour/fPickSurface.h"
#include "ui/colour/fPresetWell.h"
#include "ui/colour/fRgbBox.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QToolButton>
#include <cmath>

namespace velara {

namespace {

constexpr int kShown = 90;     // of the plane's 101 columns and rows; the pointer reaches the rest from outside
constexpr double kHueRow = 14; // height of a row of the strip in twips; the marker's 560 twips are forty of them
constexpr int kMarkerRoom = 4; // above and below the strip
constexpr QSize kCell{18, 18}, kPick{58, 26};
constexpr int kCellGap = 4, kCellColumns = 8, kFrameOffset = 23; // twips from a cell to its frame

QString numbered(const char* name, int index) { return QLatin1String(name) + u'_' + QString::number(index); }

/// An arrow beside the strip at the chosen hue.
class HueMarker final : public QWidget {
  public:
    explicit HueMarker(QWidget* parent) : QWidget(parent)
    {
        setObjectName(QStringLiteral("iHuePos"));
        setFixedSize(7, 9);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().windowText());
        painter.drawPolygon(QPolygonF({{0.0, 0.0}, {7.0, 4.5}, {0.0, 9.0}}));
    }
};

} // namespace

fPalette::fPalette(Frame& frame, QWidget* parent) : QWidget(parent, Qt::Tool), frame_(frame)
{
    setObjectName(QStringLiteral("fPalette"));
    setWindowTitle(tr("Select Color"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(8, 8, 8, 8);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(7);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(makePlane(), 0, 0);
    grid->addWidget(makeNumbers(), 0, 1);
    grid->addWidget(makeWells(), 1, 0, 1, 2);
    grid->addWidget(makeCells(), 2, 0, 1, 2);
    grid->addWidget(makePresets(), 3, 0, 1, 2);
    drawPlane();
    showCurrent(frame_.setup().ForeColor, HueOf::Strip); // the hue is the one that was kept
    showColors();
    chkLink_->setChecked(frame_.setup().PaletteFlag);
    selectCell(0);
    adjustSize();
}

QWidget* fPalette::makePlane()
{
    auto* box = new QWidget(this);
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(2);
    iPal_ = new fPickSurface(QStringLiteral("iPal"), tr("Saturation and lightness"),
                             {{1, 1}, {kShown, kShown}, fPickSurface::Mark::Ring}, box);
    iPal_->setToolTip(tr("Click to pick and to store in the cell; double click for the large picker"));
    auto* room = new QWidget(box); // the marker moves beside the strip
    room->setFixedWidth(9);
    iHuePos_ = new HueMarker(room);
    iHue_ = new fPickSurface(QStringLiteral("iHue"), tr("Hue"),
                             {{18, kHueRow / kTwips}, {1, kPlane}, fPickSurface::Mark::None}, box);
    iHue_->setImage(hueStrip());
    room->setFixedHeight(iHue_->height() + 2 * kMarkerRoom);
    line->addWidget(iPal_, 0, Qt::AlignVCenter);
    line->addSpacing(4);
    line->addWidget(room, 0, Qt::AlignVCenter);
    line->addWidget(iHue_, 0, Qt::AlignVCenter);
    connect(iHue_, &fPickSurface::picked, this, [this](QPoint at) { pickHue(at.y()); });
    connect(iPal_, &fPickSurface::picked, this, &fPalette::pickOnPlane);
    connect(iPal_, &fPickSurface::clicked, this, &fPalette::storeInCell);
    connect(iPal_, &fPickSurface::doubleClicked, this, &fPalette::pickFromPicker);
    connect(iPal_, &fPickSurface::entered, this, &fPalette::pickFromPicker);
    return box;
}

QWidget* fPalette::makeNumbers()
{
    constexpr struct {
        const char *letter, *label, *name;
    } kRows[] = {
        {"R", "lblR", QT_TR_NOOP("Red")}, {"G", "lblG", QT_TR_NOOP("Green")}, {"B", "lblB", QT_TR_NOOP("Blue")}};
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(2);
    for (int i = 0; i < 3; ++i) {
        auto* label = named(new QLabel(QLatin1String(kRows[i].letter), box), QLatin1String(kRows[i].label));
        auto* number = new fRgbBox(numbered("txtRGB", i), tr(kRows[i].name), box);
        txtRGB_[std::size_t(i)] = number;
        label->setBuddy(number);
        grid->addWidget(label, i, 0);
        grid->addWidget(number, i, 1);
        connect(number, &fRgbBox::edited, this, &fPalette::numbersEdited);
    }
    lblCur_ = new fColourCell(QStringLiteral("lblCur"), tr("Current pick"), kPick, box);
    connect(lblCur_, &fColourCell::doubleClicked, this, &fPalette::RefreshCurrent);
    grid->addWidget(lblCur_, 3, 0, 1, 2, Qt::AlignRight);
    txtHex_ = new fHexBox(QStringLiteral("txtHex"), box);
    grid->addWidget(txtHex_, 4, 0, 1, 2, Qt::AlignRight);
    connect(txtHex_, &fHexBox::picked, this, &fPalette::setCurrent);
    connect(txtHex_, &fHexBox::refused, this, [this](const QString& why) { frame_.platform().tell(why); });
    return box;
}

QWidget* fPalette::makeWells()
{
    auto* box = new QWidget(this);
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    lblColF_ = new fColorButton(frame_, QStringLiteral("lblColF"), tr("First color"), box);
    lblColB_ = new fColorButton(frame_, QStringLiteral("lblColB"), tr("Second color"), box);
    auto* swap = named(new QToolButton(box), "iSwap", tr("Swap the colors"));
    swap->setToolTip(swap->accessibleName());
    swap->setText(QStringLiteral("⇄"));
    swap->setAutoRaise(true);
    swap->setFocusPolicy(Qt::StrongFocus);
    chkLink_ = named(new QCheckBox(tr("&Link"), box), "chkLink", tr("Link"));
    chkLink_->setToolTip(tr("Link with current color"));
    line->addWidget(lblColF_);
    line->addWidget(swap);
    line->addWidget(lblColB_);
    line->addStretch();
    line->addWidget(chkLink_);
    connect(lblColF_, &fColorButton::colourChanged, this, [this] { setFirst(lblColF_->colour()); });
    connect(lblColB_, &fColorButton::colourChanged, this, [this] {
        frame_.setup().BackColor = lblColB_->colour();
        frame_.showColors();
    });
    connect(swap, &QToolButton::clicked, this, [this] {
        std::swap(frame_.setup().ForeColor, frame_.setup().BackColor);
        frame_.showColors();
    });
    connect(chkLink_, &QCheckBox::toggled, this, [this](bool on) { frame_.setup().PaletteFlag = on; });
    return box;
}

QWidget* fPalette::makeCells()
{
    auto* box = new QWidget(this);
    constexpr int kRows = kBoxCells / kCellColumns;
    box->setFixedSize(kCellColumns * (kCell.width() + kCellGap) + kCellGap,
                      kRows * (kCell.height() + kCellGap) + kCellGap);
    for (int i = 0; i < kBoxCells; ++i) {
        auto* cell = new fColourCell(numbered("lblCol", i), tr("Cell %1").arg(i + 1), kCell, box);
        cell->setColour(boxCellColour(i));
        cell->move(kCellGap + i % kCellColumns * (kCell.width() + kCellGap),
                   kCellGap + i / kCellColumns * (kCell.height() + kCellGap));
        connect(cell, &fColourCell::clicked, this, [this, i] { selectCell(i); });
        connect(cell, &fColourCell::doubleClicked, this, [this, cell] { setFirst(cell->colour()); });
        lblCol_.push_back(cell);
    }
    shpCur_ = named(new QFrame(box), "shpCur");
    shpCur_->setFrameStyle(QFrame::Box | QFrame::Plain);
    shpCur_->setLineWidth(2);
    shpCur_->setAttribute(Qt::WA_TransparentForMouseEvents);
    return box;
}

QWidget* fPalette::makePresets()
{
    auto* box = new QWidget(this);
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    CPL_ = named(new QComboBox(box), "CPL", tr("Preset colors"));
    line->addWidget(CPL_, 1);
    for (int i = 0; i < kPresetSets; ++i) {
        const PresetSet& set = presetSet(i);
        CPL_->addItem(shown("Colors", set.name));
        auto* well = new fPresetWell(numbered("cp", i), set, box);
        connect(well, &fPresetWell::picked, this, [this](Colour colour) {
            showCurrent(colour);
            setFirst(colour);
        });
        cp_.push_back(well);
        line->addWidget(well);
    }
    connect(CPL_, &QComboBox::currentIndexChanged, this, &fPalette::choosePreset);
    choosePreset(0);
    return box;
}

// --- Hue and plane

void fPalette::pickHue(int row)
{
    frame_.setup().PaletteHue = stripHue(row);
    drawPlane();
}

void fPalette::drawPlane()
{
    // A damaged configuration may contain anything.
    const float hue = std::clamp(std::isfinite(frame_.setup().PaletteHue) ? frame_.setup().PaletteHue : 0, -1.0f, 5.0f);
    PlaneBits_ = colourPlane(hue);
    iPal_->setImage(PlaneBits_);
    const double turned = hue < 0 ? hue + 6 : hue;
    const int top = kMarkerRoom + fPickSurface::kEdge;
    const double along = (turned * 560 / 2.4 - 1) / kTwips;
    iHuePos_->move(1, top + qRound(along) - iHuePos_->height() / 2);
    iHue_->setPlace({0, std::clamp(qRound(turned * 40 / 2.4), 0, kPlane - 1)});
    iHue_->describe(tr("%1 degrees").arg(qRound(turned * 60)));
}

void fPalette::pickOnPlane(QPoint place)
{
    const QRgb pixel = PlaneBits_.pixel(place);
    take(colourOf(qRed(pixel), qGreen(pixel), qBlue(pixel)), HueOf::Strip);
    iPal_->setPlace(place); // several positions have this colour; it is this one
}

// --- The pick and the two colours

Colour fPalette::current() const { return lblCur_->colour(); }

/// The hue of the strip follows, so that the ring stands on the colour; greys have none, and keep it.
void fPalette::showCurrent(Colour colour, HueOf hue)
{
    lblCur_->setColour(colour);
    const int parts[] = {redOf(colour), greenOf(colour), blueOf(colour)};
    for (std::size_t i = 0; i < 3; ++i) txtRGB_[i]->setValue(parts[i]);
    const Hsl hsl = RGBToHSL(parts[0], parts[1], parts[2]);
    txtHex_->setColour(colour);
    if (hue == HueOf::Colour && hsl.s > 0) {
        frame_.setup().PaletteHue = float(hsl.h);
        drawPlane();
    }
    iPal_->setPlace({qRound(100 - 100 * hsl.s), qRound(100 - 100 * hsl.l)});
    iPal_->describe(colourText(colour));
}

void fPalette::setCurrent(Colour colour) { take(colour, HueOf::Colour); }

void fPalette::take(Colour colour, HueOf hue)
{
    showCurrent(colour, hue);
    if (chkLink_->isChecked()) RefreshCurrent();
}

void fPalette::numbersEdited() { setCurrent(colourOf(txtRGB_[0]->value(), txtRGB_[1]->value(), txtRGB_[2]->value())); }

void fPalette::RefreshCurrent() { setFirst(lblCur_->colour()); }

void fPalette::setFirst(Colour colour)
{
    frame_.setup().ForeColor = colour;
    frame_.showColors();
    showColors(); // a frame without displays doesn't report the change
}

void fPalette::showColors()
{
    const QSignalBlocker first(lblColF_), second(lblColB_);
    lblColF_->setColour(frame_.setup().ForeColor);
    lblColB_->setColour(frame_.setup().BackColor);
    if (chkLink_->isChecked() && lblCur_->colour() != lblColF_->colour()) showCurrent(lblColF_->colour());
}

void fPalette::pickFromPicker()
{
    const QPointer<fPalette> alive = this;
    const auto chosen = frame_.pickColour(current(), tr("Current pick"), this);
    if (alive && chosen) setCurrent(*chosen);
}

// --- Cells and presets

void fPalette::selectCell(int cell)
{
    SelectedCell_ = cell;
    const fColourCell& at = *lblCol_[std::size_t(cell)];
    const int offset = qRound(double(kFrameOffset) / kTwips);
    shpCur_->setGeometry(at.geometry().adjusted(-offset, -offset, offset, offset));
    shpCur_->raise();
}

void fPalette::storeInCell()
{
    lblCol_[std::size_t(SelectedCell_)]->setColour(current());
    frame_.setup().CustomColors[std::size_t(SelectedCell_)] = current();
}

void fPalette::CPVisible()
{
    for (fPresetWell* well : cp_) {
        well->closeList();
        well->setVisible(false);
    }
}

void fPalette::choosePreset(int index)
{
    CPVisible();
    cp_[std::size_t(index)]->setVisible(true);
}

void fPalette::keyPressEvent(QKeyEvent* event)
{
    QWidget* place = window(); // floating over its owner, or the owner's own
    if (event->key() == Qt::Key_Escape && place->parentWidget())
        place->parentWidget()->activateWindow();
    else
        QWidget::keyPressEvent(event);
}

} // namespace velara
