// The command language in one table: the words, what each needs of the documents, and its kind. The frame binds
// handlers to the words (app/frame/fMain_commands.cpp), menus and buttons name them, the batch program takes those that
// need no window. Presets, filter dialogs and sizes have tables of their own, whose words are included automatically.
#pragma once
#include <algorithm>
#include <span>
#include <string_view>

namespace velara {

/// What a word needs of the documents: Free doesn't look at the active one; MaybeImage does, and runs with or without;
/// NeedsImage runs only with one.
enum class Stage { Free, MaybeImage, NeedsImage };

enum class WordKind {
    Window,  // opens a window, or belongs to one
    View,    // changes how the picture is shown, not the picture
    Step,    // changes the picture, or undoes
    Preset,  // a row of presets.cpp
    Dialog,  // a row of filterDialogs.cpp
    Size,    // a row of sizeWords.cpp
    Nothing, // known, without a handler
    Drop,    // a button that only opens its drop-down
};

/// The parts of the menus whose items come from the rows of their words, first those of this table, then those of
/// filterDialogs.cpp. app/menus/menus.cpp has the position of each part.
inline constexpr std::string_view kMenuParts[] = {"SELECT",  "IMAGE",  "COLORS",  "REPLACE",   "ADD",
                                                  "EFFECTS", "SHAPES", "CAPTURE", "WALLPAPER", "VIEWS"};

/// A word's place in the menus; a part that isn't in kMenuParts does not compile. Words without a place are named by
/// menus.cpp, or are in no menu.
struct MenuPlace {
    std::string_view part = {};
    std::string_view caption = {};
    std::string_view picture = {};   // a name for pictureOf() (app/menus/menus.h)
    std::string_view shortcuts = {}; // separated by blanks; the first is shown

    constexpr MenuPlace() = default;
    consteval MenuPlace(std::string_view inPart, std::string_view caption, std::string_view picture = {},
                        std::string_view shortcuts = {})
        : part(inPart), caption(caption), picture(picture), shortcuts(shortcuts)
    {
        if (std::ranges::find(kMenuParts, inPart) == std::end(kMenuParts))
            throw "no such part: the parts are in kMenuParts of src/commands/vocabulary.h";
    }
};

/// Words that begin with "@" are the frame's own and not part of the command language.
struct CommandWord {
    std::string_view word;
    Stage stage;
    WordKind kind;
    MenuPlace place = {};
    int count = 1; // more: the word has that many items, distinguished by their index

