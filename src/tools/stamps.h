// The stamps: pictures in the program's folder "Stamps".
#pragma once
#include "pixels/Bits.h"
#include <QStringList>
#include <optional>

namespace velara {

class Machine;
class Platform;

/// The names of the "*.bmp" files, sorted without regard to case; nothing when the folder is missing.
std::optional<QStringList> stampFiles(Machine& machine);
/// The picture of a stamp; empty when it can't be read.
Bits loadStamp(Platform& platform, const QString& fileName);

} // namespace velara
