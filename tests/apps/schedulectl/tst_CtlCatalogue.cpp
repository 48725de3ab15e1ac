#include "CtlFixture.h"

#include "support/MediaFiles.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>

using namespace trel::mediadispatch;

/// The commands import, programs and remove-program.
class tst_CtlCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void importTakesFilesFoldersAndAddresses();
    void everyKindOfMediaIsTaken();
    void importAsJson();
    void aRefusedDatabaseIsACodeInJson();
    void importAgainKeepsTheIndex();
    void partlyRefusedImportKeepsTheRest();
    void emptyFolderIsNoRefusal();
    void progressIsForPeopleOnly();
    void emptyCatalogueIsSaid();
    void programsAsJson();
    void goneFileIsMarked();
    void changedFileIsTold();
    void contentIsReadOnce();
    void oddNamesStayReadable();
    void removedProgramLeavesInvalidEntries();
    void removeRefusals();
    void manyAreRemovedAtOnce();
    void allOrNoneAreRemoved();
    void theScheduleIsNotRead();

private:
    static void importClips(const CtlFixture& fixture, const QStringList& names);
};

namespace {

QByteArray hashOf(const QByteArray& file)
{
    return QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex();
}

QJsonObject first(const QJsonObject& object, const QString& member)
{
    return object[member].toArray().first().toObject();
}

const QString kImport = QStringLiteral("import");
const QString kPrograms = QStringLiteral("programs");
const QString kRemove = QStringLiteral("remove-program");
const QString kJson = QStringLiteral("--json");

} // namespace

void tst_CtlCatalogue::importClips(const CtlFixture& fixture, const QStringList& names)
{
    for (const QString& name : names) {
        fixture.writeClip(name, 100);
    }
    QCOMPARE(fixture.onDatabase(QStringList{kImport} + names).status, 0);
}

void tst_CtlCatalogue::importTakesFilesFoldersAndAddresses()
{
    const CtlFixture fixture;
    fixture.writeClip(QStringLiteral("one.wav"), 1500);
    fixture.writeClip(QStringLiteral("media/\u665a/\u665a\u95f4\u65b0\u95fb.wav"), 90000);
    fixture.writeFile(QStringLiteral("media/notes.txt"), "no media");
    const CtlResult result =
        fixture.onDatabase({kImport, QStringLiteral("one.wav"), QStringLiteral("media"),
                            QStringLiteral("rtsp://host/live")});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(
        result.lines(),
        (QStringList{
            QStringLiteral("       Index  Name              Kind        Length  File"),
            QStringLiteral("added      1  one               audio  0:00:01.500  %1")
                .arg(fixture.path(QStringLiteral("one.wav"))),
            QStringLiteral("added      2  \u665a\u95f4\u65b0\u95fb          audio  0:01:30.000  %1")
                .arg(fixture.path(QStringLiteral("media/\u665a/\u665a\u95f4\u65b0\u95fb.wav"))),
            QStringLiteral("added      3  rtsp://host/live  live             \u2013  "
                           "rtsp://host/live"),
            QStringLiteral("3 programs added, 0 updated, 0 refused."),
        }));
}

void tst_CtlCatalogue::everyKindOfMediaIsTaken()
{
    const CtlFixture fixture;
    QVERIFY(media::makeVideo(fixture.path(QStringLiteral("a.mov")), 50, 25));
    QVERIFY(media::makeWav(fixture.path(QStringLiteral("b.wav")), 250));
    QVERIFY(media::makeImage(fixture.path(QStringLiteral("c.png"))));
    QVERIFY(media::makeText(fixture.path(QStringLiteral("d.txt"))));
    QCOMPARE(fixture.onDatabase({kImport, QStringLiteral(".")}).status, 0);
    const QStringList lines = fixture.onDatabase({kPrograms}).lines();
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[1].startsWith(QStringLiteral("    1  a     video  0:00:02.000  ")));
    QVERIFY(lines[2].startsWith(QStringLiteral("    2  b     audio  0:00:00.250  ")));
    QVERIFY(lines[3].startsWith(QStringLiteral("    3  c     image            \u2013  ")));
}

