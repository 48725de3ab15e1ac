#include "ChangesAnswer.h"
#include "EditorMenus.h"
#include "EditorRun.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/draft/DraftJournal.h"
#include "versions/VersionsWindow.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QListView>
#include <QProcess>
#include <QSemaphore>
#include <QTabWidget>

#include <cstdio>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

constexpr char kDatabase[] = "TREL_DRAFT_RUN";

/// Edits as an operator does in the first card.
void edit(const EditorRun& run)
{
    run.card(0).toggleFold();
    run.card(0).type(run.card(0).endTime(3), "17:00:00");
    run.card(0).choose(run.card(0).endAction(3), 1);
    run.card(0).copy(0);
    QCoreApplication::processEvents();
}

} // namespace

/// An hour of work goes through a kill and comes back: edit, kill, start, take the draft, undo
/// through it, save, compare with what was before, restore.
class tst_DraftRun : public QObject
{
    Q_OBJECT

private slots:
    /// Runs in the program that is killed, and does nothing in this one.
    void editsUntilItIsKilled();
    void fromTheKillToTheFormerState_data();
    void fromTheKillToTheFormerState();

private:
    static void editAndKill(const QString& database);
    static void takeTheDraft(EditorRun& run, const QString& theme);
    static void undoThrough(EditorRun& run, const QString& theme);
    static void compareAndRestore(EditorRun& run, const QString& theme);

    NoPlatformNotes m_quiet;
};

void tst_DraftRun::editsUntilItIsKilled()
{
    const QString database = qEnvironmentVariable(kDatabase);
    if (database.isEmpty()) {
        return;
    }
    EditorRun run(QStringLiteral("killed"), QStringLiteral("en_US"));
    run.window.openDatabase(database);
    run.showEditor();
    QSignalSpy written(run.window.findChild<DraftJournal*>(), &DraftJournal::written);
    edit(run);
    QVERIFY(written.count() > 0 || written.wait());
    QVERIFY(run.window.findChild<DraftJournal*>()->flush());
    std::puts("edited");
    std::fflush(stdout);
    // Without events: what was written last is told only now, and must not end the wait.
    QVERIFY2(QSemaphore().tryAcquire(1, 60000), "nobody has killed it");
}

void tst_DraftRun::editAndKill(const QString& database)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(kDatabase), database);
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("DraftRun"), QStringLiteral("editsUntilItIsKilled")});
    QByteArray told;
    const auto hasEdited = [&] {
        told += program.readAllStandardOutput();
        return told.contains("\nedited\n");
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasEdited(), 60000);
    program.kill();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::CrashExit);
}

void tst_DraftRun::takeTheDraft(EditorRun& run, const QString& theme)
{
    ChangesAnswer take(1);
    take.onEach = [&](QDialog& dialog) {
        dialog.findChild<QPushButton*>(QStringLiteral("changesLook"))->click();
        dialog.resize(1180, 700);
        QCoreApplication::processEvents();
        run.picture(dialog, theme + QStringLiteral("-1-offer"));
    };
    run.window.offerDrafts();
    const QStringList lines = take.lists().first().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].startsWith(QStringLiteral("Task 1, plan 6: added in row 6: ")),
             qPrintable(lines[0]));
    QCOMPARE(lines[1], QStringLiteral("Task 1, plan 4: end 18:00:00 → 17:00:00"));
    QCOMPARE(lines[2],
             QStringLiteral("Task 1, plan 4: at the end “Black screen” → “Freeze frame”"));
}

void tst_DraftRun::undoThrough(EditorRun& run, const QString& theme)
{
    run.window.findChild<QDockWidget*>(QStringLiteral("historyDock"))->show();
    auto* const menus = run.window.findChild<EditorMenus*>();
    const QStringList taken = run.lines();
    QTRY_VERIFY(menus->undo()->isEnabled());
    menus->undo()->trigger();
    QVERIFY(!run.host.hasUnsavedChanges());
    QCoreApplication::processEvents();
    run.picture(run.window, theme + QStringLiteral("-2-undone"));
    menus->redo()->trigger();
    QCOMPARE(run.lines(), taken);
    run.picture(theme + QStringLiteral("-3-taken"));
    run.press("pushButtonSave");
    QVERIFY(!run.host.hasUnsavedChanges());
}

void tst_DraftRun::compareAndRestore(EditorRun& run, const QString& theme)
{
    run.window.findChild<EditorMenus*>()->versions()->trigger();
    auto& list = *run.window.findChild<versions::VersionsWindow*>();
    list.resize(1180, 700);
    const auto* differences = list.findChild<QTableView*>(QStringLiteral("differenceTable"));
    QTRY_COMPARE(differences->model()->rowCount(), 3);
    run.picture(list, theme + QStringLiteral("-4-differences"));
    list.findChild<QTabWidget*>(QStringLiteral("versionTabs"))->setCurrentIndex(1);
    const auto* summary = list.findChild<QLabel*>(QStringLiteral("stretchSummary"));
    QTRY_VERIFY(summary->text().contains(QStringLiteral("differ on the screen")));
    run.picture(list, theme + QStringLiteral("-5-weeks"));
    const PromptAnswer restore(1);
    QTest::mouseClick(list.findChild<QPushButton*>(QStringLiteral("versionRestoreButton")),
                      Qt::LeftButton);
    QCOMPARE(restore.count(), 1);
}

void tst_DraftRun::fromTheKillToTheFormerState_data()
{
    QTest::addColumn<QString>("theme");
    const QStringList themes = Themes::names();
    for (const QString& theme : themes) {
        QTest::newRow(qPrintable(theme)) << theme;
    }
}

void tst_DraftRun::fromTheKillToTheFormerState()
{
    QFETCH(const QString, theme);
    EditorRun run(QStringLiteral("draft"), QStringLiteral("en_US"));
    run.themes.select(theme);
    run.window.show();
    const QStringList former = run.lines();
    run.editor->hide();
    run.host.close();

    editAndKill(run.database);
    QCOMPARE(run.window.openDatabase(run.database), QString());
    run.showEditor();
    QCOMPARE(run.lines(), former);
    takeTheDraft(run, theme);
    QVERIFY(run.lines() != former);
    undoThrough(run, theme);
    compareAndRestore(run, theme);
    QTRY_VERIFY(!run.host.hasUnsavedChanges());
    run.showEditor();
    QCOMPARE(run.lines(), former);
}

TREL_TEST(tst_DraftRun, QApplication)
#include "tst_DraftRun.moc"
