#include "CardOnScreen.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "libs/trelprogramschedule/SignalCounts.h"
#include "libs/trelprogramschedule/dispatch/DispatchFixture.h"
#include "scheduleControlUI.h"
#include "support/ChooserAnswer.h"
#include "support/RefusedConnections.h"
#include "support/TestProgram.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QLayout>

using namespace trel::mediadispatch;

namespace {

/// The lines of the menu, from the top.
enum MenuLine { CutLine, DelayLine };

/// Rows of the chooser's right table.
enum Row { FirstRow, SecondRow };

/// The editor over a store in which a schedule of A, B and D has been started, on Monday,
/// 2024.03.04, at 08:30:03. B plays for four seconds, A for ten, D for six, C for as long as there
/// is room.
class StartedEditor : public DispatchFixture
{
public:
    /// A task from the first of the month on, and its plans as scheduleFromText has them.
    StartedEditor(const QString& lastDay, const QString& plans)
        : DispatchFixture("08:30:03")
    {
        save(scheduleFromText(QStringLiteral("1 2024.03.01-2024.03.%1 / %2").arg(lastDay, plans)));
        editor.loadLanguageFiles(
            {QStringLiteral(LANGUAGES "/zh_CN.qm"), QStringLiteral(LANGUAGES "/en_US.qm")});
        editor.switchLanguage(QStringLiteral("en_US"));
        editor.translate();
        editor.show();
        editor.clearAndInitialize();
        card().toggleFold();
        click(*editor.findChild<QPushButton*>(QStringLiteral("pushButtonStart")));
        takeTold();
    }

    CardOnScreen card() const
    {
        const auto* const list = editor.findChild<QWidget*>(QStringLiteral("widget"));
        for (int i = 0; i < list->layout()->count(); ++i) {
            if (QWidget* const card = list->layout()->itemAt(i)->widget()) {
                return CardOnScreen(*card);
            }
        }
        qFatal("The editor shows no card.");
    }

    /// Operates the chooser of the first plan, and cancels it.
    template <typename Steps>
    void inChooser(Steps steps)
    {
        ChooserAnswer answer([&steps](ChooserWindow& chooser) {
            steps(chooser);
            chooser.cancel();
        });
        card().openChooser(0);
    }

    /// Lets time go by until the local clock shows this, of today or of the day after.
    void goOnTo(const QString& timeOfDay)
    {
        QDateTime next(clock.today(), QTime::fromString(timeOfDay, QStringLiteral("hh:mm:ss")));
        if (next < clock.now()) {
            next = next.addDays(1);
        }
        clock.advance(clock.now().msecsTo(next));
    }

private:
    NoPlatformNotes m_quiet;
    RefusedConnections m_refused;

public:
    scheduleControlUI editor;
};

bool isInReach(const QStringList& menu)
{
    return menu.size() == 4 && !menu.first().startsWith(QLatin1Char('('));
}

QString refusal()
{
    return QStringLiteral("tip: ") +
           tessark::trans::translate(ProgramSheduleWidgetTranslateManager::instance().translator(),
                                     QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"),
                                     QStringLiteral("zhCutProgWarnning"));
}

} // namespace

/// Cuts programs in from the chooser of a plan in use, and looks at the screen then and later.
class tst_InsertionRun : public QObject
{
    Q_OBJECT

private slots:
    void fromTheRightClickToTheScreen_data();
    void fromTheRightClickToTheScreen();
    void aWaitingInsertionGreysTheMenu();
    void anUnsavedOrderPlaysForTheInsertionOnly();
    void nothingIsCutInBeforeTheStart();
};

