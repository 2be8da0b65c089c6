// FStamp: the stamps pane: the files of the folder "Stamps", the chosen one with its preview, and the settings for
// placing it. The list follows the folder.
#pragma once
#include "ui/panes/fPane.h"
#include <QFileSystemWatcher>

class QComboBox;
class QLabel;

namespace velara {

class FStamp final : public fPane {
    Q_OBJECT
  public:
    FStamp(Frame& frame, const QString& name, std::span<const PaneRow> rows);
    bool folderFound() const { return found_; }

  private:
    void readFolder();
    void choose(const QString& file);
    void showStamp();

    QComboBox* cbStamps_;
    QLabel *iStamp_, *missing_;
    QFileSystemWatcher watcher_;
    bool found_ = false;
};

} // namespace velara
