#include "CardLines.h"
#include "KeptTasks.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QTimeEdit>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

constexpr double kMinute = 60000.0;

int fetches()
{
    return service().count(QStringLiteral("getPrograms"));
}

scheduleManage& manager()
{
    return RecordingService::manager();
}

/// A list of cards with one plan each.
class Cards
{
public:
    explicit Cards(PlanMode mode)
    {
        service().reset();
        service().addProgram(1, "film", kMinute);
        for (int id = 1; id <= 20; ++id) {
            PlayPlan plan = frequencyPlan(1, "12:00:00", 1, {entry(1)});
            plan.mode = mode;
            service().stored[id] = taskWithPlans({plan}, id);
        }
        m_list.refreshPlanList();
        QCoreApplication::processEvents();
        service().clearLog();
    }

    PlanList& list() { return m_list; }
    PlanTaskWidget& card(int place) const { return *cardsInOrder(m_list).at(place); }

    /// The end that a card has stored, and the one that it shows.
    QString end(int place) const
    {
        card(place).setFolded(false);
        const PlanTaskWidgetInspector rows(card(place));
        return QString::fromStdString(rows.task().plans.at(0).endTime) + QLatin1Char(' ') +
               rows.endTime(0).text();
    }

private:
    PlanList m_list;
};

} // namespace

/// How often the catalogue is fetched when all cards answer the service.
class tst_CatalogueRounds : public QObject
{
    Q_OBJECT

private slots:
    void onceForAllCards();
    void neverForTimesOfTheOperator();
    void eachRoundHasItsOwn();
    void aRoundInsideARoundHasItsOwn();
    void aCallOfAnotherKindFetchesForItself();
};

void tst_CatalogueRounds::onceForAllCards()
{
    Cards cards(FrequencyMode);
    emit manager().signalUpdatePlanEndTime();
    QCOMPARE(fetches(), 1);
    QCOMPARE(service().count(QStringLiteral("addTask")), 20);
    emit manager().signalReflushConflict(1);
    QCOMPARE(fetches(), 2);
    QCOMPARE(service().count(QStringLiteral("getTask")), 20);
    QCOMPARE(service().count(QStringLiteral("addTask")), 40);
    emit cards.list().sigTranslation();
    QCOMPARE(fetches(), 3);
    QCOMPARE(service().count(QStringLiteral("addTask")), 60);
}

void tst_CatalogueRounds::neverForTimesOfTheOperator()
{
    const Cards cards(TimeMode);
    emit manager().signalUpdatePlanEndTime();
    emit manager().signalReflushConflict(1);
    QCOMPARE(fetches(), 0);
    QCOMPARE(service().count(QStringLiteral("addTask")), 40);
}

void tst_CatalogueRounds::eachRoundHasItsOwn()
{
    const Cards cards(FrequencyMode);
    emit manager().signalUpdatePlanEndTime();
    QCOMPARE(cards.end(0), QStringLiteral("12:01:00 12:01:00"));
    service().programs[1].durationMs = 2 * kMinute;
    emit manager().signalUpdatePlanEndTime();
    QCOMPARE(cards.end(0), QStringLiteral("12:02:00 12:02:00"));
    QCOMPARE(cards.end(19), QStringLiteral("12:02:00 12:02:00"));
}

void tst_CatalogueRounds::aRoundInsideARoundHasItsOwn()
{
    const Cards cards(FrequencyMode);
    QObject context;
    bool isInside = false;
    QObject::connect(&manager(), &scheduleManage::signalReflushConflict, &context, [&] {
        if (!std::exchange(isInside, true)) {
            service().programs[1].durationMs = 3 * kMinute;
            emit manager().signalUpdatePlanEndTime();
        }
    });
    emit manager().signalReflushConflict(1);
    QCOMPARE(fetches(), 2);
    for (const int place : {0, 19}) {
        QCOMPARE(cards.end(place), QStringLiteral("12:03:00 12:03:00"));
    }
}

void tst_CatalogueRounds::aCallOfAnotherKindFetchesForItself()
{
    const Cards cards(FrequencyMode);
    emit manager().signalUpdatePlanEndTime();
    service().programs[1].durationMs = 4 * kMinute;
    cards.card(3).slotUpdateEndTime();
    QCOMPARE(cards.end(3), QStringLiteral("12:04:00 12:04:00"));
    QCOMPARE(cards.end(4), QStringLiteral("12:01:00 12:01:00"));
}

TREL_TEST(tst_CatalogueRounds, QApplication)

#include "tst_CatalogueRounds.moc"
