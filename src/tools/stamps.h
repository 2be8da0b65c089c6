// The stamps: pictures in the program's folder "Stamps".
#pragma once
#include <QStringList>
#include <optional>

namespace velara {

class Machine;

/// The names of the "*.bmp" files, sorted without regard to case; nothing when the folder is missing.
std::optional<QStringList> stampFiles(Machine& machine);
QString stampPath(Machine& machine, const QString& fileName);

} // namespace velara
