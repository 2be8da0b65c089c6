#include "ui/panes/fToolPanes.h"
#include "document/road/Frame.h"
#include "seams/Platform.h"
#include "seams/text.h"
#include "ui/panes/fEffect.h"
#include "ui/panes/fGradient.h"
#include "ui/panes/fStamp.h"
#include "ui/widgets/inputs/named.h"
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace velara {

namespace {

/// The panes with more than settings, by tool.
struct OwnPane {
    std::string_view tool;
    fPane* (*make)(Frame&, const QString& name, std::span<const PaneRow> rows);
};
template <class Pane> fPane* own(Frame& frame, const QString& name, std::span<const PaneRow> rows)
{
    return new Pane(frame, name, rows);
}
constexpr OwnPane kOwnPanes[] = {{"Stamp", own<FStamp>}, {"Gradient", own<FGradient>}, {"Text", own<FEffect>}};

fPane* make(const ToolRow& tool, Frame& frame, const char* name)
{
    if (tool.pane.empty()) return nullptr;
    for (const OwnPane& pane : kOwnPanes)
        if (pane.tool == tool.name) return pane.make(frame, name, tool.pane);
    return new fPane(frame, name, tool.pane);
}

} // namespace

QWidget* makeSidePane(const ToolRow& tool, Frame& frame, QWidget* parent)
{
    fPane* pane = make(tool, frame, tool.side);
    if (!pane) return nullptr;
    static_cast<QVBoxLayout*>(pane->layout())->addStretch();
    auto* area = new QScrollArea(parent); // a low frame can stay low
    area->setObjectName(pane->objectName());
    pane->setObjectName(pane->objectName() + "Rows");
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(pane);
    if (const auto* stamp = qobject_cast<FStamp*>(pane); stamp && !stamp->folderFound())
        frame.platform().tell(FStamp::tr("<Stamps> subfolder not found."), Icon::Exclamation);
    return area;
}

QWidget* makePopup(const ToolRow& tool, Frame& frame, QWidget* parent)
{
    fPane* pane = make(tool, frame, tool.popup);
    if (!pane) return nullptr;
    pane->setParent(parent, Qt::Tool | Qt::FramelessWindowHint);
    pane->setAttribute(Qt::WA_ShowWithoutActivating);
    pane->setFrameShape(QFrame::StyledPanel);
    pane->setAttribute(Qt::WA_DeleteOnClose);
    pane->setAcceptDrops(true); // it lies over the frame, which accepts them
    pane->setMinimumWidth(190);
    auto* heading =
        named(new QLabel(shown("Tools", tool.caption) + QStringLiteral(" (") + QLatin1Char(tool.key) + u')', pane),
              "lblTool");
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    static_cast<QVBoxLayout*>(pane->layout())->insertWidget(0, heading);
    return pane;
}

} // namespace velara
