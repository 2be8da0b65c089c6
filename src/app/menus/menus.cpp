#include "app/menus/menus.h"
#include "commands/vocabulary.h"
#include "seams/text.h"
#include "tools/toolRows.h"
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <string>

namespace velara {

namespace {

using enum MenuKind;

// clang-format off
constexpr MenuRow kMenus[] = {
    {Menu, "mnuFile", 0, "&File"},
        {Item, "FILE", 0, "&New ...", "NEW", "Ctrl+N"},
        {Item, "FILE", 1, "&Open ...", "OPEN", "Ctrl+O"},
        {Item, "FILE", 2, "&Browse ...", "@BROWSE"},
        {SubMenu, "mnuRecent", 0, "Open &Recent"},
            {Items, "RF", 0, "", "@RECENT"},
        {End},
        {Item, "PAGE", 0, "Next Pa&ge", "@NEXTPAGE", "Ctrl+PgDown"},
        {Item, "PAGE", 1, "Prev&ious Page", "@PREVIOUSPAGE", "Ctrl+PgUp"},
        {Item, "mnuRecover", 0, "Reco&ver ...", "@RECOVER"},
        {Separator},
        {Item, "FILE", 4, "&Close", "CLOSE", "Ctrl+W"},
        {Separator},
        {Item, "FILE", 6, "&Save", "SAVE", "Ctrl+S"},
        {Item, "FILE", 7, "Save &As ...", "SAVEAS", "Ctrl+Shift+S"},
        {Item, "FILE", 9, "Save A&ll ...", "@SAVEALL", "Ctrl+Alt+S"},
        {Item, "FILE", 8, "Save for &Web ...", "IMAGESAVEOPTIONS"},
        {Separator},
        {SubMenu, "mnuTwain", 0, "Scann&er"},
            {Item, "TWAIN", 0, "Acquire ...", "ACQUIRETWAIN"},
            {Item, "TWAIN", 1, "Select Source ...", "SELECTSOURCE"},
            {Separator},
            {Item, "Camera", 0, "Digital Camera", "@CAMERA"},
        {End},
        {SubMenu, "mnuPrinter", 0, "&Print"},
            {Item, "PRINTER", 0, "Print Preview", "PRINTPREVIEW"},
            {Item, "PRINTER", 1, "Printer Setup ...", "PRINTERSETUP"},
            {Item, "PRINTER", 2, "Print ...", "PRINT", "Ctrl+P"},
        {End},
        {Separator},
        {Item, "mnuExit", 0, "E&xit", "@EXIT", "Ctrl+Q"},
    {End},
    {Menu, "mnuEdit", 0, "&Edit"},
        {Item, "EDIT", 0, "&Undo", "UNDO", "Ctrl+Z"},
        {Item, "EDIT", 1, "&Redo", "REDO", "Ctrl+Y Ctrl+Shift+Z"},
        {Separator},
        {Item, "EDIT", 3, "Cu&t", "CUT", "Ctrl+X"},
        {Item, "EDIT", 4, "&Copy", "COPY", "Ctrl+C"},
        {Item, "EDIT", 5, "&Paste", "PASTE", "Ctrl+V"},
        {Separator},
        {Words, "SELECT"},
        {Separator},
        {Item, "EDIT", 7, "Create &New Copy", "CREATENEWCOPY"},
        {Item, "EDIT", 8, "Copy Image to Clip&board", "COPYIMAGETOCLIPBOARD"},
        {Item, "EDIT", 9, "Create &from Clipboard", "CREATEFROMCLIPBOARD"},
        {Separator},
        {Item, "EDIT", 11, "Cr&op", "CROP", "Ctrl+Shift+X"},
        {Separator},
        {SubMenu, "mnuRecipes", 0, "Recipes"},
            {Item, "RECIPE", 0, "&Run Recipe ...", "@RUNRECIPE", "Ctrl+Alt+R"},
            {Item, "RECIPE", 1, "&Save Recipe ...", "@SAVERECIPE"},
            {Item, "RECIPE", 2, "Run on a &Folder ...", "@RUNONFOLDER", "Ctrl+Alt+F"},
        {End},
        {Separator},
        {Item, "EDIT", 13, "I&mage Properties", "IMAGEPROPERTIES"},
        {Item, "EDIT", 14, "Opt&ions ...", "OPTIONS"},
    {End},
    {Menu, "mnuImage", 0, "&Image"},
        {Words, "IMAGE"},
        {Separator},
        {Item, "IMAGE", 5, "Restore Original", "RESTOREORIGINAL"},
        {Separator},
        {SubMenu, "mnuZoomP", 0, "Zoom &In"},
            {Item, "ZoomP", 0, "200 %", "200"}, {Item, "ZoomP", 1, "300 %", "300"}, {Item, "ZoomP", 2, "400 %", "400"},
            {Item, "ZoomP", 3, "500 %", "500"}, {Item, "ZoomP", 4, "600 %", "600"}, {Item, "ZoomP", 5, "700 %", "700"},
        {End},
        {SubMenu, "mnuZoomM", 0, "Zoom &Out"},
            {Item, "ZoomM", 0, "50 %", "50"}, {Item, "ZoomM", 1, "33 %", "33"}, {Item, "ZoomM", 2, "25 %", "25"},
            {Item, "ZoomM", 3, "20 %", "20"}, {Item, "ZoomM", 4, "15 %", "15"}, {Item, "ZoomM", 5, "10 %", "10"},
        {End},
        {Item, "ORIGINAL", 0, "Original Size", "ORIGINAL", "Ctrl+0"},
        {SubMenu, "mnuAA", 0, "&Quality Size"},
            {Item, "AA", 0, "2 x larger", "2x"}, {Item, "AA", 1, "3 x larger", "3x"},
            {Item, "AA", 2, "4 x larger", "4x"}, {Item, "AA", 3, "5 x larger", "5x"},
            {Separator},
            {Item, "AA", 5, "2 x smaller", "x2"}, {Item, "AA", 6, "3 x smaller", "x3"},
            {Item, "AA", 7, "4 x smaller", "x4"}, {Item, "AA", 8, "5 x smaller", "x5"},
        {End},
        {Separator},
        {SubMenu, "mnuQuickRotate", 0, "Quick Rotate"},
            {Item, "QUICKROTATE", 0, "45°", "N45"}, {Item, "QUICKROTATE", 1, "90°", "N90", "Ctrl+R"},
            {Item, "QUICKROTATE", 2, "180°", "N180", "Ctrl+Shift+R"}, {Item, "QUICKROTATE", 3, "270°", "N270", "Ctrl+L"},
        {End},
        {SubMenu, "mnuQualityRotate", 0, "Quality Rotate"},
            {Item, "QUALITYROTATE", 0, "45°", "A45"}, {Item, "QUALITYROTATE", 1, "90°", "A90"},
            {Item, "QUALITYROTATE", 2, "180°", "A180"}, {Item, "QUALITYROTATE", 3, "270°", "A270"},
        {End},
        {Item, "FLIPH", 0, "Flip &Horizontal", "FLIPH"},
        {Item, "FLIPV", 0, "Flip &Vertical", "FLIPV"},
        {Separator},
        {Item, "mnuProperties", 0, "&Properties ...", "@PROPERTIES", "Alt+Return"},
    {End},
    {Menu, "mnuColors", 0, "&Colors"},
        {Item, "COLORS", 0, "Tweak RGB", "RGBLEVELS"},
        {Item, "COLORS", 1, "Old Photo", "OLDPHOTO"},
        {Item, "COLORS", 2, "Colorize", "COLORIZE"},
        {Item, "COLORS", 3, "Sketch", "SKETCH"},
        {Item, "COLORS", 4, "Isolate", "ISOLATE"},
        {Item, "COLORS", 5, "Shift", "SHIFT"},
        {Item, "COLORS", 6, "Sepia Tone", "SEPIATONE"},
        {Item, "COLORS", 7, "Hue Stretch", "HUESTRETCH"},
        {Words, "COLORS"},
        {Separator},
        {SubMenu, "mnuReplace", 0, "Replace"},
            {Words, "REPLACE"},
        {End},
        {SubMenu, "mnuSwap", 0, "Swap"},
            {Item, "SWAP", 0, "RGB To BRG", "RGB2BRG"}, {Item, "SWAP", 1, "RGB To GBR", "RGB2GBR"},
            {Item, "SWAP", 2, "RGB To RBG", "RGB2RBG"}, {Item, "SWAP", 3, "RGB To BGR", "RGB2BGR"},
            {Item, "SWAP", 4, "RGB To GRB", "RGB2GRB"},
            {Separator},
            {Item, "SWAP", 6, "RGB Banks", "RGBBANKS"},
        {End},
        {SubMenu, "mnuAddColors", 0, "Add Colors"},
            {Item, "ADDCOLORS", 0, "Soft Red", "SOFTRED"}, {Item, "ADDCOLORS", 1, "Hard Red", "HARDRED"},
            {Separator},
            {Item, "ADDCOLORS", 3, "Soft Green", "SOFTGREEN"}, {Item, "ADDCOLORS", 4, "Hard Green", "HARDGREEN"},
            {Separator},
            {Item, "ADDCOLORS", 6, "Soft Blue", "SOFTBLUE"}, {Item, "ADDCOLORS", 7, "Hard Blue", "HARDBLUE"},
            {Separator},
            {Item, "ADDCOLORS", 9, "Soft Yellow", "SOFTYELLOW"}, {Item, "ADDCOLORS", 10, "Hard Yellow", "HARDYELLOW"},
            {Separator},
            {Item, "ADDCOLORS", 12, "Cyan", "CYAN"}, {Item, "ADDCOLORS", 13, "Magenta", "MAGENTA"},
            {Item, "ADDCOLORS", 14, "Orange", "ORANGE"}, {Item, "ADDCOLORS", 15, "Purple", "PURPLE"},
            {Separator},
            {Item, "ADDCOLORS", 17, "Retro", "RETRO"}, {Item, "ADDCOLORS", 18, "Spotted", "SPOTTED"},
            {Item, "ADDCOLORS", 19, "Wet Paper", "WETPAPER"},
        {End},
    {End},
    {Menu, "mnuFilters", 0, "Fi&lters"},
        {Item, "FILTERS", 0, "Invert", "INVERT"},
        {Item, "FILTERS", 1, "Greyscale", "GRAYSCALE"},
        {Item, "FILTERS", 2, "Relief", "RELIEF"},
        {Item, "FILTERS", 3, "Erode", "ERODE"},
        {Item, "FILTERS", 4, "Dilate", "DILATE"},
        {Item, "FILTERS", 5, "Painting", "PAINTING"},
        {Item, "FILTERS", 6, "Edge Enhance", "EDGEENHANCE"},
        {Separator},
        {SubMenu, "LUMINOUS", 0, "Luminousity"},
            {Item, "LUMINOUS", 0, "Light", "LUMPLUS"}, {Item, "LUMINOUS", 1, "Heavy", "LUMMINUS"},
            {Separator},
            {Item, "LUMINOUS", 3, "Custom ...", "LIGHTCUSTOM"},
        {End},
        {Strengths, "EMBOSS", 0, "Emboss"},
        {Strengths, "CONTOUR", 0, "Contour"},
        {Strengths, "DIFFUSE", 0, "Diffuse"},
        {Strengths, "ENGRAVE", 0, "Engrave"},
        {Strengths, "SOFTEN", 0, "Soften"},
        {Strengths, "SHARPEN", 0, "Sharpen"},
        {Strengths, "BLUR", 0, "Blur"},
        {Strengths, "NOISE", 0, "Noise"},
        {Strengths, "SATURATION", 0, "Saturation"},
        {Separator},
        {SubMenu, "mnuAdd", 0, "Add"},
            {Words, "ADD"},
        {End},
    {End},
    {Menu, "mnuEffects", 0, "Effect&s"},
        {Item, "EFFECTS", 0, "Haftone", "HAFTONE"},
        {Item, "EFFECTS", 1, "Pixelize", "PIXELIZE"},
        {Item, "EFFECTS", 2, "Mosaic", "MOSAIC"},
        {Item, "EFFECTS", 3, "Contrast", "CONTRAST"},
        {Item, "EFFECTS", 4, "Brightness", "BRIGHTNESS"},
        {Words, "EFFECTS"},
        {Separator},
        {Item, "EFFECTS", 7, "Thermique", "THERMIQUE"},
        {Item, "EFFECTS", 8, "X-Black", "XBLACK"},
        {Item, "EFFECTS", 9, "Photo Cop", "PHOTOCOP"},
        {Separator},
        {SubMenu, "mnuShapes", 0, "Shapes"},
            {Words, "SHAPES"},
        {End},
        {SubMenu, "mnuGlass", 0, "Glass"},
            {Item, "GLASS", 0, "Slanting", "SLANTING"}, {Item, "GLASS", 1, "Horizontal", "HORIZONTAL"},
            {Item, "GLASS", 2, "Vertical", "VERTICAL"}, {Item, "GLASS", 3, "Squary", "SQUARY"},
            {Separator},
            {Item, "GLASS", 5, "Custom ...", "CUSTOMGLASS"},
        {End},
        {SubMenu, "mnuCurtain", 0, "Curtain"},
            {Item, "CURTAIN", 0, "Horizontal", "CURTAINHORIZONTAL"}, {Item, "CURTAIN", 1, "Vertical", "CURTAINVERTICAL"},
            {Item, "CURTAIN", 2, "Classy", "CURTAINCLASSY"}, {Item, "CURTAIN", 3, "Whity", "CURTAINWHITY"},
            {Separator},
            {Item, "CURTAIN", 5, "Custom ...", "CUSTOMCURTAIN"},
        {End},
    {End},
    {Menu, "mnuTools", 0, "&Tools"},
        {Item, "TOOLS", 0, "Image Merging ...", "IMAGEMERGING"},
        {Item, "TOOLS", 1, "Screen Capture ...", "@CAPTURE"},
        {Item, "TOOLS", 2, "Image Textures ...", "IMAGETEXTURES"},
        {Item, "TOOLS", 3, "Image Resolution ...", "IMAGERESOLUTION"},
        {Item, "TOOLS", 4, "Color Depth ...", "IMAGECOLORDEPTH"},
        {Item, "TOOLS", 5, "Save for Web ...", "IMAGESAVEOPTIONS"},
        {Separator},
        {Item, "TOOLS", 7, "Text Tools ...", "TEXTTOOLS"},
        {Item, "TOOLS", 8, "Icon Extractor ...", "@ICON"},
        {Separator},
        {Item, "TOOLS", 10, "File Associations ...", "@ASSOCIATION"},
        {Separator},
        {SubMenu, "mnuCapture", 0, "Quick Capture"},
            {Words, "CAPTURE"},
        {End},
        {SubMenu, "mnuWallpaper", 0, "Set as Wallpaper"},
            {Words, "WALLPAPER"},
        {End},
    {End},
    {Menu, "mnuViews", 0, "&Views"},
        {Words, "VIEWS"},
        {Separator},
        {Item, "VIEWS", 4, "Color Box", "@COLORBOX", "", true},
        {Item, "VIEWS", 5, "Textures Box", "@TEXTURESBOX", "", true},
        {Item, "VIEWS", 6, "Clipboard Box", "@CLIPBOARDBOX", "", true},
        {Item, "VIEWS", 7, "History", "@HISTORYBOX", "Ctrl+H", true},
        {Separator},
        {Item, "VIEWS", 8, "Status Bar", "@STATUSBAR", "", true},
        {Item, "VIEWS", 9, "Side Tools  Bar : Hide n Seek", "@SIDEBAR", "", true},
        {Item, "VIEWS", 10, "Full Screen", "@FULLSCREEN", "F11", true},
        {Separator},
        {SubMenu, "mnuBars", 0, "Toolbars"},
            {Items, "BAR", 0, "", "@BAR", "", true},
        {End},
        {Item, "RESET", 0, "Store Toolbar Layout", "@RESET"},
    {End},
    {Menu, "mnuHelp", 0, "&Help"},
        {Item, "HELP", 0, "&Help ...", "@HELP", "F1"},
        {Item, "HELP", 2, "&Keys and Mouse ...", "@KEYS", "Ctrl+F1"},
        {Item, "HELP", 1, "&Find a Command ...", "@SEARCH", "Ctrl+Shift+P"},
        {Separator},
        {Item, "ABOUT", 10, "&About Velara Studio", "@ABOUT"},
    {End},
};

constexpr BarRow kBars[] = {    // the order of Setup::BarVisible
    {"tb_0",      "tb_0",       "Standard"},
    {"tb_1",      "tb_1",       "Effects"},
    {"tb_Image",  "tbi",        "Image"},
    {"tbCapture", "tbCaptureB", "Utilities"},
    {"tb_Help",   "tb_HelpB",   "Help"},
    {"tbTools",   "tbToolsB",   "Tools"},
    {"tb_2",      "tb_2",       "Filters"},
};

constexpr ButtonRow kButtons[] = {
    {"tb_0", 1, "New", "NEW"}, {"tb_0", 2, "Open", "OPEN"}, {"tb_0", 4, "Save as", "SAVEAS"},
    {"tb_0", 5, "Print", "PRINT"}, {"tb_0", 7, "Undo", "UNDO"}, {"tb_0", 8, "Redo", "REDO"},
    {"tb_0", 10, "Cut", "CUT"}, {"tb_0", 11, "Copy", "COPY"}, {"tb_0", 12, "Paste", "PASTE"},

    {"tb_1", 1, "Haftone", "HAFTONE"}, {"tb_1", 2, "X-Black", "XBLACK"}, {"tb_1", 3, "Photo Cop", "PHOTOCOP"},
    {"tb_1", 5, "Pixelize", "PIXELIZE"}, {"tb_1", 6, "Glass: Horizontal", "HORIZONTAL"}, {"tb_1", 7, "Waves", "WWAVES"},
    {"tb_1", 9, "Luminousity: Light", "LUMPLUS"}, {"tb_1", 10, "Luminousity: Heavy", "LUMMINUS"},
    {"tb_1", 11, "Contrast", "CONTRAST"}, {"tb_1", 13, "Scanlines", "AADDSCANLINES"},
    {"tb_1", 14, "Thermique", "THERMIQUE"},

    {"tb_2", 1, "Invert", "INVERT"}, {"tb_2", 2, "Greyscale", "GRAYSCALE"}, {"tb_2", 4, "Brightness", "BBRIGHTNESS"},
    {"tb_2", 5, "Blur: Light", "LIGHTBLUR"}, {"tb_2", 7, "Emboss: Light", "LIGHTEMBOSS"},
    {"tb_2", 8, "Contour: Light", "LIGHTCONTOUR"}, {"tb_2", 10, "Diffuse: Light", "LIGHTDIFFUSE"},
    {"tb_2", 11, "Engrave: Light", "LIGHTENGRAVE"}, {"tb_2", 13, "Soften: Heavy", "HEAVYSOFTEN"},
    {"tb_2", 14, "Noise: Light", "LIGHTNOISE"}, {"tb_2", 16, "Saturation: Heavy", "HEAVYSATURATION"},

    {"tbi", 1, "Original size", "ORIGINAL"}, {"tbi", 2, "Zoom in", "@ZOOMP"}, {"tbi", 3, "Zoom out", "@ZOOMM"},
    {"tbi", 5, "Quick rotate", "@QUICKROTATE"}, {"tbi", 6, "Quality rotate", "@QUALITYROTATE"},
    {"tbi", 8, "Quality size", "@QUALITYSIZE"},

    {"tbToolsB", 1, "Save for web", "IMAGESAVEOPTIONS"}, {"tbToolsB", 2, "Screen capture", "@CAPTURE"},
    {"tbToolsB", 3, "Image resolution", "IMAGERESOLUTION"}, {"tbToolsB", 4, "Image merging", "IMAGEMERGING"},
    {"tbToolsB", 5, "Image textures", "IMAGETEXTURES"}, {"tbToolsB", 6, "Color depth", "IMAGECOLORDEPTH"},
    {"tbToolsB", 8, "Text tools", "TEXTTOOLS"}, {"tbToolsB", 9, "Icon extractor", "@ICON"},

    {"tbCaptureB", 1, "Quick capture", "@QUICKCAPTURE"}, {"tbCaptureB", 2, "Set as wallpaper", "@WALLPAPER"},

    {"tb_HelpB", 1, "About Velara Studio", "@ABOUT"},
};

constexpr DropRow kDrops[] = {
    {"tbi", 2, 1, "200 %", "200"}, {"tbi", 2, 2, "300 %", "300"}, {"tbi", 2, 3, "400 %", "400"},
    {"tbi", 2, 4, "500 %", "500"}, {"tbi", 2, 5, "600 %", "600"}, {"tbi", 2, 6, "700 %", "700"},
    {"tbi", 3, 1, "50 %", "50"}, {"tbi", 3, 2, "33 %", "33"}, {"tbi", 3, 3, "25 %", "25"},
    {"tbi", 3, 4, "20 %", "20"}, {"tbi", 3, 5, "15 %", "15"}, {"tbi", 3, 6, "10 %", "10"},
    {"tbi", 5, 1, "90°", "N90"}, {"tbi", 5, 2, "180°", "N180"}, {"tbi", 5, 3, "270°", "N270"},
    {"tbi", 5, 4, "360°", "N360"},      // turns nothing: odd, and kept
    {"tbi", 6, 1, "90°", "A90"}, {"tbi", 6, 2, "180°", "A180"}, {"tbi", 6, 3, "270°", "A270"},
    {"tbi", 6, 4, "360°", "A360"},
    {"tbi", 8, 1, "2 x larger", "2x"}, {"tbi", 8, 2, "3 x larger", "3x"},
    {"tbi", 8, 3, "4 x larger", "4x"}, {"tbi", 8, 4, "5 x larger", "5x"},
    {"tbi", 8, 6, "2 x smaller", "x2"}, {"tbi", 8, 7, "3 x smaller", "x3"},
    {"tbi", 8, 8, "4 x smaller", "x4"}, {"tbi", 8, 9, "5 x smaller", "x5"},
    {"tbCaptureB", 1, 1, "Desktop", "CAPTUREDESKTOP"}, {"tbCaptureB", 1, 2, "Foreground", "CAPTUREFOREGROUND"},
    {"tbCaptureB", 1, 3, "Background", "CAPTUREBACKGROUND"},
    {"tbCaptureB", 2, 1, "Tile", "WTILE"}, {"tbCaptureB", 2, 2, "Center", "WCENTER"},
    {"tbCaptureB", 2, 3, "Stretch", "WSTRETCH"},
};

constexpr StripRow kStrip[] = {
    {14, "MouseScroll", "Scroll with the hand (H)", true,  "H"},
    {15, "ZoomIn",      "Zoom in (Ctrl++)",         false, "Ctrl++ Ctrl+="},
    {16, "ZoomOut",     "Zoom out (Ctrl+-)",        false, "Ctrl+-"},
};
// clang-format on
static_assert(kStrip[0].number > kMostTools,
              "src/app/menus/menus.cpp: the buttons below the tools need numbers of their own");
static_assert(std::ranges::all_of(kMenuParts,
                                  [](std::string_view part) {
                                      return std::ranges::count_if(kMenus, [part](const MenuRow& row) {
                                                 return row.kind == Words && row.array == part;
                                             }) == 1;
                                  }),
              "a part of kMenuParts has no place: add a row {Words, part} to kMenus in src/app/menus/menus.cpp");

constexpr std::string_view kCustom = "Custom ...";

/// LIGHT, HEAVY or CUSTOM plus the name of the menu, as in the vocabulary.
std::string_view strengthWord(const char* strength, std::string_view menu)
{
    return findCommandWord(std::string(strength).append(menu))->word;
}

void appendStrengths(std::vector<MenuRow>& all, const MenuRow& row)
{
    all.insert(all.end(), {{SubMenu, row.array, 0, row.caption},
                           {Item, row.array, 0, "Light", strengthWord("LIGHT", row.array)},
                           {Item, row.array, 1, "Heavy", strengthWord("HEAVY", row.array)},
                           {Separator},
                           {Item, row.array, 3, kCustom, strengthWord("CUSTOM", row.array)},
                           {End}});
}

/// Appends the words whose own place is in this part, with numbers that no row of the table uses.
void appendWords(std::vector<MenuRow>& all, MenuRow row)
{
    row.kind = Item;
    const auto isTaken = [&row](const MenuRow& other) {
        return other.kind == Item && other.array == row.array && other.index == row.index;
    };
    for (const CommandWord& word : vocabulary()) {
        if (word.place.part != row.array) continue;
        while (std::ranges::any_of(kMenus, isTaken) || std::ranges::any_of(all, isTaken)) ++row.index;
        row.caption = word.place.caption;
        row.word = word.word;
        row.shortcuts = word.place.shortcuts;
        all.push_back(row);
    }
}

void appendItems(std::vector<MenuRow>& all, MenuRow row)
{
    row.kind = Item;
    const bool bars = row.word == "@BAR";
    for (row.index = 0; row.index < findCommandWord(row.word)->count; ++row.index) {
        if (bars) row.caption = kBars[row.index].caption;
        all.push_back(row);
    }
}

} // namespace

std::span<const MenuRow> menuRows()
{
    static const std::vector<MenuRow> rows = [] {
        std::vector<MenuRow> all;
        for (const MenuRow& row : kMenus) {
            if (row.kind == Strengths)
                appendStrengths(all, row);
            else if (row.kind == Words)
                appendWords(all, row);
            else if (row.kind == Items)
                appendItems(all, row);
            else
                all.push_back(row);
        }
        return all;
    }();
    return rows;
}

QString plainCaption(QString caption)
{
    static const QRegularExpression keyAtTheEnd(QStringLiteral("\\(&.\\)")); // where the letters are no keys
    if (caption.endsWith(" ...")) caption.chop(4);
    caption.remove(keyAtTheEnd);
    return caption.replace("&&", "\1").remove('&').replace('\1', '&');
}

std::vector<NamedItem> namedItems()
{
    std::vector<NamedItem> all;
    QStringList menus;
    for (const MenuRow& row : menuRows()) {
        const QString caption = plainCaption(shown("Menus", row.caption));
        if (row.kind == Menu || row.kind == SubMenu) menus << caption;
        if (row.kind == End) menus.removeLast();
        if (row.kind != Item) continue;
        const bool isInner = menus.size() > 1;
        all.push_back({&row,
                       isInner && row.caption == kCustom ? menus.back()
                       : isInner                         ? menus.back() + ": " + caption
                                                         : caption,
                       menus.join(QStringLiteral(" › "))});
    }
    return all;
}

QString nameOf(std::string_view word)
{
    for (const NamedItem& item : namedItems())
        if (item.row->word == word) return item.name;
    const auto button = std::ranges::find(kButtons, word, &ButtonRow::word);
    return button == std::end(kButtons) ? QString() : shown("Menus", button->caption);
}

std::span<const ButtonRow> buttonRows() { return kButtons; }
std::span<const DropRow> dropRows() { return kDrops; }
std::span<const BarRow> barRows() { return kBars; }
std::span<const StripRow> stripRows() { return kStrip; }

} // namespace velara
