#include "colour/colourCells.h"
#include "pixels/numbers.h"
#include <charconv>
#include <cmath>

namespace velara {

Rect cellRect(int cell)
{
    constexpr int kStep = kCellSide + kCellGap;
    const int left = kFirstCell + (cell - 1) % kCellColumns * kStep,
              top = kFirstCell + (cell - 1) / kCellColumns * kStep;
    return {left, top, left + kCellSide, top + kCellSide};
}

int cellAt(int x, int y)
{
    for (int cell = 1; cell <= kCells; ++cell) {
        const Rect r = cellRect(cell);
        if (x >= r.left && x < r.right && y >= r.top && y < r.bottom) return cell;
    }
    return 0;
}

std::optional<Colour> safeColour(int cell)
{
    if (cell < 1 || cell > kSafeColours) return std::nullopt;
    const int i = cell - 1;
    return colourOf(i / 36 * 51, i / 6 % 6 * 51, i % 6 * 51);
}

namespace {

/// The number that a line begins with; nothing when it has no place in 32 bits.
std::optional<std::int32_t> leadingNumber(QByteArrayView line)
{
    line = line.trimmed();
    if (line.startsWith('+')) line = line.sliced(1);
    const qsizetype first = line.startsWith('-') ? 1 : 0;
    if (line.size() <= first || !(line[first] == '.' || (line[first] >= '0' && line[first] <= '9'))) return 0;
    double value = 0;
    const auto [end, fault] = std::from_chars(line.begin(), line.end(), value);
    if (fault == std::errc::result_out_of_range) return std::nullopt;
    value = roundToEven(value);
    if (!(std::abs(value) <= 2147483648.0) || value == 2147483648.0) return std::nullopt;
    return static_cast<std::int32_t>(value);
}

} // namespace

void readUserColours(const QByteArray& text, UserColours& colours)
{
    qsizetype at = 0;
    for (std::int32_t& element : colours) {
        if (at >= text.size()) return;
        qsizetype end = at;
        while (end < text.size() && text[end] != '\r' && text[end] != '\n') ++end;
        if (const auto number = leadingNumber(QByteArrayView(text).sliced(at, end - at))) element = *number;
        at = end + (text.mid(end, 2) == "\r\n" ? 2 : 1);
    }
}

QByteArray userColoursText(const UserColours& colours)
{
    QByteArray text;
    for (const std::int32_t element : colours) {
        if (element >= 0) text += ' ';
        text += QByteArray::number(element) + "\r\n";
    }
    return text;
}

QString GetHexVal(int red, int green, int blue)
{
    const auto hex = [](int value) { return QString::number(value, 16).toUpper(); };
    QString front = hex(red);
    for (const int part : {red, green, blue})
        if (part < 16) front.prepend(u'0');
    return front + hex(green) + hex(blue);
}

} // namespace velara
