// A connection to the print server, and one of its queues; of the thread that makes them.
#pragma once
#include "platform/desktop/printing/CupsLibrary.h"
#include "platform/desktop/printing/cups.h"

namespace velara {

/// May be null.
class Server {
  public:
    explicit Server(const Patience& patience)
        : http_(!cups().late.complete()
                    ? nullptr
                    : cups().httpConnect2(cups().cupsServer(), cups().ippPort(), nullptr, AF_UNSPEC,
                                          cups().cupsEncryption(), 1, kServerPatience.count(), nullptr))
    {
        constexpr double kSilence = 0.25; // seconds between checks of the patience
        const auto goOn = [](http_t*, void* lasting) { return int(static_cast<const Patience*>(lasting)->lasts()); };
        if (http_) cups().httpSetTimeout(http_, kSilence, goOn, const_cast<Patience*>(&patience));
    }
    ~Server()
    {
        if (http_) cups().httpClose(http_);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    http_t* get() const { return http_; }

  private:
    http_t* http_;
};

/// May be null.
class Queue {
  public:
    Queue(const Server& server, const QString& name)
        : dest_(server.get() ? cups().cupsGetNamedDest(server.get(), name.toUtf8().constData(), nullptr) : nullptr)
    {
    }
    ~Queue()
    {
        if (dest_) cups().cupsFreeDests(1, dest_);
    }
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    cups_dest_t* get() const { return dest_; }

  private:
    cups_dest_t* dest_;
};

} // namespace velara
