// NoFonts: programs without a window have no fonts. Nothing has a width, nothing is drawn.
#pragma once
#include "seams/Fonts.h"

namespace velara {

class NoFonts final : public Fonts {
  public:
    std::optional<std::vector<FontFamily>> list() override { return {}; }
    QString standIn(const QString& family) override { return family; }
    RunSize measure(const QString&, const TextStyle&) override { return {}; }
    int caret(const TextRun&, const TextStyle&, int) override { return 0; }
    int characterAt(const TextRun&, const TextStyle&, int) override { return 0; }
    int beside(const TextRun&, const TextStyle&, int character, bool) override { return character; }
    std::vector<PixelSpan> spans(const TextRun&, const TextStyle&, int, int) override { return {}; }
    void draw(Bits&, int, int, const TextRun&, const TextStyle&, Colour) override {}
};

} // namespace velara
