#include "EditorRun.h"
#include "ScheduleLines.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QAbstractItemView>
#include <QApplication>

using namespace trel::desktop;

/// An operator edits a schedule in the editor, from the first click to the file, which another
/// process and the editor itself read afterwards.
class tst_EditingRun : public QObject
{
    Q_OBJECT

private slots:
    void rowsOfACard_data();
    void rowsOfACard();
    void wholeTasks_data();
    void wholeTasks();
    void closingKeepsNothing();

private:
    NoPlatformNotes m_quiet;
};

namespace {

void addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("fine");
    QTest::addColumn<QString>("conflict");
    QTest::addColumn<QString>("deletePlan");
    QTest::addColumn<QString>("deleteTask");

    QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("OK")
                           << QStringLiteral("Conflict") << QStringLiteral("Delete this play plan?")
                           << QStringLiteral("Delete this play task and all its plans?");
    QTest::newRow("zh_CN") << QStringLiteral("zh_CN") << QStringLiteral("正常")
                           << QStringLiteral("冲突") << QStringLiteral("确定要删除该播放计划吗？")
                           << QStringLiteral("确定要删除该播放任务及其全部计划吗？");
}

} // namespace

void tst_EditingRun::rowsOfACard_data()
{
    addLanguages();
}

void tst_EditingRun::rowsOfACard()
{
    QFETCH(QString, language);
    QFETCH(QString, fine);
    QFETCH(QString, conflict);
    QFETCH(QString, deletePlan);
    EditorRun run(QStringLiteral("editing"), language);
    const CardOnScreen card = run.card(0);
    QVERIFY(card.isFolded());
    run.picture(QStringLiteral("1-folded"));

    card.toggleFold();

    QVERIFY(!card.isFolded());
    QCOMPARE(
        card.lines().mid(1),
        (QStringList{
            QStringLiteral(
                "1: 07:30:00-07:31:21 frequency x3 days 1,2,3,4,5 freeze [Opening,欢迎光临]"),
            QStringLiteral(
                "2: 08:00:00-11:30:00 time days 1,2,3,4,5 black [City news,Weather,Brand film]"),
            QStringLiteral("3: 11:30:00-14:00:00 time days 0 freeze [Lunch menu]"),
            QStringLiteral(
                "4: 13:30:00-18:00:00 time days 1,2,3,4,5 black [City news,Brand film] collides"),
            QStringLiteral("5: 18:00:00-21:30:00 time days 0 freeze [Evening music]"),
        }));
    QCOMPARE(card.state(3), conflict);
    run.picture(QStringLiteral("2-open"));

    card.type(card.startTime(3), "14:00:00");
    QCOMPARE(card.startTime(3).text(), QStringLiteral("14:00:00"));
    QCOMPARE(card.state(3), fine);
    card.type(card.endTime(3), "17:30:00");
    card.toggleDays(
        3, {2, 4}, [&] { run.picture(*card.weeks(3).view()->window(), QStringLiteral("3-days")); });
    card.choose(card.endAction(3), 1);
    QCOMPARE(card.line(3),
             QStringLiteral("4: 14:00:00-17:30:00 time days 1,3,5 freeze [City news,Brand film]"));

    card.choose(card.mode(3), 1);
    QVERIFY(!card.endTime(3).isEnabled());
    card.type(card.times(3), "40");
    QCOMPARE(card.line(3),
             QStringLiteral(
                 "4: 14:00:00-14:50:00 frequency x40 days 1,3,5 freeze [City news,Brand film]"));

    card.copy(3);
    QCOMPARE(card.rowCount(), 6);
    QCOMPARE(card.state(5), fine);
    card.type(card.startTime(5), "14:20:00");
    QCOMPARE(card.line(5), QStringLiteral("6: 14:20:00-15:10:00 frequency x40 days 1,3,5 freeze "
                                          "[City news,Brand film] collides"));
    QCOMPARE(card.state(5), conflict);
    QVERIFY(card.isStateRed(5));
    run.picture(QStringLiteral("4-collision"));

    {
        PromptAnswer answer({2, 1});
        card.remove(5);
        QCOMPARE(card.rowCount(), 6);
        card.remove(5);
        QCOMPARE(answer.texts(), (QStringList{deletePlan, deletePlan}));
    }
    QCOMPARE(card.rowCount(), 5);
    card.copy(4);
    run.picture(QStringLiteral("5-edited"));
    const QStringList edited = run.lines();
    QCOMPARE(card.lines().mid(4),
             (QStringList{
                 QStringLiteral(
                     "4: 14:00:00-14:50:00 frequency x40 days 1,3,5 freeze [City news,Brand film]"),
                 QStringLiteral("5: 18:00:00-21:30:00 time days 0 freeze [Evening music]"),
                 QStringLiteral("6: 21:30:00-22:30:00 time days 0 freeze [Evening music]"),
             }));

    run.press("pushButtonSave");

    QVERIFY(!run.editor->isVisible());
    QCOMPARE(shownBySchedulectl(run.database), edited);
    run.openAgain();
    QCOMPARE(run.lines(), edited);
}

