// What the frame shows of the workspace: that it is at work, progress, what became of a change, the steps that are
// lost.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "app/menus/menus.h"
#include "seams/Platform.h"
#include "seams/text.h"
#include <algorithm>

namespace velara {

void fMain::bindWorkspace()
{
    workspace_.engine().clock = [this] { return platform_.milliseconds(); };
    workspace_.held = [this](const Document& document) {
        return std::ranges::any_of(documents_->viewsOf(document.handle()), &fImage::strokeUnderWay);
    };
    workspace_.leaves = [this](const DocumentHandle& document) {
        for (fImage* view : documents_->viewsOf(document)) view->deactivate();
    };
    connect(&workspace_, &Workspace::changed, this, &fMain::changed);
    connect(&workspace_, &Workspace::progress, this, [this](const DocumentHandle& document, int percent) {
        if (document == active()) status_->setProgress(percent);
    });
    connect(&workspace_, &Workspace::idle, this, [this](const DocumentHandle& document) {
        if (document == active()) status_->setProgress(0);
        for (fImage* view : documents_->viewsOf(document)) view->showTool();
        refreshUndoState();
    });
    connect(&workspace_, &Workspace::busy, this, [this](const DocumentHandle& document) {
        for (fImage* view : documents_->viewsOf(document)) view->showTool();
        refreshUndoState();
    });
    connect(&workspace_, &Workspace::reading, this, &fMain::showReading);
    connect(&workspace_, &Workspace::renamed, this, &fMain::showName);
    connect(&workspace_, &Workspace::unrecorded, this, [this](const DocumentHandle&, const QString& reason) {
        status_->say(tr("After a crash this picture could not be recovered: %1.").arg(reason));
    });
    connect(&workspace_, &Workspace::stepLost, this, [this](const DocumentHandle&, const QString& reason) {
        status_->say(tr("This step can't be undone: %1.").arg(reason)); // known only some time after the change
        refreshUndoState();
    });
}

void fMain::changed(const DocumentHandle& document)
{
    fImage* image = documents_->of(document);
    if (!image) return;
    image->UpdateImage(); // the other views follow
    if (workspace_.engineHolds(*document)) setStatus(Panel::Size, image->SizeText());
    refreshUndoState();
}

void fMain::change(std::string_view word, const DocumentHandle& document, const Job& job, const QString& words,
                   After after)
{
    workspace_.change(document, {job, after, nameOf(word), words},
                      [this, what = text(word)](const Outcome& outcome) { report(what, outcome); });
}

void fMain::report(const QString& what, const Outcome& outcome)
{
    if (!outcome.reason.isEmpty() && !closing_) status_->say(what + ": " + outcome.reason);
}

} // namespace velara
