// A repaint of a document's window, from the picture's memory into the window's image.
#include "bench.h"
#include "ui/widgets/viewRender.h"
#include <QPainter>
#include <memory>

namespace velara::bench {
namespace {

constexpr int kWidth = 1920, kHeight = 1080;
constexpr Rect kView{0, 0, kWidth, kHeight};

struct Screen {
    ViewRenderer renderer;
    QImage window{kWidth, kHeight, QImage::Format_RGB32};
    explicit Screen(double ratio) { window.setDevicePixelRatio(ratio); }
};

Row repaint(std::string name, int zoom, double ratio = 1)
{
    return {"repaint of 1920x1080",
            std::move(name),
            2.0,
            1.0,
            [=](Size size) {
                auto screen = std::make_shared<Screen>(ratio);
                const Bits& bits = picture(size);
                return Trial{[=] {
                                 QPainter painter(&screen->window);
                                 screen->renderer.paint(painter, bits, {101, 57, zoom, ratio}, kView, {});
                             },
                             {}};
            },
            "ms"};
}

// clang-format off
const Rows rows{
    repaint("zoom 1", 1),
    repaint("zoom 2", 2),
    repaint("zoom 3", 3),
    repaint("zoom 15", 15),
    repaint("zoom 1, two device pixels each", 1, 2),
    repaint("zoom 1, one and a half", 1, 1.5),
};
// clang-format on

} // namespace
} // namespace velara::bench
