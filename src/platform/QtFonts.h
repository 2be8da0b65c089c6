// QtFonts: the fonts of the system, through Qt's text layout. The same text gets the same pixels in every program and
// on every desktop.
#pragma once
#include "seams/Fonts.h"

namespace velara {

class QtFonts final : public Fonts {
  public:
    std::optional<std::vector<FontFamily>> list() override;
    QString standIn(const QString& family) override;
    RunSize measure(const QString& text, const TextStyle& style) override;
    int caret(const TextRun& run, const TextStyle& style, int character) override;
    int characterAt(const TextRun& run, const TextStyle& style, int x) override;
    int beside(const TextRun& run, const TextStyle& style, int character, bool right) override;
    std::vector<PixelSpan> spans(const TextRun& run, const TextStyle& style, int from, int to) override;
    void draw(Bits& target, int x, int y, const TextRun& run, const TextStyle& style, Colour colour) override;
};

} // namespace velara
