// fPalette: the floating colour box. A strip of hues, a plane of saturation and lightness, boxes for red, green and
// blue, cells, preset sets, and the program's first and second colour, which are stored in Setup.
#pragma once
#include "pixels/Bits.h"
#include <QWidget>
#include <array>

class QCheckBox;
class QComboBox;
class QFrame;

namespace velara {

class Frame;
class fColorButton;
class fColourCell;
class fHexBox;
class fPickSurface;
class fPresetWell;
class fRgbBox;

class fPalette final : public QWidget {
    Q_OBJECT
  public:
    fPalette(Frame& frame, QWidget* parent);

    /// Hides the preset wells and closes their lists.
    void CPVisible();
    /// Makes the current pick the first colour.
    void RefreshCurrent();
    /// Sets the current pick; if linked, it becomes the first colour.
    void setCurrent(Colour colour);
    Colour current() const;
    /// Shows the colours of Setup after a change. A linked pick follows the first.
    void showColors();

  protected:
    void keyPressEvent(QKeyEvent* event) override; // Esc returns the focus to the frame

  private:
    QWidget* makePlane();
    QWidget* makeNumbers();
    QWidget* makeWells();
    QWidget* makeCells();
    QWidget* makePresets();

    void pickHue(int row);
    void pickOnPlane(QPoint place);
    void drawPlane();
    enum class HueOf { Strip, Colour };
    void showCurrent(Colour colour, HueOf hue = HueOf::Colour);
    void take(Colour colour, HueOf hue);
    void numbersEdited();
    void choosePreset(int index);
    void selectCell(int cell);
    void storeInCell();
    void setFirst(Colour colour);
    void pickFromPicker();

    Frame& frame_;
    fPickSurface *iPal_ = nullptr, *iHue_ = nullptr;
    QWidget* iHuePos_ = nullptr;
    std::array<fRgbBox*, 3> txtRGB_{};
    fHexBox* txtHex_ = nullptr;
    fColourCell* lblCur_ = nullptr;
    fColorButton *lblColF_ = nullptr, *lblColB_ = nullptr;
    QCheckBox* chkLink_ = nullptr;
    std::vector<fColourCell*> lblCol_;
    QFrame* shpCur_ = nullptr;
    QComboBox* CPL_ = nullptr;
    std::vector<fPresetWell*> cp_;
    QImage PlaneBits_;
    int SelectedCell_ = 0;
};

} // namespace velara
