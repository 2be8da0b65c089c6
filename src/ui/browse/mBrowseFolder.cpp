#include "ui/browse/mBrowseFolder.h"
#include "seams/Dialogs.h"
#include <QPointer>
#include <QWidget>

namespace velara {

QString BrowseForFolder(Dialogs& dialogs, const QString& title, QWidget* owner, const QString& start)
{
    const QPointer<QWidget> alive = owner;
    const auto folder = dialogs.pickFolder(title, start);
    return alive ? folder.value_or(QString()) : QString();
}

} // namespace velara
