#include "platform/desktop/clipboard/ClipboardOffer.h"
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <vector>
#include <xcb/xcb.h>

namespace velara {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kPatience = 900ms; // for all answers together; each piece of an incremental transfer has as much again
constexpr auto kMoment = 50ms;    // between two calls of goOn
constexpr std::size_t kMostTypes = 256;
constexpr qsizetype kMostAtoms = qsizetype{1} << 16; // bytes of the list of types that are evaluated
constexpr qsizetype kMostBytes = qsizetype{1} << 30;
constexpr qsizetype kRead = qsizetype{1} << 22; // bytes at once

template <class T> struct Freed {
    void operator()(T* reply) const { std::free(reply); }
};
template <class T> using Reply = std::unique_ptr<T, Freed<T>>;

class XClipboardOffer final : public ClipboardOffer {
  public:
    XClipboardOffer() : x_(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(x_)) return;
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x_)).data;
        window_ = xcb_generate_id(x_);
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(x_, XCB_COPY_FROM_PARENT, window_, screen->root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
        clipboard_ = atom("CLIPBOARD");
        property_ = atom("VELARA_CLIPBOARD");
        incremental_ = atom("INCR");
    }
    ~XClipboardOffer() override { xcb_disconnect(x_); }
    bool isConnected() const { return window_ != XCB_NONE; }

    QStringList types() override
    {
        goOn_ = {};
        const auto told = ask(atom("TARGETS"));
        return told ? namesOf(atomsOf(take(kMostAtoms).bytes)) : QStringList();
    }
    std::optional<QByteArray> bytes(const QString& type, const GoOn& goOn) override
    {
        goOn_ = goOn;
        if (!ask(atom(type.toLatin1()))) return {};
        const Property whole = take(kMostBytes);
        if (whole.kind == incremental_) return pieces();
        return whole.bytes.size() < kMostBytes ? std::optional(whole.bytes) : std::nullopt;
    }

  private:
    xcb_atom_t atom(const QByteArray& name) const
    {
        const auto length = static_cast<std::uint16_t>(name.size());
        const Reply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(x_, xcb_intern_atom(x_, 0, length, name.constData()), nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_NONE};
    }
    /// The atoms that are evaluated, without duplicates.
    static std::vector<xcb_atom_t> atomsOf(const QByteArray& bytes)
    {
        std::vector<xcb_atom_t> atoms;
        for (qsizetype at = 0; at + 4 <= bytes.size() && atoms.size() < kMostTypes; at += 4) {
            xcb_atom_t type = XCB_NONE;
            std::copy_n(bytes.constData() + at, 4, reinterpret_cast<char*>(&type));
            if (std::ranges::find(atoms, type) == atoms.end()) atoms.push_back(type);
        }
        return atoms;
    }
    /// All are requested before waiting for the first answer.
    QStringList namesOf(const std::vector<xcb_atom_t>& atoms) const
    {
        std::vector<xcb_get_atom_name_cookie_t> asked;
        for (const xcb_atom_t each : atoms) asked.push_back(xcb_get_atom_name(x_, each));
        QStringList names;
        for (const auto cookie : asked) {
            const Reply<xcb_get_atom_name_reply_t> reply(xcb_get_atom_name_reply(x_, cookie, nullptr));
            if (reply) names << QString::fromLatin1(xcb_get_atom_name_name(reply.get()), reply->name_len);
        }
        return names;
    }

    bool wanted()
    {
        const auto now = Clock::now();
        if (!goOn_ || now - asked_ < kMoment) return true;
        asked_ = now;
        return goOn_({});
    }

    /// The next event of the kind that matches; null when the time is over or goOn gave up. Events that arrived while
    /// goOn took its time count.
    template <class Event, class Suits> Reply<Event> await(std::uint8_t kind, Clock::time_point end, Suits suits)
    {
        for (;;) {
            Reply<Event> event(reinterpret_cast<Event*>(xcb_poll_for_event(x_)));
            if (event && (event->response_type & 0x7f) == kind && suits(*event)) return event;
            if (Clock::now() >= end || xcb_connection_has_error(x_) || !wanted()) return {};
            const auto left = std::clamp<Clock::duration>(end - Clock::now(), 0ms, kMoment);
            pollfd waiting{xcb_get_file_descriptor(x_), POLLIN, 0};
            if (!event) poll(&waiting, 1, static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(left).count()));
        }
    }

    /// True when the owner has delivered to our property, within the time left for all its answers.
    bool ask(xcb_atom_t type)
    {
        if (left_ <= 0ms) return false;
        const auto begin = Clock::now();
        xcb_convert_selection(x_, window_, clipboard_, type, property_, XCB_CURRENT_TIME);
        xcb_flush(x_);
        const auto told = await<xcb_selection_notify_event_t>(XCB_SELECTION_NOTIFY, begin + left_,
                                                              [&](const auto& event) { return event.target == type; });
        left_ = told ? left_ - (Clock::now() - begin) : 0ms;
        return told && told->property != XCB_NONE;
    }

    struct Property {
        xcb_atom_t kind = XCB_NONE;
        QByteArray bytes;
    };
    /// What the owner delivered, up to most bytes; deleting the property tells the owner to continue.
    Property take(qsizetype most)
    {
        Property whole;
        for (std::uint32_t after = 1; after > 0 && whole.bytes.size() < most && wanted();) {
            const auto from = static_cast<std::uint32_t>(whole.bytes.size() / 4);
            const auto words = static_cast<std::uint32_t>(std::min(kRead, most - whole.bytes.size()) / 4);
            const Reply<xcb_get_property_reply_t> part(xcb_get_property_reply(
                x_, xcb_get_property(x_, 0, window_, property_, XCB_GET_PROPERTY_TYPE_ANY, from, words), nullptr));
            if (!part) break;
            whole.kind = part->type;
            whole.bytes.append(static_cast<const char*>(xcb_get_property_value(part.get())),
                               xcb_get_property_value_length(part.get()));
            after = part->bytes_after;
        }
        xcb_delete_property(x_, window_, property_);
        xcb_flush(x_);
        return whole;
    }

    /// Piece by piece, until an empty one. If that doesn't come, nothing more is requested: pieces may still be on
    /// their way.
    std::optional<QByteArray> pieces()
    {
        QByteArray bytes;
        for (;;) {
            const auto put = await<xcb_property_notify_event_t>(
                XCB_PROPERTY_NOTIFY, Clock::now() + kPatience,
                [&](const auto& event) { return event.atom == property_ && event.state == XCB_PROPERTY_NEW_VALUE; });
            const QByteArray piece = put ? take(kMostBytes).bytes : QByteArray();
            if (put && piece.isEmpty()) return bytes;
            if (!put || bytes.size() + piece.size() >= kMostBytes) break;
            bytes += piece;
        }
        left_ = 0ms;
        return {};
    }

    xcb_connection_t* x_;
    xcb_window_t window_ = XCB_NONE;
    xcb_atom_t clipboard_ = XCB_NONE, property_ = XCB_NONE, incremental_ = XCB_NONE;
    Clock::duration left_ = kPatience;
    Clock::time_point asked_;
    GoOn goOn_;
};

} // namespace

std::unique_ptr<ClipboardOffer> xClipboardOffer()
{
    auto offer = std::make_unique<XClipboardOffer>();
    if (!offer->isConnected()) return {};
    return offer;
}

} // namespace velara
