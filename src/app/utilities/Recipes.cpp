#include "app/utilities/Recipes.h"
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "commands/recipe/recipeJob.h"
#include "commands/recipe/stepText.h"
#include "document/Workspace.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/userFolders.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/nameOrder.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "ui/many/fFolderRun.h"
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QPointer>
#include <algorithm>

namespace velara {

namespace {

const QString kExtension = QStringLiteral("recipe");

/// The arguments of a command line, quoted for a shell; comments are left out.
QStringList argumentsOf(const QStringList& lines)
{
    const QString select = QStringLiteral("--select ");
    QStringList arguments;
    for (const QString& line : lines) {
        if (line.startsWith(u'#')) continue;
        if (line.startsWith(select))
            arguments << select.trimmed() << shellQuoted(line.mid(select.size()));
        else
            arguments << shellQuoted(line);
    }
    return arguments;
}

bool writeText(const QString& path, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    OutputFile file(path);
    return file.isOpen() && file.write(bytes.constData(), static_cast<std::size_t>(bytes.size())) && file.commit();
}

/// What became of a recipe on several pictures.
struct Replay {
    int waiting = 0, done = 0;
    QStringList failed;
};

QString fileFilter()
{
    return Recipes::tr("Recipe (*.recipe)") + QStringLiteral("|*.recipe|") + Recipes::tr("All files (*)") +
           QStringLiteral("|*");
}

} // namespace

QString Recipes::folder() const { return frame_.platform().programFolder() + QStringLiteral("/Recipes"); }

// --- Making them

std::optional<QStringList> Recipes::linesOf(const DocumentHandle& document, int from)
{
    if (!document) return {};
    const UndoStore::Listed listed = document->undo.listed();
    const int last = std::max(listed.shown, from), first = std::max(from, 1); // the first state is no step
    Platform& platform = frame_.platform();
    if (last < first || last >= static_cast<int>(listed.notes.size())) {
        platform.tell(tr("Nothing was done to this picture yet."));
        return {};
    }
    const StepNote& before = listed.notes[static_cast<std::size_t>(first - 1)];
    const auto notes = std::span(listed.notes).subspan(std::size_t(first), std::size_t(last - first + 1));
    const HistoryLines made = historyLines(notes, before.width, before.height);
    if (made.byHand.size() == qsizetype(notes.size())) {
        platform.tell(tr("All of this was made by hand: there is nothing that could be done to another picture."));
        return {};
    }
    if (!made.byHand.isEmpty()) {
        constexpr qsizetype kMostShown = 8;
        const QString names = made.byHand.mid(0, kMostShown).join(QStringLiteral(", ")) +
                              (made.byHand.size() > kMostShown ? QStringLiteral(" ...") : QString());
        const QString question = tr("%1 of %2 steps were made by hand, and can't be done to another picture:\n%3")
                                     .arg(made.byHand.size())
                                     .arg(notes.size())
                                     .arg(printable(names));
        if (platform.choose(tr("Recipe"), question, {tr("&Leave them out")}) != 0) return {};
    }
    return made.lines;
}

void Recipes::copyAsCommand(const DocumentHandle& document, int from)
{
    const auto lines = linesOf(document, from);
    if (!lines || !document) return;
    const FileFacts& file = document->file;
    const QFileInfo own(file.path);
    const QString input = file.isFile ? file.path : QStringLiteral("input.png");
    const QString suffix = file.isFile && !own.suffix().isEmpty() ? own.suffix() : QStringLiteral("png");
    const QString output = file.isFile ? own.path() + u'/' + own.completeBaseName() + QStringLiteral("-new.") + suffix
                                       : QStringLiteral("output.png");
    const QStringList command = QStringList{QStringLiteral("velara-batch"), shellQuoted(input)} + argumentsOf(*lines) +
                                QStringList{shellQuoted(output)};
    QGuiApplication::clipboard()->setText(command.join(u' '));
    frame_.status().say(tr("The command is on the clipboard."));
}

QString Recipes::proposedName(const DocumentHandle& document) const
{
    return QFileInfo(document->file.path).completeBaseName() + u'.' + kExtension;
}

void Recipes::save(const DocumentHandle& document, int from)
{
    const auto lines = linesOf(document, from);
    if (!lines || !document) return;
    QDir().mkpath(folder());
    FileDialog dialog{tr("Save recipe"), fileFilter(), folder()};
    dialog.extension = kExtension;
    dialog.name = proposedName(document);
    dialog.defaultPattern = QStringLiteral("*.recipe");
    const QPointer<Recipes> stands = this;
    const auto path = frame_.platform().saveFileName(dialog);
    if (!stands || !path) return;
    const QString name = QFileInfo(*path).suffix().isEmpty() ? *path + u'.' + kExtension : *path;
    if (writeText(name, recipeText(*lines))) return frame_.status().say(tr("Saved as %1").arg(name));
    frame_.platform().tell(tr("%1 can't be written.").arg(printable(name)), Icon::Exclamation);
}

// --- Running them

void Recipes::choose()
{
    const FileDialog dialog{tr("Run recipe"), fileFilter(), folder(), QStringLiteral("*.recipe")};
    const QPointer<Recipes> stands = this;
    const auto path = frame_.platform().openFileName(dialog);
    if (stands && path) run(*path);
}

std::optional<Recipe> Recipes::read(const QString& path)
{
    try {
        Recipe recipe = Recipe::read(path);
        if (recipe.steps.empty()) throw unusable(path + tr(": there is no step in it"));
        return recipe;
    } catch (const StepFault& fault) {
        frame_.platform().tell(tr("This recipe can't be run:\n") + printable(fault.text), Icon::Exclamation);
        return {};
    }
}

void Recipes::run(const QString& path)
{
    const DocumentHandle document = frame_.active();
    if (!document || !document->PictureExists()) return;
    const auto recipe = read(path);
    if (!recipe || !document) return;
    const QString name = QFileInfo(path).completeBaseName();
    frame_.workspace().change(
        document, {recipeJob(recipe->steps, frame_.platform()), After::Step, name, recipeWords(recipe->steps)},
        [this, name](const Outcome& outcome) {
            if (outcome.reason.isEmpty() || frame_.isClosed()) return;
            frame_.platform().tell(tr("The picture is as it was. The recipe %1 ended:\n%2")
                                       .arg(printable(name), printable(outcome.reason)),
                                   Icon::Exclamation);
        });
}

void Recipes::runOnOthers(const DocumentHandle& from, int step)
{
    const auto lines = linesOf(from, step);
    if (!lines) return;
    const auto replay = std::make_shared<Replay>();
    for (const DocumentHandle& document : frame_.workspace().documents()) {
        if (document == from || !document->PictureExists()) continue;
        const std::vector<RecipeStep> steps = Recipe::parse(recipeText(*lines), {}).steps; // a job runs once
        ++replay->waiting;
        const QString name = document->file.caption();
        frame_.workspace().change(
            document, {recipeJob(steps, frame_.platform()), After::Step, tr("Replay"), recipeWords(steps)},
            [this, replay, name](const Outcome& outcome) {
                outcome ? void(++replay->done)
                        : void(replay->failed << name + QStringLiteral(": ") +
                                                     (outcome.reason.isEmpty() ? tr("cancelled") : outcome.reason));
                if (--replay->waiting > 0 || frame_.isClosed()) return;
                frame_.status().say(tr("Run on %n pictures.", nullptr, replay->done));
                QStringList shown;
                for (const QString& line : replay->failed.mid(0, 12)) shown << printable(line);
                if (!shown.isEmpty())
                    frame_.platform().tell(tr("These pictures are as they were:\n") + shown.join(u'\n'),
                                           Icon::Exclamation);
            });
    }
    if (replay->waiting == 0) frame_.platform().tell(tr("No other picture is open."));
}

// --- Many pictures

/// What was done to a document, as a file that lasts as long as the program.
std::optional<QString> Recipes::fileOf(const DocumentHandle& document)
{
    const QPointer<Recipes> stands = this;
    const auto lines = linesOf(document, 0);
    if (!stands || !lines) return {};
    if (!scratch_) scratch_ = std::make_unique<QTemporaryDir>();
    const QString name = scratch_->filePath(QStringLiteral("%1.%2").arg(++scratched_).arg(kExtension));
    if (writeText(name, recipeText(*lines))) return name;
    frame_.platform().tell(tr("%1 can't be written.").arg(printable(name)), Icon::Exclamation);
    return {};
}

void Recipes::showFolderRun()
{
    auto* window = frame_.findChild<fFolderRun*>();
    if (!window) {
        std::vector<RecipeChoice> choices;
        if (const DocumentHandle document = frame_.active(); document && document->undo.listed().shown > 0)
            choices.push_back({tr("What was done to %1").arg(printable(document->file.caption())),
                               [this, document] { return fileOf(document); }});
        for (const QString& file : files())
            choices.push_back({printable(QFileInfo(file).completeBaseName()),
                               [path = QDir(folder()).filePath(file)] { return std::optional(path); }});
        choices.push_back({tr("Another file ..."), [this] {
                               return frame_.platform().openFileName(
                                   {tr("Choose a recipe"), fileFilter(), folder(), QStringLiteral("*.recipe")});
                           }});
        window =
            new fFolderRun(frame_.platform(), findHelper(QStringLiteral("velara-batch")),
                           userFolder(frame_.platform().programFolder(), UserFolder::State) + QStringLiteral("/Logs"),
                           std::move(choices), &frame_);
        window->setAttribute(Qt::WA_DeleteOnClose);
        connect(window, &fFolderRun::openWanted, this,
                [this](const QString& path) { frame_.openPicture(path, Unreadable::Refused); });
    }
    window->show();
    window->raise();
    window->activateWindow();
}

QStringList Recipes::files() const
{
    QStringList files = QDir(folder()).entryList({QStringLiteral("*.") + kExtension}, QDir::Files);
    std::ranges::sort(files, nameOrder());
    return files;
}

void Recipes::list(QMenu& menu)
{
    for (QAction* old : menu.actions())
        if (old->property("recipe").isValid()) delete old;
    const QStringList files = this->files();
    const bool hasPicture = bool(frame_.active());
    if (!files.isEmpty()) menu.addSeparator()->setProperty("recipe", true);
    for (const QString& file : files) {
        QString caption = printable(QFileInfo(file).completeBaseName());
        QAction* item = menu.addAction(caption.replace(u'&', QStringLiteral("&&")));
        item->setProperty("recipe", true);
        item->setObjectName(QStringLiteral("recipe_") + file);
        item->setEnabled(hasPicture);
        connect(item, &QAction::triggered, this, [this, path = QDir(folder()).filePath(file)] { run(path); });
    }
}

} // namespace velara
