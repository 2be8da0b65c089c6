// fColorDepth: the dialog "Image Color Depth": the picture before and after colour reduction, at a selectable size. It
// passes the reduced picture to the document, or to the dialog that saves it.
#pragma once
#include "ui/widgets/fPicturePage.h"
#include <QDialog>
#include <functional>

class QComboBox;
class QLabel;
class QMenu;

namespace velara {

class fColorDepth final : public QDialog {
    Q_OBJECT
  public:
    /// What follows after this has closed: ok reduces the document to the depth, save shows the reduced picture of full
    /// size to the dialog that saves.
    struct Actions {
        std::function<void(int depth)> ok;
        std::function<void(const Bits&)> save;
    };
    fColorDepth(const Bits& picture, Actions actions, QWidget* parent = nullptr);

    /// Shows both pictures at 1 / Level of their size, reduced again.
    void zoomlevel(int Level);

  private:
    QWidget* makePages();
    QWidget* makeControls();
    void showDepth();
    int depth() const;
    void finish();
    void save();

    Bits picture_;
    Actions actions_;
    fPicturePage *original_, *optimized_;
    QComboBox* cmbDepth_ = nullptr;
    QMenu* zoom_ = nullptr;
    QLabel* Lbloptimized_ = nullptr;
};

} // namespace velara
