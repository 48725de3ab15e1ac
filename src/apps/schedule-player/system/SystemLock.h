#pragma once

#include <QString>
#include <QtGlobal>

namespace trel::player {

/// A lock of the system on a file, which ends with the process that has it, however that ends. It
/// says nothing of who has it.
class SystemLock
{
public:
    enum class State {
        Held,
        Refused,     ///< Somebody else has it.
        NotPossible, ///< The file cannot be had, or its file system knows no locks.
    };

    /// Tries once. Makes the file where it is missing, and leaves it there for ever: one that was
    /// taken away could be locked twice.
    explicit SystemLock(const QString& path);
    ~SystemLock();
    Q_DISABLE_COPY(SystemLock)

    State state() const { return m_state; }

private:
    int m_file = -1;
    State m_state = State::NotPossible;
};

} // namespace trel::player
