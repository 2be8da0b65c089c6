#include "ui/panes/fToolPanes.h"
#include "seams/Frame.h"
#include "seams/Platform.h"
#include "ui/panes/fGradient.h"
#include "ui/panes/fStamp.h"
#include <QScrollArea>
#include <QVBoxLayout>

namespace velara {

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
constexpr PaneRow kAirbrush[] = {
    slider<&Setup::AirbrushSize>      ("sbAirbrushSize", "Size", 2, 200),
    slider<&Setup::AirbrushPressure>  ("sbAirbrushPressure", "Pressure", 0, 100),
    slider<&Setup::AirbrushQuantity>  ("sbAirBrushQuantity", "Quantity", 0, 100),
    slider<&Setup::AirbrushDefinition>("sbAirbrushDefinition", "Definition", 0, 100),
};
constexpr PaneRow kFill[] = {
    choice<&Setup::FillMode>     (PaneKind::Combo, "cbFillMode", "What fills", "Current color|Current stamp"),
    slider<&Setup::FillTolerance>("sbFillTolerance", "Tolerance", 0, 765),
    slider<&Setup::FillPressure> ("sbFillPressure", "Pressure", 0, 100),
};

template <auto& Rows> fPane* plain(Frame& frame, const QString& name) { return new fPane(frame, name, Rows); }
template <class Pane> fPane* own(Frame& frame, const QString& name) { return new Pane(frame, name); }

constexpr ToolPaneRow kPanes[] = {
    {"SelectionMove", "SelectionMove", "fSelectionMove", plain<kSelectionMove>},
    {"Select",        "Selection",     "FSelection",     plain<kSelection>},
    {"Brush",         "Brush",         "FBrush",         plain<kBrush>},
    {"Fill",          "Fill",          "FFill",          plain<kFill>},
    {"Shape",         "Shape",         "FShape",         own<FShape>},
    {"Airbrush",      "AirBrush",      "FAirbrush",      plain<kAirbrush>},
    {"Stamp",         "Stamp",         "FStamp",         own<FStamp>},
    {"Gradient",      "Gradient",      "FGradient",      own<FGradient>},
};
// clang-format on

fPane* make(const QString& tool, Frame& frame, const char* ToolPaneRow::*name)
{
    for (const ToolPaneRow& row : kPanes)
        if (tool == QLatin1String(row.tool)) return row.make(frame, QLatin1String(row.*name));
    return nullptr;
}

} // namespace

std::span<const ToolPaneRow> toolPaneRows() { return kPanes; }

QWidget* makeSidePane(const QString& tool, Frame& frame, QWidget* parent)
{
    fPane* pane = make(tool, frame, &ToolPaneRow::side);
    if (!pane) return nullptr;
    static_cast<QVBoxLayout*>(pane->layout())->addStretch();
    auto* area = new QScrollArea(parent); // a frame of little height keeps its height
    area->setObjectName(pane->objectName());
    pane->setObjectName(pane->objectName() + "Rows");
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(pane);
    if (const auto* stamp = qobject_cast<FStamp*>(pane); stamp && !stamp->folderFound())
        frame.platform().message("Velara Studio", "<Stamps> subfolder not found.", Icon::Exclamation);
    return area;
}

QWidget* makePopup(const QString& tool, Frame& frame, QWidget* parent)
{
    fPane* pane = make(tool, frame, &ToolPaneRow::popup);
    if (!pane) return nullptr;
    pane->setParent(parent, Qt::Tool | Qt::FramelessWindowHint);
    pane->setAttribute(Qt::WA_ShowWithoutActivating);
    pane->setFrameShape(QFrame::StyledPanel);
    pane->setAttribute(Qt::WA_DeleteOnClose);
    pane->setMinimumWidth(190);
    return pane;
}

} // namespace velara
