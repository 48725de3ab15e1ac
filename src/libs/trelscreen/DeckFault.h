#pragma once

#include <QMetaType>
#include <QString>

namespace trel::screen {

/// What keeps a deck from showing what it was given.
enum class DeckTrouble {
    None,
    Missing,     ///< There is no such file.
    Refused,     ///< What stands there is no regular file, may not be read, or is of no kind that
                 ///< plays.
    Unreadable,  ///< It cannot be decoded, or holds no picture and no sound.
    Unreachable, ///< The address does not answer, or refuses.
    Stalled,     ///< No picture and no sound has come for too long.
    BrokeOff,    ///< It was over before its time: the file is cut short, or the stream has ended.
};

/// A trouble with the words of what found it, for the log.
struct DeckFault
{
    DeckTrouble trouble = DeckTrouble::None;
    QString
        words; ///< Plain English, one line; may be empty. Not to be trusted: it may quote a file.

    explicit operator bool() const { return trouble != DeckTrouble::None; }
};

} // namespace trel::screen

Q_DECLARE_METATYPE(trel::screen::DeckFault)
