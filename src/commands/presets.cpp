#include "commands/presets.h"

namespace velara {

using namespace std::string_literals;

std::span<const Preset> presets()
{
    // clang-format off
    static const std::vector<Preset> all = { // word, operation, arguments
        {"INVERT",            "Invert",        {}},
        {"GRAYSCALE",         "GreyScale",     {}},
        {"RELIEF",            "RELIEF",        {}},
        {"ERODE",             "ERODE",         {}},
        {"DILATE",            "DILATE",        {}},
        {"PAINTING",          "PAINTING",      {}},
        {"EDGEENHANCE",       "EDGEENHANCE",   {10}},
        {"LUMPLUS",           "BRIGHTNESS",    {20}},
        {"LUMMINUS",          "BRIGHTNESS",    {80}},
        {"BBRIGHTNESS",       "BRIGHTNESS",    {40}},
        {"LIGHTSHARPEN",      "SHARPEN",       {10}},
        {"HEAVYSHARPEN",      "SHARPEN",       {40}},
        {"LIGHTEMBOSS",       "EMBOSS",        {10}},
        {"HEAVYEMBOSS",       "EMBOSS",        {30}},
        {"LIGHTCONTOUR",      "CONTOUR",       {200, 0x0F36E2D7}},
        {"HEAVYCONTOUR",      "CONTOUR",       {255, 0x0F36E2D7}},
        {"LIGHTDIFFUSE",      "DIFFUSE",       {5, 10}},
        {"HEAVYDIFFUSE",      "DIFFUSE",       {10, 30}},
        {"LIGHTENGRAVE",      "ENGRAVE",       {10}},
        {"HEAVYENGRAVE",      "ENGRAVE",       {30}},
        {"LIGHTSOFTEN",       "SOFTEN",        {30}},
        {"HEAVYSOFTEN",       "SOFTEN",        {80}},
        {"LIGHTBLUR",         "Blurs",         {1}},
        {"HEAVYBLUR",         "Blurs",         {2}},
        {"LIGHTNOISE",        "NOISE",         {20, true}},
        {"HEAVYNOISE",        "NOISE",         {40, true}},
        {"LIGHTSATURATION",   "SATURATION",    {10}},
        {"HEAVYSATURATION",   "SATURATION",    {20}},
        {"WWAVES",            "WAVES",         {30, 40, 0}},
        {"AADDSCANLINES",     "Scanlines",     {30}},
        {"FISHEYE",           "LENS",          {50.0, 50.0, 60.0, 60}},
        {"THERMIQUE",         "THERMIQUE",     {}},
        {"XBLACK",            "XBLACK",        {}},
        {"PHOTOCOP",          "PHOTOCOP",      {}},
        {"OLDPHOTO",          "OLDPHOTO",      {}},
        {"SEPIATONE",         "COLORIZE",      {0.5, 0.25, 1.0}},
        {"SLANTING",          "GLASS",         {"slanting"s, 0}},
        {"HORIZONTAL",        "GLASS",         {"horizontal"s, 0}},
        {"VERTICAL",          "GLASS",         {"vertical"s, 0}},
        {"SQUARY",            "GLASS",         {"squary"s, 0}},
        {"CURTAINHORIZONTAL", "GLASS",         {"curtain"s, 1}},
        {"CURTAINVERTICAL",   "GLASS",         {"curtain"s, 2}},
        {"CURTAINCLASSY",     "GLASS",         {"curtain"s, 3}},
        {"CURTAINWHITY",      "GLASS",         {"curtain"s, 4}},
        {"HARDRED",           "SpecialColors", {true, false, false}},
        {"HARDGREEN",         "SpecialColors", {false, true, false}},
        {"HARDBLUE",          "SpecialColors", {false, false, true}},
        {"HARDYELLOW",        "SpecialColors", {true, true, false}},
        {"CYAN",              "SpecialColors", {false, true, true}},
        {"MAGENTA",           "SpecialColors", {true, false, true}},
        {"SOFTBLUE",          "ClassyColors",  {0}},
        {"SOFTGREEN",         "ClassyColors",  {1}},
        {"PURPLE",            "ClassyColors",  {2}},
        {"SOFTRED",           "ClassyColors",  {3}},
        {"SPOTTED",           "ClassyColors",  {6}},
        {"RETRO",             "ClassyColors",  {7}},
        {"SOFTYELLOW",        "ClassyColors",  {8}},
        {"ORANGE",            "ClassyColors",  {10}},
        {"WETPAPER",          "ClassyColors",  {11}},
        {"RGB2BRG",           "SwapBanks",     {1}},
        {"RGB2GBR",           "SwapBanks",     {2}},
        {"RGB2RBG",           "SwapBanks",     {3}},
        {"RGB2BGR",           "SwapBanks",     {4}},
        {"RGB2GRB",           "SwapBanks",     {5}},
        {"FLIPH",             "Flip",          {true, false}},
        {"FLIPV",             "Flip",          {false, true}},
    };
    // clang-format on
    return all;
}

} // namespace velara
