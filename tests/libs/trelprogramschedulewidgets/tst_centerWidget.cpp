#include "KeptTasks.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "centerWidget.h"
#include "support/PromptAnswer.h"
#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QPushButton* button(const centerWidget& panel, const char* name)
{
    return panel.findChild<QPushButton*>(QString::fromLatin1(name));
}

QPushButton* addButton(const centerWidget& panel)
{
    return button(panel, "pushButtonAddTask");
}

QLabel* hint(const centerWidget& panel)
{
    return panel.findChild<QScrollArea*>()->findChild<QLabel*>(QString(),
                                                               Qt::FindDirectChildrenOnly);
}

void click(QPushButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

/// Counts the events of one type that reach an object.
class EventCounter : public QObject
{
public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }

    int count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_count += event->type() == m_type ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

/// What the two roads out of the panel have told.
struct Roads
{
    explicit Roads(const centerWidget& panel)
        : cancel(&panel, &centerWidget::signalCancel)
        , save(&panel, &centerWidget::signalSave)
        , start(&panel, &centerWidget::signalStart)
    {}

    QString line() const
    {
        return QStringLiteral("cancel %1 save %2 start %3")
            .arg(cancel.count())
            .arg(save.count())
            .arg(start.count());
    }

    QSignalSpy cancel;
    QSignalSpy save;
    QSignalSpy start;
};

} // namespace

class tst_centerWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void periods_data();
    void periods();
    void theCheckReadsTheWorkingSet();
    void freePeriodsAreSavedAndStarted();
    void overlapsAreToldAndStopSaveAndStart();
    void closeAsksNothing();
    void theHintFollowsTheCount();
    void theStyleIsAppliedAfreshWithEveryCount();
    void theButtonWhileLoading();
    void oneClickAddsOneTaskAfterSeveralRefreshes();
    void anUnpairedEndAddsAConnection();
    void aClickDuringARefreshDoesNothing();
    void textsComeBeforeTheCards();
    void aTranslationDuringARefreshLeavesTheButtonOff();
    void goesQuietlyWithItsCards();
};

void tst_centerWidget::init()
{
    service().reset();
}

void tst_centerWidget::periods_data()
{
    using Tasks = QVector<QStringList>; // id, first day, last day
    QTest::addColumn<Tasks>("tasks");
    QTest::addColumn<QString>("message");
    const auto task = [](const char* id, const char* start, const char* end) {
        return QStringList{QLatin1String(id), QLatin1String(start), QLatin1String(end)};
    };
    const auto pair = [](int a, int b) {
        return QStringLiteral("zhPlayTaskStr%1,zhPlayTaskStr%2 zhSegConflictStr").arg(a).arg(b);
    };
    QTest::newRow("no tasks") << Tasks{} << QString();
    QTest::newRow("one task") << Tasks{task("1", "2024.01.01", "2024.01.31")} << QString();
    QTest::newRow("share one day")
        << Tasks{task("1", "2024.01.01", "2024.01.31"), task("2", "2024.01.31", "2024.02.10")}
        << pair(1, 2);
    QTest::newRow("follow each other")
        << Tasks{task("1", "2024.01.01", "2024.01.31"), task("2", "2024.02.01", "2024.02.10")}
        << QString();
    QTest::newRow("the smallest id is named first")
        << Tasks{task("1", "2024.03.01", "2024.03.31"), task("2", "2024.01.01", "2024.01.31"),
                 task("5", "2024.01.15", "2024.02.15"), task("9", "2024.03.31", "2024.04.30")}
        << pair(1, 9);
    QTest::newRow("the later task has the smaller id")
        << Tasks{task("3", "2024.01.31", "2024.02.10"), task("12", "2024.01.01", "2024.01.31")}
        << pair(3, 12);
    QTest::newRow("empty dates and dates")
        << Tasks{task("1", "", ""), task("2", "2024.01.01", "2024.12.31")} << QString();
    QTest::newRow("empty dates twice") << Tasks{task("1", "", ""), task("2", "", "")} << pair(1, 2);
}

