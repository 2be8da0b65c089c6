#include "platform/desktop/QtFonts.h"
#include "pixels/images.h"
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
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
    return font;
}

int heightOf(const QFont& font)
{
    const QFontMetricsF metrics(font, &device());
    return static_cast<int>(std::ceil(metrics.ascent()) + std::ceil(metrics.descent()));
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

} // namespace

std::optional<std::vector<FontFamily>> QtFonts::list()
{
    const QStringList families = QFontDatabase::families();
    if (families.isEmpty()) return std::nullopt;
    std::vector<FontFamily> found;
    for (const QString& family : families) {
        if (QFontDatabase::isPrivateFamily(family)) continue;
        FontFamily entry{family, {}};
        for (const QFontDatabase::WritingSystem system : QFontDatabase::writingSystems(family))
            if (system != QFontDatabase::Symbol) entry.writingSystems << QFontDatabase::writingSystemName(system);
        found.push_back(std::move(entry));
    }
    return found;
}

QString QtFonts::standIn(const QString& family) { return QFontInfo(QFont(family)).family(); }

RunSize QtFonts::measure(const QString& text, const TextStyle& style)
{
    const QFont font = fontOf(style);
    return {OneLine({text}, font).width(), heightOf(font)};
}

int QtFonts::caret(const TextRun& run, const TextStyle& style, int character)
{
    return OneLine(run, fontOf(style)).caret(character);
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
