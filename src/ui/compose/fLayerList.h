// fLayerList: the list of the layers dialog, picL in the container picLC with the bar VV: a check box BT_i and a
// thumbnail pT_i per layer.
#pragma once
#include "text/Layers.h"
#include <QWidget>
#include <map>

class QAbstractButton;
class QCheckBox;
class QScrollBar;
class QVBoxLayout;

namespace velara {

class fLayerList final : public QWidget {
    Q_OBJECT
  public:
    explicit fLayerList(const Layers& layers, QWidget* parent = nullptr);

    void add(int index);
    void remove(int index);
    void select(int index); // 0: none
    void refresh(int index);
    /// Sets the bar's range to the list's height.
    void UpdateLayerScroll();

  signals:
    void chosen(int index);
    void shown(int index, bool on);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // of the container

  private:
    struct Row {
        QWidget* box;
        QCheckBox* BT;
        QAbstractButton* pT;
    };
    const Layers& layers_;
    QWidget *picLC_, *picL_;
    QScrollBar* VV_;
    QVBoxLayout* column_;
    std::map<int, Row> rows_;
};

} // namespace velara
