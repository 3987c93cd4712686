// From the press of a key to the picture that it brings, as the X server of DISPLAY sees both:
//   key_to_pixels KEY
// KEY is one of the names below or a sign of ASCII, after "Ctrl+" or "Alt+" as need be. Prints when
// the screen first changed and when it had its last change, in milliseconds after the press. A
// picture counts as the last one when nothing follows for half a second.
//
// The server tells of each drawing, and then 240 rows of the screen are compared with what they
// were, so that drawing the same again is no change. A change gets the time at which the rows were
// there, which comes after the drawing: what is measured is an upper bound, for every program
// alike.

#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <xcb/damage.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr unsigned kRows = 240;
constexpr unsigned kBytesPerPixel = 4;
constexpr auto kStill = std::chrono::milliseconds(500);
constexpr auto kLongest = std::chrono::seconds(10);

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

/// Rows spread over the screen, in memory that is shared with the server.
class Rows {
public:
    Rows(xcb_connection_t* connection, const xcb_screen_t& screen)
        : connection_(connection), screen_(screen),
          rowBytes_(std::size_t{screen.width_in_pixels} * kBytesPerPixel), size_(kRows * rowBytes_),
          memory_(shmget(IPC_PRIVATE, size_, IPC_CREAT | 0600)),
          segment_(xcb_generate_id(connection)) {
        pixels_ = static_cast<const std::uint8_t*>(shmat(memory_, nullptr, 0));
        const Owned<xcb_generic_error_t> error(xcb_request_check(
            connection_,
            xcb_shm_attach_checked(connection_, segment_, static_cast<std::uint32_t>(memory_), 0)));
        attached_ = !error && pixels_ != reinterpret_cast<const std::uint8_t*>(-1);
        shmctl(memory_, IPC_RMID, nullptr); // gone when nobody has it any more
    }

    /// Whether the server could be given the memory.
    bool attached() const { return attached_; }

    /// Looks again; whether anything is other than it was.
    bool changed() {
        std::vector<xcb_shm_get_image_cookie_t> asked;
        for (unsigned row = 0; row < kRows; ++row)
            asked.push_back(
                xcb_shm_get_image(connection_, screen_.root, 0,
                                  static_cast<std::int16_t>(row * screen_.height_in_pixels / kRows),
                                  screen_.width_in_pixels, 1, ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP,
                                  segment_, static_cast<std::uint32_t>(row * rowBytes_)));
        for (const auto cookie : asked)
            Owned<xcb_shm_get_image_reply_t>(xcb_shm_get_image_reply(connection_, cookie, nullptr));
        std::vector<std::uint8_t> now(pixels_, pixels_ + size_);
        return std::exchange(before_, std::move(now)) != before_;
    }

private:
    xcb_connection_t* connection_;
    const xcb_screen_t& screen_;
    std::size_t rowBytes_;
    std::size_t size_;
    int memory_;
    xcb_shm_seg_t segment_;
    const std::uint8_t* pixels_ = nullptr;
    bool attached_ = false;
    std::vector<std::uint8_t> before_;
};

// The values are those of X11's keysymdef.h.
constexpr xcb_keysym_t kShift = 0xffe1;

struct Key {
    xcb_keysym_t modifier = XCB_NO_SYMBOL;
    xcb_keysym_t sign = XCB_NO_SYMBOL;
};

/// A sign of ASCII stands for itself.
std::optional<Key> parsed(std::string_view text) {
    constexpr std::pair<std::string_view, xcb_keysym_t> kModifiers[] = {{"Ctrl+", 0xffe3},
                                                                        {"Alt+", 0xffe9}};
    constexpr std::pair<std::string_view, xcb_keysym_t> kNames[] = {
        {"BackSpace", 0xff08}, {"Return", 0xff0d}, {"Left", 0xff51}, {"Right", 0xff53},
        {"Prior", 0xff55},     {"Next", 0xff56},   {"F3", 0xffc0}};
    Key key;
    for (const auto& [name, sign] : kModifiers)
        if (text.substr(0, name.size()) == name && text.size() > name.size()) {
            key.modifier = sign;
            text.remove_prefix(name.size());
        }
    for (const auto& [name, sign] : kNames)
        if (text == name)
            key.sign = sign;
    if (text.size() == 1)
        key.sign = static_cast<unsigned char>(text.front());
    return key.sign == XCB_NO_SYMBOL ? std::nullopt : std::optional(key);
}

