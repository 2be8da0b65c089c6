#include "fileio/formats.h"
#include "fileio/mimeTypes.h" // which is checked against the formats
#include "seams/text.h"
#include <QFileInfo>
#include <QStringList>
#include <ranges>
#include <span>

namespace velara {

namespace {

/// How often the extension occurs in the list.
constexpr int countOf(std::string_view extension, std::span<const Kinds> kinds)
{
    int count = 0;
    for (const Kinds& line : kinds)
        for (const auto part : std::views::split(line.extensions, ' '))
            if (std::ranges::equal(part, extension)) ++count;
    return count;
}
static_assert(std::ranges::all_of(kFormats,
                                  [](const Format& f) { return countOf(f.extension, kOpened) == hasFamily(f); }),
              "a format that opens has one line of the file dialog: add it to kOpened in src/fileio/formats.h");
static_assert(std::ranges::all_of(kFormats,
                                  [](const Format& f) { return countOf(f.extension, kSaved) == (f.saved() ? 2 : 0); }),
              "a format that is saved stands in the first line and in its own: see kSaved in src/fileio/formats.h");

QString filterOf(std::span<const Kinds> kinds)
{
    QStringList parts;
    for (const Kinds& line : kinds) {
        QStringList patterns;
        for (const QString& usual : text(line.extensions).split(u' ')) {
            patterns << "*." + usual;
            for (const OtherName& other : kOtherNames)
                if (text(other.usual) == usual) patterns << "*." + text(other.extension);
        }
        parts << shown("Formats", line.caption) << patterns.join(u';');
    }
    return parts.join(u'|');
}

} // namespace

QString extensionOf(const QString& path) { return QFileInfo(path).suffix().toLower(); }

QString withExtension(const QString& path, const QString& extension)
{
    if (!extensionOf(path).isEmpty()) return path;
    return path + (path.endsWith('.') ? "" : ".") + extension;
}

QString withEnding(const QString& path, const QString& extension)
{
    const QString ending = extensionOf(path);
    if (usualExtension(ending.toStdString()) == usualExtension(extension.toStdString())) return path;
    const QString stem = formatOf(path) ? path.chopped(ending.size() + 1) : path;
    return stem + (stem.endsWith(u'.') ? "" : ".") + extension;
}

const Family* familyOf(const QString& path)
{
    const std::string given = extensionOf(path).toStdString();
    const std::string_view extension = usualExtension(given);
    const auto* found = std::ranges::find_if(kFamilies, [&](const Family& each) { return each.holds(extension); });
    return extension.empty() || found == std::end(kFamilies) ? nullptr : found;
}

const Format* formatOf(const QString& path) { return findFormat(extensionOf(path).toStdString()); }

QString otherKind(const QString& name, const QString& format)
{
    const Format *has = findFormat(format.toStdString()), *says = formatOf(name);
    if (!has || (says && says->name == has->name)) return {};
    return QCoreApplication::translate("Formats", "%1 is %2 picture").arg(name, shown("Formats", has->name));
}

QString openFilter()
{
    std::string all;
    for (const Format& format : kFormats)
        if (hasFamily(format)) all.append(all.empty() ? "" : " ").append(format.extension);
    const Kinds first[] = {{kAllOpened, all}};
    return filterOf(first) + u'|' + filterOf(kOpened);
}

QString saveFilter() { return filterOf(kSaved); }

SaveTarget saveTargetOf(const QString& path)
{
    const QString extension = extensionOf(path);
    const Format* format = formatOf(path);
    if (!format || format->saving != Saving::AsAnymap) return {path, extension, path};
    const QString name = path.chopped(extension.size());
    return {name, QStringLiteral("pnm"), name + QStringLiteral("ppm")};
}

} // namespace velara
