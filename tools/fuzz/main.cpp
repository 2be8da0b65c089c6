// velara-fuzz: damaged pictures, sequences of operations, configuration records and region words, for a given time or
// number of runs. A fault is reported with its number, its input is kept, and the exit status is 1.
//
//   velara-fuzz [--seconds N | --runs N | --brief] [--seed N] [--warm] [--samples FOLDER] [--formats A,B] [--no-deaths]
//               [--keep FOLDER] [SUBJECT...]
#include "tools/fuzz/Watch.h"
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace velara::fuzz {

namespace {

constexpr Subject kSubjects[] = {{"pictures", 45, 125, tryPicture},
                                 {"inside", 15, 60, tryInside},
                                 {"operations", 30, 60, tryOperations},
                                 {"configuration", 5, 300, tryConfiguration},
                                 {"regions", 5, 300, tryRegion}};
constexpr long kReaderMemory = 4L << 20; // kB, the loader's limit

Plan planOf(const QCommandLineParser& line)
{
    Plan plan;
    for (const Subject& subject : kSubjects)
        if (line.positionalArguments().isEmpty() || line.positionalArguments().contains(subject.name))
            plan.subjects.push_back(&subject);
    plan.time = std::chrono::seconds(line.value("seconds").toInt());
    plan.runs = line.value("runs").toULongLong();
    plan.seed = line.value("seed").toULongLong();
    plan.brief = line.isSet("brief");
    plan.warm = line.isSet("warm");
    plan.keep = QDir(line.value("keep")).absolutePath();
    if (line.isSet("samples")) plan.samples = QDir(line.value("samples")).absolutePath(); // the folder changes
    plan.noDeaths = line.isSet("no-deaths");
    for (const QString& format : line.value("formats").split(',', Qt::SkipEmptyParts)) {
        if (!findFormat(format.toStdString())) qFatal("no format: %s", qPrintable(format));
        plan.formats += format;
    }
    return plan;
}

QStringList filesBelow(const QString& folder)
{
    QStringList found;
    for (const QFileInfo& info : QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        found += info.isDir() ? filesBelow(info.filePath()) << info.filePath() : QStringList(info.filePath());
    return found;
}

void printPictures(const Tally& tally)
{
    std::printf("%-8s", "format");
    for (const char* outcome : kOutcomeNames) std::printf("%13s", outcome);
    std::printf("\n");
    for (std::size_t f = 0; f < std::size(kFormats); ++f) {
        std::printf("%-8s", qPrintable(nameOf(kFormats[f])));
        for (const std::uint32_t count : tally[f]) std::printf("%13u", count);
        std::printf("\n");
    }
}

void print(const Plan& plan, const Progress& progress)
{
    const auto isPictures = [](const Subject* s) { return s->run == tryPicture || s->run == tryInside; };
    if (!plan.brief && std::ranges::any_of(plan.subjects, isPictures)) printPictures(progress.tally);
    for (std::size_t s = 0; s < plan.subjects.size(); ++s)
        std::printf("%-14s%10llu tried in %lld s\n", plan.subjects[s]->name,
                    static_cast<unsigned long long>(progress.done[s]),
                    static_cast<long long>(progress.spent[s] / 1000));
    rusage own{};
    getrusage(RUSAGE_CHILDREN, &own);
    std::printf(
        "faults %llu: crashes %llu, hangs %llu; slowest %lld ms; peak of a reader %ld MB, of the program %ld MB\n",
        static_cast<unsigned long long>(progress.faults), static_cast<unsigned long long>(progress.crashes),
        static_cast<unsigned long long>(progress.hangs), static_cast<long long>(progress.slowest),
        progress.readerPeak / 1024, own.ru_maxrss / 1024);
}

/// Counts files and processes left behind.
int remains(const QTemporaryDir& scratch)
{
    int count = 0;
    for (const char* folder : {"home", "temporary", "here"})
        for (const QString& file : filesBelow(scratch.filePath(folder)))
            std::fprintf(stderr, "FAULT left behind: %s\n", qUtf8Printable(file)), ++count;
    if (waitpid(-1, nullptr, WNOHANG) >= 0) std::fprintf(stderr, "FAULT left behind: a process\n"), ++count;
    return count;
}

int run(const Plan& plan)
{
    const QTemporaryDir scratch;
    for (const char* folder : {"home", "temporary", "here", "input"}) QDir(scratch.path()).mkdir(folder);
    qputenv("HOME", scratch.filePath("home").toUtf8());
    qputenv("TMPDIR", scratch.filePath("temporary").toUtf8());
    QDir::setCurrent(scratch.filePath("here"));
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const Progress& progress =
        carryOut(plan, {scratch.filePath("input"), plan.samples, nullptr, plan.formats, plan.noDeaths});
    QDir::setCurrent("/");
    print(plan, progress);
    const bool tooMuch = progress.readerPeak > kReaderMemory;
    if (tooMuch) std::fprintf(stderr, "FAULT a reader had more memory than it may\n");
    return remains(scratch) > 0 || progress.faults > 0 || tooMuch;
}

} // namespace

} // namespace velara::fuzz

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules("default.warning=false"); // else each damaged unpacking is reported
    QCommandLineParser line;
    line.addHelpOption();
    line.addOptions({{"seconds", "how long", "N", "60"},
                     {"runs", "how often each subject, whatever the time", "N", "0"},
                     {"brief", "the short run that the tests make"},
                     {"seed", "the first number", "N", "1"},
                     {"warm", "readers of pictures are copies of one that is loaded: many more pictures"},
                     {"samples", "sample pictures, a folder a format", "FOLDER"},
                     {"formats", "of pictures: these alone", "A,B,..."},
                     {"no-deaths", "a reader that dies or takes too long is a fault, too"},
                     {"keep", "where inputs of faults go", "FOLDER", "fuzz-faults"}});
    line.addPositionalArgument("SUBJECT",
                               "pictures, inside, operations, configuration, regions; all when none is named");
    line.process(application);
    const velara::fuzz::Plan plan = velara::fuzz::planOf(line);
    if (plan.subjects.empty()) line.showHelp(2);
    return velara::fuzz::run(plan);
}
