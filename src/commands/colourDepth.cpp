#include "commands/colourDepth.h"
#include "engine/cBitFilter.h"
#include "reduce/EuroDepth.h"
#include <stdexcept>

namespace velara {

const Operation& setDepthOperation()
{
    static const Operation operation{
        "SetDepth",
        {{"Depth", ArgumentType::Integer, "1..32", "8", "bits a pixel: 1; 4; 8; 15; 16; 24 or 32"}},
        0,
        [](const Operation&, cBitFilter& filter, const Arguments& arguments) {
            const int depth = std::get<int>(arguments[0]);
            if (!isColourDepth(depth)) throw std::invalid_argument("Depth (1, 4, 8, 15, 16, 24 or 32)");
            filter.setBits(bitsAtDepth(filter.bits(), depth));
        }};
    return operation;
}

} // namespace velara
