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

QTreeWidgetItem* group(QTreeWidget* list, const QString& caption)
{
    auto* item = new QTreeWidgetItem(list, {caption});
    QFont bold = list->font();
    bold.setBold(true);
    item->setFont(0, bold);
    return item;
}

QString nativeKeys(const QString& key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

} // namespace

fHelp::fHelp(QWidget* parent)
    : QDialog(parent), list_(named(new QTreeWidget, "lstKeys", tr("What to do, and the keys for it")))
{
    static constexpr struct {
        const char *does, *key;
    } kOnPictures[] = {
        {QT_TR_NOOP("Move the picture in its window"), QT_TR_NOOP("Middle button, or the hand (H)")},
        {QT_TR_NOOP("Scroll up and down"), QT_TR_NOOP("Wheel")},
        {QT_TR_NOOP("Scroll sideways"), QT_TR_NOOP("Shift + wheel")},
        {QT_TR_NOOP("Zoom about the pointer"), QT_TR_NOOP("Ctrl + wheel")},
        {QT_TR_NOOP("Drop what is under way"), QT_TR_NOOP("Esc, or the right button")},
        {QT_TR_NOOP("Draw without a mouse: move a crosshair by a pixel, or ten"), QT_TR_NOOP("Arrow keys, with Shift")},
        {QT_TR_NOOP("Press at the crosshair, and release"), QT_TR_NOOP("Enter")},
        {QT_TR_NOOP("Fix a text, a paste or moved pixels, and go on"), QT_TR_NOOP("Space")},
        {QT_TR_NOOP("Corner of a polygon"), QT_TR_NOOP("Click, or Space while dragging")},
        {QT_TR_NOOP("Close a polygon"), QT_TR_NOOP("Enter, or a double click")},
        {QT_TR_NOOP("To the tools and their settings, and back"), QT_TR_NOOP("Tab")},
    };
    setObjectName("fHelp");
    setWindowTitle(tr("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    list_->setHeaderLabels({tr("What to do"), tr("Mouse and keys")});
    QTreeWidgetItem* pictures = group(list_, tr("On a picture"));
    for (const auto& row : kOnPictures) new QTreeWidgetItem(pictures, {tr(row.does), tr(row.key)});
    QTreeWidgetItem* tools = group(list_, tr("Tools"));
    for (const ToolRow& tool : toolRows())
        new QTreeWidgetItem(tools, {shown("Tools", tool.caption), QString(QLatin1Char(tool.key))});
    QTreeWidgetItem* menus = group(list_, tr("Menus"));
    for (const NamedItem& item : namedItems())
        if (const QString keys = text(item.row->shortcuts); !keys.isEmpty())
            new QTreeWidgetItem(menus, {item.name, nativeKeys(keys.section(' ', 0, 0))});
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
