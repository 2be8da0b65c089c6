// settled WINDOW: waits until the window manager and the window's program have processed everything sent to them so
// far. Both are sent a request that they answer in order, twice: the second round covers what the first has triggered.
// Succeeds, too, if the window disappears meanwhile; exits with 1 without an answer for a minute.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

xcb_connection_t* display;
xcb_window_t root, window, own; // own is never shown

xcb_atom_t atom(const char* name)
{
    const auto asked = xcb_intern_atom(display, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const auto* answer = xcb_intern_atom_reply(display, asked, nullptr);
    return answer ? answer->atom : xcb_atom_t(XCB_ATOM_NONE);
}

void send(xcb_window_t to, std::uint32_t mask, xcb_window_t about, xcb_atom_t type, std::uint32_t first = 0,
          std::uint32_t second = 0)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = about;
    event.type = type;
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    event.data.data32[2] = window;
    xcb_send_event(display, 0, to, mask, reinterpret_cast<const char*>(&event));
    xcb_flush(display);
}

/// Waits for the wanted event; the program ends when the window has disappeared.
template <class Wanted> void wait(Wanted wanted)
{
    while (auto* event = xcb_wait_for_event(display)) {
        const int type = event->response_type & 127;
        const auto* gone = reinterpret_cast<xcb_destroy_notify_event_t*>(event);
        if (type == 0 || (type == XCB_DESTROY_NOTIFY && gone->window == window)) std::exit(0);
        const bool came = wanted(type, event);
        std::free(event);
        if (came) return;
    }
    std::exit(1);
}

} // namespace

int main(int, char** argv)
{
    alarm(60);
    window = static_cast<xcb_window_t>(std::strtoul(argv[1] ? argv[1] : "0", nullptr, 0));
    display = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(display)) return 1;
    root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const xcb_atom_t protocols = atom("WM_PROTOCOLS"), ping = atom("_NET_WM_PING"),
                     ask = atom("_NET_REQUEST_FRAME_EXTENTS"), extents = atom("_NET_FRAME_EXTENTS");
    const std::uint32_t changes = XCB_EVENT_MASK_PROPERTY_CHANGE, structure = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(display, 0, own = xcb_generate_id(display), root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0,
                      XCB_CW_EVENT_MASK, &changes);
    xcb_change_window_attributes(display, root, XCB_CW_EVENT_MASK, &structure);
    xcb_change_window_attributes(display, window, XCB_CW_EVENT_MASK, &structure);
    for (std::uint32_t round = 1; round <= 2; ++round) {
        send(root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, own, ask);
        wait([&](int type, xcb_generic_event_t* event) {
            const auto* changed = reinterpret_cast<xcb_property_notify_event_t*>(event);
            return type == XCB_PROPERTY_NOTIFY && changed->window == own && changed->atom == extents;
        });
        const std::uint32_t mark = static_cast<std::uint32_t>(getpid()) << 4 | round;
        send(window, XCB_EVENT_MASK_NO_EVENT, window, protocols, ping, mark);
        wait([&](int type, xcb_generic_event_t* event) {
            const auto* answer = reinterpret_cast<xcb_client_message_event_t*>(event);
            return type == XCB_CLIENT_MESSAGE && answer->type == protocols && answer->data.data32[1] == mark;
        });
    }
    xcb_disconnect(display);
    return 0;
}