void tst_InsertionRun::fromTheRightClickToTheScreen_data()
{
    QTest::addColumn<QString>("lastDay");
    QTest::addColumn<QString>("plans");
    QTest::addColumn<int>("menuLine");
    QTest::addColumn<bool>("isRefused");
    // What is on screen before, right after the click, and whenever the times of these lines come.
    QTest::addColumn<QString>("before");
    QTest::addColumn<QStringList>("after");
    const auto row = [](const char* name, const char* lastDay, const char* plans, MenuLine menuLine,
                        bool isRefused, const char* before,
                        std::initializer_list<const char*> after) {
        QTest::newRow(name) << QString::fromLatin1(lastDay) << QString::fromLatin1(plans)
                            << int(menuLine) << isRefused << QString::fromLatin1(before)
                            << lines(after);
    };
    const char* const atEight = "08:00:00-09:00:00 A B D freeze";
    const char* const atSeven = "07:00:00-08:00:00 A B D freeze";
    const char* const twoPlans = "07:00:00-08:00:00 A B D / 08:00:00-09:00:00 D";

    row("task ended yesterday", "03", atEight, CutLine, true, "08:30:03 frozen D",
        {"08:30:03 frozen D", "08:00:03 frozen D"});
    row("task ended yesterday, delayed", "03", atEight, DelayLine, true, "08:30:03 frozen D",
        {"08:30:03 frozen D", "08:00:03 frozen D"});
    row("last day, end has passed", "04", atSeven, CutLine, true, "08:30:03 frozen D",
        {"08:30:03 frozen D", "07:00:03 frozen D"});
    row("last day, end has passed, delayed", "04", atSeven, DelayLine, true, "08:30:03 frozen D",
        {"08:30:03 frozen D", "07:00:03 frozen D"});
    row("last day, before the end", "04", atEight, CutLine, false, "08:30:03 plays A to 08:30:10",
        {"08:30:03 plays B inserted to 08:30:07", "08:30:07 plays D inserted to 08:30:13",
         "08:30:13 plays A inserted to 08:30:23", "08:59:59 plays A inserted to 09:00:00",
         "09:00:00 frozen D", "08:00:03 frozen D"});
    row("last day, before the end, delayed", "04", atEight, DelayLine, false,
        "08:30:03 plays A to 08:30:10",
        {"08:30:03 plays A to 08:30:10", "08:30:10 plays B inserted to 08:30:14",
         "08:30:14 plays D inserted to 08:30:20", "08:30:20 plays A inserted to 08:30:30",
         "08:59:59 plays D inserted to 09:00:00", "09:00:00 frozen D"});
    row("later day, end has passed", "10", atSeven, CutLine, false, "08:30:03 frozen D to 07:00:00",
        {"08:30:03 plays B inserted to 08:30:07", "08:30:07 frozen D to 07:00:00",
         "07:00:00 plays A to 07:00:10", "07:00:10 plays B to 07:00:14"});
    row("later day, end has passed, delayed behind nothing", "10", atSeven, DelayLine, false,
        "08:30:03 frozen D to 07:00:00",
        {"08:30:03 plays B inserted to 08:30:07", "08:30:07 frozen D to 07:00:00",
         "07:00:00 plays A to 07:00:10"});
    row("later day, end has passed, into another plan", "10", twoPlans, CutLine, false,
        "08:30:03 plays D to 08:30:06",
        {"08:30:03 plays B inserted to 08:30:07", "08:30:07 plays D to 08:30:12",
         "09:00:00 black to 07:00:00", "07:00:00 plays A to 07:00:10"});
    row("later day, end has passed, delayed behind another plan", "10", twoPlans, DelayLine, false,
        "08:30:03 plays D to 08:30:06",
        {"08:30:03 plays D to 08:30:06", "08:30:06 plays B inserted to 08:30:10",
         "08:30:10 plays D to 08:30:12", "07:00:00 plays A to 07:00:10"});
    row("later day, end has passed, no length", "10", "07:00:00-08:00:00 A C / 10:00:00-11:00:00 B",
        CutLine, false, "08:30:03 black to 10:00:00",
        {"08:30:03 plays C inserted to 10:00:00", "09:59:59 plays C inserted to 10:00:00",
         "10:00:00 plays B to 10:00:04", "07:00:00 plays A to 07:00:10"});
    row("later day, before the end", "10", atEight, CutLine, false, "08:30:03 plays A to 08:30:10",
        {"08:30:03 plays B inserted to 08:30:07", "08:59:59 plays A inserted to 09:00:00",
         "09:00:00 frozen D to 08:00:00", "08:00:00 plays A to 08:00:10",
         "08:00:10 plays B to 08:00:14"});
    row("later day, before the end, delayed", "10", atEight, DelayLine, false,
        "08:30:03 plays A to 08:30:10",
        {"08:30:03 plays A to 08:30:10", "08:30:10 plays B inserted to 08:30:14",
         "08:59:59 plays D inserted to 09:00:00", "09:00:00 frozen D to 08:00:00",
         "08:00:00 plays A to 08:00:10"});
    row("later day, before it begins", "10", "08:45:00-09:00:00 A B D", CutLine, false,
        "08:30:03 black to 08:45:00",
        {"08:30:03 plays B inserted to 08:30:07", "08:45:00 plays A inserted to 08:45:03",
         "09:00:00 black to 08:45:00", "08:45:00 plays A to 08:45:10"});
}

