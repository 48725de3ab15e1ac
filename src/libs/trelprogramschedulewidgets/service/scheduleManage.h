#pragma once

#include "service/ScheduleRecords.h"

#include <QObject>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace trel::mediadispatch {

/// The schedule service as its users see it: one object a process, two sets of tasks.
///
/// The stored set is what was last saved; the working set is what the operator is editing. Both
/// are kept under the task's id. Records go in and out by value, and no caller keeps a reference
/// into the service. All calls are made on the GUI thread and block it until they return.
///
/// The end of a plan in FrequencyMode follows from the lengths of its programs. The service works
/// it out afresh in both sets whenever tasks are read from the store or a length changes, whether
/// or not an editor is open, so that no caller gets an end from before. That is no edit by
/// itself; the store takes the new ends with the next save.
///
/// No operation reports an error: a lookup of an unknown key returns a usable record. The state
/// stands behind one private pointer, so that another implementation of this class can be linked
/// in its place.
// The destructor is private: getInstance() alone makes the one instance. Exported by the library
// that implements the class, and not by the one that declares it.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class Q_DECL_EXPORT scheduleManage : public QObject
{
    Q_OBJECT

public:
    /// The one instance. Callable at any time; the same object on every call.
    static scheduleManage& getInstance();

    /// A copy of the stored set.
    std::map<int, PlayTask> getgTaskMap();
    /// Makes the working set match the stored set.
    void updateUItask();
    /// Resets the editing state before a list is rebuilt from scratch.
    void resetUiTask();
    /// A copy of the working set, unsaved tasks included.
    std::map<int, PlayTask> getAllTask();
    /// A copy of one task of the working set; a default record when there is none.
    PlayTask getTask(int taskId);
    /// Files the task under its id in the working set, replacing the whole record that stood there.
    /// The record that getTask() returns where there is no task need not be filed.
    void addTask(const PlayTask& task);
    /// Removes a task from the working set; an unknown id changes nothing.
    void deleteTask(int taskId);
    /// Commits the working set as the stored set.
    void save();
    /// Puts the stored set into effect.
    void slotOpen();

    /// A copy of a plan of the working set. index is left as it is when there is no such plan, and
    /// becomes the plan's position in its task otherwise; set it to -1 before the call.
    PlayPlan getPlan(int taskId, int planId, int& index);
    /// As getPlan, of the plan as it is in use at the moment.
    PlayPlan getNowUsePlan(int taskId, int planId, int& index);
    /// Replaces the plan with the same id in a task of the working set, or appends it.
    void addPlan(int taskId, const PlayPlan& plan);
    /// Applies an insertion at once.
    void setInsertPlanTask(int taskId, int planId, const PlayPlan& plan, bool immediate);
    /// Applies an insertion when the current play has ended.
    void setInsertPlanTaskDelayExcute(int taskId, int planId, const PlayPlan& plan);
    /// Hands over the plan's list as it stood before an insertion.
    void passOriginalPlanProgInfo(const std::vector<struProgInfo>& programs);
    /// True while no insertion can be taken.
    bool getScheduleState() const;

    /// The catalogue, by index.
    std::map<int, ProgramIten> getPrograms();
    /// One program; a record with isNull set when the index refers to nothing.
    ProgramIten getProgramItemByIndex(int progIndex);
    /// The program's name, UTF-8; empty when the index was never given out.
    std::string getProgramNameByProgIndex(int progIndex);
    /// The length of one play in milliseconds.
    double getDurationByIndex(int progIndex);
    /// True when the program has no length of its own.
    bool isNoDurationType(int progIndex);
    /// Compares a date in kDateFormat with today, in local time.
    DataCompareType comparisionDate(const std::string& date) const;
    /// True when the time of day, in kTimeFormat, has passed already, in local time.
    bool comparisonTime(const std::string& time) const;

    /// Keeps the text shown for the programs of the row in hand, UTF-8.
    void setqstrSelectedProgram(const std::string& text);
    /// The text kept last.
    std::string getqstrSelectedProgram() const;

Q_SIGNALS:
    /// The conflict picture may have changed, through the program of this index, or for another
    /// reason if it is -1. Never emitted from inside addTask.
    void signalReflushConflict(int progId);
    /// Lengths of programs may have changed, and with them ends of plans and their collisions; no
    /// signalReflushConflict follows for these. Both sets hold the new ends by then; a receiver
    /// with a task of its own works out its ends. Never emitted from inside addTask.
    void signalUpdatePlanEndTime();
    /// The catalogue has changed.
    void sigProgIndexChanged();

private:
    scheduleManage();
    ~scheduleManage() override;

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace trel::mediadispatch
