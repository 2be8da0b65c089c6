#include "platform/desktop/printing/cups.h"
#include <cups/cups.h>

namespace velara {

namespace {

constexpr int kPatience = 10; // seconds
constexpr double kUnitsAMillimetre = 100;

/// A connection to the print server, which may be none.
class Server {
  public:
    Server()
        : http_(
              httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kPatience * 1000, nullptr))
    {
        if (http_)
            httpSetTimeout(
                http_, kPatience, [](http_t*, void*) { return 0; }, nullptr);
    }
    ~Server() { httpClose(http_); }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    http_t* get() const { return http_; }

  private:
    http_t* http_;
};

/// A queue of the server, which may be none.
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

Printers::List cupsQueues()
{
    Printers::List list;
    const Server server;
    if (!server.get()) return list;
    cups_dest_t* dests = nullptr;
    const int count = cupsGetDests2(server.get(), &dests);
    for (int i = 0; i < count; ++i) {
        if (dests[i].instance) continue; // the same printer again, with options of a user's own
        list.names << QString::fromUtf8(dests[i].name);
        if (dests[i].is_default) list.current = list.names.back();
    }
    cupsFreeDests(count, dests);
    return list;
}

std::optional<Paper> cupsPaper(const QString& queue)
{
    const Server server;
    const Queue dest(server, queue);
    if (!dest.get()) return {};
    cups_dinfo_t* info = cupsCopyDestInfo(server.get(), dest.get());
    cups_size_t size{};
    const bool known =
        info && cupsGetDestMediaDefault(server.get(), dest.get(), info, 0, &size) && size.width > 0 && size.length > 0;
    cupsFreeDestInfo(info);
    if (!known) return {};
    return Paper{QString::fromUtf8(size.media), QSizeF(size.width, size.length) / kUnitsAMillimetre,
                 QMarginsF(size.left, size.top, size.right, size.bottom) / kUnitsAMillimetre};
}

QString cupsPrint(const QString& queue, const QString& pdf, const QString& title, const JobOptions& options)
{
    const Server server;
    if (!server.get()) return "the print server does not answer";
    const Queue dest(server, queue);
    if (!dest.get()) return "there is no printer " + queue + " any more";
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
