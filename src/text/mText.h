// mText: a text laid out in a box: broken into lines, aligned, with a shadow, at the size that was asked for or the
// greatest below it at which it fits. Knows no font: it is told how far a run reaches.
#pragma once
#include "seams/Fonts.h"
#include <functional>
#include <optional>
#include <vector>

namespace velara {

enum TextAlign { LeftJustify, CentreJustify, RightJustify, FullJustify };
/// A place in a grid of three by three; this one is its middle.
constexpr int kNoShadow = 4;
/// Points. What doesn't fit at the smallest has no suitable size; the largest is the routine's limit.
constexpr int kSmallestText = 6, kLargestText = 72;

struct TextBox {
    QString text; // lines are forced by "\r\n"
    int width = 0, height = 0;
    float margin = 4; // pixels on each side
    int align = LeftJustify;
    int shadow = kNoShadow;
    int size = 10; // wanted, 1 to kLargestText
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
    int trials = 0;               // sizes tried, at most 16
};

/// The size of a run at a size in points.
using MeasureRun = std::function<RunSize(const QString& run, int size)>;

/// Nothing when the margin leaves no room or no size fits. A word wider than the box stands on a line of its own at the
/// size wanted, unless a smaller one takes it in. Without text there are no lines.
std::optional<TextLayout> layOutText(const TextBox& box, const MeasureRun& measure);

/// The text broken into lines for a width in pixels, after " ", after "-" and at "\r\n"; the break and the blanks
/// before it belong to no line. More lines than most are not made. width is that of the lines, at least 0 pixels.
std::vector<TextLine> breakLines(const QString& text, int width, int size, const MeasureRun& measure, int most);

/// How often Needle occurs; hits may overlap. An empty one never does.
int CountOf(const QString& Needle, const QString& Text);

/// The layout on a picture: the shadow first, the face over it. style.size is the layout's own.
void drawText(Bits& target, const TextLayout& layout, TextStyle style, Fonts& fonts, Colour face, Colour shadow);

} // namespace velara
