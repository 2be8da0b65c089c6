// fPresetWell: a colour well that opens a grid of preset colours below it when pressed.
#pragma once
#include "colour/presetColours.h"
#include <QPointer>
#include <QToolButton>

namespace velara {

class fColourCell;

class fPresetWell final : public QToolButton {
    Q_OBJECT
  public:
    /// A set without colours: those of the desktop's palette, by name.
    fPresetWell(const QString& name, const PresetSet& set, QWidget* parent);

    Colour colour() const { return colour_; }
    bool isOpen() const { return popup_; }
    void closeList();

  signals:
    void picked(Colour colour);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // arrow keys among the cells
    void changeEvent(QEvent* event) override;

  private:
    void openList();
    void take(Colour colour);
    void showColour();

    std::vector<Colour> colours_;
    int columns_;
    Colour colour_ = 0;
    QPointer<QWidget> popup_;
    std::vector<fColourCell*> cells_; // of the open list
};

} // namespace velara
