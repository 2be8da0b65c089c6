#include "ui/panes/fEffect.h"
#include "commands/effects.h"
#include "document/Document.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/text.h"
#include "ui/widgets/inputs/named.h"
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr int kShownEffects = 7; // visible rows of the list

} // namespace

FEffect::FEffect(Frame& frame, const QString& name, std::span<const PaneRow> rows)
    : fPane(frame, name, rows), lstEffects_(new QListWidget(this))
{
    named(lstEffects_, "lstEffects", tr("Effects"));
    for (const Effect& effect : effects()) lstEffects_->addItem(shown("Filters", effect.name));
    lstEffects_->setFixedHeight(lstEffects_->sizeHintForRow(0) * kShownEffects + 2 * lstEffects_->frameWidth());
    lstEffects_->setCurrentRow(frame.toolStores().effect - 1);
    connect(lstEffects_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) this->frame().toolStores().effect = row + 1;
    });
    connect(lstEffects_, &QListWidget::itemActivated, this, &FEffect::apply);
    auto* caption = new QLabel(tr("Show "), this);
    caption->setBuddy(lstEffects_);
    auto* button = named(new QPushButton(tr("Apply"), this), "cmdEffect", tr("Apply the effect"));
    connect(button, &QPushButton::clicked, this, &FEffect::apply);
    column()->addWidget(caption);
    column()->addWidget(lstEffects_);
    column()->addWidget(button);
}

void FEffect::apply()
{
    Frame& owner = frame();
    const DocumentHandle document = owner.active();
    if (!document) return;
    const int index = owner.toolStores().effect, amount = owner.toolStores().effectAmount;
    const Colour colour = owner.setup().ForeColor;
    const Job job = [=](Document& draft, cBitFilter& filter) {
        ApplyTexture(filter, index, amount, colour);
        draft.setBits(filter.bits());
    };
    const QString what = shown("Filters", effects()[std::size_t(index - 1)].name);
    owner.workspace().change(document, {job, After::Step, what, effectText(index, amount, colour)},
                             [&owner, what](const Outcome& outcome) { owner.report(what, outcome); });
}

} // namespace velara
