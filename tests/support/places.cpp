#include "support/places.h"

namespace velara {

QString builtPath(const QString& name) { return QStringLiteral(VELARA_BIN "/") + name; }
QString testsPath(const QString& name) { return QStringLiteral(VELARA_TESTS "/") + name; }
QString corpusPath(const QString& name) { return QStringLiteral(VELARA_CORPUS "/") + name; }
QString factsPath(const QString& name) { return QStringLiteral(VELARA_GDI "/") + name; }

} // namespace velara