void tst_InsertionRun::fromTheRightClickToTheScreen()
{
    QFETCH(QString, lastDay);
    QFETCH(QString, plans);
    QFETCH(int, menuLine);
    QFETCH(bool, isRefused);
    QFETCH(QString, before);
    QFETCH(QStringList, after);
    StartedEditor run(lastDay, plans);
    const auto stored = run.manager.getgTaskMap();
    SignalCounts counts;
    QVERIFY(counts.isValid());
    QCOMPARE(run.onScreen(), before);

    run.inChooser([&](ChooserWindow& chooser) {
        const QStringList rows = chooser.planRows();
        QVERIFY(isInReach(chooser.contextMenu(SecondRow, menuLine)));
        QCOMPARE(chooser.message(), isRefused ? refusal() : QString());
        QCOMPARE(chooser.planRows(), rows);
    });
    for (const QString& line : qAsConst(after)) {
        run.goOnTo(line.section(QLatin1Char(' '), 0, 0));
        QCOMPARE(run.onScreen(), line);
    }

    QCOMPARE(counts.take(), QString());
    QVERIFY(run.manager.getgTaskMap() == stored);
    QVERIFY(!run.host.hasUnsavedChanges());
}

void tst_InsertionRun::aWaitingInsertionGreysTheMenu()
{
    StartedEditor run(QStringLiteral("10"), QStringLiteral("08:00:00-09:00:00 A B D"));
    run.inChooser([&run](ChooserWindow& chooser) {
        QVERIFY(isInReach(chooser.contextMenu(SecondRow, DelayLine)));
        QVERIFY(!isInReach(chooser.contextMenu(SecondRow, CutLine)));
        QCOMPARE(run.onScreen(), QStringLiteral("08:30:03 plays A to 08:30:10"));
        run.clock.advance(7000);
        QCOMPARE(run.takeTold(),
                 lines({"08:30:03 plays A to 08:30:10", "08:30:10 plays B inserted to 08:30:14"}));
        QVERIFY(isInReach(chooser.contextMenu(FirstRow, CutLine)));
        QCOMPARE(run.takeTold(), lines({"08:30:10 plays A inserted to 08:30:20"}));
    });
}

void tst_InsertionRun::anUnsavedOrderPlaysForTheInsertionOnly()
{
    StartedEditor run(QStringLiteral("10"), QStringLiteral("08:00:00-09:00:00 A B D"));
    run.inChooser([](ChooserWindow& chooser) {
        chooser.checkPlan(SecondRow);
        chooser.moveUp();
        QVERIFY(isInReach(chooser.contextMenu(SecondRow, CutLine)));
    });
    QCOMPARE(run.takeTold(), lines({"08:30:03 plays A inserted to 08:30:13"}));
    const ScreenInsertions& insertions = run.dispatch.insertions();
    QCOMPARE(insertions.size(), 1U);
    QString original;
    for (const struProgInfo& entry : insertions[0].original) {
        original += letterOf(entry.progIndex);
    }
    QCOMPARE(original, QStringLiteral("BAD"));
    run.goOnTo(QStringLiteral("08:30:13"));
    QCOMPARE(run.onScreen(), QStringLiteral("08:30:13 plays D inserted to 08:30:19"));
    run.goOnTo(QStringLiteral("08:30:19"));
    QCOMPARE(run.onScreen(), QStringLiteral("08:30:19 plays B inserted to 08:30:23"));
    run.goOnTo(QStringLiteral("08:00:00"));
    QCOMPARE(run.onScreen(), QStringLiteral("08:00:00 plays A to 08:00:10"));
}

void tst_InsertionRun::nothingIsCutInBeforeTheStart()
{
    StartedEditor run(QStringLiteral("10"), QStringLiteral("08:00:00-09:00:00 A B D"));
    QVERIFY(run.host.stopSchedule());
    run.editor.clearAndInitialize();
    run.card().toggleFold();
    run.takeTold();
    run.inChooser([](ChooserWindow& chooser) {
        QVERIFY(!isInReach(chooser.contextMenu(SecondRow, CutLine)));
    });
    QCOMPARE(run.takeTold(), QStringList());
    QVERIFY(run.dispatch.state().reason == ScreenReason::NothingInEffect);
}

TREL_TEST(tst_InsertionRun, QApplication)
#include "tst_InsertionRun.moc"
