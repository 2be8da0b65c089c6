#include "commands/recipe/stepText.h"
#include "seams/text.h"
#include <QRegularExpression>
#include <algorithm>
#include <charconv>
#include <optional>

namespace velara {

namespace {

template <class Number> QString shortest(Number value)
{
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    return QString::fromLatin1(text, end - text);
}

/// Most are singles: 0.1f as a double would have twenty digits.
QString numberText(double value)
{
    const QString single = shortest(static_cast<float>(value));
    const bool isExact = static_cast<double>(static_cast<float>(value)) == value &&
                         static_cast<double>(static_cast<float>(single.toDouble())) == value;
    return isExact ? single : shortest(value);
}

QString quotedWhereNeeded(QString text)
{
    if (!text.contains(u',') && !text.contains(u'"')) return text;
    return u'"' + text.replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"';
}

/// The bounds of an ellipse may be smaller than the box that it was drawn in.
std::optional<Rect> ellipseOf(const Region& region)
{
    const Rect box = region.bounds();
    for (int i = 0; i < 36; ++i) {
        const Rect tried{box.left - i % 2, box.top - i / 2 % 2, box.right + i / 4 % 3, box.bottom + i / 12};
        if (Region::ellipse(tried.left, tried.top, tried.right, tried.bottom) == region) return tried;
    }
    return {};
}

bool fitsALine(const QString& text)
{
    return std::ranges::none_of(text, [](QChar c) { return c.unicode() < u' '; }) &&
           QString::fromUtf8(text.toUtf8()) == text;
}

QString numbersOf(const Rect& box)
{
    return QStringLiteral("%1,%2,%3,%4").arg(box.left).arg(box.top).arg(box.right).arg(box.bottom);
}

} // namespace

QString argumentText(const Argument& argument)
{
    struct {
        QString operator()(bool v) const { return v ? QStringLiteral("true") : QStringLiteral("false"); }
        QString operator()(int v) const
        {
            return v > 0xFFFF ? QStringLiteral("0x%1").arg(v, 8, 16, QChar(u'0')) : QString::number(v);
        }
        QString operator()(double v) const { return numberText(v); }
        QString operator()(const std::string& v) const { return QString::fromStdString(v); }
        QString operator()(const Bits&) const { return {}; }
    } text;
    return std::visit(text, argument);
}

QString callText(std::string_view operation, const Arguments& arguments)
{
    QStringList texts;
    for (const Argument& argument : arguments) texts += quotedWhereNeeded(argumentText(argument));
    const QString call = text(operation) + u'(' + texts.join(u',') + u')';
    return fitsALine(call) ? call : QString();
}

QString resizeText(int width, int height, bool smooth)
{
    return callText(smooth ? "BitsResample" : "BitsResize", {width, height});
}

QString selectionText(const Region& selection)
{
    if (selection.isEmpty()) return QStringLiteral("none");
    if (selection.rectangleCount() == 1) return QStringLiteral("rect:") + numbersOf(selection.bounds());
    if (const auto box = ellipseOf(selection)) return QStringLiteral("ellipse:") + numbersOf(*box);
    QStringList boxes;
    selection.forEachRectangle([&](const Rect& each) { boxes += numbersOf(each); });
    return QStringLiteral("rects:") + boxes.join(u',');
}

QString shellQuoted(const QString& argument)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_./:=,+@%-]+$"));
    if (plain.match(argument).hasMatch()) return argument;
    return u'\'' + QString(argument).replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

} // namespace velara
