#include "ChangesAnswer.h"
#include "EditorMenus.h"
#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "KeptEdits.h"
#include "SaveRescue.h"
#include "common/StopSignals.h"
#include "draft/DraftKeeper.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTimer>

#include <csignal>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// Another program that holds the file for writing.
class OtherProgram
{
public:
    explicit OtherProgram(const QString& file)
    {
        auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name());
        database.setDatabaseName(file);
        if (!database.open()) {
            qFatal("the other program cannot open the file");
        }
        QSqlQuery(database).exec(QStringLiteral("BEGIN IMMEDIATE"));
    }

    ~OtherProgram() { letGo(); }
    Q_DISABLE_COPY(OtherProgram)

    void letGo()
    {
        if (QSqlDatabase::contains(name())) {
            QSqlQuery(QSqlDatabase::database(name())).exec(QStringLiteral("ROLLBACK"));
            QSqlDatabase::database(name()).close();
            QSqlDatabase::removeDatabase(name());
        }
    }

private:
    static QString name() { return QStringLiteral("other program"); }
};

/// A file that refuses every write while this lives.
class ReadOnlyFile
{
public:
    explicit ReadOnlyFile(const QString& file)
        : m_file(file)
        , m_former(QFile::permissions(file))
    {
        QFile::setPermissions(m_file, QFile::ReadOwner);
    }
    ~ReadOnlyFile() { QFile::setPermissions(m_file, m_former); }
    Q_DISABLE_COPY(ReadOnlyFile)

private:
    const QString m_file;
    const QFile::Permissions m_former;
};

/// Ends a test that is asked again and again.
class PromptCount : public QObject
{
public:
    PromptCount() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        constexpr int most = 5;
        if (event->type() == QEvent::Show && watched->inherits("trel::widgets::TipDialog") &&
            ++m_count > most) {
            qFatal("asked for ever");
        }
        return false;
    }

private:
    int m_count = 0;
};

} // namespace

/// What the operator is asked when a save fails.
class tst_SaveRescue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void aSaveThatSucceedsAsksNothing();
    void tryingAgainSavesWhenTheLockHasGone();
    void theScheduleGoesIntoAFile();
    void aFileThatWasNotChosenAsksAgain();
    void goingOnClosesNothing_data();
    void goingOnClosesNothing();
    void anotherDesksSaveIsTold();
    void mineIsSavedOverTheirs();
    void nobodySavesOverWhatNobodyWasToldOf();
    void theirsIsTaken();
    void mineComesBackBesideTheirs();
    void mineGoesIntoAFile();
    void quittingKeepsTheEdits_data();
    void quittingKeepsTheEdits();
    void editsAreKeptWhereTheyCanBe();

private:
    struct Edited : HostFixture
    {
        Edited()
        {
            window.openDatabase(database, QStringLiteral(DEMONSTRATION));
            manager.updateUItask();
            put();
        }
        /// The same in an editor that is shown.
        void edit()
        {
            showEditor();
            put();
        }
        void put() const
        {
            PlayTask task;
            task.id = 7;
            task.startDate = task.endDate = "2030.01.01";
            manager.addTask(task);
        }
        /// Another program takes out the last task of the stored set.
        void saveElsewhere() const
        {
            std::map<int, PlayTask> theirs = window.drafts().saved();
            theirs.erase(std::prev(theirs.end()));
            saveElsewhere(theirs);
        }
        void saveElsewhere(const std::map<int, PlayTask>& theirs) const
        {
            const QString file = folder.filePath(QStringLiteral("theirs.json"));
            QVERIFY(!writeScheduleFile(file, theirs));
            control({QStringLiteral("import-schedule"), file});
        }
        /// Another program brings back what was saved first.
        void restoreElsewhere() const { control({QStringLiteral("restore"), QStringLiteral("1")}); }
        void control(QStringList arguments) const
        {
            QProcess other;
            other.start(QStringLiteral(SCHEDULECTL),
                        arguments << QStringLiteral("--database") << database);
            QVERIFY(other.waitForFinished());
            QCOMPARE(other.exitCode(), 0);
        }
        static QString ids(const std::map<int, PlayTask>& tasks)
        {
            QStringList ids;
            for (const auto& [id, task] : tasks) {
                ids.append(QString::number(id));
            }
            return ids.join(QLatin1Char(' '));
        }
        /// What the store has, as any other program reads it.
        QString stored() const
        {
            std::vector<ScheduleVersion> versions;
            std::map<int, PlayTask> tasks;
            return host.versions(versions) && host.versionTasks(versions.front().number, tasks)
                       ? ids(tasks)
                       : QString();
        }
    };
};

