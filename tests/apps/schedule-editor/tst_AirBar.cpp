#include "BidiText.h"
#include "EditorMenus.h"
#include "HostFixture.h"
#include "LookSupport.h"
#include "air/AirBar.h"
#include "air/AirLight.h"
#include "air/StartAction.h"
#include "draft/DraftKeeper.h"
#include "problems/ProblemDock.h"
#include "screen/ElidedText.h"
#include "support/PlanRecords.h"
#include "support/PromptAnswer.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStatusBar>
#include <QToolButton>

using namespace trel::desktop;
using namespace trel::desktop::air;
using namespace trel::mediadispatch;

namespace {

PlayTask taskOf(int id)
{
    PlayTask task = taskWithPlans({timePlan(1, "00:00:00", "23:59:59")}, id);
    task.startDate = "2020.01.01";
    task.endDate = "2099.12.31";
    return task;
}

struct Window : HostFixture
{
    Window()
        : bar(*window.findChild<AirBar*>())
        , light(*window.findChild<AirLight*>())
    {
        window.openDatabase(database);
        window.show();
        QCoreApplication::processEvents();
    }

    QToolButton& button(const char* text) const
    {
        const QList<QToolButton*> buttons = bar.findChildren<QToolButton*>();
        for (QToolButton* button : buttons) {
            if (button->text() == QString::fromUtf8(text)) {
                return *button;
            }
        }
        qFatal("no button %s", text);
    }
    void press(const char* text) const { QTest::mouseClick(&button(text), Qt::LeftButton); }
    QString saved() const
    {
        return window.findChild<ElidedText*>(QStringLiteral("airSaved"))->text();
    }

    AirBar& bar;
    AirLight& light;
};

} // namespace

/// What is done daily, and whether it is on air, under the menus.
class tst_AirBar : public QObject
{
    Q_OBJECT

private slots:
    void hasWhatIsDoneDaily();
    void startAsksAndPutsOnAir();
    void startIsRefusedWhileTasksShareADay();
    void startOfTheOpenEditorSavesWhatIsTyped();
    void aCancelStartsNothing();
    void whatWasCanceledIsNotStarted();
    void theQuestionNamesOpenProblems();
    void theEditorsOwnStartIsToldWithOpenProblems();
    void theMenuAsksAsTheBarDoes();
    void tellsWhatIsUnsaved();
    void tellsWhenItWasSavedAndStarted();
    void theClockGoesOn();
    void searchLeadsToTheCatalogue();
    void speaksTheLanguageInUse();
    void tipsShowNoLetters();
    void canBeRead_data() { addThemes(); }
    void canBeRead();
};

void tst_AirBar::hasWhatIsDoneDaily()
{
    Window fixture;
    QStringList texts;
    const QList<QAction*> actions = fixture.bar.actions();
    for (QAction* action : actions) {
        if (auto* button = qobject_cast<QToolButton*>(fixture.bar.widgetForAction(action))) {
            texts.append(button->text());
        }
    }
    QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("Edit Import Undo Start Stop Search"));
    QCOMPARE(fixture.window.toolBarArea(&fixture.bar), Qt::TopToolBarArea);
    QCOMPARE(fixture.bar.objectName(), QStringLiteral("airBar"));
}

void tst_AirBar::startAsksAndPutsOnAir()
{
    Window fixture;
    fixture.manager.addTask(taskOf(1));
    QVERIFY(!fixture.light.isOn());
    QCOMPARE(fixture.light.accessibleName(), QStringLiteral("Off air"));
    {
        const PromptAnswer answer(1);
        fixture.press("Start");
        QVERIFY(answer.texts().last().startsWith(QStringLiteral("Put the schedule on air?")));
    }
    QVERIFY(fixture.light.isOn());
    QCOMPARE(fixture.light.accessibleName(), QStringLiteral("On air"));
    QVERIFY(!fixture.host.hasUnsavedChanges());
    {
        const PromptAnswer answer(1);
        fixture.press("Stop");
    }
    QTRY_VERIFY(!fixture.light.isOn());
    QVERIFY(!fixture.button("Stop").isEnabled());
}

void tst_AirBar::startIsRefusedWhileTasksShareADay()
{
    Window fixture;
    fixture.manager.addTask(taskOf(3));
    fixture.manager.addTask(taskOf(5));
    const PromptAnswer answers({1, 1});
    fixture.press("Start");
    QVERIFY2(answers.texts().last().contains(QStringLiteral("Tasks 3 and 5 are valid")),
             qPrintable(answers.texts().join(QLatin1Char('\n'))));
    QVERIFY(!fixture.light.isOn());
    QVERIFY(fixture.host.hasUnsavedChanges());
}

void tst_AirBar::startOfTheOpenEditorSavesWhatIsTyped()
{
    Window fixture;
    fixture.manager.addTask(taskOf(1));
    fixture.manager.save();
    fixture.showEditor();
    fixture.manager.addTask(taskOf(2));
    {
        // The editor's own button says what is in the way.
        const PromptAnswer answers({1, 1});
        fixture.press("Start");
        QCOMPARE(answers.count(), 2);
    }
    QVERIFY(!fixture.light.isOn());
    fixture.manager.deleteTask(2);
    const PromptAnswer answer(1);
    fixture.press("Start");
    QVERIFY(fixture.light.isOn());
    QVERIFY(fixture.editor->isVisible());
}

