#include "ui/view/fProperties.h"
#include "document/Document.h"
#include "fileio/formats.h"
#include "platform/desktop/dialogs/shownReason.h"
#include "seams/printable.h"
#include "seams/sizeText.h"
#include "seams/text.h"
#include "ui/widgets/inputs/named.h"
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace velara {

namespace {

QString pixelsText(const Document& document)
{
    const QSize size(document.PictureWidth(), document.PictureHeight());
    return fProperties::tr("%1 pixels (%2 megapixels)")
        .arg(sizeText(size))
        .arg(QLocale().toString(double(size.width()) * size.height() / 1e6, 'f', 1));
}

} // namespace

QList<Property> propertiesOf(const Document& document)
{
    const FileFacts& file = document.file;
    const Family* family = familyOf(file.format.isEmpty() ? file.path : "." + file.format);
    const QFileInfo onDisk(file.path);
    QList<Property> all{{fProperties::tr("File"), printable(file.path)}};
    if (family) all << Property{fProperties::tr("Kind"), shown("Formats", family->name)};
    if (document.PictureExists()) all << Property{fProperties::tr("Size"), pixelsText(document)};
    if (file.isFile && onDisk.isFile())
        all << Property{fProperties::tr("Bytes"), QStringLiteral("%L1").arg(onDisk.size())};
    for (const QString& line : file.properties.split('\n', Qt::SkipEmptyParts))
        all << Property{shown("Properties", line.section('\t', 0, 0).toStdString()),
                        shownReason(printable(line.section('\t', 1)))};
    return all;
}

fProperties::fProperties(const QList<Property>& properties, QWidget* parent)
    : QDialog(parent), list_(named(new QTreeWidget, "lstProperties", tr("Properties")))
{
    setObjectName("fProperties");
    setWindowTitle(tr("Properties"));
    setModal(true);
    list_->setColumnCount(2);
    list_->setHeaderLabels({tr("Property"), tr("Value")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAlternatingRowColors(true);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const Property& each : properties) {
        auto* item = new QTreeWidgetItem(list_, {each.name, each.value});
        item->setToolTip(1, each.value);
    }
    list_->resizeColumnToContents(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* copyButton = named(new QPushButton(tr("&Copy")), "cmdCopy");
    copyButton->setAutoDefault(false);
    buttons->addButton(copyButton, QDialogButtonBox::ActionRole);
    buttons->button(QDialogButtonBox::Close)->setObjectName("cmdClose");
    connect(copyButton, &QPushButton::clicked, this, &fProperties::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence::Copy, list_), &QShortcut::activated, this, &fProperties::copy);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list_, 1);
    column->addWidget(buttons);
    resize(520, 380);
}

/// The selected lines, or all where none is.
void fProperties::copy() const
{
    QStringList lines;
    for (int i = 0; i < list_->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = list_->topLevelItem(i);
        if (item->isSelected() || list_->selectedItems().isEmpty())
            lines << item->text(0) + QStringLiteral(": ") + item->text(1);
    }
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

} // namespace velara
