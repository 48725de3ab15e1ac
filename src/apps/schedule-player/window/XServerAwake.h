#pragma once

#include <QtGlobal>

#include <memory>

struct xcb_connection_t;

namespace trel::player {

/// Keeps an X server from blanking the screen and from switching the monitor off, which one without
/// a desktop does by itself. The server takes it back when this goes, or the process ends in any
/// way. Does nothing where the windows are not those of an X server.
class XServerAwake
{
public:
    XServerAwake();
    ~XServerAwake();
    Q_DISABLE_COPY(XServerAwake)

    /// Whether there is a server that was told.
    bool isTold() const { return m_connection != nullptr; }

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t* connection) const;
    };

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
};

} // namespace trel::player
