// Where windows stand on this desktop, and bringing one to the front, by the right that the request for it carries.
#pragma once
#include "platform/opening/OpenService.h"

class QWidget;

namespace velara {

/// Also out of its icon. Where the desktop wants a token and there is none, it may only mark the window.
void bringToFront(QWidget& window, const ActivationToken& token);

/// Whether a window stands where the program puts it. On Wayland the desktop decides that, and doesn't tell it; only
/// menus and lists that grab the keys have a place beside what they belong to.
bool windowsCanBePlaced();

} // namespace velara
