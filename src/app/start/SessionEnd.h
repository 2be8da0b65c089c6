// SessionEnd: ends of the program that its user didn't choose: SIGTERM, SIGINT, SIGHUP, and the end of the session.
// They run the ordinary close, so that the user is asked about unsaved pictures. If nobody answers, the program ends
// anyway; the undo files are kept then, and the pictures can be recovered from them.
#pragma once
#include "ui/view/fImage.h"
#include <QTimer>
#include <chrono>
#include <functional>

namespace velara {

class fMain;

class SessionEnd final : public QObject {
  public:
    /// Handles the signals while it lives, except those that the program was started to ignore (nohup). Only one may
    /// exist at a time; the frame must outlive it. patience: how long a question may stay open; leave ends the program
    /// immediately.
    explicit SessionEnd(fMain& frame, std::chrono::milliseconds patience = std::chrono::seconds(10),
                        std::function<void()> leave = {});
    ~SessionEnd() override;

  private:
    void begin();
    void close();
    void asked(fImage::Question question);
    void leave();
    bool isAsking() const;

    fMain& frame_;
    QTimer patience_{this};
    std::function<void()> leave_;
    bool ends_ = false;
};

} // namespace velara