void tst_AirBar::aCancelStartsNothing()
{
    Window fixture;
    fixture.manager.addTask(taskOf(1));
    const PromptAnswer answer({2, PromptAnswer::Escape});
    fixture.press("Start");
    fixture.press("Start");
    QVERIFY(!fixture.light.isOn());
    QVERIFY(fixture.host.hasUnsavedChanges());
}

// The working set keeps it until the editor is shown again.
void tst_AirBar::whatWasCanceledIsNotStarted()
{
    Window fixture;
    fixture.manager.addTask(taskOf(1));
    fixture.manager.save();
    fixture.showEditor();
    PlayTask canceled = taskOf(2);
    canceled.startDate = canceled.endDate = "2100.01.01";
    fixture.manager.addTask(canceled);
    fixture.editor->slotCancel();
    const auto ids = [](const std::map<int, PlayTask>& tasks) {
        QString ids;
        for (const auto& [id, task] : tasks) {
            ids += QString::number(id);
        }
        return ids;
    };
    {
        const PromptAnswer answer(1);
        fixture.press("Start");
    }
    QVERIFY(fixture.light.isOn());
    QCOMPARE(ids(fixture.window.drafts().saved()), QStringLiteral("1"));
    std::set<int> notInEffect;
    QVERIFY(fixture.host.tasksNotInEffect(notInEffect));
    QVERIFY(notInEffect.empty());
    QCoreApplication::processEvents();
    QVERIFY(!fixture.window.drafts().isUnsaved());
    QAction* const back = fixture.window.findChild<EditorMenus*>()->bringBack();
    QVERIFY(back->isEnabled());
    fixture.showEditor();
    back->trigger();
    QCOMPARE(ids(fixture.manager.getAllTask()), QStringLiteral("12"));
}

void tst_AirBar::theQuestionNamesOpenProblems()
{
    Window fixture;
    const PromptAnswer answer({2, 2});
    fixture.press("Start");
    QVERIFY(!answer.texts().last().contains(QStringLiteral("problems")));
    PlayTask task = taskOf(1);
    task.plans.push_back(timePlan(2, "08:00:00", "09:00:00"));
    fixture.manager.addTask(task);
    const auto* problems = fixture.window.findChild<ProblemDock*>();
    QTRY_VERIFY(problems->count() > 0);
    fixture.press("Start");
    QVERIFY2(
        answer.texts().last().contains(QStringLiteral("Open problems: %1").arg(problems->count())),
        qPrintable(answer.texts().last()));
}

void tst_AirBar::theEditorsOwnStartIsToldWithOpenProblems()
{
    Window fixture;
    fixture.manager.addTask(taskOf(1));
    fixture.manager.save();
    fixture.showEditor();
    const auto start = [&] {
        QTest::mouseClick(
            fixture.editor->findChild<QAbstractButton*>(QStringLiteral("pushButtonStart")),
            Qt::LeftButton);
    };
    const auto* problems = fixture.window.findChild<ProblemDock*>();
    const QStatusBar& bar = *fixture.window.statusBar();
    {
        // It is the editor's: it asks nothing, and starts nothing that it refuses.
        fixture.manager.addTask(taskOf(2));
        const PromptAnswer refusal(1);
        start();
        QCOMPARE(refusal.count(), 1);
        QCOMPARE(bar.currentMessage(), QString());
    }
    PlayTask task = taskOf(1);
    task.plans.push_back(timePlan(2, "08:00:00", "09:00:00"));
    fixture.manager.deleteTask(2);
    fixture.manager.addTask(task);
    QTRY_VERIFY(problems->count() > 0);
    start();
    QVERIFY(fixture.light.isOn());
    QCOMPARE(bar.currentMessage(),
             QStringLiteral("The schedule is on air. Open problems: %1").arg(problems->count()));
}

void tst_AirBar::theMenuAsksAsTheBarDoes()
{
    Window fixture;
    fixture.manager.addTask(taskOf(1));
    QAction& start = *fixture.window.findChild<EditorMenus*>()->startSchedule();
    QVERIFY(fixture.bar.actions().contains(&start));
    QCOMPARE(start.text(), QStringLiteral("St&art the schedule…"));
    const auto press = [&](Qt::KeyboardModifiers held) {
        // Behind a prompt, off screen no window is at work.
        QApplication::setActiveWindow(&fixture.window);
        QTest::keyClick(&fixture.window, Qt::Key_F5, held);
    };
    const PromptAnswer answers({2, 1, PromptAnswer::Enter, 1});
    press({});
    QVERIFY(!fixture.light.isOn());
    press({});
    QVERIFY(fixture.light.isOn());
    // Enter takes nothing off the screen.
    press(Qt::ShiftModifier);
    QVERIFY(fixture.light.isOn());
    press(Qt::ShiftModifier);
    QTRY_VERIFY(!fixture.light.isOn());
    QCOMPARE(answers.count(), 4);
}

