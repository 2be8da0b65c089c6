#include "manual.h"
#include "batch/CommandLine.h"
#include "open/help.h"
#include <QRegularExpression>

namespace velara::packaging {

namespace {

QString escaped(const QString& text)
{
    QString out = text;
    out.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    // What begins with a dot or an apostrophe would be a request.
    return out.replace(QRegularExpression(QStringLiteral("^([.'])"), QRegularExpression::MultilineOption),
                       QStringLiteral("\\&\\1"));
}

QString section(const QString& title, const QString& text)
{
    return QStringLiteral(".SH %1\n").arg(title) + text + u'\n';
}

/// As it stands, line by line.
QString literal(const QString& text)
{
    return QStringLiteral(".nf\n") + escaped(text.trimmed()) + QStringLiteral("\n.fi");
}

QString head(const QString& program, const QString& does, const QString& date)
{
    return QStringLiteral(".TH %1 1 %2 \"Velara Studio " VELARA_VERSION "\" \"User Commands\"\n")
               .arg(program.toUpper(), date) +
           section("NAME", escaped(program + " - " + does));
}

/// A page of a help text: its first paragraph is the synopsis.
QString pageOf(const QString& program, const QString& does, const QString& help, const QString& date)
{
    const qsizetype end = help.indexOf(u"\n\n");
    return head(program, does, date) + section("SYNOPSIS", literal(help.left(end))) +
           section("DESCRIPTION", literal(help.mid(end)));
}

QString studioPage(const QString& date)
{
    return head("velara-studio", "edits pictures", date) + section("SYNOPSIS", ".B velara\\-studio\n.RI [ FILE ]...") +
           section(
               "DESCRIPTION",
               escaped("Edits raster pictures: filters with a live preview, mouse tools, selections, text, undo, and "
                       "many formats in and out.\n"
                       "With files it does what velara-open does: the editor that runs already opens them. Without "
                       "files another editor is started, even if one runs.\n"
                       "A first option with one dash, such as -platform, is taken by the Qt libraries, with all that "
                       "follows.")) +
           section("FILES",
                   ".TP\n$XDG_CONFIG_HOME/velara\\-studio\nthe configuration and the user's colours; limits.conf "
                   "there, and "
                   "in /etc/xdg/velara\\-studio, limits what is read\n"
                   ".TP\n$XDG_DATA_HOME/velara\\-studio\nstamps, textures, pictures\n"
                   ".TP\n$XDG_STATE_HOME/velara\\-studio\nwhat can be undone, while a picture is open\n"
                   ".PP\nBeside a file called portable, in a folder that can be written to, the program keeps all of "
                   "them in its own folder.") +
           section("HELPERS", escaped("In libexec/velara-studio, started by these programs and by no one else: "
                                      "velara-decode and velara-decode-all read one picture file each, in a sandbox "
                                      "(velara-decode --cage tells which of its layers hold on this machine), "
                                      "velara-encode makes AVIF and JPEG XL files, velara-scan accesses scanners, "
                                      "velara-batch becomes velara-batch-all to draw texts and icons.\n"
                                      "The manual with pictures opens by F1, and lies in "
                                      "share/doc/velara-studio/manual."));
}

QString seeAlso(const QString& others) { return section("SEE ALSO", others); }

} // namespace

QMap<QString, QString> manualPages(const QString& date)
{
    return {{"velara-studio.1", studioPage(date) + seeAlso(".BR velara\\-open (1),\n.BR velara\\-batch (1)")},
            {"velara-open.1", pageOf("velara-open", "opens pictures in Velara Studio", openHelp(), date) +
                                  seeAlso(".BR velara\\-studio (1)")},
            {"velara-batch.1", pageOf("velara-batch", "changes picture files without a window", helpText(), date) +
                                   section("WORDS AND OPERATIONS", literal(listText())) +
                                   seeAlso(".BR velara\\-studio (1)")}};
}

} // namespace velara::packaging
