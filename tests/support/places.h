// Paths for the tests: the built programs, the files beside the tests, and data outside of the source tree that may be
// missing.
#pragma once
#include <QString>

namespace velara {

/// A program of this build, or another file of its folder.
QString builtPath(const QString& name);
/// A file below tests/.
QString testsPath(const QString& name);
/// A sample picture; tests skip if it is missing.
QString corpusPath(const QString& name);
/// A file of the measured region shapes and colour tables; tests skip if it is missing.
QString factsPath(const QString& name);

} // namespace velara
