#include "ui/icons/fIconSeries.h"
#include "document/road/Frame.h"
#include "fileio/writers/iconFile.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "seams/Platform.h"
#include "seams/sizeText.h"
#include "ui/icons/MaskChoice.h"
#include "ui/icons/fIconBrowse.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace velara {

namespace {

constexpr QSize kThumbnail{32, 32};
constexpr int kMostNames = 5; // the most file names in a message

QPushButton* button(const char* name, const QString& caption)
{
    auto* made = named(new QPushButton(caption), name);
    made->setAutoDefault(false);
    return made;
}

} // namespace

fIconSeries::fIconSeries(Frame& frame)
    : QGroupBox(tr("Custom Icon Extractor")), frame_(frame), cboIcon_(new QComboBox), lv_(new QTreeWidget),
      chkAll_(new QCheckBox(tr("Select &All"))), mask_(new MaskChoice(frame, "ChkMask", tr("Use Mas&k Color"))),
      txtFolder_(new QLineEdit)
{
    setObjectName("Frame2");
    auto* column = new QVBoxLayout(this);
    column->addLayout(makeSource());
    column->addLayout(makeList(), 1);
    column->addLayout(makeTarget());
}

QLayout* fIconSeries::makeSource()
{
    named(cboIcon_, "cboIcon", tr("What to capture"));
    cboIcon_->addItems({tr("Desktop"), tr("Foreground"), tr("Background")});
    QPushButton* go = button("CmdGo", tr("&Go"));
    go->setToolTip(tr("Captures the screen and cuts icons out of it"));
    connect(go, &QPushButton::clicked, this, [this] { emit captureAsked(Source(cboIcon_->currentIndex())); });
    auto* row = new QHBoxLayout;
    row->addWidget(cboIcon_, 1);
    row->addWidget(go);
    return row;
}

QLayout* fIconSeries::makeList()
{
    named(lv_, "lv", tr("Icons cut out"));
    lv_->setHeaderLabels({tr("Icon"), tr("Size")});
    lv_->setRootIsDecorated(false);
    lv_->setIconSize(kThumbnail);
    lv_->setMinimumHeight(3 * kThumbnail.height());
    lv_->header()->setStretchLastSection(false);
    lv_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    lv_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    chkAll_->setObjectName("chkAll");
    chkAll_->setChecked(true);
    connect(chkAll_, &QCheckBox::toggled, this, &fIconSeries::checkAll);
    connect(mask_, &MaskChoice::changed, this, &fIconSeries::showIcons);
    auto* row = new QHBoxLayout;
    row->addWidget(chkAll_);
    row->addStretch();
    row->addWidget(mask_);
    auto* column = new QVBoxLayout;
    column->addWidget(lv_, 1);
    column->addLayout(row);
    return column;
}

QLayout* fIconSeries::makeTarget()
{
    auto* label = new QLabel(tr("&Extract Icons of the Selected Images to"));
    label->setBuddy(txtFolder_);
    named(txtFolder_, "txtFolder", tr("Folder of the icons"));
    QPushButton *folder = button("CmdFolder", tr("....")), *save = button("CmdSaveCustom", tr("Sa&ve"));
    folder->setAccessibleName(tr("Select the folder"));
    folder->setToolTip(folder->accessibleName());
    connect(folder, &QPushButton::clicked, this, &fIconSeries::browse);
    connect(save, &QPushButton::clicked, this, &fIconSeries::save);
    auto* row = new QHBoxLayout;
    row->addWidget(txtFolder_, 1);
    row->addWidget(folder);
    row->addWidget(save);
    auto* column = new QVBoxLayout;
    column->addWidget(label);
    column->addLayout(row);
    return column;
}

QImage fIconSeries::iconAt(int index) const
{
    const Bits& cutOut = ilCustom_[std::size_t(index)];
    return iconOf(cutOut, {cutOut.width(), cutOut.height()}, mask_->mask());
}

void fIconSeries::ListIcons()
{
    lv_->clear();
    for (int i = 0; i < count(); ++i) {
        const Bits& cutOut = ilCustom_[std::size_t(i)];
        const QString size = sizeText({cutOut.width(), cutOut.height()});
        auto* entry = new QTreeWidgetItem(lv_, {QString("%1Velara").arg(i + 1), size});
        entry->setCheckState(0, Qt::Checked);
    }
    showIcons();
    const QSignalBlocker quiet(chkAll_);
    chkAll_->setChecked(true);
}

void fIconSeries::showIcons()
{
    for (int i = 0; i < lv_->topLevelItemCount(); ++i)
        lv_->topLevelItem(i)->setIcon(0, untinted(QPixmap::fromImage(iconAt(i))));
}

void fIconSeries::checkAll(bool checked)
{
    for (int i = 0; i < lv_->topLevelItemCount(); ++i)
        lv_->topLevelItem(i)->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
}

void fIconSeries::browse()
{
    const QString present = txtFolder_->text().trimmed();
    auto* dialog = new fIconBrowse(present.isEmpty() ? QDir::homePath() : present, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &fIconBrowse::chosen, txtFolder_, &QLineEdit::setText);
    dialog->open();
}

void fIconSeries::save()
{
    Platform& platform = frame_.platform();
    if (lv_->topLevelItemCount() == 0) return platform.tell(tr("No Images to extract!"));
    const QString folder = txtFolder_->text().trimmed();
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        const QPointer<QLineEdit> box = txtFolder_;
        platform.tell(tr("Folder does not Exists! Please Enter a valid folder path"), Icon::Critical);
        if (box) box->setFocus();
        return;
    }
    int saved = 0;
    QStringList failed;
    for (int i = 0; i < count(); ++i) {
        if (lv_->topLevelItem(i)->checkState(0) != Qt::Checked) continue;
        const QString name = lv_->topLevelItem(i)->text(0) + QStringLiteral(".ico");
        if (writeIcon(iconBytes(iconAt(i)), folder + u'/' + name))
            ++saved;
        else
            failed << name;
    }
    QString told = tr("%n icon Files Saved!", nullptr, saved);
    if (!failed.isEmpty()) {
        told += u'\n' + tr("Not written: %1").arg(failed.mid(0, kMostNames).join(QStringLiteral(", ")));
        if (failed.size() > kMostNames) told += tr(" and %n more", nullptr, int(failed.size() - kMostNames));
    }
    platform.tell(told, failed.isEmpty() ? Icon::Information : Icon::Exclamation);
}

} // namespace velara
