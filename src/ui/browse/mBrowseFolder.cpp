#include "ui/browse/mBrowseFolder.h"
#include "seams/Platform.h"
#include <QPointer>
#include <QWidget>

namespace velara {

QString BrowseForFolder(Platform& platform, const QString& title, QWidget* owner, const QString& start)
{
    const QPointer<QWidget> alive = owner;
    const auto folder = platform.pickFolder(title, start);
    return alive ? folder.value_or(QString()) : QString();
}

} // namespace velara
