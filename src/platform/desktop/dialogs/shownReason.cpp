#include "platform/desktop/dialogs/shownReason.h"
#include "seams/text.h"
#include <QRegularExpression>
#include <vector>

namespace velara {

namespace {

// clang-format off
constexpr const char* kReasons[] = { // those with fewer fixed words come later
    QT_TRANSLATE_NOOP("Reasons", "%1 can't be read: %2"),
    QT_TRANSLATE_NOOP("Reasons", "it is damaged or not %1 picture"),
    QT_TRANSLATE_NOOP("Reasons", "it is damaged, and its reader gave up"),
    QT_TRANSLATE_NOOP("Reasons", "it is damaged, and its reader wanted what no picture needs"),
    QT_TRANSLATE_NOOP("Reasons", "it is damaged: it has hardly any bytes for its %1 x %2 pixels"),
    QT_TRANSLATE_NOOP("Reasons", "it is damaged: some of its pixels are missing"),
    QT_TRANSLATE_NOOP("Reasons", "it is damaged between its first row and its last"),
    QT_TRANSLATE_NOOP("Reasons", "it is cut off: its end is missing"),
    QT_TRANSLATE_NOOP("Reasons", "its pixels are of a kind that isn't read: %1 x %2 bits"),
    QT_TRANSLATE_NOOP("Reasons", "it has fewer inks than cyan, magenta and yellow"),
    QT_TRANSLATE_NOOP("Reasons", "it is wider or higher than 32767 pixels, or has more than 268 million pixels"),
    QT_TRANSLATE_NOOP("Reasons", "it needs more memory than reading a picture may take"),
    QT_TRANSLATE_NOOP("Reasons", "it is empty or can't be opened"),
    QT_TRANSLATE_NOOP("Reasons", "it has more than two gigabytes"),
    QT_TRANSLATE_NOOP("Reasons", "its name has no extension to tell what it is"),
    QT_TRANSLATE_NOOP("Reasons", "there is no reader for .%1 files"),
    QT_TRANSLATE_NOOP("Reasons", "its reader could not be locked in (%1)"),
    QT_TRANSLATE_NOOP("Reasons", "velara-decode-all, which reads %1 picture, can't be started"),
    QT_TRANSLATE_NOOP("Reasons", "this build lacks the library that reads %1 picture"),
    QT_TRANSLATE_NOOP("Reasons", "the library that reads HEIF and AVIF pictures (libheif) is missing"),
    QT_TRANSLATE_NOOP("Reasons", "the library that reads JPEG XL pictures (libjxl) is missing"),
    QT_TRANSLATE_NOOP("Reasons", "the fonts that metafiles are drawn with are missing"),
    QT_TRANSLATE_NOOP("Reasons", "it has only %1 pages"),
    QT_TRANSLATE_NOOP("Reasons", "it has only one page"),
    QT_TRANSLATE_NOOP("Reasons", "reading it was given up"),
    QT_TRANSLATE_NOOP("Reasons", "reading it took too long and was stopped"),
    QT_TRANSLATE_NOOP("Reasons", "the program that reads pictures (velara-decode) gave a false answer"),
    QT_TRANSLATE_NOOP("Reasons", "the program that reads pictures (velara-decode) can't be started"),
    QT_TRANSLATE_NOOP("Reasons", "the program that reads pictures (velara-decode) was not found"),
    QT_TRANSLATE_NOOP("Reasons", "a sanitizer stopped its reader"),
    QT_TRANSLATE_NOOP("Reasons", "there is no such file"),
    QT_TRANSLATE_NOOP("Reasons", "there is no permission to read it"),
    QT_TRANSLATE_NOOP("Reasons", "the system says \"%1\""),
    QT_TRANSLATE_NOOP("Reasons", "the system tells nothing about it"),
    QT_TRANSLATE_NOOP("Reasons", "it is a folder"),
    QT_TRANSLATE_NOOP("Reasons", "it is not an ordinary file"),
    QT_TRANSLATE_NOOP("Reasons", "the file is empty"),
    QT_TRANSLATE_NOOP("Reasons", "it has more than the %1 pixels that limits.conf allows"),
    QT_TRANSLATE_NOOP("Reasons", "limits.conf has turned .%1 files off"),
    QT_TRANSLATE_NOOP("Reasons", "there is not enough memory for it"),
    QT_TRANSLATE_NOOP("Reasons", "there is not enough memory"),
    QT_TRANSLATE_NOOP("Reasons", "no room in the Temp folder"),
    QT_TRANSLATE_NOOP("Reasons", "the Temp folder can't be written to"),
    QT_TRANSLATE_NOOP("Reasons", "Overflow"),
    QT_TRANSLATE_NOOP("Reasons", "Division by zero"),
    QT_TRANSLATE_NOOP("Reasons", "Subscript out of range"),
    QT_TRANSLATE_NOOP("Reasons", "Nothing selected"),
    QT_TRANSLATE_NOOP("Reasons", "Minimum size: 2 x 2"),
    QT_TRANSLATE_NOOP("Reasons", "Internal Error"),
    QT_TRANSLATE_NOOP("Reasons", "There was an error while saving! Please Restart Velara's Studio"),
    QT_TRANSLATE_NOOP("Reasons", "Collection of ASCII based bitmap"),
    QT_TRANSLATE_NOOP("Reasons", "A WebP picture has at most 16383 pixels a side."),
    QT_TRANSLATE_NOOP("Reasons", "This facility is currently turned Off!"),
    QT_TRANSLATE_NOOP("Reasons", "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!"),
    QT_TRANSLATE_NOOP("Reasons", "the page can't be read"),
    QT_TRANSLATE_NOOP("Reasons", "the page can't be written"),
    QT_TRANSLATE_NOOP("Reasons", "the file can't be written"),
    QT_TRANSLATE_NOOP("Reasons", "the print server does not answer"),
    QT_TRANSLATE_NOOP("Reasons", "there is no print server"),
    QT_TRANSLATE_NOOP("Reasons", "there is no printer %1 any more"),
    QT_TRANSLATE_NOOP("Reasons", "the print server has not taken the page"),
    QT_TRANSLATE_NOOP("Reasons", "%1 refused the page"),
    QT_TRANSLATE_NOOP("Reasons", "The printer %1 is paused. The page waits in its queue."),
    QT_TRANSLATE_NOOP("Reasons", "The page is held in the queue of the printer %1."),
    QT_TRANSLATE_NOOP("Reasons", "The picture of the screen is all black."),
    QT_TRANSLATE_NOOP("Reasons", "a profile that can't be read"),
    QT_TRANSLATE_NOOP("Reasons", "%1 bits a pixel in the file"),
    QT_TRANSLATE_NOOP("Reasons", "%1 x %2 dots per inch"),
    QT_TRANSLATE_NOOP("Reasons", "it is too large for a recipe"),
    QT_TRANSLATE_NOOP("Reasons", "a recipe begins with \"%1\""),
    QT_TRANSLATE_NOOP("Reasons", "the recipe is of version %1, and this program knows those up to %2"),
    QT_TRANSLATE_NOOP("Reasons", "%1 is no step; of the options only %2 SHAPE is"),
    QT_TRANSLATE_NOOP("Reasons", "%1 is a command word and takes no arguments"),
    QT_TRANSLATE_NOOP("Reasons", "the closing bracket is missing"),
    QT_TRANSLATE_NOOP("Reasons", "there is no pixel in it"),
    QT_TRANSLATE_NOOP("Reasons", "PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved as 24-bit True Color (.ppm) format."),
    QT_TRANSLATE_NOOP("Reasons", "it needs %1 of memory, more than half of the %2 that are free"),
    QT_TRANSLATE_NOOP("Reasons", "the picture would have %1"),
    QT_TRANSLATE_NOOP("Reasons", "no pixels"),
    QT_TRANSLATE_NOOP("Reasons", "%1 x %2 pixels; a side has at most %3"),
    QT_TRANSLATE_NOOP("Reasons", "%1 megapixels (%2 x %3 pixels); at most %4 are possible"),
    QT_TRANSLATE_NOOP("Reasons", "%1 can't be read"),
};
// clang-format on

struct Sentence {
    const char* english;
    QRegularExpression pattern;
};

std::vector<Sentence> sentences()
{
    static const QRegularExpression value(QStringLiteral("\\\\?%\\d"));
    std::vector<Sentence> all;
    for (const char* english : kReasons) {
        QString pattern = QRegularExpression::escape(QString::fromUtf8(english));
        pattern.replace(value, QStringLiteral("(.+)"));
        all.push_back({english, QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                                                   QRegularExpression::DotMatchesEverythingOption)});
    }
    return all;
}

/// A sentence may stand in another one, as may the name of a format.
QString shownValue(const QString& english)
{
    const QString reason = shownReason(english);
    return reason == english ? shown("Formats", english.toStdString()) : reason;
}

} // namespace

QString shownReason(const QString& english)
{
    static const std::vector<Sentence> all = sentences();
    for (const Sentence& sentence : all) {
        const QRegularExpressionMatch match = sentence.pattern.match(english);
        if (!match.hasMatch()) continue;
        const QString text = shown("Reasons", sentence.english);
        QString all; // in one go, since a value may contain "%1"
        for (qsizetype i = 0; i < text.size(); ++i) {
            const int number = text[i] == u'%' && i + 1 < text.size() ? text[i + 1].digitValue() : 0;
            if (number < 1 || number > match.lastCapturedIndex())
                all += text[i];
            else
                all += shownValue(match.captured(number)), ++i;
        }
        return all;
    }
    const qsizetype colon = english.indexOf(QStringLiteral(": "));
    return colon < 0 ? english : english.first(colon + 2) + shownReason(english.sliced(colon + 2));
}

} // namespace velara
