// fMain: the frame around the documents: it makes its parts, which don't know each other, and lets the words of the
// vocabulary act on them. The documents are the workspace's; their windows are in Documents, menus and toolbars in
// Bars, the floating boxes in Boxes, the side pane in fToolPane, the status bar in fStatus, what shows while nothing is
// open in fStartPage, cutting and pasting in Clips, pictures of the screen in Capture.
//
// Cut by topic: fMain.cpp (its parts, the start page, the buttons of undo), _commands (what each word does, options,
// about), _files (open, save, close, recent, drop, clipboard), _pages (files of several pages, and of another kind than
// their names say), _road (what is shown of the workspace's changes),
// _pixels (commands that change a picture, zoom, another view), _geometry (dialogs that make or reshape one, or lay
// something over it), _export (fewer colours, the web), _bars (bars, boxes, side pane, tools, colours),
// _recovery (pictures that were left unsaved), _close (the frame's size and its end).
#pragma once
#include "app/documents/Documents.h"
#include "app/menus/Bars.h"
#include "app/menus/Boxes.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/Setup.h"
#include "ui/view/fImage.h"
#include <QMainWindow>
#include <QPointer>
#include <QProgressDialog>
#include <string_view>

namespace velara {

class Capture;
class Manual;
class Clips;
class Recipes;
class fHistory;
struct CommandWord;
class Recovery;
class fStartPage;
struct SizeWord;
struct Preset;
struct FilterRow;
class ScreenColours;
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
    Workspace& workspace() override { return workspace_; }
    ToolStores& toolStores() override { return toolStores_; }
    DocumentHandle active() override;
    DocumentHandle adopt(const Bits& bits, const QString& path, Arrival arrival = Arrival::Brought) override;
    void report(const QString& what, const Outcome& outcome) override;
    void Mmenu(const QString& word) override;
    void setStatus(Panel panel, const QString& text) override;
    void EnableMouseScrolling() override;
    bool mouseScrolling() const override;
    void showColors() override;
    std::optional<Colour> pickColour(Colour start, const QString& what, QWidget* over) override;

    // --- Commands
    /// True for a word of the vocabulary with a handler, even one that does nothing.
    static bool available(std::string_view word);
    /// Runs a command word, or one of the frame's own; index distinguishes the items of such a word.
    void run(std::string_view word, int index = 0);

    /// Of the active view; see there.
    void setZoom(int factor);

    // --- Utilities
    Clips& clips() { return *clips_; }
    Capture& capture() { return *capture_; }
    Recipes& recipes() { return *recipes_; }
    Recovery& recovery() { return *recovery_; }

    // --- Files
    /// Opens a picture file as OPEN does after its dialog: recent list, OpenZoom, folder kept.
    void openPicture(const QString& path, Unreadable unreadable = Unreadable::OpensEmpty);
    void FillRecent();
    /// Opens the files of a drop, in order; those that are no pictures are named in the status bar.
    void dropFiles(const QStringList& paths);
    /// Opens files that another program hands over, in order, whatever their names end with. done gets a reason for
    /// each, empty for one that is open; it is not called while the frame closes.
    void openFiles(const QStringList& paths, std::function<void(const QStringList& reasons)> done);
    /// The start folder of the file dialogs.
    void setDialogFolder(const QString& folder) { dialogFolder_ = folder; }

    // --- Bars, boxes, panes
    Bars& bars() { return *bars_; }
    Boxes& boxes() { return *boxes_; }
    void applyBars(); // visibility and check marks from Setup
    /// Makes the panes of the tools that have one.
    void initToolPanes();
    /// A button of the tool strip, by its name, or a tool's key.
    void toolClicked(const QString& key);
    bool placesNoText() const;
    void wantText();
    /// No tool is chosen any more, and the hand is put away.
    void takeNoTool();
    fToolPane& toolPane() { return *toolPane_; }
    fStatus& status() { return *status_; }
    QMdiArea& area() { return documents_->area(); }
    /// A menu item or a button, by its object name.
    QAction* action(const QString& objectName) const { return bars_->action(objectName); }
    /// The active view, or null.
    fImage* GetActiveImage() { return documents_->active(); }
    /// The views of the open documents, in order of opening.
    QList<fImage*> documents() const { return documents_->images(); }
    /// Saves the configuration and the frame's position for the next start.
    void saveState();
    /// All documents are being closed, or are closed.
    bool isClosing() const { return closesAll_ || closing_; }
    bool isClosed() const { return closing_; }

  signals:
    void closed();
    /// By OK.
    void optionsChosen();
    /// Closing was cancelled because a document refused.
    void stays();
    /// Of any document; see fImage.
    void asking(fImage::Question question);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    QMenu* createPopupMenu() override { return bars_->makePopup(); }

