// fFolderRun: its controls.
#include "fileio/formats.h"
#include "seams/Platform.h"
#include "seams/text.h"
#include "ui/many/fFolderRun.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>

namespace velara {

namespace {

/// The words of velara-batch, and what the user sees.
constexpr std::pair<const char*, const char*> kExisting[] = {
    {"skip", QT_TRANSLATE_NOOP("velara::fFolderRun", "Leave it, and skip the picture")},
    {"replace", QT_TRANSLATE_NOOP("velara::fFolderRun", "Replace it")},
    {"number", QT_TRANSLATE_NOOP("velara::fFolderRun", "Add a number to the new name")},
    {"newer", QT_TRANSLATE_NOOP("velara::fFolderRun", "Replace it if it is older than the picture")},
};
constexpr int kUsualQuality = 90;

QPushButton* button(const char* name, const QString& caption, const QString& accessibleName)
{
    auto* made = named(new QPushButton(caption), name, accessibleName);
    made->setAutoDefault(false);
    return made;
}

QLabel* captionOf(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

QWidget* fFolderRun::makeOrder()
{
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    makeInputs(*grid);
    cboRecipe_ = named(new QComboBox, "cboRecipe", tr("Recipe"));
    for (const RecipeChoice& choice : recipes_) cboRecipe_->addItem(choice.caption);
    grid->addWidget(captionOf(tr("R&ecipe"), cboRecipe_), 2, 0);
    grid->addWidget(cboRecipe_, 2, 1, 1, 2);
    makeTarget(*grid);
    return box;
}

void fFolderRun::makeInputs(QGridLayout& grid)
{
    lstInputs_ = named(new QListWidget, "lstInputs", tr("Pictures and folders"));
    lstInputs_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstInputs_->setTextElideMode(Qt::ElideMiddle);
    lstInputs_->setMinimumWidth(lstInputs_->fontMetrics().averageCharWidth() * 50);
    lstInputs_->setFixedHeight(lstInputs_->fontMetrics().lineSpacing() * 5);
    chkBelow_ = named(new QCheckBox(tr("with the folders &below")), "chkBelow", tr("With the folders below"));
    cmdRemove_ = button("cmdRemove", tr("Re&move"), tr("Remove from the list"));
    auto *file = button("cmdFile", tr("&Picture ..."), tr("Add a picture")),
         *folder = button("cmdFolder", tr("&Folder ..."), tr("Add a folder"));
    auto* column = new QVBoxLayout;
    for (QPushButton* each : {folder, file, cmdRemove_}) column->addWidget(each);
    column->addStretch();
    grid.addWidget(captionOf(tr("Pict&ures"), lstInputs_), 0, 0, Qt::AlignTop);
    grid.addWidget(lstInputs_, 0, 1);
    grid.addLayout(column, 0, 2);
    grid.addWidget(chkBelow_, 1, 1, 1, 2);
    connect(file, &QPushButton::clicked, this, &fFolderRun::chooseFile);
    connect(folder, &QPushButton::clicked, this, &fFolderRun::chooseFolder);
    connect(cmdRemove_, &QPushButton::clicked, this, [this] {
        qDeleteAll(lstInputs_->selectedItems());
        updateControls();
    });
    connect(lstInputs_, &QListWidget::itemSelectionChanged, this, &fFolderRun::updateControls);
}

void fFolderRun::makeTarget(QGridLayout& grid)
{
    txtInto_ = named(new QLineEdit, "txtInto", tr("Target folder"));
    cmdInto_ = button("cmdInto", tr("F&older ..."), tr("Choose the target folder"));
    chkOriginals_ = named(new QCheckBox(tr("o&ver the originals, which are lost")), "chkOriginals",
                          tr("Over the originals, which are lost"));
    txtName_ = named(new QLineEdit(QStringLiteral("{dir}/{name}.{ext}")), "txtName", tr("Names of the new files"));
    txtName_->setToolTip(tr("{name}  the picture's own name\n{ext}  the ending of its format\n{n:04}  its number, with "
                            "four digits\n{dir}  its folder below the one that was chosen\n{width}, {height}  its size "
                            "in pixels\nSuch as {name}-web.{ext}"));
    cboFormat_ = named(new QComboBox, "cboFormat", tr("Format"));
    cboFormat_->addItem(tr("Each as it is"), QString());
    for (const Format& format : kFormats)
        if (format.saved()) cboFormat_->addItem(text(format.extension).toUpper(), text(format.extension));
    spnQuality_ = named(new QSpinBox, "spnQuality", tr("Quality"));
    spnQuality_->setRange(1, 100);
    spnQuality_->setValue(kUsualQuality);
    cboExisting_ = named(new QComboBox, "cboExisting", tr("Where a file has the name already"));
    for (const auto& [word, caption] : kExisting) cboExisting_->addItem(tr(caption), QString::fromLatin1(word));
    auto* format = new QHBoxLayout;
    format->addWidget(cboFormat_, 1);
    format->addWidget(captionOf(tr("&Quality"), spnQuality_));
    format->addWidget(spnQuality_);
    grid.addWidget(captionOf(tr("&Target"), txtInto_), 3, 0);
    grid.addWidget(txtInto_, 3, 1);
    grid.addWidget(cmdInto_, 3, 2);
    grid.addWidget(chkOriginals_, 4, 1, 1, 2);
    grid.addWidget(captionOf(tr("&Names"), txtName_), 5, 0);
    grid.addWidget(txtName_, 5, 1, 1, 2);
    grid.addWidget(captionOf(tr("Form&at"), cboFormat_), 6, 0);
    grid.addLayout(format, 6, 1, 1, 2);
    grid.addWidget(captionOf(tr("E&xisting file"), cboExisting_), 7, 0);
    grid.addWidget(cboExisting_, 7, 1, 1, 2);
    connect(cmdInto_, &QPushButton::clicked, this, &fFolderRun::chooseTarget);
    connect(chkOriginals_, &QCheckBox::toggled, this, &fFolderRun::updateControls);
    connect(cboFormat_, &QComboBox::currentIndexChanged, this, &fFolderRun::updateControls);
    connect(txtInto_, &QLineEdit::textChanged, this, &fFolderRun::updateControls);
}

/// No widget of its own: a layout gives one whose labels wrap more than its least height, at the cost of what is above.
QLayout* fFolderRun::makeProgress()
{
    auto* column = new QVBoxLayout;
    bar_ = named(new QProgressBar, "bar", tr("Pictures done"));
    bar_->setTextVisible(false);
    lblState_ = named(new QLabel(QStringLiteral(" ")), "lblState", tr("State"));
    lblState_->setWordWrap(true);
    lstFailures_ = named(new QListWidget, "lstFailures", tr("Pictures that failed; Enter or a double click opens one"));
    lstFailures_->setToolTip(tr("A double click opens the picture"));
    lstFailures_->setMinimumHeight(lstFailures_->fontMetrics().lineSpacing() * 4);
    lstFailures_->setTextElideMode(Qt::ElideMiddle);
    lblLog_ = named(new QLabel, "lblLog", tr("Log"));
    lblLog_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblLog_->setWordWrap(true);
    cmdRun_ = button("cmdRun", tr("&Run"), tr("Run"));
    cmdRun_->setDefault(true);
    cmdPause_ = button("cmdPause", tr("Pau&se"), tr("Pause"));
    cmdCancel_ = button("cmdCancel", tr("Close"), tr("Cancel or close"));
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* each : {cmdRun_, cmdPause_, cmdCancel_}) row->addWidget(each);
    auto* failures = captionOf(tr("Pictures that fa&iled"), lstFailures_);
    for (QWidget* each : std::initializer_list<QWidget*>{bar_, lblState_, failures, lstFailures_, lblLog_})
        column->addWidget(each);
    column->addLayout(row);
    connect(cmdRun_, &QPushButton::clicked, this, &fFolderRun::begin);
    connect(cmdPause_, &QPushButton::clicked, this, [this] {
        run_.pause(!run_.isPaused());
        if (run_.isPaused()) worked_ += clock_.elapsed();
        clock_.start();
        updateControls();
        showProgress();
    });
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { run_.isRunning() ? run_.cancel() : void(close()); });
    connect(lstFailures_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { emit openWanted(item->data(Qt::UserRole).toString()); });
    return column;
}

} // namespace velara
