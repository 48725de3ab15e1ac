#pragma once

#include "PlainRow.h"
#include "Samples.h"

#include <QWidget>

#include <vector>

class QVBoxLayout;

namespace bench {

/// The plain cards of a schedule, folded and one above the other.
class PlainList : public QWidget
{
public:
    explicit PlainList(QWidget* parent = nullptr);

    /// Builds a card for each task. A list on show is hidden meanwhile, so that it is laid out
    /// once.
    void build(const TaskMap& tasks, DayLists dayLists = DayLists::Made);
    void clear();

private:
    QVBoxLayout* m_layout;
    std::vector<QWidget*> m_cards;
};

} // namespace bench
