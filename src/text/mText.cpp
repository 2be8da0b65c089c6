#include "text/mText.h"
#include "pixels/numbers.h"
#include <algorithm>

namespace velara {

namespace {

constexpr int kLongestRun = 4096; // characters; more never fit into a picture

/// Where the part of the text beginning here may end: after its first hyphen or run of blanks.
qsizetype breakAfter(const QString& text, qsizetype from)
{
    qsizetype i = from;
    while (i < text.size() && text[i] != u' ' && text[i] != u'-') ++i;
    if (i < text.size() && text[i] == u'-') return i + 1;
    while (i < text.size() && text[i] == u' ') ++i;
    return i;
}

QString withoutEnd(QString line)
{
    while (line.endsWith(u' ')) line.chop(1);
    line.truncate(kLongestRun);
    return line;
}

/// Wraps one paragraph, whose first character is at offset in the whole text.
class Paragraph {
  public:
    using Width = std::function<int(const QString&)>;
    Paragraph(const QString& text, qsizetype offset, int width, const Width& widthOf)
        : text_(text), offset_(offset), width_(width), widthOf_(widthOf)
    {
        for (qsizetype at = 0; at < text.size();) ends_.push_back(at = breakAfter(text, at));
    }

    void addTo(std::vector<TextLine>& lines, int most) const
    {
        std::size_t part = 0;
        qsizetype start = 0;
        do {
            TextLine line;
            line.run.rightToLeft = text_.isRightToLeft();
            line.start = offset_ + start;
            if (!ends_.empty()) {
                part = lastOnLine(part, start);
                line.run.text = lineTo(part, start);
                line.width = widthOf_(line.run.text);
                start = ends_[part++];
            }
            lines.push_back(std::move(line));
        } while (part < ends_.size() && int(lines.size()) < most);
    }

  private:
    QString lineTo(std::size_t part, qsizetype start) const
    {
        return withoutEnd(text_.mid(start, ends_[part] - start));
    }
    bool fits(std::size_t part, qsizetype start) const
    {
        return ends_[part] - start <= kLongestRun && widthOf_(lineTo(part, start)) <= width_;
    }
    /// The last part that fits on the line from start; at least the first one. By galloping search (doubling, then
    /// halving): a long line is measured a few times and not at each word.
    std::size_t lastOnLine(std::size_t first, qsizetype start) const
    {
        std::size_t last = first, step = 1;
        while (last + step < ends_.size() && fits(last + step, start)) {
            last += step;
            step *= 2;
        }
        for (step /= 2; step > 0; step /= 2)
            if (last + step < ends_.size() && fits(last + step, start)) last += step;
        return last;
    }

    const QString& text_;
    qsizetype offset_;
    int width_;
    const Width& widthOf_;
    std::vector<qsizetype> ends_; // permitted line ends
};

class Search {
  public:
    Search(const TextBox& box, int width, int height, const MeasureRun& measure)
        : box_(box), width_(width), height_(height), measure_(measure)
    {
    }

    /// Finds the greatest size at which the text fits, by height alone or by both sides.
    bool find(bool wordsToo)
    {
        const int wanted = std::clamp(box_.size, 1, kLargestText);
        int low = std::min(kSmallestText, wanted), high = wanted;
        // The requested size first: usually it fits.
        if (tryOut(high, wordsToo)) return true;
        --high;
        bool found = false;
        while (low <= high) {
            const int middle = (low + high) / 2;
            if (tryOut(middle, wordsToo)) {
                found = true;
                low = middle + 1;
            } else {
                high = middle - 1;
            }
        }
        return found;
    }

    TextLayout result;

  private:
    bool tryOut(int size, bool wordsToo)
    {
        ++result.trials;
        const int lineHeight = std::max(1, measure_(QStringLiteral(" "), size).height);
        const int room = height_ / lineHeight;
        if (CountOf(QStringLiteral("\r\n"), box_.text) + 1 > room) return false;
        std::vector<TextLine> lines = breakLines(box_.text, width_, size, measure_, room + 1);
        if (int(lines.size()) > room) return false;
        if (wordsToo && std::ranges::any_of(lines, [&](const TextLine& line) { return line.width > width_; }))
            return false;
        for (std::size_t i = 0; i < lines.size(); ++i) lines[i].y = int(i) * lineHeight;
        result.size = size;
        result.lines = std::move(lines);
        return true;
    }

    const TextBox& box_;
    int width_, height_;
    const MeasureRun& measure_;
};

/// rest: the unused width of the line; negative for a word that is too wide, whose beginning is shown.
void align(TextLine& line, int align, int rest, bool last)
{
    if (rest < 0)
        line.x = line.run.rightToLeft ? rest : 0;
    else if (align == CentreJustify)
        line.x = rest / 2;
    else if (align == RightJustify)
        line.x = rest;
    else if (align == FullJustify && !last && line.run.text.trimmed().contains(u' '))
        line.run.spread = rest;
}

} // namespace

std::vector<TextLine> breakLines(const QString& text, int width, int size, const MeasureRun& measure, int most)
{
    const Paragraph::Width widthOf = [&](const QString& run) { return run.isEmpty() ? 0 : measure(run, size).width; };
    std::vector<TextLine> lines;
    for (qsizetype at = 0; at <= text.size() && int(lines.size()) < most;) {
        qsizetype end = text.indexOf(QStringLiteral("\r\n"), at);
        if (end < 0) end = text.size();
        const QString paragraph = text.mid(at, end - at);
        Paragraph(paragraph, at, width, widthOf).addTo(lines, most);
        at = end + 2;
    }
    return lines;
}

std::optional<TextLayout> layOutText(const TextBox& box, const MeasureRun& measure)
{
    if (!(2 * box.margin < box.width && 2 * box.margin < box.height)) return std::nullopt;
    const int left = roundEven(box.margin);
    const int width = roundEven(box.width - 2 * box.margin), height = roundEven(box.height - 2 * box.margin);
    TextLayout layout;
    if (box.text.isEmpty()) {
        layout.size = std::clamp(box.size, 1, kLargestText);
    } else {
        Search search(box, width, height, measure);
        if (!search.find(true) && !search.find(false)) return std::nullopt;
        layout = std::move(search.result);
    }
    for (TextLine& line : layout.lines) {
        align(line, box.align, width - line.width, &line == &layout.lines.back());
        line.x += left;
        line.y += left;
    }
    const int step = layout.size / 15 + 1;
    layout.shadowX = step * (box.shadow % 3 - 1);
    layout.shadowY = step * (box.shadow / 3 - 1);
    return layout;
}

int CountOf(const QString& Needle, const QString& Text)
{
    if (Needle.isEmpty()) return 0;
    int count = 0;
    for (qsizetype at = Text.indexOf(Needle); at >= 0; at = Text.indexOf(Needle, at + 1)) ++count;
    return count;
}

void drawText(Bits& target, const TextLayout& layout, TextStyle style, Fonts& fonts, Colour face, Colour shadow)
{
    style.size = layout.size;
    const auto drawAll = [&](int dx, int dy, Colour colour) {
        for (const TextLine& line : layout.lines) fonts.draw(target, line.x + dx, line.y + dy, line.run, style, colour);
    };
    if (layout.shadowX || layout.shadowY) drawAll(layout.shadowX, layout.shadowY, shadow);
    drawAll(0, 0, face);
}

} // namespace velara
