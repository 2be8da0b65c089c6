// Brings a window to the front, by the right that the request for it carries.
#pragma once
#include "platform/opening/OpenService.h"

class QWidget;

namespace velara {

/// Also out of its icon. Where the desktop wants a token and there is none, it may only mark the window.
void bringToFront(QWidget& window, const ActivationToken& token);

} // namespace velara