void tst_CtlCatalogue::importAsJson()
{
    const CtlFixture fixture;
    fixture.writeClip(QStringLiteral("one.wav"), 1500);
    const CtlResult result = fixture.onDatabase(
        {kImport, kJson, QStringLiteral("one.wav"), QStringLiteral("missing.wav")});
    QCOMPARE(result.status, 1);
    const QString missing = fixture.path(QStringLiteral("missing.wav"));
    QCOMPARE(result.err, QStringLiteral("schedulectl: %1: There is no such file.\n").arg(missing));
    const QJsonObject expected = {
        {QStringLiteral("database"), fixture.database()},
        {QStringLiteral("added"),
         QJsonArray{QJsonObject{
             {QStringLiteral("index"), 1},
             {QStringLiteral("name"), QStringLiteral("one")},
             {QStringLiteral("kind"), QStringLiteral("audio")},
             {QStringLiteral("durationMs"), 1500},
             {QStringLiteral("path"), fixture.path(QStringLiteral("one.wav"))},
             {QStringLiteral("isGone"), false},
         }}},
        {QStringLiteral("updated"), QJsonArray()},
        {QStringLiteral("refused"),
         QJsonArray{QJsonObject{{QStringLiteral("path"), missing},
                                {QStringLiteral("code"), QStringLiteral("fileMissing")},
                                {QStringLiteral("arguments"), QJsonArray()}}}},
    };
    QCOMPARE(result.json(), expected);
}

/// A script has no use for the sentence.
void tst_CtlCatalogue::aRefusedDatabaseIsACodeInJson()
{
    const CtlFixture fixture;
    const auto error = [&fixture](const QString& command, const QStringList& arguments = {}) {
        const CtlResult result = fixture.onDatabase(QStringList{command, kJson} + arguments);
        return result.status == 1 ? result.json()[QStringLiteral("error")].toObject()
                                  : QJsonObject();
    };
    const QJsonObject missing = error(kPrograms);
    QCOMPARE(missing[QStringLiteral("code")].toString(), QStringLiteral("fileMissing"));
    QCOMPARE(missing[QStringLiteral("path")].toString(), fixture.database());
    QVERIFY(missing[QStringLiteral("cause")].isNull());

    importClips(fixture, {QStringLiteral("one.wav")});
    QFile::setPermissions(fixture.database(), QFile::ReadOwner);
    const QJsonObject readOnly = error(kImport, {QStringLiteral("one.wav")});
    QCOMPARE(readOnly[QStringLiteral("code")].toString(), QStringLiteral("readOnly"));
    QCOMPARE(readOnly[QStringLiteral("cause")].toObject(),
             (QJsonObject{{QStringLiteral("code"), QStringLiteral("fileReadOnly")},
                          {QStringLiteral("arguments"), QJsonArray()}}));
}

void tst_CtlCatalogue::importAgainKeepsTheIndex()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav"), QStringLiteral("two.wav")});
    fixture.writeClip(QStringLiteral("two.wav"), 2000);
    const CtlResult again = fixture.onDatabase({kImport, kJson, QStringLiteral("two.wav")});
    QCOMPARE(again.status, 0);
    QVERIFY(again.json()[QStringLiteral("added")].toArray().isEmpty());
    const QJsonObject updated = first(again.json(), QStringLiteral("updated"));
    QCOMPARE(updated[QStringLiteral("index")].toInt(), 2);
    QCOMPARE(updated[QStringLiteral("durationMs")].toDouble(), 2000.0);
    const CtlResult inText = fixture.onDatabase({kImport, QStringLiteral("two.wav")});
    QVERIFY(inText.lines().at(1).startsWith(QStringLiteral("updated      2  two")));
    QCOMPARE(inText.lines().last(), QStringLiteral("0 programs added, 1 updated, 0 refused."));
}

