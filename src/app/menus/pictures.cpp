#include "app/menus/menus.h"
#include "commands/vocabulary.h"
#include "tools/toolRows.h"
#include <algorithm>

namespace velara {

namespace {

struct PictureRow {
    std::string_view word, picture;
};

// clang-format off
constexpr PictureRow kPictures[] = {
    {"NEW", "document-new"}, {"OPEN", "document-open"}, {"@BROWSE", "document-open-folder"}, {"CLOSE", "document-close"},
    {"@NEXTPAGE", "go-next-view-page"}, {"@PREVIOUSPAGE", "go-previous-view-page"},
    {"SAVE", "document-save"}, {"SAVEAS", "document-save-as"}, {"@SAVEALL", "document-save-all"},
    {"@RUNRECIPE", "media-playback-start"}, {"@SAVERECIPE", "document-save"},
    {"@RUNONFOLDER", "folder-pictures"}, {"IMAGESAVEOPTIONS", "document-export"},
    {"@RECOVER", "document-revert"},
    {"ACQUIRETWAIN", "document-scan"}, {"SELECTSOURCE", "configure"}, {"PRINTPREVIEW", "document-print-preview"},
    {"PRINTERSETUP", "document-properties"}, {"PRINT", "document-print"}, {"@EXIT", "application-exit"},
    {"UNDO", "edit-undo"}, {"REDO", "edit-redo"}, {"CUT", "edit-cut"}, {"COPY", "edit-copy"}, {"PASTE", "edit-paste"},
    {"CREATENEWCOPY", "window-duplicate"}, {"COPYIMAGETOCLIPBOARD", "insert-image"},
    {"CREATEFROMCLIPBOARD", "edit-paste-in-place"}, {"CROP", "transform-crop"}, {"IMAGEPROPERTIES", "documentinfo"},
    {"OPTIONS", "configure"},

    {"RESTOREORIGINAL", "document-revert"}, {"ORIGINAL", "zoom-original"}, {"@ZOOMP", "zoom-in"},
    {"@ZOOMM", "zoom-out"}, {"@QUICKROTATE", "object-rotate-right"}, {"@QUALITYROTATE", "transform-rotate"},
    {"@QUALITYSIZE", "transform-scale"}, {"FLIPH", "object-flip-horizontal"}, {"FLIPV", "object-flip-vertical"},
    {"@PROPERTIES", "documentinfo"},
    {"IMAGEMERGING", "merge"}, {"@CAPTURE", "camera-photo"}, {"@QUICKCAPTURE", "flash"},
    {"IMAGETEXTURES", "texture"}, {"IMAGERESOLUTION", "measure"}, {"IMAGECOLORDEPTH", "color-management"},
    {"TEXTTOOLS", "insert-text-frame"}, {"@ICON", "shapes"}, {"@ASSOCIATION", "document-open-data"},
    {"@WALLPAPER", "viewimage"}, {"@ABOUT", "help-about"}, {"@RESET", "document-save-as-template"},
    {"@HELP", "help-contents"}, {"@KEYS", "input-keyboard"}, {"@SEARCH", "edit-find"}, {"@FULLSCREEN", "view-fullscreen"},

    {"INVERT", "invertimage"}, {"GRAYSCALE", ":greyscale"}, {"HAFTONE", ":halftone"}, {"XBLACK", ":xblack"},
    {"PHOTOCOP", ":photocop"}, {"PIXELIZE", ":pixelize"}, {"HORIZONTAL", ":glass"}, {"WWAVES", ":waves"},
    {"LUMPLUS", ":sun_light"}, {"LUMMINUS", ":sun_heavy"}, {"BRIGHTNESS", ":sun_level"},
    {"BBRIGHTNESS", ":sun_level"}, {"CONTRAST", ":contrast"}, {"AADDSCANLINES", ":scanlines"},
    {"THERMIQUE", ":thermique"}, {"LIGHTBLUR", ":blur"}, {"LIGHTEMBOSS", ":emboss"},
    {"LIGHTCONTOUR", ":contour"}, {"LIGHTDIFFUSE", ":diffuse"}, {"LIGHTENGRAVE", ":engrave"},
    {"HEAVYSOFTEN", ":soften"}, {"LIGHTNOISE", ":noise"}, {"HEAVYSATURATION", ":saturation"},
    {"LIGHTSHARPEN", "sharpenimage"}, {"PAINTING", "oilpaint"}, {"SKETCH", "draw-freehand"},
    {"RGBLEVELS", ":channels"}, {"COLORIZE", ":colorize"},

    {"MouseScroll", "hand"}, {"ZoomIn", ":zoom_in"}, {"ZoomOut", ":zoom_out"},
};
// clang-format on

} // namespace

std::string_view pictureOf(std::string_view word)
{
    for (const ToolRow& tool : toolRows())
        if (tool.name == word) return tool.icon;
    if (const CommandWord* command = findCommandWord(word); command && !command->place.picture.empty())
        return command->place.picture;
    const auto row = std::ranges::find(kPictures, word, &PictureRow::word);
    return row == std::end(kPictures) ? std::string_view() : row->picture;
}

} // namespace velara
