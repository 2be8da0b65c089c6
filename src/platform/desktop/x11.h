// X server functions that Qt lacks.
#pragma once
#include <QImage>
#include <QRect>
#include <vector>

namespace velara {

/// Asks the window manager to hide all windows, or to bring them back. True when it supports that.
bool x11ShowDesktop(bool on);

/// Asks the window manager to give a window of ours the focus. startupId: of the request that wants it; it has the
/// user's time, and its busy pointer ends. False without an X server.
bool x11Activate(std::uint32_t window, const QByteArray& startupId);

/// The windows that can be seen, with their frames, in pixels of the root window; topmost first. None without an X
/// server or a window manager that lists them.
std::vector<QRect> x11Windows();

/// The pointer's picture; at: its upper left corner on the root window. Null without an X server.
QImage x11Pointer(QPoint& at);

/// The root window's size in device pixels; empty when there is no X server.
QSize x11RootSize();
/// Makes the picture, of the root window's size, the desktop background; it stays after the program ends.
bool x11SetRootPicture(const QImage& picture);

} // namespace velara
