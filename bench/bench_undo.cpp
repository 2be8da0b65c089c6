// The undo series on disk, and the live preview of the filters that have a dialog. The files stay in the page cache.
#include "bench.h"
#include "commands/FilterPreview.h"
#include "document/Document.h"
#include "engine/cBitFilter.h"
#include "tools/PreviewBuffer.h"
#include <QTemporaryDir>
#include <memory>

namespace velara::bench {
namespace {

struct Series {
    QTemporaryDir folder;
    UndoStore store{folder.path(), 1};
    ~Series() { store.deleteSeries(); }
};

Row row(std::string name, double must, double goal, int snapshots, void (*body)(UndoStore&, const Bits&))
{
    return {"undo store", std::move(name), must, goal, [=](Size size) {
                const auto series = std::make_shared<Series>();
                const Bits bits = picture(size);
                for (int i = 0; i < snapshots; ++i) series->store.save(bits);
                series->store.stands();
                return Timing{[=] { body(series->store, bits); }, {}};
            }};
}

/// A document in the hand of a tool.
struct Stroke {
    QTemporaryDir folder;
    Document document{folder.path(), 1};
    cBitFilter filter;
    PreviewBuffer preview{document, filter};

    explicit Stroke(Size size)
    {
        document.takePicture(picture(size));
        document.handTo(filter);
        document.SaveUndoBits();
    }
    ~Stroke() { document.undo.deleteSeries(); }
    void paint(int y, Colour colour)
    {
        preview.begin();
        for (int i = 0; i < 12; ++i) document.paint.BitsLine(100, y + i, 1100, y + 600 + i, colour, 100);
    }
    void release()
    {
        preview.commit();
        document.SaveUndoBits();
    }
};

/// The cost of releasing the button: the stroke goes to the engine and its snapshot is queued. The previous one has
/// been written long before, as in real use.
Row release()
{
    return {"undo store",
            "release of a stroke",
            16,
            4,
            [](Size size) {
                const auto s = std::make_shared<Stroke>(size);
                const auto press = [s] {
                    s->document.undo.stands();
                    s->paint(100, 0xFF);
                };
                return Timing{[s] { s->release(); }, {}, 1, press};
            },
            "ms"};
}

/// Until all is on the disk, or in the page cache; no two strokes are alike.
Row strokes()
{
    return {"undo store",
            "twelve strokes until they are written",
            400,
            150,
            [](Size size) {
                const auto s = std::make_shared<Stroke>(size);
                const auto colour = std::make_shared<Colour>();
                const auto work = [s, colour, size] {
                    for (int i = 0; i < 12; ++i) {
                        s->paint(100 + i * (size.height - 900) / 12, ++*colour);
                        s->release();
                    }
                    s->document.undo.stands();
                };
                return Timing{work, {}, 1, [s] { s->document.undo.stands(); }};
            },
            "ms"};
}

/// Back and forward over a stroke.
Row strokeBack()
{
    return {"undo store", "stroke undone or redone", 3, 1.6, [](Size size) {
                const auto s = std::make_shared<Stroke>(size);
                for (int i = 0; i < 8; ++i) {
                    s->paint(100 + i * 20, i + 1);
                    s->release();
                }
                s->document.undo.stands();
                return Timing{[s] {
                                  if (!s->document.undo.undo()) s->document.undo.redo();
                              },
                              {}};
            }};
}

Row previews()
{
    return {"filter preview",
            "all dialogs, one after the other",
            41 * 16,
            16,
            [](Size size) {
                const auto shown = std::make_shared<FilterPreview>(picture(size), Region(), QSize(300, 260));
                return Timing{[shown] {
                                  for (const FilterRow& row : filterRows()) shown->run(row, row.defaults());
                              },
                              {}};
            },
            "ms"};
}

const Rows undo{
    row("snapshot written, ten stand", 3, 1.8, 10,
        [](UndoStore& store, const Bits& bits) {
            store.save(bits);
            store.stands();
        }),
    row("read back", 3, 1.3, 3,
        [](UndoStore& store, const Bits&) {
            if (!store.undo()) store.redo();
        }),
    release(),
    strokes(),
    strokeBack(),
    previews(),
};

} // namespace
} // namespace velara::bench
