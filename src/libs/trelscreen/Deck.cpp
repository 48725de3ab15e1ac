#include "Deck.h"

namespace trel::screen {

Deck::Deck(QObject* parent)
    : QObject(parent)
{}

Deck::~Deck() = default;

} // namespace trel::screen
