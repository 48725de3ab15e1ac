#include "stage/SoftwareStage.h"

#include "clock/Clock.h"
#include "deck/PlayerDeck.h"
#include "stage/Caption.h"
#include "stage/FrameSink.h"

#include <algorithm>

namespace trel::player {

using screen::StagePicture;

SoftwareStage::SoftwareStage(const ScreenShape& shape, const QImage& standBy, QObject* parent)
    : QObject(parent)
    , m_shape(shape)
    , m_standBy(standBy)
{
    setShape(shape);
}

void SoftwareStage::add(PlayerDeck& deck)
{
    m_decks.push_back(&deck);
    deck.setShape(m_shape);
    connect(&deck, &PlayerDeck::pictureChanged, this, [this, &deck] { deckChanged(deck); });
}

void SoftwareStage::add(FrameSink& sink)
{
    m_sinks.push_back(&sink);
    present();
}

void SoftwareStage::remove(FrameSink& sink)
{
    m_sinks.erase(std::remove(m_sinks.begin(), m_sinks.end(), &sink), m_sinks.end());
}

void SoftwareStage::setStandBy(const QImage& standBy)
{
    m_standBy = standBy;
    setShape(m_shape);
}

void SoftwareStage::setShape(const ScreenShape& shape)
{
    m_shape = shape;
    const QSize room = roomBeforeTurning(shape.size, shape.turned);
    m_fittedStandBy = fittedOnBlack(m_standBy, room);
    for (PlayerDeck* deck : m_decks) {
        deck->setShape(shape);
    }
    present();
}

void SoftwareStage::show(const StagePicture& picture)
{
    m_shown = picture;
    present();
}

void SoftwareStage::deckChanged(const PlayerDeck& deck)
{
    if (m_shown.kind == StagePicture::Kind::Deck && m_shown.deck == &deck) {
        present();
    }
}

void SoftwareStage::present()
{
    const mediadispatch::Instant moment = mediadispatch::Clock::current().msecsSinceEpoch();
    if (m_shown.kind == StagePicture::Kind::Deck) {
        if (const SharedGlPicture texture = shownByDeck().texture) {
            for (FrameSink* sink : m_sinks) {
                sink->texture(texture, moment);
            }
            return;
        }
    }
    const QImage shown = picture();
    for (FrameSink* sink : m_sinks) {
        sink->frame(shown, moment);
    }
}

QImage SoftwareStage::picture() const
{
    if (m_shown.kind == StagePicture::Kind::Deck && m_shown.caption.isEmpty()) {
        return deckPicture();
    }
    // Upright first, as a caption is written on it.
    QImage upright;
    switch (m_shown.kind) {
    case StagePicture::Kind::Deck:
        upright = turnedClockwise(deckPicture(), (360 - m_shape.turned) % 360);
        break;
    case StagePicture::Kind::StandBy:
        upright = m_fittedStandBy;
        break;
    case StagePicture::Kind::Black:
        upright = fittedOnBlack({}, roomBeforeTurning(m_shape.size, m_shape.turned));
        break;
    }
    drawCaption(upright, m_shown.caption);
    return turnedClockwise(upright, m_shape.turned);
}

DeckPicture SoftwareStage::shownByDeck() const
{
    const auto found = std::find(m_decks.begin(), m_decks.end(), m_shown.deck);
    return found == m_decks.end() ? DeckPicture() : (*found)->picture();
}

QImage SoftwareStage::deckPicture() const
{
    // One of another size is on its way to be drawn again.
    return fittedOnBlack(shownByDeck().image, m_shape.size);
}

} // namespace trel::player
