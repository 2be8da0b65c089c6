// FWeb: the dialog "Customized Save Options ": what the picture looks like in a file of a preset, beside the original,
// and how large that file is. Each change writes the file and reads it back, in the background, and shows it; one file
// at a time: a change, "Save As" or "Fit" while one is written gives that one up. What is told of an older file is grey
// until the new one stands.
#pragma once
#include "fileio/web/webFile.h"
#include "seams/Machine.h"
#include "ui/widgets/fPicturePage.h"
#include <QDialog>
#include <QTimer>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTabWidget;

namespace velara {

class Platform;

class FWeb final : public QDialog {
    Q_OBJECT
  public:
    /// name is the document's; path its own file, if there is one; camera what that carried.
    FWeb(Platform& platform, const Bits& picture, const CameraData& camera, const QString& name, const QString& path,
         QWidget* parent = nullptr);

    ~FWeb() override;

    const WebSettings& settings() const { return settings_; }
    bool isRunning() const { return request_ || timer_.isActive(); }
    /// Exit, Esc and the window's cross: gives up what is under way.
    void reject() override;

  private:
    QWidget* makeChoices();
    QWidget* makeGifFrame();
    QWidget* makeJpegFrame();
    QWidget* makeCameraFrame();
    QWidget* makePages();
    QWidget* makePage(fPicturePage* page, QList<QLabel*> labels);
    QLabel* label(const char* name, const QString& accessibleName);

    void presetChosen(int index);
    void chooseFromTable();
    void mapChosen(int entry);
    void qualityChosen(int quality);
    void customQuality();
    void pageChosen(int page);
    void takeCamera();
    void cameraChosen();

    enum class Work { Preview, Fit, Save };
    struct Written;
    void remember();
    void recall();
    void changed();
    void ask(Work work);
    void next();
    void end();
    void begin(Work work, std::function<void(const GoOn&)> does, std::function<void()> done);
    void fitSize();
    void fitted(const std::optional<WebSettings>& settings);
    void adopt(const WebSettings& settings);
    QWidget* makeFitFrame();
    void saveAs();
    /// Writes to a temporary file, or under the chosen name, and shows it.
    void write(const QString& finalName = {});
    void written(const Written& written);
    void showFile(const Written& written);
    void showWaiting(bool waiting);
    void setStale(bool stale);
    void say(const QString& text);
    QString temporaryName() const;

    Platform& platform_;
    Bits picture_, optimizedBits_;
    CameraData camera_;
    QString name_, path_;
    WebSettings settings_;
    std::shared_ptr<BestPalettes> palettes_ = std::make_shared<BestPalettes>(); // of the work in the background
    QTimer timer_;
    Machine::Request request_; // what is under way
    Work now_ = Work::Preview, next_ = Work::Preview;
    bool again_ = false; // a preview is wanted
    QString note_;       // said in place of the exact size

    fPicturePage *isrc_, *oSrc_, *original_, *optimized_;
    QTabWidget* sT_ = nullptr;
    QWidget *choices_ = nullptr, *fgif_ = nullptr, *Fjpg_ = nullptr, *FrmFit_ = nullptr;
    QGroupBox* FrmAPI_ = nullptr;
    QComboBox *CboFiles_ = nullptr, *cboMap_ = nullptr, *cboDither_ = nullptr, *cboColorMode_ = nullptr,
              *cboJpg_ = nullptr;
    QCheckBox *ChkInterlaced_ = nullptr, *chkFlipH_ = nullptr, *chkFlipV_ = nullptr, *chkInvert_ = nullptr,
              *chkKeepCamera_ = nullptr, *chkWithoutPlace_ = nullptr;
    QLineEdit* TxtJPG_ = nullptr;
    QSpinBox* fit_ = nullptr;
    QPushButton* CmdSave_ = nullptr;
    QLabel *FileType2_ = nullptr, *FileSize2_ = nullptr, *Depth2_ = nullptr, *FileType4_ = nullptr,
           *FileSize4_ = nullptr, *Depth4_ = nullptr, *exact_ = nullptr;
    QProgressBar* busy_ = nullptr;
};

} // namespace velara
