#include "DraftFixture.h"
#include "draft/DraftLock.h"
#include "draft/DraftPlace.h"
#include "draft/DraftRecords.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

#include <sys/stat.h>

using namespace trel::mediadispatch;

namespace {

QString draftName(int number = 1)
{
    const QString name = QStringLiteral("schedule.db.unsaved-anna@desk");
    return number == 1 ? name : QStringLiteral("%1+%2").arg(name).arg(number);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

/// As another program saves: task 3 begins on another day.
void saveElsewhere(const QString& path)
{
    {
        QSqlDatabase other =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
        other.setDatabaseName(path);
        QVERIFY(other.open());
        QSqlQuery query(other);
        QVERIFY(
            query.exec(QStringLiteral("UPDATE task SET start_date = '2029.01.01' WHERE id = 3")));
        QVERIFY(query.exec(
            QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1")));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
}

} // namespace

/// What is edited stands in a file beside the store until it is saved.
class tst_DraftJournal : public QObject
{
    Q_OBJECT

private slots:
    void editsOutliveTheProgram();
    void editsAreWrittenByThemselves();
    void nothingUnsavedIsNoFile();
    void whatIsEditedBackIsNotUnsaved();
    void aMarkOfCollisionIsNoEdit();
    void aSaveEndsTheDraft();
    void aReplacedScheduleEndsTheDraft();
    void canceledEditsStayUntilTheNextSave();
    void theRefreshAfterACancelLosesNothing();
    void canceledEditsCanBeTaken();
    void canceledEditsOutliveTheProgram();
    void droppedEditsAreGone();
    void anUndecidedDraftIsNotWrittenInto();
    void twoProgramsHaveAFileEach();
    void desksAreKeptApart();
    void anotherStoreInItsPlaceIsTold();
    void anotherSaveIsTold();
    void whatIsSavedIsNotOffered();
    void anotherStoredSetIsWhatIsEdited();
    void editsAreGivenUpForAnotherSave();
    void damagedAndForeignFilesAreTold();
    void aLongSessionStaysSmall();
    void aFileThatIsTakenAwayIsMadeAgain();
    void onlyTheOwnerMayRead();
    void namesOfDesksAreNamesOfFiles();
    void anotherStoreLeavesTheDraft();
};

void tst_DraftJournal::editsOutliveTheProgram()
{
    DraftFixture fixture;
    const PlayTask edited = fixture.edited(2, "2030.05.05");
    fixture.store.manager.addTask(edited);
    fixture.store.manager.deleteTask(3);
    PlayTask added = everyFieldTask(9);
    fixture.store.manager.addTask(added);
    QVERIFY(fixture.journal->flush());
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    fixture.restart();
    const std::vector<LeftDraft> left = fixture.journal->left();
    QCOMPARE(left.size(), std::size_t(1));
    const Draft& draft = left.front().draft;
    QCOMPARE(draft.state, DraftState::Whole);
    QCOMPARE(DraftFixture::lineOf(draft), QStringLiteral("2 -3 9"));
    QVERIFY(draft.tasks.at(2) == edited);
    QVERIFY(draft.tasks.at(9) == added);
    QCOMPARE(draft.desk, fixture.desk);
    QVERIFY(qAbs(draft.edited - now) < 60000);
    QVERIFY(!left.front().isOfOtherStore);
    QVERIFY(!left.front().isOfOtherSave);
    QVERIFY(!left.front().fault);
    QVERIFY(removeLeftDraft(left.front()));
    QCOMPARE(fixture.files(), QStringList());
}

void tst_DraftJournal::editsAreWrittenByThemselves()
{
    DraftFixture fixture;
    QSignalSpy written(fixture.journal.get(), &DraftJournal::written);
    QVERIFY(written.isValid());
    fixture.edit(1, "2030.01.01");
    QVERIFY(written.wait());
    fixture.edit(2, "2030.01.01");
    QVERIFY(written.wait());
    const Draft draft = readDraft(contentOf(fixture.store.folder.filePath(draftName())));
    QCOMPARE(DraftFixture::lineOf(draft), QStringLiteral("1 2"));
}

void tst_DraftJournal::nothingUnsavedIsNoFile()
{
    DraftFixture fixture;
    QVERIFY(fixture.journal->flush());
    fixture.store.manager.addTask(fixture.store.manager.getTask(1));
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList());
    QCOMPARE(fixture.left(), QStringList());
}

void tst_DraftJournal::whatIsEditedBackIsNotUnsaved()
{
    DraftFixture fixture;
    const PlayTask saved = fixture.store.manager.getTask(1);
    fixture.edit(1, "2030.01.01");
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.store.manager.addTask(saved);
    QVERIFY(fixture.journal->flush());
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(fixture.store.folder.filePath(draftName())))),
             QStringLiteral("2"));
    fixture.store.manager.addTask(fixture.store.host.workingSet().at(2));
    fixture.store.manager.updateUItask();
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList());
}

