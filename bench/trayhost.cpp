// The least a system tray host does under the X11 tray protocol: it owns the
// tray selection of screen 0 and says so, so that programs started after it
// find a tray and go there when told to run in the background. Icons asking
// to dock are not embedded: the benchmarks only need the program to believe
// it lives in a tray. Runs until killed.
//   trayhost
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

xcb_atom_t internAtom(xcb_connection_t* connection, const char* name)
{
    const xcb_intern_atom_cookie_t cookie = xcb_intern_atom(connection, 0, uint16_t(std::strlen(name)), name);
    std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

} // namespace

int main()
{
    int screenNumber = 0;
    xcb_connection_t* connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(connection)) {
        std::fprintf(stderr, "trayhost: no X display\n");
        return 2;
    }
    xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_atom_t selection = internAtom(connection, "_NET_SYSTEM_TRAY_S0");
    const xcb_atom_t manager = internAtom(connection, "MANAGER");

    const xcb_window_t owner = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, owner, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(connection, owner, selection, XCB_CURRENT_TIME);

    // Tells the programs already running that a tray has come.
    xcb_client_message_event_t announce{};
    announce.response_type = XCB_CLIENT_MESSAGE;
    announce.format = 32;
    announce.window = screen->root;
    announce.type = manager;
    announce.data.data32[0] = XCB_CURRENT_TIME;
    announce.data.data32[1] = selection;
    announce.data.data32[2] = owner;
    xcb_send_event(connection, 0, screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&announce));
    xcb_flush(connection);

    while (xcb_generic_event_t* event = xcb_wait_for_event(connection))
        std::free(event);
    xcb_disconnect(connection);
    return 0;
}
