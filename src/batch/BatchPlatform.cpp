#include "batch/BatchPlatform.h"
#include <QFile>
#include <cstdio>

namespace velara {

void complain(const QString& text) { std::fprintf(stderr, "velara-batch: %s\n", text.toUtf8().constData()); }

void BatchPlatform::message(const QString& title, const QString& text, Icon)
{
    complain(title + QStringLiteral(": ") + text);
}

LoadedPicture BatchPlatform::fromStandardInput(const QString& extension)
{
    constexpr qint64 kMost = std::int64_t{2} << 30; // no reader takes more
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) return {{}, QStringLiteral("standard input can't be read")};
    const QByteArray bytes = input.read(kMost);
    if (bytes.isEmpty()) return {{}, QStringLiteral("standard input is empty")};
    return decodeBytes(bytes, QStringLiteral("standard input"), extension, {});
}

} // namespace velara
