// A repaint of a document's window, from the picture's memory to the window's image; and the previews in dialogs.
#include "bench.h"
#include "document/merging.h"
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
                return Timing{[=] {
                                  QPainter painter(&screen->window);
                                  screen->renderer.paint(painter, bits, {101, 57, zoom, ratio}, kView, {});
                              },
                              {}};
            },
            "ms"};
}

/// The picture over itself in the merging dialog's box: must take less than a frame while a slider moves.
Row mergingPreview(std::string name, bool tiled)
{
    return {"preview",
            std::move(name),
            16.7,
            8.0,
            [=](Size size) {
                const Bits& bits = picture(size);
                const Merging merging{bits, size.width / 3, size.height / 4, tiled, 50, 0xFFFFFF};
                const Region region = Region::ellipse(0, 0, size.width + 1, size.height + 1);
                return Timing{[=] { (void)mergedView(bits, region, merging, {380, 300}); }, {}};
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
    mergingPreview("merging", false),
    mergingPreview("merging, tiled", true),
};
// clang-format on

} // namespace
} // namespace velara::bench
