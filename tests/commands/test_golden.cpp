// Every preset and every filter dialog on the sample picture against checksums that the scalar twins made.
//
// After a new preset or dialog, or a result that has changed on purpose, make the rows anew from the twins:
//   VELARA_PRINT_GOLDEN=1 build/release/bin/test_filters --gtest_filter='Golden.*' | grep '{"' > golden.txt
//   mv golden.txt tests/filters/golden.inc
#include "tools/dialogTrials.h"
#include "tools/reference/twins.h"
#include "tools/samplePicture.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

namespace velara {
namespace {

using namespace std::string_literals;

struct Golden {
    std::string_view name;
    std::uint64_t whole, ellipse; // everything selected, an ellipse selected
};

// clang-format off
constexpr Golden kGolden[] = {
#include "golden.inc"
};

/// Which operation a dialog stands for, with the arguments that it has to come to; written out, so that a dialog that
/// mixes its controls up is found.
struct DialogCall {
    std::string_view operation;
    Arguments asItOpens, telling;
};
constexpr int kRoof = 0x303A96, kMeadow = 0x2A743C, kSky = 0xBE805A, kWhite = 0xFFFFFF;
const DialogCall kDialogCalls[] = { // by the number of the dialog
    {"COLORIZE",        {0.0, 0.5, 1.0},                       {144 / 40.0, 0.5, 1.0}},
    {"BRIGHTNESS",      {0},                                   {60}},
    {"CONTRAST",        {0},                                   {60}},
    {"SATURATION",      {0},                                   {100}},
    {"GammaCorrection", {0},                                   {-50}},
    {"DIFFUSE",         {2, 2},                                {30, 6}},
    {"Blurs",           {0},                                   {2}},
    {"Halftone",        {1, 50, 0},                            {4, 50, 40}},
    {"PIXELIZE",        {2},                                   {10}},
    {"EMBOSS",          {10},                                  {20}},
    {"ENGRAVE",         {10},                                  {45}},
    {"CONTOUR",         {255, 0},                              {200, 0xC8F0FF}},
    {"SKETCH",          {255, false, 0},                       {40, true, 0x782846}},
    {"Threshold",       {128},                                 {100}},
    {"ISOLATE",         {kWhite, 0, 100},                      {kMeadow, kWhite, 70}},
    {"Reduction",       {0},                                   {63}},
    {"REPLACE",         {kWhite, 0, 100},                      {kRoof, 0xDC3C28, 80}},
    {"ReplaceHS",       {kWhite, 0, 50, 50, 100},              {kMeadow, 0x1EA0F0, 20, 60, 120}},
    {"ReplaceL",        {kWhite, 0, 50, 100},                  {kSky, 0x781478, 30, 150}},
    {"SHARPEN",         {0},                                   {60}},
    {"SOFTEN",          {0},                                   {100}},
    {"Shift",           {kWhite, 0, 100},                      {kSky, 90, 150}},
    {"RotateH",         {0, 100},                              {33, 100}},
    {"RotateL",         {0, 25},                               {40, 60}},
    {"StretchH",        {0, 100, 0},                           {20, 80, 40}},
    {"ShiftRGB",        {0, 0, 0},                             {60, -20, -80}},
    {"SwapRGB",         {2, 1, 0, false, false, false, 0, 0, 0}, {1, 0, 2, false, true, false, 0, 0, 255}},
    {"LENS",            {0.5, 0.5, 50 / 300.0, 50},            {double(0.3f), double(0.62f), 60 / 300.0, 80}},
    {"WAVES",           {25, 25, 0},                           {3, 60, 90}},
    {"BEND",            {0, false},                            {120, true}},
    {"FOLD",            {0, 0, false},                         {60, -40, true}},
    {"ROTATE",          {0, false},                            {30, true}},
    {"STRETCH",         {0, 0, false},                         {60, 30, true}},
    {"TILE",            {2},                                   {4}},
    {"TWIRL",           {0, 0, false},                         {40, 20, true}},
    {"Grid",            {25, 25, false, 0, 128},               {60, 40, true, 0x00FFFF, 200}},
    {"Light",           {0.5, 0.5, 50 / 300.0, 250, 0},        {0.75, double(0.22f), 80 / 300.0, 400, 20}},
    {"NOISE",           {25, false},                           {60, true}},
    {"Scanlines",       {128},                                 {220}},
    {"GLASS",           {"slanting"s, 0},                      {"squary"s, 2}},
    {"GLASS",           {"curtain"s, 0},                       {"curtain"s, 3}},
};
// clang-format on

/// One thing to be tried: how the program does it, and the operation with the arguments that its twin takes.
struct Case {
    std::string name;
    std::string_view operation;
    Arguments arguments;
    std::function<void(cBitFilter&)> run;
};

std::vector<Case> cases()
{
    std::vector<Case> all;
    for (const Preset& preset : presets())
        all.push_back({std::string(preset.word), preset.operation, preset.arguments, [&preset](cBitFilter& filter) {
                           findOperation(preset.operation)->call(filter, preset.arguments);
                       }});
    for (const FilterRow& row : filterRows()) {
        const DialogCall& call = kDialogCalls[row.number];
        const auto add = [&](const char* when, Trial trial, const Arguments& arguments) {
            all.push_back({row.title + std::string(when), call.operation, arguments, [&row, trial](cBitFilter& filter) {
                               filter.setBits(row.call(filter, trialArgs(row, trial)));
                           }});
        };
        add(", as it opens", Trial::AsItOpens, call.asItOpens);
        add(", telling", Trial::Telling, call.telling);
    }
    return all;
}

/// FNV-1a in 64 bits over the four bytes of every pixel, row by row, without the margin.
std::uint64_t checksum(const Bits& bits)
{
    std::uint64_t sum = 0xCBF29CE484222325u;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x)
            for (const std::uint8_t byte : bits.at(x, y).c) sum = (sum ^ byte) * 0x100000001B3u;
    return sum;
}

Region everything(const Bits& bits) { return Region::rectangle(0, 0, bits.width(), bits.height()); }
Region ellipse() { return Region::ellipse(60, 30, 430, 310); }

std::uint64_t fast(const Case& what, const Bits& bits, const Region& region)
{
    cBitFilter filter;
    filter.setBits(bits);
    filter.setBitsRegion(region);
    what.run(filter);
    return checksum(filter.bits());
}

void print(const Bits& bits)
{
    const auto twin = [&](const Case& what, const Region& region) {
        return static_cast<unsigned long long>(
            checksum(twins().find(what.operation)->second(bits, region, what.arguments)));
    };
    for (const Case& what : cases())
        std::printf("    {%-42s 0x%016llX, 0x%016llX},\n", ('"' + what.name + "\",").c_str(),
                    twin(what, everything(bits)), twin(what, ellipse()));
}

TEST(Golden, EveryPresetAndDialogGivesItsResult)
{
    ASSERT_EQ(std::size(kDialogCalls), filterRows().size());
    const Bits bits = samplePicture();
    if (std::getenv("VELARA_PRINT_GOLDEN")) return print(bits);
    std::set<std::string_view> used;
    for (const Case& what : cases()) {
        const auto* row = std::ranges::find(kGolden, what.name, &Golden::name);
        if (row == std::end(kGolden)) {
            ADD_FAILURE() << what.name << " has no golden row";
            continue;
        }
        used.insert(row->name);
        EXPECT_EQ(row->whole, fast(what, bits, everything(bits))) << what.name << ", everything selected";
        EXPECT_EQ(row->ellipse, fast(what, bits, ellipse())) << what.name << ", an ellipse selected";
    }
    EXPECT_EQ(std::size(kGolden), used.size()) << "golden rows of nothing, or one twice";
}

} // namespace
} // namespace velara
