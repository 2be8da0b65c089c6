// Trials of the command words: every preset, and every filter dialog as it opens and with telling values, on the sample
// picture.
#include "tools/dialogTrials.h"
#include "tools/reference/definitions.h"
#include "tools/reference/trials.h"
#include "tools/samplePicture.h"

namespace velara {
namespace {

using namespace std::string_literals;

/// Which operation a dialog stands for, with the arguments that it has to come to; written out, so that a dialog that
/// mixes its controls up is found.
struct DialogCall {
    std::string_view operation;
    Arguments asItOpens, telling;
};

constexpr int kRoof = 0x303A96, kMeadow = 0x2A743C, kSky = 0xBE805A, kWhite = 0xFFFFFF;
// clang-format off
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

struct Command {
    std::string name;
    std::string_view operation;
    Arguments arguments;
    std::function<Bits(cBitFilter&)> run;
};

std::vector<Command> commands()
{
    std::vector<Command> all;
    for (const Preset& preset : presets())
        all.push_back({std::string(preset.word), preset.operation, preset.arguments, [&preset](cBitFilter& filter) {
                           findOperation(preset.operation)->call(filter, preset.arguments);
                           return filter.bits();
                       }});
    for (const FilterRow& row : filterRows()) {
        const DialogCall& call = std::span(kDialogCalls)[static_cast<std::size_t>(row.number)];
        const auto add = [&](const char* when, DialogTrial trial, const Arguments& arguments) {
            all.push_back({row.title + std::string(when), call.operation, arguments,
                           [&row, trial](cBitFilter& filter) { return row.call(filter, trialArgs(row, trial)); }});
        };
        add(", as it opens", DialogTrial::AsItOpens, call.asItOpens);
        add(", telling", DialogTrial::Telling, call.telling);
    }
    return all;
}

void eachTrial(const std::string& name, const std::function<void(const Trial&)>& visit)
{
    static const Bits bits = samplePicture();
    static const std::vector<Command> all = commands();
    const Command& command = *std::find_if(all.begin(), all.end(), [&](const Command& c) { return c.name == name; });
    const Region regions[] = {Region::rectangle(0, 0, bits.width(), bits.height()), Region::ellipse(60, 30, 430, 310)};
    for (std::size_t i = 0; i < std::size(regions); ++i)
        visit({i ? "an ellipse selected" : "everything selected", i,
               [&] {
                   cBitFilter filter;
                   filter.clock = [] { return 0u; };
                   filter.setBits(bits);
                   filter.setBitsRegion(regions[i]);
                   return command.run(filter);
               },
               [&] { return definitions().at(command.operation)(bits, regions[i], command.arguments); }});
}

} // namespace

TrialFamily commandTrials()
{
    std::vector<std::string> names;
    for (const Command& command : commands()) names.push_back(command.name);
    return {"commands/commands.sums", names, eachTrial};
}

} // namespace velara
