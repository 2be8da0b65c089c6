#include "batch/names/NamePattern.h"
#include "batch/Failure.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include <QDateTime>
#include <QStringList>
#include <ranges>

namespace velara {

namespace {

/// Of a name with an ending what stands before it; a dot at the beginning begins none.
QString stemOf(const QString& file)
{
    const qsizetype dot = file.lastIndexOf(u'.');
    return dot > 0 ? file.left(dot) : file;
}

QString endingOf(const QString& file) { return file.mid(stemOf(file).size() + 1).toLower(); }

QString folderNameOf(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    const QString folder = slash > 0 ? lastName(path.left(slash)) : QString();
    return folder == QStringLiteral(".") || folder == QStringLiteral("..") ? QString() : folder;
}

QString dayOf(std::int64_t time)
{
    return QDateTime::fromSecsSinceEpoch(time).date().toString(QStringLiteral("yyyy-MM-dd"));
}

QString sideOf(int pixels, const char* unknown)
{
    return pixels > 0 ? QString::number(pixels) : QLatin1String(unknown);
}

struct Field {
    std::string_view name;
    const char* meaning;
    QString (*of)(const NameFacts& facts);
    bool isNumber = false, isLate = false;
};
// clang-format off
constexpr Field kFields[] = {
    {"name",   "the input's name without its ending",               [](const NameFacts& f) { return stemOf(lastName(f.input)); }},
    {"ext",    "the ending of the output's format",                 [](const NameFacts& f) { return f.ext; }},
    {"from",   "the ending of the input",                           [](const NameFacts& f) { return endingOf(lastName(f.input)); }},
    {"n",      "its number, from 1; {n:04} with four digits",       [](const NameFacts& f) { return QString::number(f.number); }, true},
    {"dir",    "the folders between the INPUT folder and the file", [](const NameFacts& f) { return f.dir; }},
    {"parent", "the name of the folder that it is in",              [](const NameFacts& f) { return folderNameOf(f.input); }},
    {"date",   "the day it was last changed, as 2026-11-26",        [](const NameFacts& f) { return dayOf(f.time); }},
    {"width",  "the width of the output in pixels",                 [](const NameFacts& f) { return sideOf(f.width, "{width}"); }, true, true},
    {"height", "its height",                                        [](const NameFacts& f) { return sideOf(f.height, "{height}"); }, true, true},
};
// clang-format on
constexpr int kMostDigits = 9;

QString nameOfField(const Field& field) { return QLatin1String(field.name.data(), qsizetype(field.name.size())); }

QString fieldNames()
{
    QStringList names;
    for (const Field& field : kFields) names << u'{' + nameOfField(field) + u'}';
    return names.join(QStringLiteral(", "));
}

Failure badPattern(const QString& what) { return badArgument(QStringLiteral("--name: ") + what); }

} // namespace

NamePattern::Piece NamePattern::fieldOf(const QString& text) const
{
    const qsizetype colon = text.indexOf(u':');
    const std::string name = text.left(colon < 0 ? text.size() : colon).toStdString();
    const auto* field = std::ranges::find(kFields, name, &Field::name);
    if (field == std::end(kFields))
        throw badPattern(QStringLiteral("there is no field {%1}; there are %2").arg(text, fieldNames()));
    Piece piece;
    piece.field = static_cast<int>(field - kFields);
    if (colon < 0) return piece;
    bool isNumber = false;
    piece.digits = text.mid(colon + 1).toInt(&isNumber);
    if (!field->isNumber || !isNumber || piece.digits < 1 || piece.digits > kMostDigits)
        throw badPattern(QStringLiteral("{%1}: digits, 1 to %2, go with {n}, {width} and {height} alone, as in {n:04}")
                             .arg(text)
                             .arg(kMostDigits));
    return piece;
}

NamePattern::NamePattern(const QString& pattern)
{
    QString literal;
    const auto endLiteral = [&] {
        if (!literal.isEmpty()) pieces_.push_back({literal});
        literal.clear();
    };
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c != u'{' && c != u'}') {
            literal += c;
        } else if (i + 1 < pattern.size() && pattern[i + 1] == c) {
            literal += c;
            ++i;
        } else {
            const qsizetype end = pattern.indexOf(u'}', i);
            if (c == u'}' || end < 0)
                throw badPattern(QStringLiteral("a bracket has no partner; {{ and }} are the characters themselves"));
            endLiteral();
            pieces_.push_back(fieldOf(pattern.mid(i + 1, end - i - 1)));
            i = end;
        }
    }
    endLiteral();
    if (pattern.startsWith(u'/') || pattern.split(u'/').contains(QStringLiteral("..")))
        throw badPattern(QStringLiteral("it leads out of the folder"));
    if (pieces_.empty()) throw badPattern(QStringLiteral("it is empty"));
    if (!endsInAFormat()) {
        pieces_.push_back({QStringLiteral(".")});
        pieces_.push_back(fieldOf(QStringLiteral("ext")));
    }
}

/// The ending of the output, which decides about its format, is told by the pattern.
bool NamePattern::endsInAFormat() const
{
    const Piece& last = pieces_.back();
    if (last.field >= 0) return kFields[last.field].name == "ext" || kFields[last.field].name == "from";
    const Format* format = formatOf(QStringLiteral("x") + last.literal);
    return format && format->saved();
}

QString NamePattern::nameOf(const NameFacts& facts) const
{
    QString name;
    for (const Piece& piece : pieces_)
        name += piece.field < 0 ? piece.literal : kFields[piece.field].of(facts).rightJustified(piece.digits, u'0');
    while (name.startsWith(u'/')) name.remove(0, 1); // of an empty {dir}
    return name.replace(QStringLiteral("//"), QStringLiteral("/"));
}

bool NamePattern::isLate() const
{
    return std::ranges::any_of(pieces_,
                               [](const Piece& each) { return each.field >= 0 && kFields[each.field].isLate; });
}

QString NamePattern::help()
{
    QString text;
    for (const Field& field : kFields)
        text += QStringLiteral("  ") + (u'{' + nameOfField(field) + u'}').leftJustified(11) +
                QString::fromUtf8(field.meaning) + u'\n';
    return text;
}

} // namespace velara
