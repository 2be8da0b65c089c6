#include "commands/effects.h"
#include "commands/recipe/stepText.h"
#include "pixels/numbers.h"
#include <stdexcept>

namespace velara {

namespace {

// clang-format off
constexpr Effect kEffectRows[] = {
    {"Stored texture", [](cBitFilter& f, int,   Colour)   { return f.Texturize(storedTexture()); }},
    {"Contour",        [](cBitFilter& f, int v, Colour)   { return f.CONTOUR(v, 0xFFFFFF); }, 100},
    {"Contrast",       [](cBitFilter& f, int v, Colour)   { return f.CONTRAST(v); }},
    {"Diffuse",        [](cBitFilter& f, int v, Colour)   { return f.DIFFUSE(v, v); }, 4},
    {"Dilate",         [](cBitFilter& f, int,   Colour)   { return f.DILATE(); }},
    {"Dissolve",       [](cBitFilter& f, int,   Colour)   { return f.Dissolve(); }},
    {"Edge enhance",   [](cBitFilter& f, int v, Colour)   { return f.EDGEENHANCE(v); }, 8},
    {"Emboss",         [](cBitFilter& f, int v, Colour)   { return f.EMBOSS(v); }, 12},
    {"Engrave",        [](cBitFilter& f, int v, Colour)   { return f.ENGRAVE(v); }, 12},
    {"Equalize",       [](cBitFilter& f, int,   Colour)   { return f.Equalize(); }},
    {"Erode",          [](cBitFilter& f, int,   Colour)   { return f.ERODE(); }},
    {"Flip",           [](cBitFilter& f, int,   Colour)   { return f.Flip(true, false); }},
    {"Mirror",         [](cBitFilter& f, int,   Colour)   { return f.Flip(false, true); }},
    {"Fold",           [](cBitFilter& f, int v, Colour)   { return f.FOLD(v, v, true); }},
    {"Gamma",          [](cBitFilter& f, int v, Colour)   { return f.GammaCorrection(v); }, 60},
    {"Grey",           [](cBitFilter& f, int,   Colour)   { return f.GreyScale(); }},
    {"Halftone",       [](cBitFilter& f, int v, Colour)   { return f.Halftone(v, 1, 1); }, 2},
    {"Invert",         [](cBitFilter& f, int,   Colour)   { return f.Invert(); }},
    {"Noise",          [](cBitFilter& f, int v, Colour)   { return f.NOISE(v, true); }, 40},
    {"Old photo",      [](cBitFilter& f, int,   Colour)   { return f.OLDPHOTO(); }},
    {"Painting",       [](cBitFilter& f, int,   Colour)   { return f.PAINTING(); }},
    {"Photocopy",      [](cBitFilter& f, int,   Colour)   { return f.PHOTOCOP(); }},
    {"Pixelize",       [](cBitFilter& f, int v, Colour)   { return f.PIXELIZE(v); }, 4},
    {"Relief",         [](cBitFilter& f, int,   Colour)   { return f.RELIEF(); }},
    {"Rotate",         [](cBitFilter& f, int v, Colour)   { return f.ROTATE(roundEven(v * 3.6), true); }, 8},
    {"Scanlines",      [](cBitFilter& f, int v, Colour)   { return f.Scanlines(v); }, 90},
    {"Sharpen",        [](cBitFilter& f, int v, Colour)   { return f.SHARPEN(v); }, 60},
    {"Sketch",         [](cBitFilter& f, int v, Colour c) { return f.SKETCH(v, false, c); }, 90},
    {"Soften",         [](cBitFilter& f, int v, Colour)   { return f.SOFTEN(v); }, 100},
    {"Thermal",        [](cBitFilter& f, int,   Colour)   { return f.THERMIQUE(); }},
    {"Twirl",          [](cBitFilter& f, int v, Colour)   { return f.TWIRL(v, 90, true); }},
    {"Waves",          [](cBitFilter& f, int v, Colour)   { return f.WAVES(v, 20, 0); }, 30},
    {"Invert black",   [](cBitFilter& f, int,   Colour)   { return f.XBLACK(); }},
};
// clang-format on
static_assert(std::size(kEffectRows) == kEffects && kEffectRows[kEmbossEffect - 1].name == "Emboss");

constexpr int kThread = 8; // pixels across a thread of the weave

/// A thread is lightest along its middle and passes under the next one at its ends.
int weaveAt(int x, int y)
{
    const bool across = (x / kThread + y / kThread) % 2 == 0;
    const int beside = across ? y % kThread : x % kThread, along = across ? x % kThread : y % kThread;
    const auto bulge = [](int at) {
        return (kThread - 1) - std::abs(2 * at - (kThread - 1));
    }; // 0, 2, 4, 6, 6, 4, 2, 0
    return 96 + 6 * bulge(beside) + 4 * bulge(along);
}

} // namespace

std::span<const Effect> effects() { return kEffectRows; }

void ApplyTexture(cBitFilter& filter, int Index, int Value, Colour colour)
{
    if (Index < 1 || Index > kEffects) throw std::invalid_argument("Index");
    filter.setBits(kEffectRows[Index - 1].call(filter, Value, colour));
}

QString effectText(int Index, int Value, Colour colour)
{
    if (kEffectRows[Index - 1].name == "Sketch") return callText("SKETCH", {Value, false, colour}); // draws with it
    return callText("ApplyTexture", {Index, Value});
}

void applyTexturePicture(cBitFilter& filter, const Bits& texture)
{
    if (texture.width() < 2 || texture.height() < 2)
        throw std::invalid_argument("a texture of less than 2 by 2 pixels");
    filter.setBits(filter.Texturize(texture));
}

const Operation& applyTextureOperation()
{
    static const Operation operation{
        "ApplyTexture",
        {{"Index", ArgumentType::Integer, "1..33", "8", "place in the list of the textures box"},
         {"Value", ArgumentType::Integer, "1..100", "50", "strength; what it counts depends on the effect"},
         {"Texture", ArgumentType::Picture, {}, {}, "laid over in place of the effect"}},
        1,
        [](const Operation&, cBitFilter& filter, const Arguments& arguments) {
            constexpr Colour kWhite = 0xFFFFFF; // the current colour of a freshly started program
            if (arguments.size() == 3)
                applyTexturePicture(filter, std::get<Bits>(arguments[2]));
            else
                ApplyTexture(filter, std::get<int>(arguments[0]), std::get<int>(arguments[1]), kWhite);
        }};
    return operation;
}

const Bits& storedTexture()
{
    static const Bits texture = [] {
        constexpr int kSide = 4 * kThread + 1; // tiles overlap by a row and a column
        Bits weave(kSide, kSide);
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x) {
                const auto level = static_cast<std::uint8_t>(weaveAt(x, y));
                weave.at(x, y) = {{level, level, level, 0}};
            }
        return weave;
    }();
    return texture;
}

} // namespace velara
