// A frame with a recording platform, a scratch program folder and pictures to open in it.
#pragma once
#include "app/frame/fMain.h"
#include "app/frame/fToolPane.h"
#include "app/menus/fIcons.h"
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "support/ui/controls.h"
#include <gtest/gtest.h>

namespace velara {

struct FrameTest : ::testing::Test {
    RecordingPlatform platform;
    velara::Setup setup;
    std::unique_ptr<fMain> frame;

    void SetUp() override
    {
        useResources();
        QDir(platform.programFolder()).mkpath("Temp");
        frame = std::make_unique<fMain>(platform, setup);
        frame->applyBars();
        frame->show();
    }
    void TearDown() override
    {
        setup.AskToSave = false;
        frame.reset();
    }

    QString path(const QString& name) { return platform.folder.filePath(name); }
    /// A picture file in which no two adjacent pixels of a row are equal.
    QString file(const QString& name, int width = 12, int height = 8)
    {
        QImage image(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x * 3, y * 5, (x + y) % 256));
        EXPECT_TRUE(image.save(path(name)));
        return path(name);
    }
    fImage* open(const Bits& bits, const QString& name = "picture.bmp")
    {
        frame->adopt(bits, path(name), Arrival::Made);
        QCoreApplication::processEvents();
        return frame->GetActiveImage();
    }
    void openFile(const QString& path)
    {
        frame->openPicture(path);
        frame->workspace().wait();
    }
    /// Runs a word and waits for everything that it begins.
    void command(const QString& word)
    {
        frame->Mmenu(word);
        frame->workspace().wait();
    }
    Outcome change(const DocumentHandle& document, const Job& job)
    {
        Outcome became;
        frame->workspace().change(document, {job}, [&](const Outcome& outcome) { became = outcome; });
        frame->workspace().wait();
        return became;
    }
    void activate(fImage* image)
    {
        frame->area().setActiveSubWindow(qobject_cast<QMdiSubWindow*>(image->parentWidget()));
    }
    void click(const char* tool) { frame->toolPane().button(tool)->click(); }
    QWidget* display(fImage* image) { return image->findChild<QWidget*>("iDst"); }
    void mouse(fImage* image, QEvent::Type type, QPoint at, Qt::MouseButtons held)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        sendMouse(display(image), type, at, button, held);
    }
    void drag(fImage* image, QPoint from, QPoint to)
    {
        mouse(image, QEvent::MouseButtonPress, from, Qt::LeftButton);
        mouse(image, QEvent::MouseMove, to, Qt::LeftButton);
        mouse(image, QEvent::MouseButtonRelease, to, Qt::NoButton);
    }
    std::string last() const { return platform.log.empty() ? std::string() : platform.log.back(); }
};

} // namespace velara
