// The undo series on disk, and the live preview of the filters that have a dialog. The files stay in the page cache.
#include "bench.h"
#include "commands/FilterPreview.h"
#include "document/Document.h"
#include "document/undo/TileSums.h"
#include "engine/cBitFilter.h"
#include "fileio/disk/fileBytes.h"
#include "tools/PreviewBuffer.h"
#include <QTemporaryDir>
#include <array>
#include <memory>

namespace velara::bench {
namespace {

/// A series of whole pictures: no two states after each other have a tile in common.
struct Series {
    QTemporaryDir folder;
    UndoStore store{folder.path(), 1};
    Bits next, other;

    explicit Series(Size size) : next(picture(size)), other(next)
    {
        std::uint8_t* byte = other.data();
        for (std::size_t i = 0; i < other.sizeInBytes(); ++i) byte[i] = static_cast<std::uint8_t>(~byte[i]);
    }
    ~Series() { store.deleteSeries(); }
    void save()
    {
        store.save(next);
        std::swap(next, other);
    }
};

Row readBack()
{
    return {"undo store", "read back", 3, 1.3, [](Size size) {
                const auto series = std::make_shared<Series>(size);
                for (int i = 0; i < 3; ++i) series->save();
                series->store.stands();
                return Timing{[series] {
                                  if (!series->store.undo()) series->store.redo();
                              },
                              {}};
            }};
}

/// A snapshot over the oldest one, beside what no way of writing one goes without: write() of its bytes over an older
/// file, and the sums of its tiles, made from pixels in the cache.
Row snapshot()
{
    static constexpr int kCached = 32; // rows
    return {"undo store",
            "snapshot written, ten stand",
            1.3,
            1,
            [](Size size) {
                const auto series = std::make_shared<Series>(size);
                for (int i = 0; i < 10; ++i) series->save();
                series->store.stands();
                const Bits part = picture({size.width, kCached});
                const auto plain = [series, part, parts = size.height / kCached] {
                    constexpr std::array<std::uint8_t, 40> kHead{}; // the pixels don't begin on a page there either
                    overwriteFile(series->folder.filePath("plain"), kHead,
                                  {series->next.data(), series->next.sizeInBytes()});
                    for (int i = 0; i < parts; ++i) TileSums(part, UndoStore::tileRules.side);
                };
                plain();
                return Timing{[series] {
                                  series->save();
                                  series->store.stands();
                              },
                              plain};
            },
            "write()"};
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
            250,
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
    snapshot(), readBack(), release(), strokes(), strokeBack(), previews(),
};

} // namespace
} // namespace velara::bench
