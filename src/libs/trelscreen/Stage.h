#pragma once

#include <QString>

namespace trel::screen {

class Deck;

/// What stands on the screen.
struct StagePicture
{
    enum class Kind {
        Black,
        Deck,    ///< What the deck shows, as it moves.
        StandBy, ///< The picture for when there is none; black where none was given.
    };

    Kind kind = Kind::Black;
    const Deck* deck = nullptr; ///< Of Kind::Deck alone.
    /// A line of plain text on it: the name of what only sounds. Empty for none.
    QString caption;

    bool operator==(const StagePicture& other) const
    {
        return kind == other.kind && deck == other.deck && caption == other.caption;
    }
    bool operator!=(const StagePicture& other) const { return !(*this == other); }
};

/// Where the pictures go: a window, or what takes them down for a test.
class Stage
{
public:
    virtual ~Stage() = default;

    /// Shows something else from now on. The first picture of it is on its way to the screen when
    /// the call returns. A deck goes on to be shown as it moves, until the next call.
    virtual void show(const StagePicture& picture) = 0;

protected:
    Stage() = default;
    Stage(const Stage&) = default;
    Stage& operator=(const Stage&) = default;
};

} // namespace trel::screen
