// fLayerCanvas: the canvas of the layers dialog. Shows the picture; over it every layer has a surface MskText_i and an
// outline lblShape_i that takes the mouse, and eight grips surround the selected one. A press beside the layers stores
// the position of the next.
//
// Mouse: a drag moves the layer, or marks letters while its text is edited, except at its edge. A click on the selected
// layer puts the caret there; a double click marks a word. Keys: typing goes into the selected layer, or begins one at
// the stored position. While a text is edited keys move the caret and mark as in any editor; otherwise arrows move the
// layer by a pixel (ten with Shift) and Delete removes it. Esc ends editing, then the selection. Tab does nothing while
// a text is edited. Everything can be undone, step by step.
#pragma once
#include "text/LayerHistory.h"
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
    /// Makes the widgets of layers that were there before this.
    void showLayers();
    /// To be called before a change of a layer from outside of the canvas: it becomes a step of undo.
    void remember();
    bool canStep(bool back) const { return back ? history_.canUndo() : history_.canRedo(); }
    /// Undoes or redoes one step.
    void step(bool back);
    /// What is marked in the edited text, and what an input method is composing; rectangles in the picture.
    std::vector<Rect> marked() const;
    std::vector<Rect> composed() const;
    /// Updates outline, surface and grips from the model; index 0: all layers.
    void refresh(int index);
    /// For the next layer.
    TextStyle nextStyle;
    Colour nextColour = 0;
    /// The user has chosen nextColour: it is taken even where it can hardly be seen.
    bool keepColour = false;
    /// Shows the eight grips if a layer is selected and visible.
    void ShowG();
    /// Moves a place's sides in the direction of one of the eight grips; by is in pixels.
    static Rect resized(const Rect& place, int grip, QPoint by);

  signals:
    void added(int index);
    void removed(int index);
    void selectionChanged(int index);
    void layerChanged(int index); // its surface
    void stateChanged();          // selection, editing, or what can be undone
    void caretMoved(Rect place);  // in the picture
    void zoomWanted(int by);      // 1 or -1; 0: the whole picture

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
    enum class Holds { Layer, Grip, Letters };
    struct Drag {
        Holds what = Holds::Layer;
        Rect place; // at the press
        QPoint from;
        int grip = 0;
        bool chosen = false, moved = false; // the layer was selected before; the pointer has moved
    };
    void makeWidgets(int index);
    void dropWidgets(int index);
    void place(int index);
    void placeGrips();
    void placeCursor();
    void showMarks();

    // Text
    LayerSpot spot() const { return {selected_, caret_, anchor_}; }
    const QString& text() const { return layers_.layer(selected_).text; }
    void remember(const QString& kind);
    void setText(const QString& text, qsizetype caret);
    void setCaret(qsizetype to, bool marks);
    void insert(const QString& text);
    void removeMarked();
    void erase(bool back, bool word);
    qsizetype caretFor(const QKeyEvent& event) const;
    qsizetype beyond(bool right) const;
    qsizetype lineBeside(bool up) const;
    void copyMarked();
    void dropPreedit();
    bool clipboardKey(QKeyEvent& event);
    bool stepKey(QKeyEvent& event);
    bool zoomKey(QKeyEvent& event);
    bool editKey(QKeyEvent& event);
    bool layerKey(QKeyEvent& event);

    // Mouse
    bool atEdge(const QWidget& outline, QPoint at) const;
    qsizetype characterAt(QPoint global) const;
    void press(QWidget* widget, QMouseEvent& event);
    void drag(QMouseEvent& event);
    void release(QMouseEvent& event);
    void doubleClick(QMouseEvent& event);
    Rect keptInSight(Rect place) const;

    Layers& layers_;
    struct Widgets {
        QWidget *surface, *outline; // MskText_i, lblShape_i
    };
    std::map<int, Widgets> widgets_;
    std::array<QWidget*, 8> grips_{}; // lblGrip_0 is the upper left corner, then clockwise
    QWidget* cursor_;                 // the caret, or the stored place
    QPoint stored_{8, 8};
    int selected_ = 0;
    bool editing_ = false;
    qsizetype caret_ = 0, anchor_ = 0; // what lies between them is marked
    QString preedit_;                  // in the text, after the caret, as long as it is composed
    int preeditCaret_ = 0;
    LayerHistory history_;
    std::optional<Drag> drag_;
    QBasicTimer blink_;
};

} // namespace velara
