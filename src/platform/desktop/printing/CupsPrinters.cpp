#include "platform/desktop/printing/CupsPrinters.h"
#include "fileio/writers/pagePdf.h"
#include "platform/desktop/printing/cups.h"
#include "seams/Platform.h"
#include <QLocale>
#include <QPageSize>
#include <QTemporaryDir>

namespace velara {

namespace {

constexpr const char *kSection = "Printer", *kCurrent = "Current"; // of the settings
constexpr const char* kSilent = "the print server does not answer";

// clang-format off
constexpr struct {
    const char* name; // of the print server
    QPageSize::PageSizeId size;
} kUsualPapers[] = {
    {"iso_a4_210x297mm",   QPageSize::A4},
    {"na_letter_8.5x11in", QPageSize::Letter},
    {"iso_a3_297x420mm",   QPageSize::A3},
    {"iso_a5_148x210mm",   QPageSize::A5},
    {"na_legal_8.5x14in",  QPageSize::Legal},
};
// clang-format on

/// This country's first.
std::vector<Paper> usualPapers()
{
    std::vector<Paper> papers;
    for (const auto& [name, size] : kUsualPapers)
        papers.push_back({name, QPageSize::size(size, QPageSize::Millimeter), {5, 5, 5, 5}});
    if (QLocale::system().measurementSystem() == QLocale::ImperialUSSystem) std::swap(papers[0], papers[1]);
    return papers;
}

/// The papers with `first` in front.
std::vector<Paper> led(const Paper& first, std::vector<Paper> papers)
{
    std::erase_if(papers, [&](const Paper& paper) { return paper.name == first.name; });
    papers.insert(papers.begin(), first);
    return papers;
}

/// The server's options for a page: upright and unscaled, with its number of copies and its quality.
JobOptions optionsOf(const PrintPage& page)
{
    constexpr const char* kQualities[] = {"3", "4", "4", "5"}; // the server knows draft, normal and high
    JobOptions options{{"copies", QByteArray::number(page.copies)},
                       {"print-quality", kQualities[-static_cast<int>(page.quality) - 1]},
                       {"orientation-requested", "3"},
                       {"print-scaling", "none"}};
    if (page.gray) options.emplace_back("print-color-mode", "monochrome"); // the grey inks, if it has them
    if (!page.paper.name.isEmpty()) options.emplace_back("media", page.paper.name.toUtf8());
    return options;
}

PrintResult printBy(const QString& printer, const PrintPage& page, const JobOptions& options, Patience& patience)
{
    const QTemporaryDir folder; // accessible to its owner only
    const QString pdf = folder.filePath("page.pdf");
    const auto wanted = [&patience] { return patience.lasts(); };
    const QString fault = writePagePdf(pdf, page, wanted, PageTurn::AsFed);
    if (!fault.isEmpty() || !wanted()) return {fault};
    patience.startAnew(kServerPatience);
    return cupsPrint(printer, pdf, page.title, options, patience);
}

} // namespace

Printers::Request CupsPrinters::list(std::function<void(const List&)> done)
{
    const QString last = platform_.setting(kSection, kCurrent, {});
    const auto look = [last, toFile = toFile_](Patience& patience) {
        List list = cupsQueues(patience);
        if (list.names.contains(last)) list.current = last;
        if (list.current.isEmpty() && !list.names.isEmpty()) list.current = list.names.front();
        if (toFile) list.current.clear();
        return list;
    };
    return talks_.ask<List>(look, {{}, {}, kSilent}, kServerPatience, std::move(done));
}

void CupsPrinters::setCurrent(const QString& name)
{
    toFile_ = false;
    platform_.setSetting(kSection, kCurrent, name);
}

PrinterChoice CupsPrinters::chosenFor(const QString& printer) const
{
    const auto found = chosen_.find(printer);
    return found != chosen_.end() ? found->second : PrinterChoice{printer, {}, false};
}

PrinterFacts CupsPrinters::fileFacts()
{
    const PrinterChoice chosen = chosenFor({});
    return {chosen.paper.value_or(usualPapers().front()), chosen.gray};
}

Printers::Request CupsPrinters::facts(const QString& printer, std::function<void(const PrinterFacts&)> done)
{
    const auto factsOf = [chosen = chosenFor(printer)](const QueueFacts& queue) {
        return PrinterFacts{chosen.paper.value_or(queue.papers.front()), chosen.gray, queue.mostCopies};
    };
    return talks_.ask<PrinterFacts>(
        [=](Patience& patience) { return factsOf(cupsFacts(printer, usualPapers(), patience)); },
        factsOf({usualPapers()}), kServerPatience, std::move(done));
}

Printers::Request CupsPrinters::options(const QString& printer, std::function<void(const Options&)> done)
{
    const auto optionsWith = [chosen = chosenFor(printer)](const std::vector<Paper>& papers) {
        return Options{chosen.paper ? led(*chosen.paper, papers) : papers, chosen.gray};
    };
    return talks_.ask<Options>(
        [=](Patience& patience) {
            return optionsWith(printer.isEmpty() ? usualPapers() : cupsFacts(printer, usualPapers(), patience).papers);
        },
        optionsWith(usualPapers()), kServerPatience, std::move(done));
}

void CupsPrinters::choose(const PrinterChoice& choice)
{
    if (!choice.printer.isEmpty()) setCurrent(choice.printer);
    toFile_ = choice.printer.isEmpty();
    chosen_[choice.printer] = choice;
}

Printers::Request CupsPrinters::print(const QString& printer, const PrintPage& page, Done done)
{
    constexpr std::chrono::hours kWriting{24}; // writing the page has no real limit; then the server's time begins
    return talks_.ask<PrintResult>(
        [=, options = optionsOf(page)](Patience& patience) { return printBy(printer, page, options, patience); },
        {kSilent}, kWriting, std::move(done));
}

Printers::Request CupsPrinters::printToFile(const QString& path, const PrintPage& page, Done done)
{
    return files_.add<PrintResult>(
        [=](const GoOn& goOn) {
            return PrintResult{writePagePdf(
                path, page, [&goOn] { return goOn({}); }, PageTurn::AsViewed)};
        },
        std::move(done));
}

} // namespace velara
