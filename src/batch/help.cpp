#include "batch/CommandLine.h"
#include "batch/names/NamePattern.h"
#include "commands/recipe/stepWords.h"
#include "seams/text.h"

namespace velara {

namespace {

QString column(const QString& text, int width) { return QStringLiteral("  ") + text.leftJustified(width) + u' '; }

/// "  Level    -300..300 (20)    levels added; 0 changes nothing", with the usual value in brackets.
QString described(const Parameter& p, bool optional)
{
    QString values = text(p.values);
    if (p.type == ArgumentType::Boolean) values = QStringLiteral("true|false");
    if (p.type == ArgumentType::Picture) values = QStringLiteral("file");
    if (!p.usual.empty()) values += QStringLiteral(" (") + text(p.usual) + u')';
    const QString name = text(p.name) + (optional ? QStringLiteral("?") : QString());
    return QStringLiteral("  ") + column(name, 15) + column(values, 22) + QStringLiteral("  ") + text(p.meaning) +
           u'\n';
}

/// Words separated by blanks, in indented lines of at most 80 characters.
QString wrapped(const QStringList& words)
{
    QString text, line;
    for (const QString& word : words) {
        if (line.isEmpty() || line.size() + word.size() > 78) {
            text += line + u'\n';
            line = QStringLiteral("   ");
        }
        line += u' ' + word;
    }
    return text + line + u'\n';
}

} // namespace

QString helpText()
{
    return QStringLiteral(R"(velara-batch INPUT [--select SHAPE]... [STEP]... [--web PRESET ... | --icon WxH] OUTPUT
velara-batch INPUT... [STEP]... --into FOLDER

Reads the picture INPUT, takes the steps in their order, each on the result of
the one before, and writes the picture OUTPUT. The extensions pick reader and
writer. An OUTPUT of .ppm, .pgm or .pbm is a portable anymap; it has true
colour, so its extension becomes .ppm. INPUT may be -, standard input, whose
format is known by its first bytes, or told by --input-format EXT; OUTPUT may be
-, standard output, with --format EXT.

STEP is one of
  WORD                   a command word, such as LIGHTEMBOSS, FLIPH, N90, x2
  OPERATION(ARGUMENTS)   without blanks, such as EMBOSS(10),
                         COLORIZE(0.5,0.25,1.0), GLASS(slanting,0). Colours
                         are 0x00BBGGRR or decimal. An operation that takes a
                         picture takes a file name; one with a ? in the list
                         may be left out. Text with commas goes
                         between double quotes, where two stand for one.
                         A mask is a square of numbers:
                         'MaskFilter(0 -1 0/-1 5 -1/0 -1 0,1,0,0,0,true)'.
                         TEXT puts a text on the picture, in a font that is
                         installed; several texts in one TEXT are merged at
                         once: the later ones show the picture below them.

Sizing words in a row (50, x2, 2x, ORIGINAL ...) each start from the picture
before the first of them: 50 50 is half the size.

--select SHAPE limits the steps after it to a part of the picture:
  rect:l,t,r,b           columns l to r-1, rows t to b-1
  rects:l,t,r,b,l,t,...  several rectangles
  ellipse:l,t,r,b        the ellipse in that rectangle
  polygon:x0,y0,x1,y1,...
  invert                 what is not selected; all when nothing is
  none                   nothing: the steps take the whole picture
A +, -, & or ^ before the shape adds it to the selection so far, takes it away,
keeps what is in both, or what is in one of the two only. Pictures of another
size start without a selection.

--web PRESET makes OUTPUT, whatever its name, what "Save for Web" writes, and
prints its type, depth and size. PRESET and the ENTRYs are the texts of the
dialog's lists; one that there is not prints those that there are:
  --map ENTRY            the palette, such as Optimal or "MS Map"
  --dither ENTRY         such as Ordered or "Forward Diag"
  --mode ENTRY           Colors or Greyscale
  --flip-h --flip-v --invert   not for JPEG
  --interlaced           for GIF
  --quality NUMBER|ENTRY for JPEG: 1 to 100, or such as Good
  --max-bytes N          the best that is not larger: for JPEG its quality, for
                         GIF and 8-bit PNG the number of colors and the dither

--icon WxH makes OUTPUT, whatever its name, a Windows icon of that size, each
side from 1 to 256; --icon WxH,mask:0x00BBGGRR one in which what has that colour
is transparent.

Many pictures: each INPUT is a file or a folder of them, and what becomes of
them goes into FOLDER under their own names. INPUTs stand first; the first word
that reads as a step begins the steps. Where a file has such a name, too, write
./NAME for the file, or --do before the steps.
  --into FOLDER          made if it isn't there
  --do                   what stands before it is INPUT, what follows are steps
  --recursive            folders in the folders, too
  --name PATTERN         the names; {dir}/{name}.{ext} without it. Fields:
)") + NamePattern::help() +
           QStringLiteral(R"(  --format EXT           the format; else each keeps its own
  --quality NUMBER       1 to 100, for jpg, webp, avif and jxl
  --existing skip        what is there stays, as without this option;
             replace     it is made anew; number: under another name;
             newer       it is made anew where its input is newer
  --jobs N               so many at the same time; else as many as cores. Fewer
                         where the memory does not hold so many of their size
  --stop-at-first        nothing is begun after a failure; else, as with
                         --keep-going, the other pictures are made
  --report FILE          a line of JSON a picture: input, output, result, bytes,
                         milliseconds, reason
  --shard I/N            of N parts of the work the one with the number I
  --in-place --yes       in place of --into: the originals are overwritten
Two inputs that would become one output are refused, and so is an output that
is one of the inputs. docs/manual/many.md has examples.

--recipe FILE takes the steps of the file in this place: a first line "velara
recipe 1", then a step a line, written as here but with no quotes of the shell;
lines that begin with # are for people.

--colours srgb|stored
           pictures that say what their colours are become sRGB, or are read as
           they are stored; srgb without it
--metadata keep|no-place|none
           what the camera wrote, date, exposure and place, goes into OUTPUT,
           or all but the place, or nothing; keep without it, but none with
           --web. Icons have no place for it

--page N   the N-th page or frame of INPUT, from 1, where it has several; the
           first without it
--list     prints every word and every operation with its arguments
--partial  takes what is there of a picture file whose end is missing
--threads N  1 to 64 threads for an operation; all cores without it
--verbose  tells on the error output what is done, and how far it is
--help     prints this
--         what follows are no options

Exit status: 0 done; 1 a picture could not be read or written; 2 an argument is
of no use, and the message names it; 3 an operation failed. On 1 to 3 nothing is
written, and an existing OUTPUT stays as it was. Many pictures: 0 all done; 1
some could not be made; 2 as above; 130 or 143 ended by a signal. Each output is
whole or not there.
)");
}

QString listText()
{
    QString list = QStringLiteral("Command words\n");
    QStringList idle;
    for (const StepWord& word : stepWords())
        if (word.meaning.isEmpty())
            idle << text(word.word);
        else
            list += column(text(word.word), 20) + word.meaning + u'\n';
    list += QStringLiteral("  does nothing to the picture:") + wrapped(idle);
    list +=
        QStringLiteral("\nOperations, with each argument's values (the usual one) and meaning; singles have decimals, "
                       "column, row and side count pixels, a ? may be left out\n");
    for (const Operation* operation : stepOperations()) {
        const auto& all = operation->parameters;
        QStringList names;
        for (const Parameter& p : all) names += text(p.name);
        list += QStringLiteral("  ") + text(operation->name) + u'(' + names.join(u',') + QStringLiteral(")\n");
        for (std::size_t i = 0; i < all.size(); ++i) list += described(all[i], i + operation->optional >= all.size());
    }
    return list;
}

} // namespace velara