  private:
    struct Commands; // the table of what the words do, in fMain_commands.cpp

    // What the words of the vocabulary do; those of the bars, the boxes and the utilities are with these.
    void open();
    void save();
    void saveAs();
    /// Writes every changed picture to its own file, after one question; those without one are asked for a name.
    void saveAll();
    void openRecent(int index);
    /// The page so many behind the active one in its file, which is in front afterwards.
    void openPage(int step);
    void closeActive();
    void copyToNew();
    void fromClipboard();
    void stepUndo(bool back);
    void crop();
    void runPreset(const Preset& preset);
    void runSizeWord(const SizeWord& size);
    void showFilter(const FilterRow& row, const QString& name);
    void textTools();
    /// Another window of the active document, with a zoom and a place of its own.
    void newView();
    void newPicture();
    void imageSize();
    void canvasSize();
    void imageOrientation();
    void imageRotate();
    void imageResolution();
    void imageTextures();
    void imageMerging();
    void colorDepth();
    /// The dialog that saves for the web, on the active document, or on a picture made of a document.
    void saveForWeb();
    void saveForWeb(fImage& image, const Bits& bits);
    void options();
    void chooseScreenColours();
    void about();
    void keys();
    /// Finds a command by a few letters.
    void search();
    void toggleFullScreen();
    void toggleStatusBar();
    void toggleSideBar();
    void storeLayout();

    /// Reports failures in the status bar.
    void change(std::string_view word, const DocumentHandle& document, const Job& job, const QString& words,
                After after = After::Step);
    void bindWorkspace();
    void makeRecovery();
    void showRecovered(const DocumentHandle& document, const QString& trouble);
    bool mergeWaitingTexts(DocumentHandle document);
    template <class Dialog> void askAndReshape(std::string_view word);
    void makeBoxes();
    void bindToolKeys();
    void showChosenTool();
    /// Ends hand scrolling: a drag is either the hand's or the tool's.
    void releaseHand();
    /// Updates undo and redo for the active document, and the changed marks of all.
    void refreshUndoState();
    /// Reloads the icons in the variant that fits the palette.
    void refreshIcons();
    void frameResized();
    void placeSidePane();
    void seekSidePane(QPoint at);
    void wellClicked(int index);
    void changed(const DocumentHandle& document);
    void showFailure(const QString& what, const std::exception& failure);
    bool findsItsDocument(const CommandWord& command);
    void showStartPage();
    /// The frame's title names the active document.
    void showTitle();
    void saveAs(fImage& image);
    void saveTo(fImage& image, const QString& path);
    void openPath(const QString& path, Unreadable unreadable, std::function<void(const Opened&)> then, int page = 1);
    void showPage();
    /// Asks the user where saving over the document's own file would do more than that; what to do then.
    enum class Over { Overwrites, AsksForName, SavesNot };
    Over askOver(const FileFacts& file);
    bool mayLosePages(const FileFacts& file, const QString& target);
    void noteUnopened(const QString& path, const Opened& opened);
    void tellUnopened();
    void showView(const DocumentHandle& document, bool maximized);
    void showArrival(const DocumentHandle& document);
    void showReading(const QString& path);
    void showName(const DocumentHandle& document);
    QString inDialogFolder(const QString& name) const;
    void showLoadError();
    void showGone(const QStringList& paths);
    void saveNow(fImage& asked);
    bool savesDirectly(const FileFacts& file) const;
    Bits clipboardPicture();

    Platform& platform_;
    Setup& setup_;
    Workspace workspace_;
    ToolStores toolStores_;
    std::unique_ptr<Clips> clips_;
    std::unique_ptr<Capture> capture_;
    std::unique_ptr<Recipes> recipes_;
    std::unique_ptr<Documents> documents_;
    fStatus* status_;
    fToolPane* toolPane_;
    fStartPage* startPage_;
    fHistory* history_ = nullptr;
    std::unique_ptr<Bars> bars_;
    std::unique_ptr<Boxes> boxes_;
    std::unique_ptr<ScreenColours> screenColours_; // where pictures are shown by the screens' profiles
    std::unique_ptr<Recovery> recovery_;
    std::unique_ptr<Manual> manual_;
    QPointer<QProgressDialog> readingBox_;
    QString dialogFolder_;
    QStringList gone_;       // missing files that no message has named yet
    bool refused_ = false;   // a file could not be loaded, and no message has said so yet
    bool tells_ = false;     // such a message is open
    bool pageComes_ = false; // another page is being read
    bool closing_ = false, closesAll_ = false, resizedOnce_ = false, scrollingOffered_ = false;
};

} // namespace velara
