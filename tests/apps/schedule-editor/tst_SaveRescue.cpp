#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "KeptEdits.h"
#include "SaveRescue.h"
#include "common/StopSignals.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

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
    void givingUpKeepsTheStoredSet();
    void escapeIsNoAnswer();
    void theSecondEditorIsRefused();
    void quittingKeepsTheEdits_data();
    void quittingKeepsTheEdits();
    void editsAreKeptWhereTheyCanBe();

private:
    struct Edited : HostFixture
    {
        Edited()
        {
            window.openDatabase(database, QStringLiteral(DEMONSTRATION));
            PlayTask task;
            task.id = 7;
            task.startDate = task.endDate = "2030.01.01";
            manager.updateUItask();
            manager.addTask(task);
        }
    };
};

void tst_SaveRescue::aSaveThatSucceedsAsksNothing()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, &fixture.window);
    const PromptAnswer nothing;

    fixture.manager.save();

    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(4));
}

void tst_SaveRescue::tryingAgainSavesWhenTheLockHasGone()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, &fixture.window);
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
    QCOMPARE(answer.buttons().at(0), QStringLiteral("Try again|Write to a file|Discard changes"));
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(4));
}

void tst_SaveRescue::theScheduleGoesIntoAFile()
{
    Edited fixture;
    SaveRescue rescue(fixture.host, &fixture.window);
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
    SaveRescue rescue(fixture.host, &fixture.window);
    const OtherProgram other(fixture.database);
    QSignalSpy givenUp(&rescue, &SaveRescue::givenUp);
    QVERIFY(givenUp.isValid());
    PromptAnswer answer({2, 3});
    answerFileDialog(QString());

    fixture.manager.save();

    QCOMPARE(answer.count(), 2);
    QCOMPARE(givenUp.count(), 1);
}

void tst_SaveRescue::givingUpKeepsTheStoredSet()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, &fixture.window);
    const OtherProgram other(fixture.database);
    PromptAnswer answer(3);

    fixture.manager.save();

    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(3));
    QCOMPARE(fixture.manager.getAllTask().size(), std::size_t(4));
}

void tst_SaveRescue::escapeIsNoAnswer()
{
    Edited fixture;
    SaveRescue rescue(fixture.host, &fixture.window);
    const OtherProgram other(fixture.database);
    QSignalSpy givenUp(&rescue, &SaveRescue::givenUp);
    QVERIFY(givenUp.isValid());
    PromptAnswer answer({PromptAnswer::Escape, PromptAnswer::Close, 3});

    fixture.manager.save();

    QCOMPARE(answer.count(), 3);
    QCOMPARE(givenUp.count(), 1);
}

void tst_SaveRescue::theSecondEditorIsRefused()
{
    Edited fixture;
    const SaveRescue rescue(fixture.host, &fixture.window);
    QProcess other;
    other.start(QStringLiteral(SCHEDULECTL),
                {QStringLiteral("import-schedule"), QStringLiteral(DEMONSTRATION "/schedule.json"),
                 QStringLiteral("--database"), fixture.database});
    QVERIFY(other.waitForFinished());
    QCOMPARE(other.exitCode(), 0);
    PromptAnswer answer({1, 3});

    fixture.manager.save();

    QCOMPARE(answer.count(), 2);
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(3));
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
    SaveRescue rescue(fixture.host, &fixture.window);
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
    qputenv("XDG_DATA_HOME", former);
    QVERIFY(!first.fault);
    QVERIFY2(first.file.startsWith(folder.filePath(QStringLiteral("trel/schedule/a.b.not-saved-"))),
             qPrintable(first.file));
    QVERIFY(second.file != first.file);
    QFile json(first.file);
    QVERIFY(json.open(QIODevice::ReadOnly));
    QCOMPARE(scheduleFromJson(json.readAll()).tasks.size(), std::size_t(1));
}

TREL_TEST(tst_SaveRescue, QApplication)
#include "tst_SaveRescue.moc"
