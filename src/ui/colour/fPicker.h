// fPicker: the large colour picker. One view edits a colour on a field and a strip and in boxes for hue, saturation,
// brightness and red, green, blue; the other is a grid of cells: the user's own colours, or the web-safe ones.
#pragma once
#include "colour/colourCells.h"
#include "colour/planes.h"
#include <QDialog>
#include <functional>

class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace velara {

class Platform;
class fCellGrid;
class fHexBox;
class fColourCell;
class fPickSurface;

class fPicker final : public QDialog {
    Q_OBJECT
  public:
    fPicker(Platform& platform, QWidget* parent = nullptr);

    /// Sets the initial colour.
    void LoadColorDialog(Colour color);
    Colour colour() const { return picked_.colour(); }

    /// The current view.
    static constexpr auto kRecentSection = "Colors", kRecentKey = "Recent"; // of the user's settings
    enum View { Picker = 0, UserList = 1, SafePalette = 4 };
    View view() const { return view_; }

    /// Remembers the colour among the recent ones.
    void accept() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // of the boxes: Enter, and loss of focus

  private:
    struct Box {
        QLineEdit* edit;
        int most;
        std::function<int()> shown;
        std::function<void(int)> take;
    };
    void makeControls();
    QWidget* makeField();
    QWidget* makeCells();
    QWidget* makeFrame2();
    QWidget* makePresetPanel();
    QWidget* makeWells();
    QWidget* makeButtons();
    QWidget* makeRecent();
    QLineEdit* addBox(const char* name, const QString& accessibleName, int most, std::function<int()> shown,
                      std::function<void(int)> take);

    void DrawPicker();
    void showModel();
    bool leaveBox(std::size_t box);
    void setHsb(const Hsb& hsb);
    void setColour(Colour colour);
    void showUnder(Colour colour);
    void togglePreset();
    void showPreset(int entry);
    void selectCell(int cell);
    void addToList();
    void takeAndClose();
    int modelPart(int row) const;
    void takeModelPart(int row, int value);

    Platform& platform_;
    PickedColour picked_;
    Strip strip_ = Strip::Hue;
    View view_ = Picker;
    UserColours UserColors_{};
    std::vector<Box> boxes_;
    bool refusing_ = false;

    fPickSurface *field_ = nullptr, *stripBar_ = nullptr;
    fHexBox* hex_ = nullptr;
    std::vector<fColourCell*> recent_; // the last chosen first
    QStackedWidget *views_ = nullptr, *sides_ = nullptr;
    fCellGrid* cells_ = nullptr;
    QButtonGroup* strips_ = nullptr;
    QComboBox *model_ = nullptr, *cmbPreset_ = nullptr;
    std::array<QLabel*, 3> letters_{}, units_{};
    std::array<QLineEdit*, 3> parts_{}; // Text1 to Text3
    fColourCell *lblSelColor_ = nullptr, *Label2_ = nullptr, *lblADDColor_ = nullptr;
    QLabel *status_ = nullptr, *addHint_ = nullptr;
    QPushButton *cmdADD_ = nullptr, *Command2_ = nullptr, *Command3_ = nullptr;
};

} // namespace velara
