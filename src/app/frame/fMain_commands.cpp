// What the words of the vocabulary do in the frame, how one is run, and the windows of the program itself: options,
// about, help, and the search for commands.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "app/help/Manual.h"
#include "app/menus/fHelp.h"
#include "app/menus/fSearch.h"
#include "app/menus/menus.h"
#include "app/settings/fPreferences.h"
#include "app/settings/pictureSettings.h"
#include "app/start/Recovery.h"
#include "app/start/fSplash.h"
#include "app/utilities/Capture.h"
#include "app/utilities/Clips.h"
#include "app/utilities/Recipes.h"
#include "app/utilities/browse.h"
#include "app/utilities/desktop.h"
#include "app/utilities/icons.h"
#include "commands/filterDialogs.h"
#include "commands/presets.h"
#include "commands/sizeWords.h"
#include "commands/vocabulary.h"
#include "fileio/load/PictureLoader.h"
#include "seams/Platform.h"
#include "seams/findRow.h"
#include "seams/text.h"
#include "tools/toolRows.h"
#include "ui/widgets/ScreenColours.h"
#include <algorithm>

namespace velara {

namespace {

/// The handler of a word; for a word with many items it gets the item's index.
struct Handler {
    std::string_view word;
    void (*run)(fMain&) = nullptr;
    void (*runOne)(fMain&, int index) = nullptr;

