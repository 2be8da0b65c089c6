#include "support/typicalArguments.h"
#include <algorithm>
#include <random>

namespace velara {

namespace {

Bits smallPicture(std::mt19937& random)
{
    Bits bits(static_cast<int>(1 + random() % 12), static_cast<int>(1 + random() % 12));
    std::generate_n(bits.data(), bits.sizeInBytes(), [&] { return static_cast<std::uint8_t>(random()); });
    return bits;
}

} // namespace

Arguments typicalArguments(const Operation& operation)
{
    std::mt19937 random(1);
    Arguments arguments;
    for (const Parameter& p : operation.parameters) {
        switch (p.type) {
        case ArgumentType::Boolean:
            arguments.emplace_back(true);
            break;
        case ArgumentType::Integer:
            arguments.emplace_back(static_cast<int>(p.typical));
            break;
        case ArgumentType::Number:
            arguments.emplace_back(p.typical);
            break;
        case ArgumentType::Text:
            arguments.emplace_back(choicesOf(p).at(0));
            break;
        case ArgumentType::Picture:
            arguments.emplace_back(smallPicture(random));
        }
    }
    return arguments;
}

} // namespace velara
