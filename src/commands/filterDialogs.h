// The filters that have a dialog, as data: the dialog's contents for each, and the operation it calls. Adding one is a
// row of filterDialogs.cpp.
#pragma once
#include "commands/vocabulary.h"
#include "engine/operations.h"
#include <QString>
#include <array>
#include <span>
#include <string>
#include <string_view>

namespace velara {

/// A slider on integers: value * step is displayed, in the format.
struct FilterSlider {
    const char* caption = nullptr;   // null: there is no such slider
    std::string_view parameter = {}; // of the operation, which limits the slider; empty: in units of its own
    double least = 0, most = 0, byDefault = 0;
    double step = 1;
    int decimals = 0;
    bool centred = false; // the filter gets the distance from the middle

    constexpr bool used() const { return caption != nullptr; }
    int minimum() const;
    int maximum() const;
    int initial() const;
    /// Subtracted from the slider's position: round(most / step * 0.5) when centred, else 0.
    int centre() const;
    QString text(int position) const;
};

/// What the dialog offers besides sliders.
enum class FilterExtra : unsigned {
    None = 0,
    SourceWell = 1, // colour 0
    TargetWell = 2, // colour 1
    PickColour = 4, // a press on the preview loads the active well
    PickCentre = 8,
    Banks = 16,
    Glass = 32,
    Curtain = 64,
};
constexpr FilterExtra operator|(FilterExtra a, FilterExtra b)
{
    return static_cast<FilterExtra>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool has(FilterExtra all, FilterExtra one)
{
    return (static_cast<unsigned>(all) & static_cast<unsigned>(one)) != 0;
}

/// What the dialog passes to a filter.
struct FilterArgs {
    std::array<int, 3> value{};
    std::array<Colour, 2> colour{};
    bool option = false;
    float centerX = 0.5f, centerY = 0.5f; // fractions of the picture
    int longerSide = 1;                   // of the preview; sizes of discs are fractions of it
    std::string style = "slanting";
    int mode = 0;
    std::array<int, 3> channel{2, 1, 0}; // of red, green and blue: the source, 0 blue, 1 green, 2 red
    std::array<bool, 3> invert{}, kill{};
};

struct FilterRow {
    int number;
    const char* title;
    std::string_view operation;
    std::array<FilterSlider, 3> sliders;
    const char* option; // caption, null without one
    FilterExtra extras;
    Arguments (*arguments)(const FilterArgs& args); // of the operation
    std::array<std::string_view, 2> words;          // the words that open it; empty ones open nothing
    MenuPlace place = {};                           // of the last word

    constexpr std::string_view lastWord() const { return words[1].empty() ? words[0] : words[1]; }
    FilterArgs defaults() const;
    /// Runs the operation on the filter, whose picture the result becomes.
    Bits call(cBitFilter& filter, const FilterArgs& args) const;
};

/// By number, without gaps.
std::span<const FilterRow> filterRows();
/// The row that a command word opens; null when it opens none.
const FilterRow* findFilterRow(std::string_view word);

/// The kinds of glass, by the index of their button, and how many strengths each has.
struct GlassStyle {
    const char* caption;
    const char* style;
    int modes;
};
inline constexpr GlassStyle kGlassStyles[] = {
    {"Squary", "squary", 3}, {"Horizontal", "horizontal", 3}, {"Vertical", "vertical", 3}, {"Slanting", "slanting", 2}};
inline constexpr const char* kGlassModes[] = {"Light", "Tight", "Large"};
inline constexpr const char* kCurtains[] = {"Horizontal", "Vertical", "Classy", "Whity"}; // the index is the mode

} // namespace velara