void tst_DraftJournal::aMarkOfCollisionIsNoEdit()
{
    DraftFixture fixture;
    PlayTask task = fixture.store.manager.getTask(1);
    task.plans.front().isConflict = !task.plans.front().isConflict;
    fixture.store.manager.addTask(task);
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList());
}

void tst_DraftJournal::aSaveEndsTheDraft()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList{draftName()});
    QVERIFY(fixture.store.host.trySave());
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList());
    // The next edits are edits of the new save.
    fixture.edit(1, "2031.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.restart();
    QVERIFY(!fixture.journal->left().front().isOfOtherSave);
}

void tst_DraftJournal::aReplacedScheduleEndsTheDraft()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    QVERIFY(fixture.store.host.replaceSchedule(sampleSchedule(2, 1, 1)));
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList());
}

void tst_DraftJournal::canceledEditsStayUntilTheNextSave()
{
    DraftFixture fixture;
    QSignalSpy told(fixture.journal.get(), &DraftJournal::canceledChanged);
    fixture.journal->cancel();
    QCOMPARE(told.size(), 0);
    fixture.edit(1, "2030.01.01");
    fixture.journal->cancel();
    QCOMPARE(told.size(), 1);
    QCOMPARE(DraftFixture::idsOf(fixture.journal->canceled()), QStringLiteral("1"));
    QVERIFY(fixture.journal->flush());
    const QString path = fixture.store.folder.filePath(draftName());
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("|1"));
    // What is edited next stands beside it.
    fixture.store.manager.updateUItask();
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("2|1"));
    QVERIFY(fixture.store.host.trySave());
    QVERIFY(fixture.journal->canceled().empty());
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList());
}

void tst_DraftJournal::theRefreshAfterACancelLosesNothing()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    fixture.journal->cancel();
    // The notice of the edit comes only now.
    QCoreApplication::processEvents();
    QVERIFY(fixture.journal->flush());
    const QString path = fixture.store.folder.filePath(draftName());
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("|1"));
    fixture.store.manager.getgTaskMap();
    fixture.store.manager.updateUItask();
    QCoreApplication::processEvents();
    QVERIFY(fixture.journal->flush());
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("|1"));
    // A second one without an edit in between leaves it, too.
    fixture.journal->cancel();
    QCOMPARE(DraftFixture::idsOf(fixture.journal->canceled()), QStringLiteral("1"));
    // The same edit once more is one that is not canceled.
    fixture.edit(1, "2030.01.01");
    QCoreApplication::processEvents();
    QVERIFY(fixture.journal->isUnsaved());
}

void tst_DraftJournal::canceledEditsCanBeTaken()
{
    for (const bool isRefreshed : {false, true}) {
        DraftFixture fixture;
        fixture.edit(1, "2030.01.01");
        fixture.store.manager.deleteTask(2);
        fixture.journal->cancel();
        QVERIFY(fixture.journal->flush());
        if (isRefreshed) {
            fixture.store.manager.updateUItask();
            QCoreApplication::processEvents();
        }
        const DraftTasks tasks = fixture.journal->takeCanceled();
        QCOMPARE(DraftFixture::idsOf(tasks), QStringLiteral("1 -2"));
        QVERIFY(fixture.journal->canceled().empty());
        fixture.store.manager.addTask(*tasks.at(1));
        fixture.store.manager.deleteTask(2);
        QVERIFY(fixture.journal->flush());
        const QString path = fixture.store.folder.filePath(draftName());
        QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("1 -2"));
    }
}

