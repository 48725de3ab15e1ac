#include "HostFixture.h"
#include "catalogue/CatalogueOrder.h"
#include "problems/ProblemDock.h"
#include "service/DateText.h"
#include "support/Growth.h"
#include "support/PlanRecords.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "week/WeekView.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <algorithm>
#include <functional>

using namespace trel::desktop;
using namespace trel::desktop::week;
using namespace trel::mediadispatch;

namespace {

constexpr int kTasks = 1000;
constexpr int kPlans = 10; ///< In each of them.
constexpr int kPrograms = 20000;
/// Enough for two weeks from the next one on.
constexpr int kFewTasks = 28;
/// Over the same with a few tasks, or over a view of the toolkit with the same in it.
constexpr double kMost = 2.0;
constexpr int kSteps = 40;
constexpr int kEdits = 4;

/// The least of three runs.
double seconds(const std::function<void()>& work)
{
    const auto once = [&work] {
        const double start = processorTime();
        work();
        return processorTime() - start;
    };
    return std::min({once(), once(), once()});
}

void compare(const char* what, double own, double bare)
{
    qInfo("%s: %.1f ms, against %.1f ms: %.2f times", what, own * 1000.0, bare * 1000.0,
          own / bare);
    QVERIFY2(own <= kMost * bare, what);
}

std::string timeOf(int plan, int minute)
{
    return QTime(2 * plan, minute).toString(QLatin1String(kTimeFormat)).toStdString();
}

/// A task for each day from the day before yesterday on, with a plan every two hours; every tenth
/// overlaps the one before.
std::map<int, PlayTask> manyTasks()
{
    std::map<int, PlayTask> tasks;
    for (int id = 1; id <= kTasks; ++id) {
        std::vector<PlayPlan> plans;
        for (int plan = 0; plan < kPlans; ++plan) {
            plans.push_back(timePlan(plan + 1, timeOf(plan, 0).c_str(),
                                     timeOf(plan + 1, id % 10 == 0 ? 5 : 0).c_str()));
            for (int i = 0; i < 5; ++i) {
                plans.back().programs.push_back(entry(1 + (id * 50 + plan * 5 + i) % kPrograms));
            }
        }
        PlayTask task = taskWithPlans(std::move(plans), id);
        task.startDate = dateToText(QDate::currentDate().addDays(id - 3));
        task.endDate = task.startDate;
        tasks.emplace(id, std::move(task));
    }
    return tasks;
}

/// Those of the weeks that are looked at.
std::map<int, PlayTask> fewTasks()
{
    std::map<int, PlayTask> tasks = manyTasks();
    tasks.erase(tasks.upper_bound(kFewTasks), tasks.end());
    return tasks;
}

/// What an operator's way through the week costs.
struct WeekCost
{
    explicit WeekCost(WeekView& view)
    {
        scrolling = seconds([&view] {
            QScrollBar& bar = *view.verticalScrollBar();
            for (int step = 0; step <= kSteps; ++step) {
                bar.setValue(bar.maximum() * step / kSteps);
                view.viewport()->repaint();
            }
        });
        zooming = seconds([&view] {
            for (int step = 0; step < kSteps; ++step) {
                view.zoom(step < kSteps / 2 ? 1.1 : 1 / 1.1);
                view.viewport()->repaint();
            }
        });
        stepping = seconds([&view] {
            for (int step = 0; step < kSteps; ++step) {
                view.stepWeeks(step % 2 == 0 ? 1 : -1);
                view.viewport()->repaint();
            }
        });
    }

    double scrolling = 0.0;
    double zooming = 0.0;
    double stepping = 0.0;
};

} // namespace

/// The window of a station with a thousand tasks, ten thousand plans and twenty thousand programs.
class tst_StationLarge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void typingCostsLessThanABareView();
    void theWeekAndTheProblemsCostWhatTheyShow();

private:
    double costOfAnEdit() const;
    WeekView& view() const { return *m_fixture->window.findChild<WeekView*>(); }
    ProblemDock& problems() const { return *m_fixture->window.findChild<ProblemDock*>(); }

    std::unique_ptr<HostFixture> m_fixture;
};

