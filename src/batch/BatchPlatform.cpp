#include "batch/BatchPlatform.h"
#include <cstdio>

namespace velara {

void complain(const QString& text) { std::fprintf(stderr, "velara-batch: %s\n", text.toUtf8().constData()); }

void BatchPlatform::message(const QString& title, const QString& text, Icon)
{
    complain(title + QStringLiteral(": ") + text);
}

} // namespace velara