void tst_AirBar::tellsWhatIsUnsaved()
{
    Window fixture;
    fixture.showEditor();
    QCOMPARE(fixture.saved(), QString());
    fixture.manager.addTask(taskOf(1));
    QTRY_COMPARE(fixture.saved(), QStringLiteral("Not saved"));
    fixture.manager.save();
    QTRY_VERIFY(fixture.saved().startsWith(QStringLiteral("Saved: ")));
}

void tst_AirBar::tellsWhenItWasSavedAndStarted()
{
    TestClock clock(QDateTime(QDate(2026, 3, 11), QTime(12, 5)));
    Window fixture;
    fixture.manager.addTask(taskOf(1));
    fixture.manager.save();
    const auto today = [](const char* time) { return leftToRight(QLatin1String(time)); };
    QTRY_COMPARE(fixture.saved(), QStringLiteral("Saved: ") + today("12:05"));
    clock.set(QDateTime(QDate(2026, 3, 12), QTime(9, 30)));
    fixture.manager.slotOpen();
    QTRY_COMPARE(
        fixture.saved(),
        QStringLiteral("Saved: %1  ·  Started: %2").arg(today("2026.03.11 12:05"), today("09:30")));
    // Another store has a history of its own.
    fixture.window.openDatabase(fixture.folder.filePath(QStringLiteral("other.db")));
    QTRY_COMPARE(fixture.saved(), QString());
}

void tst_AirBar::theClockGoesOn()
{
    TestClock clock(QDateTime(QDate(2026, 3, 11), QTime(12, 5)));
    Window fixture;
    auto* time = fixture.window.findChild<QLabel*>(QStringLiteral("airTime"));
    QCOMPARE(time->text(), QStringLiteral("12:05:00"));
    clock.advance(61000);
    QTRY_COMPARE(time->text(), QStringLiteral("12:06:01"));
    QCOMPARE(time->accessibleName(), QStringLiteral("Time of day: 12:06:01"));
}

void tst_AirBar::searchLeadsToTheCatalogue()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    fixture.window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &fixture.window);
    auto* panel = fixture.window.findChild<QDockWidget*>(QStringLiteral("catalogueDock"));
    panel->hide();
    fixture.window.findChild<EditorMenus*>()->searchPrograms()->trigger();
    QVERIFY(panel->isVisible());
    QVERIFY(fixture.window.findChild<QLineEdit*>(QStringLiteral("programSearch"))->hasFocus());
}

void tst_AirBar::speaksTheLanguageInUse()
{
    Window fixture;
    fixture.languages.select(QStringLiteral("de_DE"));
    QCoreApplication::processEvents();
    for (const char* text : {"Bearbeiten", "Importieren", "Starten", "Stoppen", "Suchen"}) {
        fixture.button(text);
    }
    QCOMPARE(fixture.light.accessibleName(), QStringLiteral("Nicht auf Sendung"));
}

/// Of the menus, which some languages have in brackets.
void tst_AirBar::tipsShowNoLetters()
{
    Window fixture;
    const QRegularExpression letter(QStringLiteral("\\([A-Z]\\)|&"));
    const QList<QToolButton*> buttons = fixture.bar.findChildren<QToolButton*>();
    for (const QString& language : fixture.languages.names()) {
        fixture.languages.select(language);
        QCoreApplication::processEvents();
        for (const QToolButton* button : buttons) {
            QVERIFY2(!button->toolTip().contains(letter),
                     qPrintable(language + QStringLiteral(": ") + button->toolTip()));
        }
    }
    fixture.languages.select(QStringLiteral("zh_CN"));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.button("编辑").toolTip(), QStringLiteral("编辑排期"));
    fixture.languages.select(QStringLiteral("en_US"));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.button("Edit").toolTip(), QStringLiteral("Edit schedule"));
}

void tst_AirBar::canBeRead()
{
    QFETCH(QString, theme);
    Window fixture;
    fixture.themes.select(theme);
    fixture.manager.addTask(taskOf(1));
    fixture.manager.save();
    QCoreApplication::processEvents();
    QString faults;
    for (const char* text : {"Edit", "Import", "Start", "Search"}) {
        faults += faultsOf(&fixture.button(text));
    }
    for (const bool isOn : {false, true}) {
        fixture.light.setOn(isOn);
        faults += faultOf(pictureOf(&fixture.light), fixture.light.rect().adjusted(24, 0, 0, 0),
                          QStringLiteral("light"));
    }
    auto* time = fixture.window.findChild<QLabel*>(QStringLiteral("airTime"));
    faults += faultOf(pictureOf(time), time->rect(), QStringLiteral("time"));
    auto* saved = fixture.window.findChild<ElidedText*>(QStringLiteral("airSaved"));
    faults += faultOf(pictureOf(saved), saved->rect(), QStringLiteral("saved"));
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

TREL_TEST(tst_AirBar, QApplication)
#include "tst_AirBar.moc"
