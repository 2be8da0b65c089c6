#include "completion.h"
#include "batch/CommandLine.h"
#include "commands/recipe/stepWords.h"
#include "fileio/formats.h"
#include "open/help.h"
#include "seams/text.h"
#include <QRegularExpression>
#include <QStringList>

namespace velara::packaging {

namespace {

struct Completion {
    QString word, meaning = {};
};

struct Program {
    QString name;
    QList<Completion> options; // with their dashes
    QList<Completion> words;
    QMap<QString, QStringList> values; // of an option
};

/// The options that a help text explains, each once, with what stands beside it.
QList<Completion> optionsOf(const QString& help)
{
    static const QRegularExpression kOption(QStringLiteral("(--[a-z][a-z-]*)"));
    static const QRegularExpression kMeaning(QStringLiteral("^ *(--[a-z][a-z-]*)(?: \\S+)? {2,}(\\S.*)$"),
                                             QRegularExpression::MultilineOption);
    QMap<QString, QString> found;
    for (auto each = kOption.globalMatch(help); each.hasNext();) found.insert(each.next().captured(1), {});
    for (auto each = kMeaning.globalMatch(help); each.hasNext();) {
        const auto match = each.next();
        found[match.captured(1)] = match.captured(2).trimmed();
    }
    QList<Completion> options;
    for (auto each = found.begin(); each != found.end(); ++each) options.append({each.key(), each.value()});
    return options;
}

Program openProgram(const QString& name)
{
    Program program{name, optionsOf(openHelp()), {}, {}};
    for (const DesktopAction& row : kDesktopActions) program.values["--action"] << text(row.name);
    return program;
}

Program batchProgram()
{
    Program program{"velara-batch", optionsOf(helpText()), {}, {}};
    for (const StepWord& word : stepWords()) program.words.append({text(word.word), word.meaning});
    for (const Operation* operation : stepOperations()) program.words.append({text(operation->name) + u'(', {}});
    // An option whose help says "--name a|b|c" takes one of these.
    static const QRegularExpression kChoice(QStringLiteral("(--[a-z-]+) ([a-z-]+(?:\\|[a-z-]+)+)"));
    for (auto each = kChoice.globalMatch(helpText()); each.hasNext();) {
        const auto match = each.next();
        program.values[match.captured(1)] = match.captured(2).split(u'|');
    }
    return program;
}

QStringList extensions()
{
    QStringList all;
    for (const Format& format : kFormats) all << text(format.extension);
    for (const OtherName& other : kOtherNames) all << text(other.extension);
    return all;
}

QString wordList(const QList<Completion>& rows)
{
    QStringList all;
    for (const Completion& row : rows) all << row.word;
    return all.join(u' ');
}

QString quoted(QString text) { return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\''; }

QString bash(const Program& program)
{
    QString name = program.name;
    const QString function = u'_' + name.replace(u'-', u'_');
    QString cases;
    for (auto each = program.values.begin(); each != program.values.end(); ++each)
        cases +=
            QStringLiteral("    %1)\n        COMPREPLY=($(compgen -W %2 -- \"$cur\"))\n        return\n        ;;\n")
                .arg(each.key(), quoted(each.value().join(u' ')));
    return QStringLiteral(R"(# Completion of %1 for bash
%2()
{
    local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} IFS=$' \t\n'
    case $previous in
%3    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W %4 -- "$cur"))
        return
    fi
    IFS=$'\n'
    shopt -q extglob; local had=$?
    shopt -s extglob
    COMPREPLY=($(compgen -d -- "$cur") $(compgen -f -X '!*.@(%5)' -- "$cur"))
    [ $had = 0 ] || shopt -u extglob
    IFS=$' \t\n'
    [ -z "$cur" ] || COMPREPLY+=($(compgen -W %6 -- "$cur"))
}
complete -o filenames -F %2 %1
)")
        .arg(program.name, function, cases, quoted(wordList(program.options)),
             (extensions() + QStringList(extensions().join(u'|').toUpper().split(u'|'))).join(u'|'),
             quoted(wordList(program.words)));
}

/// "name:meaning" for _describe.
QString described(const QList<Completion>& rows)
{
    QString lines;
    for (const Completion& row : rows) {
        QString word = row.word;
        lines += QStringLiteral("    ") +
                 quoted(word.replace(u':', QStringLiteral("\\:")) + (row.meaning.isEmpty() ? "" : ":" + row.meaning)) +
                 u'\n';
    }
    return lines;
}

QString zsh(const QList<Program>& programs)
{
    const Program& program = programs[0];
    QStringList names;
    for (const Program& each : programs) names << each.name;
    QString cases;
    for (auto each = program.values.begin(); each != program.values.end(); ++each)
        cases += QStringLiteral("    %1) compadd -- %2; return ;;\n").arg(each.key(), each.value().join(u' '));
    return QStringLiteral(R"(#compdef %1
local -a options steps
options=(
%2)
steps=(
%3)
case $words[CURRENT-1] in
%4esac
if [[ $PREFIX == -* ]]; then
    _describe -o option options
else
    (( $#steps )) && [[ -n $PREFIX ]] && _describe step steps
    _files -g '(#i)*.(%5)'
fi
)")
        .arg(names.join(u' '), described(program.options), described(program.words), cases, extensions().join(u'|'));
}

QString fish(const Program& program)
{
    QString lines =
        QStringLiteral("# Completion of %1 for fish; files are completed as everywhere\n").arg(program.name);
    for (const Completion& option : program.options) {
        lines += QStringLiteral("complete -c %1 -l %2").arg(program.name, option.word.mid(2));
        if (program.values.contains(option.word))
            lines += QStringLiteral(" -x -a ") + quoted(program.values[option.word].join(u' '));
        if (!option.meaning.isEmpty()) lines += QStringLiteral(" -d ") + quoted(option.meaning);
        lines += u'\n';
    }
    for (const Completion& word : program.words) {
        lines += QStringLiteral("complete -c %1 -a ").arg(program.name) + quoted(quoted(word.word));
        if (!word.meaning.isEmpty()) lines += QStringLiteral(" -d ") + quoted(word.meaning);
        lines += u'\n';
    }
    return lines;
}

} // namespace

QMap<QString, QString> completions()
{
    const QList<Program> openers{openProgram("velara-open"), openProgram("velara-studio")};
    const Program batch = batchProgram();
    QMap<QString, QString> files{{"_velara-batch", zsh({batch})}, {"_velara-open", zsh(openers)}};
    for (const Program& each : openers + QList<Program>{batch}) {
        files.insert(each.name + ".bash", bash(each));
        files.insert(each.name + ".fish", fish(each));
    }
    return files;
}

} // namespace velara::packaging
