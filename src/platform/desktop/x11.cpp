#include "platform/desktop/x11.h"
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

namespace velara {

namespace {

template <class Reply> using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// The connection of the program's windows; null when they aren't on X.
xcb_connection_t* ours()
{
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

const xcb_screen_t* screenOf(xcb_connection_t* x) { return xcb_setup_roots_iterator(xcb_get_setup(x)).data; }

xcb_atom_t atom(xcb_connection_t* x, const char* name)
{
    const auto cookie = xcb_intern_atom(x, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// The 32-bit values of a window's property.
std::vector<std::uint32_t> valuesOf(xcb_connection_t* x, xcb_window_t window, xcb_atom_t property)
{
    constexpr std::uint32_t kMostValues = 1024;
    const auto cookie = xcb_get_property(x, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, kMostValues);
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, cookie, nullptr), &std::free);
    if (!reply || reply->format != 32) return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / 4};
}

std::vector<std::uint32_t> rootProperty(xcb_connection_t* x, xcb_atom_t property)
{
    return valuesOf(x, screenOf(x)->root, property);
}

void toWindowManager(xcb_connection_t* x, xcb_window_t window, xcb_atom_t type,
                     const std::array<std::uint32_t, 5>& data)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    std::ranges::copy(data, event.data.data32);
    xcb_send_event(x, 0, screenOf(x)->root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
}

/// The startup that a launcher has announced is over. The text goes in pieces of 20 bytes, with its end.
void endStartup(xcb_connection_t* x, xcb_window_t window, const QByteArray& id)
{
    constexpr qsizetype kPiece = 20;
    QByteArray escaped = id;
    escaped.replace('\\', "\\\\").replace('"', "\\\"");
    const QByteArray text = "remove: ID=\"" + escaped + '"' + '\0';
    for (qsizetype at = 0; at < text.size(); at += kPiece) {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 8;
        event.window = window;
        event.type = atom(x, at == 0 ? "_NET_STARTUP_INFO_BEGIN" : "_NET_STARTUP_INFO");
        std::copy_n(text.begin() + at, std::min(kPiece, text.size() - at), event.data.data8);
        xcb_send_event(x, 0, screenOf(x)->root, XCB_EVENT_MASK_PROPERTY_CHANGE, reinterpret_cast<const char*>(&event));
    }
}

bool isViewable(xcb_connection_t* x, xcb_window_t window)
{
    const auto cookie = xcb_get_window_attributes(x, window);
    const Owned<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(x, cookie, nullptr),
                                                         &std::free);
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

/// On the root window, without its frame; empty when the window has gone.
QRect placeOf(xcb_connection_t* x, xcb_window_t window)
{
    const auto size = xcb_get_geometry(x, window);
    const auto corner = xcb_translate_coordinates(x, window, screenOf(x)->root, 0, 0);
    const Owned<xcb_get_geometry_reply_t> box(xcb_get_geometry_reply(x, size, nullptr), &std::free);
    const Owned<xcb_translate_coordinates_reply_t> at(xcb_translate_coordinates_reply(x, corner, nullptr), &std::free);
    return box && at ? QRect(at->dst_x, at->dst_y, box->width, box->height) : QRect();
}

/// Sends the pixels in pieces that fit into a request.
void putRows(xcb_connection_t* x, xcb_pixmap_t pixmap, const QImage& picture, std::uint8_t depth)
{
    const xcb_gcontext_t gc = xcb_generate_id(x);
    xcb_create_gc(x, gc, pixmap, 0, nullptr);
    const qsizetype bytesARow = picture.bytesPerLine();
    const qsizetype room = qsizetype(xcb_get_maximum_request_length(x)) * 4 - 64;
    const int rows = int(std::max<qsizetype>(1, room / bytesARow));
    for (int y = 0; y < picture.height(); y += rows) {
        const int count = std::min(rows, picture.height() - y);
        xcb_put_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, gc, static_cast<std::uint16_t>(picture.width()),
                      static_cast<std::uint16_t>(count), 0, static_cast<std::int16_t>(y), 0, depth,
                      static_cast<std::uint32_t>(bytesARow * count), picture.constScanLine(y));
    }
    xcb_free_gc(x, gc);
}

/// Four bytes per pixel in this machine's byte order: the layout of QImage.
bool takesOurPixels(xcb_connection_t* x)
{
    const xcb_setup_t* setup = xcb_get_setup(x);
    const bool little = Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
    if (setup->image_byte_order != (little ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST)) return false;
    for (auto format = xcb_setup_pixmap_formats_iterator(setup); format.rem; xcb_format_next(&format))
        if (format.data->depth == screenOf(x)->root_depth && format.data->bits_per_pixel == 32) return true;
    return false;
}

} // namespace

bool x11ShowDesktop(bool on)
{
    xcb_connection_t* x = ours();
    if (!x) return false;
    const xcb_atom_t showing = atom(x, "_NET_SHOWING_DESKTOP");
    const auto supported = rootProperty(x, atom(x, "_NET_SUPPORTED"));
    if (std::ranges::find(supported, showing) == supported.end()) return false;
    toWindowManager(x, screenOf(x)->root, showing, {std::uint32_t(on)});
    xcb_flush(x);
    return true;
}

