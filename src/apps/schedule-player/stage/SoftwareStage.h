#pragma once

#include "deck/DeckPicture.h"
#include "stage/ScreenShape.h"
#include "trelscreen/Stage.h"

#include <QImage>
#include <QObject>

#include <vector>

namespace trel::player {

class FrameSink;
class PlayerDeck;

/// Puts the picture of the screen together in memory: that of a deck as the deck has drawn it, the
/// stand-by picture or black, with the caption on it. Every picture goes to all sinks, at once.
class SoftwareStage : public QObject, public screen::Stage
{
    Q_OBJECT

public:
    /// What is to be shown when there is no picture; null for black. Black to begin with.
    SoftwareStage(const ScreenShape& shape, const QImage& standBy, QObject* parent = nullptr);

    /// A deck that it may be told to show; it outlives the stage. It is told the screen's shape.
    void add(PlayerDeck& deck);
    /// Gets what is on screen now, and all that follows. It outlives the stage, or is taken out.
    void add(FrameSink& sink);
    void remove(FrameSink& sink);

    /// Another picture for when there is none; null for black.
    void setStandBy(const QImage& standBy);

    void setShape(const ScreenShape& shape);
    const ScreenShape& shape() const { return m_shape; }

    void show(const screen::StagePicture& picture) override;

private:
    void deckChanged(const PlayerDeck& deck);
    void present();
    QImage picture() const;
    DeckPicture shownByDeck() const;
    QImage deckPicture() const;

    ScreenShape m_shape;
    QImage m_standBy;
    QImage m_fittedStandBy; ///< As large as the screen, before it is turned.
    screen::StagePicture m_shown;
    std::vector<PlayerDeck*> m_decks;
    std::vector<FrameSink*> m_sinks;
};

} // namespace trel::player
