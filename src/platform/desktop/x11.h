// X server functions that Qt lacks.
#pragma once
#include <QByteArray>
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

/// The colour profile that the root window has for the screen of that number; empty when there is none, or one of more
/// than so many bytes.
QByteArray x11ScreenProfile(int screen, qint64 most);
/// Whether an event (xcb_generic_event_t) says that such a profile has changed.
bool x11ChangesProfile(const void* event);

/// The root window's size in device pixels; empty when there is no X server.
QSize x11RootSize();
/// Makes the picture, of the root window's size, the desktop background; it stays after the program ends.
bool x11SetRootPicture(const QImage& picture);

} // namespace velara
