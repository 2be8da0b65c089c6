// One command from end to end: the active document's picture to the engine, the cheapest filter, the result back, a
// repaint of a full window, the undo file.
#include "bench.h"
#include "document/Document.h"
#include "engine/cBitFilter.h"
#include "ui/widgets/viewRender.h"
#include <QPainter>
#include <QTemporaryDir>
#include <memory>

namespace velara::bench {
namespace {

struct Desk {
    QTemporaryDir folder;
    Document document{folder.path(), 1};
    cBitFilter filter;
    ViewRenderer renderer;
    QImage window{1920, 1080, QImage::Format_RGB32};

    explicit Desk(const Bits& bits)
    {
        document.takePicture(bits);
        for (int i = 0; i < UndoStore::kLimit; ++i)
            command(); // the series is full of whole pictures, as after some work
    }
    ~Desk() { document.undo.deleteSeries(); }

    void command()
    {
        document.handTo(filter);
        filter.setBits(filter.Invert());
        document.setBits(filter.bits());
        QPainter painter(&window);
        renderer.paint(painter, document.bits(), {101, 57, 1, 1}, {0, 0, 1920, 1080}, {});
        document.SaveUndoBits();
        document.undo.stands();
    }
};

const Rows command{{"one command", "Invert: hand-over, filter, repaint, undo file", 8, 3.5, [](Size size) {
                        const auto desk = std::make_shared<Desk>(picture(size));
                        return Timing{[desk] { desk->command(); }, {}};
                    }}};

} // namespace
} // namespace velara::bench
