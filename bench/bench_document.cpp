// The document: flood fill, the steps of a drag, and selections of thousands of bands. A drag step is the cost of a
// mouse move without the repaint of the window.
#include "bench.h"
#include "engine/cBitFilter.h"
#include "tools/PreviewBuffer.h"
#include <QImage>
#include <memory>

namespace velara::bench {
namespace {

/// A document with an engine, as between two strokes.
struct Bench {
    Document document{QStringLiteral("/nowhere"), 1};
    cBitFilter filter;
    PreviewBuffer preview{document, filter};
    int step = 0;

    explicit Bench(Size size)
    {
        document.takePicture(picture(size));
        document.handTo(filter);
        preview.begin();
        document.paint.CreateDoneBitsTable();
    }
    Painter& paint() { return document.paint; }
    int width() const { return document.PictureWidth(); }
    int height() const { return document.PictureHeight(); }
};

/// Calls body repeatedly on a document of its own.
template <class Body>
Row row(std::string family, std::string name, double must, double goal, std::string unit, Body body)
{
    return {std::move(family),
            std::move(name),
            must,
            goal,
            [body](Size size) {
                const auto bench = std::make_shared<Bench>(size);
                return Timing{[bench, body] { body(*bench); }, {}};
            },
            std::move(unit)};
}

void fillAll(Bench& b, int opacity)
{
    b.paint().CreateDoneBitsTable();
    b.paint().BitsFill(b.width() / 2, b.height() / 2, b.step++ % 2 ? 0xFFFFFF : 0, 765, opacity);
}

void fillTexture(Bench& b, int opacity)
{
    static const Bits textures[] = {picture({200, 150}), Bits(64, 64)};
    b.paint().CreateDoneBitsTable();
    b.paint().BitsFillTexture(b.width() / 2, b.height() / 2, textures[b.step++ % 2], 765, opacity);
}

void brush(Bench& b, int size, int mode)
{
    const int x = b.width() / 4 + 12 * (b.step++ % 200), y = b.height() / 3;
    b.paint().BitsBrushLine(x, y, x + 12, y + 9, size, 50, 0x3040F0, mode);
}

struct Selection {
    cBitRegion region;
    QImage window{1920, 1080, QImage::Format_RGB32};

    Selection() // 45 megapixels whatever the size of the picture
    {
        region.Init(0, 0, 9000, 5000);
        region.CreateEllipse(0, 0, 9000, 5000, Combine::Or, true);
    }
};

template <class Body> Row selection(std::string name, double must, double goal, Body body)
{
    return {"selection",
            std::move(name),
            must,
            goal,
            [body](Size) {
                const auto selection = std::make_shared<Selection>();
                return Timing{[selection, body] { body(*selection); }, {}};
            },
            "ms"};
}

// clang-format off
const Rows rows{
    row("flood fill", "all, opaque",           30, 6, "memcpy", [](Bench& b) { fillAll(b, 100); }),
    row("flood fill", "all, 60 percent",       30, 6, "memcpy", [](Bench& b) { fillAll(b, 60); }),
    row("flood fill", "textured, opaque",      30, 9, "memcpy", [](Bench& b) { fillTexture(b, 100); }),
    row("flood fill", "textured, 60 percent",  30, 9, "memcpy", [](Bench& b) { fillTexture(b, 60); }),

    row("drag step", "brush 25",               8, 2, "ms", [](Bench& b) { brush(b, 25, 0); }),
    row("drag step", "brush 200",              8, 2, "ms", [](Bench& b) { brush(b, 200, 0); }),
    row("drag step", "soften over 200",        8, 2, "ms", [](Bench& b) { brush(b, 200, 2); }),
    row("drag step", "airbrush 75",            8, 2, "ms",
        [](Bench& b) { b.paint().BitsAirbrush(500, 400, 75, 25, 100, 0, 0xFF); }),
    row("drag step", "line across the picture", 8, 2, "ms", [](Bench& b) {
        b.preview.restore();
        b.paint().BitsLine(9, 9, b.width() - 9, b.height() - 9, 0xFF, 100);
    }),
    row("drag step", "ellipse in the picture", 8, 2, "ms", [](Bench& b) {
        b.preview.restore();
        b.paint().BitsEllipse(b.width() / 2, b.height() / 2, b.width() / 3, b.height() / 3, 0xFF, 100);
    }),
    row("drag step", "stamp 256, track cleared", 8, 2, "ms", [](Bench& b) {
        static const Bits stamp = picture({256, 256});
        b.preview.restore();
        b.paint().BitsPaint(300, 200, stamp, -1, 50, true);
    }),
    row("commit", "after a stroke of 1000 pixels", 8, 2, "ms", [](Bench& b) {
        b.preview.begin();
        b.paint().BitsLine(100, 100, 1100, 700, b.step++ % 2 ? 0xFF : 0xFFFF, 100);
        b.preview.commit();
    }),

    selection("two ellipses of 45 megapixels", 8, 0.5, [](Selection& s) {
        for (int outAndIn = 0; outAndIn < 2; ++outAndIn) s.region.CreateEllipse(0, 0, 9000, 5000, Combine::Xor, true);
    }),
    selection("moved by a pixel, at zoom 3",   8, 0.5, [](Selection& s) {
        s.region.setZoomFactor(3);
        s.region.Offset(1, 0);
    }),
    selection("outline in a full window",      8, 0.5, [](Selection& s) {
        s.region.DrawToDC(s.window, -7000, -100, {0, 0, 1920, 1080});
        s.region.RotateBrush();
    }),
};
// clang-format on

} // namespace
} // namespace velara::bench
