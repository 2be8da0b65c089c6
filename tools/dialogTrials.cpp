#include "tools/dialogTrials.h"
#include <algorithm>
#include <stdexcept>

namespace velara {

namespace {

using namespace std::string_literals;

constexpr int kPreviewSide = 300;
constexpr Colour kBlack = colourOf(0, 0, 0), kWhite = colourOf(255, 255, 255);
constexpr std::array kBlackWhite{kBlack, kWhite};
// Colours that the sample picture has.
constexpr Colour kRoof = colourOf(150, 58, 48), kMeadow = colourOf(60, 116, 42), kSky = colourOf(90, 128, 190);

/// What a dialog has beside sliders and colours.
struct More {
    bool option = false;
    float centerX = 0.5f, centerY = 0.5f;
    const char* style = "slanting";
    int mode = 0;
    std::array<int, 3> channel{2, 1, 0};
    std::array<bool, 3> invert{}, kill{};
};

struct TrialRow {
    int number; // of the dialog
    DialogCall call;
    // What comes of these:
    std::array<int, 3> value{}; // as the filter gets them: a centred slider's from its middle
    std::array<Colour, 2> colour = kBlackWhite;
    More more = {};
};

constexpr More kOption{.option = true};

// clang-format off
const TrialRow kTrials[] = { // number, {operation, arguments as it opens, telling ones}, sliders, colours, more
    { 0, {"COLORIZE",        {0.0, 0.5, 1.0},                       {144 / 40.0, 0.5, 1.0}},           {60, 50, 100}},
    { 1, {"BRIGHTNESS",      {0},                                   {60}},                             {60}},
    { 2, {"CONTRAST",        {0},                                   {60}},                             {60}},
    { 3, {"SATURATION",      {0},                                   {100}},                            {100}},
    { 4, {"GammaCorrection", {0},                                   {-50}},                            {-50}},
    { 5, {"DIFFUSE",         {2, 2},                                {30, 6}},                          {30, 6}},
    { 6, {"Blurs",           {0},                                   {2}},                              {2}},
    { 7, {"Halftone",        {1, 50, 0},                            {4, 50, 40}},                      {4, 50, 40}},
    { 8, {"PIXELIZE",        {2},                                   {10}},                             {10}},
    { 9, {"EMBOSS",          {10},                                  {20}},                             {20}},
    {10, {"ENGRAVE",         {10},                                  {45}},                             {45}},
    {11, {"CONTOUR",         {255, 0},                              {200, 0xC8F0FF}},                  {200}, {kBlack, colourOf(255, 240, 200)}},
    {12, {"SKETCH",          {255, false, 0},                       {40, true, 0x782846}},             {40}, {kBlack, colourOf(70, 40, 120)}, kOption},
    {13, {"Threshold",       {128},                                 {100}},                            {100}},
    {14, {"ISOLATE",         {kWhite, 0, 100},                      {kMeadow, kWhite, 70}},            {70}, {kMeadow, kWhite}},
    {15, {"Reduction",       {0},                                   {63}},                             {63}},
    {16, {"REPLACE",         {kWhite, 0, 100},                      {kRoof, 0xDC3C28, 80}},            {80}, {kRoof, colourOf(40, 60, 220)}},
    {17, {"ReplaceHS",       {kWhite, 0, 50, 50, 100},              {kMeadow, 0x1EA0F0, 20, 60, 120}}, {20, 60, 120}, {kMeadow, colourOf(240, 160, 30)}},
    {18, {"ReplaceL",        {kWhite, 0, 50, 100},                  {kSky, 0x781478, 30, 150}},        {30, 150}, {kSky, colourOf(120, 20, 120)}},
    {19, {"SHARPEN",         {0},                                   {60}},                             {60}},
    {20, {"SOFTEN",          {0},                                   {100}},                            {100}},
    {21, {"Shift",           {kWhite, 0, 100},                      {kSky, 90, 150}},                  {90, 150}, {kSky, kWhite}},
    {22, {"RotateH",         {0, 100},                              {33, 100}},                        {33, 100}},
    {23, {"RotateL",         {0, 25},                               {40, 60}},                         {40, 60}},
    {24, {"StretchH",        {0, 100, 0},                           {20, 80, 40}},                     {20, 80, 40}},
    {25, {"ShiftRGB",        {0, 0, 0},                             {60, -20, -80}},                   {60, -20, -80}},
    {26, {"SwapRGB",         {2, 1, 0, false, false, false, 0, 0, 0}, {1, 0, 2, false, true, false, 0, 0, 255}}, {}, kBlackWhite, {.channel = {1, 0, 2}, .invert = {false, true, false}, .kill = {false, false, true}}},
    {27, {"LENS",            {0.5, 0.5, 50 / 300.0, 50},            {double(0.3f), double(0.62f), 60 / 300.0, 80}}, {60, 80}, kBlackWhite, {.centerX = 0.3f, .centerY = 0.62f}},
    {28, {"WAVES",           {25, 25, 0},                           {3, 60, 90}},                      {3, 60, 90}},
    {29, {"BEND",            {0, false},                            {120, true}},                      {120}, kBlackWhite, kOption},
    {30, {"FOLD",            {0, 0, false},                         {60, -40, true}},                  {60, -40}, kBlackWhite, kOption},
    {31, {"ROTATE",          {0, false},                            {30, true}},                       {30}, kBlackWhite, kOption},
    {32, {"STRETCH",         {0, 0, false},                         {60, 30, true}},                   {60, 30}, kBlackWhite, kOption},
    {33, {"TILE",            {2},                                   {4}},                              {4}},
    {34, {"TWIRL",           {0, 0, false},                         {40, 20, true}},                   {40, 20}, kBlackWhite, kOption},
    {35, {"Grid",            {25, 25, false, 0, 128},               {60, 40, true, 0x00FFFF, 200}},    {60, 40, 200}, {kBlack, colourOf(255, 255, 0)}, kOption},
    {36, {"Light",           {0.5, 0.5, 50 / 300.0, 250, 0},        {0.75, double(0.22f), 80 / 300.0, 400, 20}}, {80, 400, 20}, kBlackWhite, {.centerX = 0.75f, .centerY = 0.22f}},
    {37, {"NOISE",           {25, false},                           {60, true}},                       {60}, kBlackWhite, kOption},
    {38, {"Scanlines",       {128},                                 {220}},                            {220}},
    {39, {"GLASS",           {"slanting"s, 0},                      {"squary"s, 2}},                   {}, kBlackWhite, {.style = "squary", .mode = 2}},
    {40, {"GLASS",           {"curtain"s, 0},                       {"curtain"s, 3}},                  {}, kBlackWhite, {.mode = 3}},
};
// clang-format on

const TrialRow& trialOf(const FilterRow& row)
{
    const auto* found = std::ranges::find(kTrials, row.number, &TrialRow::number);
    if (found == std::end(kTrials)) throw std::invalid_argument("no trial of " + std::string(row.title));
    return *found;
}

} // namespace

FilterArgs trialArgs(const FilterRow& row, DialogTrial trial)
{
    FilterArgs args = row.defaults();
    args.colour = {kWhite, kBlack};
    args.longerSide = kPreviewSide;
    if (trial == DialogTrial::AsItOpens) return args;
    const TrialRow& t = trialOf(row);
    args.value = t.value;
    args.colour = t.colour;
    args.option = t.more.option;
    args.centerX = t.more.centerX, args.centerY = t.more.centerY;
    args.style = t.more.style;
    args.mode = t.more.mode;
    args.channel = t.more.channel;
    args.invert = t.more.invert;
    args.kill = t.more.kill;
    return args;
}

const DialogCall& dialogCall(const FilterRow& row) { return trialOf(row).call; }

} // namespace velara
