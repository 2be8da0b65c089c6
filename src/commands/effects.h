// The thirty-three effects of the textures box, as data shared by its toolbar, its caption and the batch program.
#pragma once
#include "engine/operations.h"
#include <QString>
#include <span>
#include <string_view>

namespace velara {

struct Effect {
    std::string_view name;
    Bits (*call)(cBitFilter& filter, int value, Colour colour);
    int sampleValue = 50; // the most telling one on a picture of thumbnail size
};

/// Effect 1 is the first one.
std::span<const Effect> effects();
constexpr int kEffects = 33, kEmbossEffect = 8;
/// The strength of an effect.
constexpr int kLeastAmount = 1, kMostAmount = 100, kUsualAmount = 50;

/// Applies one effect to the filter's picture within its region. Index 1 to 33; others raise std::invalid_argument.
/// Some divide by Value. colour is used by the one effect that draws with it.
void ApplyTexture(cBitFilter& filter, int Index, int Value, Colour colour);
/// What velara-batch would take for it.
QString effectText(int Index, int Value, Colour colour);
/// The same with a picture as texture. std::invalid_argument for one below 2 by 2.
void applyTexturePicture(cBitFilter& filter, const Bits& texture);

/// Both by name: "ApplyTexture", with Index, Value and, instead of the effect, optionally a picture.
const Operation& applyTextureOperation();

/// The texture of effect 1: a weave, light and dark around 128, seamless.
const Bits& storedTexture();

} // namespace velara
