// fTexturize: gives the picture the relief of a texture file, or of itself. Shows a part of the result at 1:1. Changes
// nothing itself; after OK the frame does it.
#pragma once
#include "document/texturing.h"
#include <QDialog>
#include <QPointer>
#include <QTimer>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QSlider;

namespace velara {

class Platform;
class fPicture;
struct LoadedPicture;

class fTexturize final : public QDialog {
    Q_OBJECT
  public:
    fTexturize(Platform& platform, const Bits& picture, const Region& selection, QWidget* parent = nullptr);

    /// The settings after OK.
    const Texturing& texturing() const { return texturing_; }
    /// What velara-batch would take for it.
    QString words() const;

  private:
    QWidget* makeList();
    QWidget* makePreview();
    QWidget* makeControls();
    void fillList();
    void nextThumbnail();
    void showThumbnail(QListWidgetItem& item, const LoadedPicture& loaded);
    void choose();
    void changed();
    void showPreview();
    bool ready() const;

    Platform& platform_;
    const Bits picture_;
    const Region selection_;
    Texturing texturing_;
    Bits texture_;             // of the chosen file
    QPointer<QObject> choice_; // the file that is read
    QString unreadable_;
    int thumbnails_ = 0; // number of list entries that have theirs
    QTimer previewTimer_;

    QListWidget* flTextures_ = nullptr;
    QLineEdit* txtTexture_ = nullptr;
    fPicture *iTexture_ = nullptr, *iBack_ = nullptr;
    QSlider* sbWeight_ = nullptr;
    QLabel* state_ = nullptr;
    QCheckBox* chkUseImage_ = nullptr;
    QComboBox* cbDepth_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
};

} // namespace velara
