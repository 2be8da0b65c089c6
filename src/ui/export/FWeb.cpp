// FWeb: the dialog's behaviour. Its controls are made in FWeb_controls.cpp.
#include "ui/export/FWeb.h"
#include "document/undo/UndoMark.h"
#include "fileio/formats.h"
#include "pixels/RuntimeError.h"
#include "seams/Platform.h"
#include "seams/printable.h"
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
constexpr std::uint32_t kBetweenYields = 15; // milliseconds
constexpr int kMostQuality = 32767;

/// Selects an entry of a combo box without a signal.
void setQuietly(QComboBox* box, int index)
{
    const QSignalBlocker quiet(box);
    box->setCurrentIndex(index);
}

} // namespace

FWeb::FWeb(Platform& platform, const Bits& picture, const QString& name, const QString& path, QWidget* parent)
    : QDialog(parent), platform_(platform), picture_(picture), optimizedBits_(picture), path_(path),
      isrc_(new fPicturePage({"CiSrc", "isrc", "H", "V"}, tr("Original"))),
      oSrc_(new fPicturePage({"CoSrc", "oSrc", "Hop", "Vop"}, tr("Optimized"))),
      original_(new fPicturePage({"COriginalP", "OriginalP", "HHor", "VVor"}, tr("Original, above the optimized"))),
      optimized_(new fPicturePage({"COptimizedP", "OptimizedP", "HHop", "VVop"}, tr("Optimized, below the original")))
{
    setObjectName(QStringLiteral("FWeb"));
    setWindowTitle(QStringLiteral("Customized Save Options "));
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
    connect(&timer_, &QTimer::timeout, this, &FWeb::run);
    resize(900, 620);
}

QString FWeb::temporaryName() const
{
    const QString folder = platform_.programFolder() + QStringLiteral("/Temp");
    makePrivateFolder(folder); // it may have been removed meanwhile
    return folder + (settings_.isJpeg() ? QStringLiteral("/J0001.jpg") : QStringLiteral("/G0001.gif"));
}

// --- Choices

void FWeb::presetChosen(int index)
{
    if (index < 0) return;
    settings_.choosePreset(index, ChkInterlaced_->isChecked());
    fgif_->setVisible(!settings_.isJpeg());
    Fjpg_->setVisible(settings_.isJpeg());
    ChkInterlaced_->setVisible(settings_.isGif());
    for (QWidget* widget : std::initializer_list<QWidget*>{FrmAPI_, cboMap_, cboDither_, cboColorMode_, CmdSave_})
        widget->setEnabled(true);
    const QSignalBlocker quiet(cboMap_);
    cboMap_->clear();
    for (const int map : settings_.maps()) cboMap_->addItem(QLatin1String(webMaps()[std::size_t(map)].entry), map);
    cboMap_->setCurrentIndex(cboMap_->findData(settings_.map()));
    setQuietly(cboDither_, 0);
    setQuietly(cboColorMode_, 0);
    if (!settings_.isJpeg()) return changed();
    setQuietly(cboJpg_, kGoodQuality);
    qualityChosen(webJpegQualities()[kGoodQuality].word);
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
    if (TxtJPG_->text().isEmpty()) return platform_.tell(QStringLiteral("Enter value between 1 to 99 !"));
    setQuietly(cboJpg_, -1); // none of the classes, so that each of them can be selected again
    qualityChosen(std::min(TxtJPG_->text().toInt(), kMostQuality));
}

// --- Files

/// All changes until the message loop is idle are one.
void FWeb::changed()
{
    again_ = stop_ = true;
    note_.clear();
    setStale(true);
    if (!running_) timer_.start(0);
}

/// A button was pressed. It doesn't wait for a preview; only "Save As" waits for the quality that "Fit" looks for.
void FWeb::ask(Work work)
{
    timer_.stop();
    next_ = work;
    stop_ |= !(work == Work::Save && now_ == Work::Fit);
    run(); // at once, or when what is under way has ended
}

/// Yields now and then, and ends the work when it is not wanted any more.
ReduceProgress FWeb::yielding()
{
    return [this, alive = QPointer<FWeb>(this)](int) {
        if (const std::uint32_t now = platform_.milliseconds(); now - lastYield_ >= kBetweenYields) {
            platform_.yield();
            if (alive) lastYield_ = platform_.milliseconds();
        }
        if (!alive || stop_) throw Cancelled();
    };
}

/// One work after the other, until there is none.
void FWeb::run()
{
    if (running_) return;
    const QPointer<FWeb> alive = this;
    running_ = true;
    while (alive && !closing_ && (next_ != Work::Preview || again_)) {
        stop_ = false;
        switch (now_ = std::exchange(next_, Work::Preview)) {
        case Work::Preview:
            write();
            break;
        case Work::Fit:
            fitSize();
            break;
        case Work::Save:
            saveAs();
        }
    }
    if (!alive) return;
    running_ = false;
    if (closing_) QDialog::reject();
}

