#pragma once

#include "support/RecordedDeck.h"
#include "trelscreen/Stage.h"

/// A stage that tells what is put on it, each time as a line such as "stage: one".
class RecordedStage : public trel::screen::Stage
{
public:
    explicit RecordedStage(RecordedDeck::Tell tell)
        : m_tell(std::move(tell))
    {}

    void show(const trel::screen::StagePicture& picture) override
    {
        m_picture = picture;
        m_tell(QStringLiteral("stage: ") + lineOf(picture));
    }

    const trel::screen::StagePicture& picture() const { return m_picture; }
    /// The deck that is out, if it is one.
    const RecordedDeck* deck() const { return static_cast<const RecordedDeck*>(m_picture.deck); }

    static QString lineOf(const trel::screen::StagePicture& picture)
    {
        switch (picture.kind) {
        case trel::screen::StagePicture::Kind::Black:
            return QStringLiteral("black");
        case trel::screen::StagePicture::Kind::Deck:
            return static_cast<const RecordedDeck*>(picture.deck)->name();
        case trel::screen::StagePicture::Kind::StandBy:
            break;
        }
        return picture.caption.isEmpty() ? QStringLiteral("stand-by")
                                         : QStringLiteral("stand-by ") + picture.caption;
    }

private:
    RecordedDeck::Tell m_tell;
    trel::screen::StagePicture m_picture;
};
