#include "support/TestProgram.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

#include <sys/stat.h>

using namespace trel::mediadispatch;

/// What players tell of themselves, from one program to another.
class tst_PlayerStatusFolder : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldComesBack();
    void eachScreenHasItsOwn();
    void namesLeadNowhereElse_data();
    void namesLeadNowhereElse();
    void namesThatNoFileTakes();
    void whatIsNoStatusIsLeftOut_data();
    void whatIsNoStatusIsLeftOut();
    void whatIsNoFileIsLeftOut();
    void longWordsAreCut();
    void aFolderThatCannotBeMade();
    void aLinkIsNotFollowed();
    void aScreenThatEnds();
};

namespace {

PlayerStatus fullStatus(const QString& screen)
{
    PlayerStatus status;
    status.screen = screen;
    status.player = QStringLiteral("schedule-player 17@lobby");
    status.started = 1000;
    status.heard = 2000;
    status.shown.picture = ScreenPicture::Frozen;
    status.shown.reason = ScreenReason::InsertionRanOut;
    status.shown.taskId = 1;
    status.shown.planId = 2;
    status.shown.planRow = 3;
    status.shown.entry = 4;
    status.shown.progIndex = 5;
    status.shown.play = 6;
    status.shown.run = std::numeric_limits<qint64>::max() - 1;
    status.shown.position = 7;
    status.shown.since = kEver;
    status.shown.until = kNever;
    status.shown.spanUntil = kNever - 1;
    status.program = QStringLiteral("天气 <b>");
    status.isStandIn = true;
    status.keepsLastPicture = true;
    status.switches = 8;
    status.medianLateness = 0.25;
    status.worstLateness = 12.5;
    status.faults = 9;
    status.lastFault = QStringLiteral("It stalled.");
    status.lastFaultAt = 1500;
    return status;
}

/// All that a status says, as a line.
QString lineOf(const PlayerStatus& status)
{
    QString line;
    QDebug out(&line);
    const ScreenState& shown = status.shown;
    out << status.screen << status.player << status.started << status.heard
        << static_cast<int>(shown.picture) << static_cast<int>(shown.reason) << shown.taskId
        << shown.planId << shown.planRow << shown.entry << shown.progIndex << shown.play
        << shown.run << shown.position << shown.since << shown.until << shown.spanUntil
        << status.program << status.isStandIn << status.keepsLastPicture << status.switches
        << status.medianLateness << status.worstLateness << status.faults << status.lastFault
        << status.lastFaultAt;
    return line;
}

class Fixture
{
public:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString screens() const { return path(QStringLiteral("a.db-screens")); }
    QByteArray content(const QString& name) const
    {
        QFile file(screens() + QLatin1Char('/') + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void put(const QString& name, const QByteArray& content) const
    {
        QFile file(screens() + QLatin1Char('/') + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

private:
    QTemporaryDir m_folder;

public:
    PlayerStatusFolder folder{path(QStringLiteral("a.db"))};
};

} // namespace

void tst_PlayerStatusFolder::everyFieldComesBack()
{
    const Fixture fixture;
    QVERIFY(fixture.folder.read().empty());
    const PlayerStatus status = fullStatus(QStringLiteral("lobby"));
    QVERIFY(!fixture.folder.write(status));
    const std::vector<PlayerStatus> read = fixture.folder.read();
    QCOMPARE(read.size(), 1U);
    QCOMPARE(lineOf(read.front()), lineOf(status));
}

void tst_PlayerStatusFolder::eachScreenHasItsOwn()
{
    const Fixture fixture;
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("lobby"))));
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("Bar"))));
    PlayerStatus later = fullStatus(QStringLiteral("lobby"));
    later.heard = 3000;
    QVERIFY(!fixture.folder.write(later));
    const std::vector<PlayerStatus> read = fixture.folder.read();
    QCOMPARE(read.size(), 2U);
    QCOMPARE(read[0].screen, QStringLiteral("Bar"));
    QCOMPARE(read[1].heard, Instant(3000));
    QCOMPARE(QDir(fixture.screens()).entryList(QDir::Files),
             QStringList({QStringLiteral("Bar.json"), QStringLiteral("lobby.json")}));
}

void tst_PlayerStatusFolder::namesLeadNowhereElse_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("folder above") << QStringLiteral("../../a");
    QTest::newRow("this folder") << QStringLiteral(".");
    QTest::newRow("absolute") << QStringLiteral("/tmp/a");
    QTest::newRow("blank and percent") << QStringLiteral("a %2e b");
    QTest::newRow("other script") << QStringLiteral("大厅");
    QTest::newRow("what needs no sign") << QStringLiteral("Hall-09_zZ{[`@");
    QTest::newRow("the sign itself") << QStringLiteral("+2e");
}

void tst_PlayerStatusFolder::namesLeadNowhereElse()
{
    QFETCH(QString, name);
    const Fixture fixture;
    QVERIFY(PlayerStatusFolder::takesName(name));
    QVERIFY(!fixture.folder.write(fullStatus(name)));
    QCOMPARE(fixture.folder.read().size(), 1U);
    QCOMPARE(fixture.folder.read().front().screen, name);
    const QStringList files = QDir(fixture.screens()).entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(files.size(), 1);
    QVERIFY2(
        QRegularExpression(QStringLiteral("^[-A-Za-z0-9_+]+\\.json$")).match(files[0]).hasMatch(),
        qPrintable(files[0]));
    QCOMPARE(QFileInfo(fixture.folder.lockPath(name)).absolutePath(), fixture.screens());
}

