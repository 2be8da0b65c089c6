// Which operations can be done to a picture in bands of rows.
#pragma once
#include "engine/operations.h"
#include <optional>

namespace velara {

/// How many rows above and below it a row of the result depends on, of an operation of the table on a whole picture;
/// nothing where other rows, the place in the picture or a random number matter, too.
std::optional<int> rowsAround(const Operation& operation);

} // namespace velara
