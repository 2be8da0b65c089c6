// FWeb: the dialog's behaviour. Its controls are made in FWeb_controls.cpp.
#include "ui/export/FWeb.h"
#include "document/undo/UndoMark.h"
#include "fileio/cameraData.h"
#include "fileio/disk/nativeName.h"
#include "fileio/disk/userFolders.h"
#include "fileio/formats.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "ui/export/fWebTable.h"
#include "ui/widgets/ActiveComposer.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <cmath>
#include <utility>

namespace velara {

namespace {

constexpr int kBothTab = 2;
constexpr int kMostQuality = 32767;
// Of the user's settings.
constexpr auto kSection = "SaveForWeb", kLast = "Last", kKeepCamera = "KeepCameraData", kLeaveOut = "LeaveOutPlace";
constexpr auto kOn = "on", kOff = "off";

/// Selects an entry of a combo box without a signal.
void setQuietly(QComboBox* box, int index)
{
    const QSignalBlocker quiet(box);
    box->setCurrentIndex(index);
}

} // namespace

FWeb::FWeb(Platform& platform, const Bits& picture, const CameraData& camera, const QString& name, const QString& path,
           QWidget* parent)
    : QDialog(parent), platform_(platform), picture_(picture), optimizedBits_(picture), camera_(camera), name_(name),
      path_(path), isrc_(new fPicturePage({"CiSrc", "isrc", "H", "V"}, tr("Original"))),
      oSrc_(new fPicturePage({"CoSrc", "oSrc", "Hop", "Vop"}, tr("Optimized"))),
      original_(new fPicturePage({"COriginalP", "OriginalP", "HHor", "VVor"}, tr("Original, above the optimized"))),
      optimized_(new fPicturePage({"COptimizedP", "OptimizedP", "HHop", "VVop"}, tr("Optimized, below the original")))
{
    setObjectName(QStringLiteral("FWeb"));
    setWindowTitle(tr("Customized Save Options "));
    setModal(true);
    ActiveComposer::unload();
    auto* row = new QHBoxLayout(this);
    row->setSpacing(12);
    row->addWidget(makeChoices());
    row->addWidget(makePages(), 1);
    for (const char* label : {"FileType1", "FileType3"})
        findChild<QLabel*>(QLatin1String(label))->setText(printable(name));
    isrc_->setPartner(*oSrc_);
    original_->setPartner(*optimized_);
    isrc_->setBits(picture_);
    oSrc_->setBits(optimizedBits_);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &FWeb::next);
    resize(900, 620);
    chkKeepCamera_->setChecked(platform_.setting(kSection, kKeepCamera, kOff) == kOn);
    chkWithoutPlace_->setChecked(platform_.setting(kSection, kLeaveOut, kOn) == kOn);
    takeCamera();
    recall();
}

FWeb::~FWeb() { end(); }

QString FWeb::temporaryName() const
{
    const QString folder = tempFolder(platform_.programFolder());
    makePrivateFolder(folder); // it may have been removed meanwhile
    return folder + (settings_.isJpeg() ? QStringLiteral("/J0001.jpg") : QStringLiteral("/G0001.gif"));
}

// --- Choices

void FWeb::presetChosen(int index)
{
    if (index < 0) return;
    settings_.choosePreset(index, ChkInterlaced_->isChecked());
    takeCamera();
    fgif_->setVisible(!settings_.hasQuality());
    Fjpg_->setVisible(settings_.hasQuality());
    FrmFit_->setVisible(settings_.fitsASize());
    ChkInterlaced_->setVisible(settings_.isGif());
    for (QWidget* widget : std::initializer_list<QWidget*>{FrmAPI_, cboColorMode_, CmdSave_}) widget->setEnabled(true);
    cboMap_->setEnabled(settings_.choosesMap());
    cboDither_->setEnabled(settings_.takesDither);
    const QSignalBlocker quiet(cboMap_);
    cboMap_->clear();
    for (const int map : settings_.maps()) cboMap_->addItem(QLatin1String(webMaps()[std::size_t(map)].entry), map);
    cboMap_->setCurrentIndex(cboMap_->findData(settings_.map()));
    setQuietly(cboDither_, 0);
    setQuietly(cboColorMode_, 0);
    if (!settings_.hasQuality()) return changed();
    setQuietly(cboJpg_, kGoodQuality);
    qualityChosen(webJpegQualities()[kGoodQuality].word);
}

