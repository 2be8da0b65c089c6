// The known name that was probably meant.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace velara {

/// The number of insertions, deletions, substitutions and transpositions of neighbours that turn a into b.
int editDistance(std::string_view a, std::string_view b);

/// The known name nearest to name, ignoring case; empty when none is close enough.
std::string nearestName(std::string_view name, const std::vector<std::string_view>& known);

} // namespace velara
