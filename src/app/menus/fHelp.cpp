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
    {QT_TRANSLATE_NOOP("velara::fHelp", "Move the picture in its window"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Middle button, or the hand (H)")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Scroll up and down"), QT_TRANSLATE_NOOP("velara::fHelp", "Wheel")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Scroll sideways"), QT_TRANSLATE_NOOP("velara::fHelp", "Shift + wheel")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Zoom about the pointer"), QT_TRANSLATE_NOOP("velara::fHelp", "Ctrl + wheel")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Drop what is under way"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Esc, or the right button")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Draw without a mouse: move a crosshair by a pixel, or ten"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Arrow keys, with Shift")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Press at the crosshair, and release"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Enter")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Fix a text, a paste or moved pixels, and go on"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Space")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Corner of a polygon"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Click, or Space while dragging")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "Close a polygon"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Enter, or a double click")},
    {QT_TRANSLATE_NOOP("velara::fHelp", "To the tools and their settings, and back"),
     QT_TRANSLATE_NOOP("velara::fHelp", "Tab")},
};

QString nativeKeys(const QString& key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

} // namespace

QList<KeyGroup> keyGroups()
{
    KeyGroup pictures{fHelp::tr("On a picture")}, tools{fHelp::tr("Tools")}, menus{fHelp::tr("Menus")};
    for (const KeyRow& row : kOnPictures) pictures.rows.append({fHelp::tr(row.does), fHelp::tr(row.key)});
    for (const ToolRow& tool : toolRows())
        tools.rows.append({shown("Tools", tool.caption), QString(QLatin1Char(tool.key))});
    for (const NamedItem& item : namedItems())
        if (const QString keys = text(item.row->shortcuts); !keys.isEmpty())
            menus.rows.append({item.name, nativeKeys(keys.section(' ', 0, 0))});
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
    const QAbstractItemView& columns = *list_;
    const int needed = columns.sizeHintForColumn(0) + columns.sizeHintForColumn(1) + 60; // the bar and the margins
    resize(QSize(std::max(600, needed), 560).boundedTo(screen()->availableSize()));
}

} // namespace velara
