#include "tools/toolRows.h"
#include <algorithm>

namespace velara {

// The classes, in tools_*.cpp.
const Tool &getColorTool(), &selectionMoveTool(), &selectTool(), &brushTool(), &fillTool(), &shapeTool(),
    &airbrushTool(), &stampTool(), &gradientTool(), &textTool(), &pencilTool(), &pasteTool();

namespace {

// clang-format off
constexpr PaneRow kSelection[] = {
    choice<&Setup::SelectionMode>    (PaneKind::Combo, "cbSelectionMode", "Mode of selecting", "Add|Subtract|New"),
    choice<&Setup::SelectionShape>   (PaneKind::Combo, "cbSelectionShape", "Shape of the selection", "Rectangle|Ellipse|Polygon/Free hand|Pixel"),
    slider<&Setup::SelectionPressure>("sbSelectionPressure", "Pressure", 0, 100),
    check<&Setup::MoveSelection>     ("chkMoveSelection", "&Move selection", "Move region / move pixels"),
};
constexpr PaneRow kSelectionMove[] = {
    choice<&Setup::MoveSelection>       (PaneKind::Combo, "cSelect", "What moves", "Move Selection Only|Move Content Only", "10"),
    check<&ToolStores::useMovePressure> ("cSelectionOwn", "&Use this intensity", "Instead of the selection's pressure"),
    slider<&ToolStores::movePressure>   ("cSelectionPressure", "Opaque Intensity", 0, 100),
};
constexpr PaneRow kBrush[] = {
    choice<&Setup::BrushMode>       (PaneKind::Combo, "cbBrushMode", "Mode of the brush",
                                     "Current color|Current stamp|Darken|Lighten|Sharpen|Soften|Soften (Overlay)", "0654312"),
    slider<&Setup::BrushSize>       ("sbBrushSize", "Size", 1, 200),
    slider<&Setup::BrushPressure>   ("sbBrushPressure", "Intensity", 0, 100),
};
constexpr PaneRow kFill[] = {
    choice<&Setup::FillMode>     (PaneKind::Combo, "cbFillMode", "What fills", "Current color|Current stamp"),
    slider<&Setup::FillTolerance>("sbFillTolerance", "Tolerance", 0, 765),
    slider<&Setup::FillPressure> ("sbFillPressure", "Pressure", 0, 100),
};
constexpr PaneRow kShape[] = {
    choice<&Setup::ShapeKind>    (PaneKind::List, "lstShape", "Shape", "Line|Free hand|Square|Rectangle|Circle|Ellipse|Polygon"),
    slider<&Setup::ShapePressure>("sbShapePressure", "Pressure", 0, 100),
    slider<&Setup::ShapeSides>   ("sbShapeSides", "Pol. sides", 3, 24).onlyWhen([](const Setup& s) { return s.ShapeKind == ShapeKind::Polygon; }),
};
constexpr PaneRow kAirbrush[] = {
    slider<&Setup::AirbrushSize>      ("sbAirbrushSize", "Size", 2, 200),
    slider<&Setup::AirbrushPressure>  ("sbAirbrushPressure", "Pressure", 0, 100),
    slider<&Setup::AirbrushQuantity>  ("sbAirBrushQuantity", "Quantity", 0, 100),
    slider<&Setup::AirbrushDefinition>("sbAirbrushDefinition", "Definition", 0, 100),
};
constexpr PaneRow kStamp[] = { // below the list of stamps
    check<&Setup::StampUseMaskColor>("chkUseMaskColor", "&Mask color :", "Use mask color"),
    well<&Setup::StampMaskColor>    ("MaskColor", "Mask color"),
    check<&Setup::StampMask>        ("chkStampMask", "&Stamp mask", "Current color stamp"),
    check<&Setup::StampClearBack>   ("chkClearBack", "&Clear back", "Clear stamp track"),
    slider<&Setup::StampPressure>   ("sbStampPressure", "Pressure", 0, 100),
};
constexpr PaneRow kGradient[] = { // above its preview
    choice<&Setup::GradientMode>       (PaneKind::Combo, "cbGradMode", "Form of the gradient", "Linear|Circular"),
    well<&Setup::GradientColor1>       ("GradColor_0", "First color"),
    check<&Setup::GradientTransparent1>("chkTranspCol_0", "Transparent"),
    well<&Setup::GradientColor2>       ("GradColor_1", "Second color"),
    check<&Setup::GradientTransparent2>("chkTranspCol_1", "Transparent"),
    slider<&Setup::GradientFrequency>  ("sbGradFrequency", "Frequency", 1, 20),
    slider<&Setup::GradientPressure>   ("sbGradPressure", "Pressure", 0, 100),
};
constexpr PaneRow kText[] = { // above the list of effects
    slider<&Setup::ToolOpacity>      ("sbTextOpacity", "Opacity", 0, 100),
    slider<&ToolStores::effectAmount>("sbAmount", "Amount %", 1, 100, "%"),
};
constexpr PaneRow kPencil[] = {slider<&Setup::ToolOpacity>("sbPencilOpacity", "Opacity", 0, 100)};

constexpr ToolRow kTools[] = {
    {"GetColor",      getColorTool,      'I', "Pick a color",       "color-picker",       Pointer::cPicker},
    {"SelectionMove", selectionMoveTool, 'M', "Move the selection", "transform-move",     Pointer::Sizing,    kSelectionMove, "SelectionMove", "fSelectionMove"},
    {"Select",        selectTool,        'S', "Select",             "select-rectangular", Pointer::Cross,     kSelection,     "Selection",     "FSelection"},
    {"Brush",         brushTool,         'B', "Brush",              "draw-brush",         Pointer::cBrush,    kBrush,         "Brush",         "FBrush"},
    {"Fill",          fillTool,          'F', "Fill",               "fill-color",         Pointer::cFill,     kFill,          "Fill",          "FFill"},
    {"Shape",         shapeTool,         'U', "Shape",              "draw-polygon",       Pointer::cPencil,   kShape,         "Shape",         "FShape"},
    {"Airbrush",      airbrushTool,      'A', "Airbrush",           "tool_spraycan",      Pointer::cAirBrush, kAirbrush,      "AirBrush",      "FAirbrush"},
    {"Stamp",         stampTool,         'K', "Stamp",              ":stamp",             Pointer::cTextures, kStamp,         "Stamp",         "FStamp"},
    {"Gradient",      gradientTool,      'G', "Gradient",           "color-gradient",     Pointer::cGradient, kGradient,      "Gradient",      "FGradient"},
    {"Text",          textTool,          'T', "Text",               "draw-text",          Pointer::cPencil,   kText,          "Text",          "FEffect"},
    {"Pencil",        pencilTool,        'P', "Pencil",             "draw-freehand",      Pointer::cPencil,   kPencil,        "Pencil",        "FPencil"},
};
constexpr ToolRow kPaste = {"Paste", pasteTool, 0, "Paste", "edit-paste", Pointer::Sizing};
// clang-format on

consteval bool isSound()
{
    for (const ToolRow& row : kTools)
        for (const ToolRow& other : kTools)
            if (&other != &row && (other.key == row.key || std::string_view(other.name) == row.name)) return false;
    return true;
}
static_assert(isSound(), "src/tools/toolRows.cpp: a name and a key choose one tool");
static_assert(std::size(kTools) <= kMostTools,
              "more tools than the strip has room for: see kStrip in src/app/menus/menus.cpp");

} // namespace

std::span<const ToolRow> toolRows() { return kTools; }
const ToolRow& pasteRow() { return kPaste; }

const ToolRow* findTool(QStringView name)
{
    while (name.endsWith(u' ')) name.chop(1);
    const auto* found =
        std::ranges::find_if(kTools, [name](const ToolRow& row) { return name == QLatin1String(row.name); });
    return found == std::end(kTools) ? nullptr : found;
}

} // namespace velara
