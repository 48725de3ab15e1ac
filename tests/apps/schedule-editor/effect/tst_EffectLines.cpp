#include "EffectFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QTextDocument>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What the panel says of the schedule in effect: since when, from which save, and in which tasks
/// what is saved differs.
class tst_EffectLines : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsInEffectAtFirst();
    void aStartIsShown();
    void whoStartedIt();
    void anotherWindowShowsItAgain();
    void aSaveThatDiffersIsShown();
    void whatIsOnlyEditedIsNoDifference();
    void manyTasksAreNamedInTheToolTip();
    void otherProgramsAreFollowed();
    void theyAreInTheLanguageInUse();
};

void tst_EffectLines::nothingIsInEffectAtFirst()
{
    const EffectFixture fixture;
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Not started"));
    QCOMPARE(fixture.text("effectSince"), QStringLiteral("-"));
    QCOMPARE(fixture.text("effectDiffering"), QStringLiteral("-"));
}

void tst_EffectLines::aStartIsShown()
{
    EffectFixture fixture;
    fixture.start();
    QCOMPARE(fixture.text("effectSince"),
             QStringLiteral("In effect since \u20662024.03.04\u2069 at 08:00:03 (save 1)"));
    fixture.clock.advance(2000);
    fixture.save(QStringLiteral("1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 D"));
    fixture.start();
    QCOMPARE(fixture.text("effectSince"),
             QStringLiteral("In effect since \u20662024.03.04\u2069 at 08:00:05 (save 2)"));
    QVERIFY(fixture.host.stopSchedule());
    QCOMPARE(fixture.text("effectSince"), QStringLiteral("-"));
}

void tst_EffectLines::whoStartedIt()
{
    EffectFixture fixture;
    fixture.start();
    QCOMPARE(fixture.toolTip("effectSince"),
             fixture.text("effectSince") +
                 QStringLiteral("\nStarted by %1.").arg(fixture.host.started()->by));
    OtherProgram(fixture.database).start(1, QStringLiteral("<b>x</b>"));
    QVERIFY(fixture.host.reload());
    const QString tip = fixture.toolTip("effectSince");
    QVERIFY(tip.endsWith(QLatin1String("Started by <b>x</b>.")));
    QVERIFY(!Qt::mightBeRichText(tip));
}

void tst_EffectLines::anotherWindowShowsItAgain()
{
    EffectFixture fixture;
    fixture.start();
    fixture.save(QStringLiteral("1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 D"));
    QTRY_COMPARE(fixture.text("effectDiffering"),
                 QStringLiteral("What is saved differs in 1 task: 1"));
    const QString since = fixture.text("effectSince");
    const QString differing = fixture.text("effectDiffering");
    fixture.host.close();
    QCOMPARE(fixture.text("effectSince"), QStringLiteral("-"));
    QCOMPARE(fixture.text("effectDiffering"), QStringLiteral("-"));

    EditorWindow window(*fixture.editor, fixture.languages, fixture.themes);
    QCOMPARE(window.openDatabase(fixture.database), QString());
    window.show();
    QCOMPARE(window.findChild<QLabel*>(QStringLiteral("effectSince"))->text(), since);
    const auto* shown = window.findChild<QLabel*>(QStringLiteral("effectDiffering"));
    QTRY_VERIFY(shown->isVisible());
    QCOMPARE(shown->text(), differing);
    QTRY_COMPARE(fixture.text("effectDiffering"), differing);
}

