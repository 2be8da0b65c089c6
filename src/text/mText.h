// mText: lays out a text in a box: wrapped, aligned, with a shadow, at the requested size or the greatest one below it
// at which its lines fit the height; draws it, and makes the mask that stamps it. The layout knows no fonts: a callback
// measures runs.
#pragma once
#include "seams/Fonts.h"
#include <functional>
#include <optional>
#include <vector>

namespace velara {

enum TextAlign { LeftJustify, CentreJustify, RightJustify, FullJustify };
/// A place in a grid of three by three; 4 is its centre.
constexpr int kNoShadow = 4;
/// Points. A text that doesn't fit at the smallest has no suitable size; the largest is the routine's limit.
constexpr int kSmallestText = 6, kLargestText = 72;

struct TextBox {
    QString text; // "\r\n" forces a line break
    int width = 0, height = 0;
    float margin = 4; // pixels on each side
    int align = LeftJustify;
    int shadow = kNoShadow;
    int size = 10; // requested, 1 to kLargestText
};

struct TextLine {
    TextRun run;
    int x = 0, y = 0;    // upper left corner
    int width = 0;       // without the spread
    qsizetype start = 0; // its first character in the whole text
};

struct TextLayout {
    int size = 0;
    std::vector<TextLine> lines;
    int shadowX = 0, shadowY = 0; // 0, 0: none
    int trials = 0;               // sizes tried, at most 8
};

/// The extent of a run at a size in points.
using MeasureRun = std::function<RunSize(const QString& run, int size)>;

/// Nothing when the margin leaves no room or no size fits. Without text there are no lines.
std::optional<TextLayout> layOutText(const TextBox& box, const MeasureRun& measure);

/// The text wrapped to a width in pixels, after " ", after "-" and at "\r\n", and in Chinese and Japanese wherever
/// their punctuation permits; the break and the blanks before it belong to no line. A word wider than that has lines of
/// its own, broken between letters. At most `most` lines are made. width is at least 0 pixels.
std::vector<TextLine> breakLines(const QString& text, int width, int size, const MeasureRun& measure, int most);

/// How often Needle occurs, overlapping matches included. An empty Needle never does.
int CountOf(const QString& Needle, const QString& Text);

/// Draws the layout on a picture: first the shadow, then the face. style.size is ignored for the layout's own.
void drawText(Bits& target, const TextLayout& layout, TextStyle style, Fonts& fonts, Colour face, Colour shadow);

/// The layout in black on white, its shadow in grey. As large as the box, and larger on the sides where ink extends
/// beyond it.
Bits drawOnPaper(const TextBox& box, TextLayout layout, const TextStyle& style, Fonts& fonts);
/// The mask that stamps such a drawing with exactly its coverage, cropped to its ink. Null when there is no ink.
Bits maskOf(const Bits& drawing);

} // namespace velara
