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
    for (const Parameter& p : operation.parameters)
        arguments.push_back(p.type == ArgumentType::Boolean   ? Argument(true)
                            : p.type == ArgumentType::Integer ? Argument(static_cast<int>(p.typical))
                            : p.type == ArgumentType::Number  ? Argument(p.typical)
                            : p.type == ArgumentType::Text    ? Argument(choicesOf(p).at(0))
                                                              : Argument(smallPicture(random)));
    return arguments;
}

} // namespace velara
