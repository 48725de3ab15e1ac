#include "EffectFixture.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDialog>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What the menu does to the schedule in effect.
class tst_EffectActions : public QObject
{
    Q_OBJECT

private slots:
    void eachCanBeChosenWhileItDoesSomething();
    void stopAsksFirst_data();
    void stopAsksFirst();
    void stopEndsItForEverybody();
    void anInsertionThatWaitsIsCanceled();
    void anInsertionOnScreenIsCanceled();
    void thePlayIsSkipped();
    void othersEnableAndDisable();
    void refusalsAreTold_data();
    void refusalsAreTold();
    void aRefusedStartIsTold();
    void noRefusalOverAnotherWindow();

private:
    /// Of skip, cancel and stop those that can be chosen.
    static QString enabled(const EffectFixture& fixture)
    {
        const EditorMenus& menus = fixture.menus();
        QString text;
        text += menus.skipPlay()->isEnabled() ? QStringLiteral("skip ") : QString();
        text += menus.cancelInsertion()->isEnabled() ? QStringLiteral("cancel ") : QString();
        text += menus.stopSchedule()->isEnabled() ? QStringLiteral("stop") : QString();
        return text.trimmed();
    }
    static void openReadOnly(EffectFixture& fixture)
    {
        fixture.host.close();
        QVERIFY(fixture.host.open(fixture.database, ScheduleHost::OpenMode::ReadOnly));
    }
    static QString refusal(const QStringList& texts)
    {
        return texts.value(0).section(QLatin1Char('.'), 0, 0);
    }
};

void tst_EffectActions::eachCanBeChosenWhileItDoesSomething()
{
    EffectFixture fixture("08:00:00-08:00:30 A B D freeze");
    QCOMPARE(enabled(fixture), QString());
    fixture.start();
    QCOMPARE(enabled(fixture), QStringLiteral("skip stop"));
    fixture.insertDelayed(fixture.inserted("07:00:00-07:30:00 D", true));
    QCOMPARE(enabled(fixture), QStringLiteral("skip cancel stop"));
    fixture.clock.advance(8000);
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Spot"));
    QCOMPARE(enabled(fixture), QStringLiteral("skip cancel stop"));
    fixture.clock.advance(6000);
    QCOMPARE(enabled(fixture), QStringLiteral("skip stop"));
    fixture.clock.advance(15000);
    // The plan is over.
    QCOMPARE(enabled(fixture), QStringLiteral("stop"));
    fixture.host.close();
    QCOMPARE(enabled(fixture), QString());
    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
    QCOMPARE(enabled(fixture), QStringLiteral("stop"));
}

void tst_EffectActions::stopAsksFirst_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<bool>("isStopped");
    QTest::newRow("yes") << 1 << true;
    QTest::newRow("no") << 2 << false;
    QTest::newRow("escape") << int(PromptAnswer::Escape) << false;
    QTest::newRow("close") << int(PromptAnswer::Close) << false;
}

void tst_EffectActions::stopAsksFirst()
{
    QFETCH(int, way);
    QFETCH(bool, isStopped);
    EffectFixture fixture;
    fixture.start();
    const PromptAnswer answer(way);
    fixture.menus().stopSchedule()->trigger();
    QCOMPARE(answer.texts(), QStringList{QStringLiteral(
                                 "Stop the schedule that is in effect? The screen stays black "
                                 "until a schedule is started again.")});
    QCOMPARE(answer.buttons(), QStringList{QStringLiteral("Stop|Cancel")});
    QCOMPARE(answer.types(), QVector<int>{1});
    QCOMPARE(!fixture.host.started(), isStopped);
    QCOMPARE(fixture.text("nowProgram"),
             isStopped ? QStringLiteral("Not started") : QStringLiteral("Opening"));
    QCOMPARE(enabled(fixture), isStopped ? QString() : QStringLiteral("skip stop"));
}

void tst_EffectActions::stopEndsItForEverybody()
{
    EffectFixture fixture;
    fixture.start();
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    const PromptAnswer answer(1);
    fixture.menus().stopSchedule()->trigger();
    const StoredEffect left = OtherProgram(fixture.database).effect();
    QVERIFY(!left.start);
    QVERIFY(left.insertions.empty());
}

