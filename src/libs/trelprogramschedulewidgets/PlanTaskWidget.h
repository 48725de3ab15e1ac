#pragma once

#include "RowWidget.h"
#include "service/ScheduleRecords.h"

#include <QStringList>
#include <QWidget>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

class QDate;
class QLabel;
class QPushButton;
class QSpinBox;
class QStandardItem;
class QTime;
class QTimeEdit;

namespace Ui {
class PlanTaskWidget;
}

namespace trel::widgets {
class ComboBox;
}

namespace trel::mediadispatch {

class MultiComboBox;
class PlanStandardItemModel;

/// The card of one task: its period of validity and a table with a row for each of its plans.
///
/// The card edits a copy of the task. An edit takes three steps: a row's editor calls a slot, the
/// slot changes the copy, and the conflict pass marks the plans that collide and hands the whole
/// task to the service. What has been edited therefore stands in the service's working set at once,
/// and saving is left to others.
///
/// A row number and an index into the task's plans are the same thing. Rows are found by searching
/// the lists of row widgets for the sender of a signal, so the slots of the rows do nothing when
/// something else calls them.
class PlanTaskWidget : public QWidget
{
    Q_OBJECT

public:
    /// Builds the card, open, with a row for each plan. The service is handed the task once for
    /// each of its plans, so a task without plans is not touched.
    PlanTaskWidget(const PlayTask& task, QWidget* parent);
    ~PlanTaskWidget() override;

    /// Shows the title alone, or the whole card.
    void setFolded(bool folded);
    bool isFolded() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The operator has confirmed that the task is to go.
    void signalDeleteTask(int taskId);
    /// The operator wants a copy of the task.
    void signalCopyTask(int taskId);

public slots:
    void slotFold(bool isFold);

    void slotDeleteTask();
    void slotCopyTask();

    /// Fetches every text of the card anew.
    void slotTranslation();

private:
    friend class PlanTaskWidgetInspector;

    void setUpCard();
    void setUpTable();
    void showDates();
    void makeConnections();
    void translateFrame();

    std::unique_ptr<Ui::PlanTaskWidget> m_ui;
    PlanStandardItemModel* m_model = nullptr;
    PlayTask m_task;
    std::map<int, int> m_rowByPlanId;
    std::map<int, int> m_planIdByRow;
    std::vector<RowWidget<QTimeEdit>> m_endTimeEdits;
    std::vector<RowWidget<QTimeEdit>> m_startTimeEdits;
    std::vector<RowWidget<QSpinBox>> m_timesSpins;
    std::vector<RowWidget<widgets::ComboBox>> m_modeCombos;
    std::vector<RowWidget<MultiComboBox>> m_weekCombos;
    std::vector<RowWidget<QLabel>> m_conflictLabels;
    std::vector<RowWidget<widgets::ComboBox>> m_endActionCombos;
};

} // namespace trel::mediadispatch
