#pragma once

/// Stands between the databases of this process and the disk, and lets single calls fail: the n-th
/// of a kind from now on, once or for good. Everything else goes through.
///
/// In force from construction to destruction, for the connections that are opened in between; these
/// have to be closed before it goes. One at a time, on one thread.
class FaultyDisk
{
public:
    enum Call {
        Open,
        Read,
        Write,
        Sync,
        Truncate,
        Delete, ///< Of a file, such as a log that is no longer needed.
        Size,
        Lock, ///< Of the database and of the index of its log.
        Map,  ///< Of the index of the log.
        CallCount
    };

    enum class Lasting { Once, ForGood };

    FaultyDisk();
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// The n-th call of the kind, counted from 1, fails with the system's error; where it lasts,
    /// all later ones of the kind as well. Replaces what was set for the kind.
    void fail(Call call, int nth, Lasting lasting, int systemError);
    /// No call fails any more; the counting begins again.
    void heal();
    /// How many calls of the kind there were since the start, the last fail of the kind or heal.
    int count(Call call) const;
    /// Whether a call has been let fail since the last heal.
    bool hasFailed() const;
};
