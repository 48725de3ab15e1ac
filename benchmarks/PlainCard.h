#pragma once

#include "PlainRow.h"

#include "service/ScheduleRecords.h"

#include <QWidget>

class QStandardItemModel;
class QTableView;

namespace bench {

/// What the toolkit alone costs for a card: the widgets, the table and the model of a task, every
/// value set once and in the order in which that is cheapest, and nothing behind them.
class PlainCard : public QWidget
{
public:
    /// Builds everything but the rows.
    explicit PlainCard(const trel::mediadispatch::PlayTask& task, QWidget* parent);

    /// Builds the rows of all plans.
    void addRows(const trel::mediadispatch::PlayTask& task, DayLists dayLists = DayLists::Made);
    void fold();

    QTableView* table() const { return m_table; }
    QStandardItemModel* model() const { return m_model; }

private:
    void setUpTable();

    QTableView* m_table = nullptr;
    QStandardItemModel* m_model = nullptr;
    QWidget* m_body = nullptr;
};

} // namespace bench
