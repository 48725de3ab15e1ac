#include "ChangesAnswer.h"
#include "DateWords.h"
#include "EditorMenus.h"
#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "LayoutCount.h"
#include "draft/DraftWords.h"
#include "support/PromptAnswer.h"
#include "support/SampleSchedule.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/draft/DraftJournal.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "week/WeekView.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QtTest>

#include <algorithm>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// A host on a saved schedule of three tasks, whose first second is over.
struct DraftsFixture : HostFixture
{
    DraftsFixture()
        : clock(QDateTime(QDate(2026, 3, 4), QTime(10, 0)))
    {
        clock.setElapsed(5000);
        window.openDatabase(database);
        host.addPrograms(samplePrograms(2));
        QVERIFY(host.replaceSchedule(sampleSchedule(3, 2, 2)));
        window.show();
    }

    DraftJournal& journal() const { return *window.findChild<DraftJournal*>(); }

    /// What an operator does in the cards: changes task 1, takes out 2, puts in 9.
    void edit() const
    {
        PlayTask task = manager.getTask(1);
        task.startDate = "2026.01.01";
        manager.addTask(task);
        manager.deleteTask(2);
        task = manager.getTask(3);
        task.id = 9;
        manager.addTask(task);
    }
    /// Opens the editor and edits.
    void editInCards()
    {
        window.showEditor();
        QVERIFY(editor->isVisible());
        edit();
        QCoreApplication::processEvents();
    }
    /// As if the program were killed and started again.
    void killAndStart()
    {
        QVERIFY(journal().flush());
        journal().end();
        editor->hide();
        window.openDatabase(database);
        QCoreApplication::processEvents();
    }

    QStringList files() const
    {
        return QDir(folder.path()).entryList({QStringLiteral("*.unsaved-*")}, QDir::Files);
    }
    QString file() const { return folder.filePath(files().value(0)); }
    /// The numbers of the tasks in the cards, and in the working set.
    QString shown() const
    {
        QStringList ids;
        for (const auto& [id, task] : manager.getAllTask()) {
            ids.append(QString::number(id));
        }
        const auto cards = editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget"));
        return QStringLiteral("%1 cards of %2").arg(cards.size()).arg(ids.join(QLatin1Char(' ')));
    }
    QAction* bringBack() const { return window.findChild<EditorMenus*>()->bringBack(); }

    TestClock clock;
};

/// Cards mark collisions as they are shown.
std::map<int, PlayTask> withoutCollisions(std::map<int, PlayTask> tasks)
{
    for (auto& [id, task] : tasks) {
        for (PlayPlan& plan : task.plans) {
            plan.isConflict = false;
        }
    }
    return tasks;
}

void overwrite(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// What is edited and not saved outlives the program, and is offered.
class tst_Drafts : public QObject
{
    Q_OBJECT

private slots:
    void nothingLeftAsksNothing();
    void theOfferTellsWhatItIs();
    void theOfferTellsHowOldItIs_data();
    void theOfferTellsHowOldItIs();
    void theOfferShowsBothWeeks();
    void takenOverItIsInTheEditor();
    void takenOverIntoAnOpenEditor();
    void manyTasksAreLaidOutOnce();
    void putIntoAFile();
    void dropped();
    void leftForLater();
    void damageIsTold();
    void whatCannotBeReadCanBeDeleted();
    void anotherDatabaseIsTold();
    void whatWasCanceledComesBack();
    void whatWasCanceledIsNotAskedAbout();
    void theTitleTellsThatSomethingIsNotSaved();
    void closingLeavesWhatTheAnswerSays_data();
    void closingLeavesWhatTheAnswerSays();
    void aRefusedEndGoesOnRecording();
    void aFailureIsToldOnce();
    void withoutARestNothingIsShown();
};

void tst_Drafts::nothingLeftAsksNothing()
{
    DraftsFixture fixture;
    fixture.editInCards();
    QVERIFY(fixture.host.trySave());
    fixture.killAndStart();
    const PromptAnswer nothing;
    fixture.window.offerDrafts();
    QCOMPARE(fixture.files(), QStringList());
}

void tst_Drafts::theOfferTellsWhatItIs()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    // The journal writes down when it was, by the clock of the system.
    fixture.clock.set(QDateTime::currentDateTime());
    const ChangesAnswer later(0);
    const QString today = dateText(QDate::currentDate()).remove(QChar(0x2069));
    fixture.window.offerDrafts();
    QCOMPARE(later.count(), 1);
    const QString text = later.texts().first();
    QVERIFY2(text.startsWith(QStringLiteral("There are changes that were not saved. The last one "
                                            "was made less than a minute ago, on ") +
                             today),
             qPrintable(text));
    QVERIFY2(text.endsWith(QStringLiteral("\nNew tasks: 9\nChanged tasks: 1\nDeleted tasks: 2")),
             qPrintable(text));
    QCOMPARE(later.buttons().first(),
             QStringLiteral("Take over|Put into a file|Drop|Decide later"));
    const QStringList lines = later.lists().first().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.first().contains(QStringLiteral("2026.01.01")), qPrintable(lines.first()));
}

