#include "platform/desktop/QtPlatform.h"
#include "platform/desktop/ReadingBox.h"
#include "platform/desktop/dialogs/boxes.h"
#include "platform/desktop/dialogs/fileDialogs.h"
#include <QApplication>

namespace velara {

GoOn QtPlatform::whilePasting(const QString& name)
{
    return [box = std::make_shared<ReadingBox>(name, parentOfDialogs())](auto waited) { return box->goOn(waited); };
}

void QtPlatform::message(const QString& title, const QString& text, Icon icon)
{
    showBox(title, text, icon, QMessageBox::Ok);
}

Answer QtPlatform::askYesNoCancel(const QString& title, const QString& text, Icon icon)
{
    switch (showBox(title, text, icon, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::optional<QString> QtPlatform::openFileName(const FileDialog& request) { return askOpenName(*this, request); }

std::optional<QString> QtPlatform::saveFileName(const FileDialog& request) { return askSaveName(*this, request); }

std::optional<QString> QtPlatform::pickFolder(const QString& title, const QString& start)
{
    return askFolder(*this, title, start);
}

QString QtPlatform::compactPath(const QString& path, int pixels)
{
    const QFontMetrics metrics(QApplication::font("QMenu"));
    if (metrics.horizontalAdvance(path) <= pixels) return path;
    // The file name is kept whole as long as it fits: users look for it.
    const QString name = path.mid(path.lastIndexOf('/'));
    const int left = pixels - metrics.horizontalAdvance(name);
    if (left <= 0) return metrics.elidedText(path, Qt::ElideMiddle, pixels);
    return metrics.elidedText(path.chopped(name.size()), Qt::ElideRight, left) + name;
}

} // namespace velara
