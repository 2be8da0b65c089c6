// set_property NAME <BYTES: sets a property of the root window, of bytes.
#include <cstdio>
#include <cstring>
#include <string>
#include <xcb/xcb.h>

int main(int, char** argv)
{
    std::string bytes;
    for (int c = std::getchar(); c != EOF; c = std::getchar()) bytes.push_back(static_cast<char>(c));
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (!argv[1] || xcb_connection_has_error(display)) return 1;
    const auto asked = xcb_intern_atom(display, 0, static_cast<std::uint16_t>(std::strlen(argv[1])), argv[1]);
    const auto* name = xcb_intern_atom_reply(display, asked, nullptr);
    if (!name) return 1;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const auto set = xcb_change_property_checked(display, XCB_PROP_MODE_REPLACE, root, name->atom, XCB_ATOM_CARDINAL, 8,
                                                 static_cast<std::uint32_t>(bytes.size()), bytes.data());
    const bool isSet = xcb_request_check(display, set) == nullptr;
    xcb_disconnect(display);
    return isSet ? 0 : 1;
}
