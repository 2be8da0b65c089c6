// fWebTable: what every preset of "Save for Web" makes of a picture: the size of its file and its loss. The files are
// written one after the other in the background, to a temporary file; rows come as they are done.
#pragma once
#include "fileio/web/webFile.h"
#include "seams/Machine.h"
#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;

namespace velara {

class Platform;

class fWebTable final : public QDialog {
    Q_OBJECT
  public:
    /// camera: what each file gets beside its pixels. temporaryName: of files that may be overwritten, without an
    /// extension.
    fWebTable(Platform& platform, const Bits& picture, const CameraData& camera, const QString& temporaryName,
              QWidget* parent);

    /// The preset that was chosen; -1: none.
    int preset() const { return preset_; }

  private:
    struct Row;
    void next();
    void add(const Row& row);
    void choose();

    Platform& platform_;
    Bits picture_;
    CameraData camera_;
    QString temporaryName_;
    int preset_ = -1, done_ = 0;
    std::shared_ptr<BestPalettes> palettes_ = std::make_shared<BestPalettes>();
    Machine::Request request_;
    QTableWidget* table_ = nullptr;
    QLabel* progress_ = nullptr;
    QPushButton* ok_ = nullptr;
};

} // namespace velara
