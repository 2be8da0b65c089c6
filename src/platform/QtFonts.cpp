#include "platform/QtFonts.h"
#include "pixels/images.h"
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

constexpr int kDotsPerMetre = 3780; // 96 dpi

/// The device that text is measured for: an image of 96 dpi, whatever the screen has.
QImage& device()
{
    static QImage image = [] {
        QImage one(1, 1, QImage::Format_RGB32);
        one.setDotsPerMeterX(kDotsPerMetre);
        one.setDotsPerMeterY(kDotsPerMetre);
        return one;
    }();
    return image;
}

QFont fontOf(const TextStyle& style)
{
    QFont font(style.family, std::max(1, style.size));
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setUnderline(style.underline);
    font.setStrikeOut(style.strikeOut);
    // Grey antialiasing: a picture is seen on any screen, and a mask has one channel.
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    // Not the desktop's setting, nor the screen's: letters keep their shape wherever they are drawn.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

int heightOf(const QFont& font)
{
    const QFontMetricsF metrics(font, &device());
    return static_cast<int>(std::ceil(metrics.ascent()) + std::ceil(metrics.descent()));
}

std::vector<PixelSpan> joined(std::vector<PixelSpan> spans)
{
    std::ranges::sort(spans, {}, &PixelSpan::left);
    std::vector<PixelSpan> all;
    for (const PixelSpan& span : spans)
        if (!all.empty() && span.left <= all.back().right)
            all.back().right = std::max(all.back().right, span.right);
        else
            all.push_back(span);
    return all;
}

/// Whether this font, or what stands in for it, draws a letter of the text as a box.
bool hasBoxes(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font, &device());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns())
        if (run.glyphIndexes().contains(0U)) return true;
    return false;
}

/// The parts of a slanted text for which only an upright face has letters, script by script.
QList<QTextLayout::FormatRange> uprightParts(const QString& text, const QFont& font)
{
    QList<QTextLayout::FormatRange> parts;
    if (!font.italic() || !hasBoxes(text, font)) return parts;
    QFont upright = font;
    upright.setItalic(false);
    const auto isPart = [&](QChar::Script script) {
        return script != QChar::Script_Common && script != QChar::Script_Inherited;
    };
    for (qsizetype from = 0, to = 0; from < text.size(); from = to) {
        const QChar::Script script = text[from].script();
        for (to = from + 1; to < text.size() && (text[to].script() == script || !isPart(text[to].script()));) ++to;
        const QString part = text.mid(from, to - from);
        if (!hasBoxes(part, font) || hasBoxes(part, upright)) continue;
        QTextLayout::FormatRange range{static_cast<int>(from), static_cast<int>(to - from), {}};
        range.format.setFont(upright);
        parts << range;
    }
    return parts;
}

