#pragma once

#include <QMap>

#include <vector>

class QScrollArea;
class QWidget;

namespace trel::mediadispatch {

class PlanTaskWidget;

/// Which cards a scroll area shows, and where, to be found again when the cards have been rebuilt.
class ScrollPlace
{
public:
    using Cards = QMap<int, PlanTaskWidget*>;

    /// The cards have to be laid out.
    ScrollPlace(const QScrollArea& area, const Cards& cards);

    /// Puts the first card that was in sight and is still there in its former place. Without one
    /// the area scrolls as far as it was, or to its end. The cards have to be laid out.
    void restore(QScrollArea& area, const Cards& cards) const;

private:
    struct Sight
    {
        int taskId;
        int offset; ///< From the upper edge of what is in sight, in pixels; negative above it.
    };

    std::vector<Sight> m_inSight; ///< From top to bottom.
    int m_scrolled;
};

/// Scrolls no further than it takes to show a card of the area whole, or the upper part of one that
/// is higher than the area.
void scrollIntoSight(QScrollArea& area, const QWidget& card);

} // namespace trel::mediadispatch
