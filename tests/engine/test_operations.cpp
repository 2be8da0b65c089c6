// Every operation of the table against its scalar twin, over random pictures, selections and arguments.
#include "engine/colour/mPalette.h"
#include "pixels/RuntimeError.h"
#include "support/argumentRanges.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "tools/reference/twins.h"
#include <optional>

namespace velara {
namespace {

/// The picture that is left, and the fault that was raised, if any.
struct Outcome {
    Bits bits;
    std::optional<Fault> fault;
};

template <class Function> Outcome outcomeOf(const Bits& before, Function run)
{
    try {
        return {run(), {}};
    } catch (const RuntimeError& e) {
        return {before, e.fault()};
    }
}

std::string written(const Arguments& arguments)
{
    std::string text;
    for (const Argument& a : arguments) {
        text += text.empty() ? "" : ", ";
        if (const auto* v = std::get_if<bool>(&a)) text += *v ? "true" : "false";
        if (const auto* v = std::get_if<int>(&a)) text += std::to_string(*v);
        if (const auto* v = std::get_if<double>(&a)) text += std::to_string(*v);
        if (const auto* v = std::get_if<std::string>(&a)) text += *v;
        if (const auto* v = std::get_if<Bits>(&a))
            text += std::to_string(v->width()) + "x" + std::to_string(v->height());
    }
    return "(" + text + ")";
}

/// Sizes around the vectors' and the margin's; one row is wider than what is written past the cache, and one picture
/// holds blocks of pixels that an ellipse covers, crosses and leaves out.
constexpr int kSizes[][2] = {{1, 1},  {1, 7},   {9, 1},    {2, 2},    {3, 5},
                             {17, 9}, {64, 40}, {131, 33}, {1100, 3}, {230, 170}};
const char* const kSelections[] = {"no region", "empty", "everything", "random", "random", "outside", "ellipse"};

Region selection(std::string_view kind, int width, int height, std::uint32_t seed)
{
    if (kind == "no region") return {};
    if (kind == "empty") return Region::rectangle(0, 0, 0, 0);
    if (kind == "ellipse") return Region::ellipse(1, 1, width, height);
    if (kind == "outside") return Region::rectangle(-5, -4, width + 3, height + 6);
    return kind == "random" ? randomRegion(width, height, seed) : Region::rectangle(0, 0, width, height);
}

class OperationTest : public ::testing::TestWithParam<const Operation*> {};

TEST_P(OperationTest, EqualsItsTwin)
{
    const Operation& op = *GetParam();
    const auto twin = twins().find(op.name);
    ASSERT_NE(twin, twins().end()) << "no twin";
    PaletteColors() = {{0, 0, 0}, {255, 255, 255}, {200, 30, 40}, {20, 180, 90}, {120, 120, 128}, {250, 240, 20}};
    std::mt19937 random(12345);
    for (const auto& [width, height] : kSizes)
        for (const char* kind : kSelections) {
            const Bits before = randomBits(width, height, random());
            const Region region = selection(kind, width, height, random());
            const Arguments arguments = randomArguments(op, random);
            SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height) + ", " + kind + ", " +
                         written(arguments));
            cBitFilter filter = filterOf(before, region);
            const Outcome got = outcomeOf(before, [&] {
                op.call(filter, arguments);
                return filter.bits();
            });
            const Outcome wanted = outcomeOf(before, [&] { return twin->second(before, region, arguments); });
            ASSERT_EQ(wanted.fault, got.fault);
            ASSERT_TRUE(sameBits(wanted.bits, got.bits));
        }
}

std::vector<const Operation*> all()
{
    std::vector<const Operation*> list;
    for (const Operation& op : operations()) list.push_back(&op);
    return list;
}

INSTANTIATE_TEST_SUITE_P(Table, OperationTest, ::testing::ValuesIn(all()),
                         [](const auto& info) { return std::string(info.param->name); });

} // namespace
} // namespace velara
