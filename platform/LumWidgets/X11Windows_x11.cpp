// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/LumWidgets/X11Windows.h"

#include <QWindow>
#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

} // namespace

bool X11Windows::areBlended()
{
    return !QX11Info::isPlatformX11() || QX11Info::isCompositingManagerRunning();
}

// Qt trusts an event that was sent, as window managers send them.
void X11Windows::refreshPlace(const QWindow& window)
{
    if (!QX11Info::isPlatformX11()) {
        return;
    }
    xcb_connection_t* connection = QX11Info::connection();
    const auto id = static_cast<xcb_window_t>(window.winId());
    const auto question = xcb_translate_coordinates(
        connection, id, static_cast<xcb_window_t>(QX11Info::appRootWindow()), 0, 0);
    const auto sizeQuestion = xcb_get_geometry(connection, id);
    const ReplyPointer<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(connection, question, nullptr));
    const ReplyPointer<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(connection, sizeQuestion, nullptr));
    if (!place || !size) {
        return;
    }
    xcb_configure_notify_event_t event = {};
    event.response_type = XCB_CONFIGURE_NOTIFY;
    event.event = id;
    event.window = id;
    event.x = place->dst_x;
    event.y = place->dst_y;
    event.width = size->width;
    event.height = size->height;
    xcb_send_event(connection, 0, id, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
}
