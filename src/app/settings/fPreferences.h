// fPreferences: the options dialog. Works on a private copy of the whole record, which OK writes back.
#pragma once
#include "seams/Setup.h"
#include <QDialog>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLayout;
class QLineEdit;

namespace velara {

class Platform;

class fPreferences final : public QDialog {
    Q_OBJECT
  public:
    fPreferences(Platform& platform, Setup& setup, QWidget* parent);

    void accept() override;

  private:
    QLayout* makeLanguage();
    void browse();
    void addLooks(QBoxLayout& column);

    Platform& platform_;
    Setup& setup_;
    Setup copy_;
    QLineEdit* path_;
    // Kept in the user's settings, not in the record
    QCheckBox *convert_, *screenProfile_;
    QComboBox *language_, *look_;
};

} // namespace velara
