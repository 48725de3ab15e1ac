#include "StoreCases.h"

#include "Comparison.h"
#include "PlainStore.h"
#include "Samples.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QLocale>
#include <QTemporaryDir>

#include <memory>
#include <stdexcept>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kAgainstDatabase = 2.5;
constexpr int kPrograms = 1000;
constexpr int kPlansOfTask = 5;

void expect(const StoreResult& result)
{
    if (!result) {
        throw std::runtime_error(englishText(result).toStdString());
    }
}

/// Live sources, for which there need be no files.
std::vector<MediaSource> sources()
{
    std::vector<MediaSource> list;
    for (const auto& [index, program] : samplePrograms(kPrograms)) {
        list.push_back({QString::fromStdString(program.progName),
                        QStringLiteral("rtsp://media/%1").arg(index), 0.0, ProgramKind::Live});
    }
    return list;
}

/// Stores with a catalogue and with a schedule, made afresh for every run.
class Stores
{
public:
    explicit Stores(int tasks)
        : m_count(tasks)
    {}

    double save()
    {
        openNew();
        fill();
        const double cost = wallSeconds([] { expect(ScheduleHost::instance().trySave()); });
        ScheduleHost::instance().close();
        return cost;
    }

    double open()
    {
        save();
        const double cost = wallSeconds([this] {
            expect(ScheduleHost::instance().open(path(), ScheduleHost::OpenMode::MustExist));
        });
        ScheduleHost::instance().close();
        return cost;
    }

    double insertPlainly()
    {
        if (!m_rows) {
            save();
            m_rows = std::make_unique<PlainStore>(path().toStdString());
        }
        openNew();
        ScheduleHost::instance().close();
        return m_rows->insertInto(path().toStdString());
    }

private:
    QString path() const { return m_folder->filePath(QStringLiteral("schedule.db")); }

    void openNew()
    {
        if (m_tasks.empty()) {
            m_tasks = sampleTasks(m_count, kPlansOfTask);
            m_sources = sources();
        }
        m_folder = std::make_unique<QTemporaryDir>();
        expect(ScheduleHost::instance().open(path()));
        expect(ScheduleHost::instance().addPrograms(m_sources).store);
    }

    void fill() const
    {
        for (const auto& [id, task] : m_tasks) {
            scheduleManage::getInstance().addTask(task);
        }
    }

    int m_count;
    TaskMap m_tasks;
    std::vector<MediaSource> m_sources;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PlainStore> m_rows;
};

} // namespace

void addStoreCases()
{
    for (const int tasks : {100, 1000, 10000}) {
        const auto stores = std::make_shared<Stores>(tasks);
        const std::string size = QLocale(QLocale::English).toString(tasks).toStdString() +
                                 " tasks of 5 plans of 5 programs";
        const int rounds = tasks == 10000 ? 5 : 15;
        const auto floor = [stores] { return stores->insertPlainly(); };
        add({"Save the store, against plain insertion", size, kAgainstDatabase,
             [stores] { return stores->save(); }, floor, rounds});
        add({"Open the store, against plain insertion", size, kAgainstDatabase,
             [stores] { return stores->open(); }, floor, rounds});
    }
}

} // namespace bench
