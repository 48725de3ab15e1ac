#include "ScrollPlace.h"

#include "PlanTaskWidget.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace trel::mediadispatch {

ScrollPlace::ScrollPlace(const QScrollArea& area, const Cards& cards)
    : m_scrolled(area.verticalScrollBar()->value())
{
    const int height = area.viewport()->height();
    for (auto card = cards.cbegin(); card != cards.cend(); ++card) {
        const int offset = card.value()->y() - m_scrolled;
        if (offset < height && offset + card.value()->height() > 0) {
            m_inSight.push_back({card.key(), offset});
        }
    }
    std::sort(m_inSight.begin(), m_inSight.end(),
              [](const Sight& a, const Sight& b) { return a.offset < b.offset; });
}

void ScrollPlace::restore(QScrollArea& area, const Cards& cards) const
{
    const auto found =
        std::find_if(m_inSight.begin(), m_inSight.end(),
                     [&cards](const Sight& sight) { return cards.contains(sight.taskId); });
    if (found == m_inSight.end()) {
        area.verticalScrollBar()->setValue(m_scrolled);
        return;
    }
    const PlanTaskWidget& card = *cards.value(found->taskId);
    // A card that was open is folded now, so that what of it was in sight may be no more.
    const bool isInSight = found->offset + card.height() > 0;
    area.verticalScrollBar()->setValue(card.y() - (isInSight ? found->offset : 0));
}

void scrollIntoSight(QScrollArea& area, const QWidget& card)
{
    QScrollBar& bar = *area.verticalScrollBar();
    const int lowest = card.y() + card.height() - area.viewport()->height();
    bar.setValue(std::min(std::max(bar.value(), lowest), card.y()));
}

} // namespace trel::mediadispatch
