#include "VersionCases.h"

#include "Comparison.h"
#include "Samples.h"
#include "service/ScheduleDifferences.h"
#include "trelprogramschedule/ScheduleLimits.h"
#include "trelprogramschedule/TaskSets.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/history/VersionReader.h"
#include "trelprogramschedule/store/ScheduleDatabase.h"
#include "trelprogramschedule/store/StoreTaskWriter.h"
#include "trelprogramschedule/store/sqlite/SqliteConnection.h"
#include "trelprogramschedule/store/sqlite/StoreFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QVariant>

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kMostWithVersions = 1.2;
constexpr double kTenthOfASecond = 0.1;
constexpr double kHalfASecond = 0.5;
const QString kRevision = QStringLiteral("SELECT schedule_revision FROM store");
constexpr int kTasks = 1000;
constexpr int kPlansOfTask = 5;
/// Once through what is done with every so many saves.
constexpr int kSaves = 16;
/// From then on as many versions go as come.
constexpr int kSavesBefore = 224;

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
    return "23:00:" + std::to_string(10 + number % 47);
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
        task.endDate = "20" + std::to_string(30 + number % 59) + ".01.01";
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

/// In memory where there is such a folder: what a version costs must not vanish in what a disk
/// takes to synchronize.
QString folderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/bench-XXXXXX");
}

/// A store that is edited and saved again and again.
class SavedStore
{
public:
    explicit SavedStore(Edit edit)
        : m_edit(std::move(edit))
        , m_folder(folderTemplate())
    {
        const TaskMap tasks = sampleTasks(kTasks, kPlansOfTask);
        expect(m_database.open(path(), StoreOpenMode::CreateIfMissing));
        expect(m_database.writeTasks(tasks, editsBetween({}, tasks), m_revision));
        m_sets.setStored(tasks);
        m_sets.resetWorking();
    }

    /// What so many saves take, each with all that belongs to it: to find out what was edited, to
    /// write that, and to take it for what is saved from then on.
    template <typename Save>
    double edited(int saves, const Save& save)
    {
        double cost = 0;
        for (int number = 1; number <= saves; ++number) {
            TaskMap tasks = m_sets.working();
            m_edit(tasks, ++m_edits);
            for (const auto& [id, task] : tasks) {
                m_sets.putTask(task);
            }
            cost += processorSeconds([&] {
                save(m_sets.working(), m_sets.edits(), m_revision);
                m_sets.commitWorking();
            });
        }
        return cost;
    }

    QString path() const { return m_folder.filePath(QStringLiteral("schedule.db")); }
    ScheduleDatabase& database() { return m_database; }

private:
    Edit m_edit;
    QTemporaryDir m_folder;
    ScheduleDatabase m_database;
    TaskSets m_sets;
    int m_edits = 0;
    qint64 m_revision = 0;
};

/// A store with as many versions as are kept.
class KeepingStore : public SavedStore
{
public:
    explicit KeepingStore(const Edit& edit)
        : SavedStore(edit)
    {
        save(kSavesBefore);
    }

    double save(int saves)
    {
        return edited(saves,
                      [this](const TaskMap& after, const TaskEdits& edits, qint64& revision) {
                          expect(database().writeTasks(after, edits, revision));
                      });
    }
};

/// A store of which the versions are left out, and nothing else of a save.
class ForgettingStore : public SavedStore
{
public:
    explicit ForgettingStore(const Edit& edit)
        : SavedStore(edit)
        , m_file(path())
        , m_connection(path(), SqliteConnection::Access::ReadWrite)
    {
        database().close();
        m_connection.run(QStringLiteral("PRAGMA foreign_keys = ON"));
        m_connection.run(QStringLiteral("PRAGMA synchronous = FULL"));
        // The heap and the file are as old as those of the other.
        save(kSavesBefore);
    }

    double save(int saves)
    {
        return edited(
            saves, [this](const TaskMap& after, const TaskEdits& edits, qint64& revision) {
                expect(m_file.judgeWritable());
                if (m_file.identity() == StoreFile::Identity() || excessOf(after)) {
                    throw std::runtime_error("refused");
                }
                StoreTransaction transaction(m_connection, StoreTransaction::Purpose::Write);
                if (m_connection.value(kRevision).toLongLong() != revision) {
                    throw std::runtime_error("another revision");
                }
                StoreTaskWriter(m_connection).write(edits);
                m_connection.run(
                    QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
                transaction.commit();
                ++revision;
            });
    }

private:
    StoreFile m_file;
    SqliteConnection m_connection;
};

/// Made when it is first asked for, and then kept.
template <typename Store>
class Once
{
public:
    explicit Once(Edit edit)
        : m_edit(std::move(edit))
    {}

    Store& store()
    {
        if (!m_store) {
            m_store = std::make_unique<Store>(m_edit);
        }
        return *m_store;
    }

private:
    Edit m_edit;
    std::unique_ptr<Store> m_store;
};

void addCase(const char* size, const Edit& edit)
{
    const auto keeping = std::make_shared<Once<KeepingStore>>(edit);
    const auto forgetting = std::make_shared<Once<ForgettingStore>>(edit);
    add({"Save with versions, against without", std::string("1,000 tasks, ") + size,
         kMostWithVersions, [keeping] { return keeping->store().save(kSaves); },
         [forgetting] { return forgetting->store().save(kSaves); }});
}

double listed(SavedStore& store)
{
    std::vector<ScheduleVersion> versions;
    return processorSeconds([&] { expect(VersionReader(store.path()).versions(versions)); });
}

/// Reads the oldest of the last versions, and what is saved, and compares them.
double compared(SavedStore& store)
{
    std::vector<ScheduleVersion> versions;
    expect(VersionReader(store.path()).versions(versions));
    const qint64 number = versions.at(200).number;
    return processorSeconds([&] {
        TaskMap former;
        TaskMap later;
        expect(VersionReader(store.path()).tasks(number, former));
        expect(VersionReader(store.path()).tasks(kNoVersion, later));
        if (differencesOfNote(former, later).empty()) {
            throw std::runtime_error("nothing differs");
        }
    });
}

void addReading(const char* size, const Edit& edit)
{
    const auto store = std::make_shared<Once<KeepingStore>>(edit);
    const std::string tasks = std::string("1,000 tasks, 200 versions of ") + size;
    add({"List the versions, against a tenth of a second", tasks, 1.0,
         [store] { return listed(store->store()); }, [] { return kTenthOfASecond; }, 15, false,
         size});
    add({"Compare the oldest version, against half a second", tasks, 1.0,
         [store] { return compared(store->store()); }, [] { return kHalfASecond; }, 15, false,
         size});
}

} // namespace

void addVersionCases()
{
    addCase("an end of one of them", moveOneEnd);
    addCase("a list of one of them", changeOneList);
    addCase("the dates of all of them", moveAllDates);
    addCase("the lists of all of them", changeAllLists);
    addReading("an end", moveOneEnd);
    addReading("all dates", moveAllDates);
    addReading("all lists", changeAllLists);
}

} // namespace bench
