#pragma once

#include "FrameRecord.h"
#include "deck/PlayerDeck.h"
#include "stage/SoftwareStage.h"
#include "support/NumberedClip.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// Two real decks without sound on a real stage, and what it hands out.
class DeckFixture
{
public:
    explicit DeckFixture(const trel::player::ScreenShape& shape = {QSize(320, 180), 0})
        : stage(shape, QImage())
    {
        stage.add(first);
        stage.add(second);
        stage.add(record);
    }

    void show(const trel::screen::Deck& deck)
    {
        trel::screen::StagePicture picture;
        picture.kind = trel::screen::StagePicture::Kind::Deck;
        picture.deck = &deck;
        stage.show(picture);
    }

    /// Whether the last picture on screen is this one.
    bool shows(int program, int frame) const
    {
        const RecordedFrame& last = record.last();
        return last.content == RecordedFrame::Content::Clip &&
               last.mark == media::ClipMark{program, frame};
    }

    trel::player::PlayerDeck first{true};
    trel::player::PlayerDeck second{true};
    FrameRecord record;
    trel::player::SoftwareStage stage;
};

/// The load of a film, for tests that have nothing special to say about it.
inline trel::screen::DeckLoad filmOf(const QString& path, qint64 position = 0)
{
    return {path, trel::mediadispatch::ProgramKind::Video, position, false, 0};
}

/// The fault of the only signal that a spy on failed has.
inline trel::screen::DeckFault faultIn(const QSignalSpy& failed)
{
    return failed.isEmpty() ? trel::screen::DeckFault()
                            : failed.first().at(1).value<trel::screen::DeckFault>();
}
