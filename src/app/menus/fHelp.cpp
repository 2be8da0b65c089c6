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

QString shown(const QString& key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

} // namespace

QList<KeyGroup> keyGroups()
{
    KeyGroup pictures{fHelp::tr("On a picture")}, tools{fHelp::tr("Tools")}, menus{fHelp::tr("Menus")};
    for (const KeyRow& row : kOnPictures) pictures.rows.append({fHelp::tr(row.does), fHelp::tr(row.key)});
    for (const ToolRow& tool : toolRows()) tools.rows.append({fHelp::tr(tool.caption), QString(QLatin1Char(tool.key))});
    for (const NamedItem& item : namedItems())
        if (const QString keys = text(item.row->shortcuts); !keys.isEmpty())
            menus.rows.append({item.name, shown(keys.section(' ', 0, 0))});
    return {pictures, tools, menus};
}

fHelp::fHelp(QWidget* parent)
    : QDialog(parent), list_(named(new QTreeWidget, "lstKeys", tr("What to do, and the keys for it")))
{
    setObjectName("fHelp");
    setWindowTitle(tr("Keys and Mouse"));
    setAttribute(Qt::WA_DeleteOnClose);
    list_->setHeaderLabels({tr("What to do"), tr("Mouse and keys")});
    QFont bold = list_->font();
    bold.setBold(true);
    for (const KeyGroup& group : keyGroups()) {
        auto* head = new QTreeWidgetItem(list_, {group.caption});
        head->setFont(0, bold);
        for (const auto& [does, key] : group.rows) new QTreeWidgetItem(head, {does, key});
    }
    list_->expandAll();
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list_, 1);
    column->addWidget(buttons);
    resize(QSize(720, 560).boundedTo(screen()->availableSize()));
}

} // namespace velara
