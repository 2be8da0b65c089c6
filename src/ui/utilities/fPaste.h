// fPaste: the clip history, a floating box. Shows the cut and copied parts; a click on one pastes it.
#pragma once
#include "tools/ClipHistory.h"
#include <QWidget>
#include <array>
#include <functional>
#include <map>

class QLabel;
class QListWidget;
class QPushButton;
class QScrollArea;
class QScrollBar;
class QSlider;

namespace velara {

class Document;
class Frame;

class fPaste final : public QWidget {
    Q_OBJECT
  public:
    fPaste(Frame& frame, QWidget* parent);

    /// A selected part with its thumbnail.
    struct Part {
        Bits bits, thumbnail;
    };
    /// What takes the selected part of a document, on any thread; null after a message when the selection is too small.
    /// The caller clears what is cut, and adds the part.
    using Take = std::function<Part(const Document& document)>;
    Take CutBits(const Document& document) { return take(document, tr("Minimum cut size: 2 x 2")); }
    Take CopyBits(const Document& document) { return take(document, tr("Minimum copy size: 2 x 2")); }
    /// Puts it into the list, and makes it what the next paste lays down.
    void add(const Part& part);
    /// Updates the scroll control for the list: the newest clip is in view.
    void Update_V();
    bool isEmpty() const { return history_.clips().empty(); }

  signals:
    /// A clip of the list is what the next paste lays down.
    void chosen();

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    struct Slot {
        QWidget* pc;
        std::function<void(const Bits&)> setThumbnail;
        QPushButton* BT;
        QLabel* size;
    };

    Take take(const Document& document, const QString& tooSmall);
    QWidget* makeSlots();
    QWidget* makeOpacity();
    Slot makeSlot(int index);
    Bits thumbnail(const Clip& clip);
    void showClips();
    void paste(int slot);

    Frame& frame_;
    ClipHistory history_;
    QScrollArea* area_;
    std::array<Slot, ClipHistory::kSlots> slots_;
    std::map<int, Bits> thumbnails_; // by clip number
    QListWidget* lstImages_ = nullptr;
    QSlider* BrSelectionMovePressure_;
};

} // namespace velara
