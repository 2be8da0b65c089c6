#include "platform/desktop/printing/cups.h"
#include <QFileInfo>
#include <cups/cups.h>

namespace velara {

namespace {

constexpr double kSilence = 0.25; // seconds between checks of the patience
constexpr qint64 kSlowest = 100;  // bytes of a job per millisecond
constexpr double kUnitsAMillimetre = 100;

/// A connection to the print server; may be null.
class Server {
  public:
    explicit Server(const Patience& patience)
        : http_(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kServerPatience.count(),
                             nullptr))
    {
        const auto goOn = [](http_t*, void* lasting) { return int(static_cast<const Patience*>(lasting)->lasts()); };
        if (http_) httpSetTimeout(http_, kSilence, goOn, const_cast<Patience*>(&patience));
    }
    ~Server() { httpClose(http_); }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    http_t* get() const { return http_; }

  private:
    http_t* http_;
};

/// A queue of the server; may be null.
class Queue {
  public:
    Queue(const Server& server, const QString& name)
        : dest_(server.get() ? cupsGetNamedDest(server.get(), name.toUtf8().constData(), nullptr) : nullptr)
    {
    }
    ~Queue()
    {
        if (dest_) cupsFreeDests(1, dest_);
    }
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    cups_dest_t* get() const { return dest_; }

  private:
    cups_dest_t* dest_;
};

} // namespace

Printers::List cupsQueues(const Patience& patience)
{
    Printers::List list;
    const Server server(patience);
    if (!server.get()) return {{}, {}, "there is no print server"};
    cups_dest_t* dests = nullptr;
    const int count = cupsGetDests2(server.get(), &dests);
    for (int i = 0; i < count; ++i) {
        if (dests[i].instance) continue; // the same printer again, with a user's own options
        list.names << QString::fromUtf8(dests[i].name);
        if (dests[i].is_default) list.current = list.names.back();
    }
    cupsFreeDests(count, dests);
    return list;
}

std::vector<Paper> cupsPapers(const QString& queue, const std::vector<Paper>& otherwise, const Patience& patience)
{
    const Server server(patience);
    const Queue dest(server, queue);
    if (!dest.get()) return otherwise;
    std::vector<Paper> papers;
    const auto add = [&papers](const cups_size_t& size) {
        const QString name = QString::fromUtf8(size.media);
        const bool known = std::ranges::find(papers, name, &Paper::name) != papers.end(); // some without margins, too
        if (known || name.startsWith("custom_") || size.width <= 0 || size.length <= 0) return;
        papers.push_back({name, QSizeF(size.width, size.length) / kUnitsAMillimetre,
                          QMarginsF(size.left, size.top, size.right, size.bottom) / kUnitsAMillimetre});
    };
    if (cups_dinfo_t* info = cupsCopyDestInfo(server.get(), dest.get())) {
        cups_size_t size{};
        if (cupsGetDestMediaDefault(server.get(), dest.get(), info, 0, &size)) add(size);
        for (int i = 0; i < cupsGetDestMediaCount(server.get(), dest.get(), info, 0); ++i)
            if (cupsGetDestMediaByIndex(server.get(), dest.get(), info, i, 0, &size)) add(size);
        cupsFreeDestInfo(info);
    }
    return papers.empty() ? otherwise : papers;
}

QString cupsPrint(const QString& queue, const QString& pdf, const QString& title, const JobOptions& options,
                  Patience& patience)
{
    const Server server(patience);
    if (!server.get()) return "the print server does not answer";
    const Queue dest(server, queue);
    if (!dest.get()) return "there is no printer " + queue + " any more";
    patience.startAnew(kServerPatience + std::chrono::milliseconds(QFileInfo(pdf).size() / kSlowest));
    cups_option_t* list = nullptr;
    int count = 0;
    for (const auto& [name, value] : options) count = cupsAddOption(name.constData(), value.constData(), count, &list);
    const int job = cupsPrintFile2(server.get(), dest.get()->name, pdf.toUtf8().constData(), title.toUtf8().constData(),
                                   count, list);
    const QString reason = job ? QString() : QString::fromUtf8(cupsLastErrorString());
    cupsFreeOptions(count, list);
    return reason;
}

} // namespace velara
