// velara-compare: reads the same bytes by two readers, that of the programs and the one that stood there before it, and
// compares size, ending (a picture, cut off, refused) and every pixel; on pictures and on mutants of them.
//
//   velara-compare [--runs N] [--seed S] [--list N] [--keep FOLDER] FILE|FOLDER ...
//
// Without --runs the files are compared as they are; with it, mutants of them, numbered from S on: each of the same
// arguments with --seed NUMBER --runs 1. Of each kind of difference the first ones are listed, and kept in the folder.
//
// Known to differ:
// - Only today's reader reads: run-length encoded bmp with a 124-byte header; pcx windows of one row or column in other
//   than true colour; ras with a full map in other than the plain 8-bit form, and true colour with a map; wbmp with
//   extensions.
// - Today's reader is right: uncompressed pcx of one or four planes (skipped bytes); run-length encoded tga up to the
//   end of the file (called cut off).
// - Behind a cut: run-length encoded tga and pcx, koa and PBM in iff repeat or show old memory; today's are black.
// - Only the old one reads: bmp of a negative width, or with runs of another depth; anymap numbers beyond 2^31
//   (wrapped).
// - gif: today's reader is right where an interlaced frame has fewer than five rows or reaches beyond the screen, and
//   where there are more pixels than the frame has (drawn below it). At a code that is in no table it ends, the old one
//   invents pixels; it says where pixels are missing. Only today's reads: screens out of all proportion to the first
//   frame, files cut in a frame's head, damage behind the first four kilobytes. Only the old one reads: files without
//   the mark, indices of more than eight bits.
// - tif: only today's reads 1 and 2 bits with alpha, colours of fewer than 8 bits, five samples, tiles in planes and
//   single complex numbers. It is right where the old one mixes up samples: 4 bits with alpha, several samples of 16
//   bits in other than colours, halves, two doubles, floats in planes, whole complex numbers, 16 bits in L*a*b*. Only
//   the old one reads inks of one or two samples (as light).
#include "fileio/formats.h"
#include "tools/compare/Reading.h"
#include "tools/compare/oldReaders.h"
#include "tools/fuzz/Subject.h"
#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <cstdio>
#include <map>
#include <numeric>

using namespace velara;
using namespace velara::compare;

namespace {

enum Verdict { Same, BothRefuse, OnlyNew, OnlyOld, Differ, NoteDiffers, OldRandom, OldDied, NewDied, Verdicts };
constexpr const char* kVerdicts[Verdicts] = {"same",         "both refuse", "only new", "only old", "differ",
                                             "note differs", "old random",  "old died", "new died"};

struct Sample {
    QString name;
    QByteArray bytes;
};
using Samples = std::map<QString, QList<Sample>>; // by extension

struct Comparison {
    Verdict verdict;
    QString detail;
};

struct Options {
    std::uint64_t runs = 0, seed = 1;
    int list = 3;
    QString keep;
};

std::span<const std::uint8_t> spanOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

decode::Decoded decodeNew(decode::FileBytes&& file, const QString& extension)
{
    return decode::decodePicture(std::move(file), extension, {.srgb = false, .facts = false});
}

class Comparer {
  public:
    Comparison compare(const QByteArray& bytes, const QString& extension)
    {
        const auto data = spanOf(bytes);
        const Result& now = new_.read(decodeNew, data, extension, terms());
        const Result& before = old_.read(decodeOld, data, extension, terms());
        const QString ends = QString("old: %1, new: %2").arg(ended(before), ended(now));
        if (now.end == End::Died || now.end == End::TooLong) return {NewDied, ends};
        if (before.end == End::Died || before.end == End::TooLong) return {OldDied, ends};
        if (!now.shows() && !before.shows()) return {BothRefuse, ends};
        const Comparison found = !before.shows() ? Comparison{OnlyNew, ends}
                                 : !now.shows()  ? Comparison{OnlyOld, ends}
                                                 : ofPixels(now, before, data, extension);
        if (found.verdict == Same) return found;
        return isRandom(data, extension) ? Comparison{OldRandom, found.detail} : found;
    }

  private:
    static Terms terms(int row = 0, int perturb = 0)
    {
        Terms terms{row, perturb};
#ifndef __SANITIZE_ADDRESS__
        terms.megabytes = 4 << 10;
#endif
        return terms;
    }
    static QString ended(const Result& result)
    {
        QString text = kEndNames[static_cast<int>(result.end)];
        if (result.signal) text += QString(" (signal %1)").arg(result.signal);
        if (result.shows()) text += QString(" of %1 x %2").arg(result.width).arg(result.height);
        if (result.reason[0]) text += QString(", \"%1\"").arg(QString::fromUtf8(result.reason.data()));
        return text;
    }

    Comparison ofPixels(const Result& now, const Result& before, std::span<const std::uint8_t> data,
                        const QString& extension)
    {
        const QString ends = QString("old: %1, new: %2").arg(ended(before), ended(now));
        if (now.width != before.width || now.height != before.height) return {Differ, ends};
        const auto height = static_cast<std::size_t>(now.height);
        const auto end = now.rows.begin() + static_cast<std::ptrdiff_t>(height);
        const auto at = std::mismatch(now.rows.begin(), end, before.rows.begin()).first;
        if (at == end) return {now.end == before.end ? Same : NoteDiffers, ends};
        const int y = static_cast<int>(at - now.rows.begin());
        const auto rowsDiffer =
            std::inner_product(now.rows.begin(), end, before.rows.begin(), 0, std::plus<>(), std::not_equal_to<>());
        const Result& newRow = new_.read(decodeNew, data, extension, terms(y));
        const Result& oldRow = old_.read(decodeOld, data, extension, terms(y));
        const auto pixel = std::mismatch(newRow.row.begin(), newRow.row.begin() + newRow.width, oldRow.row.begin());
        const auto text = [](const Pixel& p) {
            return QString::asprintf("%02x%02x%02x.%02x", p.c[2], p.c[1], p.c[0], p.c[3]);
        };
        return {Differ, QString("%1 rows differ, first at %2, %3: old %4, new %5; %6")
                            .arg(rowsDiffer)
                            .arg(pixel.first - newRow.row.begin())
                            .arg(y)
                            .arg(text(*pixel.second), text(*pixel.first), ends)};
    }

