// The vector kernels of every target the processor has give the same bytes.
#include "engine/colour/mPalette.h"
#include "support/pictures.h"
#include "support/typicalArguments.h"
#include <hwy/targets.h>

namespace velara {
namespace {

Bits result(const Operation& op, const Bits& bits, const Region& region)
{
    cBitFilter filter;
    filter.setBits(bits);
    filter.setBitsRegion(region);
    op.call(filter, typicalArguments(op));
    return filter.bits();
}

void use(std::int64_t disabled)
{
    hwy::DisableTargets(disabled);
    hwy::GetChosenTarget().DeInit(); // chosen again at the next call
}

TEST(Targets, TheBaselineGivesWhatTheBestGives)
{
    PaletteColors() = {{0, 0, 0}, {255, 255, 255}, {200, 30, 40}};
    const Bits bits = randomBits(1111, 37, 8);
    const Region region = Region::ellipse(-1, 0, 1111, 37);
    for (const Operation& op : operations()) {
        use(0);
        const Bits best = result(op, bits, region);
        use(HWY_AVX2);
        EXPECT_TRUE(sameBits(best, result(op, bits, region))) << op.name;
    }
    use(0);
}

} // namespace
} // namespace velara
