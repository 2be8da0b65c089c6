// Screen: captures the screens of the desktop as pixels.
#pragma once
#include "pixels/Bits.h"
#include <QRect>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

class QImage;

namespace velara {

/// All screens of the desktop in one picture, in device pixels; black where there is no screen.
struct ScreenPicture {
    struct Part {
        QRect logical; // a screen's rectangle on the desktop, in the units of windows and the pointer
        QRect device;  // the same in bits
    };
    struct Pointer {
        std::shared_ptr<const QImage> image; // null where the desktop doesn't show it to programs
        QPoint at;                           // its upper left corner in bits
    };
    Bits bits; // null: no capture
    std::vector<Part> parts;
    std::vector<QRect> windows = {}; // in bits, with their frames, topmost first; none where the desktop doesn't tell
    Pointer pointer = {};            // not in bits
    QString reason = {}; // why the picture is missing or black, for the user; empty when there is nothing to report
};

class Screen {
  public:
    using Done = std::function<void(const ScreenPicture&)>;

    virtual ~Screen() = default;
    /// Captures all screens. done is called once: before this returns, or much later, as a desktop may ask its user
    /// first; not after cancel(). One at a time: a new grab cancels the one before.
    virtual void grab(Done done) = 0;
    virtual void cancel() = 0;
    /// Hides all windows of the desktop, or brings them back. False: this desktop can't.
    virtual bool showDesktop(bool on) = 0;
};

} // namespace velara
