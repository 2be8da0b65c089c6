// Documents: the windows of the open pictures, one or more for each: the area they stand in, which of them is active,
// their numbers, and the end of those that are closed.
#pragma once
#include "document/road/DocumentHandle.h"
#include "ui/view/fImage.h"
#include <QList>
#include <QMdiArea>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

class QMenu;

namespace velara {

class fDocumentWindow;

class Documents final : public QObject {
    Q_OBJECT
  public:
    explicit Documents(QWidget* parent);
    ~Documents() override { clear(); }

    QMdiArea& area() { return *area_; }
    /// All views, in order of opening.
    QList<fImage*> images() const;
    /// Null without one.
    fImage* active() const;
    /// The windows of an open document, in order of opening; none when it is closed.
    QList<fImage*> viewsOf(const DocumentHandle& document) const;
    /// The active one of them, else the first; null when it is closed.
    fImage* of(const DocumentHandle& document) const;

    /// Shows it in a window that fits the whole picture, or that fills the area if the picture is too large for it.
    void show(std::unique_ptr<fImage> image, bool maximized);
    /// The same for the active one, whose zoom may have changed.
    void fitActive();
    /// Brings it to the front.
    void activate(fImage& image);
    /// Puts the open views at the end of the menu, the active one with a mark, in place of what stood there.
    void list(QMenu& menu);
    /// Moves the focus away from a picture at the Tab key; false when there is nowhere to go.
    std::function<bool(bool forward)> leaveByTab;
    /// Side by side or one below the other.
    enum class Arrangement { Cascade, Rows, Columns };
    void arrange(Arrangement arrangement);

    /// Closes all, the last one first. Stops at one that refuses: false.
    bool closeAll();
    /// Ends all without a question.
    void clear();
    /// Takes a closed window away; it is deleted from the event loop.
    void bury(fDocumentWindow* window);

  signals:
    void activated();
    void buried();

  private:
    void deleteBuried();
    void numberViews();

    QPointer<QMdiArea> area_;
    QList<QPointer<QWidget>> buried_;
};

} // namespace velara
