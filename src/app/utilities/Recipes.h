// Recipes in the editor: what was done to a document as a command or a file, and recipes run on documents, each as one
// undo step.
#pragma once
#include "document/road/DocumentHandle.h"
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>
#include <optional>
#include <vector>

class QMenu;

namespace velara {

class fMain;
struct Recipe;
struct StepNote;

class Recipes final : public QObject {
    Q_OBJECT
  public:
    explicit Recipes(fMain& frame) : frame_(frame) {}

    /// Asks for a file and runs it on the active document.
    void choose();
    /// Runs a recipe's file on the active document; what is wrong with it is told.
    void run(const QString& path);
    /// The window that runs one on many pictures; made when it is first wanted, brought to the front when it is open.
    void showFolderRun();
    /// The menu gets the recipes of the user's folder, below its own items.
    void list(QMenu& menu);
    /// The user's folder of recipes; made by the first one that is saved there.
    QString folder() const;

    // Of the document's steps from this index on (UndoStore::listed) up to the present state. Steps by hand are left
    // out only after asking.
    /// A command line of velara-batch goes to the clipboard.
    void copyAsCommand(const DocumentHandle& document, int from);
    /// Asks for a name and writes a recipe.
    void save(const DocumentHandle& document, int from);
    /// Each picture gets one undo step; where that fails is told at the end.
    void runOnOthers(const DocumentHandle& document, int from);

  private:
    std::optional<QStringList> linesOf(const DocumentHandle& document, int from);
    std::optional<Recipe> read(const QString& path);
    QStringList files() const;
    std::optional<QString> fileOf(const DocumentHandle& document);
    QString proposedName(const DocumentHandle& document) const;

    fMain& frame_;
    std::unique_ptr<QTemporaryDir> scratch_; // for recipes that were never saved
    int scratched_ = 0;
};

} // namespace velara
