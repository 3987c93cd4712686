#include "platform/x11/x11_display.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace platform {

namespace {

/// Longest property read, in units of four bytes: a window list of 16384 entries, far beyond what
/// a display carries. Whatever is longer is cut.
constexpr std::uint32_t kLongestProperty = 16384;

template <class Reply>
struct Free {
    void operator()(Reply* reply) const { std::free(reply); }
};

/// A reply of the display, null when the request failed.
template <class Reply>
using ReplyPtr = std::unique_ptr<Reply, Free<Reply>>;

template <class Reply>
ReplyPtr<Reply> owned(Reply* reply) {
    return ReplyPtr<Reply>(reply);
}

xcb_window_t rootOf(xcb_connection_t* connection, int screenNumber) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 0; xcb_screen_next(&screens), --screenNumber) {
        if (screenNumber == 0)
            return screens.data->root;
    }
    return XCB_WINDOW_NONE;
}

xcb_client_message_event_t messageTo(xcb_window_t window, xcb_atom_t type) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    return event;
}

} // namespace

X11Display::X11Display(const QByteArray& name) {
    int screenNumber = 0;
    connection_.reset(xcb_connect(name.isEmpty() ? nullptr : name.constData(), &screenNumber));
    if (!xcb_connection_has_error(connection_.get()))
        root_ = rootOf(connection_.get(), screenNumber);
}

std::vector<xcb_window_t> X11Display::programWindows() const {
    if (hasManager()) {
        const auto listed = cardinals(root_, "_NET_CLIENT_LIST", XCB_ATOM_WINDOW);
        if (!listed.empty())
            return listed;
    }
    // Not every manager keeps a list: that of Weston, a Wayland desktop, does not.
    return unlistedProgramWindows();
}

std::uint32_t X11Display::processId(xcb_window_t window) const {
    const auto values = cardinals(window, "_NET_WM_PID", XCB_ATOM_CARDINAL);
    return values.empty() ? 0 : values.front();
}

QByteArrayList X11Display::classNames(xcb_window_t window) const {
    QByteArrayList names = property(window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING).split('\0');
    names.removeAll(QByteArray());
    return names;
}

QByteArray X11Display::clientMachine(xcb_window_t window) const {
    return property(window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING);
}

QString X11Display::title(xcb_window_t window) const {
    const QByteArray title = property(window, atom("_NET_WM_NAME"), atom("UTF8_STRING"));
    // Programs of old have one in Latin-1 only.
    return title.isEmpty()
               ? QString::fromLatin1(property(window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING))
               : QString::fromUtf8(title);
}

xcb_window_t X11Display::transientFor(xcb_window_t window) const {
    const auto before = cardinals(window, "WM_TRANSIENT_FOR", XCB_ATOM_WINDOW);
    return before.empty() ? static_cast<xcb_window_t>(XCB_WINDOW_NONE) : before.front();
}

void X11Display::askToClose(xcb_window_t window) const {
    const xcb_atom_t closing = atom("WM_DELETE_WINDOW");
    const auto known = cardinals(window, "WM_PROTOCOLS", XCB_ATOM_ATOM);
    // Not through the manager: it may tear down a window that does not know the request.
    if (std::find(known.begin(), known.end(), closing) == known.end())
        return;
    xcb_client_message_event_t event = messageTo(window, atom("WM_PROTOCOLS"));
    event.data.data32[0] = closing;
    event.data.data32[1] = XCB_CURRENT_TIME;
    send(event, window, XCB_EVENT_MASK_NO_EVENT);
}

void X11Display::bringToFront(xcb_window_t window) const {
    xcb_connection_t* const display = connection_.get();
    if (hasManager()) {
        xcb_client_message_event_t event = messageTo(window, atom("_NET_ACTIVE_WINDOW"));
        // Source 2, "a pager": the person asked for it, so rules against stealing the focus do not
        // apply.
        event.data.data32[0] = 2;
        event.data.data32[1] = XCB_CURRENT_TIME;
        send(event, root_,
             XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    } else {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(display, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        xcb_set_input_focus(display, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
        waitForDisplay();
    }
}

void X11Display::send(const xcb_client_message_event_t& event, xcb_window_t target,
                      std::uint32_t mask) const {
    xcb_send_event(connection_.get(), 0, target, mask, reinterpret_cast<const char*>(&event));
    waitForDisplay();
}

void X11Display::waitForDisplay() const {
    // Any request with an answer: the display has then seen everything before it.
    xcb_connection_t* const display = connection_.get();
    owned(xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
}

xcb_atom_t X11Display::atom(const char* name) const {
    xcb_connection_t* const display = connection_.get();
    const auto cookie =
        xcb_intern_atom(display, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const auto reply = owned(xcb_intern_atom_reply(display, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

QByteArray X11Display::property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const {
    xcb_connection_t* const display = connection_.get();
    const auto cookie = xcb_get_property(display, 0, window, name, type, 0, kLongestProperty);
    const auto reply = owned(xcb_get_property_reply(display, cookie, nullptr));
    if (!reply)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

std::vector<std::uint32_t> X11Display::cardinals(xcb_window_t window, const char* name,
                                                 xcb_atom_t type) const {
    const QByteArray bytes = property(window, atom(name), type);
    std::vector<std::uint32_t> values(static_cast<std::size_t>(bytes.size()) /
                                      sizeof(std::uint32_t));
    if (!values.empty())
        std::memcpy(values.data(), bytes.constData(), values.size() * sizeof(std::uint32_t));
    return values;
}

bool X11Display::hasManager() const {
    constexpr const char* kCheck = "_NET_SUPPORTING_WM_CHECK";
    const auto named = cardinals(root_, kCheck, XCB_ATOM_WINDOW);
    // A manager that has gone may have left the property on the root; its own window is then gone.
    return !named.empty() && cardinals(named.front(), kCheck, XCB_ATOM_WINDOW) == named;
}

std::vector<xcb_window_t> X11Display::children(xcb_window_t parent) const {
    xcb_connection_t* const display = connection_.get();
    const auto reply =
        owned(xcb_query_tree_reply(display, xcb_query_tree(display, parent), nullptr));
    if (!reply)
        return {};
    const xcb_window_t* first = xcb_query_tree_children(reply.get());
    return {first, first + xcb_query_tree_children_length(reply.get())};
}

std::vector<xcb_window_t> X11Display::unlistedProgramWindows() const {
    std::vector<xcb_window_t> found;
    const auto keepIfShown = [&](xcb_window_t window) {
        if (isShown(window) && (processId(window) != 0 || !classNames(window).isEmpty()))
            found.push_back(window);
    };
    // Two levels: a manager may have put a frame around each.
    for (const xcb_window_t top : children(root_)) {
        keepIfShown(top);
        for (const xcb_window_t inner : children(top))
            keepIfShown(inner);
    }
    return found;
}

bool X11Display::isShown(xcb_window_t window) const {
    xcb_connection_t* const display = connection_.get();
    const auto cookie = xcb_get_window_attributes(display, window);
    const auto reply = owned(xcb_get_window_attributes_reply(display, cookie, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE && !reply->override_redirect;
}

} // namespace platform
