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

/// The cost of releasing the button: the stroke goes to the engine and its snapshot is queued. The previous one has
/// been written long before, as in real use.
Row release()
{
    struct Stroke {
        QTemporaryDir folder;
        Document document{folder.path(), 1};
        cBitFilter filter;
        PreviewBuffer preview{document, filter};
        double longest = 0;
        ~Stroke() { document.undo.deleteSeries(); }
    };
    return {"undo store",
            "release of a stroke",
            16,
            4,
            [](Size size) {
                const auto s = std::make_shared<Stroke>();
                s->document.takePicture(picture(size));
                s->document.handTo(s->filter);
                s->document.SaveUndoBits();
                const auto press = [s] {
                    s->document.undo.stands();
                    s->preview.begin();
                    s->document.paint.BitsLine(100, 100, 1100, 700, 0xFF, 100);
                };
                const auto release = [s] {
                    s->preview.commit();
                    s->document.SaveUndoBits();
                };
                return Timing{release, {}, 1, press};
            },
            "ms"};
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
    previews(),
};

} // namespace
} // namespace velara::bench
