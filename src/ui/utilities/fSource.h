// fSource: chooses a scanner. Searches for scanners, which may take long and can be cancelled at any time.
#pragma once
#include "seams/Scanner.h"
#include <QDialog>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace velara {

class Dialogs;
class Machine;
class Platform;

class fSource final : public QDialog {
    Q_OBJECT
  public:
    /// present: the device chosen before; it is preselected if it still exists.
    fSource(Platform& platform, const QString& present, QWidget* parent);
    ~fSource() override;

  signals:
    void chosen(const ScanSource& source);

  private:
    void look();
    void found(const QList<ScanSource>& sources);
    void choose();

    Platform& platform_;
    QString present_;
    QList<ScanSource> sources_;
    QLabel* state_;
    QListWidget* lstSources_;
    QProgressBar* busy_;
    QPushButton *cmdSelect_, *cmdRefresh_;
    bool looking_ = false;
};

/// The last source; an empty device: none yet.
ScanSource rememberedSource(Machine& machine);
void rememberSource(Machine& machine, const ScanSource& source);

/// The message when a scanner can't do what was requested.
void showScannerFailure(Dialogs& dialogs);

} // namespace velara
