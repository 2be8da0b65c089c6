// Every operation of the table compared with its definition, for random pictures, selections and arguments; and its
// vector kernels, which give the same bytes for every instruction set that the processor supports.
#include "engine/colour/mPalette.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "support/sums.h"
#include "support/typicalArguments.h"
#include <hwy/targets.h>

namespace velara {
namespace {

TEST(Operations, GiveWhatTheirDefinitionsGive) { expectCommittedSums(operationTrials()); }

void use(std::int64_t disabled)
{
    hwy::DisableTargets(disabled);
    hwy::GetChosenTarget().DeInit(); // chosen again at the next call
}

TEST(Operations, TheBaselineGivesWhatTheBestGives)
{
    PaletteColors() = {{0, 0, 0}, {255, 255, 255}, {200, 30, 40}};
    const Bits bits = randomBits(1111, 37, 8);
    const Region region = Region::ellipse(-1, 0, 1111, 37);
    for (const Operation& op : operations()) {
        use(0);
        const Arguments arguments = typicalArguments(op);
        const Bits best = run(op.name, arguments, bits, region);
        use(HWY_AVX2);
        EXPECT_TRUE(sameBits(best, run(op.name, arguments, bits, region))) << op.name;
    }
    use(0);
}

} // namespace
} // namespace velara
