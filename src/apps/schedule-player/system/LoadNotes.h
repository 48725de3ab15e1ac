#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include <optional>

namespace trel::player {

/// What the decks of a screen have loaded, in a small file of the machine that outlives the
/// process: where a film brings the player down, the one after it can say which it was.
///
/// Writing takes no time, since the file is mapped into memory and lies where the system keeps what
/// goes with a restart of the machine.
class LoadNotes
{
public:
    /// How a player before this one ended, where it did so without notice.
    struct SuddenEnd
    {
        QStringList loaded; ///< The media of both decks.
        int times = 0; ///< How often that has happened in a row, each within a minute of the start.
    };

    /// Of a screen on a store, which must be this player's alone by then. Takes over what the one
    /// before has left. Does without a file where there can be none.
    LoadNotes(const QString& store, const QString& screen);
    /// The end is in order.
    ~LoadNotes();
    Q_DISABLE_COPY(LoadNotes)

    const std::optional<SuddenEnd>& formerEnd() const { return m_formerEnd; }
    /// A deck, 0 or 1, is about to load that; empty for nothing.
    void note(int deck, const QString& media);
    /// The end of a player before, as a line of the log.
    static QString words(const SuddenEnd& end);

private:
    struct Content;

    void readFormer();

    QFile m_file;
    Content* m_content = nullptr; ///< Mapped; null without a file.
    std::optional<SuddenEnd> m_formerEnd;
};

} // namespace trel::player
