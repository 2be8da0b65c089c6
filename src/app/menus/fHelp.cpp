#include "app/menus/fHelp.h"
#include "app/menus/menus.h"
#include "seams/text.h"
#include "tools/toolRows.h"
#include "ui/widgets/inputs/named.h"
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace velara {

namespace {

struct KeyRow {
    const char *does, *key;
};
constexpr KeyRow kOnPictures[] = {
    {"Move the picture in its window", "Middle button, or the hand (H)"},
    {"Scroll up and down", "Wheel"},
    {"Scroll sideways", "Shift + wheel"},
    {"Zoom about the pointer", "Ctrl + wheel"},
    {"Drop what is under way", "Esc, or the right button"},
    {"Draw without a mouse: move a crosshair by a pixel, or ten", "Arrow keys, with Shift"},
    {"Press at the crosshair, and release", "Enter"},
    {"Fix a text, a paste or moved pixels, and go on", "Space"},
    {"Corner of a polygon", "Click, or Space while dragging"},
    {"Close a polygon", "Enter, or a double click"},
    {"To the tools and their settings, and back", "Tab"},
};

QTreeWidgetItem* group(QTreeWidget* list, const QString& caption)
{
    auto* item = new QTreeWidgetItem(list, {caption});
    QFont bold = list->font();
    bold.setBold(true);
    item->setFont(0, bold);
    return item;
}

QString shown(const QString& key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

} // namespace

fHelp::fHelp(QWidget* parent)
    : QDialog(parent), list_(named(new QTreeWidget, "lstKeys", tr("What to do, and the keys for it")))
{
    setObjectName("fHelp");
    setWindowTitle(tr("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    list_->setHeaderLabels({tr("What to do"), tr("Mouse and keys")});
    QTreeWidgetItem* pictures = group(list_, tr("On a picture"));
    for (const KeyRow& row : kOnPictures) new QTreeWidgetItem(pictures, {tr(row.does), tr(row.key)});
    QTreeWidgetItem* tools = group(list_, tr("Tools"));
    for (const ToolRow& tool : toolRows())
        new QTreeWidgetItem(tools, {tr(tool.caption), QString(QLatin1Char(tool.key))});
    QTreeWidgetItem* menus = group(list_, tr("Menus"));
    for (const NamedItem& item : namedItems())
        if (const QString keys = text(item.row->shortcuts); !keys.isEmpty())
            new QTreeWidgetItem(menus, {item.name, shown(keys.section(' ', 0, 0))});
    list_->expandAll();
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list_, 1);
    column->addWidget(buttons);
    resize(QSize(600, 560).boundedTo(screen()->availableSize()));
}

} // namespace velara
