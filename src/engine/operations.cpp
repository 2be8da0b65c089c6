#include "engine/operationRows.h"
#include "seams/findRow.h"
#include <sstream>

namespace velara {

namespace rows {

Mask maskOf(const std::string& text)
{
    Mask mask;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line, '/');) {
        std::istringstream numbers(line);
        std::vector<int>& row = mask.emplace_back();
        for (int number; numbers >> number;) row.push_back(number);
        if (!numbers.eof()) throw std::invalid_argument("Mask");
    }
    for (const auto& row : mask)
        if (row.size() != mask.size()) throw std::invalid_argument("Mask");
    if (mask.empty()) throw std::invalid_argument("Mask");
    return mask;
}

void checkCount(std::string_view operation, std::size_t wanted, std::size_t got)
{
    if (wanted != got)
        throw std::invalid_argument(std::string(operation) + " takes " + std::to_string(wanted) + " arguments, not " +
                                    std::to_string(got));
}

} // namespace rows

std::span<const Operation> operations() { return kOperationRows<Operation>; }

std::vector<std::string> choicesOf(const Parameter& text)
{
    std::vector<std::string> all;
    for (std::string_view rest = text.values; !rest.empty();) all.emplace_back(rows::takeUpTo("|", rest));
    return all;
}

const Operation* findOperation(std::string_view name) { return findRow(operations(), name, &Operation::name); }

} // namespace velara
