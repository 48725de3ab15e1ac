#pragma once

#include "RowWidget.h"
#include "service/ScheduleRecords.h"

#include <QStringList>
#include <QWidget>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

class QDate;
class QLabel;
class QPushButton;
class QSpinBox;
class QStandardItem;
class QTime;
class QTimeEdit;

namespace trel::widgets {
class ComboBox;
}

namespace trel::mediadispatch {

class AnswerCatalogue;
class FoldedRows;
class MultiComboBox;
class PlanStandardItemModel;
class PlanTaskForm;
struct PlanRowEditors;
struct PlanRowTexts;

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
///
/// A card that is made folded has no rows in its table until it is unfolded, or until something is
/// asked of it that needs them. What it hands to the service, answers to its signals and takes of
/// another language is the same as with rows, and so is what the rows show when they come. Once
/// they are there they stay, folded or not.
///
/// Refusals, questions and the chooser run event loops inside the slots. The card may be destroyed
/// in each of them; what the slot has left to do is dropped then.
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
    /// The row of the first plan with an id; -1 when there is none. Builds no rows.
    int rowOfPlan(int planId) const;
    /// The id of the first plan above a row that the plan of the row collides with; nothing when
    /// there is none, or no such row.
    std::optional<int> planInTheWay(int row) const;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// The end of a new or copied plan in TimeMode; see the function of this name in PlanTiming.
    static std::string addDuration(const std::string& start, int seconds);

    /// Builds the card, folded, and leaves its rows until they are needed. The service is handed
    /// the task as by the constructor.
    static PlanTaskWidget* makeFolded(const PlayTask& task, QWidget* parent);

signals:
    /// The operator has confirmed that the task is to go.
    void signalDeleteTask(int taskId);
    /// The operator wants a copy of the task.
    void signalCopyTask(int taskId);

public slots:
    void slotFold(bool isFold);
    /// Asks for the programs of a new plan and adds it.
    void onPushButtonAddClicked();

    /// Adds a row for a plan at the end of the table. With init the plan already stands in the task
    /// and in the service. Without it the operator is asked for the plan's programs first, and a
    /// choice that is not confirmed adds nothing. A plan with the id -1 is given its id and times;
    /// where no id is left, nothing is asked and nothing added.
    void slotAddRowPlan(PlayPlan plan = PlayPlan(), bool init = false);
    /// Lets the operator choose the programs of a row's plan.
    void slotAddProgram(int row);

    /// Take a new first or last day, or refuse it and put the stored day back into the editor.
    void slotUpdateStartTimeDate(QDate date);
    void slotUpdateEndTimeDate(QDate date);

    /// Takes a new mode or end action for a row's plan. Any other type changes nothing, but the
    /// task is checked and stored all the same.
    void slotCurrentIndexChangeSignal(int row, ComBoxType type, int value);

    /// Asks, then emits signalDeleteTask.
    void slotDeleteTask();
    void slotCopyTask();
    /// Asks, then removes the plan whose button was pressed.
    void slotDeletePlan();
    /// Adds a copy of the plan whose button was pressed at the end of the table. Does nothing when
    /// the task has no id left for it.
    void slotCopyPlan();

    /// Takes a new start or end time for a row's plan, or refuses it and puts the stored time back
    /// into the editor. clo is StartTimeColumn or EndTimeColumn; any other column changes nothing,
    /// but the task is checked and stored all the same.
    void slotUpdateTime(int row, int clo, QTime time);
    /// Takes a number of runs, 1 to 1000, that was written into the cell of a row.
    void slotcurrentChanged(QStandardItem* item);

    // The editors of the rows.
    void slotTimesChanged(int value);
    void slotModeIndexChanged(int index);
    void slotEndActionIndexChanged(int index);
    void slotEndTimeChanged(QTime newTime);
    void slotStartTimeChanged(QTime newTime);
    void slotSelectedText(QStringList newWeeks);

    /// Works out afresh the end of every plan whose end follows from its programs.
    void slotUpdateEndTime();
    /// Reads the task from the service again. The editors on show are not filled again. progId
    /// tells nothing: every card answers.
    void slotReflushConflict(int progId);
    /// Lets the program fields follow the removal of a row.
    void refreshEditorrow(int row);

    /// Fetches every text of the card again.
    void slotTranslation();

private:
    friend class PlanTaskWidgetInspector;

    enum class Rows {
        Built,
        Folded,
    };
    PlanTaskWidget(const PlayTask& task, QWidget* parent, Rows rows);

    void setUpForm();
    void setUpTable();
    void makeConnections();
    void loadPlans();
    /// Builds the rows that have been left until now, if there are any. Calls nothing of the
    /// service and handles no events.
    void buildTable();

    /// Asks for the programs of a new plan. False also when the card has gone meanwhile.
    bool choosePrograms(PlayPlan& plan);
    void enterPlan(int planId, int row);
    void enterEditors(int row, const PlanRowEditors& editors);
    /// The last field that Tab reaches, before the table when no row has one.
    QWidget* lastField() const;
    /// False when the card has gone meanwhile.
    bool lockModeOfRow(int row, int planId);
    void translateRows(const PlanRowTexts& texts);

    /// The plan at the row's place in the task; null when the task has no such plan.
    PlayPlan* planOfRow(int row);
    /// The first plan with the id that the row was given; null when there is none.
    PlayPlan* planByIdOfRow(int row);

    /// The end of the plan at the index, worked out from its programs. Leaves out alone when there
    /// is no such plan.
    void computeEndTime(int index, std::string& out);
    /// The same for the plan of a row, written into the plan and shown in the row. Where two plans
    /// have one id the end may be refused; false when the card has gone meanwhile.
    bool recomputeEnd(int row, const std::map<int, ProgramIten>& catalogue);
    /// The rows, whether they have been built or not.
    int rowCount() const;
    bool showsEnd(int row) const;
    /// Shows an end in a row. One that is new comes back as an edit of the row. False when the card
    /// has gone meanwhile.
    bool showEnd(int row, const QTime& time);

    /// Marks the plans that collide with an earlier one, shows it in the rows and hands the task
    /// to the service.
    void refreshConflicts();
    void refreshConflicts(AnswerCatalogue& catalogue);
    void showStates(const std::unordered_set<int>& colliding);

    /// False when the card has gone meanwhile.
    bool changeMode(int row, int mode);

    /// Writes a new start or end time into a row's plan and stores the task, or tells that it is
    /// refused and puts the stored time back into the editor. Plan and card may be gone afterwards.
    void takeTime(int row, PlayPlan& plan, std::string PlayPlan::*time, const std::string& text,
                  bool isRefused);
    /// Tells that a day or a time is refused. False when the card has gone meanwhile.
    bool isAliveAfterRefusal();

    /// Asks the operator. False also when the card has gone meanwhile.
    bool isConfirmed(const char* key);
    void forgetRow(int row);

    /// Enters an editor under its row, for as long as there is the editor.
    template <typename T>
    void enterWidget(std::vector<RowWidget<T>>& widgets, int row, T* widget);

    std::unique_ptr<PlanTaskForm> m_ui;
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
    /// Receives the news that an editor is gone. Goes before the editors do.
    std::unique_ptr<QObject> m_editorWatch = std::make_unique<QObject>();
    /// The rows until they are built, and null from then on.
    std::unique_ptr<FoldedRows> m_foldedRows;
    /// For each plan the place of the first above it that it collides with, or -1. Worked out when
    /// it is asked for; empty until then, and again with every change.
    mutable std::vector<int> m_firstCollisions;
};

} // namespace trel::mediadispatch
