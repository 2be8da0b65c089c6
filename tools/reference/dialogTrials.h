// What each filter dialog shows, and what trials and the gallery run it with: as it opens, and once with telling
// values. The rows stand beside the definitions of the operations, one list a family.
#pragma once
#include "commands/filterDialogs.h"
#include "engine/operations.h"

namespace velara {

inline constexpr Colour kBlack = colourOf(0, 0, 0), kWhite = colourOf(255, 255, 255);
inline constexpr std::array kBlackWhite{kBlack, kWhite};
// Colours that the sample picture has.
inline constexpr Colour kRoof = colourOf(150, 58, 48), kMeadow = colourOf(60, 116, 42), kSky = colourOf(90, 128, 190);

/// What a dialog has beside sliders and colours.
struct MoreControls {
    bool option = false;
    float centerX = 0.5f, centerY = 0.5f;
    const char* style = "slanting";
    int mode = 0;
    std::array<int, 3> channel{2, 1, 0};
    std::array<bool, 3> invert{}, kill{};
};
inline constexpr MoreControls kOption{.option = true};

/// One dialog. The arguments are written out, so that a dialog that mixes its controls up is found.
struct DialogTrial {
    int number;        // of the dialog
    std::string shows; // title, then sliders with range and default, option, wells and the rest
    std::string_view operation;
    Arguments asItOpens, telling; // that the operation is to get
    // The telling ones come of these:
    std::array<int, 3> value{}; // as the filter gets them: a centred slider's from its middle
    std::array<Colour, 2> colour = kBlackWhite;
    MoreControls more = {};

    /// What the dialog hands to its filter. Discs are measured against a preview of 300 pixels, the wells are white and
    /// black when the dialog opens.
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
/// Throws std::invalid_argument where a row of filterRows() has none.
const DialogTrial& dialogTrial(const FilterRow& row);

} // namespace velara
