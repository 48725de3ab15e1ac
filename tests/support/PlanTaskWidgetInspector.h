#pragma once

#include "PlanTaskWidget.h"
#include "card/PlanColumns.h"
#include "service/ScheduleRecords.h"

#include <QString>
#include <QStringList>

#include <map>

class QTableView;

namespace trel::mediadispatch {

class kCustomLineEdit;

/// Looks into a card: at the editors of a row as they stand in the table, and at the card's own
/// books, which have to agree with them.
class PlanTaskWidgetInspector
{
public:
    explicit PlanTaskWidgetInspector(PlanTaskWidget& card);

    PlayTask& task() const { return m_card.m_task; }
    std::map<int, int>& rowByPlanId() const { return m_card.m_rowByPlanId; }
    std::map<int, int>& planIdByRow() const { return m_card.m_planIdByRow; }
    PlanStandardItemModel& model() const { return *m_card.m_model; }

    QTableView& table() const;
    int rowCount() const;
    /// The text of a cell.
    QString text(int row, PlanColumn column) const;
    /// The widget of a cell, the holder of its editor where there is one.
    QWidget* cell(int row, PlanColumn column) const;

    kCustomLineEdit& programs(int row) const;
    widgets::ComboBox& mode(int row) const;
    QTimeEdit& startTime(int row) const;
    QTimeEdit& endTime(int row) const;
    QSpinBox& times(int row) const;
    MultiComboBox& weeks(int row) const;
    widgets::ComboBox& endAction(int row) const;
    QLabel& state(int row) const;
    QPushButton& copyButton(int row) const;
    QPushButton& deleteButton(int row) const;

    /// What a row shows, as one line such as
    /// "1 [film] time 08:00:00-09:00:00* x1 Monday end 0 green". A star follows an editor that is
    /// disabled.
    QString line(int row) const;
    QStringList lines() const;
    /// The colours of all states, such as "green red".
    QString states() const;

    /// Sums up how the maps, the lists of row widgets and the program fields stand to the table,
    /// and the plans to the rows. Empty when all are in step.
    QString disagreement() const;

    /// The worked out end of the plan at the index, written over out.
    std::string computeEndTime(int index, std::string out) const;

private:
    template <typename T>
    T& editor(int row, PlanColumn column) const;
    template <typename T>
    QString listDisagreement(const char* name, const std::vector<RowWidget<T>>& list,
                             PlanColumn column) const;

    PlanTaskWidget& m_card;
};

} // namespace trel::mediadispatch