void tst_Drafts::theOfferTellsHowOldItIs_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("told");
    QTest::newRow("a moment") << 0 << QStringLiteral("made less than a minute ago, on ");
    QTest::newRow("a minute") << 1 << QStringLiteral("made 1 minute ago, on ");
    QTest::newRow("minutes") << 59 << QStringLiteral("made 59 minutes ago, on ");
    QTest::newRow("an hour") << 60 << QStringLiteral("made 1 hour ago, on ");
    QTest::newRow("hours") << 48 * 60 - 1 << QStringLiteral("made 47 hours ago, on ");
    QTest::newRow("days") << 48 * 60 << QStringLiteral("made 2 days ago, on ");
    QTest::newRow("a clock that was set back") << -1 << QStringLiteral("made on ");
}

void tst_Drafts::theOfferTellsHowOldItIs()
{
    QFETCH(const int, minutes);
    QFETCH(const QString, told);
    const DraftsFixture fixture;
    LeftDraft left;
    left.draft.edited = 1700000000000;
    const QString text = DraftWords::offer(left, {}, left.draft.edited + minutes * 60000LL);
    QVERIFY2(text.contains(told), qPrintable(text));
}

void tst_Drafts::theOfferShowsBothWeeks()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    ChangesAnswer later(0);
    later.onEach = [](QDialog& dialog) {
        QCOMPARE(dialog.findChildren<week::WeekView*>().size(), 0);
        auto* const look = dialog.findChild<QPushButton*>(QStringLiteral("changesLook"));
        QTest::mouseClick(look, Qt::LeftButton);
        const auto views = dialog.findChildren<week::WeekView*>();
        QCOMPARE(views.size(), 2);
        for (const auto* view : views) {
            QVERIFY(view->isVisible());
            const auto hasBlocks = [view] {
                const auto& days = view->layoutOfWeek().days;
                return std::any_of(days.begin(), days.end(),
                                   [](const auto& day) { return !day.blocks.empty(); });
            };
            QTRY_VERIFY(hasBlocks());
        }
        const QDate first = views.at(0)->firstDay();
        QCOMPARE(views.at(1)->firstDay(), first);
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("pairNext")),
                          Qt::LeftButton);
        views.at(1)->stepWeeks(1);
        QCOMPARE(views.at(0)->firstDay(), first.addDays(14));
        QCOMPARE(views.at(1)->firstDay(), first.addDays(14));
        QTest::mouseClick(look, Qt::LeftButton);
        QVERIFY(!views.at(0)->isVisible());
    };
    fixture.window.offerDrafts();
    QCOMPARE(later.count(), 1);
}

