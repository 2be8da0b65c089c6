#include "app/settings/fPreferences.h"
#include "app/settings/Appearance.h"
#include "app/settings/language.h"
#include "app/settings/pictureSettings.h"
#include "seams/Platform.h"
#include "ui/browse/mBrowseFolder.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velara {

namespace {

struct FlagRow {
    const char* control;
    const char* caption;
    bool Setup::*field;
};

// clang-format off
constexpr FlagRow kFlagsAbove[] = {
    {"chkiPMaximized",     QT_TRANSLATE_NOOP("velara::fPreferences", "&Open iP maximized "),     &Setup::FrameMaximized},
    {"chkImagesMaximized", QT_TRANSLATE_NOOP("velara::fPreferences", "Open i&mages maximized "), &Setup::ImagesMaximized},
};
constexpr FlagRow kFlagsBelow[] = {
    {"chkPreserveLastFolder", QT_TRANSLATE_NOOP("velara::fPreferences", "&Preserve last folder"),        &Setup::PreserveLastFolder},
    {"chkAskToSave",          QT_TRANSLATE_NOOP("velara::fPreferences", "&Ask to save on Close/Exit"),   &Setup::AskToSave},
};
// clang-format on

QString rightTrimmed(QString text)
{
    while (text.endsWith(' ')) text.chop(1);
    return text;
}

void addFlag(QBoxLayout* column, const FlagRow& row, Setup& copy)
{
    auto* box = new QCheckBox(fPreferences::tr(row.caption));
    named(box, row.control, box->text().remove('&').trimmed());
    box->setChecked(copy.*row.field);
    QObject::connect(box, &QCheckBox::toggled, box, [&copy, field = row.field](bool on) { copy.*field = on; });
    column->addWidget(box);
}

} // namespace

fPreferences::fPreferences(Platform& platform, Setup& setup, QWidget* parent)
    : QDialog(parent), platform_(platform), setup_(setup), copy_(setup), path_(new QLineEdit)
{
    setObjectName("fPreferences");
    setWindowTitle(tr("%1: Options").arg(kProgramName));

    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    for (const FlagRow& row : kFlagsAbove) addFlag(column, row, copy_);

    auto* label = new QLabel(tr("Images default &folder"));
    label->setBuddy(path_);
    column->addSpacing(6);
    column->addWidget(label);
    auto* line = new QHBoxLayout;
    named(path_, "txtImagesPath", tr("Images default folder"));
    path_->setMinimumWidth(320);
    path_->setText(rightTrimmed(copy_.ImagesPath));
    connect(path_, &QLineEdit::textEdited, this, [this](const QString& text) { copy_.ImagesPath = text; });
    auto* browseButton = named(new QPushButton(tr("&Browse ...")), "cmdBrowsePath", tr("Select Images default folder"));
    browseButton->setAutoDefault(false);
    connect(browseButton, &QPushButton::clicked, this, &fPreferences::browse);
    line->addWidget(path_, 1);
    line->addWidget(browseButton);
    column->addLayout(line);
    column->addSpacing(6);
    for (const FlagRow& row : kFlagsBelow) addFlag(column, row, copy_);
    column->addWidget(convert_ = named(new QCheckBox(tr("&Convert pictures to sRGB")), "chkConvertToSrgb"));
    convert_->setChecked(pictureSetting(platform_, PictureSetting::ConvertToSrgb));
    column->addWidget(screenProfile_ =
                          named(new QCheckBox(tr("&Show pictures by the screen's color profile")), "chkScreenProfile"));
    screenProfile_->setChecked(pictureSetting(platform_, PictureSetting::ScreenProfile));
    column->addSpacing(6);
    column->addLayout(makeLanguage());
    addLooks(*column);
    column->addStretch();

    auto* tabs = named(new QTabWidget, "tabs", tr("Options"));
    tabs->addTab(page, tr("General"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("CmdOK");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("CmdCancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &fPreferences::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &fPreferences::reject);
    auto* all = new QVBoxLayout(this);
    all->addWidget(tabs);
    all->addWidget(buttons);
}

QLayout* fPreferences::makeLanguage()
{
    language_ = named(new QComboBox, "cboLanguage", tr("Language"));
    language_->addItem(tr("As the system"), QString());
    for (const Language& each : languages()) language_->addItem(QString::fromUtf8(each.name), QString(each.code));
    language_->setCurrentIndex(language_->findData(chosenLanguage(platform_)));
    auto* label = new QLabel(tr("&Language"));
    label->setBuddy(language_);
    auto* line = new QHBoxLayout;
    for (QWidget* each : std::initializer_list<QWidget*>{label, language_, new QLabel(tr("from the next start on"))})
        line->addWidget(each);
    line->addStretch();
    return line;
}

void fPreferences::addLooks(QBoxLayout& column)
{
    look_ = named(new QComboBox, "cboAppearance", tr("Colors of the windows"));
    for (const LookRow& row : lookRows())
        look_->addItem(QCoreApplication::translate("velara::Appearance", row.caption), static_cast<int>(row.look));
    look_->setCurrentIndex(look_->findData(static_cast<int>(chosenLook(platform_))));
    auto* label = new QLabel(tr("Colors of the &windows:"));
    label->setBuddy(look_);
    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(look_, 1);
    column.addSpacing(6);
    column.addLayout(line);
}

void fPreferences::browse()
{
    const QString folder = BrowseForFolder(platform_, tr("Select Images default folder"), this, copy_.ImagesPath);
    if (folder.isEmpty()) return;
    copy_.ImagesPath = folder.endsWith('/') ? folder : folder + '/';
    path_->setText(copy_.ImagesPath);
}

void fPreferences::accept()
{
    copy_.ImagesPath = rightTrimmed(copy_.ImagesPath);
    setPictureSetting(platform_, PictureSetting::ConvertToSrgb, convert_->isChecked());
    setPictureSetting(platform_, PictureSetting::ScreenProfile, screenProfile_->isChecked());
    chooseLanguage(platform_, language_->currentData().toString());
    chooseLook(platform_, static_cast<Look>(look_->currentData().toInt()));
    setup_ = copy_; // the whole record: changes made elsewhere while the dialog was open are undone
    QDialog::accept();
}

} // namespace velara