/// The run on one line with its corner at 0, 0; its blanks widened by the spread.
class OneLine {
  public:
    OneLine(const TextRun& run, QFont font) : layout_(run.text, spaced(font, run), &device())
    {
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        option.setFlags(QTextOption::IncludeTrailingSpaces);
        option.setTextDirection(run.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
        layout_.setTextOption(option);
        layout_.setFormats(uprightParts(run.text, font));
        layout_.beginLayout();
        line_ = layout_.createLine();
        if (line_.isValid()) {
            line_.setLineWidth(line_.naturalTextWidth() + 1);
            // A substituted font may have a taller line: the baseline stays that of the style's own font.
            line_.setPosition({0, std::ceil(QFontMetricsF(font, &device()).ascent()) - line_.ascent()});
        }
        layout_.endLayout();
    }
    int width() const { return line_.isValid() ? static_cast<int>(std::ceil(line_.naturalTextWidth())) : 0; }
    int caret(int character) const
    {
        return line_.isValid() ? static_cast<int>(std::lround(line_.cursorToX(character))) : 0;
    }
    int characterAt(int x) const { return line_.isValid() ? line_.xToCursor(x) : 0; }
    int beside(int character, bool right) const
    {
        const int to = right ? layout_.rightCursorPosition(character) : layout_.leftCursorPosition(character);
        return to < 0 ? character : to;
    }
    std::vector<PixelSpan> spans(int from, int to) const
    {
        std::vector<PixelSpan> all;
        if (from >= to) return all;
        for (const QGlyphRun& glyphs : layout_.glyphRuns(from, to - from)) {
            const QRectF box = glyphs.boundingRect();
            all.push_back({static_cast<int>(std::floor(box.left())), static_cast<int>(std::ceil(box.right()))});
        }
        return joined(std::move(all));
    }
    void draw(QPainter& painter, QPointF at) const { layout_.draw(&painter, at); }

  private:
    static QFont spaced(QFont& font, const TextRun& run)
    {
        const qsizetype blanks = run.text.trimmed().count(u' ');
        if (run.spread > 0 && blanks > 0) font.setWordSpacing(double(run.spread) / double(blanks));
        return font;
    }

    QTextLayout layout_;
    QTextLine line_;
};

/// "Utopia [Adobe]" is "Utopia": the system chooses among the foundries.
QString withoutFoundry(const QString& family)
{
    const qsizetype at = family.indexOf(QStringLiteral(" ["));
    return at > 0 && family.endsWith(u']') ? family.left(at) : family;
}

/// Several fonts of symbols claim to have Latin letters as well, because they have the places of the keyboard.
bool isOfSymbols(const QList<QFontDatabase::WritingSystem>& systems)
{
    return systems.contains(QFontDatabase::Symbol) && std::ranges::all_of(systems, [](auto system) {
               return system == QFontDatabase::Symbol || system == QFontDatabase::Latin;
           });
}

} // namespace

std::optional<std::vector<FontFamily>> QtFonts::list()
{
    const QStringList families = QFontDatabase::families();
    if (families.isEmpty()) return std::nullopt;
    std::vector<FontFamily> found;
    for (const QString& family : families) {
        if (QFontDatabase::isPrivateFamily(family)) continue;
        FontFamily entry{withoutFoundry(family), {}};
        if (std::ranges::find(found, entry.name, &FontFamily::name) != found.end()) continue;
        const auto systems = QFontDatabase::writingSystems(family);
        const bool ofSymbols = isOfSymbols(systems);
        for (const QFontDatabase::WritingSystem system : systems)
            if (!ofSymbols && system != QFontDatabase::Symbol)
                entry.writingSystems << QFontDatabase::writingSystemName(system);
        found.push_back(std::move(entry));
    }
    return found;
}

QString QtFonts::standIn(const QString& family) { return withoutFoundry(QFontInfo(QFont(family)).family()); }

RunSize QtFonts::measure(const QString& text, const TextStyle& style)
{
    const QFont font = fontOf(style);
    return {OneLine({text}, font).width(), heightOf(font)};
}

int QtFonts::caret(const TextRun& run, const TextStyle& style, int character)
{
    return OneLine(run, fontOf(style)).caret(character);
}

int QtFonts::characterAt(const TextRun& run, const TextStyle& style, int x)
{
    return OneLine(run, fontOf(style)).characterAt(x);
}

int QtFonts::beside(const TextRun& run, const TextStyle& style, int character, bool right)
{
    return OneLine(run, fontOf(style)).beside(character, right);
}

std::vector<PixelSpan> QtFonts::spans(const TextRun& run, const TextStyle& style, int from, int to)
{
    return OneLine(run, fontOf(style)).spans(from, to);
}

void QtFonts::draw(Bits& target, int x, int y, const TextRun& run, const TextStyle& style, Colour colour)
{
    if (target.isNull() || run.text.isEmpty()) return;
    QImage image = canvasOver(target);
    image.setDotsPerMeterX(kDotsPerMetre);
    image.setDotsPerMeterY(kDotsPerMetre);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(QColor(redOf(colour), greenOf(colour), blueOf(colour)));
    OneLine(run, fontOf(style)).draw(painter, QPointF(x, y));
}

} // namespace velara
