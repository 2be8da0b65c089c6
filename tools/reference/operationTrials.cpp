// Trials of the operation table: random ones by picture size, arguments slightly beyond their ranges, and special
// cases.
#include "engine/colour/mPalette.h"
#include "tools/reference/definitions.h"
#include "tools/reference/trials.h"
#include <climits>

namespace velara {
namespace {

/// Sizes around those of the vectors and the margin; one row is wide enough for non-temporal stores, and one picture
/// contains blocks of pixels that an ellipse covers, crosses and misses.
constexpr int kSizes[][2] = {{1, 1},  {1, 7},   {9, 1},    {2, 2},    {3, 5},
                             {17, 9}, {64, 40}, {131, 33}, {1100, 3}, {230, 170}};
const char* const kSelections[] = {"no region", "empty", "everything", "random", "random", "outside", "ellipse"};
constexpr int kRounds = 2;
constexpr std::size_t kBeyond = std::size(kSizes), kEdges = kBeyond + 1; // columns

Region selection(std::string_view kind, int width, int height, Dice& dice)
{
    if (kind == "no region") return {};
    if (kind == "empty") return Region::rectangle(0, 0, 0, 0);
    if (kind == "ellipse") return Region::ellipse(1, 1, width, height);
    if (kind == "outside") return Region::rectangle(-5, -4, width + 3, height + 6);
    return kind == "random" ? dice.region(width, height) : Region::rectangle(0, 0, width, height);
}

Argument numeric(ArgumentType type, double v)
{
    if (type == ArgumentType::Integer) return static_cast<int>(v);
    return v;
}

/// The ends of a range and values near the usual one are chosen more often.
Arguments drawArguments(const Operation& op, Dice& dice)
{
    Arguments arguments;
    for (const Parameter& p : op.parameters) {
        if (p.type == ArgumentType::Boolean) {
            arguments.push_back(dice.oneIn(2));
        } else if (p.type == ArgumentType::Picture) {
            arguments.push_back(dice.smallBits(12));
        } else {
            const auto choices = choicesOf(p);
            const int kind = dice.within(0, 7);
            const double reach = (p.most - p.least) / (kind < 5 ? 8 : 1);
            const double low = std::max(p.least, p.typical - reach), high = std::min(p.most, p.typical + reach);
            if (p.type == ArgumentType::Text)
                arguments.push_back(choices[dice.next() % choices.size()]);
            else if (kind < 2)
                arguments.push_back(numeric(p.type, kind == 0 ? p.least : p.most));
            else if (p.type == ArgumentType::Integer)
                arguments.push_back(dice.within(static_cast<int>(low), static_cast<int>(high)));
            else
                arguments.push_back(dice.between(low, high));
        }
    }
    return arguments;
}

/// Each number in turn beyond the ends of its range, the others random.
std::vector<Arguments> beyondRanges(const Operation& op, Dice& dice)
{
    std::vector<Arguments> all;
    for (std::size_t i = 0; i < op.parameters.size(); ++i) {
        const Parameter& p = op.parameters[i];
        if (p.type != ArgumentType::Integer && p.type != ArgumentType::Number) continue;
        const double span = p.most - p.least + 1;
        for (const double v : {p.least - 1, p.most + 1, p.least - 10 * span, p.most + 10 * span}) {
            all.push_back(drawArguments(op, dice));
            all.back()[i] = numeric(p.type, std::clamp(v, double(INT_MIN), double(INT_MAX)));
        }
    }
    return all;
}

struct Edge {
    std::string_view operation;
    Arguments arguments;
};

/// Pictures large enough for approximated lanes to be recomputed, and too wide for them.
constexpr int kLargeWidth = 451, kLargeHeight = 333;
const Edge kLarge[] = {
    {"TWIRL", {100, 180, true}},
    {"TWIRL", {-37, 11, false}},
    {"TWIRL", {1000000, 0, true}},
    {"BEND", {-70, true}},
    {"BEND", {500000000, false}},
    {"ROTATE", {180, true}},
    {"ROTATE", {-13, false}},
    {"RotateSmooth", {77}},
    {"FOLD", {100, -100, true}},
    {"GLASS", {std::string("slanting"), 1}},
    {"Light", {0.4, 0.6, 0.5, 500, 0}},
    {"Light", {0.4, 0.6, 0.5, 300, -100}}, // below 0 at the rim
    {"GradientLinear", {10, 20, 300, 250, 0x4060A0, -1, 37, 30}},
    {"GradientCircular", {100, 90, 180, 120, -1, 0xFFFFFF, 99, 9}},
    {"NOISE", {127, false}},
    {"NOISE", {128, true}},
    {"DIFFUSE", {40, 50}},
    {"ReplaceL", {0x507090, 0xA04020, 100, 300}}, // blends everywhere
    {"ReplaceHS", {0x507090, 0xA04020, 600, 100, 300}},
    {"SATURATION", {1000}},
    {"SATURATION", {1001}},
    {"SATURATION", {-1001}},
};

Arguments mask(std::string text, double divisor, int add, bool clip)
{
    return {std::move(text), divisor, add, add, add, clip};
}

/// Levels at which divisors change their sign, and far beyond the dialogs' ranges.
std::vector<Edge> extremes()
{
    std::vector<Edge> rows;
    for (const int level :
         {INT_MIN, -100000, -6, -2, -1, 0, 1, 101, 102, 104, 105, 106, 107, 108, 109, 5000, INT_MAX}) {
        for (const std::string_view name : {"SHARPEN", "SOFTEN", "EDGEENHANCE", "Blurs", "EMBOSS", "ENGRAVE",
                                            "RankFilterN4", "RankFilterND", "PIXELIZE", "StuckiBW", "SATURATION"})
            rows.push_back({name, {level}});
        rows.push_back({"CONTOUR", {level, 0x123456}});
        rows.push_back({"SKETCH", {level, false, 0x123456}});
        rows.push_back({"DIFFUSE", {level, 3}});
        rows.push_back({"DIFFUSE", {127, level}});
        for (const int other : {-100, 0, 100}) {
            rows.push_back({"Halftone", {level, 50, other}});
            rows.push_back({"Halftone", {3, level, other}});
            rows.push_back({"Halftone", {3, other, level}});
        }
    }
    for (int i = 0; i < 24; ++i) rows.push_back({"Blurs", {2 + i % 4}}); // some exceed the margin
    for (int weight = 0; weight <= 50; ++weight)
        for (const std::string_view name : {"EMBOSS", "ENGRAVE"}) rows.push_back({name, {weight}});
    const std::string wide = "1 2 3 4 5 6 7/0 0 0 0 0 0 0/1 1 1 1 1 1 1/0 0 9 0 0 0 0/1 1 1 1 1 1 1/0 0 0 0 0 0 0/"
                             "7 6 5 4 3 2 1"; // exceeds the margin
    for (const bool clip : {false, true}) {
        for (const double divisor : {-3.0, 0.4, 0.0, 0.5, 1e12, 123456789.0})
            rows.push_back({"MaskFilter", mask("-1 -1/-1 8", divisor, INT_MIN + 1, clip)});
        rows.push_back({"MaskFilter", mask(wide, 9, 0, clip)});
        rows.push_back({"MaskFilter", mask("2000000000 2/3 -2000000000", 70000, 5, clip)});
        rows.push_back({"MaskFilter", mask("32767 0 0/0 0 0/0 0 -32767", 70000, 5, clip)});
        rows.push_back({"MaskFilter", mask("5", 2, 5, clip)});
        rows.push_back({"MaskFilter", mask("1 2 3 4/5 6 7 8/-9 -8 -7 -6/0 0 0 1", 7, 5, clip)});
    }
    for (const int source : {-1, 0, 2, 3}) // only a pixel read from a nonexistent channel fails
        for (int place = 0; place < 3; ++place) {
            Arguments arguments{0, 1, 2, false, true, false, 0, 0, 0};
            arguments[static_cast<std::size_t>(place)] = source;
            rows.push_back({"SwapRGB", arguments});
        }
    return rows;
}

std::string written(const Arguments& arguments)
{
    std::string text;
    for (const Argument& a : arguments) {
        text += text.empty() ? "(" : ",";
        if (const auto* v = std::get_if<bool>(&a)) text += *v ? "true" : "false";
        if (const auto* v = std::get_if<int>(&a)) text += std::to_string(*v);
        if (const auto* v = std::get_if<double>(&a)) text += std::to_string(*v);
        if (const auto* v = std::get_if<std::string>(&a)) text += *v;
        if (const auto* v = std::get_if<Bits>(&a))
            text += "picture " + std::to_string(v->width()) + "x" + std::to_string(v->height());
    }
    return text.empty() ? "()" : text + ")";
}

/// The palettes for PaletteApply: few colours, or many that are scattered, crowded with duplicates, or in a few cells
/// of its search.
/// of its search.
void drawPalette(Dice& dice)
{
    auto& palette = PaletteColors();
    palette = {{0, 0, 0}, {255, 255, 255}, {200, 30, 40}, {20, 180, 90}, {120, 120, 128}, {250, 240, 20}};
    if (dice.oneIn(2)) return;
    palette.clear();
    const int spread = dice.oneIn(3) ? 256 : dice.oneIn(2) ? 40 : 6;
    for (int i = 0; i < 256; ++i) {
        const int red = dice.within(0, spread - 1), green = 60 + dice.within(0, std::min(spread, 196) - 1);
        palette.push_back({red, green, dice.within(0, spread - 1)});
    }
}

void eachTrial(const std::string& name, const std::function<void(const Trial&)>& visit)
{
    const Operation& op = *findOperation(name);
    const auto tell = [&](std::size_t column, const std::string& kind, const Bits& bits, const Region& region,
                          const Arguments& arguments) {
        visit({std::to_string(bits.width()) + "x" + std::to_string(bits.height()) + ", " + kind + ", " + name +
                   written(arguments),
               column,
               [&] {
                   cBitFilter filter;
                   filter.clock = [] { return 0u; };
                   filter.setBits(bits);
                   filter.setBitsRegion(region);
                   op.call(filter, arguments);
                   return filter.bits();
               },
               [&] { return definedResult(name, bits, region, arguments); }});
    };

    for (std::size_t column = 0; column < std::size(kSizes); ++column) {
        const auto [width, height] = kSizes[column];
        Dice dice(name + std::to_string(column));
        for (int round = 0; round < kRounds; ++round)
            for (const char* kind : kSelections) {
                const Bits bits = dice.bits(width, height);
                const Region region = selection(kind, width, height, dice);
                drawPalette(dice);
                tell(column, kind, bits, region, drawArguments(op, dice));
            }
    }
    Dice dice(name);
    for (const Arguments& arguments : beyondRanges(op, dice)) {
        const Bits bits = dice.bits(37, 23);
        tell(kBeyond, "random", bits, dice.region(37, 23), arguments);
    }
    static const std::vector<Edge> kExtremes = extremes();
    for (const Edge& edge : kExtremes)
        if (edge.operation == name)
            for (const Region& region :
                 {Region::rectangle(0, 0, 37, 23), Region::rectangle(8, 8, 20, 23), dice.region(37, 23), Region()}) {
                const Bits bits = dice.bits(37, 23);
                tell(kEdges, "extreme", bits, region, edge.arguments);
            }
    const Region large = Region::rectangle(0, 0, kLargeWidth, kLargeHeight);
    const Region hole = Region::ellipse(5, 5, 80, 60);
    for (const Edge& edge : kLarge)
        if (edge.operation == name) {
            const Bits bits = dice.bits(kLargeWidth, kLargeHeight);
            tell(kEdges, "everything", bits, large, edge.arguments);
            tell(kEdges, "all but an ellipse", bits, large.combined(hole, Combine::Diff), edge.arguments);
        }
}

} // namespace

TrialFamily operationTrials()
{
    std::vector<std::string> names;
    for (const Operation& op : operations()) names.emplace_back(op.name);
    return {"engine/operations.sums", names, eachTrial};
}

} // namespace velara