void FWeb::write(const QString& finalName)
{
    const QPointer<FWeb> alive = this;
    const QString name = finalName.isEmpty() ? temporaryName() : finalName;
    const WebSettings settings = settings_; // a change meanwhile is for the next one
    const bool wanted = std::exchange(again_, false);
    showWaiting(true);
    const WebFile file = writeWebFile(picture_, settings, name,
                                      finalName.isEmpty() ? OutputFile::Links::Replace : OutputFile::Links::Follow,
                                      yielding(), &palettes_);
    LoadedPicture shown; // the file as a reader sees it
    if (alive && file.outcome == WebFile::Outcome::Written)
        shown = platform_.loadPicture(name, settings.extension(), [go = yielding()](auto) {
            try {
                go(100);
                return true;
            } catch (const Cancelled&) {
                return false;
            }
        });
    if (!alive) {
        QGuiApplication::restoreOverrideCursor();
        return;
    }
    showWaiting(false);
    if (shown.ok() && !again_)
        showFile(settings, file, shown.bits);
    else if (stop_ || !finalName.isEmpty())
        again_ |= wanted; // what was shown stays until the next
    if (file.outcome == WebFile::Outcome::NoBitmap)
        platform_.message(QStringLiteral("Please Choose a higher image format!"),
                          QStringLiteral("The current format cannot be applied to the image!"), Icon::Information);
    if (file.outcome != WebFile::Outcome::Failed) return;
    const QString why = file.reason.isEmpty() ? QString() : QStringLiteral(": ") + file.reason;
    const QString fault = tr("%1 can't be written%2.").arg(printable(QFileInfo(name).fileName()), why);
    finalName.isEmpty() ? say(fault) : platform_.tell(fault, Icon::Exclamation);
}

void FWeb::showFile(const WebSettings& settings, const WebFile& file, const Bits& shown)
{
    optimizedBits_ = shown;
    oSrc_->setBits(optimizedBits_);
    if (sT_->currentIndex() == kBothTab) optimized_->setBits(optimizedBits_);
    for (QLabel* label : {FileType2_, FileType4_}) label->setText(settings.typeText());
    for (QLabel* label : {Depth2_, Depth4_}) label->setText(settings.depthText());
    if (const auto size = settings.sizeText(file.bytes))
        for (QLabel* label : {FileSize2_, FileSize4_}) label->setText(*size);
    setStale(false);
    QStringList parts{tr("%L1 bytes").arg(file.bytes)};
    if (const qint64 before = path_.isEmpty() ? 0 : QFileInfo(path_).size(); before > 0)
        parts += tr("%1 % of the original file").arg(std::lround(100.0 * double(file.bytes) / double(before)));
    if (file.source.width() == optimizedBits_.width() && file.source.height() == optimizedBits_.height()) {
        const double decibels = peakSignalToNoise(file.source, optimizedBits_);
        parts += std::isinf(decibels) ? tr("no loss") : tr("%1 dB").arg(decibels, 0, 'f', 1);
    }
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
    busy_->setVisible(waiting);
    if (waiting)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

void FWeb::fitSize()
{
    const QPointer<FWeb> alive = this;
    const std::int64_t most = std::int64_t{fit_->value()} * 1024;
    note_.clear();
    showWaiting(true);
    const std::optional<int> quality = bestJpegQuality(picture_, most, yielding());
    if (!alive) return QGuiApplication::restoreOverrideCursor();
    showWaiting(false);
    if (stop_) return;
    if (!quality) {
        next_ = Work::Preview; // a file that is too large is not what was to be saved
        note_ = tr("No quality makes it as small as %1 KB.").arg(fit_->value());
        return say(note_);
    }
    TxtJPG_->setText(QString::number(*quality));
    customQuality();
}

void FWeb::saveAs()
{
    const QPointer<FWeb> alive = this;
    FileDialog dialog{QStringLiteral("Save Optimized As"), settings_.saveFilter()};
    dialog.extension = settings_.extension();
    const auto fileOf = [extension = dialog.extension](const QString& name) { return withExtension(name, extension); };
    dialog.writtenAs = fileOf;
    const auto name = platform_.saveFileName(dialog);
    if (!alive || !name || closing_) return;
    choices_->setEnabled(false); // what is being written is what was asked for
    write(fileOf(*name));
    if (!alive) return;
    choices_->setEnabled(true);
    CmdSave_->setFocus();
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
    closing_ = stop_ = true;
    timer_.stop();
    if (!running_) QDialog::reject();
}

} // namespace velara