    /// Whether the old reader shows memory that it never wrote.
    bool isRandom(std::span<const std::uint8_t> data, const QString& extension)
    {
        constexpr int kPerturbs[] = {0x5a, 0xa7};
        std::vector<std::uint64_t> first;
        for (const int perturb : kPerturbs) {
            const Result& again = old_.read(decodeOld, data, extension, terms(0, perturb));
            std::vector<std::uint64_t> facts = {static_cast<std::uint64_t>(again.end)};
            if (again.shows()) facts.insert(facts.end(), again.rows.begin(), again.rows.begin() + again.height);
            if (first.empty())
                first = facts;
            else
                return facts != first;
        }
        return false;
    }

    Reading new_, old_;
};

class Table {
  public:
    explicit Table(const Options& options) : options_(options) {}
    void add(const QString& name, const QString& extension, const QByteArray& bytes, const Comparison& found)
    {
        auto& counts = counts_[extension];
        const std::uint64_t count = ++counts[found.verdict];
        if (found.verdict <= BothRefuse || found.verdict == OldDied || count > std::uint64_t(options_.list)) return;
        std::printf("%s: %s: %s\n", kVerdicts[found.verdict], qPrintable(name), qPrintable(found.detail));
        std::fflush(stdout);
        if (options_.keep.isEmpty()) return;
        QFile file(options_.keep + '/' + name.section('/', -1).section(' ', 0, 0) + '.' + extension);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::perror("--keep");
    }
    /// Returns whether nothing differs.
    bool print() const
    {
        std::printf("\n%-6s", "");
        for (const char* verdict : kVerdicts) std::printf("%13s", verdict);
        std::printf("\n");
        bool equal = true;
        for (const auto& [extension, counts] : counts_) {
            std::printf("%-6s", qPrintable(extension));
            for (const std::uint64_t count : counts) std::printf("%13llu", static_cast<unsigned long long>(count));
            std::printf("\n");
            equal = equal && !counts[OnlyOld] && !counts[Differ] && !counts[NoteDiffers] && !counts[NewDied];
        }
        return equal;
    }

  private:
    const Options& options_;
    std::map<QString, std::array<std::uint64_t, Verdicts>> counts_;
};

void collect(const QString& path, Samples& samples)
{
    QStringList names;
    if (QFileInfo(path).isDir())
        for (QDirIterator each(path, QDir::Files, QDirIterator::Subdirectories); each.hasNext();) names += each.next();
    else
        names += path;
    names.sort();
    for (const QString& name : names) {
        const QString extension = extensionOf(name);
        QFile file(name);
        if (isOldFormat(extension) && file.open(QIODevice::ReadOnly) && file.size() > 0)
            samples[extension] += Sample{name, file.readAll()};
    }
}

void compareMutants(const Samples& samples, const Options& options, Comparer& comparer, Table& table)
{
    for (std::uint64_t number = options.seed; number < options.seed + options.runs; ++number) {
        const auto& [extension, list] =
            *std::next(samples.begin(), static_cast<std::ptrdiff_t>(number % samples.size()));
        Dice dice = fuzz::diceOf("compare", number);
        const auto pick = [&, &of = list]() -> const Sample& {
            return of[dice.within(0, static_cast<int>(of.size()) - 1)];
        };
        const Sample& sample = pick();
        QByteArray bytes = sample.bytes;
        fuzz::mutate(bytes, pick().bytes, dice);
        if (bytes.isEmpty()) continue;
        const QString name = QString("seed%1 of %2").arg(number).arg(sample.name.section('/', -1));
        table.add(name, extension, bytes, comparer.compare(bytes, extension));
    }
}

} // namespace

int main(int count, char** words)
{
    const QCoreApplication program(count, words);
    Options options;
    Samples samples;
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const auto next = [&] { return i + 1 < arguments.size() ? arguments[++i] : QString(); };
        if (arguments[i] == "--runs")
            options.runs = next().toULongLong();
        else if (arguments[i] == "--seed")
            options.seed = next().toULongLong();
        else if (arguments[i] == "--list")
            options.list = next().toInt();
        else if (arguments[i] == "--keep")
            options.keep = next();
        else
            collect(arguments[i], samples);
    }
    if (samples.empty()) {
        std::fprintf(stderr, "velara-compare [--runs N] [--seed S] [--list N] [--keep FOLDER] FILE|FOLDER ...\n");
        return 2;
    }
    for (const auto& [extension, list] : samples) decode::prepareReaders(extension, {});
    Comparer comparer;
    Table table(options);
    if (options.runs)
        compareMutants(samples, options, comparer, table);
    else
        for (const auto& [extension, list] : samples)
            for (const Sample& each : list)
                table.add(each.name, extension, each.bytes, comparer.compare(each.bytes, extension));
    return table.print() ? 0 : 1;
}
