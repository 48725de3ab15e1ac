#pragma once

#include <QSqlDatabase>

#include <chrono>

namespace trel::mediadispatch {

/// Opens a connection to a server within a limit. On the way there a name is looked up, and the
/// driver asks the server for its version and sets what it needs; neither knows an end of the wait,
/// and until all of it is done nobody can tell which socket to cut. So a thread of its own does it.
///
/// A thread that is given up is left behind with its connection. It ends once it is answered, and
/// closes what it has opened then. Nobody waits for it, not even at the end of the program, where
/// it holds nothing but a socket and memory.
class PostgresOpening
{
public:
    enum class Outcome {
        Open,
        Refused, ///< The connection has the reason.
        GivenUp, ///< The connection belongs to the thread: nothing is to be done with it but to
                 ///< forget it.
    };

    /// For a connection that is closed and has all of its parameters. Throws std::bad_alloc where
    /// there is no room for the thread, or in it. Nobody else does anything with the connection
    /// meanwhile.
    static Outcome open(const QSqlDatabase& connection, std::chrono::milliseconds limit);
};

} // namespace trel::mediadispatch
