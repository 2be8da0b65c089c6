#include "support/RecordingPlatform.h"
#include "pixels/images.h"
#include <QImage>

namespace velara {

std::optional<QString> RecordingPlatform::ask(const QString& line)
{
    log.push_back(line.toStdString());
    if (onAsk) onAsk();
    if (answers.empty()) return std::nullopt;
    const auto next = answers.front();
    answers.pop_front();
    return next;
}

QString RecordingPlatform::setting(const QString& section, const QString& key, const QString& otherwise)
{
    const auto found = settings.find(section + "/" + key);
    return found == settings.end() ? otherwise : found->second;
}

void RecordingPlatform::setSetting(const QString& section, const QString& key, const QString& value)
{
    settings[section + "/" + key] = value;
}

void RecordingPlatform::message(const QString& title, const QString& text, Icon icon)
{
    lastIcon = icon;
    log.push_back(("message: " + title + ": " + text).toStdString());
}

Answer RecordingPlatform::askYesNoCancel(const QString& title, const QString& text, Icon icon)
{
    lastIcon = icon;
    const auto next = ask("ask: " + title + ": " + text);
    if (!next) return Answer::Cancel;
    return *next == "yes" ? Answer::Yes : Answer::No;
}

int RecordingPlatform::choose(const QString& title, const QString& text, const QStringList& choices)
{
    const auto next = ask("ask: " + title + ": " + text);
    return next ? static_cast<int>(choices.indexOf(*next)) : -1;
}

std::optional<QString> RecordingPlatform::openFileName(const FileDialog& dialog)
{
    lastDialog = dialog;
    return ask("open: " + dialog.title);
}

std::optional<QString> RecordingPlatform::saveFileName(const FileDialog& dialog)
{
    lastDialog = dialog;
    return ask("save: " + dialog.title);
}

std::optional<QString> RecordingPlatform::pickFolder(const QString& title, const QString&)
{
    return ask("folder: " + title);
}

LoadedPicture RecordingPlatform::loadPicture(const QString& path, const QString&, const GoOn& goOn, int page)
{
    if (onLoad) onLoad(goOn);
    const QImage image(path);
    if (image.isNull()) return {{}, "can't be read"};
    if (page > pages) return {{}, "it has fewer pages"};
    return {bitsOf(image), loadNote, camera, properties, format, pages};
}

} // namespace velara
