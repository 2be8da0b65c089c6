#include "fileio/load/PictureLoader.h"
#include "fileio/load/Shrinker.h"
#include "fileio/load/rowsOf.h"
#include <QFileInfo>
#include <optional>

namespace velara {

SmallPicture loadSmall(const QString& path, const QString& extension, const QString& decoder, QSize box,
                       const DecoderLimits& limits, const GoOn& goOn)
{
    QString reason;
    const QString name = QFileInfo(path).fileName();
    const Descriptor file = openPicture(path, reason);
    if (!file.isOpen()) return {{}, {}, {}, named({false, reason}, name)};
    std::optional<Shrinker> shrinker;
    SmallPicture small;
    const QStringList wishes{decode::kBareWish};
    const Ending ending = load(file, extension, decoder, wishes, limits, goOn, [&](const auto& opening, const Parts&) {
        small.size = {opening.width, opening.height};
        small.origin = opening.origin;
        shrinker.emplace(small.size, box);
        return [&](const Pixel* rows, int, int count) {
            for (; count > 0; --count, rows += small.size.width()) shrinker->take(rows);
        };
    });
    if (ending.whole) small.image = shrinker->image();
    small.reason = named(ending, name);
    return small;
}

} // namespace velara
