// The command language: which word needs what and does what.
#include "app/frame/fMain.h"
#include "app/menus/fIcons.h"
#include "app/utilities/Capture.h"
#include "app/utilities/Clips.h"
#include "app/utilities/desktop.h"
#include "commands/filterDialogs.h"
#include "commands/sizeWords.h"
#include "engine/operations.h"
#include "seams/Platform.h"
#include <algorithm>

namespace velara {

namespace {

void nothing(fMain&) {}
constexpr void (*kLater)(fMain&) = nullptr; // known, and not there yet

using enum Stage;

// clang-format off
constexpr Command kCommands[] = {
    // No document needed
    {"NEW",                  Free,       [](fMain& f) { f.newPicture(); }},
    {"OPEN",                 Free,       [](fMain& f) { f.open(); }},
    {"FILEASSOCIATION",      Free,       kLater},
    {"PRINTERSETUP",         Free,       kLater},
    {"SELECTSOURCE",         Free,       selectSource},
    {"ACQUIRETWAIN",         Free,       acquire},
    {"CAPTUREDESKTOP",       Free,       [](fMain& f) { f.capture().desktop(); }},
    {"CAPTUREFOREGROUND",    Free,       [](fMain& f) { f.capturePic(Capture::FixedArea); }},
    {"CAPTUREBACKGROUND",    Free,       [](fMain& f) { f.capture().background(); }},
    {"CUSTOMCAPTURE",        Free,       [](fMain& f) { f.capturePic(Capture::Rectangle); }},

    // The active document is asked for; one of them runs without
    {"UNDO",                 NeedsImage, [](fMain& f) { f.stepUndo(true); }},
    {"REDO",                 NeedsImage, [](fMain& f) { f.stepUndo(false); }},
    {"CREATENEWCOPY",        NeedsImage, [](fMain& f) { f.copyToNew(); }},
    {"COPYIMAGETOCLIPBOARD", NeedsImage, [](fMain& f) { f.GetActiveImage()->BitsCopyToClipboard(); }},
    {"CREATEFROMCLIPBOARD",  MaybeImage, [](fMain& f) { f.fromClipboard(); }},
    {"IMAGESIZE",            NeedsImage, [](fMain& f) { f.imageSize(); }},
    {"CANVASSIZE",           NeedsImage, [](fMain& f) { f.canvasSize(); }},
    {"IMAGEORIENTATION",     NeedsImage, [](fMain& f) { f.imageOrientation(); }},
    {"IMAGEROTATE",          NeedsImage, [](fMain& f) { f.imageRotate(); }},

    // Only with a document
    {"CLOSE",                NeedsImage, [](fMain& f) { f.closeActive(); }},
    {"SAVE",                 NeedsImage, [](fMain& f) { f.save(); }},
    {"SAVEAS",               NeedsImage, [](fMain& f) { f.saveAs(); }},
    {"PRINT",                NeedsImage, kLater},
    {"CUT",                  NeedsImage, [](fMain& f) { f.clips().cut(); }},
    {"COPY",                 NeedsImage, [](fMain& f) { f.clips().copy(); }},
    {"PASTE",                NeedsImage, [](fMain& f) { f.clips().paste(); }},
    {"CROP",                 NeedsImage, [](fMain& f) { f.crop(); }},
    {"OPTIONS",              NeedsImage, [](fMain& f) { f.options(); }},
    {"200",                  NeedsImage, [](fMain& f) { f.setZoom(2); }},
    {"300",                  NeedsImage, [](fMain& f) { f.setZoom(3); }},
    {"400",                  NeedsImage, [](fMain& f) { f.setZoom(4); }},
    {"500",                  NeedsImage, [](fMain& f) { f.setZoom(5); }},
    {"600",                  NeedsImage, [](fMain& f) { f.setZoom(6); }},
    {"700",                  NeedsImage, [](fMain& f) { f.setZoom(7); }},
    {"IMAGEMERGING",         NeedsImage, kLater},
    {"PASTELAYERSBOX",       NeedsImage, [](fMain& f) { f.showClipBox(); }},
    {"IMAGETEXTURES",        NeedsImage, [](fMain& f) { f.imageTextures(); }},
    {"IMAGERESOLUTION",      NeedsImage, [](fMain& f) { f.imageResolution(); }},
    {"IMAGESAVEOPTIONS",     NeedsImage, [](fMain& f) { f.saveForWeb(); }},
    {"IMAGECOLORDEPTH",      NeedsImage, [](fMain& f) { f.colorDepth(); }},
    {"TEXTTOOLS",            NeedsImage, [](fMain& f) { f.textTools(); }},
    {"WTILE",                NeedsImage, [](fMain& f) { setAsWallpaper(f, WallpaperMode::Tile); }},
    {"WCENTER",              NeedsImage, [](fMain& f) { setAsWallpaper(f, WallpaperMode::Centre); }},
    {"WSTRETCH",             NeedsImage, [](fMain& f) { setAsWallpaper(f, WallpaperMode::Stretch); }},
    {"TILEHORIZONTALLY",     NeedsImage, [](fMain& f) { f.arrange(1); }},
    {"TILEVERTICALLY",       NeedsImage, [](fMain& f) { f.arrange(2); }},
    {"CASCADE",              NeedsImage, [](fMain& f) { f.arrange(0); }},
    {"RESET",                NeedsImage, [](fMain& f) { f.reset(); }},

    // Known words that do nothing
    {"PRINTPREVIEW", NeedsImage, nothing}, {"RESTORE", NeedsImage, nothing}, {"IMAGEPROPERTIES", NeedsImage, nothing},
    {"EXTRACTICON", NeedsImage, nothing}, {"MOSAIC", NeedsImage, nothing}, {"VERTICALINTERLEAVE", NeedsImage, nothing},
    {"HORIZONTALINTERLEAVE", NeedsImage, nothing}, {"SQUAREINTERLEAVE", NeedsImage, nothing},
    {"CUSTOMINTERLEAVE", NeedsImage, nothing}, {"TARNISH", NeedsImage, nothing}, {"RGB", NeedsImage, nothing},
    {"TALCOMPOWDER", NeedsImage, nothing}, {"IMAGESCALE", NeedsImage, nothing}, {"IMAGECAPTURER", NeedsImage, nothing},
    {"HELPBAR", NeedsImage, nothing}, {"TEXTBAR", NeedsImage, nothing}, {"TOOLSBAR", NeedsImage, nothing},
    {"MENUBAR", NeedsImage, nothing}, {"FILTERSBAR", NeedsImage, nothing}, {"COLORSBAR", NeedsImage, nothing},
    {"EFFECTSBAR", NeedsImage, nothing}, {"STANDARDBAR", NeedsImage, nothing}, {"GRADIENTBOX", NeedsImage, nothing},
    {"TEMPLATEBOX", NeedsImage, nothing}, {"STATUSBAR", NeedsImage, nothing}, {"MNUFLAT", NeedsImage, nothing},
    {"MNUSOLIDBAR", NeedsImage, nothing}, {"MNU3DWATER", NeedsImage, nothing}, {"MNU3DMETALLIC", NeedsImage, nothing},
    {"MNULIGHTGRADIENT", NeedsImage, nothing}, {"MNUHEAVYGRADIENT", NeedsImage, nothing},
    {"MNUSTANDARD", NeedsImage, nothing}, {"MNUDELUXE", NeedsImage, nothing}, {"MNUWHITE", NeedsImage, nothing},
    {"MNUSILVER", NeedsImage, nothing}, {"INDEX", NeedsImage, nothing}, {"FAQ", NeedsImage, nothing},
    {"TUTORIALS", NeedsImage, nothing}, {"SUPPORT", NeedsImage, nothing}, {"HOMEPAGE", NeedsImage, nothing},
    {"ABOUT", NeedsImage, nothing},
    // Items and buttons give these, and nothing answers: odd, and it stays
    {"RESTOREORIGINAL", NeedsImage, nothing}, {"N360", NeedsImage, nothing}, {"A360", NeedsImage, nothing},
};

// What the frame does by itself, without a word of the command language
constexpr Command kActions[] = {
    {"@BROWSE",       Free, kLater},
    {"@CAPTURE",      Free, [](fMain& f) { f.capture().showDialog(); }},
    {"@ICON",         Free, kLater},
    {"@ASSOCIATION",  Free, kLater},
    {"@EXIT",         Free, [](fMain& f) { f.close(); }},
    {"@ABOUT",        Free, [](fMain& f) { f.about(); }},
    {"@RESET",        Free, [](fMain& f) { f.reset(); }},
    {"@RECENT0",      Free, [](fMain& f) { f.openRecent(0); }},
    {"@RECENT1",      Free, [](fMain& f) { f.openRecent(1); }},
    {"@RECENT2",      Free, [](fMain& f) { f.openRecent(2); }},
    {"@RECENT3",      Free, [](fMain& f) { f.openRecent(3); }},
    {"@RECENT4",      Free, [](fMain& f) { f.openRecent(4); }},
    {"@RECENT5",      Free, [](fMain& f) { f.openRecent(5); }},
    {"@RECENT6",      Free, [](fMain& f) { f.openRecent(6); }},
    {"@RECENT7",      Free, [](fMain& f) { f.openRecent(7); }},
    {"@BAR0",         Free, [](fMain& f) { f.toggleBar(0); }},
    {"@BAR1",         Free, [](fMain& f) { f.toggleBar(1); }},
    {"@BAR2",         Free, [](fMain& f) { f.toggleBar(2); }},
    {"@BAR3",         Free, [](fMain& f) { f.toggleBar(3); }},
    {"@BAR4",         Free, [](fMain& f) { f.toggleBar(4); }},
    {"@BAR5",         Free, [](fMain& f) { f.toggleBar(5); }},
    {"@BAR6",         Free, [](fMain& f) { f.toggleBar(6); }},
    {"@COLORBOX",     Free, [](fMain& f) { f.toggleBox(0); }},
    {"@TEXTURESBOX",  Free, [](fMain& f) { f.toggleBox(1); }},
    {"@CLIPBOARDBOX", Free, [](fMain& f) { f.toggleBox(2); }},
    {"@STATUSBAR",    Free, [](fMain& f) { f.toggleStatusBar(); }},
    {"@SIDEBAR",      Free, [](fMain& f) { f.toggleSideBar(); }},
    // Buttons that only open their drop-down
    {"@ZOOMP", Free, nothing}, {"@ZOOMM", Free, nothing}, {"@QUICKROTATE", Free, nothing},
    {"@QUALITYROTATE", Free, nothing}, {"@QUALITYSIZE", Free, nothing},
    {"@QUICKCAPTURE", Free, nothing}, {"@WALLPAPER", Free, nothing},
};
// clang-format on

const Command* findIn(std::span<const Command> rows, std::string_view word)
{
    const auto row = std::ranges::find(rows, word, &Command::word);
    return row == rows.end() ? nullptr : &*row;
}

/// Words that are rows of the tables of presets, filter dialogs, sizes and turns; all of them need a document.
bool isRowElsewhere(std::string_view word) { return findPreset(word) || findFilterRow(word) || findSizeWord(word); }

} // namespace

std::span<const Command> fMain::commands() { return kCommands; }

std::span<const Command> fMain::actions() { return kActions; }

bool fMain::known(std::string_view word)
{
    return isRowElsewhere(word) || findIn(word.starts_with('@') ? actions() : commands(), word);
}

bool fMain::available(std::string_view word)
{
    if (isRowElsewhere(word)) return true;
    const Command* row = findIn(word.starts_with('@') ? actions() : commands(), word);
    return row && row->run;
}

void fMain::Mmenu(const QString& word)
{
    const std::string name = word.toStdString();
    if (name.starts_with('@') || !available(name)) return;
    const Command* command = findIn(commands(), name);
    const Stage stage = command ? command->stage : Stage::NeedsImage;
    fImage* image = GetActiveImage();
    if (!image && stage == Stage::NeedsImage) return;
    if (image) image->restPaste();
    try {
        if (command)
            command->run(*this);
        else if (const FilterRow* filter = findFilterRow(name))
            showFilter(*filter);
        else if (const SizeWord* size = findSizeWord(name))
            runSizeWord(*size);
        else
            runPreset(*findPreset(name));
    } catch (const std::exception& failure) { // a command stops here; what it did not finish it has not begun
        showFailure(word, failure);
    }
}

void fMain::run(std::string_view word)
{
    if (!word.starts_with('@')) return Mmenu(text(word));
    const Command* row = findIn(actions(), word);
    if (row && row->run) row->run(*this);
}

} // namespace velara
