// Files of several pages or frames, and files that are of another kind than their names say.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "fileio/formats.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "seams/text.h"
#include <QFileInfo>

namespace velara {

namespace {

/// What saving over the document's own file would do beside that, a line for each thing; empty: nothing.
QStringList warningsOf(const FileFacts& file)
{
    QStringList lines;
    if (file.pages > 1) lines << fMain::tr("It has %n pages; this one alone would be left of it.", nullptr, file.pages);
    const Format* named = formatOf(file.path);
    if (named && !otherKind(file.name(), file.format).isEmpty())
        lines << fMain::tr("It is %1 picture; saved under this name it would become %2 picture.")
                     .arg(shown("Formats", findFormat(file.format.toStdString())->name), shown("Formats", named->name));
    return lines;
}

} // namespace

void fMain::openPage(int step)
{
    const DocumentHandle from = active();
    if (!from || pageComes_) return; // a key that is held down waits for its page
    const FileFacts file = from->file;
    const int page = file.page + step;
    if (page < 1 || page > file.pages)
        return status_->say(step > 0 ? tr("There is no page behind this one.")
                                     : tr("There is no page before this one."));
    for (const DocumentHandle& open : workspace_.documents())
        if (fImage* view = documents_->of(open); view && open->file.isPageOf(file.path, page))
            return documents_->activate(*view);
    pageComes_ = true;
    const auto arrived = [this, path = file.path](const Opened& opened) {
        pageComes_ = false;
        if (opened.kind == Opened::Gone) return noteUnopened(path, opened);
        if (!opened.document) status_->say(opened.reason);
    };
    openPath(file.path, Unreadable::Refused, arrived, page);
}

/// Of the active document, for the status bar and the menu.
void fMain::showPage()
{
    const fImage* image = GetActiveImage();
    const FileFacts file = image ? image->document().file : FileFacts();
    setStatus(Panel::Page, file.pageText());
    bars_->item("@NEXTPAGE")->setEnabled(file.page < file.pages);
    bars_->item("@PREVIOUSPAGE")->setEnabled(file.page > 1);
}

fMain::Over fMain::askOver(const FileFacts& file)
{
    const QStringList warnings = warningsOf(file);
    if (warnings.isEmpty()) return Over::Overwrites;
    const QString question = platform_.compactPath(printable(file.path), 400) + '\n' + warnings.join('\n') +
                             tr("\nDo you want to save it under another name ?");
    switch (platform_.choose(tr("Save"), question, {tr("Save &As ..."), tr("&Overwrite")})) {
    case 0:
        return Over::AsksForName;
    case 1:
        return Over::Overwrites;
    default:
        return Over::SavesNot;
    }
}

/// False where the user keeps the other pages of the file, which the target of a save is.
bool fMain::mayLosePages(const FileFacts& file, const QString& target)
{
    if (file.pages == 1 || !file.isFile || QFileInfo(target) != QFileInfo(file.path)) return true;
    const QString question = platform_.compactPath(printable(target), 400) +
                             tr("\nIt has %n pages; this one alone would be left of it.", nullptr, file.pages);
    return platform_.choose(tr("Save"), question, {tr("&Overwrite")}) == 0;
}

} // namespace velara
