// FWeb: making and laying out its controls.
#include "fileio/cameraData.h"
#include "ui/export/FWeb.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr int kBusyHeight = 4;       // pixels
constexpr auto kEmptyQuality = "50"; // the value of a quality left empty

QPushButton* button(const char* name, const QString& text)
{
    auto* made = named(new QPushButton(text), name, text);
    made->setAutoDefault(false);
    return made;
}

template <class Row> QComboBox* list(const char* name, const QString& accessibleName, std::span<const Row> rows)
{
    auto* box = named(new QComboBox, name, accessibleName);
    for (const Row& row : rows) box->addItem(QLatin1String(row.entry));
    return box;
}

/// A field that becomes 50, selected, when it is left empty.
class QualityField final : public QLineEdit {
  protected:
    void focusOutEvent(QFocusEvent* event) override
    {
        QLineEdit::focusOutEvent(event);
        if (!text().isEmpty()) return;
        setText(QLatin1String(kEmptyQuality));
        selectAll();
    }
};

QHBoxLayout* withButton(QWidget* field, QWidget* press)
{
    auto* line = new QHBoxLayout;
    line->addWidget(field, 1);
    line->addWidget(press);
    return line;
}

} // namespace

QWidget* FWeb::makeChoices()
{
    choices_ = new QWidget;
    auto* layout = new QVBoxLayout(choices_);
    layout->setContentsMargins(0, 0, 0, 0);
    CboFiles_ = list("CboFiles", tr("File format"), webPresets());
    CboFiles_->setCurrentIndex(-1);
    CboFiles_->setPlaceholderText(tr("Choose a format"));
    CboFiles_->setMaxVisibleItems(int(webPresets().size()));
    FrmAPI_ = named(new QGroupBox(tr("Settings")), "FrmAPI", tr("Settings"));
    FrmAPI_->setEnabled(false);
    auto* frames = new QVBoxLayout(FrmAPI_);
    frames->addWidget(makeGifFrame());
    frames->addWidget(makeJpegFrame());
    frames->addWidget(makeFitFrame());
    frames->addWidget(makeCameraFrame());
    CmdSave_ = button("CmdSave", QStringLiteral("Save As"));
    CmdSave_->setEnabled(false);

    auto* formats = new QLabel(tr("&Format"));
    formats->setBuddy(CboFiles_);
    layout->addWidget(formats);
    layout->addWidget(CboFiles_);
    auto* all = button("cmdTable", tr("&All formats ..."));
    all->setToolTip(tr("Size and loss of this picture in every format"));
    layout->addWidget(all);
    connect(all, &QPushButton::clicked, this, &FWeb::chooseFromTable);
    layout->addWidget(FrmAPI_);
    layout->addStretch();
    layout->addWidget(CmdSave_);
    connect(CboFiles_, &QComboBox::currentIndexChanged, this, &FWeb::presetChosen);
    connect(CmdSave_, &QPushButton::clicked, this, [this] { ask(Work::Save); });

    auto* column = new QWidget;
    column->setMinimumWidth(250);
    column->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* exit = button("CmdCancel", QStringLiteral("Exit"));
    rows->addWidget(choices_, 1);
    rows->addWidget(exit);
    connect(exit, &QPushButton::clicked, this, &FWeb::reject);
    return column;
}

QWidget* FWeb::makeGifFrame()
{
    fgif_ = named(new QWidget, "fgif", tr("Colors"));
    auto* form = new QFormLayout(fgif_);
    form->setContentsMargins(0, 0, 0, 0);
    static constexpr WebEntry kBeforeAPreset[] = {{"Windows", 0}, {"New", 0},         {"Fixed Color", 0}, {"VGA", 0},
                                                  {"iNet", 0},    {"Windows 256", 0}, {"Fixed Grey", 0}};
    cboMap_ = list("cboMap", tr("Palette"), std::span<const WebEntry>(kBeforeAPreset));
    cboMap_->setPlaceholderText(tr("As the format has it"));
    cboDither_ = list("cboDither", tr("Dither"), webDithers());
    cboColorMode_ = list("cboColorMode", tr("Color mode"), webModes());
    form->addRow(tr("&Palette"), cboMap_);
    form->addRow(tr("&Dither"), cboDither_);
    form->addRow(tr("&Mode"), cboColorMode_);
    for (QComboBox* box : {cboMap_, cboDither_, cboColorMode_}) box->setEnabled(false);
    connect(cboMap_, &QComboBox::currentIndexChanged, this, &FWeb::mapChosen);
    connect(cboDither_, &QComboBox::currentIndexChanged, this, [this](int entry) {
        settings_.chooseDither(entry);
        changed();
    });
    connect(cboColorMode_, &QComboBox::currentIndexChanged, this, [this](int entry) {
        settings_.ColorMode = webModes()[std::size_t(entry)].word;
        changed();
    });
    const auto box = [&](const char* name, const QString& text, auto take) {
        auto* made = named(new QCheckBox(text), name, QString(text).remove(u'&'));
        form->addRow(made);
        connect(made, &QCheckBox::toggled, this, [this, take](bool on) {
            take(settings_, on);
            changed();
        });
        return made;
    };
    chkFlipH_ = box("chkFlipH", tr("Flip &horizontal"), [](WebSettings& s, bool on) { s.flipH = on; });
    chkFlipV_ = box("chkFlipV", tr("Flip &vertical"), [](WebSettings& s, bool on) { s.flipV = on; });
    chkInvert_ = box("chkInvert", tr("&Invert"), [](WebSettings& s, bool on) { s.invert = on; });
    ChkInterlaced_ = box("ChkInterlaced", tr("I&nterlaced"), [](WebSettings& s, bool on) { s.setInterlaced(on); });
    ChkInterlaced_->hide();
    return fgif_;
}