/// What the file gets beside its pixels: of what the camera wrote nothing, unless that is wanted.
void FWeb::takeCamera()
{
    const bool holds = settings_.holdsCamera(), keeps = holds && chkKeepCamera_->isChecked();
    chkKeepCamera_->setEnabled(holds);
    chkKeepCamera_->setToolTip(holds ? QString() : tr("Files of this format have no place for it"));
    chkWithoutPlace_->setEnabled(keeps);
    const CameraKept kept = !keeps                          ? CameraKept::None
                            : chkWithoutPlace_->isChecked() ? CameraKept::NoPlace
                                                            : CameraKept::All;
    settings_.camera = keptForWeb(camera_, kept, picture_.width(), picture_.height());
}

void FWeb::cameraChosen()
{
    platform_.setSetting(kSection, kKeepCamera, chkKeepCamera_->isChecked() ? kOn : kOff);
    platform_.setSetting(kSection, kLeaveOut, chkWithoutPlace_->isChecked() ? kOn : kOff);
    takeCamera();
    if (CboFiles_->currentIndex() >= 0) changed();
}

void FWeb::chooseFromTable()
{
    const QPointer<FWeb> alive = this;
    end(); // a preview under way begins again afterwards
    const QString folder = tempFolder(platform_.programFolder());
    makePrivateFolder(folder);
    const QPointer<fWebTable> table =
        new fWebTable(platform_, picture_, settings_.camera, folder + QStringLiteral("/T0001"), this);
    table->exec();
    if (!alive || !table) return;
    const int preset = table->preset();
    delete table;
    if (preset >= 0) CboFiles_->setCurrentIndex(preset);
    next();
}

void FWeb::mapChosen(int entry)
{
    settings_.chooseMap(cboMap_->itemData(entry).toInt());
    cboDither_->setEnabled(settings_.takesDither);
    if (!settings_.takesDither) setQuietly(cboDither_, 0);
    changed();
}

void FWeb::qualityChosen(int quality)
{
    settings_.JpegQuality = quality;
    changed();
}

void FWeb::customQuality()
{
    if (TxtJPG_->text().isEmpty()) return platform_.tell(tr("Enter value between 1 to 99 !"));
    setQuietly(cboJpg_, -1); // none of the classes, so that each of them can be selected again
    qualityChosen(std::min(TxtJPG_->text().toInt(), kMostQuality));
}

/// The choices by their texts, so that they may be looked up in any version's lists.
void FWeb::remember()
{
    if (CboFiles_->currentIndex() < 0) return;
    const QStringList parts{CboFiles_->currentText(),
                            cboMap_->currentText(),
                            cboDither_->currentText(),
                            cboColorMode_->currentText(),
                            QString::number(settings_.JpegQuality),
                            ChkInterlaced_->isChecked() ? "1" : "0",
                            QString::number(fit_->value())};
    platform_.setSetting(kSection, kLast, parts.join(u'|'));
}

void FWeb::recall()
{
    const QStringList parts = platform_.setting(kSection, kLast, {}).split(u'|');
    if (parts.size() != 7 || CboFiles_->findText(parts[0]) < 0) return;
    ChkInterlaced_->setChecked(parts[5] == "1");
    CboFiles_->setCurrentIndex(CboFiles_->findText(parts[0]));
    int i = 0;
    for (QComboBox* list : {cboMap_, cboDither_, cboColorMode_})
        if (const int entry = list->findText(parts[++i]); entry >= 0 && list->isEnabled()) list->setCurrentIndex(entry);
    fit_->setValue(parts[6].toInt());
    if (!settings_.hasQuality()) return;
    const int quality = std::clamp(parts[4].toInt(), 0, kMostQuality);
    const auto isIt = [quality](const WebEntry& entry) { return entry.word == quality; };
    const auto known = std::ranges::find_if(webJpegQualities(), isIt) - webJpegQualities().begin();
    setQuietly(cboJpg_, known < cboJpg_->count() ? int(known) : -1);
    if (known == cboJpg_->count()) TxtJPG_->setText(QString::number(quality));
    qualityChosen(quality);
}

