// Where the tests find things: the built programs, the files beside the tests, and what lies outside of the source tree
// and may be missing.
#pragma once
#include <QString>

namespace velara {

/// A program of this build, or another file of its folder.
QString builtPath(const QString& name);
/// A file below tests/.
QString testsPath(const QString& name);
/// A sample picture; tests skip what is not there.
QString corpusPath(const QString& name);
/// A file of the measured region shapes and colour tables; tests skip what is not there.
QString factsPath(const QString& name);

} // namespace velara