    constexpr Handler(std::string_view w, void (*f)(fMain&)) : word(w), run(f) {}
    constexpr Handler(std::string_view w, void (*f)(fMain&, int)) : word(w), runOne(f) {}
    void operator()(fMain& frame, int index) const { run ? run(frame) : runOne(frame, index); }
};

constexpr bool needsHandler(WordKind kind)
{
    return kind == WordKind::Window || kind == WordKind::View || kind == WordKind::Step;
}

} // namespace

struct fMain::Commands {
    // clang-format off
    static constexpr Handler kHandlers[] = {
        // No document needed
        {"NEW",                  [](fMain& f) { f.newPicture(); }},
        {"OPEN",                 [](fMain& f) { f.open(); }},
        {"FILEASSOCIATION",      showAssociation},
        {"PRINTERSETUP",         setUpPrinter},
        {"SELECTSOURCE",         selectSource},
        {"ACQUIRETWAIN",         acquire},
        {"CAPTUREDESKTOP",       [](fMain& f) { f.capture().desktop(); }},
        {"CAPTUREFOREGROUND",    [](fMain& f) { f.capture().capturePic(Capture::FixedArea); }},
        {"CAPTUREBACKGROUND",    [](fMain& f) { f.capture().background(); }},
        {"CUSTOMCAPTURE",        [](fMain& f) { f.capture().capturePic(Capture::Rectangle); }},

        // The active document is looked at; one of them runs without
        {"UNDO",                 [](fMain& f) { f.stepUndo(true); }},
        {"REDO",                 [](fMain& f) { f.stepUndo(false); }},
        {"CREATENEWCOPY",        [](fMain& f) { f.copyToNew(); }},
        {"COPYIMAGETOCLIPBOARD", [](fMain& f) { f.GetActiveImage()->BitsCopyToClipboard(); }},
        {"CREATEFROMCLIPBOARD",  [](fMain& f) { f.fromClipboard(); }},
        {"IMAGESIZE",            [](fMain& f) { f.imageSize(); }},
        {"CANVASSIZE",           [](fMain& f) { f.canvasSize(); }},
        {"IMAGEORIENTATION",     [](fMain& f) { f.imageOrientation(); }},
        {"IMAGEROTATE",          [](fMain& f) { f.imageRotate(); }},

        // Only with a document
        {"CLOSE",                [](fMain& f) { f.closeActive(); }},
        {"SAVE",                 [](fMain& f) { f.save(); }},
        {"SAVEAS",               [](fMain& f) { f.saveAs(); }},
        {"PRINT",                print},
        {"CUT",                  [](fMain& f) { f.clips().cut(); }},
        {"COPY",                 [](fMain& f) { f.clips().copy(); }},
        {"PASTE",                [](fMain& f) { f.clips().paste(); }},
        {"CROP",                 [](fMain& f) { f.crop(); }},
        {"OPTIONS",              [](fMain& f) { f.options(); }},
        {"200",                  [](fMain& f) { f.setZoom(2); }},
        {"300",                  [](fMain& f) { f.setZoom(3); }},
        {"400",                  [](fMain& f) { f.setZoom(4); }},
        {"500",                  [](fMain& f) { f.setZoom(5); }},
        {"600",                  [](fMain& f) { f.setZoom(6); }},
        {"700",                  [](fMain& f) { f.setZoom(7); }},
        {"PASTELAYERSBOX",       [](fMain& f) { f.boxes().bring(Boxes::Clips); }},
        {"IMAGETEXTURES",        [](fMain& f) { f.imageTextures(); }},
        {"IMAGEMERGING",         [](fMain& f) { f.imageMerging(); }},
        {"IMAGERESOLUTION",      [](fMain& f) { f.imageResolution(); }},
        {"IMAGESAVEOPTIONS",     [](fMain& f) { f.saveForWeb(); }},
        {"IMAGECOLORDEPTH",      [](fMain& f) { f.colorDepth(); }},
        {"TEXTTOOLS",            [](fMain& f) { f.textTools(); }},
        {"WTILE",                [](fMain& f) { setAsWallpaper(f, WallpaperMode::Tile); }},
        {"WCENTER",              [](fMain& f) { setAsWallpaper(f, WallpaperMode::Centre); }},
        {"WSTRETCH",             [](fMain& f) { setAsWallpaper(f, WallpaperMode::Stretch); }},
        {"TILEHORIZONTALLY",     [](fMain& f) { f.documents_->arrange(Documents::Arrangement::Rows); }},
        {"TILEVERTICALLY",       [](fMain& f) { f.documents_->arrange(Documents::Arrangement::Columns); }},
        {"CASCADE",              [](fMain& f) { f.documents_->arrange(Documents::Arrangement::Cascade); }},
        {"RESET",                [](fMain& f) { f.storeLayout(); }},

        // The frame's own words
        {"@BROWSE",              browsePictures},
        {"@NEXTPAGE",            [](fMain& f) { f.openPage(1); }},
        {"@PREVIOUSPAGE",        [](fMain& f) { f.openPage(-1); }},
        {"@RECOVER",             [](fMain& f) { f.recovery().show(); }},
        {"@ASSOCIATION",         showAssociation},
        {"@CAPTURE",             [](fMain& f) { f.capture().showDialog(); }},
        {"@ICON",                extractIcons},
        {"@EXIT",                [](fMain& f) { f.close(); }},
        {"@PROPERTIES",          showProperties},
        {"@SELECTALL",           [](fMain& f) { f.GetActiveImage()->select(Tools::Selecting::All); }},
        {"@SELECTNONE",          [](fMain& f) { f.GetActiveImage()->select(Tools::Selecting::None); }},
        {"@SELECTINVERTED",      [](fMain& f) { f.GetActiveImage()->select(Tools::Selecting::Inverted); }},
        {"@NEWVIEW",             [](fMain& f) { f.newView(); }},
        {"@ABOUT",               [](fMain& f) { f.about(); }},
        {"@RESET",               [](fMain& f) { f.storeLayout(); }},
        {"@RECENT",              [](fMain& f, int index) { f.openRecent(index); }},
        {"@BAR",                 [](fMain& f, int index) { f.bars().toggleBar(index); }},
        {"@COLORBOX",            [](fMain& f) { f.boxes().toggle(Boxes::Colours); }},
        {"@TEXTURESBOX",         [](fMain& f) { f.boxes().toggle(Boxes::Textures); }},
        {"@CLIPBOARDBOX",        [](fMain& f) { f.boxes().toggle(Boxes::Clips); }},
        {"@HISTORYBOX",          [](fMain& f) { f.boxes().toggle(Boxes::History); }},
        {"@SAVEALL",             [](fMain& f) { f.saveAll(); }},
        {"@RUNRECIPE",           [](fMain& f) { f.recipes().choose(); }},
        {"@SAVERECIPE",          [](fMain& f) { f.recipes().save(f.active(), 0); }},
        {"@RUNONFOLDER",         [](fMain& f) { f.recipes().showFolderRun(); }},
        {"@STATUSBAR",           [](fMain& f) { f.toggleStatusBar(); }},
        {"@SIDEBAR",             [](fMain& f) { f.toggleSideBar(); }},
        {"@FULLSCREEN",          [](fMain& f) { f.toggleFullScreen(); }},
        {"@HELP",                [](fMain& f) { f.manual_->open(); }},
        {"@KEYS",                [](fMain& f) { f.keys(); }},
        {"@SEARCH",              [](fMain& f) { f.search(); }},
    };
    // clang-format on

