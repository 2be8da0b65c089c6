// velara-packaging: writes the files by which desktops, shells and man know the programs, from the programs' own
// tables:
//   velara-packaging TEMPLATES CHANGELOG BIN OUTPUT
// TEMPLATES: folder of the *.in files. BIN: where the programs will be. OUTPUT: a folder.
#include "completion.h"
#include "fileio/mimeTypes.h"
#include "manual.h"
#include "platform/opening/actions.h"
#include "releases.h"
#include "seams/text.h"
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace velara::packaging {

namespace {

constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

[[noreturn]] void fail(const QString& text)
{
    std::fprintf(stderr, "velara-packaging: %s\n", qPrintable(text));
    std::exit(EXIT_FAILURE);
}

QString read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) fail(path + " can't be read");
    return QString::fromUtf8(file.readAll());
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        fail(path + " can't be written");
}

/// The types of the rows that are wanted, each once.
template <class Wanted> QStringList types(Wanted wanted)
{
    QStringList found;
    for (const MimeType& row : kMimeTypes)
        if (wanted(row) && !found.contains(text(row.type))) found << text(row.type);
    return found;
}

QString list(const QStringList& entries) { return entries.join(u';') + u';'; }

QString declarations()
{
    QString xml;
    for (const MimeType& row : kMimeTypes)
        if (!row.comment.empty())
            xml += QStringLiteral("  <mime-type type=\"%1\">\n    <comment>%2</comment>\n"
                                  "    <glob pattern=\"*.%3\"/>\n  </mime-type>\n")
                       .arg(text(row.type), text(row.comment), text(row.extension));
    return xml;
}

QString actions(const QString& bin)
{
    QString groups;
    for (const DesktopAction& row : kDesktopActions)
        groups += QStringLiteral("\n[Desktop Action %1]\nName=%2\nIcon=%3\nExec=%4/velara-open --action %1\n")
                      .arg(text(row.name), text(row.caption), text(row.icon), bin);
    return groups.trimmed();
}

QMap<QString, QString> values(const QString& bin, const Releases& releases)
{
    QStringList names;
    for (const DesktopAction& row : kDesktopActions) names << text(row.name);
    const QStringList all = types([](const MimeType&) { return true; });
    QString provided;
    for (const QString& type : all) provided += QStringLiteral("    <mediatype>%1</mediatype>\n").arg(type);
    return {{"BIN", bin},
            {"MIME_TYPES", list(all)},
            {"THUMBNAIL_TYPES", list(types([](const MimeType& row) { return row.hasThumbnail; }))},
            {"MIME_DECLARATIONS", declarations()},
            {"PROVIDED_TYPES", provided},
            {"ACTION_NAMES", list(names)},
            {"ACTIONS", actions(bin)},
            {"RELEASES", releasesXml(releases)}};
}

QString filled(QString text, const QMap<QString, QString>& values)
{
    for (auto each = values.begin(); each != values.end(); ++each) text.replace('@' + each.key() + '@', each.value());
    return text;
}

void drawIcons(const QString& output)
{
    QSvgRenderer drawing(QStringLiteral(VELARA_ICON));
    if (!drawing.isValid()) fail("the icon can't be drawn");
    for (const int side : kIconSizes) {
        QImage icon(side, side, QImage::Format_ARGB32_Premultiplied);
        icon.fill(Qt::transparent);
        QPainter painter(&icon);
        drawing.render(&painter);
        painter.end();
        if (!icon.save(output + QStringLiteral("/%1.png").arg(side))) fail("an icon can't be written");
    }
}

} // namespace

} // namespace velara::packaging

int main(int argc, char** argv)
{
    using namespace velara::packaging;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc != 5) fail("TEMPLATES CHANGELOG BIN OUTPUT");
    const QDir templates(argv[1]);
    const QString bin = argv[3], output = argv[4];
    QDir().mkpath(output);
    const Releases releases = releasesOf(read(argv[2]));
    if (releases.isEmpty() || releases[0].version != VELARA_VERSION)
        fail(QStringLiteral("the first heading of the list of changes is not that of version " VELARA_VERSION));
    const auto replaced = values(bin, releases);
    for (const QString& name : templates.entryList({"*.in"}))
        write(output + '/' + name.chopped(3), filled(read(templates.filePath(name)), replaced).toUtf8());
    for (const auto& made : {manualPages(releases[0].date), completions()})
        for (auto each = made.begin(); each != made.end(); ++each)
            write(output + '/' + each.key(), each.value().toUtf8());
    write(output + "/changelog", debianChangelog(releases).toUtf8());
    drawIcons(output);
}
