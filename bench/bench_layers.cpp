// A step of dragging one of ten texts over a picture: real events on the real canvas in a page of 1920x1080.
#include "bench.h"
#include "platform/QtFonts.h"
#include "ui/compose/fLayerCanvas.h"
#include "ui/widgets/fPicturePage.h"
#include <QApplication>
#include <QMouseEvent>
#include <memory>

namespace velara::bench {
namespace {

constexpr int kTexts = 10, kWidth = 1920, kHeight = 1080;

/// Windows need an application object; it lives until the end of the program.
void needApplication()
{
    static int count = 1;
    static char name[] = "velara-bench", *arguments[] = {name, nullptr};
    if (qApp) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(count, arguments);
}

struct Dialog {
    QtFonts fonts;
    Layers layers{fonts};
    fLayerCanvas* canvas = new fLayerCanvas(layers);
    fPicturePage page{{"PicFrame", "picImage", "H", "V"}, "Picture", canvas};
    QWidget* outline = nullptr;
    QPoint at{40, 10};
    int step = 0;

    explicit Dialog(const Bits& picture)
    {
        page.resize(kWidth, kHeight);
        layers.setCanvas(picture);
        page.setBits(picture);
        page.show();
        canvas->nextStyle = {"Sans", 45, true};
        canvas->nextColour = 0xFFFFFF;
        for (int i = 0; i < kTexts; ++i) {
            layers.setText(canvas->addLayer(), QStringLiteral("A text over a picture"));
            canvas->refresh(0);
        }
        canvas->edit(false);
        outline = page.findChild<QWidget*>(QStringLiteral("lblShape_%1").arg(Layers::kFirst + kTexts - 1));
        send(QEvent::MouseButtonPress);
        QCoreApplication::processEvents();
    }
    void send(QEvent::Type type)
    {
        QMouseEvent event(type, at, at, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(outline, &event);
    }
    void drag()
    {
        at += step++ % 40 < 20 ? QPoint(7, 5) : QPoint(-7, -5);
        send(QEvent::MouseMove);
        QCoreApplication::processEvents(); // paints what was requested
    }
};

const Rows rows{{"composing", "drag step of one of ten texts", 8.0, 2.0,
                 [](Size size) {
                     needApplication();
                     auto dialog = std::make_shared<Dialog>(picture(size));
                     return Timing{[dialog] { dialog->drag(); }, {}};
                 },
                 "ms"}};

} // namespace
} // namespace velara::bench