void tst_DraftJournal::canceledEditsOutliveTheProgram()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    fixture.journal->cancel();
    QVERIFY(fixture.journal->flush());
    fixture.restart();
    std::vector<LeftDraft> left = fixture.journal->left();
    QCOMPARE(left.size(), std::size_t(1));
    QCOMPARE(DraftFixture::lineOf(left.front().draft), QStringLiteral("|1"));
    fixture.journal->adoptCanceled(left.front().draft.canceled);
    QVERIFY(fixture.journal->flush());
    QVERIFY(removeLeftDraft(left.front()));
    left.clear();
    QCOMPARE(DraftFixture::idsOf(fixture.journal->canceled()), QStringLiteral("1"));
    QCOMPARE(fixture.files(), QStringList{draftName(2)});
    const QString path = fixture.store.folder.filePath(draftName(2));
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("|1"));
}

void tst_DraftJournal::droppedEditsAreGone()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    fixture.journal->cancel();
    fixture.store.manager.updateUItask();
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.journal->drop();
    QCOMPARE(fixture.files(), QStringList());
    QVERIFY(fixture.journal->canceled().empty());
}

void tst_DraftJournal::anUndecidedDraftIsNotWrittenInto()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.restart();
    const QByteArray former = contentOf(fixture.store.folder.filePath(draftName()));
    fixture.edit(2, "2031.01.01");
    QVERIFY(fixture.journal->flush());
    QCOMPARE(contentOf(fixture.store.folder.filePath(draftName())), former);
    QCOMPARE(fixture.files(), (QStringList{draftName(), draftName(2)}));
    // Its own is at work, and not offered.
    QCOMPARE(fixture.left(), QStringList{QStringLiteral("1")});
    fixture.restart();
    QCOMPARE(fixture.left(), (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
}

void tst_DraftJournal::twoProgramsHaveAFileEach()
{
    DraftFixture fixture;
    const QString path = fixture.store.folder.filePath(draftName());
    std::unique_ptr<DraftLock> other = DraftLock::of(path, DraftLock::Missing::IsMade);
    QVERIFY(other);
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    QCOMPARE(QFileInfo(path).size(), qint64(0));
    QCOMPARE(fixture.files(), (QStringList{draftName(), draftName(2)}));
    QVERIFY(
        !DraftLock::of(fixture.store.folder.filePath(draftName(2)), DraftLock::Missing::IsRefused));
    // While its file is written anew, too.
    QVERIFY(fixture.store.host.reload());
    for (int i = 0; i < 400; ++i) {
        fixture.edit(1, i % 2 == 0 ? "2031.01.01" : "2032.01.01");
        QVERIFY(fixture.journal->flush());
    }
    QVERIFY(
        !DraftLock::of(fixture.store.folder.filePath(draftName(2)), DraftLock::Missing::IsRefused));
    QCOMPARE(fixture.left(), QStringList());
}

void tst_DraftJournal::desksAreKeptApart()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.journal.reset();
    DraftJournal other(QStringLiteral("bert@desk"));
    other.begin();
    QCOMPARE(other.left().size(), std::size_t(0));
    DraftJournal longer(QStringLiteral("anna@desk2"));
    longer.begin();
    QCOMPARE(longer.left().size(), std::size_t(0));
}

void tst_DraftJournal::anotherStoreInItsPlaceIsTold()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.journal.reset();
    fixture.store.host.close();
    const QString aside = fixture.store.folder.filePath(QStringLiteral("aside.db"));
    QVERIFY(QFile::rename(fixture.store.path, aside));
    fixture.store.open();
    fixture.begin();
    std::vector<LeftDraft> left = fixture.journal->left();
    QCOMPARE(left.size(), std::size_t(1));
    QVERIFY(left.front().isOfOtherStore);
    QVERIFY(!left.front().isOfOtherSave);
    QCOMPARE(DraftFixture::lineOf(left.front().draft), QStringLiteral("1"));
    // The right one back in its place.
    left.clear();
    fixture.store.host.close();
    QVERIFY(QFile::remove(fixture.store.path));
    QVERIFY(QFile::rename(aside, fixture.store.path));
    fixture.restart();
    QVERIFY(!fixture.journal->left().front().isOfOtherStore);
}