    constexpr bool ofFrame() const { return word.starts_with('@'); }
};

// clang-format off
inline constexpr CommandWord kCommandWords[] = {
    // No document needed
    {"NEW",                  Stage::Free,       WordKind::Window},
    {"OPEN",                 Stage::Free,       WordKind::Window},
    {"FILEASSOCIATION",      Stage::Free,       WordKind::Window},
    {"PRINTERSETUP",         Stage::Free,       WordKind::Window},
    {"SELECTSOURCE",         Stage::Free,       WordKind::Window},
    {"ACQUIRETWAIN",         Stage::Free,       WordKind::Window},
    {"CAPTUREDESKTOP",       Stage::Free,       WordKind::Window, {"CAPTURE", "Desktop"}},
    {"CAPTUREFOREGROUND",    Stage::Free,       WordKind::Window, {"CAPTURE", "Foreground"}},
    {"CAPTUREBACKGROUND",    Stage::Free,       WordKind::Window, {"CAPTURE", "Background"}},
    {"CUSTOMCAPTURE",        Stage::Free,       WordKind::Window},

    // The active document is looked at; one of them runs without
    {"UNDO",                 Stage::NeedsImage, WordKind::Step},
    {"REDO",                 Stage::NeedsImage, WordKind::Step},
    {"CREATENEWCOPY",        Stage::NeedsImage, WordKind::Window},
    {"COPYIMAGETOCLIPBOARD", Stage::NeedsImage, WordKind::Window},
    {"CREATEFROMCLIPBOARD",  Stage::MaybeImage, WordKind::Window},
    {"IMAGESIZE",            Stage::NeedsImage, WordKind::Window, {"IMAGE", "Image Size ...", "transform-scale", "Ctrl+Alt+I"}},
    {"CANVASSIZE",           Stage::NeedsImage, WordKind::Window, {"IMAGE", "Canvas Size ...", "transform-crop-and-resize", "Ctrl+Alt+C"}},
    {"IMAGEORIENTATION",     Stage::NeedsImage, WordKind::Window, {"IMAGE", "Orientation ...", "transform-rotate"}},
    {"IMAGEROTATE",          Stage::NeedsImage, WordKind::Window, {"IMAGE", "Rotate ...", "object-rotate-right"}},

    // Only with a document
    {"CLOSE",                Stage::NeedsImage, WordKind::Window},
    {"SAVE",                 Stage::NeedsImage, WordKind::Window},
    {"SAVEAS",               Stage::NeedsImage, WordKind::Window},
    {"PRINT",                Stage::NeedsImage, WordKind::Window},
    {"CUT",                  Stage::NeedsImage, WordKind::Window},
    {"COPY",                 Stage::NeedsImage, WordKind::Window},
    {"PASTE",                Stage::NeedsImage, WordKind::Window},
    {"CROP",                 Stage::NeedsImage, WordKind::Step},
    {"OPTIONS",              Stage::NeedsImage, WordKind::Window},
    {"200",                  Stage::NeedsImage, WordKind::View},
    {"300",                  Stage::NeedsImage, WordKind::View},
    {"400",                  Stage::NeedsImage, WordKind::View},
    {"500",                  Stage::NeedsImage, WordKind::View},
    {"600",                  Stage::NeedsImage, WordKind::View},
    {"700",                  Stage::NeedsImage, WordKind::View},
    {"IMAGEMERGING",         Stage::NeedsImage, WordKind::Window},
    {"PASTELAYERSBOX",       Stage::NeedsImage, WordKind::Window},
    {"IMAGETEXTURES",        Stage::NeedsImage, WordKind::Window},
    {"IMAGERESOLUTION",      Stage::NeedsImage, WordKind::Window},
    {"IMAGESAVEOPTIONS",     Stage::NeedsImage, WordKind::Window},
    {"IMAGECOLORDEPTH",      Stage::NeedsImage, WordKind::Window},
    {"TEXTTOOLS",            Stage::NeedsImage, WordKind::Window},
    {"WTILE",                Stage::NeedsImage, WordKind::Window, {"WALLPAPER", "Tile"}},
    {"WCENTER",              Stage::NeedsImage, WordKind::Window, {"WALLPAPER", "Center"}},
    {"WSTRETCH",             Stage::NeedsImage, WordKind::Window, {"WALLPAPER", "Stretch"}},
    {"TILEHORIZONTALLY",     Stage::NeedsImage, WordKind::Window, {"VIEWS", "Tile Horizontally", "view-split-top-bottom"}},
    {"TILEVERTICALLY",       Stage::NeedsImage, WordKind::Window, {"VIEWS", "Tile Vertically", "view-split-left-right"}},
    {"CASCADE",              Stage::NeedsImage, WordKind::Window, {"VIEWS", "Cascade", "window-duplicate"}},
    {"RESET",                Stage::NeedsImage, WordKind::Window},

    // Known words that do nothing
    {"PRINTPREVIEW",         Stage::NeedsImage, WordKind::Nothing},
    {"RESTORE",              Stage::NeedsImage, WordKind::Nothing},
    {"IMAGEPROPERTIES",      Stage::NeedsImage, WordKind::Nothing},
    {"EXTRACTICON",          Stage::NeedsImage, WordKind::Nothing},
    {"MOSAIC",               Stage::NeedsImage, WordKind::Nothing},
    {"VERTICALINTERLEAVE",   Stage::NeedsImage, WordKind::Nothing},
    {"HORIZONTALINTERLEAVE", Stage::NeedsImage, WordKind::Nothing},
    {"SQUAREINTERLEAVE",     Stage::NeedsImage, WordKind::Nothing},
    {"CUSTOMINTERLEAVE",     Stage::NeedsImage, WordKind::Nothing},
    {"TARNISH",              Stage::NeedsImage, WordKind::Nothing},
    {"RGB",                  Stage::NeedsImage, WordKind::Nothing},
    {"TALCOMPOWDER",         Stage::NeedsImage, WordKind::Nothing},
    {"IMAGESCALE",           Stage::NeedsImage, WordKind::Nothing},
    {"IMAGECAPTURER",        Stage::NeedsImage, WordKind::Nothing},
    {"HELPBAR",              Stage::NeedsImage, WordKind::Nothing},
    {"TEXTBAR",              Stage::NeedsImage, WordKind::Nothing},
    {"TOOLSBAR",             Stage::NeedsImage, WordKind::Nothing},
    {"MENUBAR",              Stage::NeedsImage, WordKind::Nothing},
    {"FILTERSBAR",           Stage::NeedsImage, WordKind::Nothing},
    {"COLORSBAR",            Stage::NeedsImage, WordKind::Nothing},
    {"EFFECTSBAR",           Stage::NeedsImage, WordKind::Nothing},
    {"STANDARDBAR",          Stage::NeedsImage, WordKind::Nothing},
    {"GRADIENTBOX",          Stage::NeedsImage, WordKind::Nothing},
    {"TEMPLATEBOX",          Stage::NeedsImage, WordKind::Nothing},
    {"STATUSBAR",            Stage::NeedsImage, WordKind::Nothing},
    {"MNUFLAT",              Stage::NeedsImage, WordKind::Nothing},
    {"MNUSOLIDBAR",          Stage::NeedsImage, WordKind::Nothing},
    {"MNU3DWATER",           Stage::NeedsImage, WordKind::Nothing},
    {"MNU3DMETALLIC",        Stage::NeedsImage, WordKind::Nothing},
    {"MNULIGHTGRADIENT",     Stage::NeedsImage, WordKind::Nothing},
    {"MNUHEAVYGRADIENT",     Stage::NeedsImage, WordKind::Nothing},
    {"MNUSTANDARD",          Stage::NeedsImage, WordKind::Nothing},
    {"MNUDELUXE",            Stage::NeedsImage, WordKind::Nothing},
    {"MNUWHITE",             Stage::NeedsImage, WordKind::Nothing},
    {"MNUSILVER",            Stage::NeedsImage, WordKind::Nothing},
    {"INDEX",                Stage::NeedsImage, WordKind::Nothing},
    {"FAQ",                  Stage::NeedsImage, WordKind::Nothing},
    {"TUTORIALS",            Stage::NeedsImage, WordKind::Nothing},
    {"SUPPORT",              Stage::NeedsImage, WordKind::Nothing},
    {"HOMEPAGE",             Stage::NeedsImage, WordKind::Nothing},
    {"ABOUT",                Stage::NeedsImage, WordKind::Nothing},
    // Sent by items and buttons, without a handler: odd, and kept
    {"RESTOREORIGINAL",      Stage::NeedsImage, WordKind::Nothing},
    {"N360",                 Stage::NeedsImage, WordKind::Nothing},
    {"A360",                 Stage::NeedsImage, WordKind::Nothing},

    // The frame's own
    {"@BROWSE",              Stage::Free,       WordKind::Window},
    {"@RECOVER",             Stage::Free,       WordKind::Window},
    {"@CAPTURE",             Stage::Free,       WordKind::Window},
    {"@ICON",                Stage::Free,       WordKind::Window},
    {"@NEXTPAGE",            Stage::NeedsImage, WordKind::Window},
    {"@PREVIOUSPAGE",        Stage::NeedsImage, WordKind::Window},
    {"@ASSOCIATION",         Stage::Free,       WordKind::Window},
    {"@EXIT",                Stage::Free,       WordKind::Window},
    {"@NEWVIEW",             Stage::NeedsImage, WordKind::View, {"VIEWS", "New View", "window-new"}},
    {"@PROPERTIES",          Stage::NeedsImage, WordKind::Window},
    {"@ABOUT",               Stage::Free,       WordKind::Window},
    {"@SELECTALL",           Stage::NeedsImage, WordKind::View, {"SELECT", "Select &All", "edit-select-all", "Ctrl+A"}},
    {"@SELECTNONE",          Stage::NeedsImage, WordKind::View, {"SELECT", "Select Non&e", "edit-select-none", "Ctrl+Shift+A"}},
    {"@SELECTINVERTED",      Stage::NeedsImage, WordKind::View, {"SELECT", "In&vert Selection", "edit-select-invert", "Ctrl+I"}},
    {"@RESET",               Stage::Free,       WordKind::Window},
    {"@RECENT",              Stage::Free,       WordKind::Window, {}, 8},
    {"@BAR",                 Stage::Free,       WordKind::Window, {}, 7},
    {"@COLORBOX",            Stage::Free,       WordKind::Window},
    {"@TEXTURESBOX",         Stage::Free,       WordKind::Window},
    {"@CLIPBOARDBOX",        Stage::Free,       WordKind::Window},
    {"@HISTORYBOX",          Stage::Free,       WordKind::Window},
    {"@SAVEALL",             Stage::Free,       WordKind::Window},
    {"@RUNRECIPE",           Stage::NeedsImage, WordKind::Window},
    {"@SAVERECIPE",          Stage::NeedsImage, WordKind::Window},
    {"@RUNONFOLDER",         Stage::Free,       WordKind::Window},
    {"@STATUSBAR",           Stage::Free,       WordKind::Window},
    {"@SIDEBAR",             Stage::Free,       WordKind::Window},
    {"@FULLSCREEN",          Stage::Free,       WordKind::Window},
    {"@HELP",                Stage::Free,       WordKind::Window},
    {"@KEYS",                Stage::Free,       WordKind::Window},
    {"@SEARCH",              Stage::Free,       WordKind::Window},
    {"@CAMERA",              Stage::Free,       WordKind::Nothing},
    {"@ZOOMP",               Stage::Free,       WordKind::Drop},
    {"@ZOOMM",               Stage::Free,       WordKind::Drop},
    {"@QUICKROTATE",         Stage::Free,       WordKind::Drop},
    {"@QUALITYROTATE",       Stage::Free,       WordKind::Drop},
    {"@QUALITYSIZE",         Stage::Free,       WordKind::Drop},
    {"@QUICKCAPTURE",        Stage::Free,       WordKind::Drop},
    {"@WALLPAPER",           Stage::Free,       WordKind::Drop},
};
// clang-format on

/// All words: those above and those of the three other tables, each once.
std::span<const CommandWord> vocabulary();
/// Exact match; null when there is no such word.
const CommandWord* findCommandWord(std::string_view word);

/// True for a word of kCommandWords, for checks at compile time.
constexpr bool isCommandWord(std::string_view word)
{
    return std::ranges::find(kCommandWords, word, &CommandWord::word) != std::end(kCommandWords);
}

} // namespace velara