void tst_centerWidget::periods()
{
    QFETCH(const QVector<QStringList>, tasks);
    QFETCH(const QString, message);
    for (const QStringList& task : tasks) {
        keep(makeTask(task.at(0).toInt(), task.at(1).toStdString(), task.at(2).toStdString()));
    }
    const centerWidget panel;
    QString told = QStringLiteral("untouched");
    QCOMPARE(panel.checkTaskPeriods(told), message.isEmpty());
    QCOMPARE(told, message.isEmpty() ? QStringLiteral("untouched") : message);
    QCOMPARE(service().log, QStringList{QStringLiteral("getAllTask()")});
}

void tst_centerWidget::theCheckReadsTheWorkingSet()
{
    service().stored[1] = makeTask(1, "2024.01.01", "2024.01.31");
    service().stored[2] = makeTask(2, "2024.01.01", "2024.01.31");
    keep(makeTask(1, "2024.01.01", "2024.01.31"));
    keep(makeTask(2, "2024.02.01", "2024.02.29"));
    const centerWidget panel;
    QString message;
    QVERIFY(panel.checkTaskPeriods(message));
}

void tst_centerWidget::freePeriodsAreSavedAndStarted()
{
    const centerWidget panel;
    const Roads roads(panel);
    const PromptAnswer nobodyAsks;
    click(button(panel, "pushButtonSave"));
    QCOMPARE(roads.line(), QStringLiteral("cancel 0 save 1 start 0"));
    click(button(panel, "pushButtonStart"));
    QCOMPARE(roads.line(), QStringLiteral("cancel 0 save 1 start 1"));
    QCOMPARE(service().log,
             QStringList({QStringLiteral("getAllTask()"), QStringLiteral("getAllTask()")}));
}

void tst_centerWidget::overlapsAreToldAndStopSaveAndStart()
{
    keep(makeTask(1, "2024.01.01", "2024.01.31"));
    keep(makeTask(2, "2024.01.31", "2024.02.10"));
    const centerWidget panel;
    const Roads roads(panel);
    // Whatever way out of the message the operator takes.
    const PromptAnswer answer({1, PromptAnswer::Escape});
    click(button(panel, "pushButtonSave"));
    click(button(panel, "pushButtonStart"));
    const QString message = QStringLiteral("zhPlayTaskStr1,zhPlayTaskStr2 zhSegConflictStr");
    QCOMPARE(answer.texts(), QStringList({message, message}));
    QCOMPARE(answer.buttons(),
             QStringList({QStringLiteral("zhFixAct"), QStringLiteral("zhFixAct")}));
    QCOMPARE(answer.types(), QVector<int>({0, 0}));
    QCOMPARE(roads.line(), QStringLiteral("cancel 0 save 0 start 0"));
    QCOMPARE(service().count(QStringLiteral("save")), 0);
}

void tst_centerWidget::closeAsksNothing()
{
    keep(makeTask(1, "2024.01.01", "2024.01.31"));
    keep(makeTask(2, "2024.01.31", "2024.02.10"));
    const centerWidget panel;
    const Roads roads(panel);
    const PromptAnswer nobodyAsks;
    click(button(panel, "pushButtonClose"));
    QCOMPARE(roads.line(), QStringLiteral("cancel 1 save 0 start 0"));
    QCOMPARE(service().log, QStringList());
}

void tst_centerWidget::theHintFollowsTheCount()
{
    centerWidget panel;
    for (const int count : {1, 0, 2, -1, 7, 0}) {
        panel.slotGetMapCount(count);
        QCOMPARE(hint(panel)->isHidden(), count > 0);
        QCOMPARE(panel.property("state").toString(),
                 count > 0 ? QStringLiteral("busy") : QStringLiteral("default"));
    }
}

void tst_centerWidget::theStyleIsAppliedAfreshWithEveryCount()
{
    centerWidget panel;
    panel.show();
    const EventCounter styleChanges(&panel, QEvent::StyleChange);
    panel.slotGetMapCount(1);
    panel.slotGetMapCount(1);
    QCOMPARE(styleChanges.count(), 2);
    QVERIFY(panel.testAttribute(Qt::WA_SetStyle));
}

void tst_centerWidget::theButtonWhileLoading()
{
    const TestClock clock(kNow);
    centerWidget panel;
    panel.slotShowProcess();
    QCOMPARE(addButton(panel)->text(), QStringLiteral("zhScheduleLoading"));
    QVERIFY(!addButton(panel)->isEnabled());
    // Cut off as well as disabled: not even a click from code gets through.
    addButton(panel)->setEnabled(true);
    addButton(panel)->click();
    QCOMPARE(service().log, QStringList());
    addButton(panel)->setEnabled(false);

    panel.slotCloseProcess();
    QCOMPARE(addButton(panel)->text(), QStringLiteral("zhSchedulePlayStrAdd"));
    QVERIFY(addButton(panel)->isEnabled());
    click(addButton(panel));
    QCOMPARE(service().count(QStringLiteral("addTask")), 1);
}

