// fIconSeries: the lower half of fIcon: cut-outs of captures, and the folder in which the checked ones are saved as a
// series of icons.
#pragma once
#include "pixels/Bits.h"
#include <QGroupBox>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace velara {

class Frame;
class MaskChoice;

class fIconSeries final : public QGroupBox {
    Q_OBJECT
  public:
    enum Source { Desktop, Foreground, Background }; // of cboIcon

    explicit fIconSeries(Frame& frame);

    void add(const Bits& cutOut) { ilCustom_.push_back(cutOut); }
    int count() const { return int(ilCustom_.size()); }
    /// Rebuilds the list, everything checked.
    void ListIcons();

  signals:
    void captureAsked(Source source);

  private:
    QLayout* makeSource();
    QLayout* makeList();
    QLayout* makeTarget();
    QImage iconAt(int index) const;
    void showIcons();
    void checkAll(bool checked);
    void browse();
    void save();

    Frame& frame_;
    std::vector<Bits> ilCustom_;
    QComboBox* cboIcon_;
    QTreeWidget* lv_;
    QCheckBox* chkAll_;
    MaskChoice* mask_;
    QLineEdit* txtFolder_;
};

} // namespace velara
