// fEffectsPage: the page of the textures box that runs an effect, or a picture file as a texture, on the active
// picture.
#pragma once
#include "document/road/DocumentHandle.h"
#include "pixels/Bits.h"
#include <QButtonGroup>
#include <QWidget>
#include <functional>

class QLabel;
class QListWidget;
class QPushButton;
class QScrollBar;
class QSlider;

namespace velara {

class Frame;
class cBitFilter;
class fPathLabel;

class fEffectsPage final : public QWidget {
    Q_OBJECT
  public:
    explicit fEffectsPage(Frame& frame, QWidget* parent = nullptr);

    /// 1 to 33.
    int effect() const { return group_.checkedId(); }
    /// Runs an effect at the slider's value, or the chosen file as a texture, on the active document.
    void ApplyTexture(int Index, bool FromFile);
    /// Lists the pictures of the textures folder.
    void CheckImagesFile();
    /// The textures folder.
    const QString& folder() const { return folder_; }
    void setFolder(const QString& folder);
    /// Updates V for the toolbar's height.
    void UppdateScroll();

  signals:
    void effectChosen(const QString& name);
    /// The user wants another textures folder.
    void folderWanted();

  protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // of the toolbar's container

  private:
    QWidget* makeToolbar();
    QWidget* makeAmount();
    QWidget* makeFiles();
    void drawThumbnails();
    void applyFile(const DocumentHandle& document);
    void apply(const DocumentHandle& document, const QString& what, const QString& words,
               const std::function<void(cBitFilter&)>& texture);
    void flow();

    Frame& frame_;
    QWidget *container_, *tb_;
    QScrollBar* V_;
    QButtonGroup group_;
    QSlider* br_;
    fPathLabel* lblFolder_;
    QListWidget* ListFile_;
    QPushButton *CmdApply_, *CmdFileApply_;
    QString folder_;
    bool drawn_ = false;
};

} // namespace velara
