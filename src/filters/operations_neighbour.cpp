#include "filters/operationRows.h"

namespace velara {

std::vector<Operation> neighbourOperations() { return {}; }

} // namespace velara
