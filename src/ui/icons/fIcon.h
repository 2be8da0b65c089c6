// fIcon: the icon extractor. Its upper half makes one icon of the picture that it is opened on, the lower one a series
// of cut-outs of captures, which are kept as long as the window exists, open or not.
#pragma once
#include "ui/icons/fIconSeries.h"
#include <QDialog>

namespace velara {

class fIconPicture;

class fIcon final : public QDialog {
    Q_OBJECT
  public:
    fIcon(Frame& frame, QWidget* parent);

    /// With the active document's picture, or without one.
    void load();
    fIconSeries& series() { return *series_; }

  private:
    Frame& frame_;
    fIconPicture* picture_;
    fIconSeries* series_;
};

} // namespace velara
