#include "platform/desktop/clipboard/ClipboardOffer.h"
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <xcb/xcb.h>

namespace velara {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kPatience = 900ms;    // in all, beside the time for the bytes; the rest of a second is for the way
constexpr qsizetype kSlowest = 4000; // bytes a millisecond: an owner that drips is left like one that is silent
constexpr qsizetype kMostBytes = qsizetype{1} << 30;
constexpr std::uint32_t kPieceWords = 1 << 20;

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
        QStringList list;
        const QByteArray atoms = fetch(atom("TARGETS")).value_or(QByteArray());
        for (qsizetype at = 0; at + 4 <= atoms.size(); at += 4) {
            xcb_atom_t type = XCB_NONE;
            std::copy_n(atoms.constData() + at, 4, reinterpret_cast<char*>(&type));
            list << nameOf(type);
        }
        return list;
    }
    std::optional<QByteArray> bytes(const QString& type) override { return fetch(atom(type.toLatin1())); }

  private:
    xcb_atom_t atom(const QByteArray& name) const
    {
        const auto length = static_cast<std::uint16_t>(name.size());
        const Reply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(x_, xcb_intern_atom(x_, 0, length, name.constData()), nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_NONE};
    }
    QString nameOf(xcb_atom_t atom) const
    {
        const Reply<xcb_get_atom_name_reply_t> reply(xcb_get_atom_name_reply(x_, xcb_get_atom_name(x_, atom), nullptr));
        return reply ? QString::fromLatin1(xcb_get_atom_name_name(reply.get()), reply->name_len) : QString();
    }

    /// The next event of the kind that suits; null when the owner stays silent or drips.
    template <class Event, class Suits> Reply<Event> await(std::uint8_t kind, Suits suits)
    {
        for (;;) {
            while (xcb_generic_event_t* event = xcb_poll_for_event(x_)) {
                Reply<Event> mine(reinterpret_cast<Event*>(event));
                if ((event->response_type & 0x7f) == kind && suits(*mine)) return mine;
            }
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline_ - Clock::now()).count();
            if (left <= 0 || xcb_connection_has_error(x_)) return {};
            pollfd waiting{xcb_get_file_descriptor(x_), POLLIN, 0};
            poll(&waiting, 1, static_cast<int>(left));
        }
    }

    std::optional<QByteArray> fetch(xcb_atom_t type)
    {
        if (silent_) return {};
        deadline_ = Clock::now() + kPatience;
        xcb_convert_selection(x_, window_, clipboard_, type, property_, XCB_CURRENT_TIME);
        xcb_flush(x_);
        const auto told = await<xcb_selection_notify_event_t>(XCB_SELECTION_NOTIFY,
                                                              [&](const auto& event) { return event.target == type; });
        silent_ = !told;
        if (!told || told->property == XCB_NONE) return {};
        xcb_atom_t kind = XCB_NONE;
        std::optional<QByteArray> bytes = property(&kind);
        return kind == incremental_ ? pieces() : bytes;
    }

    /// Takes what the owner has put down, by which the owner knows that it may go on.
    std::optional<QByteArray> property(xcb_atom_t* kind)
    {
        QByteArray bytes;
        for (;;) {
            const Reply<xcb_get_property_reply_t> part(
                xcb_get_property_reply(x_,
                                       xcb_get_property(x_, 0, window_, property_, XCB_GET_PROPERTY_TYPE_ANY,
                                                        static_cast<std::uint32_t>(bytes.size() / 4), kPieceWords),
                                       nullptr));
            if (!part) return {};
            if (kind) *kind = part->type;
            bytes.append(static_cast<const char*>(xcb_get_property_value(part.get())),
                         xcb_get_property_value_length(part.get()));
            if (part->bytes_after == 0 || bytes.size() > kMostBytes) break;
        }
        xcb_delete_property(x_, window_, property_);
        xcb_flush(x_);
        return bytes.size() > kMostBytes ? std::nullopt : std::optional(bytes);
    }

    /// Piece by piece, until an empty one.
    std::optional<QByteArray> pieces()
    {
        QByteArray bytes;
        for (;;) {
            const auto put = await<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [&](const auto& event) {
                return event.atom == property_ && event.state == XCB_PROPERTY_NEW_VALUE;
            });
            silent_ = !put;
            const auto piece = put ? property(nullptr) : std::nullopt;
            if (!piece || bytes.size() + piece->size() > kMostBytes) return {};
            if (piece->isEmpty()) return bytes;
            bytes += *piece;
            deadline_ += std::chrono::milliseconds(piece->size() / kSlowest);
        }
    }

    xcb_connection_t* x_;
    xcb_window_t window_ = XCB_NONE;
    xcb_atom_t clipboard_ = XCB_NONE, property_ = XCB_NONE, incremental_ = XCB_NONE;
    Clock::time_point deadline_;
    bool silent_ = false;
};

} // namespace

std::unique_ptr<ClipboardOffer> xClipboardOffer()
{
    auto offer = std::make_unique<XClipboardOffer>();
    if (!offer->isConnected()) return {};
    return offer;
}

} // namespace velara
