#include "VersionCases.h"

#include "Comparison.h"
#include "Samples.h"
#include "trelprogramschedule/TaskSets.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/store/ScheduleDatabase.h"
#include "trelprogramschedule/store/StoreTaskWriter.h"
#include "trelprogramschedule/store/sqlite/SqliteConnection.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kMostWithVersions = 1.2;
constexpr int kTasks = 1000;
constexpr int kPlansOfTask = 5;
/// Once through what is done with every so many saves.
constexpr int kSaves = 16;

void expect(const StoreResult& result)
{
    if (!result) {
        throw std::runtime_error(englishText(result).toStdString());
    }
}

/// What an operator does between two saves; the number is another one with each.
using Edit = std::function<void(TaskMap& tasks, int number)>;

std::string endTime(int number)
{
    return "23:00:" + std::to_string(10 + number % 50);
}

void moveOneEnd(TaskMap& tasks, int number)
{
    tasks.begin()->second.plans.front().endTime = endTime(number);
}

void changeOneList(TaskMap& tasks, int number)
{
    tasks.begin()->second.plans.front().programs.front().playCount = number;
}

void moveAllDates(TaskMap& tasks, int number)
{
    for (auto& [id, task] : tasks) {
        task.endDate = "20" + std::to_string(30 + number % 60) + ".01.01";
    }
}

void changeAllLists(TaskMap& tasks, int number)
{
    for (auto& [id, task] : tasks) {
        for (PlayPlan& plan : task.plans) {
            plan.programs.front().playCount = number;
        }
    }
}

/// A store, and the saves of it with versions and without.
class Saves
{
public:
    explicit Saves(Edit edit)
        : m_edit(std::move(edit))
    {}

    double keeping()
    {
        open();
        return edited([this](const TaskMap& after, const TaskEdits& edits) {
            expect(m_database.writeTasks(after, edits, m_revision));
        });
    }

    double forgetting()
    {
        open();
        const SqliteConnection connection(path(), SqliteConnection::Access::ReadWrite);
        connection.run(QStringLiteral("PRAGMA foreign_keys = ON"));
        connection.run(QStringLiteral("PRAGMA synchronous = FULL"));
        const double cost = edited([&](const TaskMap&, const TaskEdits& edits) {
            StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
            StoreTaskWriter(connection).write(edits);
            connection.run(
                QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
            transaction.commit();
            ++m_revision;
        });
        return cost;
    }

private:
    QString path() const { return m_folder->filePath(QStringLiteral("schedule.db")); }

    void open()
    {
        m_database.close();
        m_folder = std::make_unique<QTemporaryDir>();
        m_tasks = sampleTasks(kTasks, kPlansOfTask);
        m_revision = 0;
        expect(m_database.open(path(), StoreOpenMode::CreateIfMissing));
        expect(m_database.writeTasks(m_tasks, editsBetween({}, m_tasks), m_revision));
    }

    template <typename Save>
    double edited(const Save& save)
    {
        double cost = 0;
        for (int number = 1; number <= kSaves; ++number) {
            TaskMap after = m_tasks;
            m_edit(after, ++m_edits);
            const TaskEdits edits = editsBetween(m_tasks, after);
            cost += wallSeconds([&] { save(after, edits); });
            m_tasks = std::move(after);
        }
        return cost;
    }

    Edit m_edit;
    int m_edits = 0;
    TaskMap m_tasks;
    qint64 m_revision = 0;
    std::unique_ptr<QTemporaryDir> m_folder;
    ScheduleDatabase m_database;
};

void addCase(const char* size, const Edit& edit)
{
    const auto saves = std::make_shared<Saves>(edit);
    add({"Save with versions, against without", std::string("1,000 tasks, ") + size,
         kMostWithVersions, [saves] { return saves->keeping(); },
         [saves] { return saves->forgetting(); }});
}

} // namespace

void addVersionCases()
{
    addCase("an end of one of them", moveOneEnd);
    addCase("a list of one of them", changeOneList);
    addCase("the dates of all of them", moveAllDates);
    addCase("the lists of all of them", changeAllLists);
}

} // namespace bench
