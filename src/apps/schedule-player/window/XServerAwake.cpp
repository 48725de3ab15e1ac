#include "window/XServerAwake.h"

#include <QGuiApplication>

#include <xcb/screensaver.h>
#include <xcb/xcb.h>

namespace trel::player {

XServerAwake::XServerAwake()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        return;
    }
    // A connection of its own, as the server's word is bound to it.
    m_connection.reset(xcb_connect(nullptr, nullptr));
    xcb_connection_t* connection = m_connection.get();
    const xcb_query_extension_reply_t* extension =
        xcb_connection_has_error(connection) != 0
            ? nullptr
            : xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (extension == nullptr || extension->present == 0) {
        m_connection.reset();
        return;
    }
    xcb_screensaver_suspend(connection, 1);
    xcb_flush(connection);
}

XServerAwake::~XServerAwake() = default;

void XServerAwake::Disconnect::operator()(xcb_connection_t* connection) const
{
    xcb_disconnect(connection);
}

} // namespace trel::player
