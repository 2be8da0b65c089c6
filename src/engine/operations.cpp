#include "engine/operations.h"
#include "engine/operationRows.h"
#include <algorithm>

namespace velara {

namespace rows {

std::vector<Parameter> parameterList(std::string_view names, std::vector<ArgumentType> types)
{
    std::vector<Parameter> list;
    for (const ArgumentType type : types) {
        const auto comma = names.find(',');
        list.push_back({names.substr(0, comma), type});
        names = comma == std::string_view::npos ? std::string_view() : names.substr(comma + 1);
    }
    return list;
}

void checkCount(std::string_view operation, std::size_t wanted, std::size_t got)
{
    if (wanted != got)
        throw std::invalid_argument(std::string(operation) + " takes " + std::to_string(wanted) + " arguments, not " +
                                    std::to_string(got));
}

} // namespace rows

std::span<const Operation> operations()
{
    static const std::vector<Operation> all = [] {
        std::vector<Operation> list;
        for (auto family : {geometryOperations, colourOperations, neighbourOperations, deformOperations,
                            styliseOperations, generateOperations})
            for (Operation& op : family()) list.push_back(std::move(op));
        return list;
    }();
    return all;
}

const Operation* findOperation(std::string_view name)
{
    const auto all = operations();
    const auto found = std::find_if(all.begin(), all.end(), [name](const Operation& op) { return op.name == name; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace velara