struct KeyPlace {
    xcb_keycode_t code = 0; ///< 0 where no key gives the sign
    bool shifted = false;
};

KeyPlace placeOf(xcb_connection_t* connection, xcb_keysym_t sign) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const Owned<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, count), nullptr));
    if (!reply)
        return {};
    const xcb_keysym_t* signs = xcb_get_keyboard_mapping_keysyms(reply.get());
    const int length = xcb_get_keyboard_mapping_keysyms_length(reply.get());
    for (int i = 0; i < length; ++i)
        if (const int level = i % reply->keysyms_per_keycode; signs[i] == sign && level < 2)
            return {static_cast<xcb_keycode_t>(setup->min_keycode + i / reply->keysyms_per_keycode),
                    level == 1};
    return {};
}

class Measurement {
public:
    Measurement(xcb_connection_t* connection, const xcb_screen_t& screen)
        : connection_(connection), rows_(connection, screen) {
        xcb_discard_reply(connection, xcb_damage_query_version(connection, 1, 1).sequence);
        xcb_damage_create(connection, xcb_generate_id(connection), screen.root,
                          XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        rows_.changed();
    }

    bool canSee() const { return rows_.attached(); }

    /// When the screen changed first and last after `key`, or nothing when it did not, or did not
    /// become still.
    std::optional<std::pair<Milliseconds, Milliseconds>>
    press(const std::vector<xcb_keycode_t>& held, xcb_keycode_t key) {
        drawnUpon(Milliseconds(0));
        rows_.changed();
        for (const xcb_keycode_t each : held)
            fake(XCB_KEY_PRESS, each);
        const auto start = Clock::now();
        fake(XCB_KEY_PRESS, key);
        fake(XCB_KEY_RELEASE, key);
        for (const xcb_keycode_t each : held)
            fake(XCB_KEY_RELEASE, each);
        std::optional<Clock::time_point> first;
        auto last = start;
        while (Clock::now() - start < kLongest) {
            const bool still = first && Clock::now() - last > kStill;
            if (still)
                return std::pair(Milliseconds(*first - start), Milliseconds(last - start));
            if (drawnUpon(Milliseconds(20)) && rows_.changed()) {
                last = Clock::now();
                first = first.value_or(last);
            }
        }
        return {};
    }

private:
    void fake(std::uint8_t type, xcb_keycode_t key) {
        xcb_test_fake_input(connection_, type, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        xcb_flush(connection_);
    }

    /// Waits until the server tells of drawing, at most so long, and takes all that it has told.
    bool drawnUpon(Milliseconds atMost) {
        pollfd socket{xcb_get_file_descriptor(connection_), POLLIN, 0};
        Owned<xcb_generic_event_t> event(xcb_poll_for_queued_event(connection_));
        if (!event) {
            poll(&socket, 1, static_cast<int>(atMost.count()));
            event.reset(xcb_poll_for_event(connection_));
        }
        const bool any = event != nullptr;
        while (event)
            event.reset(xcb_poll_for_event(connection_));
        return any;
    }

    xcb_connection_t* connection_;
    Rows rows_;
};

} // namespace

int main(int argc, char** argv) {
    const auto key = argc == 2 ? parsed(argv[1]) : std::nullopt;
    if (!key) {
        std::fputs("usage: key_to_pixels [Ctrl+|Alt+]KEY\n", stderr);
        return 2;
    }
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection)) {
        std::fputs("key_to_pixels: no display\n", stderr);
        return 1;
    }
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    Measurement measurement(connection, screen);
    const KeyPlace place = placeOf(connection, key->sign);
    if (!measurement.canSee() || place.code == 0) {
        std::fputs("key_to_pixels: the server shares no pictures, or has no such key\n", stderr);
        return 1;
    }
    std::vector<xcb_keycode_t> held;
    if (key->modifier != XCB_NO_SYMBOL)
        held.push_back(placeOf(connection, key->modifier).code);
    if (place.shifted)
        held.push_back(placeOf(connection, kShift).code);
    const auto times = measurement.press(held, place.code);
    if (!times) {
        std::fputs("key_to_pixels: no picture that stays\n", stderr);
        return 1;
    }
    std::printf("%.1f %.1f\n", times->first.count(), times->second.count());
    xcb_disconnect(connection);
    return 0;
}