void tst_CtlCatalogue::partlyRefusedImportKeepsTheRest()
{
    const CtlFixture fixture;
    fixture.writeClip(QStringLiteral("one.wav"), 100);
    fixture.writeFile(QStringLiteral("notes.txt"), "no media");
    const CtlResult result =
        fixture.onDatabase({kImport, QStringLiteral("notes.txt"), QStringLiteral("missing"),
                            QStringLiteral("one.wav")});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.lines().last(), QStringLiteral("1 program added, 0 updated, 2 refused."));
    const QStringList errors = result.err.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(errors.size(), 2);
    QVERIFY(errors[0].startsWith(
        QStringLiteral("schedulectl: %1: ").arg(fixture.path(QStringLiteral("notes.txt")))));
    QVERIFY(errors[1].startsWith(
        QStringLiteral("schedulectl: %1: ").arg(fixture.path(QStringLiteral("missing")))));
    QCOMPARE(fixture.onDatabase({kPrograms}).lines().size(), 2);
}

void tst_CtlCatalogue::emptyFolderIsNoRefusal()
{
    const CtlFixture fixture;
    QVERIFY(QDir(fixture.path(QString())).mkdir(QStringLiteral("empty")));
    const CtlResult result = fixture.onDatabase({kImport, QStringLiteral("empty")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lines(),
             QStringList{QStringLiteral("0 programs added, 0 updated, 0 refused.")});
}

void tst_CtlCatalogue::progressIsForPeopleOnly()
{
    const CtlFixture fixture;
    fixture.writeClip(QStringLiteral("one.wav"), 100);
    fixture.writeClip(QStringLiteral("two.wav"), 100);
    const QStringList arguments = {kImport,
                                   QStringLiteral("--database"),
                                   fixture.database(),
                                   QStringLiteral("one.wav"),
                                   QStringLiteral("two.wav"),
                                   QStringLiteral("three.wav")};
    QCOMPARE(fixture.run(arguments).err.count(QLatin1Char('\n')), 1);
    QVERIFY(!fixture.run(arguments).err.contains(QStringLiteral("[1/")));

    const CtlResult watched = fixture.runWatched(arguments);
    QCOMPARE(watched.status, 1);
    QVERIFY2(watched.err.contains(QStringLiteral("[1/3] ")), qPrintable(watched.err));
    QVERIFY(watched.err.contains(QStringLiteral("[3/3] ")));
    // The line of progress is gone before the refusal is told.
    const int refusal = watched.err.indexOf(QStringLiteral("schedulectl: "));
    QVERIFY(watched.err.left(refusal).endsWith(QStringLiteral("\r\x1B[K")));
}

void tst_CtlCatalogue::emptyCatalogueIsSaid()
{
    const CtlFixture fixture;
    fixture.store({});
    const CtlResult text = fixture.onDatabase({kPrograms});
    QCOMPARE(text.status, 0);
    QCOMPARE(text.lines(),
             QStringList{QStringLiteral("The catalog is empty; \"schedulectl import\" fills it.")});
    const CtlResult json = fixture.onDatabase({kPrograms, kJson});
    QCOMPARE(json.status, 0);
    QVERIFY(json.json()[kPrograms].isArray());
    QVERIFY(json.json()[kPrograms].toArray().isEmpty());
}

void tst_CtlCatalogue::programsAsJson()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav")});
    QCOMPARE(fixture.onDatabase({kImport, QStringLiteral("udp://@239.0.0.1:1234")}).status, 0);
    const CtlResult result = fixture.onDatabase({kPrograms, kJson});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.json()[QStringLiteral("database")].toString(), fixture.database());
    const QJsonArray programs = result.json()[kPrograms].toArray();
    QCOMPARE(programs.size(), 2);
    QCOMPARE(programs[0][QStringLiteral("durationMs")].toDouble(), 100.0);
    QCOMPARE(programs[1][QStringLiteral("kind")].toString(), QStringLiteral("live"));
    QVERIFY(programs[1][QStringLiteral("durationMs")].isNull());
    const QByteArray file = fixture.fileContent(QStringLiteral("one.wav"));
    QCOMPARE(programs[0][QStringLiteral("size")].toInt(), file.size());
    QCOMPARE(programs[0][QStringLiteral("sha256")].toString().toLatin1(), hashOf(file));
    // Nothing is known of what is no file.
    QVERIFY(programs[1][QStringLiteral("size")].isNull());
    QVERIFY(programs[1][QStringLiteral("sha256")].isNull());
}

