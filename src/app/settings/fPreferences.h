// fPreferences: the options dialog. Works on a private copy of the whole record, which OK writes back.
#pragma once
#include "seams/Setup.h"
#include <QDialog>

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

    Platform& platform_;
    Setup& setup_;
    Setup copy_;
    QLineEdit* path_;
    QCheckBox *convert_, *screenProfile_; // kept in the user's settings, not in the record,
    QComboBox* language_;                 // as is this one
};

} // namespace velara
