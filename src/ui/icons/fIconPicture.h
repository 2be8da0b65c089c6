// fIconPicture: the upper half of fIcon, which makes one icon of the picture of a document.
#pragma once
#include "pixels/Bits.h"
#include <QGroupBox>
#include <QImage>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace velara {

class Frame;
class MaskChoice;
class fPicture;

class fIconPicture final : public QGroupBox {
    Q_OBJECT
  public:
    explicit fIconPicture(Frame& frame);

    /// Starts with a picture at 32 by 32; a null one disables everything.
    void setPicture(const Bits& picture);

  private:
    QWidget* makeChoices();
    QWidget* makePreview();
    void chooseSide(int side); // or one of the choices that have none
    void pickMask(QPoint pixel);
    void makeIcon();
    void save();

    Frame& frame_;
    Bits picture_;
    QImage icon_;           // null while the numbers are invalid
    bool together_ = false; // all usual sizes in one file
    QList<QRadioButton*> sizes_;
    QLineEdit *Iw_, *Ih_;
    MaskChoice* mask_;
    fPicture* Ipic_;
    QLabel* state_;
    QPushButton* CmdSave_;
};

} // namespace velara
