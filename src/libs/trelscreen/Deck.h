#pragma once

#include "service/ScheduleRecords.h"
#include "trelscreen/DeckFault.h"

#include <QObject>
#include <QString>

#include <optional>

namespace trel::screen {

/// What a deck is to show.
struct DeckLoad
{
    QString media; ///< Absolute path of a file, or the address of a stream.
    mediadispatch::ProgramKind kind = mediadispatch::ProgramKind::Other;
    /// Where the first picture lies, in milliseconds from the program's beginning. Nothing for what
    /// has no length. At the end of the program, as for the last frame of a play, or beyond it
    /// where a file is shorter than was known, the last picture.
    qint64 position = 0;
    /// The first picture stands and is never played on, as the last frame of a play does.
    bool stands = false;
    /// How often the play has failed in a row before this load: what is slow may be given more
    /// time.
    int failures = 0;
};

/// One of the two that a screen plays on: a deck loads a program, shows its first picture and waits
/// there, and starts to play within the call that asks for it, so that a change of program is a
/// change of deck.
///
/// Every load has a number, and every signal names the load it is about. A signal of a load that
/// has been replaced is never emitted, so that the picture of one program cannot be taken for
/// another's. Signals come from the event loop, never from within a call.
class Deck : public QObject
{
    Q_OBJECT

public:
    explicit Deck(QObject* parent = nullptr);
    ~Deck() override;

    /// Forgets what it had, and loads; returns the load's number, which counts from 1. Then comes
    /// ready or failed. Takes no time worth mentioning.
    virtual quint64 load(const DeckLoad& load) = 0;
    /// Forgets what it had. It has no picture any more.
    virtual void clear() = 0;

    /// Starts or goes on. Nothing happens unless it is ready, or where the picture stands.
    virtual void play() = 0;
    /// Keeps the picture, and ends the sound.
    virtual void pause() = 0;
    /// Goes elsewhere in the program; the present picture stays until the one from there has come.
    virtual void seek(qint64 position) = 0;
    /// 1 is the speed of the program; between 0.9 and 1.1.
    virtual void setSpeed(double speed) = 0;

    /// Whether the picture, or the sound, of the present load has come.
    virtual bool isReady() const = 0;
    /// Whether it has a picture to show: not where it is not ready or only sounds.
    virtual bool hasPicture() const = 0;
    /// Where the picture shown, or the sound heard, lies in the program, in milliseconds; none
    /// where that is not known, as for an image, and while it seeks. Goes on between two pictures
    /// that are more than half a second apart: one that stands still for a second is taken for a
    /// stall. That of a stream counts from anywhere, and only whether it moves is looked at.
    virtual std::optional<qint64> position() const = 0;
    /// How long a picture of the present load stands, in milliseconds; none where that is not
    /// known, and before it is ready.
    virtual std::optional<qint64> pictureLength() const { return std::nullopt; }

signals:
    /// The first picture is there, or the first sound of what has no picture.
    void ready(quint64 load);
    /// It cannot be shown, or not any more. A picture that was there stays.
    void failed(quint64 load, const trel::screen::DeckFault& fault);
    /// It has played to its end and keeps the last picture.
    void ended(quint64 load);
};

} // namespace trel::screen