void tst_SaveRescue::aSaveThatSucceedsAsksNothing()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    const PromptAnswer nothing;

    fixture.manager.save();

    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(4));
}

void tst_SaveRescue::tryingAgainSavesWhenTheLockHasGone()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    OtherProgram other(fixture.database);
    // The lock goes between the second refusal and the third try.
    int refusals = 0;
    connect(
        &fixture.host, &ScheduleHost::saveFailed, &fixture.window, [&refusals] { ++refusals; },
        Qt::DirectConnection);
    PromptAnswer answer(1);
    QTimer::singleShot(0, &fixture.window, [&other] { other.letGo(); });

    fixture.manager.save();

    QCOMPARE(refusals, 1);
    QCOMPARE(answer.count(), 1);
    QVERIFY(answer.texts().at(0).contains(fixture.database));
    QCOMPARE(answer.buttons().at(0), QStringLiteral("Try again|Write to a file|Go on editing"));
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(4));
}

void tst_SaveRescue::theScheduleGoesIntoAFile()
{
    Edited fixture;
    SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    const OtherProgram other(fixture.database);
    const QString file = fixture.folder.filePath(QStringLiteral("rescued.json"));
    QSignalSpy written(&rescue, &SaveRescue::written);
    QVERIFY(written.isValid());
    PromptAnswer answer(2);
    answerFileDialog(file);

    fixture.manager.save();

    QCOMPARE(written.count(), 1);
    QFile json(file);
    QVERIFY(json.open(QIODevice::ReadOnly));
    const ScheduleFromJson rescued = scheduleFromJson(json.readAll());
    QCOMPARE(englishText(rescued), QString());
    QVERIFY(rescued.tasks == fixture.manager.getAllTask());
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(3));
}

void tst_SaveRescue::aFileThatWasNotChosenAsksAgain()
{
    Edited fixture;
    SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    const OtherProgram other(fixture.database);
    QSignalSpy goesOn(&rescue, &SaveRescue::goesOn);
    QVERIFY(goesOn.isValid());
    PromptAnswer answer({2, 3});
    answerFileDialog(QString());

    fixture.manager.save();

    QCOMPARE(answer.count(), 2);
    QCOMPARE(goesOn.count(), 1);
}

void tst_SaveRescue::goingOnClosesNothing_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("the button") << 3;
    QTest::newRow("Escape") << int(PromptAnswer::Escape);
    QTest::newRow("the title bar") << int(PromptAnswer::Close);
}

void tst_SaveRescue::goingOnClosesNothing()
{
    QFETCH(const int, answer);
    Edited fixture;
    SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    fixture.window.show();
    fixture.edit();
    QSignalSpy goesOn(&rescue, &SaveRescue::goesOn);
    QVERIFY(goesOn.isValid());
    {
        const ReadOnlyFile refused(fixture.database);
        const PromptAnswer answers(answer);
        fixture.editor->slotSave();
        QCOMPARE(goesOn.count(), 1);
    }
    QVERIFY(fixture.editor->isVisible());
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(3));
    QCOMPARE(fixture.manager.getAllTask().size(), std::size_t(4));
    QCoreApplication::processEvents();
    {
        // Nor does the program end that was to be closed.
        const ReadOnlyFile refused(fixture.database);
        const PromptAnswer answers({1, answer});
        QVERIFY(!fixture.window.close());
        QVERIFY(fixture.window.isVisible());
    }
    {
        // Nor does another database take its place.
        QFile other(fixture.folder.filePath(QStringLiteral("other.db")));
        QVERIFY(other.open(QIODevice::WriteOnly));
        const ReadOnlyFile refused(fixture.database);
        answerFileDialog(other.fileName());
        const PromptAnswer answers({1, answer});
        fixture.window.findChild<EditorMenus*>()->openDatabase()->trigger();
        QCOMPARE(fixture.host.path(), fixture.database);
    }
    QVERIFY(fixture.editor->isVisible());
    QCOMPARE(fixture.manager.getAllTask().size(), std::size_t(4));
    // From then on everything closes again.
    QCoreApplication::processEvents();
    fixture.editor->slotSave();
    QVERIFY(!fixture.editor->isVisible());
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(4));
}

