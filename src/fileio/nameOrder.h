// The order of file names for people.
#pragma once
#include <QCollator>

namespace velara {

/// By the system's language, ignoring case, with numbers by value: Velara2 before Velara10.
const QCollator& nameOrder();

} // namespace velara
