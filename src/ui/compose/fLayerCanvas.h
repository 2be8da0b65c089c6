// fLayerCanvas: the canvas of the layers dialog. Shows the picture; every layer is a child widget lblShape_i in the
// picture's coordinates with its surface MskText_i, and eight grips surround the selected one. A press beside the
// layers stores the position of the next.
//
// Keys: typing goes into the selected layer, or begins one at the stored position. While a text is edited the arrows
// move the caret and Delete removes the character after it; otherwise arrows move the layer by a pixel (ten with Shift)
// and Delete removes it. Esc ends editing, then the selection. Tab does nothing while a text is edited.
#pragma once
#include "text/Layers.h"
#include "ui/widgets/fPicture.h"
#include <QBasicTimer>
#include <array>
#include <map>

namespace velara {

class fLayerCanvas final : public fPicture {
    Q_OBJECT
  public:
    explicit fLayerCanvas(Layers& layers);

    /// 0: none.
    int selected() const { return selected_; }
    void select(int index);
    bool editing() const { return editing_; }
    void edit(bool on);
    /// Adds a layer at the stored position, in the style for the next one, selected and in editing.
    int addLayer();
    void removeSelected();
    /// Updates outline, surface and grips from the model; index 0: all layers.
    void refresh(int index);
    /// For the next layer.
    TextStyle nextStyle;
    Colour nextColour = 0;
    /// Shows the eight grips if a layer is selected and visible.
    void ShowG();
    /// Moves a place's sides in the direction of one of the eight grips; by is in pixels.
    static Rect resized(const Rect& place, int grip, QPoint by);

  signals:
    void added(int index);
    void removed(int index);
    void selectionChanged(int index);
    void layerChanged(int index); // its surface

  protected:
    void paintOver(QPainter& painter, const QRect& part) override;
    bool eventFilter(QObject* watched, QEvent* event) override; // of outlines and grips
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void timerEvent(QTimerEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Drag {
        Rect place; // at the press
        QPoint from;
        int grip = -1; // -1: the layer moves
    };
    void makeOutline(int index);
    void place(int index);
    void placeGrips();
    void placeCursor();
    void insert(const QString& text);
    void setText(const QString& text, qsizetype caret);
    void dropPreedit();
    void erase(bool back);
    void moveCaret(int key);
    bool editKey(QKeyEvent& event);
    bool layerKey(QKeyEvent& event);
    void press(QWidget* widget, QMouseEvent& event);
    void drag(QMouseEvent& event);

    Layers& layers_;
    std::map<int, QWidget*> outlines_; // lblShape_i
    std::array<QWidget*, 8> grips_{};  // lblGrip_0 is the upper left corner, then clockwise
    QWidget* cursor_;                  // the caret, or the stored place
    QPoint stored_{8, 8};
    int selected_ = 0;
    bool editing_ = false;
    qsizetype caret_ = 0;
    QString preedit_;
    std::optional<Drag> drag_;
    QBasicTimer blink_;
};

} // namespace velara