void tst_SaveRescue::anotherDesksSaveIsTold()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    fixture.edit();
    const QString told = deletedLine(fixture.window.drafts().saved().at(3));
    fixture.saveElsewhere();
    const ChangesAnswer answer{1, 0};

    fixture.editor->slotSave();

    QCOMPARE(answer.count(), 1);
    QVERIFY2(answer.texts().first().startsWith(
                 QStringLiteral("While you were editing, screen.db was saved by schedulectl@")),
             qPrintable(answer.texts().first()));
    QCOMPARE(answer.lists().first(), told);
    QCOMPARE(answer.buttons().first(),
             QStringLiteral("Go on editing|Merge and save|Keep mine|Take theirs|Write mine to a "
                            "file"));
    QVERIFY(fixture.editor->isVisible());
    QCOMPARE(fixture.ids(fixture.manager.getAllTask()), QStringLiteral("1 2 3 7"));
    QCoreApplication::processEvents();
    // What was told is asked about again, as long as it stands.
    fixture.editor->slotSave();
    QCOMPARE(answer.count(), 2);
    QCOMPARE(fixture.stored(), QStringLiteral("1 2"));
}

void tst_SaveRescue::mineIsSavedOverTheirs()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    fixture.edit();
    fixture.saveElsewhere();
    const ChangesAnswer keep(3);

    fixture.editor->slotSave();

    QVERIFY(!fixture.editor->isVisible());
    QCOMPARE(fixture.stored(), QStringLiteral("1 2 3 7"));
    // Theirs can be brought back.
    std::vector<ScheduleVersion> versions;
    QVERIFY(fixture.host.versions(versions));
    std::map<int, PlayTask> theirs;
    QVERIFY(fixture.host.versionTasks(versions.at(1).number, theirs));
    QCOMPARE(fixture.ids(theirs), QStringLiteral("1 2"));
}

// While the question stands, a third desk saves.
void tst_SaveRescue::nobodySavesOverWhatNobodyWasToldOf()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    fixture.edit();
    fixture.saveElsewhere();
    ChangesAnswer keep({3, 3});
    keep.onEach = [&fixture, &keep](QDialog&) {
        if (keep.count() == 1) {
            fixture.restoreElsewhere();
        }
    };

    fixture.editor->slotSave();

    QCOMPARE(keep.count(), 2);
    QCOMPARE(fixture.stored(), QStringLiteral("1 2 3 7"));
}

void tst_SaveRescue::theirsIsTaken()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    fixture.window.show();
    fixture.edit();
    fixture.saveElsewhere();
    {
        const ChangesAnswer take(4);
        fixture.editor->slotStart();
    }
    QVERIFY(fixture.editor->isVisible());
    QTRY_COMPARE(fixture.ids(fixture.manager.getAllTask()), QStringLiteral("1 2"));
    QCOMPARE(fixture.editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget")).size(), 2);
    QVERIFY(!fixture.host.hasUnsavedChanges());
    QCOMPARE(fixture.stored(), QStringLiteral("1 2"));
    // Mine comes back.
    QAction* const back = fixture.window.findChild<EditorMenus*>()->bringBack();
    QVERIFY(back->isEnabled());
    back->trigger();
    QCOMPARE(fixture.ids(fixture.manager.getAllTask()), QStringLiteral("1 2 7"));
}

// What the other desk has made stays, whatever is brought back.
void tst_SaveRescue::mineComesBackBesideTheirs()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    fixture.window.show();
    fixture.edit();
    std::map<int, PlayTask> theirs = fixture.window.drafts().saved();
    theirs.at(1).endDate = "2029.12.31";
    for (const int id : {7, 9}) {
        PlayTask task;
        task.id = id;
        task.startDate = task.endDate = "2031.01.0" + std::to_string(id);
        theirs[id] = task;
    }
    fixture.saveElsewhere(theirs);
    fixture.manager.deleteTask(2);
    {
        const ChangesAnswer take(4);
        fixture.editor->slotSave();
    }
    QVERIFY(!fixture.editor->isVisible());
    QTRY_VERIFY(!fixture.host.hasUnsavedChanges());
    QCoreApplication::processEvents();
    QVERIFY(!fixture.window.drafts().isUnsaved());
    QAction* const back = fixture.window.findChild<EditorMenus*>()->bringBack();
    QVERIFY(back->isEnabled());
    fixture.showEditor();
    back->trigger();
    // What both have added under one id are two tasks.
    const std::map<int, PlayTask> tasks = fixture.manager.getAllTask();
    QCOMPARE(fixture.ids(tasks), QStringLiteral("1 3 7 9 10"));
    QCOMPARE(tasks.at(1).endDate, theirs.at(1).endDate);
    QCOMPARE(tasks.at(7).startDate, theirs.at(7).startDate);
    QCOMPARE(tasks.at(10).startDate, std::string("2030.01.01"));
    QCOMPARE(tasks.at(10).id, 10);
}

