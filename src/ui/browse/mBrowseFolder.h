// mBrowseFolder: the system's dialog that chooses a folder.
#pragma once
#include <QString>

class QWidget;

namespace velara {

class Dialogs;

/// The folder's path, or an empty text when the dialog was cancelled or its owner has gone meanwhile.
QString BrowseForFolder(Dialogs& dialogs, const QString& title, QWidget* owner, const QString& start);

} // namespace velara
