#include "commands/recipe/Recipe.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace velara {

namespace {

constexpr int kVersion = 1;
constexpr qint64 kMostBytes = 64 << 20;
const QString kHead = QStringLiteral("velara recipe ");
const QString kSelect = QStringLiteral("--select");

void checkHead(const QString& line)
{
    bool isNumber = false;
    const int version = line.startsWith(kHead) ? line.mid(kHead.size()).toInt(&isNumber) : 0;
    if (!isNumber || version < 1)
        throw unusable(QStringLiteral("a recipe begins with \"%1%2\"").arg(kHead).arg(kVersion));
    if (version > kVersion)
        throw unusable(QStringLiteral("the recipe is of version %1, and this program knows those up to %2")
                           .arg(version)
                           .arg(kVersion));
}

RecipeStep stepOf(const QString& line)
{
    if (!line.startsWith(QStringLiteral("--"))) return parseRecipeStep(line);
    const QString shape = line.mid(kSelect.size());
    if (!line.startsWith(kSelect) || (!shape.startsWith(u' ') && !shape.startsWith(u'=')))
        throw unusable(
            QStringLiteral("%1 is no step; of the options only %2 SHAPE is").arg(line.section(u' ', 0, 0), kSelect));
    return parseSelectionStep(shape.mid(1).trimmed());
}

/// Names of files count from the folder.
void lookIn(RecipeStep& step, const QString& folder)
{
    if (!step.prepare) return;
    step.prepare = [prepare = step.prepare, folder](const ReadPicture& read) {
        prepare([&](const QString& name) { return read(QDir(folder).absoluteFilePath(name)); });
    };
}

} // namespace

Recipe Recipe::parse(const QString& text, const QString& folder)
{
    Recipe recipe;
    const QStringList lines = text.split(u'\n');
    for (int i = 0; i < lines.size(); ++i) {
        QString line = lines[i].trimmed();
        if (i == 0 && line.startsWith(QChar(QChar::ByteOrderMark))) line.remove(0, 1);
        namingStep(QStringLiteral("line %1").arg(i + 1), [&] {
            if (i == 0) return checkHead(line);
            if (line.isEmpty() || line.startsWith(u'#')) return;
            recipe.steps.push_back(stepOf(line));
            lookIn(recipe.steps.back(), folder);
        });
    }
    return recipe;
}

Recipe Recipe::read(const QString& path)
{
    QFile file(path);
    const auto refused = [&](const QString& why) {
        return StepFault(StepFault::Failed, path + QStringLiteral(": ") + why);
    };
    if (QFileInfo(path).isDir()) throw refused(QStringLiteral("it is a folder"));
    if (!file.open(QIODevice::ReadOnly)) throw refused(file.errorString());
    const QByteArray bytes = file.read(kMostBytes + 1);
    if (bytes.size() > kMostBytes) throw refused(QStringLiteral("it is too large for a recipe"));
    return namingStep(path, [&] { return parse(QString::fromUtf8(bytes), QFileInfo(path).absolutePath()); });
}

QString recipeText(const QStringList& lines)
{
    return kHead + QString::number(kVersion) + u'\n' + lines.join(u'\n') +
           (lines.isEmpty() ? QString() : QString(u'\n'));
}

} // namespace velara
