// RecordingFonts: two families of one fixed-width font, so that layouts are predictable to the pixel. A character is
// half its size wide (bold: one pixel more), a line is its size plus two pixels high. Every character but the blank is
// drawn as a block that leaves one pixel free at its right and one above and below.
#pragma once
#include "seams/Fonts.h"
#include <algorithm>

namespace velara {

class RecordingFonts final : public Fonts {
  public:
    std::optional<std::vector<FontFamily>> families =
        std::vector<FontFamily>{{"Fixed", {"Latin"}}, {"Other", {"Latin", "Greek"}}};
    int measures = 0;
    int overhang = 0; // pixels by which the blocks extend beyond their line, to the left and above
    std::vector<TextRun> drawn;

    std::optional<std::vector<FontFamily>> list() override { return families; }
    QString standIn(const QString& family) override { return family == "Other" ? family : "Fixed"; }
    RunSize measure(const QString& text, const TextStyle& style) override;
    int caret(const TextRun& run, const TextStyle& style, int character) override
    {
        return measure(run.text.left(character), style).width;
    }
    int characterAt(const TextRun& run, const TextStyle& style, int x) override
    {
        const int wide = measure("x", style).width;
        return std::clamp((x + wide / 2) / wide, 0, int(run.text.size()));
    }
    int beside(const TextRun& run, const TextStyle&, int character, bool right) override
    {
        return std::clamp(character + (right ? 1 : -1), 0, int(run.text.size()));
    }
    std::vector<PixelSpan> spans(const TextRun& run, const TextStyle& style, int from, int to) override
    {
        return {{caret(run, style, from), caret(run, style, to)}};
    }
    void draw(Bits& target, int x, int y, const TextRun& run, const TextStyle& style, Colour colour) override;
};

} // namespace velara
