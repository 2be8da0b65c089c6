// How names from outside are shown.
#pragma once
#include <QString>

namespace velara {

/// The text made safe to show: bidirectional controls, line ends and other control characters are shown by their codes
/// ("\x202e"). With them a file could pretend to have another name, or output what the program didn't say. Joiners,
/// which many scripts need, are kept. A byte of a name that isn't UTF-8 is shown by its code, too.
inline QString printable(const QString& text)
{
    QString shown;
    QChar before;
    for (const QChar c : text) {
        // Such a byte is the second half of a pair, without a first.
        const bool isByte = c.isLowSurrogate() && !before.isHighSurrogate();
        const auto code = char16_t(isByte ? c.unicode() & 0xFF : c.unicode());
        before = c;
        const bool turns = code == 0x61c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) ||
                           (code >= 0x2066 && code <= 0x2069);
        const bool steers =
            c.category() == QChar::Other_Control || code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
        shown +=
            isByte || turns || steers ? QStringLiteral("\\x") + QString::number(code, 16).rightJustified(2, u'0') : c;
    }
    return shown;
}

} // namespace velara
