// Finds a row of a table by its name.
#pragma once
#include <algorithm>
#include <iterator>

namespace velara {

/// The first row whose member equals the key (exact, case-sensitive); null when there is none. The table must outlive
/// the result: an array, or a span of one.
template <class Rows, class Key, class Member> constexpr auto* findRow(const Rows& rows, const Key& key, Member member)
{
    const auto found = std::ranges::find(rows, key, member);
    return found == std::end(rows) ? nullptr : &*found;
}

} // namespace velara
