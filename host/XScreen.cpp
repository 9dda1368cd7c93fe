#include "XScreen.h"

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace pad {

namespace {

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// The server is asked directly, because that takes less than a millisecond. The connection stays open:
/// many servers restart when their last client leaves, and would refuse a program that connects right
/// after.
xcb_connection_t* serverConnection()
{
    static const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    return xcb_connection_has_error(connection.get()) ? nullptr : connection.get();
}

Screen monitorOf(const xcb_randr_monitor_info_t& monitor)
{
    Screen screen{QSize(monitor.width, monitor.height)};
    screen.setMillimetres(QSize(int(monitor.width_in_millimeters), int(monitor.height_in_millimeters)));
    return screen;
}

} // namespace

bool xscreen::answers()
{
    return serverConnection();
}

std::optional<Screen> xscreen::ask()
{
    xcb_connection_t* connection = serverConnection();
    const xcb_screen_t& root = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    Screen screen{QSize(root.width_in_pixels, root.height_in_pixels)};
    const xcb_query_extension_reply_t* randr = xcb_get_extension_data(connection, &xcb_randr_id);
    if (!randr || !randr->present)
        return screen;
    const Owned<xcb_randr_get_monitors_reply_t> monitors(
        xcb_randr_get_monitors_reply(connection, xcb_randr_get_monitors(connection, root.root, true),
                                     nullptr),
        &std::free);
    if (!monitors)
        return screen;
    auto monitor = xcb_randr_get_monitors_monitors_iterator(monitors.get());
    if (monitor.rem)
        screen = monitorOf(*monitor.data);
    for (; monitor.rem; xcb_randr_monitor_info_next(&monitor)) {
        if (monitor.data->primary)
            screen = monitorOf(*monitor.data);
    }
    return screen;
}

} // namespace pad