QWidget* FWeb::makeJpegFrame()
{
    Fjpg_ = named(new QWidget, "Fjpg", tr("JPEG quality"));
    auto* form = new QFormLayout(Fjpg_);
    form->setContentsMargins(0, 0, 0, 0);
    cboJpg_ = list("cboJpg", tr("JPEG quality"), webJpegQualities());
    cboJpg_->setCurrentIndex(kGoodQuality);
    cboJpg_->setPlaceholderText(tr("Custom"));
    TxtJPG_ = named(new QualityField, "TxtJPG", QStringLiteral("Custom  1 To 99"));
    TxtJPG_->setText(QLatin1String(kEmptyQuality));
    TxtJPG_->setMaxLength(5);
    TxtJPG_->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), TxtJPG_));
    auto* update = button("jpgUpdate", tr("Update"));
    update->setFocusPolicy(Qt::TabFocus); // a click doesn't make the field lose the focus
    form->addRow(tr("&Quality"), cboJpg_);
    auto* custom = new QLabel(QStringLiteral("Custom  1 To 99"));
    custom->setBuddy(TxtJPG_);
    form->addRow(custom);
    form->addRow(withButton(TxtJPG_, update));
    Fjpg_->hide();
    connect(cboJpg_, &QComboBox::currentIndexChanged, this,
            [this](int entry) { qualityChosen(webJpegQualities()[std::size_t(entry)].word); });
    connect(update, &QPushButton::clicked, this, &FWeb::customQuality);
    connect(TxtJPG_, &QLineEdit::returnPressed, this, &FWeb::customQuality);
    return Fjpg_;
}

QWidget* FWeb::makeFitFrame()
{
    FrmFit_ = named(new QWidget, "FrmFit", tr("File size"));
    fit_ = named(new QSpinBox, "spnFit", tr("Fit to so many KB"));
    fit_->setRange(1, 999999);
    fit_->setValue(100);
    fit_->setSuffix(tr(" KB"));
    auto* fit = button("cmdFit", tr("Fit"));
    auto* fitTo = new QLabel(tr("Fit &to"));
    fitTo->setBuddy(fit_);
    auto* form = new QFormLayout(FrmFit_);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(fitTo);
    form->addRow(withButton(fit_, fit));
    FrmFit_->hide();
    connect(fit_->findChild<QLineEdit*>(), &QLineEdit::returnPressed, fit, &QPushButton::click);
    connect(fit, &QPushButton::clicked, this, [this] { ask(Work::Fit); });
    return FrmFit_;
}

QWidget* FWeb::makeCameraFrame()
{
    auto* frame = named(new QWidget, "FrmCamera", tr("Camera data"));
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(chkKeepCamera_ = named(new QCheckBox(tr("&Keep camera data")), "chkKeepCamera"));
    column->addWidget(chkWithoutPlace_ = named(new QCheckBox(tr("without the pla&ce")), "chkWithoutPlace"));
    for (QCheckBox* box : {chkKeepCamera_, chkWithoutPlace_})
        connect(box, &QCheckBox::clicked, this, &FWeb::cameraChosen);
    frame->setVisible(!isEmpty(camera_));
    return frame;
}

QLabel* FWeb::label(const char* name, const QString& accessibleName)
{
    auto* made = named(new QLabel, name, accessibleName);
    made->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return made;
}

QWidget* FWeb::makePage(fPicturePage* page, QList<QLabel*> labels)
{
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(page, 1);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(6, 0, 6, 4);
    line->setSpacing(24);
    for (QLabel* label : labels) line->addWidget(label);
    line->addStretch();
    layout->addLayout(line);
    return widget;
}

QWidget* FWeb::makePages()
{
    FileType2_ = label("FileType2", tr("File type"));
    Depth2_ = label("Depth2", tr("Depth"));
    FileSize2_ = label("FileSize2", tr("File size"));
    FileType4_ = label("FileType4", tr("File type"));
    Depth4_ = label("Depth4", tr("Depth"));
    FileSize4_ = label("FileSize4", tr("File size"));
    sT_ = named(new QTabWidget, "sT", tr("Pictures"));
    sT_->addTab(makePage(isrc_, {label("FileType1", tr("Document"))}), QStringLiteral("Original"));
    sT_->addTab(makePage(oSrc_, {FileType2_, Depth2_, FileSize2_}), QStringLiteral("Optimized"));
    auto* both = new QWidget;
    auto* lines = new QVBoxLayout(both);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(makePage(original_, {label("FileType3", tr("Document"))}), 1);
    lines->addWidget(makePage(optimized_, {FileType4_, Depth4_, FileSize4_}), 1);
    sT_->addTab(both, QStringLiteral("Both"));
    sT_->setCurrentIndex(1); // the page that every choice changes
    connect(sT_, &QTabWidget::currentChanged, this, &FWeb::pageChosen);

    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    exact_ = label("lblExact", tr("Exact size and loss"));
    exact_->setForegroundRole(QPalette::PlaceholderText);
    busy_ = named(new QProgressBar, "pbBusy", tr("The file is being written"));
    busy_->setRange(0, 0); // indeterminate
    busy_->setTextVisible(false);
    busy_->setFixedHeight(kBusyHeight);
    QSizePolicy kept = busy_->sizePolicy(); // the pictures keep their size when it is hidden
    kept.setRetainSizeWhenHidden(true);
    busy_->setSizePolicy(kept);
    busy_->hide();
    layout->addWidget(sT_, 1);
    layout->addWidget(busy_);
    layout->addWidget(exact_);
    return column;
}

} // namespace velara
