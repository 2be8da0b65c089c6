// Places in the text of a layer: the caret, what a click means, what is marked.
#include "text/Layers.h"
#include <QTextBoundaryFinder>
#include <algorithm>

namespace velara {

namespace {

/// The beginning of the letter before or after this one, as a reader counts letters.
qsizetype nextLetter(const QString& text, qsizetype from, bool forward)
{
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    letters.setPosition(from);
    const qsizetype to = forward ? letters.toNextBoundary() : letters.toPreviousBoundary();
    return to < 0 ? from : to;
}

} // namespace

/// The line that shows the caret; at a wrapped end it is the one that begins there.
std::size_t Layers::lineAt(const Entry& entry, qsizetype character) const
{
    std::size_t line = 0;
    while (line + 1 < entry.lines.size() && entry.lines[line + 1].start <= character) ++line;
    return line;
}

/// A line with the blanks at its end, among which the caret may stand.
TextRun Layers::wholeRun(const Entry& entry, std::size_t line) const
{
    const QString& text = entry.layer.text;
    const qsizetype start = entry.lines[line].start;
    TextRun run = entry.lines[line].run;
    run.text = text.mid(start, (line + 1 < entry.lines.size() ? entry.lines[line + 1].start : text.size()) - start);
    if (const qsizetype end = run.text.indexOf(u'\r'); end >= 0) run.text.truncate(end);
    return run;
}

Rect Layers::caret(int index, qsizetype character) const
{
    const Entry& entry = layers_.at(index);
    const Layer& layer = entry.layer;
    const std::size_t line = lineAt(entry, character);
    int x = layer.place.left, y = layer.place.top;
    if (!entry.lines.empty()) {
        const TextRun run = wholeRun(entry, line);
        const qsizetype inRun = std::clamp<qsizetype>(character - entry.lines[line].start, 0, run.text.size());
        x += leftOf(entry, run) + fonts_.caret(run, layer.style, static_cast<int>(inRun));
        y += static_cast<int>(line) * entry.lineHeight;
    }
    return {x, y, x + 1, y + entry.lineHeight};
}

qsizetype Layers::characterAt(int index, int x, int y) const
{
    const Entry& entry = layers_.at(index);
    if (entry.lines.empty()) return 0;
    const int row = std::max(0, y - entry.layer.place.top) / entry.lineHeight;
    const std::size_t line = std::min(std::size_t(row), entry.lines.size() - 1);
    const TextRun run = wholeRun(entry, line);
    const int inRun = fonts_.characterAt(run, entry.layer.style, x - entry.layer.place.left - leftOf(entry, run));
    const qsizetype at = entry.lines[line].start + inRun;
    // The end of a wrapped line is the beginning of the next one: stay on the line that was meant.
    return line < lineAt(entry, at) ? nextLetter(entry.layer.text, at, false) : at;
}

qsizetype Layers::beside(int index, qsizetype character, bool right) const
{
    const Entry& entry = layers_.at(index);
    if (entry.lines.empty()) return character;
    const std::size_t line = lineAt(entry, character);
    const TextRun run = wholeRun(entry, line);
    const auto inRun = static_cast<int>(std::min(character - entry.lines[line].start, run.text.size()));
    const int to = fonts_.beside(run, entry.layer.style, inRun, right);
    if (to != inRun) return entry.lines[line].start + to;
    return nextLetter(entry.layer.text, character, right != run.rightToLeft);
}

std::pair<qsizetype, qsizetype> Layers::lineOf(int index, qsizetype character) const
{
    const Entry& entry = layers_.at(index);
    if (entry.lines.empty()) return {0, 0};
    const std::size_t line = lineAt(entry, character);
    const qsizetype start = entry.lines[line].start, end = start + wholeRun(entry, line).text.size();
    return {start, line < lineAt(entry, end) ? std::max(start, nextLetter(entry.layer.text, end, false)) : end};
}

std::vector<Rect> Layers::spans(int index, qsizetype from, qsizetype to) const
{
    const Entry& entry = layers_.at(index);
    const Rect& place = entry.layer.place;
    std::vector<Rect> all;
    for (std::size_t line = 0; line < entry.lines.size(); ++line) {
        const TextRun run = wholeRun(entry, line);
        const qsizetype start = entry.lines[line].start, a = std::max(from - start, qsizetype(0)),
                        b = std::min(to - start, run.text.size());
        const int left = place.left + leftOf(entry, run), top = place.top + static_cast<int>(line) * entry.lineHeight;
        if (a < b)
            for (const PixelSpan& span : fonts_.spans(run, entry.layer.style, int(a), int(b)))
                all.push_back({left + span.left, top, left + span.right, top + entry.lineHeight});
    }
    return all;
}

} // namespace velara
