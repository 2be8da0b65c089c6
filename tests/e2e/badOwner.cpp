// A misbehaving clipboard owner that tells what it is asked for; its first argument selects how:
//   many FILE        image/png, among a million types
//   late MS          ten kinds of picture, junk each, handed over so many milliseconds after it was asked
//   drip FILE BYTES  image/bmp, in pieces of so many bytes, twenty a second
#include <QByteArray>
#include <QFile>
#include <cstdio>
#include <cstring>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

xcb_connection_t* x = nullptr;

xcb_atom_t atom(const char* name)
{
    return xcb_intern_atom_reply(x, xcb_intern_atom(x, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr)
        ->atom;
}

void put(xcb_window_t to, xcb_atom_t property, xcb_atom_t type, std::uint8_t format, std::size_t count,
         const void* data)
{
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, to, property, type, format, static_cast<std::uint32_t>(count), data);
    xcb_flush(x);
}

std::vector<xcb_atom_t> typesOf(const QByteArray& how)
{
    if (how == "drip") return {atom("image/bmp")};
    if (how == "many") {
        std::vector<xcb_atom_t> types(1000000, atom("image/png"));
        for (std::size_t i = 1; i < types.size(); ++i) types[i] = static_cast<xcb_atom_t>(1 + i % 68);
        return types;
    }
    std::vector<xcb_atom_t> types;
    for (const char* kind :
         {"png", "bmp", "x-bmp", "x-MS-bmp", "tiff", "x-tga", "x-portable-pixmap", "gif", "x-icon", "jpeg"})
        types.push_back(atom(("image/" + QByteArray(kind)).constData()));
    return types;
}

} // namespace

int main(int, char** argv)
{
    x = xcb_connect(nullptr, nullptr);
    xcb_prefetch_maximum_request_length(x);
    const QByteArray how = argv[1];
    QFile file(argv[2]);
    const QByteArray bytes = how != "late" && file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("junk");
    const qsizetype piece = how == "drip" ? std::atoi(argv[3]) : bytes.size();
    const xcb_atom_t clipboard = atom("CLIPBOARD"), targets = atom("TARGETS");
    const std::vector<xcb_atom_t> types = typesOf(how);
    const xcb_window_t own = xcb_generate_id(x);
    xcb_create_window(x, 0, own, xcb_setup_roots_iterator(xcb_get_setup(x)).data->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0, nullptr);
    xcb_set_selection_owner(x, own, clipboard, XCB_CURRENT_TIME);
    xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, clipboard), nullptr);
    std::puts("the clipboard is ours");
    std::fflush(stdout);
    qsizetype at = 0; // start of the next piece
    while (xcb_generic_event_t* event = xcb_wait_for_event(x)) {
        const auto* gone = reinterpret_cast<xcb_property_notify_event_t*>(event);
        if (event->response_type == XCB_PROPERTY_NOTIFY && gone->state == XCB_PROPERTY_DELETE && at <= bytes.size()) {
            usleep(50000);
            const QByteArray next = bytes.mid(at, piece);
            put(gone->window, gone->atom, types[0], 8, static_cast<std::size_t>(next.size()), next.constData());
            at = next.isEmpty() ? bytes.size() + 1 : at + next.size();
        }
        if (event->response_type != XCB_SELECTION_REQUEST) continue;
        const auto* asked = reinterpret_cast<xcb_selection_request_event_t*>(event);
        if (asked->target != targets) std::puts("asked for a picture");
        std::fflush(stdout);
        if (how == "late") usleep(static_cast<unsigned>(std::atoi(argv[2])) * 1000);
        if (asked->target == targets) {
            put(asked->requestor, asked->property, XCB_ATOM_ATOM, 32, types.size(), types.data());
        } else if (how == "drip") {
            at = 0;
            const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE, size = 1;
            xcb_change_window_attributes(x, asked->requestor, XCB_CW_EVENT_MASK, &events);
            put(asked->requestor, asked->property, atom("INCR"), 32, 1, &size);
        } else {
            put(asked->requestor, asked->property, asked->target, 8, static_cast<std::size_t>(bytes.size()),
                bytes.constData());
        }
        xcb_selection_notify_event_t told{
            XCB_SELECTION_NOTIFY, 0, 0, asked->time, asked->requestor, clipboard, asked->target, asked->property};
        char answer[32] = {};
        std::memcpy(answer, &told, sizeof told);
        xcb_send_event(x, 0, asked->requestor, 0, answer);
        xcb_flush(x);
    }
}
