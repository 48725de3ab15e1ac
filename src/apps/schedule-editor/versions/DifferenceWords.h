#pragma once

#include "service/ScheduleDifferences.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <map>
#include <string>

namespace trel::desktop::versions {

/// What differs between two states of a schedule, in the language in use and in the words of the
/// editor. All texts are plain, of one line, and short enough for one however long the names in
/// them are. Rows and entries count from 1.
class DifferenceWords
{
    Q_DECLARE_TR_FUNCTIONS(DifferenceWords)

public:
    using Tasks = std::map<int, trel::mediadispatch::PlayTask>;
    /// By their numbers.
    using Programs = std::map<int, trel::mediadispatch::ProgramIten>;

    /// "Task 1, plan 3: end 14:00:00 → 15:00:00"
    static QString line(const trel::mediadispatch::ScheduleDifference& difference,
                        const Programs& programs);
    /// What has happened, without where: "end 14:00:00 → 15:00:00".
    static QString what(const trel::mediadispatch::ScheduleDifference& difference,
                        const Programs& programs);
    /// A line for each difference of note between two states, and one more that counts the rest
    /// where there are more than so many. Empty when there is none.
    static QStringList lines(const Tasks& former, const Tasks& later, const Programs& programs,
                             int most);

    /// "Task 1, plan 3: " and a text about the plan.
    static QString ofPlan(int taskId, int planId, const QString& text);
    /// Whether a difference is about a plan or an entry of one.
    static bool isAboutPlan(const trel::mediadispatch::ScheduleDifference& difference);
    /// The programs of a list with their plays, "News ×2, Weather"; or that there are none.
    static QString programs(const std::vector<trel::mediadispatch::struProgInfo>& entries,
                            const Programs& programs);
    /// A text from outside as a piece of a line.
    static QString shown(const std::string& text);

private:
    static QString field(const trel::mediadispatch::ScheduleDifference& difference);
    static QString values(const QString& form,
                          const trel::mediadispatch::ScheduleDifference& difference,
                          QString (*word)(const trel::mediadispatch::DifferenceValue&));
    static QString plan(const QString& form, int row, const trel::mediadispatch::PlayPlan& plan,
                        const Programs& programs);
    static QString hidden();
};

} // namespace trel::desktop::versions