void tst_Drafts::takenOverItIsInTheEditor()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    QVERIFY(!fixture.editor->isVisible());
    const QString former = fixture.file();
    const ChangesAnswer take(1);
    fixture.window.offerDrafts();
    QVERIFY(fixture.editor->isVisible());
    QCOMPARE(fixture.shown(), QStringLiteral("3 cards of 1 3 9"));
    QCOMPARE(fixture.manager.getTask(1).startDate, std::string("2026.01.01"));
    QVERIFY(fixture.host.hasUnsavedChanges());
    // It is the draft of this program now.
    QVERIFY(!QFile::exists(former));
    QCOMPARE(fixture.files().size(), 1);
    QVERIFY(fixture.host.trySave());
    QVERIFY(fixture.journal().flush());
    QCOMPARE(fixture.files(), QStringList());
}

void tst_Drafts::takenOverIntoAnOpenEditor()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    fixture.window.showEditor();
    QCOMPARE(fixture.shown(), QStringLiteral("3 cards of 1 2 3"));
    const ChangesAnswer take(1);
    fixture.window.offerDrafts();
    QCOMPARE(fixture.shown(), QStringLiteral("3 cards of 1 3 9"));
    QCOMPARE(fixture.manager.getTask(1).startDate, std::string("2026.01.01"));
}

void tst_Drafts::manyTasksAreLaidOutOnce()
{
    constexpr int kTasks = 40;
    DraftsFixture fixture;
    QVERIFY(fixture.host.replaceSchedule(sampleSchedule(kTasks, 1, 1)));
    fixture.window.showEditor();
    for (auto& [id, task] : fixture.manager.getAllTask()) {
        task.startDate = "2026.01.01";
        fixture.manager.addTask(task);
    }
    fixture.killAndStart();
    fixture.clock.setElapsed(10000);
    fixture.window.showEditor();
    QVERIFY(fixture.editor->isVisible());
    const LayoutCount layouts(*fixture.editor);
    const ChangesAnswer take(1);
    fixture.window.offerDrafts();
    QVERIFY2(layouts.count() < kTasks / 4, qPrintable(QString::number(layouts.count())));
    const auto cards = fixture.editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget"));
    QCOMPARE(cards.size(), kTasks);
    for (const QWidget* card : cards) {
        QVERIFY(card->isVisible());
    }
}

void tst_Drafts::putIntoAFile()
{
    DraftsFixture fixture;
    fixture.editInCards();
    const auto edited = fixture.manager.getAllTask();
    fixture.killAndStart();
    const QString target = fixture.folder.filePath(QStringLiteral("kept.json"));
    const ChangesAnswer put(2);
    answerFileDialog(target);
    fixture.window.offerDrafts();
    const ScheduleFromJson kept = scheduleFromJson(contentOf(target));
    QVERIFY(!kept.fault);
    QVERIFY(withoutCollisions(kept.tasks) == withoutCollisions(edited));
    QCOMPARE(fixture.files(), QStringList());
    QVERIFY(!fixture.host.hasUnsavedChanges());
}

void tst_Drafts::dropped()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    const ChangesAnswer drop(3);
    fixture.window.offerDrafts();
    QCOMPARE(fixture.files(), QStringList());
    QVERIFY(!fixture.host.hasUnsavedChanges());
}

void tst_Drafts::leftForLater()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    for (int start = 0; start < 2; ++start) {
        const ChangesAnswer later(0);
        const QByteArray content = contentOf(fixture.file());
        fixture.window.offerDrafts();
        QCOMPARE(later.count(), 1);
        QCOMPARE(contentOf(fixture.file()), content);
        QVERIFY(!fixture.host.hasUnsavedChanges());
    }
}

void tst_Drafts::damageIsTold()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    QByteArray content = contentOf(fixture.file());
    overwrite(fixture.file(), content.left(content.size() - 3));
    {
        const ChangesAnswer later(0);
        fixture.window.offerDrafts();
        QVERIFY(
            later.texts().first().contains(QStringLiteral("The very last change may be missing.")));
    }
    content[content.size() / 2] = static_cast<char>(content[content.size() / 2] ^ 1);
    overwrite(fixture.file(), content);
    const ChangesAnswer take(1);
    fixture.window.offerDrafts();
    QVERIFY(take.texts().first().contains(
        QStringLiteral("A part of them is damaged and cannot be read.")));
    QVERIFY(fixture.host.hasUnsavedChanges());
}

