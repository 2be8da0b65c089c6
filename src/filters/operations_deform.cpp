#include "filters/operationRows.h"

namespace velara {

std::vector<Operation> deformOperations() { return {}; }

} // namespace velara
