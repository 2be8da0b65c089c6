// The entry procedure: everything from the start of the program until its frame is shown.
#pragma once
#include "app/frame/fMain.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include <QPointer>
#include <memory>

namespace velara {

class fSplash;

/// Makes missing folders under the program folder, with their first contents: "Stamps", "Temp", "Images". False when
/// one of them can't be made or filled.
bool makeFolders(Platform& platform);

/// Sizes the frame from the configuration and puts it where it was at the end of the last run, on the same screen. The
/// first time it takes three quarters of the primary screen's width and height, in its centre. Whatever those say, the
/// frame is visible on a screen.
/// \param beside another instance runs: the frame doesn't cover it, and is not maximised
void placeFrame(QWidget& frame, const Setup& setup, const QByteArray& place = {}, bool beside = false);

/// The start: splash, configuration, frame, folders, bars, in that order. Each step comes from the event loop, so that
/// the splash is painted and takes a click meanwhile. A step that throws ends the program.
class Startup final : public QObject {
    Q_OBJECT
  public:
    /// Shows the splash. platform and setup must outlive the frame.
    Startup(Platform& platform, Setup& setup);
    ~Startup() override;
    /// After done(); it stands shown.
    std::unique_ptr<fMain> takeFrame() { return std::move(frame_); }

  signals:
    void done();

  private:
    void step();
    void makeFrame();
    void placeFrameOnScreen();
    void fillFrame();
    void showFrame();

    Platform& platform_;
    Setup& setup_;
    QPointer<fSplash> splash_;
    std::unique_ptr<fMain> frame_;
    std::size_t next_ = 0;
    bool second_ = false; // another instance runs already
};

} // namespace velara
