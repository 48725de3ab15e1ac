#pragma once

#include "service/ScheduleRecords.h"

#include <QDialog>
#include <QMap>
#include <QModelIndex>
#include <QPointer>

#include <memory>
#include <vector>

class QTableView;

namespace trel::widgets {
class Dialog;
}

namespace trel::mediadispatch {

class ChooserForm;
class ChooserKeyboard;
class CustomTableModel;
class OfferChecks;
class SHeaderView;
struct ChoiceRow;

/// The modal dialog in which the programs of one play plan are picked and ordered.
///
/// The left table holds every program on offer, the right one the plan's programs in playing order.
/// The right table is the truth while the dialog is open; the records follow it when they are
/// needed. Confirming stores the list of an existing plan in the service; the list of a new plan is
/// only there to be collected. Cancelling loses the changes without a question. What an insertion
/// into the plan in use hands over does not change the plan that is being edited.
///
/// Made for one use: build it on the stack, run execChoose(), read the results, let it go. The
/// dialog is never a window of its own but stands in a frame, which belongs to the parent and stays
/// until that goes, empty and without a window once this has gone. Texts are fetched once, when the
/// dialog is built.
class ProgramChoose : public QDialog
{
    Q_OBJECT

public:
    /// Builds the dialog and fills both tables. For an existing plan, entries that have gone bad
    /// are stored in the service as such at once, whether the operator confirms later or not.
    ///
    /// task is the caller's copy of the plan's task. It is refreshed when an existing plan has been
    /// stored, and has to live until execChoose() returns. taskId and planId name the plan in the
    /// service; with isNewPlan it need not exist there yet.
    ProgramChoose(PlayTask* task, int taskId, int planId, QWidget* parent, bool isNewPlan);
    ~ProgramChoose() override;

    /// Shows the frame and blocks until it has closed. 0 when the operator has confirmed, 2 for
    /// every other way out.
    int execChoose();

    /// The names of the chosen programs, joined with commas, as the catalogue has them now. Also
    /// right before the dialog runs: the plan's old text.
    QString getSelectedProgramText() const;
    /// True when one of the chosen programs has no length of its own. False before the operator
    /// has confirmed.
    bool hasNoDuration() const;
    /// The chosen programs in playing order.
    std::vector<struProgInfo> getSelectedPrograms() const;

public slots:
    /// A row of one of the tables has got or lost its mark.
    void slotChecked(CheckType type, int row, bool check);
    /// Checks or clears all rows of one of the tables.
    void slotSelectAll(CheckType type, bool ischeck);
    /// Appends the checked programs to the plan, in the order in which they were checked.
    void slotChose();
    /// Removes the checked rows from the plan.
    void slotDelete();
    /// Writes the list: into the service for an existing plan, nowhere for a new one. Leaves the
    /// frame open, and the result of execChoose() as it is.
    void slotSave();
    /// Closes the frame.
    void slotCancel();
    /// Moves the one checked row of the plan, up or down by the button that has sent the signal.
    void slotClicked();
    void onCustomContextMenuRequested(QPoint pos);
    /// Does what the text of the action that has sent the signal says.
    void onActionInsertProgramTriggered();
    /// The catalogue has changed. Both tables stay as they are under the operator's hands.
    void slotProgIndexChanged();
    /// The play count of a row is being edited and is at this value now. It reaches the table when
    /// the editor closes or something is done to the table.
    void onSpinBoxValueChanged(QModelIndex index, int value);
    void onOkBtnClicked();
    void onCancelBtnClicked();

protected:
    /// Return and Escape are the frame's to answer.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setUpFrame();
    void setUpTables();
    void connectAll();

    void loadTables();
    void loadPrograms();
    void loadPlan();
    void appendPlanRows(const std::vector<ChoiceRow>& rows);

    void updateCheckOrder(int row, bool check);
    int countCheckedPlanRows() const;
    void moveRows(bool up, bool byChecks);
    void moveRow(int row, bool up);
    void renumberPlanRows();
    double updateTotalDuration(int editedRow, int editedCount);
    void syncSelectedPrograms();
    void readBackPlanRows();
    void enableConfirming();
    void takeOverOpenCount();
    void showTotalOfTable();

    bool canInsert(int row) const;
    void showInsertMenu(bool enabled, QPoint pos);
    void insertProgram(bool delayed);

    std::unique_ptr<ChooserForm> ui;
    PlayTask* m_task;
    bool m_isNewPlan;
    int m_taskId;
    int m_planId;
    QPointer<widgets::Dialog> m_dialog;
    CustomTableModel* m_programModel = nullptr;
    CustomTableModel* m_planModel = nullptr;
    std::vector<struProgInfo> m_allPrograms;      ///< One entry for each row of the left table.
    std::vector<struProgInfo> m_selectedPrograms; ///< One entry for each row of the right table.
    bool m_hasNoDuration = false;
    bool m_planChanged = false;  ///< The right table is to be read back.
    int m_checkedCount = -1;     ///< The number given to the latest check in the left table.
    QMap<int, int> m_checkOrder; ///< From row of the left table to place in the order of checking.
    int m_contextRow = -1;       ///< Where the last context menu was opened.
    int m_result;
    SHeaderView* m_programHeader = nullptr;
    SHeaderView* m_planHeader = nullptr;
    std::unique_ptr<OfferChecks> m_offerChecks; ///< Works on m_checkedCount and m_checkOrder.
    std::unique_ptr<ChooserKeyboard> m_keyboard;
};

} // namespace trel::mediadispatch
