#pragma once

#include "service/ScheduleRecords.h"
#include "service/scheduleManage.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// The state behind the recording double of scheduleManage: what it answers with, and a log of
/// every call that it got, each as one line such as "getTask(3)" or "addTask(1 2024.01.01..)".
///
/// The double keeps the two sets as the real service does, in memory. Call reset() at the start of
/// every test function.
struct RecordingService
{
    using PlayTask = trel::mediadispatch::PlayTask;
    using PlayPlan = trel::mediadispatch::PlayPlan;
    using ProgramIten = trel::mediadispatch::ProgramIten;
    using struProgInfo = trel::mediadispatch::struProgInfo;

    struct Insertion
    {
        int taskId = 0;
        int planId = 0;
        PlayPlan plan;
        std::optional<bool> immediate; ///< The last argument; none for a delayed insertion.
    };

    static RecordingService& instance();
    /// The object whose signals the editor connects to, for emitting them.
    static trel::mediadispatch::scheduleManage& manager();

    void reset();

    /// Calls with this name, such as "addTask".
    int count(const QString& name) const;
    /// The calls with one of these names, in order.
    QStringList calls(const QStringList& names) const;
    /// All calls but the lookups of programs, in order.
    QStringList edits() const;
    void clearLog();

    // What the service answers with.
    std::map<int, PlayTask> stored;
    std::map<int, PlayTask> working;
    std::map<int, ProgramIten> programs;
    std::set<int> noDuration;
    std::map<int, double> durations; ///< Overrides the length of the record for getDurationByIndex.
    bool scheduleState = false;
    trel::mediadispatch::DataCompareType dateResult = trel::mediadispatch::DateIsToday;
    bool timePassed = false;
    /// The plan in use; none means that getNowUsePlan finds nothing.
    std::optional<PlayPlan> planInUse;
    /// What getPlan leaves in index for a plan that it does not find; none leaves it as it is.
    std::optional<int> missingPlanIndex;
    std::string selectedProgram;

    // What the service was given.
    QStringList log;
    std::vector<PlayTask> addedTasks;
    std::vector<std::pair<int, PlayPlan>> addedPlans;
    std::vector<Insertion> insertions;
    std::vector<std::vector<struProgInfo>> originals;

    /// Adds a program to the catalogue; returns its record.
    ProgramIten& addProgram(int progIndex, const std::string& name, double durationMs,
                            bool isNoDuration = false);
};

/// A task as one readable line: "1 2024.01.01-2024.01.31 [plan; plan]".
QString line(const trel::mediadispatch::PlayTask& task);
/// A plan as one readable line: "id 2 time 08:00:00-09:00:00 x1 days 1,3 end 0 <3x2,5x1>".
QString line(const trel::mediadispatch::PlayPlan& plan);
