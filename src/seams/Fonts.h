// Fonts: text layout and drawing by the system, from any thread. QtFonts (platform) is the real one, and needs a
// QGuiApplication; NoFonts serves programs without one; RecordingFonts (tests/support) has one fixed-width font.
//
// A run is always shaped as a whole, so that scripts that join, stack or reorder their letters come out right; glyphs
// that a font lacks are taken from another one. Sizes are points at 96 dpi on every screen, so a text has the same size
// in the picture wherever it is made.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace velara {

struct FontFamily {
    QString name;
    QStringList writingSystems; // by the system's names; empty for symbol fonts
    friend bool operator==(const FontFamily&, const FontFamily&) = default;
};

struct TextStyle {
    QString family;
    int size = 10; // points
    bool bold = false, italic = false, underline = false, strikeOut = false;
    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

/// One line without line breaks.
struct TextRun {
    QString text;
    bool rightToLeft = false; // the base direction of its paragraph
    int spread = 0;           // extra pixels for justification, distributed evenly over the blanks
    friend bool operator==(const TextRun&, const TextRun&) = default;
};

/// The advance of a run and the height of its line, in pixels. The height depends on the style alone.
struct RunSize {
    int width = 0, height = 0;
    friend bool operator==(const RunSize&, const RunSize&) = default;
};

/// From left to right - 1.
struct PixelSpan {
    int left = 0, right = 0;
    friend bool operator==(const PixelSpan&, const PixelSpan&) = default;
};

class Fonts {
  public:
    virtual ~Fonts() = default;

    /// The installed families by name; no value when the system can't list them.
    virtual std::optional<std::vector<FontFamily>> list() = 0;
    /// The family that is used when this one is asked for: itself, or the substitute of a missing one.
    virtual QString standIn(const QString& family) = 0;
    virtual RunSize measure(const QString& text, const TextStyle& style) = 0;
    /// The caret's position before this character of the run: pixels from the left edge of its line.
    virtual int caret(const TextRun& run, const TextStyle& style, int character) = 0;
    /// The caret's place nearest to x pixels from that edge: before which character, 0 to the run's length.
    virtual int characterAt(const TextRun& run, const TextStyle& style, int x) = 0;
    /// The caret's next place to the right or left, as a reader sees it; the same one at the edge of the line.
    virtual int beside(const TextRun& run, const TextStyle& style, int character, bool right) = 0;
    /// Where the characters from..to-1 lie, as pixels from the line's left edge; several where directions mix.
    virtual std::vector<PixelSpan> spans(const TextRun& run, const TextStyle& style, int from, int to) = 0;
    /// Blends the run over the target, clipped to it; (x, y) is the upper left corner of its line. Fourth bytes become
    /// 255 where it is drawn.
    virtual void draw(Bits& target, int x, int y, const TextRun& run, const TextStyle& style, Colour colour) = 0;
};

} // namespace velara
