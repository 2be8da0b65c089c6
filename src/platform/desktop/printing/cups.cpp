#include "platform/desktop/printing/cupsServer.h"
#include <algorithm>

namespace velara {

namespace {

constexpr double kUnitsAMillimetre = 100;

/// The user's default, or the printer's own. The library's call for it goes on with Letter instead of the latter.
bool defaultMedia(const Server& server, const Queue& dest, cups_dinfo_t* info, cups_size_t& size)
{
    const char* media = cups().cupsGetOption("media", dest.get()->num_options, dest.get()->options);
    ipp_attribute_t* own = cups().cupsFindDestDefault(server.get(), dest.get(), info, CUPS_MEDIA);
    if (!media && own) media = cups().ippGetString(own, 0, nullptr);
    return media && cups().cupsGetDestMediaByName(server.get(), dest.get(), info, media, 0, &size);
}

int mostCopiesOf(const Server& server, const Queue& dest, cups_dinfo_t* info)
{
    ipp_attribute_t* range = cups().cupsFindDestSupported(server.get(), dest.get(), info, CUPS_COPIES);
    int most = 0;
    if (range && cups().ippGetValueTag(range) == IPP_TAG_RANGE) cups().ippGetRange(range, 0, &most);
    return most > 0 ? std::min(most, kMostCopies) : kMostCopies;
}

} // namespace

Printers::List cupsQueues(const Patience& patience)
{
    Printers::List list;
    const Server server(patience);
    if (!server.get()) return {{}, {}, "there is no print server"};
    cups_dest_t* dests = nullptr;
    const int count = cups().cupsGetDests2(server.get(), &dests);
    for (int i = 0; i < count; ++i) {
        if (dests[i].instance) continue; // the same printer again, with a user's own options
        list.names << QString::fromUtf8(dests[i].name);
        if (dests[i].is_default) list.current = list.names.back();
    }
    cups().cupsFreeDests(count, dests);
    return list;
}

QueueFacts cupsFacts(const QString& queue, const std::vector<Paper>& papers, const Patience& patience)
{
    const Server server(patience);
    const Queue dest(server, queue);
    QueueFacts facts;
    const auto add = [&facts](const cups_size_t& size) {
        const QString name = QString::fromUtf8(size.media);
        const bool known = std::ranges::find(facts.papers, name, &Paper::name) != facts.papers.end(); // without margins
        if (known || name.startsWith("custom_") || size.width <= 0 || size.length <= 0) return;
        facts.papers.push_back({name, QSizeF(size.width, size.length) / kUnitsAMillimetre,
                                QMarginsF(size.left, size.top, size.right, size.bottom) / kUnitsAMillimetre});
    };
    if (cups_dinfo_t* info = dest.get() ? cups().cupsCopyDestInfo(server.get(), dest.get()) : nullptr) {
        cups_size_t size{};
        if (defaultMedia(server, dest, info, size)) add(size);
        for (int i = 0; i < cups().cupsGetDestMediaCount(server.get(), dest.get(), info, 0); ++i)
            if (cups().cupsGetDestMediaByIndex(server.get(), dest.get(), info, i, 0, &size)) add(size);
        facts.mostCopies = mostCopiesOf(server, dest, info);
        cups().cupsFreeDestInfo(info);
    }
    if (facts.papers.empty()) facts.papers = papers;
    return facts;
}

} // namespace velara