    static_assert(std::ranges::all_of(kHandlers, isCommandWord, &Handler::word),
                  "a handler without its word: add the row to kCommandWords in src/commands/vocabulary.h");
    static_assert(std::ranges::all_of(kCommandWords,
                                      [](const CommandWord& w) {
                                          return std::ranges::count(kHandlers, w.word, &Handler::word) ==
                                                 needsHandler(w.kind);
                                      }),
                  "a word without its handler: add one row to kHandlers in src/app/frame/fMain_commands.cpp");

    static const Handler* find(std::string_view word) { return findRow(kHandlers, word, &Handler::word); }
};

bool fMain::available(std::string_view word)
{
    const CommandWord* row = findCommandWord(word);
    return row && (!needsHandler(row->kind) || Commands::find(word));
}

void fMain::Mmenu(const QString& word)
{
    const std::string name = word.toStdString();
    const CommandWord* command = findCommandWord(name);
    if (!command || command->ofFrame() || !available(name)) return;
    status_->clearMessage(); // what was said before gives way
    if (!findsItsDocument(*command)) return;
    if (fImage* image = GetActiveImage()) image->restPaste();
    try {
        switch (command->kind) {
        case WordKind::Preset:
            return runPreset(*findRow(presets(), name, &Preset::word));
        case WordKind::Dialog:
            return showFilter(*findFilterRow(name), nameOf(name));
        case WordKind::Size:
            return runSizeWord(*findRow(sizeWords(), name, &SizeWord::word));
        default:
            if (const auto* handler = Commands::find(name)) (*handler)(*this, 0);
        }
    } catch (const std::exception& failure) { // a command fails here: changes that it did not complete were not made
        showFailure(word, failure);
    }
}

/// False, with a message in the status bar, when there is no document and the word needs one.
bool fMain::findsItsDocument(const CommandWord& command)
{
    if (command.stage != Stage::NeedsImage || GetActiveImage()) return true;
    if (command.kind != WordKind::Nothing)
        status_->say(tr("There is no picture to work on: open one first, or make a new one."));
    return false;
}

void fMain::run(std::string_view word, int index)
{
    if (!word.starts_with('@')) return Mmenu(text(word));
    const CommandWord* command = findCommandWord(word);
    status_->clearMessage();
    if (!command || !findsItsDocument(*command)) return;
    if (const auto* handler = Commands::find(word)) (*handler)(*this, index);
}

void fMain::options()
{
    fPreferences dialog(platform_, setup_, this);
    if (dialog.exec() != QDialog::Accepted) return;
    dialogFolder_ = setup_.ImagesPath;
    readInSrgb(pictureSetting(platform_, PictureSetting::ConvertToSrgb));
    chooseScreenColours();
    emit optionsChosen();
}

void fMain::chooseScreenColours()
{
    const bool on = pictureSetting(platform_, PictureSetting::ScreenProfile);
    if (on == (screenColours_ != nullptr)) return;
    screenColours_ = on ? std::make_unique<ScreenColours>(platform_) : nullptr;
}

void fMain::about()
{
    fSplash splash(platform_, this);
    splash.showFacts();
    splash.exec();
}

void fMain::keys()
{
    auto* window = findChild<fHelp*>();
    if (!window) window = new fHelp(this);
    window->show();
    window->raise();
    window->activateWindow();
}

void fMain::search()
{
    std::vector<SearchRow> rows = bars_->searchRows();
    for (const ToolRow& tool : toolRows())
        rows.push_back({findChild<QAction*>(tool.name), shown("Tools", tool.caption), tr("Tool")});
    auto* window = new fSearch(std::move(rows), this);
    window->show();
    window->activateWindow();
}

} // namespace velara
