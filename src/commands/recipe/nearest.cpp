#include "commands/recipe/nearest.h"
#include <algorithm>
#include <cctype>

namespace velara {

int editDistance(std::string_view a, std::string_view b)
{
    // Three rows of the table of distances between prefixes of a and b.
    std::vector<int> before(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = static_cast<int>(j);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        before.swap(last);
        last.swap(row);
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] != b[j - 1])});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row[b.size()];
}

std::string nearestName(std::string_view name, const std::vector<std::string_view>& known)
{
    const auto upper = [](std::string_view text) {
        std::string result(text);
        for (char& c : result) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        return result;
    };
    const std::string wanted = upper(name.substr(0, 64));
    int best = std::max(1, static_cast<int>(wanted.size()) / 3) + 1;
    std::string_view nearest;
    for (const std::string_view candidate : known)
        if (const int distance = editDistance(wanted, upper(candidate)); distance < best) {
            best = distance;
            nearest = candidate;
        }
    return std::string(nearest);
}

} // namespace velara
