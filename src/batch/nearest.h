// The known name that was perhaps meant.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace velara {

/// Insertions, removals, changes and swaps of neighbours that make one of the other.
int editDistance(std::string_view a, std::string_view b);

/// The known name that is nearest to name, letter case aside; empty when none is close enough to be meant.
std::string nearestName(std::string_view name, const std::vector<std::string_view>& known);

} // namespace velara
