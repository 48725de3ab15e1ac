#include "OpenCard.h"

#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QTimeEdit>

#include <random>

using namespace trel::mediadispatch;

namespace {

constexpr int kSteps = 1000;
constexpr std::size_t kMostRows = 8;

RecordingService& service()
{
    return RecordingService::instance();
}

} // namespace

/// Long random sequences of copies and deletes, with everything that knows rows walked after each.
class tst_PlanTaskWidgetSteps : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void copiesAndDeletes_data();
    void copiesAndDeletes();
};

void tst_PlanTaskWidgetSteps::init()
{
    service().reset();
    service().addProgram(1, "minute", 60000.0);
}

void tst_PlanTaskWidgetSteps::copiesAndDeletes_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {20240310U}) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void tst_PlanTaskWidgetSteps::copiesAndDeletes()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    const auto below = [&random](std::size_t size) { return static_cast<int>(random() % size); };

    OpenCard open(taskWithPlans({timePlan(3, "01:00:00", "01:10:00", "1"),
                                 frequencyPlan(9, "02:00:00", 3, {entry(1)}, "2"),
                                 timePlan(4, "03:00:00", "03:10:00")}));
    std::vector<int> ids = {3, 9, 4};
    for (int step = 0; step < kSteps; ++step) {
        const bool isDelete = ids.size() > 1 && (ids.size() >= kMostRows || random() % 2);
        const int row = below(ids.size());
        if (isDelete) {
            const bool isConfirmed = random() % 4 != 0;
            const PromptAnswer prompt(isConfirmed ? 1 : 2);
            click(open.rows.deleteButton(row));
            if (isConfirmed) {
                ids.erase(ids.begin() + row);
            }
        } else {
            click(open.rows.copyButton(row));
            ids.push_back(*std::max_element(ids.begin(), ids.end()) + 1);
        }
        // An edit through a row that may have moved reaches its own plan.
        const int edited = below(ids.size());
        open.rows.startTime(edited).setTime(QTime(0, 0, step % 60));

        QCOMPARE(open.rows.disagreement(), QString());
        const std::vector<PlayPlan>& plans = open.rows.task().plans;
        QCOMPARE(plans.size(), ids.size());
        for (std::size_t i = 0; i < ids.size(); ++i) {
            QCOMPARE(plans[i].id, ids[i]);
        }
        QCOMPARE(plans[static_cast<std::size_t>(edited)].startTime,
                 open.rows.startTime(edited).text().toStdString());
        QCOMPARE(service().working[1], open.rows.task());
        if (step % 10 == 0) {
            // The editors of the rows that went go now.
            service().clearLog();
            QCoreApplication::sendPostedEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
}

TREL_TEST(tst_PlanTaskWidgetSteps, QApplication)
#include "tst_PlanTaskWidgetSteps.moc"
