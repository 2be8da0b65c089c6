// Setup: the configuration record. Plain fields, read and written directly by every window; SetupStore writes it to the
// file. Flags are booleans here and 16-bit -1 and 0 in the file.
#pragma once
#include <QString>
#include <array>
#include <cstdint>

namespace velara {

struct Setup {
    std::int16_t FrameWidth = 640 * 15, FrameHeight = 480 * 15; // twips
    bool FrameMaximized = false;
    bool ImagesMaximized = false;
    QString ImagesPath; // 256 bytes; the default is the program folder's "Images"
    bool PreserveLastFolder = true;
    bool AskToSave = true;
    std::int16_t OpenZoom = 1;
    std::array<QString, 8> Recent; // 256 bytes each, index 0 first
    bool ColorBoxVisible = true, TexturesBoxVisible = true, ClipboardBoxVisible = true;
    std::array<bool, 7> BarVisible{true, true, true, true, true, true, true}; // Standard, Effects, Image, Utilities,
                                                                              // Help, Tools, Filters
    bool StatusBarVisible = true;
    bool SideBarHidden = false;
    std::int16_t Reserved2342 = 0;
    float PaletteHue = 0;
    std::int32_t ForeColor = 0x00FFFFFF, BackColor = 0; // 0x00BBGGRR
    std::array<std::int32_t, 16> CustomColors{};        // default: grey of level i * 17
    bool PaletteFlag = true;
    std::int16_t Reserved2422 = 0;
    QString CurrentTool; // 25 bytes
    std::int16_t SelectionMode = 2, SelectionShape = 0, SelectionPressure = 50;
    bool MoveSelection = true;
    std::int16_t BrushMode = 0, BrushSize = 25, BrushPressure = 25;
    bool BrushContinuous = true;
    std::int16_t AirbrushSize = 75, AirbrushPressure = 25, AirbrushQuantity = 100, AirbrushDefinition = 0;
    std::int16_t FillMode = 0, FillTolerance = 25, FillPressure = 100;
    std::int16_t ShapeKind = 0, ShapePressure = 100, ShapeSides = 3;
    std::int16_t Reserved2485 = 0;
    std::int32_t StampMaskColor = 0;
    bool StampUseMaskColor = false, StampMask = true, StampClearBack = false;
    std::int16_t StampPressure = 50;
    QString Version = QStringLiteral("1.0");    // 256 bytes
    QString TextFont = QStringLiteral("Arial"); // 256 bytes
    std::int16_t TextSize = 20;
    bool TextFlag1 = true, TextFlag2 = true, TextFlag3 = false;
    std::int16_t TextMode = 2;
    std::int16_t ToolOpacity = 100;
    std::array<std::uint8_t, 8> Reserved3023{};
    std::int32_t GradientMode = 0, GradientColor1 = 0x00FFFFFF, GradientColor2 = 0;
    bool GradientTransparent1 = false, GradientTransparent2 = false;
    std::int16_t GradientPressure = 50, GradientFrequency = 1;
    std::array<bool, 8> EffectFlags{true, true, true, true, true, true, true, true};
    std::array<std::uint8_t, 8> Reserved3067{};
    std::int16_t Reserved3075 = 10;
    std::int16_t ClipOpacity = 100;
    std::int16_t PasteMode = 0;
};

} // namespace velara
