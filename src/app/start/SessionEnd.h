// SessionEnd: the ends of the program that its user didn't choose: SIGTERM, SIGINT, SIGHUP, and the end of the session.
// They run the ordinary close, so that unsaved pictures are asked about. Where nobody answers the program ends all the
// same; the undo files stay then, and the pictures can be recovered from them.
#pragma once
#include "ui/view/fImage.h"
#include <QTimer>
#include <chrono>
#include <functional>

namespace velara {

class fMain;

class SessionEnd final : public QObject {
  public:
    /// Takes the signals over while it lives, but for those that the program was told to ignore (nohup). There is one
    /// at a time; the frame outlives it. patience: how long a question may stand; leave ends the program on the spot.
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
