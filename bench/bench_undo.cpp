// The undo series on disk, and the live preview of the filters that have a dialog. The files stay in the page cache.
#include "bench.h"
#include "commands/FilterPreview.h"
#include "document/UndoStore.h"
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
                return Trial{[=] { body(series->store, bits); }, {}};
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
                return Trial{[shown] {
                                 for (const FilterRow& row : filterRows()) shown->run(row, row.defaults());
                             },
                             {}};
            },
            "ms"};
}

const Rows undo{
    row("snapshot written, ten stand", 3, 1.8, 10, [](UndoStore& store, const Bits& bits) { store.save(bits); }),
    row("read back", 3, 1.3, 3,
        [](UndoStore& store, const Bits&) {
            if (!store.undo()) store.redo();
        }),
    previews(),
};

} // namespace
} // namespace velara::bench