void tst_PlayerStatusFolder::namesThatNoFileTakes()
{
    QVERIFY(!PlayerStatusFolder::takesName(QString()));
    QVERIFY(!PlayerStatusFolder::takesName(QStringLiteral("a\nb")));
    QVERIFY(!PlayerStatusFolder::takesName(QStringLiteral("a\u202eb")));
    QVERIFY(PlayerStatusFolder::takesName(QString(240, QLatin1Char('a'))));
    QVERIFY(!PlayerStatusFolder::takesName(QString(241, QLatin1Char('a'))));
    QVERIFY(PlayerStatusFolder::takesName(QString(26, QChar(0x5927))));
    QVERIFY(!PlayerStatusFolder::takesName(QString(27, QChar(0x5927))));
}

void tst_PlayerStatusFolder::whatIsNoStatusIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("no JSON") << QByteArray("{") << QByteArray("[[");
    QTest::newRow("other format") << QByteArray("trel-screen") << QByteArray("trel-schedule");
    QTest::newRow("newer") << QByteArray("\"version\": 1") << QByteArray("\"version\": 2");
    QTest::newRow("another's name") << QByteArray("\"lobby\"") << QByteArray("\"bar\"");
    QTest::newRow("picture") << QByteArray("\"picture\": 2") << QByteArray("\"picture\": 3");
    QTest::newRow("no picture") << QByteArray("\"picture\"") << QByteArray("\"pictures\"");
    QTest::newRow("no name") << QByteArray("\"screen\": \"lobby\"")
                             << QByteArray("\"screen\": \"\"");
    QTest::newRow("no reason") << QByteArray("\"reason\"") << QByteArray("\"reasons\"");
    QTest::newRow("reason") << QByteArray("\"reason\": 8") << QByteArray("\"reason\": 9");
}

void tst_PlayerStatusFolder::whatIsNoStatusIsLeftOut()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    const Fixture fixture;
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("lobby"))));
    QByteArray content = fixture.content(QStringLiteral("lobby.json"));
    QVERIFY2(content.contains(from), content.constData());
    fixture.put(QStringLiteral("lobby.json"), content.replace(from, to));
    QVERIFY(fixture.folder.read().empty());
}

void tst_PlayerStatusFolder::whatIsNoFileIsLeftOut()
{
    const Fixture fixture;
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("lobby"))));
    const QString pipe = fixture.screens() + QStringLiteral("/pipe.json");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(QDir(fixture.screens()).mkdir(QStringLiteral("folder.json")));
    QVERIFY(
        QFile::link(QStringLiteral("/dev/zero"), fixture.screens() + QStringLiteral("/zero.json")));
    fixture.put(QStringLiteral("large.json"), QByteArray(1000000, ' '));
    QCOMPARE(fixture.folder.read().size(), 1U);
}

void tst_PlayerStatusFolder::longWordsAreCut()
{
    const Fixture fixture;
    PlayerStatus status = fullStatus(QStringLiteral("lobby"));
    status.program = QString(100000, QLatin1Char('x'));
    status.lastFault = status.program;
    QVERIFY(!fixture.folder.write(status));
    const std::vector<PlayerStatus> read = fixture.folder.read();
    QCOMPARE(read.size(), 1U);
    QCOMPARE(read.front().program.size(), 1000);
    QCOMPARE(read.front().lastFault.size(), 1000);
}

void tst_PlayerStatusFolder::aFolderThatCannotBeMade()
{
    const Fixture fixture;
    QFile inTheWay(fixture.screens());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const Fault fault = fixture.folder.write(fullStatus(QStringLiteral("lobby")));
    QCOMPARE(fault.code, FaultCode::System);
    QCOMPARE(fault.number(0), ENOTDIR);
    QVERIFY(fixture.folder.read().empty());
}

void tst_PlayerStatusFolder::aLinkIsNotFollowed()
{
    const Fixture fixture;
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("bar"))));
    const QString victim = fixture.path(QStringLiteral("victim"));
    QFile file(victim);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(QFile::link(victim, fixture.screens() + QStringLiteral("/lobby.json")));
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("lobby"))));
    QCOMPARE(QFileInfo(victim).size(), 0);
    QCOMPARE(fixture.folder.read().size(), 2U);
}

void tst_PlayerStatusFolder::aScreenThatEnds()
{
    const Fixture fixture;
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("lobby"))));
    QVERIFY(!fixture.folder.write(fullStatus(QStringLiteral("bar"))));
    fixture.folder.remove(QStringLiteral("lobby"));
    QCOMPARE(fixture.folder.read().size(), 1U);
    QCOMPARE(fixture.folder.read().front().screen, QStringLiteral("bar"));
}

TREL_TEST(tst_PlayerStatusFolder, QCoreApplication)
#include "tst_PlayerStatusFolder.moc"
