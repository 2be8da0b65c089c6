// The expected contents of each filter dialog, and the settings that trials and the gallery run it with: its initial
// ones, and distinctive ones. The rows are beside the definitions of the operations, one list per family.
#pragma once
#include "commands/filterDialogs.h"
#include "engine/operations.h"

namespace velara {

inline constexpr Colour kBlack = colourOf(0, 0, 0), kWhite = colourOf(255, 255, 255);
inline constexpr std::array kBlackWhite{kBlack, kWhite};
// Colours of the sample picture.
inline constexpr Colour kRoof = colourOf(150, 58, 48), kMeadow = colourOf(60, 116, 42), kSky = colourOf(90, 128, 190);

/// Controls besides sliders and colours.
struct MoreControls {
    bool option = false;
    float centerX = 0.5f, centerY = 0.5f;
    const char* style = "slanting";
    int mode = 0;
    std::array<int, 3> channel{2, 1, 0};
    std::array<bool, 3> invert{}, kill{};
};
inline constexpr MoreControls kOption{.option = true};

/// One dialog. The arguments are written out, so that mixed-up controls are detected.
struct DialogTrial {
    int number;        // of the dialog
    std::string shows; // title, then sliders with range and default, option, wells and the rest
    std::string_view operation;
    Arguments asItOpens, telling; // that the operation must receive
    // The distinctive ones result from these settings:
    std::array<int, 3> value{}; // as passed to the filter: a centred slider's relative to its middle
    std::array<Colour, 2> colour = kBlackWhite;
    MoreControls more = {};

    /// What the dialog passes to its filter. Discs are relative to a preview of 300 pixels, the wells are white and
    /// black initially.
    FilterArgs openingArgs() const, tellingArgs() const;
};

using DialogTrials = std::vector<DialogTrial>;
DialogTrials colourDialogs();
DialogTrials distanceDialogs();
DialogTrials neighbourDialogs();
DialogTrials deformDialogs();
DialogTrials styliseDialogs();
DialogTrials generateDialogs();
/// All of them, by number.
const DialogTrials& dialogTrials();
/// std::invalid_argument when a row of filterRows() has none.
const DialogTrial& dialogTrial(const FilterRow& row);

} // namespace velara