void tst_StationLarge::initTestCase()
{
    m_fixture = std::make_unique<HostFixture>();
    QCOMPARE(m_fixture->window.openDatabase(m_fixture->database), QString());
    std::vector<MediaSource> sources;
    for (int i = 0; i < kPrograms; ++i) {
        sources.push_back({QStringLiteral("Programme %1").arg(i),
                           QStringLiteral("rtsp://server%1/feed/%2").arg(i % 17).arg(i), 0.0,
                           ProgramKind::Live});
    }
    QVERIFY(m_fixture->host.addPrograms(sources).store);
    QVERIFY(m_fixture->host.replaceSchedule(manyTasks()));
    m_fixture->window.resize(1366, 768);
    m_fixture->window.show();
    QTRY_COMPARE(m_fixture->window.findChild<QTableView*>(QStringLiteral("programTable"))
                     ->model()
                     ->rowCount(),
                 kPrograms);
    view().showWeekOf(QDate::currentDate().addDays(7));
    QTRY_COMPARE(view().layoutOfWeek().days.front().blocks.size(), std::size_t(kPlans));
    QTRY_VERIFY_WITH_TIMEOUT(problems().count() > 0, 60000);
    view().zoom(4);
    QVERIFY(view().verticalScrollBar()->maximum() > 0);
}

void tst_StationLarge::cleanupTestCase()
{
    m_fixture.reset();
}

void tst_StationLarge::typingCostsLessThanABareView()
{
    const QString text = QStringLiteral("programme 199");
    auto* const search = m_fixture->window.findChild<QLineEdit*>(QStringLiteral("programSearch"));
    auto* const order = m_fixture->window.findChild<CatalogueOrder*>();
    const auto type = [&](const QString& words) {
        QSignalSpy ordered(order, &CatalogueOrder::ordered);
        search->setText(words);
        while (ordered.isEmpty()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    };
    // On the interface thread alone; the rest of it is done beside it.
    const double own = seconds([&] {
        for (int length = 1; length <= text.size(); ++length) {
            type(text.left(length));
        }
        type(QString());
    });
    QStandardItemModel items;
    for (int i = 0; i < kPrograms; ++i) {
        items.appendRow({new QStandardItem(QStringLiteral("Programme %1").arg(i)),
                         new QStandardItem(QStringLiteral("rtsp://server%1/feed").arg(i % 17))});
    }
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&items);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterKeyColumn(-1);
    QTableView bareView;
    bareView.setModel(&proxy);
    bareView.show();
    const double bare = seconds([&] {
        for (int length = 1; length <= text.size(); ++length) {
            proxy.setFilterFixedString(text.left(length));
            QCoreApplication::processEvents();
        }
        proxy.setFilterFixedString(QString());
        QCoreApplication::processEvents();
    });
    compare("typing", own, bare);
}

/// The second plan of a task and its first come into conflict, and apart again, until it is said.
double tst_StationLarge::costOfAnEdit() const
{
    PlayTask task = m_fixture->manager.getTask(5);
    const int before = problems().count();
    return seconds([&] {
               for (int edit = 0; edit < kEdits; ++edit) {
                   task.plans[0].endTime = edit % 2 == 0 ? "02:30:00" : "02:00:00";
                   m_fixture->manager.addTask(task);
                   QTRY_COMPARE(problems().count(), before + (edit % 2 == 0 ? 1 : 0));
               }
           }) /
           kEdits;
}

void tst_StationLarge::theWeekAndTheProblemsCostWhatTheyShow()
{
    const WeekCost many(view());
    const double edit = costOfAnEdit();
    const int all = problems().count();
    QVERIFY(m_fixture->host.replaceSchedule(fewTasks()));
    QTRY_VERIFY(problems().count() < all);
    QTRY_COMPARE(view().layoutOfWeek().days.front().blocks.size(), std::size_t(kPlans));
    const WeekCost few(view());
    compare("scrolling", many.scrolling, few.scrolling);
    compare("zooming", many.zooming, few.zooming);
    compare("another week", many.stepping, few.stepping);
    const double fewEdit = costOfAnEdit();
    qInfo("an edit: %.1f ms, against %.1f ms", edit * 1000.0, fewEdit * 1000.0);
    // Far from the number of tasks, of which there are some thirty times as many.
    QVERIFY2(edit < fewEdit * kTasks / kFewTasks / 3, "an edit");
}

TREL_TEST(tst_StationLarge, QApplication)
#include "tst_StationLarge.moc"
