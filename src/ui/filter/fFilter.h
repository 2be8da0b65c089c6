// fFilter: the one dialog behind all filters that have settings. The row of the filter says what it shows; a small copy
// of the picture shows what the filter does, and the buttons run it on the whole picture.
#pragma once
#include "commands/FilterPreview.h"
#include <QDialog>
#include <QTimer>
#include <array>
#include <functional>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QSlider;

namespace velara {

class Frame;
class fColorButton;
class fPicture;

class fFilter final : public QDialog {
    Q_OBJECT
  public:
    /// take puts a picture of full size into the document and into the engine; false: they are gone. The frame's engine
    /// holds the document's picture and its working region.
    using Take = std::function<bool(const Bits&)>;
    fFilter(Frame& frame, const FilterRow& row, Take take, QWidget* parent = nullptr);

    /// What the controls stand on.
    FilterArgs arguments() const;

    /// OK: runs the filter on the whole picture, unless the document has the result already, and closes.
    void accept() override;
    /// Exit, Esc and the window's cross: ends a running filter, else closes with the picture as it was.
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // a press on lblOption is one on chkOption

  private:
    QWidget* makePreviews();
    QWidget* makeControls();
    void addSliders(QBoxLayout* layout);
    void addColours(QBoxLayout* layout);
    void addOption(QBoxLayout* layout);
    QWidget* makeBanks();
    QWidget* makeGlass();
    QWidget* makeCurtain();
    QWidget* makeButtons();

    void changed();
    void showValues();
    void fillModes();
    void runPreview();
    void picked(QPoint pixel);
    void activateWell(int well);
    void realTime();
    bool runFull();
    void showRunning(bool running);

    static constexpr QSize kPreviewBox{300, 260}; // that the small copies fit

    Frame& frame_;
    const FilterRow& row_;
    Take take_;
    FilterPreview preview_;
    RunPacer pacer_;
    QTimer previewTimer_, tmrSelect_;

    fPicture *iSrc_ = nullptr, *iDst_ = nullptr;
    QWidget* controls_ = nullptr;
    std::array<QSlider*, 3> sbFilter_{};
    std::array<QLabel*, 3> lblFilterV_{};
    std::array<fColorButton*, 2> Col_{};
    QCheckBox *chkOption_ = nullptr, *chkPreview_ = nullptr;
    std::array<QButtonGroup*, 3> channels_{};
    std::array<QCheckBox*, 3> chkInvt_{}, chkKill_{};
    QButtonGroup *oo_ = nullptr, *Curt_ = nullptr;
    QComboBox* cbo_ = nullptr;
    QLabel* state_ = nullptr;
    QWidget *cmdPreview_ = nullptr, *cmdOK_ = nullptr;

    QPointF centre_{0.5, 0.5};
    int activeWell_ = 0;
    bool applied_ = false, running_ = false, cancelled_ = false;
};

} // namespace velara