void tst_CtlCatalogue::goneFileIsMarked()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav")});
    QVERIFY(QFile::remove(fixture.path(QStringLiteral("one.wav"))));
    QVERIFY(
        fixture.onDatabase({kPrograms}).lines().last().endsWith(QStringLiteral("/one.wav (gone)")));
    const QJsonObject program = first(fixture.onDatabase({kPrograms, kJson}).json(), kPrograms);
    QCOMPARE(program[QStringLiteral("isGone")].toBool(), true);
}

void tst_CtlCatalogue::changedFileIsTold()
{
    const CtlFixture fixture;
    const QString name = QStringLiteral("two.wav");
    importClips(fixture, {QStringLiteral("one.wav"), name, QStringLiteral("three.wav")});
    QVERIFY(QFile::remove(fixture.path(QStringLiteral("three.wav"))));
    const QStringList check = {QStringLiteral("check")};
    const QString good = fixture.onDatabase(check).text();
    QVERIFY2(!good.contains(QStringLiteral("Changed files")), qPrintable(good));
    // Of the same size, and with another sound.
    QByteArray changed = fixture.fileContent(name);
    changed[changed.size() - 1] = static_cast<char>(changed.back() ^ 1);
    fixture.writeFile(name, changed);
    const CtlResult told = fixture.onDatabase(check);
    QCOMPARE(told.status, 0);
    QCOMPARE(told.text(), good + QStringLiteral("\nChanged files:\n  Program 2, \"two\": %1 holds"
                                                " something else than when it was imported. If"
                                                " that is meant to play, import it again.\n")
                                     .arg(fixture.path(name)));
    const QJsonArray files = fixture.onDatabase(check + QStringList{kJson})
                                 .json()[QStringLiteral("changedFiles")]
                                 .toArray();
    QCOMPARE(files.size(), 1);
    QCOMPARE(files[0].toObject()[QStringLiteral("index")].toInt(), 2);
    QCOMPARE(fixture.onDatabase({kImport, name}).status, 0);
    QCOMPARE(fixture.onDatabase(check).text(), good);
    const QJsonArray programs = fixture.onDatabase({kPrograms, kJson}).json()[kPrograms].toArray();
    QCOMPARE(programs[1].toObject()[QStringLiteral("sha256")].toString().toLatin1(),
             hashOf(changed));
}

// Of a file with size and time of before, the hash of before: nobody has read it.
void tst_CtlCatalogue::contentIsReadOnce()
{
    const CtlFixture fixture;
    const QString name = QStringLiteral("one.wav");
    importClips(fixture, {name});
    const QByteArray file = QFile::encodeName(fixture.path(name));
    const QByteArray former = fixture.fileContent(name);
    struct stat before = {};
    QCOMPARE(::stat(file.constData(), &before), 0);
    QByteArray changed = former;
    changed[changed.size() - 1] = static_cast<char>(changed.back() ^ 1);
    fixture.writeFile(name, changed);
    const std::array<timespec, 2> times = {before.st_atim, before.st_mtim};
    QCOMPARE(::utimensat(AT_FDCWD, file.constData(), times.data(), 0), 0);
    const auto hash = [&fixture] {
        const QJsonObject json = fixture.onDatabase({kPrograms, kJson}).json();
        return first(json, kPrograms)[QStringLiteral("sha256")].toString().toLatin1();
    };
    QCOMPARE(fixture.onDatabase({kImport, name}).status, 0);
    QCOMPARE(hash(), hashOf(former));
    // Written once more, it has another time.
    fixture.writeFile(name, changed);
    QCOMPARE(fixture.onDatabase({kImport, name}).status, 0);
    QCOMPARE(hash(), hashOf(changed));
}

