// fFilter: making and laying out its controls. Members of control arrays are named name_index.
#include "document/road/Frame.h"
#include "engine/operations.h"
#include "seams/Setup.h"
#include "seams/text.h"
#include "ui/filter/fFilter.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/inputs/fNumberBox.h"
#include "ui/widgets/inputs/named.h"
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>

namespace velara {

namespace {

constexpr const char* kChannels[] = {QT_TRANSLATE_NOOP("velara::fFilter", "Red"),
                                     QT_TRANSLATE_NOOP("velara::fFilter", "Green"),
                                     QT_TRANSLATE_NOOP("velara::fFilter", "Blue")};

QString numbered(const char* name, std::size_t index) { return QLatin1String(name) + u'_' + QString::number(index); }

} // namespace

QWidget* fFilter::makeControls()
{
    controls_ = new QWidget(this);
    auto* layout = new QVBoxLayout(controls_);
    layout->setContentsMargins(0, 0, 0, 0);
    addSliders(layout);
    auto* below = new QHBoxLayout;
    addColours(below);
    addOption(below);
    below->addStretch();
    layout->addLayout(below);
    if (has(row_.extras, FilterExtra::Banks)) layout->addWidget(makeBanks());
    if (has(row_.extras, FilterExtra::Glass)) layout->addWidget(makeGlass());
    if (has(row_.extras, FilterExtra::Curtain)) layout->addWidget(makeCurtain());
    return controls_;
}

/// The unit of a slider's numbers, such as how far a blur reaches, and what its ends do; empty for one in units of its
/// own.
static QString meaningOf(const FilterRow& row, const FilterSlider& slider)
{
    if (slider.step != 1 || slider.centred) return {};
    const auto operation = std::ranges::find(operations(), row.operation, &Operation::name);
    const auto parameter = std::ranges::find(operation->parameters, slider.parameter, &Parameter::name);
    return parameter == operation->parameters.end() ? QString() : shown("Filters", parameter->meaning);
}

void fFilter::addSliders(QBoxLayout* layout)
{
    for (std::size_t i = 0; i < row_.sliders.size(); ++i) {
        const FilterSlider& slider = row_.sliders[i];
        if (!slider.used()) continue;
        const QString caption = shown("Filters", slider.caption);
        auto* frame = named(new QFrame(controls_), numbered("frFilter", i));
        const QString meaning = meaningOf(row_, slider);
        if (!meaning.isEmpty()) frame->setToolTip(caption + QStringLiteral(": ") + meaning);
        auto* line = new QHBoxLayout(frame);
        line->setContentsMargins(0, 0, 0, 0);
        auto* label = named(new QLabel(caption, frame), numbered("lblFInfo", i));
        label->setMinimumWidth(120);
        auto* bar = sbFilter_[i] = named(new QSlider(Qt::Horizontal, frame), numbered("sbFilter", i), caption);
        bar->setRange(slider.minimum(), slider.maximum());
        bar->setPageStep(std::max(1, (slider.maximum() - slider.minimum()) / 10));
        bar->setValue(slider.initial());
        bar->setAccessibleDescription(meaning);
        label->setBuddy(bar);
        auto* value = new fNumberBox(*bar, numbered("lblFilterV", i), {slider.step, slider.decimals});
        for (QWidget* widget : std::initializer_list<QWidget*>{label, bar, value}) line->addWidget(widget);
        line->setStretch(1, 1);
        layout->addWidget(frame);
        connect(bar, &QSlider::valueChanged, this, &fFilter::changed);
    }
}

void fFilter::addColours(QBoxLayout* layout)
{
    constexpr std::array kWells{FilterExtra::SourceWell, FilterExtra::TargetWell};
    const bool both = has(row_.extras, kWells[0]) && has(row_.extras, kWells[1]);
    if (!has(row_.extras, kWells[0] | kWells[1])) return;
    auto* frame = named(new QFrame(controls_), QStringLiteral("frColor"));
    auto* line = new QHBoxLayout(frame);
    line->setContentsMargins(0, 0, 16, 0);
    const std::array<Colour, 2> initial{frame_.setup().ForeColor, frame_.setup().BackColor};
    for (int i = 0; i < 2; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (!has(row_.extras, kWells[at])) continue;
        const QString caption = !both ? tr("Color") : i == 0 ? tr("From") : tr("To");
        auto* well = Col_[at] =
            new fColorButton(frame_, numbered("Col", at), both ? tr("%1 color").arg(caption) : caption, frame);
        well->setColour(initial[at]);
        line->addWidget(new QLabel(caption, frame));
        line->addWidget(well);
        connect(well, &fColorButton::colourChanged, this, &fFilter::changed);
        connect(well, &QAbstractButton::pressed, this, [this, i] { activateWell(i); });
    }
    activateWell(Col_[0] ? 0 : 1);
    layout->addWidget(frame);
}

void fFilter::addOption(QBoxLayout* layout)
{
    if (!row_.option) return;
    auto* frame = named(new QFrame(controls_), QStringLiteral("frOption"));
    auto* line = new QHBoxLayout(frame);
    line->setContentsMargins(0, 0, 0, 0);
    const QString caption = shown("Filters", row_.option);
    chkOption_ = named(new QCheckBox(frame), QStringLiteral("chkOption"), caption);
    auto* label = named(new QLabel(caption, frame), QStringLiteral("lblOption"));
    label->setBuddy(chkOption_);
    label->installEventFilter(this);
    line->addWidget(chkOption_);
    line->addWidget(label);
    layout->addWidget(frame);
    connect(chkOption_, &QCheckBox::toggled, this, &fFilter::changed);
}

QWidget* fFilter::makeBanks()
{
    auto* box = named(new QGroupBox(tr("Banks"), controls_), QStringLiteral("frBanks"));
    auto* grid = new QGridLayout(box);
    constexpr std::array kNames{"optRChannel", "optGChannel", "optBChannel"};
    for (std::size_t i = 0; i < 3; ++i) {
        const int line = static_cast<int>(i);
        const QString channel = tr(kChannels[i]);
        grid->addWidget(new QLabel(tr("%1 comes from").arg(channel), box), line, 0);
        channels_[i] = new QButtonGroup(box);
        for (int choice = 0; choice < 3; ++choice) {
            auto* button = named(new QRadioButton(tr(kChannels[choice]), box),
                                 numbered(kNames[i], static_cast<std::size_t>(choice)),
                                 tr("%1 comes from %2").arg(channel, tr(kChannels[choice])));
            button->setChecked(choice == line);
            channels_[i]->addButton(button, choice);
            grid->addWidget(button, line, 1 + choice);
        }
        chkInvt_[i] = named(new QCheckBox(tr("Invert"), box), numbered("chkInvt", i), tr("Invert %1").arg(channel));
        chkKill_[i] = named(new QCheckBox(tr("Kill"), box), numbered("chkKill", i), tr("Kill %1").arg(channel));
        grid->addWidget(chkInvt_[i], line, 4);
        grid->addWidget(chkKill_[i], line, 5);
        connect(channels_[i], &QButtonGroup::idClicked, this, &fFilter::changed);
        for (QCheckBox* check : {chkInvt_[i], chkKill_[i]})
            connect(check, &QCheckBox::toggled, this, &fFilter::changed);
    }
    return box;
}

QWidget* fFilter::makeGlass()
{
    auto* box = named(new QGroupBox(tr("Glass"), controls_), QStringLiteral("FrmGlass"));
    auto* line = new QHBoxLayout(box);
    oo_ = new QButtonGroup(box);
    const std::string initial = FilterArgs().style;
    for (std::size_t i = 0; i < std::size(kGlassStyles); ++i) {
        const QString caption = shown("Filters", kGlassStyles[i].caption);
        auto* button = named(new QRadioButton(caption, box), numbered("oo", i), tr("%1 glass").arg(caption));
        button->setChecked(initial == kGlassStyles[i].style);
        oo_->addButton(button, static_cast<int>(i));
        line->addWidget(button);
    }
    line->addStretch();
    cbo_ = named(new QComboBox(box), QStringLiteral("cbo"), tr("Strength"));
    line->addWidget(new QLabel(cbo_->accessibleName(), box));
    line->addWidget(cbo_);
    fillModes();
    connect(oo_, &QButtonGroup::idClicked, this, [this] {
        fillModes();
        changed();
    });
    connect(cbo_, &QComboBox::currentIndexChanged, this, &fFilter::changed);
    return box;
}

QWidget* fFilter::makeCurtain()
{
    auto* box = named(new QGroupBox(tr("Curtain Effects"), controls_), QStringLiteral("FrmCurtain"));
    auto* line = new QHBoxLayout(box);
    Curt_ = new QButtonGroup(box);
    for (std::size_t i = std::size(kCurtains); i-- > 0;) { // the last one comes first
        const QString caption = shown("Filters", kCurtains[i]);
        auto* button = named(new QRadioButton(caption, box), numbered("Curt", i), tr("%1 curtain").arg(caption));
        button->setChecked(i == 0);
        Curt_->addButton(button, static_cast<int>(i));
        line->addWidget(button);
    }
    line->addStretch();
    connect(Curt_, &QButtonGroup::idClicked, this, &fFilter::changed);
    return box;
}

QWidget* fFilter::makeButtons()
{
    auto* box = new QWidget(this);
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    chkPreview_ = named(new QCheckBox(tr("Preview"), box), QStringLiteral("chkPreview"), tr("Preview"));
    chkPreview_->setChecked(true);
    connect(chkPreview_, &QCheckBox::toggled, this, &fFilter::changed);
    line->addWidget(chkPreview_);
    state_ = named(new QLabel(box), QStringLiteral("lblState"), tr("State"));
    line->addWidget(state_, 1);

    const auto button = [&](const char* name, const QString& text, auto clicked) {
        auto* made = named(new QPushButton(text, box), QLatin1String(name), text);
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, clicked);
        line->addWidget(made);
        return made;
    };
    cmdPreview_ = button("cmdPreview", tr("Real Time"), &fFilter::accept);
    cmdPreview_->setToolTip(tr("Runs the filter on the picture and closes"));
    auto* ok = button("cmdOK", tr("OK"), &fFilter::accept);
    ok->setDefault(true);
    cmdOK_ = ok;
    button("cmdCancel", tr("Exit"), &fFilter::reject);
    return box;
}

} // namespace velara
