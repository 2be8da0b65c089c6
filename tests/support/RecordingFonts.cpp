#include "support/RecordingFonts.h"
#include <algorithm>

namespace velara {

namespace {

int advance(const TextStyle& style) { return style.size / 2 + style.bold; }

} // namespace

RunSize RecordingFonts::measure(const QString& text, const TextStyle& style)
{
    ++measures;
    return {static_cast<int>(text.size()) * advance(style), style.size + 2};
}

void RecordingFonts::draw(Bits& target, int x, int y, const TextRun& run, const TextStyle& style, Colour colour)
{
    drawn.push_back(run);
    const Pixel ink{{static_cast<std::uint8_t>(blueOf(colour)), static_cast<std::uint8_t>(greenOf(colour)),
                     static_cast<std::uint8_t>(redOf(colour)), 255}};
    const int blanks = static_cast<int>(run.text.count(u' '));
    int blank = 0;
    for (const QChar c : run.text) {
        if (c == u' ') {
            x += advance(style) + run.spread / blanks + (blank++ < run.spread % blanks);
            continue;
        }
        for (int row = std::max(0, y + 1 - overhang); row < std::min(target.height(), y + style.size + 1); ++row)
            for (int column = std::max(0, x - overhang); column < std::min(target.width(), x + advance(style) - 1);
                 ++column)
                target.at(column, row) = ink;
        x += advance(style);
    }
}

} // namespace velara