void tst_CtlCatalogue::oddNamesStayReadable()
{
    const CtlFixture fixture;
    const QStringList names = {QStringLiteral("a\nb.wav"),
                               QStringLiteral("\x1B[31mred.wav"),
                               QStringLiteral("%1 %s.wav"),
                               QStringLiteral("two  blanks.wav"),
                               QString::fromUtf8("\xF0\x9F\x8E\xAC.wav"),
                               QStringLiteral("\u062e\u0628\u0631.wav"),
                               QStringLiteral("\"quoted\" 'name'.wav")};
    importClips(fixture, names);
    fixture.writeClip(QStringLiteral("--json"), 100);
    QCOMPARE(fixture.onDatabase({kImport, QStringLiteral("--"), kJson}).status, 0);

    const CtlResult text = fixture.onDatabase({kPrograms});
    QCOMPARE(text.lines().size(), names.size() + 2);
    QVERIFY(text.text().contains(QStringLiteral(" a\\nb ")));
    QVERIFY(text.text().contains(QStringLiteral(" \\x1b[31mred ")));
    QVERIFY(!text.out.contains('\x1B'));
    QVERIFY(text.text().contains(QStringLiteral(" %1 %s ")));

    const QJsonArray programs = fixture.onDatabase({kPrograms, kJson}).json()[kPrograms].toArray();
    QCOMPARE(programs.size(), names.size() + 1);
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(programs[i][QStringLiteral("path")].toString(), fixture.path(names[i]));
    }
}

void tst_CtlCatalogue::removedProgramLeavesInvalidEntries()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav"), QStringLiteral("two.wav")});
    fixture.store({{1, januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1),
                                       timePlan(2, "09:00:00", "10:00:00", "", 1)})}});
    const CtlResult removed = fixture.onDatabase({kRemove, QStringLiteral("1")});
    QCOMPARE(removed.status, 0);
    QCOMPARE(removed.lines(),
             (QStringList{QStringLiteral("Program 1, one, was removed."),
                          QStringLiteral("Its entries in 2 plans are invalid now.")}));
    QVERIFY(fixture.onDatabase({QStringLiteral("show")})
                .text()
                .contains(QStringLiteral("entry (invalid)\n")));
    QVERIFY(QFileInfo::exists(fixture.path(QStringLiteral("one.wav"))));

    const CtlResult unused = fixture.onDatabase({kRemove, QStringLiteral("2")});
    QCOMPARE(unused.lines(), QStringList{QStringLiteral("Program 2, two, was removed.")});
    QVERIFY(fixture.onDatabase({kPrograms, kJson}).json()[kPrograms].toArray().isEmpty());
    // Its index is not given out again.
    const CtlResult again = fixture.onDatabase({kImport, kJson, QStringLiteral("two.wav")});
    QCOMPARE(first(again.json(), QStringLiteral("added"))[QStringLiteral("index")].toInt(), 3);
}

