// Setup: the configuration record. Plain fields, read and written directly by every window; SetupStore writes it to the
// file. Flags are booleans here and 16-bit -1 and 0 in the file.
#pragma once
#include <QString>
#include <array>
#include <cstdint>

namespace velara {

struct Setup {
    /// Every field at its default; ImagesPath, which depends on the program folder, is empty. SetupStore.cpp has the
    /// table.
    Setup();

    std::int16_t FrameWidth, FrameHeight; // twips
    bool FrameMaximized;
    bool ImagesMaximized;
    QString ImagesPath; // the default is the program folder's "Images/"
    bool PreserveLastFolder;
    bool AskToSave;
    std::int16_t OpenZoom;
    std::array<QString, 8> Recent; // index 0 first
    bool ColorBoxVisible, TexturesBoxVisible, ClipboardBoxVisible;
    std::array<bool, 7> BarVisible; // Standard, Effects, Image, Utilities, Help, Tools, Filters
    bool StatusBarVisible;
    bool SideBarHidden;
    std::int16_t Reserved2342;
    float PaletteHue;
    std::int32_t ForeColor, BackColor; // 0x00BBGGRR
    std::array<std::int32_t, 16> CustomColors;
    bool PaletteFlag;
    std::int16_t Reserved2422;
    QString CurrentTool;
    std::int16_t SelectionMode, SelectionShape, SelectionPressure;
    bool MoveSelection;
    std::int16_t BrushMode, BrushSize, BrushPressure;
    bool BrushContinuous;
    std::int16_t AirbrushSize, AirbrushPressure, AirbrushQuantity, AirbrushDefinition;
    std::int16_t FillMode, FillTolerance, FillPressure;
    std::int16_t ShapeKind, ShapePressure, ShapeSides;
    std::int16_t Reserved2485;
    std::int32_t StampMaskColor;
    bool StampUseMaskColor, StampMask, StampClearBack;
    std::int16_t StampPressure;
    QString Version;
    QString TextFont;
    std::int16_t TextSize;
    bool TextFlag1, TextFlag2, TextFlag3;
    std::int16_t TextMode;
    std::int16_t ToolOpacity;
    std::array<std::uint8_t, 8> Reserved3023;
    std::int32_t GradientMode, GradientColor1, GradientColor2;
    bool GradientTransparent1, GradientTransparent2;
    std::int16_t GradientPressure, GradientFrequency;
    std::array<bool, 8> EffectFlags;
    std::array<std::uint8_t, 8> Reserved3067;
    std::int16_t Reserved3075;
    std::int16_t ClipOpacity;
    std::int16_t PasteMode;
};

} // namespace velara