void tst_DraftJournal::anotherSaveIsTold()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.restart();
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.store.host.trySave());
    const std::vector<LeftDraft> left = fixture.journal->left();
    QCOMPARE(left.size(), std::size_t(1));
    QVERIFY(left.front().isOfOtherSave);
    QVERIFY(!left.front().isOfOtherStore);
}

void tst_DraftJournal::whatIsSavedIsNotOffered()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.restart();
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.store.host.trySave());
    QCOMPARE(fixture.left(), QStringList{QStringLiteral("2")});
    // A program that was killed between the save and the end of its draft leaves nothing behind.
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.store.host.trySave());
    QCOMPARE(fixture.left(), QStringList());
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(), QStringList());
}

void tst_DraftJournal::anotherStoredSetIsWhatIsEdited()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    const QByteArray before = contentOf(fixture.store.folder.filePath(draftName()));
    saveElsewhere(fixture.store.path);
    QVERIFY(fixture.store.host.reload());
    QVERIFY(fixture.journal->flush());
    const Draft draft = readDraft(contentOf(fixture.store.folder.filePath(draftName())));
    QCOMPARE(draft.saved, readDraft(before).saved + 1);
    // The working set still has the task as it was before.
    QCOMPARE(DraftFixture::lineOf(draft), QStringLiteral("1 3"));
}

void tst_DraftJournal::editsAreGivenUpForAnotherSave()
{
    DraftFixture fixture;
    const QString path = fixture.store.folder.filePath(draftName());
    fixture.edit(1, "2030.01.01");
    const PlayTask mine = fixture.store.host.workingSet().at(1);
    QVERIFY(fixture.journal->flush());
    saveElsewhere(fixture.store.path);
    QVERIFY(fixture.store.host.reload());
    // Its number has been given out there.
    PlayTask renumbered = mine;
    renumbered.id = 11;
    fixture.journal->giveUp({{11, renumbered}});
    const auto isGivenUp = [&] {
        return !fixture.journal->isUnsaved() && fixture.journal->flush() &&
               DraftFixture::idsOf(fixture.journal->canceled()) == QLatin1String("11") &&
               DraftFixture::lineOf(readDraft(contentOf(path))) == QLatin1String("|11");
    };
    QVERIFY(isGivenUp());
    // It is in the working set still: neither what is told of that, nor the end of the editor, nor
    // that it is read again makes an edit of it.
    QCoreApplication::processEvents();
    QVERIFY(isGivenUp());
    fixture.journal->cancel();
    QVERIFY(isGivenUp());
    fixture.store.manager.updateUItask();
    QCoreApplication::processEvents();
    QVERIFY(isGivenUp());
    // Then the same edit is one of that save, and can be canceled itself.
    fixture.store.manager.addTask(mine);
    QCoreApplication::processEvents();
    QCOMPARE(fixture.journal->unsavedTasks(), std::vector<int>{1});
    fixture.journal->giveUp({});
    QCOMPARE(DraftFixture::idsOf(fixture.journal->canceled()), QStringLiteral("11"));
    fixture.store.manager.updateUItask();
    fixture.edit(2, "2030.01.01");
    QCoreApplication::processEvents();
    fixture.journal->cancel();
    QCOMPARE(DraftFixture::idsOf(fixture.journal->canceled()), QStringLiteral("2"));
}