void tst_EffectLines::aSaveThatDiffersIsShown()
{
    EffectFixture fixture;
    fixture.save(QStringLiteral("3 2024.03.04-2024.03.05 / 08:00:00-09:00:00 D"
                                " | 7 2024.03.06-2024.03.07 / 08:00:00-09:00:00 D"
                                " | 8 2024.03.08-2024.03.09 / 08:00:00-09:00:00 D"));
    fixture.start();
    fixture.save(QStringLiteral("3 2024.03.04-2024.03.05 / 08:00:00-09:00:00 A"
                                " | 8 2024.03.08-2024.03.09 / 08:00:00-09:00:00 D"));
    QTRY_COMPARE(fixture.text("effectDiffering"),
                 QStringLiteral("What is saved differs in 2 tasks: 3, 7"));
    QVERIFY(fixture.text("effectSince").endsWith(QLatin1String("(save 2)")));
    fixture.start();
    QTRY_COMPARE(fixture.text("effectDiffering"), QStringLiteral("-"));
}

void tst_EffectLines::whatIsOnlyEditedIsNoDifference()
{
    EffectFixture fixture;
    fixture.start();
    PlayTask task = fixture.manager.getTask(1);
    task.plans[0].weeks = "2";
    fixture.manager.addTask(task);
    QVERIFY(fixture.host.hasUnsavedChanges());
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(fixture.text("effectDiffering"), QStringLiteral("-"));
    fixture.manager.save();
    QTRY_COMPARE(fixture.text("effectDiffering"),
                 QStringLiteral("What is saved differs in 1 task: 1"));
}

void tst_EffectLines::manyTasksAreNamedInTheToolTip()
{
    EffectFixture fixture;
    fixture.start();
    QStringList tasks;
    QStringList numbers{QStringLiteral("1")};
    for (int id = 101; id <= 125; ++id) {
        const QString day = QDate(2025, 1, 1).addDays(id).toString(QStringLiteral("yyyy.MM.dd"));
        tasks.append(QStringLiteral("%1 %2-%2 / 08:00:00-09:00:00 A").arg(id).arg(day));
        numbers.append(QString::number(id));
    }
    fixture.save(tasks.join(QStringLiteral(" | ")));
    const QString all = QStringLiteral("What is saved differs in 26 tasks: ");
    QTRY_COMPARE(fixture.text("effectDiffering"),
                 all + numbers.mid(0, 20).join(QStringLiteral(", ")) + QStringLiteral(", …"));
    QCOMPARE(fixture.toolTip("effectDiffering"), all + numbers.join(QStringLiteral(", ")));
}

void tst_EffectLines::otherProgramsAreFollowed()
{
    EffectFixture fixture;
    OtherProgram other(fixture.database);
    other.start(fixture.clock.msecsSinceEpoch() - 3000);
    QTRY_COMPARE_WITH_TIMEOUT(
        fixture.text("effectSince"),
        QStringLiteral("In effect since \u20662024.03.04\u2069 at 08:00:00 (save 1)"), 2000);
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Opening"));
    QVERIFY(fixture.toolTip("effectSince").endsWith(QLatin1String("Started by other@elsewhere.")));
    other.save(scheduleFromText(QStringLiteral("4 2024.03.04-2024.03.10 / 08:00:00-09:00:00 D")));
    QTRY_COMPARE_WITH_TIMEOUT(fixture.text("effectDiffering"),
                              QStringLiteral("What is saved differs in 2 tasks: 1, 4"), 2000);
    other.stop();
    QTRY_COMPARE_WITH_TIMEOUT(fixture.text("effectSince"), QStringLiteral("-"), 2000);
    QCOMPARE(fixture.text("effectDiffering"), QStringLiteral("-"));
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Not started"));
}

void tst_EffectLines::theyAreInTheLanguageInUse()
{
    EffectFixture fixture;
    fixture.start();
    fixture.save(QStringLiteral("2 2024.03.04-2024.03.10 / 08:00:00-09:00:00 D"));
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(
        fixture.text("effectSince"),
        QStringLiteral("In Kraft seit dem \u20662024.03.04\u2069 um 08:00:03 (Speicherung 1)"));
    QCOMPARE(fixture.text("effectDiffering"),
             QString::fromUtf8("Der gespeicherte Stand weicht in 2 Aufträgen ab: 1, 2"));
}

TREL_TEST(tst_EffectLines, QApplication)
#include "tst_EffectLines.moc"
