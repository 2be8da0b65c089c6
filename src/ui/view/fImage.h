// fImage: a view of an open picture, of which there may be several. The state lies in its Document; this is what is
// seen of it: the display iDst, the scroll bars hSB and vSB with the corner shp between them, zoom, hand scrolling, the
// marching outline, and the question before the last view closes.
//
// Cut by topic: fImage.cpp (picture, names, activation, closing), fImage_view.cpp (layout, zoom, scrolling, outline),
// fImage_mouse.cpp and fImage_keys.cpp (what mouse and keys do).
#pragma once
#include "document/Workspace.h"
#include "tools/Tools.h"
#include "ui/view/fBands.h"
#include "ui/widgets/viewLayout.h"
#include <QScrollBar>
#include <QTimer>
#include <QWidget>
#include <memory>

namespace velara {

class Frame;
class fDisplay;

class fImage final : public QWidget, public ToolSurface {
    Q_OBJECT
  public:
    enum class Question { Stands, Answered, Done };

    /// Shows an open document of the frame's workspace. The frame must outlive it.
    fImage(Frame& frame, const DocumentHandle& document, QWidget* parent = nullptr);
    ~fImage() override;

    Document& document() { return document_; }
    const Document& document() const { return document_; }

    // --- Picture
    /// "640x480", for the status bar.
    QString SizeText() const;
    void BitsCopyToClipboard();
    bool PictureExists() const { return document_.PictureExists(); }
    int PictureWidth() const { return document_.PictureWidth(); }
    int PictureHeight() const { return document_.PictureHeight(); }
    Bits bits() const { return document_.bits(); }

    // --- Names
    QString Caption() const { return caption_; }
    void setCaption(const QString& caption);
    /// The caption, with the number of the view where the document has several: "photo.png:2".
    QString name() const { return viewNumber_ ? caption_ + ':' + QString::number(viewNumber_) : caption_; }
    /// 0 for the only view of its document.
    void setViewNumber(int number);
    /// The window carries the platform's mark while something would be lost with the document.
    void showChanged();
    /// The user is being asked whether it may close; it can't be closed then.
    bool isAsking() const { return asks_; }
    QString Tag() const { return document_.Tag(); }

    // --- View
    QPoint GetSBV() const { return {hSB_->value(), vSB_->value()}; }
    /// Sets both bars, then repaints once.
    void Scroll(int x, int y);
    void UpdateImage() override;
    int ZoomFactor() const { return zoom_; }
    void setZoomFactor(int factor); // limited to 1..15
    void setBarsWidth(int width);   // below 14 gives 13
    void setMouseScroll(bool on);
    void StopTimer() override;

    /// Brings the frame up to date with this document: engine, status bar, hand scrolling, outline.
    void activate() override;
    /// Stops and removes the outline.
    void deactivate();
    /// A key was released, by its code (17 is Ctrl); ends what the tools were doing with it.
    void idst_KeyUp(int key, int shift);
    /// True while a tool is held down: changes of the document wait.
    bool strokeUnderWay() const { return tools_->ToolDown(); }
    /// A paste is pending: shows it at the pointer, or at the centre of the view, and takes the focus.
    void showPaste();
    /// A command is about to run: removes a pending paste from the picture until the pointer moves again.
    void restPaste();
    /// Drops a drag, an unfinished polygon or a pending paste. False: there was none.
    bool dropGesture();
    /// Selects everything, nothing, or the inverse.
    void select(Tools::Selecting what) { tools_->select(what); }
    /// Another tool was chosen: drops what the previous one has begun.
    void toolChosen();
    /// Pointer and line round it are the chosen tool's; while the document is being worked on it is the waiting one
    /// alone.
    void showTool();
    /// Another view of the document is used from now on.
    void giveWay();
    /// Another view shows something else in part of the picture, and the outline or not: so does this one, soon.
    void follow(const Rect& part, bool outline);

    /// A key goes down or up. False: it has no use here.
    bool displayKey(const QKeyEvent& event, bool down);

    QSize sizeHint() const override;

  signals:
    /// The question before it closes: it is open, it was answered, and the consequences of the answer are done.
    void asking(Question question);
    /// Something else is to be seen in part of the picture, in picture pixels, and the outline or not. Only where the
    /// document has other views.
    void shows(const Rect& part, bool outline);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    /// What the display gets with the mouse and the keys.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // --- What only the tools ask, as a ToolSurface
    void ShowShape(BandShape shape, int x1, int y1, int x2, int y2, bool keep) override;
    void HideShape(BandShape shape) override;
    void setPointer(Pointer pointer) override;
    void setWaiting(bool on) override;
    void repaint(const Rect& part) override;
    void UpdateRegion() override;
    void SetAutoRedraw(bool on) override;
    void StartTimer() override;
    void colourPicked() override;

    void pressed(const QMouseEvent& event);
    void doubleClicked(const QMouseEvent& event);
    void moved(const QMouseEvent& event);
    void released(const QMouseEvent& event);
    void wheelTurned(QWheelEvent& event);
    bool mayClose();
    void bringToFront();
    void takeFocus();
    void forget();
    void showSize();
    void layOutView();
    /// The document has a picture of another size, or its first one.
    void pictureChanged();
    QString zoomText() const;
    void barChanged();
    void spotChanged();
    void tick();
    void tellViews(const Rect& part);
    Rect whole() const { return {0, 0, PictureWidth(), PictureHeight()}; }
    QRect onDisplay(const Rect& part) const;
    bool isFront() const;
    bool canScroll() const;
    bool handScrolls() const;
    void scrollByHand(QPoint screen);
    void zoomAbout(int factor, QPointF at);
    QPoint pixelAt(QPointF at) const;
    int buttonOf(const QMouseEvent& event) const;
    void showFootprint();
    void moveCross(QPoint by);
    bool pressAtCross();
    /// The keys hold the button down.
    bool keysHold() const { return keysPressed_ && tools_->ToolDown(); }

    Frame& frame_;
    std::shared_ptr<Document> shared_;
    Document& document_;
    QString caption_;
    fDisplay* iDst_;
    QScrollBar *hSB_, *vSB_;
    QWidget* shp_;
    fBands bands_;
    QTimer tmrSelection_, tmrFollow_;
    Rect followed_; // what other views have changed since this one was repainted
    std::unique_ptr<Tools> tools_;

    int zoom_ = kLeastZoom;
    int barsWidth_;
    bool mouseScroll_ = false;
    Qt::MouseButton grabButton_ = Qt::NoButton; // the one that drags the picture
    QPoint grabLast_;
    bool scrollGuard_ = false;
    bool laidOut_ = false;
    QSize laidOutSize_; // the picture's size at the last layout
    float lastHValue_ = 0, lastVValue_ = 0, lastHMax_ = 0, lastVMax_ = 0;
    QPoint lastPixel_{-1, -1}; // the mouse position at the last event
    bool keysPressed_ = false; // by Enter; see keysHold
    bool forgotten_ = false, asks_ = false;
    bool speaks_ = false; // the status bar tells of this one among the document's views
    int viewNumber_ = 0;
    int wheelRest_ = 0;
};

} // namespace velara
