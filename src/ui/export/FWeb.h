// FWeb: the dialog "Customized Save Options ": what the picture looks like in a file of a preset, beside the original,
// and how large that file is. Each change writes the file, reads it back and shows it; one file at a time: a change
// while one is written ends that one and begins anew.
#pragma once
#include "fileio/web/webFile.h"
#include "ui/widgets/fPicturePage.h"
#include <QDialog>
#include <QTimer>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTabWidget;

namespace velara {

class Platform;

class FWeb final : public QDialog {
    Q_OBJECT
  public:
    /// name is what the document is called; path its own file, if there is one.
    FWeb(Platform& platform, const Bits& picture, const QString& name, const QString& path, QWidget* parent = nullptr);

    const WebSettings& settings() const { return settings_; }
    bool isRunning() const { return running_ || timer_.isActive(); }
    /// Exit, Esc and the window's cross: ends what is under way.
    void reject() override;

  private:
    QWidget* makeChoices();
    QWidget* makeGifFrame();
    QWidget* makeJpegFrame();
    QWidget* makePages();
    QWidget* makePage(fPicturePage* page, QList<QLabel*> labels);
    QLabel* label(const char* name, const QString& accessibleName);

    void presetChosen(int index);
    void mapChosen(int entry);
    void qualityChosen(int quality);
    void customQuality();
    void fitSize();
    void saveAs();
    void pageChosen(int page);

    void changed();
    void run();
    /// Writes to a temporary file, or under the chosen name. False when there is nothing new to show, or this is gone.
    bool write(const QString& finalName = {});
    void showFile(const WebFile& file, const Bits& shown);
    static void showWaiting(bool waiting);
    ReduceProgress yielding();
    QString temporaryName() const;

    Platform& platform_;
    Bits picture_, optimizedBits_;
    QString path_;
    WebSettings settings_;
    BestPalettes palettes_;
    QTimer timer_;
    bool running_ = false, again_ = false, closing_ = false;
    std::uint32_t lastYield_ = 0;

    fPicturePage *isrc_, *oSrc_, *original_, *optimized_;
    QTabWidget* sT_ = nullptr;
    QWidget *choices_ = nullptr, *fgif_ = nullptr, *Fjpg_ = nullptr;
    QGroupBox* FrmAPI_ = nullptr;
    QComboBox *CboFiles_ = nullptr, *cboMap_ = nullptr, *cboDither_ = nullptr, *cboColorMode_ = nullptr,
              *cboJpg_ = nullptr;
    QCheckBox *ChkInterlaced_ = nullptr, *chkFlipH_ = nullptr, *chkFlipV_ = nullptr, *chkInvert_ = nullptr;
    QLineEdit* TxtJPG_ = nullptr;
    QSpinBox* fit_ = nullptr;
    QPushButton* CmdSave_ = nullptr;
    QLabel *FileType2_ = nullptr, *FileSize2_ = nullptr, *Depth2_ = nullptr, *FileType4_ = nullptr,
           *FileSize4_ = nullptr, *Depth4_ = nullptr, *exact_ = nullptr;
};

} // namespace velara
