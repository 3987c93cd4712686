// A sibling program in small: one window, until it is asked to close (exit code 3) or ended. What
// it tells of itself is up to its arguments, each a name and a value ("title=Optique"):
//   title=TEXT   of the window
//   pid=N        the process that it says it is; "none" says nothing
//   host=NAME    the machine that it says it runs on; "none" says nothing
//   record=N     "OUI" goes into this record of the status file in the current directory
//   parent=1     the window belongs to another one
//   stays=1      SIGTERM is ignored, and the window does not know how to close
// It knows the display and the files as a program of another maker would.

#include <unistd.h>
#include <xcb/xcb.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

namespace {

using Arguments = std::map<std::string, std::string>;

Arguments readArguments(int argc, char** argv) {
    Arguments arguments;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const std::size_t sign = argument.find('=');
        arguments[argument.substr(0, sign)] = argument.substr(sign + 1);
    }
    return arguments;
}

std::string ownHost() {
    char name[256] = "";
    gethostname(name, sizeof name - 1);
    return name;
}

void sayRunning(int record) {
    if (std::FILE* file = std::fopen("TEMPKX.TMP", "r+b")) {
        std::fseek(file, (record - 1) * 128L, SEEK_SET);
        std::fwrite("\x03\0OUI", 1, 5, file);
        std::fclose(file);
    }
}

xcb_connection_t* display = nullptr;

xcb_atom_t atom(const char* name) {
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    auto* reply =
        xcb_intern_atom_reply(display, xcb_intern_atom(display, 0, length, name), nullptr);
    const xcb_atom_t found = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    std::free(reply);
    return found;
}

void setText(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const std::string& text) {
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, window, name, type, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

void setNumber(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, std::uint32_t number) {
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, window, name, type, 32, 1, &number);
}

void describe(xcb_window_t window, xcb_window_t root, Arguments& arguments) {
    setText(window, atom("_NET_WM_NAME"), atom("UTF8_STRING"), arguments["title"]);
    const std::string pid = arguments.contains("pid") ? arguments["pid"] : std::to_string(getpid());
    if (pid != "none")
        setNumber(window, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL,
                  static_cast<std::uint32_t>(std::stoul(pid)));
    const std::string host = arguments.contains("host") ? arguments["host"] : ownHost();
    if (host != "none")
        setText(window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, host);
    if (arguments.contains("parent"))
        setNumber(window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, root);
    if (!arguments.contains("stays"))
        setNumber(window, atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, atom("WM_DELETE_WINDOW"));
}

} // namespace

int main(int argc, char** argv) {
    Arguments arguments = readArguments(argc, argv);
    if (arguments.contains("stays"))
        std::signal(SIGTERM, SIG_IGN);
    display = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(display))
        return 1;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
    const xcb_window_t window = xcb_generate_id(display);
    xcb_create_window(display, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 200, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
    describe(window, screen->root, arguments);
    if (arguments.contains("record"))
        sayRunning(std::stoi(arguments["record"]));
    xcb_map_window(display, window);
    xcb_flush(display);
    while (xcb_generic_event_t* event = xcb_wait_for_event(display)) {
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE)
            return 3;
        std::free(event);
    }
    return 0; // the display is gone
}
