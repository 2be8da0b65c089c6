// What becomes of pictures that a program which died left unsaved.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "app/start/Recovery.h"
#include "app/start/fStartPage.h"
#include "commands/recipe/textStep.h"
#include "seams/Platform.h"

namespace velara {

void fMain::makeRecovery()
{
    recovery_ = std::make_unique<Recovery>(*this, this);
    recovery_->opened = [this](const DocumentHandle& document, const QString& trouble) {
        showRecovered(document, trouble);
    };
    connect(recovery_.get(), &Recovery::changed, this, [this] { startPage_->showRecoverable(recovery_->offers()); });
    connect(startPage_, &fStartPage::recoverableChosen, this,
            [this](const Leftover* leftover) { recovery_->recover({leftover}); });
}

/// Its texts wait in their window again. Where that one has texts of another picture they wait in the document.
void fMain::showRecovered(const DocumentHandle& document, const QString& trouble)
{
    if (closing_ || !document) return; // it stays recoverable
    if (!document->file.path.contains('/')) document->file.path = inDialogFolder(document->file.path);
    showView(document, false);
    if (!trouble.isEmpty()) status_->say(trouble);
    if (document->waitingTexts.empty()) return;
    document->waitingWork = [this, document] { return mergeWaitingTexts(document); };
    textTools();
}

/// The document by value: the function that calls this is gone when it is done.
bool fMain::mergeWaitingTexts(DocumentHandle document)
{
    Layers layers(platform_.fonts());
    layers.setCanvas(document->bits());
    layers.restore(document->waitingTexts);
    const auto done = std::make_shared<bool>(false);
    const Job job = [layers](Document& draft, cBitFilter&) { draft.setBits(layers.Blend()); };
    const QString words = textWords(layers.state(), platform_.fonts());
    workspace_.change(document, {job, After::Step, tr("Text"), words}, [document, done](const Outcome& outcome) {
        *done = bool(outcome);
        if (!outcome || !document) return;
        document->waitingTexts.clear();
        document->waitingWork = nullptr;
        document->describe();
    });
    workspace_.wait(document);
    return *done;
}

} // namespace velara
