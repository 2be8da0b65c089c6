// What Qt has no words for on an X server.
#pragma once
#include <QImage>

namespace velara {

/// True when the window manager took the word to put all windows aside, or to bring them back.
bool x11ShowDesktop(bool on);

/// The root window's size in device pixels; empty when there is no X server.
QSize x11RootSize();
/// Makes the picture, of the root window's size, the ground of all windows; it stays when the program ends.
bool x11SetRootPicture(const QImage& picture);

} // namespace velara
