#include "tools/reference/definitions.h"
#include <stdexcept>

namespace velara {

const Argument& Given::named(std::string_view name) const
{
    for (std::size_t i = 0; i < arguments_.size(); ++i)
        if (operation_.parameters[i].name == name) return arguments_[i];
    throw std::invalid_argument(std::string(operation_.name) + " has no argument " + std::string(name));
}

Bits definedResult(std::string_view operation, const Bits& bits, const Region& region, const Arguments& arguments)
{
    static const Definitions all = [] {
        Definitions list;
        for (const auto family : {geometryDefinitions, colourDefinitions, distanceDefinitions, neighbourDefinitions,
                                  deformDefinitions, styliseDefinitions, generateDefinitions})
            list.merge(family());
        return list;
    }();
    const auto found = all.find(operation);
    if (found == all.end()) throw std::invalid_argument("no definition of " + std::string(operation));
    return found->second(bits, region, Given(*findOperation(operation), arguments));
}

Bits eachPixel(const Bits& bits, const Region& region, int margin,
               const std::function<void(Pixel& to, int x, int y)>& body)
{
    Bits out = bits;
    const Rect box = region.bounds();
    for (int y = box.top + margin; y < box.bottom - margin; ++y)
        for (int x = box.left + margin; x < box.right - margin; ++x)
            if (region.contains(x, y) && x >= 0 && y >= 0 && x < bits.width() && y < bits.height())
                body(out.at(x, y), x, y);
    return out;
}

} // namespace velara
