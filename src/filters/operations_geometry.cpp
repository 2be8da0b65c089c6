#include "filters/operationRows.h"

namespace velara {

std::vector<Operation> geometryOperations() { return {}; }

} // namespace velara