void tst_Drafts::whatCannotBeReadCanBeDeleted()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    overwrite(fixture.file(), "a letter");
    {
        const PromptAnswer later(1);
        fixture.window.offerDrafts();
        QVERIFY(later.texts().first().contains(QStringLiteral("nothing in it can be read")));
        QCOMPARE(later.buttons().first(), QStringLiteral("Decide later|Delete the file"));
    }
    QCOMPARE(contentOf(fixture.file()), QByteArray("a letter"));
    const PromptAnswer remove(2);
    fixture.window.offerDrafts();
    QCOMPARE(fixture.files(), QStringList());
}

void tst_Drafts::anotherDatabaseIsTold()
{
    DraftsFixture fixture;
    fixture.editInCards();
    QVERIFY(fixture.journal().flush());
    fixture.journal().end();
    fixture.editor->hide();
    fixture.host.close();
    QVERIFY(QFile::rename(fixture.database, fixture.database + QStringLiteral(".aside")));
    fixture.window.openDatabase(fixture.database);
    const ChangesAnswer later(0);
    fixture.window.offerDrafts();
    QVERIFY(later.texts().first().contains(QStringLiteral("They were made in another database")));
}

void tst_Drafts::whatWasCanceledComesBack()
{
    DraftsFixture fixture;
    QVERIFY(!fixture.bringBack()->isEnabled());
    fixture.editInCards();
    QVERIFY(!fixture.bringBack()->isEnabled());
    fixture.editor->slotCancel();
    QVERIFY(fixture.bringBack()->isEnabled());
    // Also when the editor was shown meanwhile, which drops the edits.
    fixture.window.showEditor();
    QCOMPARE(fixture.shown(), QStringLiteral("3 cards of 1 2 3"));
    fixture.editor->slotCancel();
    QVERIFY(fixture.bringBack()->isEnabled());
    fixture.bringBack()->trigger();
    QVERIFY(fixture.editor->isVisible());
    QCOMPARE(fixture.shown(), QStringLiteral("3 cards of 1 3 9"));
    QVERIFY(!fixture.bringBack()->isEnabled());
    QVERIFY(fixture.host.hasUnsavedChanges());
    // And straight after the cancel.
    fixture.editor->slotCancel();
    fixture.bringBack()->trigger();
    QCOMPARE(fixture.shown(), QStringLiteral("3 cards of 1 3 9"));
    fixture.editor->slotCancel();
    fixture.window.showEditor();
    PlayTask task = fixture.manager.getTask(3);
    task.startDate = "2026.02.02";
    fixture.manager.addTask(task);
    fixture.editor->slotSave();
    QVERIFY(!fixture.bringBack()->isEnabled());
    QVERIFY(fixture.journal().flush());
    QCOMPARE(fixture.files(), QStringList());
}

void tst_Drafts::whatWasCanceledIsNotAskedAbout()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.editor->slotCancel();
    {
        const PromptAnswer nothing;
        fixture.window.close();
        fixture.killAndStart();
        fixture.window.show();
        fixture.window.offerDrafts();
    }
    QCOMPARE(fixture.files().size(), 1);
    QVERIFY(fixture.bringBack()->isEnabled());
    fixture.bringBack()->trigger();
    QCOMPARE(fixture.shown(), QStringLiteral("3 cards of 1 3 9"));
}

