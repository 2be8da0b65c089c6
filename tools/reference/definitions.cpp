#include "tools/reference/definitions.h"

namespace velara {

const Definitions& definitions()
{
    static const Definitions all = [] {
        Definitions list;
        for (const auto family : {geometryDefinitions, colourDefinitions, distanceDefinitions, neighbourDefinitions,
                                  deformDefinitions, styliseDefinitions, generateDefinitions})
            list.merge(family());
        return list;
    }();
    return all;
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