void tst_EditingRun::wholeTasks_data()
{
    addLanguages();
}

void tst_EditingRun::wholeTasks()
{
    QFETCH(QString, language);
    QFETCH(QString, deleteTask);
    EditorRun run(QStringLiteral("tasks"), language);
    const QDate today = run.card(0).firstDay().date();
    const auto task = [&](int id, int first, int last) {
        const auto day = [&](int days) {
            return today.addDays(days).toString(trel::mediadispatch::kDateFormat);
        };
        return taskLine(id, day(first), day(last));
    };
    const QString plan =
        QStringLiteral("1: 09:00:00-09:04:36 frequency x4 days 6,7 black [Opening,City news]");

    run.addTask();
    QCOMPARE(run.card(3).lines(), QStringList{task(4, 67, 67)});
    run.copyTask(2);
    QCOMPARE(run.card(4).lines(), (QStringList{task(5, 67, 67), plan}));
    QVERIFY(run.card(3).isFolded());
    QVERIFY(!run.card(4).isFolded());
    run.picture(QStringLiteral("1-overlap"));

    {
        PromptAnswer answer({1, 2, 1});
        run.press("pushButtonSave");
        QVERIFY(run.editor->isVisible());
        run.card(3).removeTask();
        QCOMPARE(run.cards().size(), 5);
        run.card(3).removeTask();
        QCOMPARE(run.cards().size(), 4);
        QCOMPARE(answer.texts().mid(1), (QStringList{deleteTask, deleteTask}));
    }
    click(run.card(3).lastDay());
    // The day is the last section.
    QTest::keyClick(&run.card(3).lastDay(), Qt::Key_End);
    QTest::keyClick(&run.card(3).lastDay(), Qt::Key_Up);
    QCOMPARE(run.card(3).lastDay().date(), today.addDays(68));
    run.picture(QStringLiteral("2-edited"));
    const QStringList edited = run.lines();

    run.press("pushButtonSave");

    QVERIFY(!run.editor->isVisible());
    QCOMPARE(shownBySchedulectl(run.database), edited);
    run.openAgain();
    QCOMPARE(run.lines(), edited);
}

void tst_EditingRun::closingKeepsNothing()
{
    EditorRun run(QStringLiteral("closing"), QStringLiteral("en_US"));
    const QStringList stored = run.lines();
    run.card(1).toggleFold();
    run.card(1).copy(0);
    QVERIFY(run.lines() != stored);

    run.press("pushButtonClose");

    QVERIFY(!run.editor->isVisible());
    QCOMPARE(shownBySchedulectl(run.database), stored);
    run.openAgain();
    QCOMPARE(run.lines(), stored);
}

TREL_TEST(tst_EditingRun, QApplication)
#include "tst_EditingRun.moc"
