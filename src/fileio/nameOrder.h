// The order in which a person looks for file names.
#pragma once
#include <QCollator>

namespace velara {

/// By the letters of the system's language, capitals and small ones alike, and by numbers: Velara2 before Velara10.
const QCollator& nameOrder();

} // namespace velara