void tst_CtlCatalogue::removeRefusals()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav")});
    const CtlResult unknown = fixture.onDatabase({kRemove, QStringLiteral("9")});
    QCOMPARE(unknown.status, 1);
    QCOMPARE(unknown.err,
             QStringLiteral("schedulectl: There is no program 9 in %1.\n").arg(fixture.database()));
    for (const char* text : {"one", "1x", "1.5", "99999999999"}) {
        const CtlResult misused = fixture.onDatabase({kRemove, QString::fromLatin1(text)});
        QCOMPARE(misused.status, 2);
        QCOMPARE(misused.err, QStringLiteral("schedulectl: \"%1\" is not an index; \"schedulectl "
                                             "programs\" shows the indexes.\n")
                                  .arg(QString::fromLatin1(text)));
    }
    QCOMPARE(fixture.onDatabase({kPrograms}).lines().size(), 2);
}

void tst_CtlCatalogue::manyAreRemovedAtOnce()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav"), QStringLiteral("two.wav"),
                          QStringLiteral("three.wav"), QStringLiteral("four.wav")});
    fixture.store({{1, januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1),
                                       timePlan(2, "09:00:00", "10:00:00", "", 4)})}});
    // One that is named twice goes once.
    const CtlResult removed = fixture.onDatabase({kRemove, QStringLiteral("4"), QStringLiteral("1"),
                                                  QStringLiteral("3"), QStringLiteral("4")});
    QCOMPARE(removed.err, QString());
    QCOMPARE(removed.status, 0);
    QCOMPARE(removed.lines(),
             (QStringList{QStringLiteral("Program 4, four, was removed."),
                          QStringLiteral("Program 1, one, was removed."),
                          QStringLiteral("Program 3, three, was removed."),
                          QStringLiteral("Their entries in 2 plans are invalid now.")}));
    const QJsonArray left = fixture.onDatabase({kPrograms, kJson}).json()[kPrograms].toArray();
    QCOMPARE(left.size(), 1);
    QCOMPARE(left[0][QStringLiteral("index")].toInt(), 2);
}

void tst_CtlCatalogue::allOrNoneAreRemoved()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav"), QStringLiteral("two.wav")});
    const CtlResult refused = fixture.onDatabase(
        {kRemove, QStringLiteral("1"), QStringLiteral("9"), QStringLiteral("2")});
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.out, QByteArray());
    QCOMPARE(refused.err, QStringLiteral("schedulectl: There is no program 9 in %1.\n"
                                         "schedulectl: Nothing was removed.\n")
                              .arg(fixture.database()));
    const CtlResult misused =
        fixture.onDatabase({kRemove, QStringLiteral("1"), QStringLiteral("two")});
    QCOMPARE(misused.status, 2);
    QVERIFY(misused.err.startsWith(QStringLiteral("schedulectl: \"two\" is not an index;")));
    QCOMPARE(fixture.onDatabase({kPrograms}).lines().size(), 3);
}

/// What has to do with the catalogue alone works beside a schedule that cannot be read.
void tst_CtlCatalogue::theScheduleIsNotRead()
{
    const CtlFixture fixture;
    importClips(fixture, {QStringLiteral("one.wav"), QStringLiteral("two.wav")});
    fixture.store({{1, januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1)})}});
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        database.setDatabaseName(fixture.database());
        QVERIFY(database.open());
        QVERIFY(QSqlQuery(database).exec(QStringLiteral("UPDATE entry SET position = 7")));
    }
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    QCOMPARE(fixture.onDatabase({QStringLiteral("show")}).status, 1);

    QCOMPARE(fixture.onDatabase({kPrograms}).lines().size(), 3);
    QCOMPARE(fixture.onDatabase({kImport, QStringLiteral("udp://@239.0.0.1:1234")}).status, 0);
    const CtlResult removed = fixture.onDatabase({kRemove, QStringLiteral("1")});
    QCOMPARE(removed.lines(),
             (QStringList{QStringLiteral("Program 1, one, was removed."),
                          QStringLiteral("Its entries in 1 plan are invalid now.")}));
}

TREL_TEST(tst_CtlCatalogue, QCoreApplication)
#include "tst_CtlCatalogue.moc"
