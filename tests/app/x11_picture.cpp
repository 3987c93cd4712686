#include "x11_picture.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace test_support {

QImage pictureOfScreen(const QByteArray& display, const QRect& part) {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(display.constData(), nullptr), xcb_disconnect);
    if (xcb_connection_has_error(connection.get()))
        return {};
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
    const auto request = xcb_get_image(
        connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, screen->root,
        static_cast<std::int16_t>(part.x()), static_cast<std::int16_t>(part.y()),
        static_cast<std::uint16_t>(part.width()), static_cast<std::uint16_t>(part.height()), ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> reply(
        xcb_get_image_reply(connection.get(), request, nullptr), std::free);
    if (!reply)
        return {};
    // 24 bits deep: four bytes a pixel, the last without meaning.
    return QImage(xcb_get_image_data(reply.get()), part.width(), part.height(),
                  QImage::Format_RGB32)
        .copy();
}

} // namespace test_support
