// Message boxes, and the parent of the program's dialogs.
#pragma once
#include "seams/Dialogs.h"
#include <QMessageBox>

namespace velara {

/// The window that the user is in.
QWidget* parentOfDialogs();

/// The button that ended the box.
int showBox(const QString& title, const QString& text, Icon icon, QMessageBox::StandardButtons buttons);
/// A box with a button for each choice, and Cancel. \returns the choice's index, -1: cancelled
int showChoices(const QString& title, const QString& text, const QStringList& choices);

} // namespace velara
