// fMain: the frame around the documents. Owns the one engine cFilter, the menus, the toolbars, the status bar and the
// side pane; a document's window belongs to the area of the documents and is buried here when it closes.
//
// Cut by topic: fMain.cpp (documents and the end of a change), _commands (the command language), _files (open, save,
// recent, drop), _road (from a command to its document), _pixels (commands
// that change a picture), _geometry (dialogs that reshape one), _bars (menus, bars, boxes, side pane), _close
// (shutdown).
#pragma once
#include "engine/cBitFilter.h"
#include "seams/Frame.h"
#include "seams/Setup.h"
#include "ui/view/fImage.h"
#include <QHash>
#include <QMainWindow>
#include <QMdiArea>
#include <QPointer>
#include <array>
#include <functional>
#include <string_view>

class QToolBar;

namespace velara {

class Capture;
class Clips;
class fDocumentWindow;
struct SizeWord;
struct Preset;
struct FilterRow;
class fStatus;
class fToolPane;

class fMain final : public QMainWindow, public Frame {
    Q_OBJECT
  public:
    fMain(Platform& platform, Setup& setup);
    ~fMain() override;

    // --- Frame
    Platform& platform() override { return platform_; }
    Setup& setup() override { return setup_; }
    cBitFilter& filter() override { return cFilter_; }
    ToolStores& toolStores() override { return toolStores_; }
    DocumentHandle active() override;
    fImage* GetActiveImage() override;
    std::vector<DocumentHandle> openDocuments() override;
    DocumentHandle adopt(const Bits& bits, const QString& path, Arrival arrival = Arrival::Made) override;
    bool openPicture(const QString& path) override;
    Outcome change(const DocumentHandle& document, const Job& job, After after = After::Step) override;
    void finish(const DocumentHandle& document) override;
    void report(const QString& what, const Outcome& outcome) override;
    void Update(bool regionOnly, bool save) override;
    bool engineHolds(const Document& document) const override;
    void handOver(const Document& document) override;
    void Mmenu(const QString& word) override;
    void refreshUndoState() override;
    void setStatus(Panel panel, const QString& text) override;
    void cFilter_Progress(int value) override;
    QString UniqueCaption(const QString& text) override;
    int nextDocumentNumber() override { return documentNumber_++; }
    void EnableMouseScrolling() override;
    bool mouseScrolling() const override;
    void CheckToolbarState(bool noRefresh) override;
    void showColors() override;
    std::optional<Colour> pickColour(Colour start, const QString& what, QWidget* over) override;

    // --- Commands
    /// True for a word of the vocabulary that does what it says, even if that is nothing.
    static bool available(std::string_view word);
    /// Runs a command word, or one of the frame's own; index tells the items of such a one apart.
    void run(std::string_view word, int index = 0);

    void open();
    void save();
    void saveAs();
    void openRecent(int index);
    void stepUndo(bool back);
    void copyToNew();
    void fromClipboard();
    void crop();
    void closeActive();
    void runSizeWord(const SizeWord& size);
    void newPicture();
    void imageSize();
    void canvasSize();
    void imageOrientation();
    void imageRotate();
    void imageResolution();
    void imageTextures();
    void colorDepth();
    /// The dialog that saves for the web, on the active document, or on a picture made of a document.
    void saveForWeb();
    void saveForWeb(fImage& image, const Bits& bits);
    void textTools();
    void setZoom(int factor);
    void runPreset(const Preset& preset);
    /// The dialog of a filter, on the active document.
    void showFilter(const FilterRow& row);
    void options();
    void about();
    void arrange(int mode); // 0 cascade, 1 tile horizontally, 2 tile vertically
    void reset();

    // --- Utilities
    Clips& clips() { return *clips_; }
    Capture& capture() { return *capture_; }
    void capturePic(int mode);
    void showClipBox();

    // --- Files
    void FillRecent();
    /// The files of a drop, in order; the ones that aren't pictures of the kinds taken are skipped.
    void dropFiles(const QStringList& paths);
    /// Where the file dialogs start.
    void setDialogFolder(const QString& folder) { dialogFolder_ = folder; }

    // --- Bars, boxes, panes
    void applyBars(); // visibility and check marks from Setup
    void loadLayout();
    void saveLayout();
    void toggleBar(int index);
    void makeBoxes();
    void setBox(int index, QWidget* box); // 0 colours, 1 textures, 2 clipboard
    void showBox(int index);
    void toggleBox(int index);
    void showBoxes();
    void toggleStatusBar();
    void toggleSideBar();
    /// Fills the panes of the tools that have one.
    void initToolPanes();
    void Tool_Frame();
    void DisableTools();
    void toolClicked(const QString& key);
    /// Hand scrolling ends: a drag is the hand's or the tool's.
    void releaseHand();
    fToolPane& toolPane() { return *toolPane_; }
    fStatus& status() { return *status_; }
    QMdiArea& area() { return *area_; }
    QAction* action(const QString& objectName) const { return items_.value(objectName); }

    /// The open documents, in order of opening.
    QList<fImage*> documents() const;
    /// Takes a closed document's window away; it is deleted when no filter is at work.
    void bury(fDocumentWindow* window);

  signals:
    void closed();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    QMenu* createPopupMenu() override;

  private:
    class JobUnderWay;

    /// The job on the document that is active now; after a yield, so that the menu closes. Failures go to the status
    /// bar.
    void changeActive(std::string_view word, const Job& job, After after, bool yields = true);
    template <class Dialog> void askAndReshape(std::string_view word);
    void buildMenus();
    void buildToolbars();
    void fillToolbar(QToolBar* bar, std::string_view buttons);
    void makeTrigger(QAction* action, std::string_view word, int index = 0);
    /// The pictures in the cut that fits the palette.
    void refreshIcons();
    void frameResized();
    void placeSidePane();
    void seekSidePane(QPoint at);
    void wellClicked(int index);
    void stepLost(const QString& reason);
    void finished(fImage& image);
    /// The window of an open document; null when it is closed.
    fImage* imageOf(const DocumentHandle& document) const;
    void engineProgress(int percent);
    void showFailure(const QString& what, const std::exception& failure);
    void buryDead();
    /// name is what the document is called afterwards.
    void saveTo(fImage& image, const QString& name);
    bool openPath(const QString& path);
    QString inDialogFolder(const QString& name) const;
    void showLoadError();
    DocumentHandle adopt(std::unique_ptr<fImage> image, const QString& path, Arrival arrival);
    void applyOpenOptions();

    Platform& platform_;
    Setup& setup_;
    cBitFilter cFilter_;
    DocumentHandle held_; // whose picture the engine holds
    ToolStores toolStores_;
    QPointer<fImage> ActiveImage_;
    std::unique_ptr<Clips> clips_;
    std::unique_ptr<Capture> capture_;
    QMdiArea* area_;
    fStatus* status_;
    fToolPane* toolPane_;
    std::array<QToolBar*, 7> bars_{}; // the order of Setup::BarVisible
    std::array<QPointer<QWidget>, 3> boxes_;
    QHash<QString, QAction*> items_;
    QString dialogFolder_;
    QList<QPointer<QWidget>> dead_;
    int jobs_ = 0; // under way
    int documentNumber_ = 1, clashes_ = 0;
    bool closing_ = false, resizedOnce_ = false, scrollingOffered_ = false;
};

} // namespace velara
