// The thirty-three effects of the textures box, as data: its toolbar, its caption and the batch program share them.
#pragma once
#include "engine/operations.h"
#include <span>
#include <string_view>

namespace velara {

struct Effect {
    std::string_view name;
    Bits (*call)(cBitFilter& filter, int value, Colour colour);
    int sampleValue = 50; // that shows best what it does on a picture of thumbnail size
};

/// Effect 1 is the first one.
std::span<const Effect> effects();
constexpr int kEffects = 33, kEmbossEffect = 8;
/// The amount of an effect.
constexpr int kLeastAmount = 1, kMostAmount = 100, kUsualAmount = 50;

/// One effect on the filter's picture within its region. Index 1 to 33; other ones raise std::invalid_argument. Some
/// divide by the value. Colour is that of the one effect that draws with it.
void ApplyTexture(cBitFilter& filter, int Index, int Value, Colour colour);
/// The picture as a texture, likewise. std::invalid_argument for one below 2 by 2.
void applyTexturePicture(cBitFilter& filter, const Bits& texture);

/// Both by name: "ApplyTexture", with Index, Value and, in place of the effect, a picture.
const Operation& applyTextureOperation();

/// What effect 1 lays over a picture: a weave, light and dark around 128, seamless.
const Bits& storedTexture();

} // namespace velara