// --- Files

/// What becomes of a file, and the picture as a reader sees it.
struct FWeb::Written {
    WebSettings settings;
    QString name;
    bool isFinal = false;
    WebFile file = {};
    Bits shown = {};
    double decibels = 0; // of a picture that kept its size
};

namespace {

bool keptItsSize(const Bits& picture, const Bits& shown)
{
    return picture.width() == shown.width() && picture.height() == shown.height();
}

} // namespace

/// All changes until the message loop is idle count as one.
void FWeb::changed()
{
    again_ = true;
    request_.reset();
    note_.clear();
    setStale(true);
    timer_.start(0);
}

/// A button was pressed. It doesn't wait for a preview; only "Save As" waits for the quality that "Fit" looks for.
void FWeb::ask(Work work)
{
    next_ = work;
    if (work != Work::Save || now_ != Work::Fit) request_.reset();
    next();
}

/// Does one piece of work after the other, until there is none.
void FWeb::next()
{
    if (request_) return;
    timer_.stop();
    switch (std::exchange(next_, Work::Preview)) {
    case Work::Preview:
        if (again_) write();
        break;
    case Work::Fit:
        fitSize();
        break;
    case Work::Save:
        saveAs();
    }
}

void FWeb::begin(Work work, std::function<void(const GoOn&)> does, std::function<void()> done)
{
    now_ = work;
    showWaiting(true);
    request_ = platform_.inBackground(std::move(does), [this, done = std::move(done)] {
        end();
        done();
    });
}

/// Gives up what is under way.
void FWeb::end()
{
    request_.reset();
    showWaiting(false);
}

void FWeb::write(const QString& finalName)
{
    const bool isFinal = !finalName.isEmpty();
    const auto file = std::make_shared<Written>(Written{settings_, isFinal ? finalName : temporaryName(), isFinal});
    const auto does = [file, picture = picture_, palettes = palettes_, &reader = platform_](const GoOn& goOn) {
        file->file = writeWebFile(picture, file->settings, file->name,
                                  file->isFinal ? OutputFile::Links::Follow : OutputFile::Links::Replace,
                                  untilGivenUp(goOn), palettes.get());
        if (file->file.outcome != WebFile::Outcome::Written) return;
        file->shown = reader.loadPicture(file->name, file->settings.extension(), goOn).bits;
        if (keptItsSize(file->file.source, file->shown))
            file->decibels = peakSignalToNoise(file->file.source, file->shown);
    };
    begin(isFinal ? Work::Save : Work::Preview, does, [this, file] { written(*file); });
}

void FWeb::written(const Written& written)
{
    const QPointer<FWeb> alive = this;
    const WebFile& file = written.file;
    if (!written.shown.isNull()) showFile(written);
    if (!written.shown.isNull() || !written.isFinal) again_ = false; // what was shown stays until the next
    if (file.outcome == WebFile::Outcome::NoBitmap)
        platform_.message(tr("Please Choose a higher image format!"),
                          tr("The current format cannot be applied to the image!"), Icon::Information);
    if (alive && file.outcome == WebFile::Outcome::Failed) {
        const QString why = file.reason.isEmpty() ? QString() : QStringLiteral(": ") + file.reason;
        const QString fault = tr("%1 can't be written%2.").arg(printable(QFileInfo(written.name).fileName()), why);
        written.isFinal ? platform_.tell(fault, Icon::Exclamation) : say(fault);
    }
    if (!alive) return;
    if (written.isFinal) {
        choices_->setEnabled(true);
        CmdSave_->setFocus();
    }
    next();
}

