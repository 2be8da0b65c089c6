// fFilter: the dialog's behaviour. Its controls are made in fFilter_controls.cpp.
#include "ui/filter/fFilter.h"
#include "commands/jobs.h"
#include "commands/recipe/stepText.h"
#include "document/Draft.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include "seams/text.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/marks/motion.h"
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QSlider>
#include <QVBoxLayout>

namespace velara {

fFilter::fFilter(Frame& frame, const FilterRow& row, const DocumentHandle& document, QWidget* parent)
    : QDialog(parent), frame_(frame), row_(row), document_(document), picture_(document->bits()),
      preview_(picture_, document->Region.working(), kPreviewBox)
{
    setObjectName(QStringLiteral("fFilter"));
    setWindowTitle(shown("Filters", row.title));
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setSpacing(10);
    layout->addWidget(makePreviews());
    layout->addWidget(makeControls());
    layout->addWidget(makeButtons());

    previewTimer_.setSingleShot(true);
    previewTimer_.setTimerType(Qt::PreciseTimer);
    connect(&previewTimer_, &QTimer::timeout, this, &fFilter::runPreview);
    tmrSelect_.setObjectName(QStringLiteral("tmrSelect"));
    tmrSelect_.setInterval(400);
    connect(&tmrSelect_, &QTimer::timeout, iSrc_, &fPicture::flipMarker);
    if (has(row.extras, FilterExtra::PickCentre | FilterExtra::PickColour) && !lessMotion()) tmrSelect_.start();
    runPreview();
}

FilterArgs fFilter::arguments() const
{
    FilterArgs args;
    for (std::size_t i = 0; i < sbFilter_.size(); ++i)
        if (sbFilter_[i]) args.value[i] = sbFilter_[i]->value() - row_.sliders[i].centre();
    for (std::size_t i = 0; i < Col_.size(); ++i)
        if (Col_[i]) args.colour[i] = Col_[i]->colour();
    args.option = chkOption_ && chkOption_->isChecked();
    args.centerX = static_cast<float>(centre_.x());
    args.centerY = static_cast<float>(centre_.y());
    args.longerSide = preview_.longerSide();
    for (std::size_t i = 0; i < channels_.size() && channels_[i]; ++i) {
        args.channel[i] = 2 - channels_[i]->checkedId(); // the choices are red, green, blue
        args.invert[i] = chkInvt_[i]->isChecked();
        args.kill[i] = chkKill_[i]->isChecked();
    }
    if (oo_) args.style = kGlassStyles[oo_->checkedId()].style;
    if (cbo_) args.mode = cbo_->currentIndex();
    if (Curt_) args.mode = Curt_->checkedId();
    return args;
}

bool fFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && chkOption_) chkOption_->toggle();
    return QDialog::eventFilter(watched, event);
}

// --- Preview

void fFilter::changed()
{
    if (const auto delay = pacer_.change(frame_.platform().milliseconds()))
        previewTimer_.start(static_cast<int>(*delay));
}

/// The strengths of the glass; the choice is kept if the style has it.
void fFilter::fillModes()
{
    const int mode = cbo_->currentIndex(), modes = kGlassStyles[oo_->checkedId()].modes;
    const QSignalBlocker quiet(cbo_);
    cbo_->clear();
    for (int i = 0; i < modes; ++i) cbo_->addItem(shown("Filters", kGlassModes[i]));
    cbo_->setCurrentIndex(mode < 0 || mode >= modes ? 0 : mode);
}

void fFilter::runPreview()
{
    pacer_.runStarts(frame_.platform().milliseconds());
    QString state;
    Bits result = preview_.source();
    if (chkPreview_->isChecked() && !result.isNull()) try {
            result = preview_.run(row_, arguments());
        } catch (const std::exception& failure) {
            state = QString::fromUtf8(failure.what());
        }
    iDst_->setBits(result);
    state_->setText(state);
    runDetail();
}

void fFilter::picked(QPoint pixel)
{
    const Bits& bits = preview_.source();
    iSrc_->setMarker(pixel);
    if (has(row_.extras, FilterExtra::PickCentre)) {
        centre_ = {double(pixel.x()) / bits.width(), double(pixel.y()) / bits.height()};
        showDetail(pixel);
        changed();
    } else if (fColorButton* well = Col_[static_cast<std::size_t>(activeWell_)]) {
        const auto& c = bits.at(pixel.x(), pixel.y()).c;
        well->setColour(colourOf(c[2], c[1], c[0]));
    }
}

void fFilter::activateWell(int well)
{
    activeWell_ = well;
    for (int i = 0; i < 2; ++i)
        if (auto* button = Col_[static_cast<std::size_t>(i)]) button->setActive(i == well && Col_[0] && Col_[1]);
}

// --- The whole picture

void fFilter::showRunning(bool running)
{
    running_ = running;
    for (QWidget* widget : {controls_, cmdPreview_, cmdOK_}) widget->setEnabled(!running);
    iSrc_->setEnabled(!running);
    state_->setText(running ? tr("Working. Esc ends it.") : QString());
}

void fFilter::accept()
{
    if (running_) return;
    if (detailRun_) detailRun_->stop();
    showRunning(true);
    const FilterArgs args = arguments();
    change_ = frame_.workspace().change(
        document_, {filterJob(row_, args), After::Step, stepName_, callText(row_.operation, row_.arguments(args))},
        [alive = QPointer(this)](const Outcome& outcome) {
            if (alive) alive->ended(outcome);
        });
}

void fFilter::ended(const Outcome& outcome)
{
    showRunning(false);
    if (outcome) return QDialog::accept();
    if (outcome.kind == Outcome::Gone) return QDialog::reject();
    if (!outcome.reason.isEmpty())
        frame_.platform().tell(windowTitle() + QStringLiteral(": ") + outcome.reason, Icon::Exclamation);
}

void fFilter::reject()
{
    if (!running_ || !frame_.workspace().cancel(document_, change_)) QDialog::reject();
}

} // namespace velara