void tst_SaveRescue::mineGoesIntoAFile()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    fixture.edit();
    fixture.saveElsewhere();
    const QString file = fixture.folder.filePath(QStringLiteral("mine.json"));
    answerFileDialog(file);
    const ChangesAnswer write(5);

    fixture.editor->slotSave();

    QFile json(file);
    QVERIFY(json.open(QIODevice::ReadOnly));
    QCOMPARE(fixture.ids(scheduleFromJson(json.readAll()).tasks), QStringLiteral("1 2 3 7"));
    QCOMPARE(fixture.stored(), QStringLiteral("1 2"));
}

void tst_SaveRescue::quittingKeepsTheEdits_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"quit", "terminated", "window closed", "quit in the file dialog"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

/// Whatever ends the program while the question stands: it ends, once.
void tst_SaveRescue::quittingKeepsTheEdits()
{
    QFETCH(QString, way);
    Edited fixture;
    fixture.window.show();
    SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
    const trel::hosts::StopSignals stop;
    connect(&stop, &trel::hosts::StopSignals::stopped, qApp, &QCoreApplication::quit);
    const OtherProgram other(fixture.database);
    const PromptCount prompts;
    QSignalSpy kept(&rescue, &SaveRescue::kept);
    QVERIFY(kept.isValid());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^The changes that were not saved stand "
                                                           "in .*not-saved.*json$")));
    QTimer::singleShot(0, &fixture.window, [&fixture] { fixture.manager.save(); });
    const auto leave = [&fixture, way] {
        if (way == QLatin1String("terminated")) {
            std::raise(SIGTERM);
        } else if (way == QLatin1String("window closed")) {
            fixture.window.close();
        } else {
            QCoreApplication::quit();
        }
    };
    QTimer waiting;
    connect(&waiting, &QTimer::timeout, &fixture.window, [&] {
        QWidget* const top = QApplication::activeModalWidget();
        const bool isOnTheWay = way == QLatin1String("quit in the file dialog") &&
                                qobject_cast<QFileDialog*>(top) == nullptr;
        if (top != nullptr && isOnTheWay) {
            QTest::mouseClick(top->findChild<QPushButton*>(QStringLiteral("tipButton2")),
                              Qt::LeftButton);
        } else if (top != nullptr) {
            waiting.stop();
            leave();
        }
    });
    waiting.start(10);

    QApplication::exec();

    QCOMPARE(kept.count(), 1);
    const QString file = kept.first().first().toString();
    QCOMPARE(QFileInfo(file).absolutePath(), QFileInfo(fixture.database).absolutePath());
    QFile json(file);
    QVERIFY(json.open(QIODevice::ReadOnly));
    const ScheduleFromJson read = scheduleFromJson(json.readAll());
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.tasks == fixture.manager.getAllTask());
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(3));
}

void tst_SaveRescue::editsAreKeptWhereTheyCanBe()
{
    const QTemporaryDir folder;
    const QByteArray former = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    PlayTask task;
    task.id = 3;
    const QString store = folder.filePath(QStringLiteral("gone/a.b.db"));
    const KeptEdits first = keepEdits({{3, task}}, store);
    const KeptEdits second = keepEdits({}, store);
    const KeptEdits ofServer =
        keepEdits({}, QStringLiteral("postgresql://desk/shows?schedule=North%20hall"));
    qputenv("XDG_DATA_HOME", former);
    QVERIFY(!first.fault);
    QVERIFY2(first.file.startsWith(folder.filePath(QStringLiteral("trel/schedule/a.b.not-saved-"))),
             qPrintable(first.file));
    QVERIFY(second.file != first.file);
    QVERIFY2(ofServer.file.startsWith(
                 folder.filePath(QStringLiteral("trel/schedule/North_hall.not-saved-"))),
             qPrintable(ofServer.file));
    QFile json(first.file);
    QVERIFY(json.open(QIODevice::ReadOnly));
    QCOMPARE(scheduleFromJson(json.readAll()).tasks.size(), std::size_t(1));
}

TREL_TEST(tst_SaveRescue, QApplication)
#include "tst_SaveRescue.moc"