void tst_EffectActions::anInsertionThatWaitsIsCanceled()
{
    EffectFixture fixture;
    fixture.start();
    fixture.insertDelayed(fixture.inserted("08:00:00-08:01:00 D"));
    QCOMPARE(fixture.text("nextProgram"), QStringLiteral("Spot"));
    const PromptAnswer answer;
    fixture.menus().cancelInsertion()->trigger();
    QCOMPARE(fixture.text("nextProgram"), QStringLiteral("News"));
    QCOMPARE(enabled(fixture), QStringLiteral("skip stop"));
    QVERIFY(OtherProgram(fixture.database).effect().insertions.empty());
}

void tst_EffectActions::anInsertionOnScreenIsCanceled()
{
    EffectFixture fixture;
    fixture.start();
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    fixture.clock.advance(1000);
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Spot"));
    fixture.menus().cancelInsertion()->trigger();
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Opening"));
    QCOMPARE(fixture.text("nowInserted"), QStringLiteral("-"));
    QCOMPARE(enabled(fixture), QStringLiteral("skip stop"));
}

void tst_EffectActions::thePlayIsSkipped()
{
    EffectFixture fixture;
    fixture.start();
    QStringList seen;
    for (int i = 0; i < 4; ++i) {
        fixture.menus().skipPlay()->trigger();
        seen.append(fixture.text("nowProgram"));
        fixture.clock.advance(1000);
    }
    QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("News Spot Opening News"));
    QCOMPARE(fixture.text("nowInserted"), QStringLiteral("Cut in"));
    QCOMPARE(enabled(fixture), QStringLiteral("skip cancel stop"));
    fixture.menus().cancelInsertion()->trigger();
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Opening"));
    QCOMPARE(fixture.text("nowInserted"), QStringLiteral("-"));
}

void tst_EffectActions::othersEnableAndDisable()
{
    EffectFixture fixture;
    OtherProgram other(fixture.database);
    other.start();
    QTRY_COMPARE_WITH_TIMEOUT(enabled(fixture), QStringLiteral("skip stop"), 2000);
    fixture.insertElsewhere(other, fixture.inserted("08:00:00-08:01:00 D"));
    QTRY_COMPARE_WITH_TIMEOUT(enabled(fixture), QStringLiteral("skip cancel stop"), 2000);
    other.stop();
    QTRY_COMPARE_WITH_TIMEOUT(enabled(fixture), QString(), 2000);
}

void tst_EffectActions::refusalsAreTold_data()
{
    QTest::addColumn<int>("entry");
    QTest::newRow("skip") << 0;
    QTest::newRow("cancel") << 1;
    QTest::newRow("stop") << 2;
}

void tst_EffectActions::refusalsAreTold()
{
    QFETCH(int, entry);
    EffectFixture fixture;
    fixture.start();
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    openReadOnly(fixture);
    QCOMPARE(enabled(fixture), QStringLiteral("skip cancel stop"));
    const EditorMenus& menus = fixture.menus();
    QAction* const actions[] = {menus.skipPlay(), menus.cancelInsertion(), menus.stopSchedule()};
    PromptAnswer answer(1);
    if (actions[entry] == menus.stopSchedule()) {
        answer.expect(1);
    }
    actions[entry]->trigger();
    QCOMPARE(answer.texts().last().section(QLatin1Char('.'), 0, 0),
             QStringLiteral("What is in effect could not be changed"));
    QVERIFY(answer.texts().last().size() > 45);
    QCOMPARE(answer.types().last(), 0);
    QCOMPARE(enabled(fixture), QStringLiteral("skip cancel stop"));
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Spot"));
}

void tst_EffectActions::aRefusedStartIsTold()
{
    EffectFixture fixture;
    openReadOnly(fixture);
    PromptAnswer answer(1);
    fixture.start();
    // The service has not been left yet.
    QCOMPARE(answer.count(), 0);
    QTRY_COMPARE(answer.count(), 1);
    QCOMPARE(refusal(answer.texts()), QStringLiteral("What is in effect could not be changed"));
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Not started"));
}

void tst_EffectActions::noRefusalOverAnotherWindow()
{
    EffectFixture fixture;
    fixture.start();
    openReadOnly(fixture);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    {
        const PromptAnswer none;
        fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QCOMPARE(none.count(), 0);
    }
    const PromptAnswer answer(1);
    dialog.close();
    QTRY_COMPARE(answer.count(), 1);
    QCOMPARE(refusal(answer.texts()), QStringLiteral("What is in effect could not be changed"));
}

TREL_TEST(tst_EffectActions, QApplication)
#include "tst_EffectActions.moc"