void FWeb::showFile(const Written& written)
{
    const WebSettings& settings = written.settings;
    optimizedBits_ = written.shown;
    oSrc_->setBits(optimizedBits_);
    if (sT_->currentIndex() == kBothTab) optimized_->setBits(optimizedBits_);
    for (QLabel* label : {FileType2_, FileType4_}) label->setText(settings.typeText());
    for (QLabel* label : {Depth2_, Depth4_}) label->setText(settings.depthText());
    if (const auto size = settings.sizeText(written.file.bytes))
        for (QLabel* label : {FileSize2_, FileSize4_}) label->setText(*size);
    setStale(false);
    QStringList parts{tr("%L1 bytes").arg(written.file.bytes)};
    if (const qint64 before = path_.isEmpty() ? 0 : sizeOfFile(path_); before > 0)
        parts += tr("%1 % of the original file").arg(std::lround(100.0 * double(written.file.bytes) / double(before)));
    if (keptItsSize(written.file.source, optimizedBits_))
        parts +=
            std::isinf(written.decibels) ? tr("no loss") : tr("%1 dB").arg(locale().toString(written.decibels, 'f', 1));
    if (settings.BitCount < settings.row().bitCount) parts.prepend(tr("%n colors", nullptr, 1 << settings.BitCount));
    exact_->setText(note_.isEmpty() ? parts.join(QStringLiteral(", ")) : note_);
}

/// The file's properties are grey while they aren't those of the settings.
void FWeb::setStale(bool stale)
{
    for (QLabel* label : {FileType2_, Depth2_, FileSize2_, FileType4_, Depth4_, FileSize4_, exact_})
        label->setEnabled(!stale);
}

void FWeb::say(const QString& text)
{
    exact_->setText(text);
    exact_->setEnabled(true);
}

void FWeb::showWaiting(bool waiting)
{
    if (waiting != busy_->isHidden()) return;
    busy_->setVisible(waiting);
    if (waiting)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

void FWeb::fitSize()
{
    note_.clear();
    const std::int64_t most = std::int64_t{fit_->value()} * 1024;
    const auto found = std::make_shared<std::optional<WebSettings>>();
    const auto does = [found, most, picture = picture_, settings = settings_, name = temporaryName(),
                       palettes = palettes_](const GoOn& goOn) {
        *found = fittedSettings(picture, settings, most, name, untilGivenUp(goOn), palettes.get());
    };
    begin(Work::Fit, does, [this, found] { fitted(*found); });
}

void FWeb::fitted(const std::optional<WebSettings>& settings)
{
    if (settings) {
        adopt(*settings);
    } else {
        next_ = Work::Preview; // a file that is too large isn't what was to be saved
        note_ = (settings_.hasQuality() ? tr("No quality makes it as small as %1 KB.")
                                        : tr("No number of colors makes it as small as %1 KB."))
                    .arg(fit_->value());
        say(note_);
    }
    next();
}

void FWeb::adopt(const WebSettings& settings)
{
    if (settings.hasQuality()) {
        TxtJPG_->setText(QString::number(settings.JpegQuality));
        return customQuality();
    }
    CboFiles_->setCurrentIndex(settings.preset); // fills the list of palettes
    const auto isIt = [&](const WebEntry& entry) { return entry.word == settings.DitherWord; };
    setQuietly(cboMap_, cboMap_->findData(settings.map()));
    setQuietly(cboDither_, int(std::ranges::find_if(webDithers(), isIt) - webDithers().begin()));
    setQuietly(cboColorMode_, settings.ColorMode == 0 ? 0 : 1);
    cboDither_->setEnabled(settings.takesDither);
    settings_ = settings;
    takeCamera();
    changed();
}

void FWeb::saveAs()
{
    const QPointer<FWeb> alive = this;
    showWaiting(false);
    FileDialog dialog{tr("Save Optimized As"), settings_.saveFilter()};
    dialog.extension = settings_.extension();
    dialog.name = withEnding(name_, dialog.extension);
    const auto fileOf = [extension = dialog.extension](const QString& name) { return withEnding(name, extension); };
    dialog.writtenAs = fileOf;
    const auto name = platform_.saveFileName(dialog);
    if (!alive || !isVisible()) return;
    if (!name) return next();
    choices_->setEnabled(false); // the file being written must match the choices
    write(fileOf(*name));
}

void FWeb::pageChosen(int page)
{
    if (page != kBothTab) return;
    original_->setBits(picture_);
    optimized_->setBits(optimizedBits_);
    original_->setScroll({});
}

void FWeb::reject()
{
    end();
    timer_.stop();
    remember();
    QDialog::reject();
}

} // namespace velara
