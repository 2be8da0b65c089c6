// fFilter: the one dialog for all filters with settings. The filter's row determines its contents; a small copy of the
// picture previews the filter, and the buttons run it on the whole picture.
#pragma once
#include "commands/DetailRun.h"
#include "commands/FilterPreview.h"
#include "document/road/Change.h"
#include "document/road/DocumentHandle.h"
#include <QDialog>
#include <QTimer>
#include <array>
#include <memory>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QSlider;

namespace velara {

class Frame;
class fColorButton;
class fPicture;
class fPicturePage;

class fFilter final : public QDialog {
    Q_OBJECT
  public:
    /// document must have a picture.
    fFilter(Frame& frame, const FilterRow& row, const DocumentHandle& document, QWidget* parent = nullptr);

    /// The settings of the controls.
    FilterArgs arguments() const;
    /// What the undo step is called, for the user.
    void setStepName(const QString& name) { stepName_ = name; }

    /// OK and Real Time: runs the filter on the document and closes; stays open, after a message, if that fails.
    void accept() override;
    /// Exit, Esc and the close button: ends a running filter, otherwise closes with the picture unchanged.
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // a press on lblOption counts as one on chkOption
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* makePreviews();
    void addDetail(QGridLayout* grid);
    QWidget* makeControls();
    void addSliders(QBoxLayout* layout);
    void addColours(QBoxLayout* layout);
    void addOption(QBoxLayout* layout);
    QWidget* makeBanks();
    QWidget* makeGlass();
    QWidget* makeCurtain();
    QWidget* makeButtons();

    void changed();
    void fillModes();
    void runPreview();
    void runDetail();
    double previewScale() const; // preview pixels per pixel of the picture
    void showDetail(QPoint previewPixel);
    void frameDetail();
    void picked(QPoint pixel);
    void activateWell(int well);
    void showRunning(bool running);
    void ended(const Outcome& outcome);

    static constexpr QSize kPreviewBox{300, 260}; // the box of the small copies
    static constexpr QSize kDetailBox{280, 262};  // of the 1:1 view with its scroll bars

    Frame& frame_;
    const FilterRow& row_;
    DocumentHandle document_;
    QString stepName_;
    const Bits picture_; // the document may be closed before the dialog
    FilterPreview preview_;
    RunPacer pacer_;
    QTimer previewTimer_, tmrSelect_;

    fPicture *iSrc_ = nullptr, *iDst_ = nullptr;
    fPicturePage* detail_ = nullptr; // null when the small copies are the picture itself
    QWidget* controls_ = nullptr;
    std::array<QSlider*, 3> sbFilter_{};
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
    bool running_ = false;
    int change_ = 0; // the running one, for Workspace::cancel
    std::unique_ptr<DetailRun> detailRun_;
};

} // namespace velara
