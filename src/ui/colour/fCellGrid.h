// fCellGrid: the cells of the picker's second view, one of them selected.
#pragma once
#include "colour/colourCells.h"
#include "ui/widgets/inputs/Spoken.h"
#include <QWidget>

namespace velara {

class fCellGrid final : public QWidget, public Spoken {
    Q_OBJECT
  public:
    explicit fCellGrid(QWidget* parent);

    /// No colour: the cell stays empty, in the window's own colour.
    void setColour(int cell, std::optional<Colour> colour);
    std::optional<Colour> colour(int cell) const { return colours_[static_cast<std::size_t>(cell)]; }
    int selected() const { return selected_; }
    void select(int cell);
    QAccessible::Role spokenRole() const override { return QAccessible::ColorChooser; }
    QString spokenValue() const override { return accessibleDescription(); }
    std::optional<Range> spokenRange() const override { return Range{selected_, 1, kCells}; }
    void setSpoken(int value) override { moveTo(value); }

  signals:
    void selectedCell(int cell); // clicked, or reached by an arrow key
    void chosen(int cell);       // double clicked, or Enter
    void hovered(int cell);
    void left();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void DrawSafePicker(QPainter& painter, int Index, bool Selected);
    void moveTo(int cell);

    std::array<std::optional<Colour>, kCells + 1> colours_;
    int selected_ = 1;
};

} // namespace velara
