// fTextPage: the page of the textures box that lays out a text for the mouse tool "Text".
#pragma once
#include "text/mText.h"
#include <QWidget>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QToolButton;

namespace velara {

class Frame;
class fPicture;

class fTextPage final : public QWidget {
    Q_OBJECT
  public:
    explicit fTextPage(Frame& frame, QWidget* parent = nullptr);

    /// Lays the text out in the work picture and passes it to the mouse tool. Reports when no size fits: once, until
    /// one fits again.
    void UpdateText();
    /// Puts the caret into the text.
    void beginText();

  signals:
    /// The user wants to place the text with the mouse.
    void placing();

  protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // the work picture's size

  private:
    void makeControls();
    void fill();
    void takeStyle();
    void takeSize(const QString& typed);
    bool layOut();

    Frame& frame_;
    QPlainTextEdit* txtText_;
    QComboBox *cboFont_, *cboSize_, *cboAlign_, *cboShadow_;
    QToolButton *CmdB_, *CmdI_, *CmdU_;
    QLabel *lblCustom_, *lblRefused_;
    fPicture* picCustom_;
    TextStyle style_;
    bool filled_ = false, filling_ = false, told_ = false;
};

} // namespace velara
