#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

/// Stands between a server on loopback and those who connect to it, at a port of its own, in a
/// thread of its own. It can keep back what a client sends, and cut the connection there, so that
/// nobody can tell the client what became of it.
class ServerRelay
{
public:
    /// The port of the server, which need not be there yet.
    explicit ServerRelay(int server);
    /// Cuts all connections.
    ~ServerRelay();
    Q_DISABLE_COPY(ServerRelay)

    /// 0 where there is none to be had.
    int port() const { return m_port; }

    /// From now on the first client that sends these bytes, in one piece, is kept waiting: neither
    /// they nor what follows reach the server. Once.
    void holdAt(const QByteArray& words);
    /// Waits until somebody is kept; false when nobody has come in a minute.
    bool waitUntilHeld();
    /// How many connections clients have made.
    int lines() const;
    /// In how many pieces clients have sent what they did: one for each statement, and some more
    /// for long ones.
    int pieces() const;
    /// Whether any client has sent these bytes, in one piece or in several.
    bool hasSeen(const QByteArray& words) const;
    /// Ends the connections that are there, on both sides. Those that come then pass.
    void cut();

private:
    struct Line
    {
        int client = -1;
        int server = -1;
        bool isHeld = false;
    };

    void run();
    /// Lets those who wait for a change of the sockets know that there is another reason.
    void wake() const;
    void accept();
    /// False when the line has ended.
    bool pass(Line& line, bool isToServer);
    static void close(const Line& line);

    int m_server;
    int m_port = 0;
    int m_listener = -1;
    int m_pipe[2] = {-1, -1};
    std::vector<Line> m_lines;  ///< Of the thread.
    mutable std::mutex m_mutex; ///< Of what follows.
    std::condition_variable m_changed;
    QByteArray m_words;
    QByteArray m_sent; ///< By all clients, in the order in which it came.
    int m_pieces = 0;
    int m_accepted = 0;
    bool m_isHeld = false;
    bool m_isCut = false;
    bool m_isLeaving = false;
    std::thread m_thread;
};
