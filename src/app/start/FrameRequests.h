// FrameRequests: does in the frame what other programs ask for, in the order in which it came: once the frame stands
// and no dialog waits for the user.
#pragma once
#include "platform/opening/OpenService.h"
#include <QPointer>
#include <deque>

namespace velara {

class fMain;

class FrameRequests final : public QObject, public OpenRequests {
    Q_OBJECT
  public:
    /// From now on requests are fulfilled.
    void begin(fMain& frame);

    void activate(const ActivationToken& token) override;
    void open(const QStringList& uris, bool tells, Done done) override;
    void act(const QString& action) override;

  private:
    bool mayRun() const;
    void add(std::function<void()> request);
    void runNext();
    void openNow(const QStringList& uris, bool tells, const Done& done);

    QPointer<fMain> frame_;
    std::deque<std::function<void()>> waiting_;
};

} // namespace velara
