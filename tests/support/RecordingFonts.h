// RecordingFonts: two families of one fixed-width font, so that layouts are predictable to the pixel. A character is
// half its size wide (bold: one pixel more), a line is its size plus two pixels high. Every character but the blank is
// drawn as a block that leaves one pixel free at its right and one above and below.
#pragma once
#include "seams/Fonts.h"

namespace velara {

class RecordingFonts final : public Fonts {
  public:
    std::optional<std::vector<FontFamily>> families =
        std::vector<FontFamily>{{"Fixed", {"Latin"}}, {"Other", {"Latin", "Greek"}}};
    int measures = 0;
    std::vector<TextRun> drawn;

    std::optional<std::vector<FontFamily>> list() override { return families; }
    QString standIn(const QString& family) override { return family == "Other" ? family : "Fixed"; }
    RunSize measure(const QString& text, const TextStyle& style) override;
    int caret(const TextRun& run, const TextStyle& style, int character) override
    {
        return measure(run.text.left(character), style).width;
    }
    void draw(Bits& target, int x, int y, const TextRun& run, const TextStyle& style, Colour colour) override;
};

} // namespace velara
