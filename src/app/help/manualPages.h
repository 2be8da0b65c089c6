// Which page of the manual (docs/manual, in the resources) belongs to which window and tool.
#pragma once
#include <QList>
#include <QString>

class QWidget;

namespace velara {

inline const QString kFirstManualPage = QStringLiteral("index");

struct ManualPage {
    QString name;  // of its file, without ".md"
    QString title; // its first heading
};

/// All pages, in the order in which the first one names them, which comes before the others.
QList<ManualPage> manualPages();
/// The Markdown of a page; empty if there is none.
QString manualText(const QString& page);
/// The address of a page in the resources.
QString manualAddress(const QString& page);

/// The page of a window or of a part of one, by the nearest object name that has a page, from the widget outwards up to
/// its window; empty without one.
QString manualPageOf(const QWidget& widget);
/// The page of a mouse tool; the first page where it has none.
QString manualPageOfTool(const QString& tool);

} // namespace velara
