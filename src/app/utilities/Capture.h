// Capture: the screen, or a part of it, as a new document. Hides what is in the way, waits half a second, captures, and
// always brings everything back.
#pragma once
#include "seams/Screen.h"
#include "ui/utilities/fCapture.h"
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>

namespace velara {

class fCaptureRectangle;
class fMain;
class fWaiting;
class HiddenWindows;

class Capture final : public QObject {
    Q_OBJECT
  public:
    enum Mode { WholeScreen = 0, FixedArea = 1, Rectangle = 2 }; // any other: the picture's own window

    explicit Capture(fMain& frame);
    ~Capture() override;

    // --- The command words
    void desktop();
    void background();
    /// As soon as the menu that the word came from has closed.
    void capturePic(int mode);

    /// Shows the dialog; there is only one.
    void showDialog();
    /// Captures the screens, without a document, once what is in the way is hidden. The program's windows stay hidden
    /// until bringBack(); if the user gives up waiting for the desktop they come back, and done is not called.
    void takeScreens(bool showsDesktop, const Screen::Done& done);
    void bringBack();
    /// How long a desktop may take before a small window offers to give up; milliseconds.
    void setPatience(int patience) { patience_.setInterval(patience); }

  private:
    void putAside(bool hides, bool showsDesktop);
    void endDesktop();
    void grab(const Screen::Done& done);
    void giveUp();
    void customChosen(fCapture::Where where);
    void customDue();
    QRect areaOf(int mode, const ScreenPicture& picture) const;
    /// reason: what to report about the picture, as in ScreenPicture.
    void makeDocument(const Bits& bits, const QString& reason = {});
    void show(const Bits& bits, const QString& path, const QString& reason);

    fMain& frame_;
    QTimer Timer2_, patience_;
    std::unique_ptr<HiddenWindows> hidden_;
    bool desktopShown_ = false;
    QPointer<fCapture> dialog_;
    QPointer<fWaiting> waiting_;
    fCaptureRectangle* picker_;
};

} // namespace velara
