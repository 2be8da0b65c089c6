#include "filters/operationRows.h"

namespace velara {

std::vector<Operation> styliseOperations() { return {}; }

} // namespace velara