bool x11Activate(std::uint32_t window, const QByteArray& startupId)
{
    xcb_connection_t* x = ours();
    if (!x) return false;
    constexpr std::uint32_t kApplication = 1, kUser = 2; // who asks: a program, or by it the user
    const qsizetype at = startupId.lastIndexOf("_TIME");
    const std::uint32_t time = at < 0 ? 0 : startupId.mid(at + 5).toUInt();
    if (time != 0)
        xcb_change_property(x, XCB_PROP_MODE_REPLACE, window, atom(x, "_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, 32, 1,
                            &time);
    toWindowManager(x, window, atom(x, "_NET_ACTIVE_WINDOW"), {time != 0 ? kApplication : kUser, time});
    if (!startupId.isEmpty()) endStartup(x, window, startupId);
    xcb_flush(x);
    return true;
}

std::vector<QRect> x11Windows()
{
    xcb_connection_t* x = ours();
    if (!x) return {};
    std::vector<QRect> places;
    const xcb_atom_t frame = atom(x, "_NET_FRAME_EXTENTS");
    auto windows = rootProperty(x, atom(x, "_NET_CLIENT_LIST_STACKING")); // the lowest first
    std::ranges::reverse(windows);
    for (const xcb_window_t window : windows) {
        QRect place = isViewable(x, window) ? placeOf(x, window) : QRect();
        if (place.isEmpty()) continue;
        const auto widths = valuesOf(x, window, frame); // left, right, top, bottom
        if (widths.size() == 4) place.adjust(-int(widths[0]), -int(widths[2]), int(widths[1]), int(widths[3]));
        places.push_back(place);
    }
    return places;
}

QImage x11Pointer(QPoint& at)
{
    xcb_connection_t* x = ours();
    if (!x) return {};
    xcb_discard_reply(x, xcb_xfixes_query_version(x, 4, 0).sequence); // must come before any other request
    const auto cookie = xcb_xfixes_get_cursor_image(x);
    const Owned<xcb_xfixes_get_cursor_image_reply_t> reply(xcb_xfixes_get_cursor_image_reply(x, cookie, nullptr),
                                                           &std::free);
    if (!reply) return {};
    at = {reply->x - reply->xhot, reply->y - reply->yhot};
    const auto* pixels = reinterpret_cast<const uchar*>(xcb_xfixes_get_cursor_image_cursor_image(reply.get()));
    return QImage(pixels, reply->width, reply->height, QImage::Format_ARGB32_Premultiplied).copy();
}

namespace {

xcb_atom_t profileAtom(xcb_connection_t* x, int screen)
{
    const QByteArray name("_ICC_PROFILE");
    return atom(x, screen == 0 ? name : name + '_' + QByteArray::number(screen));
}

} // namespace

QByteArray x11ScreenProfile(int screen, qint64 most)
{
    xcb_connection_t* x = ours();
    if (!x) return {};
    const auto cookie = xcb_get_property(x, 0, screenOf(x)->root, profileAtom(x, screen), XCB_GET_PROPERTY_TYPE_ANY, 0,
                                         static_cast<std::uint32_t>(most / 4));
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, cookie, nullptr), &std::free);
    if (!reply || reply->format != 8 || reply->bytes_after > 0) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

bool x11ChangesProfile(const void* event)
{
    constexpr std::uint8_t kSent = 0x80; // by another client
    constexpr int kMostScreens = 16;
    xcb_connection_t* x = ours();
    const auto* change = static_cast<const xcb_property_notify_event_t*>(event);
    if (!x || (change->response_type & ~kSent) != XCB_PROPERTY_NOTIFY || change->window != screenOf(x)->root)
        return false;
    static const std::vector<xcb_atom_t> atoms = [x] {
        std::vector<xcb_atom_t> all;
        for (int screen = 0; screen < kMostScreens; ++screen) all.push_back(profileAtom(x, screen));
        return all;
    }();
    return std::ranges::find(atoms, change->atom) != atoms.end();
}

QSize x11RootSize()
{
    xcb_connection_t* x = ours();
    if (!x) return {};
    const auto cookie = xcb_get_geometry(x, screenOf(x)->root); // the screens may have changed since the connection
    const Owned<xcb_get_geometry_reply_t> reply(xcb_get_geometry_reply(x, cookie, nullptr), &std::free);
    return reply ? QSize(reply->width, reply->height) : QSize();
}

bool x11SetRootPicture(const QImage& picture)
{
    if (!ours()) return false;
    // A connection of its own, whose pixmap outlives it; whoever sets the next picture frees it by its id.
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> own(xcb_connect(nullptr, nullptr),
                                                                           &xcb_disconnect);
    xcb_connection_t* x = own.get();
    if (xcb_connection_has_error(x) || !takesOurPixels(x)) return false;
    const xcb_screen_t* screen = screenOf(x);
    const QImage rows = picture.convertToFormat(QImage::Format_RGB32);
    const xcb_pixmap_t pixmap = xcb_generate_id(x);
    xcb_create_pixmap(x, screen->root_depth, pixmap, screen->root, static_cast<std::uint16_t>(rows.width()),
                      static_cast<std::uint16_t>(rows.height()));
    putRows(x, pixmap, rows, screen->root_depth);

    const xcb_atom_t shown = atom(x, "_XROOTPMAP_ID"), owned = atom(x, "ESETROOT_PMAP_ID");
    for (const std::uint32_t former : rootProperty(x, owned)) xcb_kill_client(x, former);
    for (const xcb_atom_t property : {shown, owned})
        xcb_change_property(x, XCB_PROP_MODE_REPLACE, screen->root, property, XCB_ATOM_PIXMAP, 32, 1, &pixmap);
    xcb_change_window_attributes(x, screen->root, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(x, 0, screen->root, 0, 0, 0, 0);
    xcb_set_close_down_mode(x, XCB_CLOSE_DOWN_RETAIN_PERMANENT);
    const auto cookie = xcb_get_input_focus(x); // a round trip: its answer arrives when everything before is done
    const Owned<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(x, cookie, nullptr), &std::free);
    return reply != nullptr;
}

} // namespace velara
