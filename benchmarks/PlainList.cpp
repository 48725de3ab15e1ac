#include "PlainList.h"

#include "PlainCard.h"

#include <QVBoxLayout>

namespace bench {

PlainList::PlainList(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->addStretch(0);
    m_layout->setSpacing(2);
    m_layout->addItem(new QSpacerItem(1100, 480, QSizePolicy::Expanding, QSizePolicy::Expanding));
}

void PlainList::build(const TaskMap& tasks, DayLists dayLists)
{
    const bool wasVisible = isVisible();
    setUpdatesEnabled(false);
    if (wasVisible) {
        hide();
    }
    for (const auto& [id, task] : tasks) {
        auto* card = new PlainCard(task, this);
        card->addRows(task, dayLists);
        card->fold();
        m_layout->insertWidget(m_layout->count() - 1, card);
        m_cards.push_back(card);
    }
    if (wasVisible) {
        show();
    }
    setUpdatesEnabled(true);
}

void PlainList::clear()
{
    // The layout looks through all its items for a widget that goes.
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        delete m_layout->takeAt(1);
    }
    for (QWidget* card : m_cards) {
        delete card;
    }
    m_cards.clear();
}

} // namespace bench
