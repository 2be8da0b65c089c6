// How names that come from outside are shown.
#pragma once
#include <QString>

namespace velara {

/// The text as it can be shown: marks that turn the direction of what stands around them, ends of lines and what else
/// steers a terminal are told by their numbers ("\x202e"). With them a file could look as if it had another name, or
/// say what the program didn't. Joiners, which many scripts are written with, stay.
inline QString printable(const QString& text)
{
    QString shown;
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        const bool turns = code == 0x61c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) ||
                           (code >= 0x2066 && code <= 0x2069);
        const bool steers =
            c.category() == QChar::Other_Control || code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
        shown += turns || steers ? QStringLiteral("\\x") + QString::number(code, 16).rightJustified(2, u'0') : c;
    }
    return shown;
}

} // namespace velara
