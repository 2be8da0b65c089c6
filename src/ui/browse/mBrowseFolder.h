// mBrowseFolder: the system's folder dialog.
#pragma once
#include <QString>

class QWidget;

namespace velara {

class Dialogs;

/// The folder's path, or an empty text when the dialog was cancelled or its owner was destroyed meanwhile.
QString BrowseForFolder(Dialogs& dialogs, const QString& title, QWidget* owner, const QString& start);

} // namespace velara