void tst_DraftJournal::damagedAndForeignFilesAreTold()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    const QString path = fixture.store.folder.filePath(draftName());
    fixture.restart();
    QByteArray damaged = contentOf(path);
    damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 1);
    write(path, damaged);
    write(fixture.store.folder.filePath(draftName(2)), "a letter");
    write(fixture.store.folder.filePath(draftName(3)), {});
    QVERIFY(QDir(fixture.store.folder.path()).mkdir(draftName(4)));
    const std::vector<LeftDraft> left = fixture.journal->left();
    QCOMPARE(left.size(), std::size_t(3));
    QCOMPARE(left[0].draft.state, DraftState::Damaged);
    QVERIFY(!left[0].draft.tasks.empty());
    QCOMPARE(left[1].draft.state, DraftState::Foreign);
    QVERIFY(left[2].fault);
    // None of them is in the way.
    fixture.edit(3, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files().size(), 3);
    QCOMPARE(contentOf(path), damaged);
    QCOMPARE(contentOf(fixture.store.folder.filePath(draftName(2))), QByteArray("a letter"));
}

void tst_DraftJournal::aLongSessionStaysSmall()
{
    DraftFixture fixture;
    const QString path = fixture.store.folder.filePath(draftName());
    fixture.store.manager.deleteTask(3);
    qint64 largest = 0;
    qint64 record = 0;
    for (int i = 0; i < 300; ++i) {
        fixture.edit(
            1, qPrintable(QStringLiteral("2030.01.%1").arg(1 + i % 28, 2, 10, QLatin1Char('0'))));
        QVERIFY(fixture.journal->flush());
        const qint64 size = QFileInfo(path).size();
        record = i == 0 ? size : record;
        largest = qMax(largest, size);
    }
    QVERIFY(largest > 2 * record);
    QVERIFY2(largest < 64 * 1024 + 2 * record, qPrintable(QString::number(largest)));
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("1 -3"));
    QCOMPARE(readDraft(contentOf(path)).state, DraftState::Whole);
}

void tst_DraftJournal::aFileThatIsTakenAwayIsMadeAgain()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    const QString path = fixture.store.folder.filePath(draftName());
    QVERIFY(QFile::remove(path));
    fixture.edit(2, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    QCOMPARE(DraftFixture::lineOf(readDraft(contentOf(path))), QStringLiteral("1 2"));
}

void tst_DraftJournal::onlyTheOwnerMayRead()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QVERIFY(fixture.journal->flush());
    struct stat status = {};
    QCOMPARE(
        ::stat(QFile::encodeName(fixture.store.folder.filePath(draftName())).constData(), &status),
        0);
    QCOMPARE(status.st_mode & 0777, mode_t(0600));
}

void tst_DraftJournal::namesOfDesksAreNamesOfFiles()
{
    const auto nameFor = [](const QString& desk) {
        return QFileInfo(DraftPlace(QStringLiteral("/a/b.db"), desk).path(2)).fileName();
    };
    QCOMPARE(nameFor(QStringLiteral("a/b+2 c@é")),
             QStringLiteral("b.db.unsaved-a%2Fb%2B2%20c@%C3%A9+2"));
    const QString longest = nameFor(QString(5000, QLatin1Char('x')));
    QVERIFY(longest.size() < 100);
    QVERIFY(longest != nameFor(QString(5001, QLatin1Char('x'))));
}

void tst_DraftJournal::anotherStoreLeavesTheDraft()
{
    DraftFixture fixture;
    fixture.edit(1, "2030.01.01");
    QCoreApplication::processEvents();
    QVERIFY(fixture.store.host.open(fixture.store.folder.filePath(QStringLiteral("two.db"))));
    fixture.journal->begin();
    QCOMPARE(fixture.files(), QStringList{draftName()});
    QCOMPARE(fixture.left(), QStringList());
    fixture.store.manager.addTask(everyFieldTask(5));
    QVERIFY(fixture.journal->flush());
    QCOMPARE(fixture.files(),
             (QStringList{draftName(), QStringLiteral("two.db.unsaved-anna@desk")}));
    QVERIFY(fixture.store.host.open(fixture.store.path));
    fixture.journal->begin();
    QCOMPARE(fixture.left(), QStringList{QStringLiteral("1")});
}

TREL_TEST(tst_DraftJournal, QCoreApplication)
#include "tst_DraftJournal.moc"
