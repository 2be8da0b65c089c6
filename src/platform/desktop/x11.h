// X server functions that Qt lacks.
#pragma once
#include <QImage>

namespace velara {

/// Asks the window manager to hide all windows, or to bring them back. True when it supports that.
bool x11ShowDesktop(bool on);

/// The root window's size in device pixels; empty when there is no X server.
QSize x11RootSize();
/// Makes the picture, of the root window's size, the desktop background; it stays after the program ends.
bool x11SetRootPicture(const QImage& picture);

} // namespace velara