void tst_Drafts::theTitleTellsThatSomethingIsNotSaved()
{
    DraftsFixture fixture;
    const auto titles = [&fixture] {
        QCoreApplication::processEvents();
        return fixture.window.windowTitle() + QLatin1Char('/') +
               fixture.editor->windowTitle().section(QStringLiteral(" – "), -1);
    };
    const QString saved = QStringLiteral("screen.db – Schedule editor/screen.db");
    const QString unsaved = QStringLiteral("screen.db* – Schedule editor/screen.db*");
    QCOMPARE(titles(), saved);
    fixture.editInCards();
    QCOMPARE(titles(), unsaved);
    QVERIFY(fixture.host.trySave());
    QCOMPARE(titles(), saved);
    fixture.manager.deleteTask(9);
    QCOMPARE(titles(), unsaved);
    fixture.editor->slotCancel();
    QCOMPARE(titles(), saved);
}

void tst_Drafts::closingLeavesWhatTheAnswerSays_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isLeft");
    QTest::newRow("save") << 1 << false;
    QTest::newRow("keep as draft") << 2 << true;
    QTest::newRow("discard") << 3 << false;
}

void tst_Drafts::closingLeavesWhatTheAnswerSays()
{
    QFETCH(int, button);
    QFETCH(bool, isLeft);
    DraftsFixture fixture;
    fixture.editInCards();
    {
        const PromptAnswer answer(button);
        fixture.window.close();
        QVERIFY(fixture.window.isHidden());
        QCOMPARE(answer.buttons().first(), QStringLiteral("Save|Keep as draft|Discard"));
    }
    QTRY_COMPARE(fixture.files().size(), isLeft ? 1 : 0);
    fixture.killAndStart();
    if (isLeft) {
        const ChangesAnswer take(1);
        fixture.window.offerDrafts();
    } else {
        const PromptAnswer nothing;
        fixture.window.offerDrafts();
    }
    QCOMPARE(fixture.editor->isVisible(), isLeft);
}

void tst_Drafts::aRefusedEndGoesOnRecording()
{
    struct Refusal : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() != QEvent::Close) {
                return false;
            }
            event->ignore();
            return true;
        }
    };
    DraftsFixture fixture;
    fixture.editInCards();
    {
        Refusal refusal;
        fixture.editor->installEventFilter(&refusal);
        const PromptAnswer discard(3);
        QVERIFY(!fixture.window.close());
    }
    QVERIFY(fixture.editor->isVisible());
    fixture.manager.deleteTask(3);
    fixture.killAndStart();
    const ChangesAnswer take(1);
    fixture.window.offerDrafts();
    QCOMPARE(fixture.shown(), QStringLiteral("2 cards of 1 9"));
}

void tst_Drafts::aFailureIsToldOnce()
{
    DraftsFixture fixture;
    const QString aside = fixture.folder.path() + QStringLiteral("-aside");
    fixture.window.showEditor();
    QVERIFY(QDir().rename(fixture.folder.path(), aside));
    const PromptAnswer told(1);
    fixture.edit();
    QTRY_COMPARE(told.count(), 1);
    QVERIFY2(told.texts().first().startsWith(
                 QStringLiteral("Changes that are not saved cannot be kept beside the database")),
             qPrintable(told.texts().first()));
    fixture.manager.deleteTask(3);
    QVERIFY(!fixture.journal().flush());
    QCoreApplication::processEvents();
    QVERIFY(QDir().rename(aside, fixture.folder.path()));
    QVERIFY(fixture.journal().flush());
    QCOMPARE(fixture.files().size(), 1);
}

// In the first second of its life the editor stays away; the draft waits then.
void tst_Drafts::withoutARestNothingIsShown()
{
    DraftsFixture fixture;
    fixture.editInCards();
    fixture.killAndStart();
    fixture.clock.setElapsed(10);
    const ChangesAnswer take(1);
    fixture.window.offerDrafts();
    QVERIFY(!fixture.editor->isVisible());
    QVERIFY(!fixture.host.hasUnsavedChanges());
    QCOMPARE(fixture.files().size(), 1);
}

TREL_TEST(tst_Drafts, QApplication)
#include "tst_Drafts.moc"
