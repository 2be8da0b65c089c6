// fLayers: "Apply Text". Texts are put on a picture of the document, moved and restyled; OK merges them into it. Not
// modal: the document stays usable, and its changes are shown here as soon as this window is active again. While texts
// are waiting the document counts as changed, and this window asks before it closes without them.
#pragma once
#include "document/road/DocumentHandle.h"
#include "text/Layers.h"
#include <QDialog>
#include <QTimer>
#include <array>

class QComboBox;
class QLabel;
class QToolButton;

namespace velara {

class Frame;
class fColorButton;
class fLayerCanvas;
class fLayerList;
class fPicturePage;

class fLayers final : public QDialog {
    Q_OBJECT
  public:
    /// Deletes itself when it closes, and closes with the document.
    fLayers(Frame& frame, const DocumentHandle& document, QWidget* parent = nullptr);
    ~fLayers() override;

    const DocumentHandle& document() const { return document_; }
    /// Whether there are texts that are neither merged nor discarded.
    bool hasTexts() const { return !done_ && layers_.hasText(); }
    /// The layers over the document's present picture, including text still being composed.
    const Layers& asTyped();

  signals:
    /// There are texts now, or no longer; the document's waitingWork has been set.
    void waitingChanged();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* makeFontBar();
    QWidget* makeLayerBar();
    void connectAll();
    void followDocument();
    void takeStyle();
    void showStyle(int index);
    void showState();
    void changeZoom(int by);
    void keepFonts();
    void tellDocument();
    bool mayClose();
    void apply(std::function<void(bool done)> then);
    bool applyNow();
    void sendTo(const QString& word);

    Frame& frame_;
    DocumentHandle document_;
    Layers layers_;
    fLayerCanvas* canvas_;
    fPicturePage* page_;
    fLayerList* list_;
    QComboBox *cFonts_, *Cs_;
    fColorButton* cp_;
    std::array<QToolButton*, 7> style_{}; // of tb_Font, by number
    QToolButton *delete_ = nullptr, *undo_ = nullptr, *redo_ = nullptr;
    QLabel* hint_;
    QTimer watch_;
    bool showing_ = false;
    bool waiting_ = false; // the document has been told of texts here
    bool done_ = false;    // the texts are merged or may be discarded
};

} // namespace velara
