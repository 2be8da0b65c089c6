// What the captions of the menus don't say: hover texts, and the other words by which fSearch finds an item.
#include "app/menus/menus.h"
#include <algorithm>

namespace velara {

namespace {

// clang-format off
constexpr WordHelp kHelp[] = {
    {"NEW",                 "", "blank empty create"},
    {"OPEN",                "", "load import file"},
    {"@BROWSE",             "", "thumbnails folder gallery"},
    {"@NEXTPAGE",           "The next page or frame of the file, in a window of its own", "tiff gif animation icon"},
    {"@PREVIOUSPAGE",       "The page or frame of the file before this one", "tiff gif animation icon"},
    {"@RECOVER",            "Pictures that were not saved when the program ended", "crash unsaved restore lost"},
    {"SAVEAS",              "", "export rename convert format"},
    {"@SAVEALL",            "Writes every changed picture to its own file", "every open"},
    {"@RUNRECIPE",          "Does the steps of a recipe to this picture, as one", "macro action script batch replay"},
    {"@SAVERECIPE",         "Keeps what was done to this picture, to do it to others", "macro action script batch record"},
    {"@RUNONFOLDER",        "Does a recipe to many pictures, beside the editor", "batch many pictures macro convert all"},
    {"@HISTORYBOX",         "What was done to this picture", "undo steps states back"},
    {"IMAGESAVEOPTIONS",    "", "export gif jpeg png small kilobytes compress quality"},
    {"ACQUIRETWAIN",        "", "scan paper"},
    {"UNDO",                "", "back revert mistake"},
    {"REDO",                "", "again forward"},
    {"PASTE",               "", "insert clipboard"},
    {"CREATEFROMCLIPBOARD", "", "paste as new picture"},
    {"CREATENEWCOPY",       "", "duplicate"},
    {"CROP",                "", "cut out trim margins"},
    {"OPTIONS",             "", "settings preferences configure"},
    {"@SELECTNONE",         "", "deselect"},
    {"IMAGESIZE",           "", "resize scale percent width height pixels larger smaller"},
    {"CANVASSIZE",          "", "border margin room enlarge"},
    {"IMAGERESOLUTION",     "", "resize"},
    {"@PROPERTIES",         "", "exif camera date place gps profile metadata information facts"},
    {"ORIGINAL",            "", "zoom 100 % actual pixels"},
    {"N90",                 "", "turn right clockwise"},
    {"N270",                "", "turn left counterclockwise"},
    {"N180",                "", "turn upside down"},
    {"IMAGEROTATE",         "", "turn angle degrees straighten horizon"},
    {"IMAGEORIENTATION",    "", "turn portrait landscape"},
    {"FLIPH",               "", "mirror left right"},
    {"FLIPV",               "", "mirror top bottom upside down"},
    {"COLORIZE",            "", "tint hue"},
    {"REPLACE",             "", "recolour change colour"},
    {"GRAYSCALE",           "", "black and white grey monochrome"},
    {"INVERT",              "", "negative"},
    {"OLDPHOTO",            "", "vintage brown"},
    {"SEPIATONE",           "", "vintage brown old"},
    {"BRIGHTNESS",          "", "lighter darker exposure"},
    {"LIGHTCUSTOM",         "", "brightness lighter darker exposure"},
    {"CONTRAST",            "", "fade dull"},
    {"LIGHTBLUR",           "Mixes each pixel from those one pixel away: too little to hide anything", "soft unsharp"},
    {"HEAVYBLUR",           "Mixes each pixel from those two pixels away: too little to hide anything", "soft unsharp"},
    {"CUSTOMBLUR",          "Mixes each pixel from those up to two pixels away: too little to hide anything", "soft unsharp"},
    {"PIXELIZE",            "Squares of one colour: hides a face or a number plate", "hide a face censor anonymous number plate mosaic blocks"},
    {"LIGHTSHARPEN",        "", "crisp focus"},
    {"HEAVYSHARPEN",        "", "crisp focus"},
    {"CUSTOMSHARPEN",       "", "crisp focus"},
    {"CUSTOMNOISE",         "", "grain"},
    {"IMAGEMERGING",        "", "overlay blend double exposure two pictures"},
    {"IMAGECOLORDEPTH",     "", "palette indexed 256 16 colours reduce dither"},
    {"TEXTTOOLS",           "", "write letters caption font"},
    {"@CAPTURE",            "", "screenshot window screen"},
    {"CAPTUREDESKTOP",      "", "screenshot whole screen"},
    {"WSTRETCH",            "", "desktop background"},
    {"WCENTER",             "", "desktop background"},
    {"WTILE",               "", "desktop background"},
    {"@ICON",               "", "ico extract"},
    {"@ASSOCIATION",        "", "default program double click"},
    {"@NEWVIEW",            "", "second window"},
    {"@HELP",               "The manual, at the page of what you are doing", "manual guide documentation how"},
    {"@KEYS",               "", "keys shortcuts keyboard"},
    {"@ABOUT",              "", "version licence"},
    {"@EXIT",               "", "quit close"},
};
// clang-format on

} // namespace

WordHelp helpOf(std::string_view word)
{
    const auto found = std::ranges::find(kHelp, word, &WordHelp::word);
    return found == std::end(kHelp) ? WordHelp{} : *found;
}

} // namespace velara
