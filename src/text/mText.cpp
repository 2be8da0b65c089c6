#include "text/mText.h"
#include "pixels/numbers.h"
#include "region/Region.h"
#include "seams/ToolStores.h"
#include <QTextBoundaryFinder>
#include <algorithm>

namespace velara {

namespace {

constexpr int kLongestRun = 4096; // characters; more never fit into a picture

/// Scripts that are written without blanks and may be broken between any two letters.
bool isIdeographic(char32_t c)
{
    switch (QChar::script(c)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
    case QChar::Script_Yi:
        return true;
    default: // their punctuation, and full-width forms
        return (c >= 0x3000 && c < 0x3040) || (c >= 0xFF00 && c < 0xFFF0);
    }
}

/// The character that holds this code unit.
char32_t characterAt(const QString& text, qsizetype i)
{
    if (text[i].isLowSurrogate() && i > 0) --i;
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size();
    return pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
}

/// Where lines may end: after a hyphen, after blanks, between ideographs, and at the end.
std::vector<qsizetype> permittedEnds(const QString& text)
{
    std::vector<qsizetype> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    const auto isPermitted = [&](qsizetype i) {
        const QChar before = text[i - 1];
        if (before == u'-') return true;
        if (before == u' ') return text[i] != u' ';
        if (text[i] == u' ' || !(isIdeographic(characterAt(text, i - 1)) || isIdeographic(characterAt(text, i))))
            return false;
        finder.setPosition(i);
        return finder.isAtBoundary();
    };
    for (qsizetype i = 1; i < text.size(); ++i)
        if (isPermitted(i)) ends.push_back(i);
    if (!text.isEmpty()) ends.push_back(text.size());
    return ends;
}

/// Where a word may end if it must: between the letters that a reader sees, at most kLongestRun of them.
std::vector<qsizetype> letterEnds(const QString& text, qsizetype from, qsizetype to)
{
    std::vector<qsizetype> ends;
    const QString word = text.mid(from, std::min<qsizetype>(to - from, kLongestRun));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, word);
    for (qsizetype at = finder.toNextBoundary(); at >= 0; at = finder.toNextBoundary()) ends.push_back(from + at);
    return ends;
}

/// The last index from `first` on that holds; at least the first one, which isn't asked. By galloping search (doubling,
/// then halving): a long line is measured a few times and not at each word.
template <class Holds> std::size_t lastThatHolds(std::size_t first, std::size_t count, Holds holds)
{
    std::size_t last = first, step = 1;
    while (last + step < count && holds(last + step)) {
        last += step;
        step *= 2;
    }
    for (step /= 2; step > 0; step /= 2)
        if (last + step < count && holds(last + step)) last += step;
    return last;
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
        : text_(text), offset_(offset), width_(width), widthOf_(widthOf), ends_(permittedEnds(text))
    {
    }

    void addTo(std::vector<TextLine>& lines, int most) const
    {
        std::size_t part = 0;
        qsizetype start = 0;
        do {
            if (ends_.empty()) {
                add(lines, 0, 0);
            } else if (fits(start, ends_[part])) {
                part = lastThatHolds(part, ends_.size(), [&](std::size_t i) { return fits(start, ends_[i]); });
                add(lines, start, ends_[part]);
            } else {
                addWord(lines, start, ends_[part], most);
            }
            if (!ends_.empty()) start = ends_[part++];
        } while (part < ends_.size() && int(lines.size()) < most);
    }

  private:
    QString lineTo(qsizetype start, qsizetype end) const { return withoutEnd(text_.mid(start, end - start)); }
    bool fits(qsizetype start, qsizetype end) const
    {
        return end - start <= kLongestRun && widthOf_(lineTo(start, end)) <= width_;
    }
    void add(std::vector<TextLine>& lines, qsizetype start, qsizetype end) const
    {
        TextLine line;
        line.run.rightToLeft = text_.isRightToLeft();
        line.start = offset_ + start;
        line.run.text = lineTo(start, end);
        line.width = widthOf_(line.run.text);
        lines.push_back(std::move(line));
    }
    void addWord(std::vector<TextLine>& lines, qsizetype start, qsizetype end, int most) const
    {
        while (start < end && int(lines.size()) < most) {
            const auto letters = letterEnds(text_, start, end);
            const auto to =
                fits(start, end)
                    ? end
                    : letters[lastThatHolds(0, letters.size(), [&](std::size_t i) { return fits(start, letters[i]); })];
            add(lines, start, to);
            start = to;
            while (start < end && text_[start] == u' ') ++start; // the blanks after the word take no line
        }
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

    /// Finds the greatest size at which the lines fit the height.
    bool find()
    {
        const int wanted = std::clamp(box_.size, 1, kLargestText);
        int low = std::min(kSmallestText, wanted), high = wanted;
        // The requested size first: usually it fits.
        if (tryOut(high)) return true;
        --high;
        bool found = false;
        while (low <= high) {
            const int middle = (low + high) / 2;
            if (tryOut(middle)) {
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
    bool tryOut(int size)
    {
        ++result.trials;
        const int lineHeight = std::max(1, measure_(QStringLiteral(" "), size).height);
        const int room = height_ / lineHeight;
        if (CountOf(QStringLiteral("\r\n"), box_.text) + 1 > room) return false;
        std::vector<TextLine> lines = breakLines(box_.text, width_, size, measure_, room + 1);
        if (int(lines.size()) > room) return false;
        for (std::size_t i = 0; i < lines.size(); ++i) lines[i].y = int(i) * lineHeight;
        result.size = size;
        result.lines = std::move(lines);
        return true;
    }

    const TextBox& box_;
    int width_, height_;
    const MeasureRun& measure_;
};

/// rest: the unused width of the line; negative for a letter wider than the box.
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

constexpr Pixel kPaper{{255, 255, 255, 255}};

Rect inkBounds(const Bits& drawing)
{
    const auto isInk = [](const Pixel& pixel) { return pixel.c[0] != kPaper.c[0]; };
    Rect ink;
    for (int y = 0; y < drawing.height(); ++y) {
        const Pixel *row = drawing.row(y), *end = row + drawing.width(), *first = std::find_if(row, end, isInk);
        if (first == end) continue;
        while (!isInk(end[-1])) --end;
        ink = ink.united({static_cast<int>(first - row), y, static_cast<int>(end - row), y + 1});
    }
    return ink;
}

Bits cropped(const Bits& drawing, const Rect& part)
{
    Bits cut(part.width(), part.height());
    for (int y = 0; y < cut.height(); ++y) std::copy_n(drawing.row(part.top + y) + part.left, cut.width(), cut.row(y));
    return cut;
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
        if (!search.find()) return std::nullopt;
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

Bits drawOnPaper(const TextBox& box, TextLayout layout, const TextStyle& style, Fonts& fonts)
{
    constexpr Colour kFace = 0, kShadow = 0x7F7F7F;
    TextStyle drawn = style;
    drawn.size = layout.size;
    // Accents, swashes and slanted letters stay within a line's height of their line.
    const int room = fonts.measure(QStringLiteral(" "), drawn).height;
    for (TextLine& line : layout.lines) {
        line.x += room;
        line.y += room;
    }
    Bits paper(box.width + 2 * room, box.height + 2 * room);
    for (int y = 0; y < paper.height(); ++y) std::fill_n(paper.row(y), paper.width(), kPaper);
    drawText(paper, layout, style, fonts, kFace, kShadow);
    return cropped(paper, inkBounds(paper).united({room, room, room + box.width, room + box.height}));
}

Bits maskOf(const Bits& drawing)
{
    Bits mask = cropped(drawing, inkBounds(drawing));
    for (int y = 0; y < mask.height(); ++y)
        for (Pixel* p = mask.row(y); p != mask.row(y) + mask.width(); ++p)
            for (int c = 0; c < 3; ++c) p->c[c] = toByte(p->c[c] * double(kMaskPaper) / 255);
    return mask;
}

} // namespace velara
