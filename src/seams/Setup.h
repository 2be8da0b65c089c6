// Setup: the configuration record. Plain fields with their defaults, read and written directly by every window;
// ImagesPath, which depends on the program folder, is empty by default. SetupStore, which knows each field's offset,
// writes it to the file. Flags are booleans here and 16-bit -1 and 0 in the file; the values of fields that are
// enumerations are in SetupValues.h.
#pragma once
#include "pixels/twips.h"
#include "seams/SetupValues.h"
#include <QString>
#include <array>
#include <cstdint>

namespace velara {

struct Setup {
    std::int16_t FrameWidth = 640 * kTwips, FrameHeight = 480 * kTwips; // twips
    bool FrameMaximized = false;
    bool ImagesMaximized = false;
    QString ImagesPath; // the default is the program folder's "Images/"
    bool PreserveLastFolder = true;
    bool AskToSave = true;
    std::int16_t OpenZoom = 1;
    std::array<QString, 8> Recent; // index 0 first
    bool ColorBoxVisible = true, TexturesBoxVisible = true, ClipboardBoxVisible = true;
    std::array<bool, 7> BarVisible{true, true, true, true,
                                   true, true, true}; // Standard, Effects, Image, Utilities, Help, Tools, Filters
    bool StatusBarVisible = true;
    bool SideBarHidden = false;
    std::int16_t Reserved2342 = 0;
    float PaletteHue = 0;
    std::int32_t ForeColor = 0x00FFFFFF, BackColor = 0; // 0x00BBGGRR
    std::array<std::int32_t, 16> CustomColors{0x000000, 0x111111, 0x222222, 0x333333, 0x444444, 0x555555,
                                              0x666666, 0x777777, 0x888888, 0x999999, 0xAAAAAA, 0xBBBBBB,
                                              0xCCCCCC, 0xDDDDDD, 0xEEEEEE, 0xFFFFFF}; // from black to white
    bool PaletteFlag = true;
    std::int16_t Reserved2422 = 0;
    QString CurrentTool;
    std::int16_t SelectionMode = SelectionMode::New, SelectionShape = SelectionShape::Rectangle, SelectionPressure = 50;
    bool MoveSelection = true;
    std::int16_t BrushMode = BrushMode::Paint, BrushSize = 25, BrushPressure = 25;
    bool BrushContinuous = true;
    std::int16_t AirbrushSize = 75, AirbrushPressure = 25, AirbrushQuantity = 100, AirbrushDefinition = 0;
    std::int16_t FillMode = FillMode::Paint, FillTolerance = 25, FillPressure = 100;
    std::int16_t ShapeKind = ShapeKind::Line, ShapePressure = 100, ShapeSides = 3;
    std::int16_t Reserved2485 = 0;
    std::int32_t StampMaskColor = 0;
    bool StampUseMaskColor = false, StampMask = true, StampClearBack = false;
    std::int16_t StampPressure = 50;
    QString Version = QStringLiteral("1.0");
    QString TextFont = QStringLiteral("Arial");
    std::int16_t TextSize = 20;
    bool TextFlag1 = true, TextFlag2 = true, TextFlag3 = false;
    std::int16_t TextMode = 2; // a TextAlign of text/mText.h
    std::int16_t ToolOpacity = 100;
    std::array<std::uint8_t, 8> Reserved3023{};
    std::int32_t GradientMode = GradientMode::Linear, GradientColor1 = 0x00FFFFFF, GradientColor2 = 0;
    bool GradientTransparent1 = false, GradientTransparent2 = false;
    std::int16_t GradientPressure = 50, GradientFrequency = 1;
    std::array<bool, 8> EffectFlags{true, true, true, true, true, true, true, true};
    std::array<std::uint8_t, 8> Reserved3067{};
    std::int16_t Reserved3075 = 10;
    std::int16_t ClipOpacity = 100;
    std::int16_t PasteMode = PasteMode::None;
};

} // namespace velara
