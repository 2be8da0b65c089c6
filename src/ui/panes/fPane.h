// fPane: a pane of tool settings, built from rows. It writes directly to the settings, which documents read at their
// next event. The same rows make the pane in the side bar and the one that pops up from the tool strip.
#pragma once
#include "tools/PaneRow.h"
#include <QFrame>
#include <functional>
#include <span>
#include <vector>

class QVBoxLayout;

namespace velara {

class Frame;

class fPane : public QFrame {
    Q_OBJECT
  public:
    /// Clamps values out of range.
    fPane(Frame& frame, const QString& name, std::span<const PaneRow> rows, QWidget* parent = nullptr);

    /// Updates the controls from the settings.
    void refresh();

  protected:
    void showEvent(QShowEvent* event) override;
    /// A setting was changed here, or all controls were updated.
    virtual void edited() {}
    Frame& frame() const { return frame_; }
    QVBoxLayout* column() const { return column_; }

  private:
    void add(const PaneRow& row);
    void addSlider(const PaneRow& row);
    void addChoice(const PaneRow& row);
    void addCheck(const PaneRow& row);
    void addWell(const PaneRow& row);
    int value(const PaneRow& row) const;
    void write(const PaneRow& row, int value);
    void showWhatApplies();

    Frame& frame_;
    QVBoxLayout* column_;
    std::span<const PaneRow> rows_;
    std::vector<std::function<void()>> shows_; // each updates one control from its setting
    bool refreshing_ = false;
};

} // namespace velara