void tst_centerWidget::oneClickAddsOneTaskAfterSeveralRefreshes()
{
    TestClock clock(kNow);
    const centerWidget panel;
    for (int i = 0; i < 3; ++i) {
        panel.planList()->refreshPlanList();
    }
    clock.advance(1000);
    click(addButton(panel));
    QCOMPARE(service().count(QStringLiteral("addTask")), 1);
    QCOMPARE(panel.property("state").toString(), QStringLiteral("busy"));
    QVERIFY(hint(panel)->isHidden());
}

void tst_centerWidget::anUnpairedEndAddsAConnection()
{
    const TestClock clock(kNow);
    centerWidget panel;
    panel.slotCloseProcess();
    click(addButton(panel));
    QCOMPARE(service().count(QStringLiteral("addTask")), 2);
    // The next beginning takes all connections away.
    panel.slotShowProcess();
    panel.slotCloseProcess();
    click(addButton(panel));
    QCOMPARE(service().count(QStringLiteral("addTask")), 3);
}

void tst_centerWidget::aClickDuringARefreshDoesNothing()
{
    const TestClock clock(kNow);
    const centerWidget panel;
    QStringList states;
    const auto clickLater = [&] {
        QMetaObject::invokeMethod(
            addButton(panel),
            [&] {
                states.append(addButton(panel)->text());
                click(addButton(panel));
            },
            Qt::QueuedConnection);
    };
    QObject::connect(panel.planList(), &PlanList::sigShowProcess, &panel, clickLater);
    const auto counted =
        QObject::connect(panel.planList(), &PlanList::sigGetMapCount, &panel, clickLater);
    panel.planList()->refreshPlanList();
    QObject::disconnect(counted);
    QCOMPARE(states, QStringList({QStringLiteral("zhScheduleLoading"),
                                  QStringLiteral("zhScheduleLoading")}));
    QCOMPARE(service().count(QStringLiteral("addTask")), 0);
    QVERIFY(addButton(panel)->isEnabled());
}

void tst_centerWidget::textsComeBeforeTheCards()
{
    centerWidget panel;
    QStringList texts;
    QObject::connect(panel.planList(), &PlanList::sigTranslation, &panel, [&] {
        for (const char* name :
             {"pushButtonClose", "pushButtonSave", "pushButtonStart", "pushButtonAddTask"}) {
            texts.append(button(panel, name)->text());
        }
        texts.append(hint(panel)->text());
    });
    const QSignalSpy translations(&panel, &centerWidget::signalTranslation);
    QVERIFY(translations.isValid());
    panel.slotTranslation();
    QCOMPARE(texts, QStringList({QStringLiteral("zhCancelAct"), QStringLiteral("zhFixAct"),
                                 QStringLiteral("zhEnable"), QStringLiteral("zhSchedulePlayStrAdd"),
                                 QStringLiteral("zhNoPlayTask")}));
    QCOMPARE(translations.count(), 1);
}

void tst_centerWidget::aTranslationDuringARefreshLeavesTheButtonOff()
{
    centerWidget panel;
    panel.slotShowProcess();
    panel.slotTranslation();
    QCOMPARE(addButton(panel)->text(), QStringLiteral("zhSchedulePlayStrAdd"));
    QVERIFY(!addButton(panel)->isEnabled());
}

void tst_centerWidget::goesQuietlyWithItsCards()
{
    service().stored[1] = makeTask(1, "2024.01.01", "2024.01.31");
    auto panel = std::make_unique<centerWidget>();
    panel->planList()->refreshPlanList();
    QSignalSpy counts(panel->planList(), &PlanList::sigGetMapCount);
    QVERIFY(counts.isValid());
    service().clearLog();
    panel.reset();
    QCOMPARE(counts, QList<QList<QVariant>>({{0}}));
    QCOMPARE(service().log, QStringList());
}

TREL_TEST(tst_centerWidget, QApplication)

#include "tst_centerWidget.moc"
