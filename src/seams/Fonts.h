// Fonts: text as the system sets it. QtFonts (platform/desktop) is the real one; NoFonts serves programs without a
// window; RecordingFonts (tests/support) has one fixed-width font.
//
// A run is always set as a whole, so that scripts that join, stack or turn their letters come out right, and what a
// font lacks is taken from another one. Sizes are points at 96 to the inch on every screen: a text is as large in the
// picture wherever it is made.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace velara {

struct FontFamily {
    QString name;
    QStringList writingSystems; // as the system calls them; empty for symbols
    friend bool operator==(const FontFamily&, const FontFamily&) = default;
};

struct TextStyle {
    QString family;
    int size = 10; // points
    bool bold = false, italic = false, underline = false, strikeOut = false;
    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// One line without breaks in it.
struct TextRun {
    QString text;
    bool rightToLeft = false; // where its paragraph begins
    int spread = 0;           // pixels more than its own width, given evenly to the blanks within
    friend bool operator==(const TextRun&, const TextRun&) = default;
};

/// In pixels: how far a run reaches, and the height of its line. The height depends on the style alone.
struct RunSize {
    int width = 0, height = 0;
    friend bool operator==(const RunSize&, const RunSize&) = default;
};

class Fonts {
  public:
    virtual ~Fonts() = default;

    /// The installed families by name; nothing when the system doesn't tell.
    virtual std::optional<std::vector<FontFamily>> list() = 0;
    /// The family that is used where this one is asked for: itself, or what stands in for a missing one.
    virtual QString standIn(const QString& family) = 0;
    virtual RunSize measure(const QString& text, const TextStyle& style) = 0;
    /// Where the caret stands before this character of the run: pixels from the left edge of its line.
    virtual int caret(const TextRun& run, const TextStyle& style, int character) = 0;
    /// Blends the run over the target, cut to it; (x, y) is the upper left corner of its line. Fourth bytes become 255
    /// where it is drawn.
    virtual void draw(Bits& target, int x, int y, const TextRun& run, const TextStyle& style, Colour colour) = 0;
};

} // namespace velara
