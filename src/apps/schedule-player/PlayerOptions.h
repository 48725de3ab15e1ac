#pragma once

#include <QString>
#include <QStringList>

namespace trel::player {

/// What the command line asks of the player.
struct PlayerOptions
{
    QString database;      ///< A file or an address; empty for the user's own file.
    QString mirror;        ///< The folder of the mirror of an address; empty for the user's own.
    QString media;         ///< Where files are fetched from; empty for nowhere.
    int mediaLimit = 0;    ///< In GiB; 0 for what the disk has.
    QString timeZone;      ///< The time zone of the screen; empty for the machine's.
    QString screen;        ///< The name under which it plays; never empty.
    bool inWindow = false; ///< In a window that can be moved, instead of the whole screen.
    QString monitor;       ///< The system's name of the screen to play on; empty for the first one.
    bool isMute = false;
    QString standBy; ///< The image for when there is no picture; empty for black.
    int turned = 0;  ///< Degrees clockwise: 0, 90, 180 or 270.
    QString spool;   ///< The folder for records that wait; empty for the user's own.
};

/// How reading a command line ended.
struct PlayerOptionsResult
{
    enum class Next {
        Start,  ///< Go on with the options.
        Done,   ///< Print text and end with 0.
        Misuse, ///< Print text and end with 2.
        Version ///< Print the version and end with 0.
    };

    Next next = Next::Start;
    PlayerOptions options;
    QString text;
};

/// Reads a command line, the program's name included. Needs a QCoreApplication.
PlayerOptionsResult readPlayerOptions(const QStringList& arguments);

} // namespace trel::player
