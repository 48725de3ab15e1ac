#include "RecordedFixture.h"
#include "support/TestProgram.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace trel::mediadispatch;

/// What the players have had on screen, in the console.
class tst_CtlAsRun : public QObject
{
    Q_OBJECT

private slots:
    void aList();
    void aListOfATimeAndAProgram();
    void whatAClockThatLeaptHasBetween();
    void screensHaveAPartEach();
    void readingNeedsNoRightToWrite();
    void forMachines();
    void forSpreadsheets();
    void noNameBecomesAFormula_data();
    void noNameBecomesAFormula();
    void namesDoNotReachTheTerminal();
    void totals();
    void verifiedAndWhole();
    void tamperedWith();
    void unexplained();
    void oldOnesAreRemoved();
    void nothingRecordedYet();
    void misuse_data();
    void misuse();
};

void tst_CtlAsRun::aList()
{
    RecordedFixture fixture;
    fixture.records[2].late = 120;
    fixture.records[2].begins += 120;
    fixture.records[1].ends += 120;
    fixture.records[3].shown = AsRunShown::StandBy;
    fixture.records[3].why = QStringLiteral("no such file");
    fixture.records[4].kind = AsRunKind::Gap;
    fixture.records[4].outcome = AsRunOutcome::PlayerWasKilled;
    fixture.records[5].outcome = AsRunOutcome::CutByInsertion;
    fixture.hand();
    const CtlResult result = fixture.asRun();
    QCOMPARE(result.status, 0);
    QCOMPARE(
        result.lines(),
        (QStringList{
            QStringLiteral("Screen \"hall\""),
            QStringLiteral("From                     To                           Late  On screen"),
            QStringLiteral(
                "2024-01-03 08:00:00                                         follows what is "
                "in effect, save 4"),
            QStringLiteral(
                "2024-01-03 08:00:00      08:00:10.120                       plays News"),
            QStringLiteral(
                "2024-01-03 08:00:10.120  08:00:20                   120 ms  plays Weather"),
            QStringLiteral("2024-01-03 08:00:20      08:00:30                           stand-by "
                           "picture for News (complete: no such file)"),
            QStringLiteral("2024-01-03 08:00:30      08:00:40                           no player "
                           "(the player had been killed)"),
            QStringLiteral("2024-01-03 08:00:40      08:00:50                           plays News "
                           "(cut off by an insertion)"),
            QStringLiteral(
                "2024-01-03 08:00:50      08:01:00                           plays Weather"),
        }));
}

void tst_CtlAsRun::aListOfATimeAndAProgram()
{
    RecordedFixture fixture;
    fixture.hand();
    const QStringList times = {QStringLiteral("--from"), QStringLiteral("2024-01-03 08:00:15"),
                               QStringLiteral("--to"), QStringLiteral("2024-01-03 08:00:31")};
    QCOMPARE(fixture.asRun(times).lines().size(), 2 + 3);
    QCOMPARE(
        fixture.asRun(times + QStringList{QStringLiteral("--program"), QStringLiteral("WEATH")})
            .lines()
            .size(),
        2 + 2);
    QCOMPARE(fixture.asRun(times + QStringList{QStringLiteral("--program"), QStringLiteral("1")})
                 .lines()
                 .size(),
             2 + 1);
    QCOMPARE(fixture.asRun({QStringLiteral("--from"), QStringLiteral("2025-01-01")}).lines(),
             QStringList{QStringLiteral("There is no record of this time.")});
}

void tst_CtlAsRun::whatAClockThatLeaptHasBetween()
{
    RecordedFixture fixture;
    fixture.records[3].begins -= 3'600'000;
    fixture.records[3].ends -= 3'600'000;
    fixture.hand();
    const QStringList lines =
        fixture
            .asRun({QStringLiteral("--from"), QStringLiteral("2024-01-03 08:00:15"),
                    QStringLiteral("--to"), QStringLiteral("2024-01-03 08:00:45")})
            .lines();
    QCOMPARE(lines.size(), 2 + 3);
    QVERIFY(lines.filter(QStringLiteral("07:00:20")).isEmpty());
}

void tst_CtlAsRun::readingNeedsNoRightToWrite()
{
    RecordedFixture fixture;
    fixture.hand();
    const QString file = AsRunDatabase::pathFor(fixture.database());
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
    for (const char* const option : {"--json", "--csv", "--totals", "--verify"}) {
        QCOMPARE(fixture.asRun({QLatin1String(option)}).status, 0);
    }
    QCOMPARE(fixture.asRun().lines().size(), 2 + 7);
    QCOMPARE(fixture.asRun({QStringLiteral("--keep"), QStringLiteral("1")}).status, 1);
    QCOMPARE(fixture.asRun().lines().size(), 2 + 7);
}

void tst_CtlAsRun::screensHaveAPartEach()
{
    RecordedFixture fixture;
    fixture.hand();
    fixture.hand(QStringLiteral("bar"));
    QCOMPARE(fixture.asRun().lines().size(), 2 * (2 + 7));
    QCOMPARE(fixture.asRun({QStringLiteral("--screen"), QStringLiteral("bar")}).lines().size(),
             2 + 7);
    const CtlResult none = fixture.asRun({QStringLiteral("--screen"), QStringLiteral("roof")});
    QCOMPARE(none.status, 1);
    QVERIFY(none.err.contains(QStringLiteral("but of \"bar\", \"hall\".")));
}

void tst_CtlAsRun::forMachines()
{
    RecordedFixture fixture;
    fixture.records[2].why = QStringLiteral("odd \"one\"");
    fixture.hand();
    const QJsonArray list =
        fixture.asRun({QStringLiteral("--json")}).json().value(QStringLiteral("records")).toArray();
    QCOMPARE(list.size(), 7);
    QCOMPARE(list[0].toObject().value(QStringLiteral("kind")).toString(),
             QStringLiteral("scheduleTaken"));
    QVERIFY(list[0].toObject().value(QStringLiteral("plannedFrom")).isNull());
    QVERIFY(list[0].toObject().value(QStringLiteral("plannedTo")).isNull());
    const QJsonObject second = list[2].toObject();
    QCOMPARE(second.value(QStringLiteral("screen")).toString(), kHall);
    QCOMPARE(second.value(QStringLiteral("number")).toInt(), 3);
    QCOMPARE(second.value(QStringLiteral("from")).toString(),
             QStringLiteral("2024-01-03T08:00:10.000+01:00"));
    QCOMPARE(second.value(QStringLiteral("entry")).toInt(), 2);
    QCOMPARE(second.value(QStringLiteral("program")).toString(), QStringLiteral("Weather"));
    QCOMPARE(second.value(QStringLiteral("why")).toString(), QStringLiteral("odd \"one\""));
    QCOMPARE(second.value(QStringLiteral("hash")).toString().size(), 64);
    QVERIFY(second.value(QStringLiteral("insertion")).isNull());
    const QJsonObject none =
        fixture
            .asRun({QStringLiteral("--json"), QStringLiteral("--to"), QStringLiteral("2020-01-01")})
            .json();
    QVERIFY(none.value(QStringLiteral("records")).toArray().isEmpty());
}

void tst_CtlAsRun::forSpreadsheets()
{
    RecordedFixture fixture;
    fixture.records[1].program = QStringLiteral("News, \"late\"");
    fixture.hand();
    const QStringList lines = fixture.asRun({QStringLiteral("--csv")}).lines();
    QCOMPARE(lines.size(), 1 + 7);
    QVERIFY(lines[0].startsWith(QStringLiteral("screen,number,kind,from,to,lengthMs,program,")));
    QVERIFY2(lines[2].startsWith(QStringLiteral(
                 "hall,2,picture,2024-01-03T08:00:00.000+01:00,2024-01-03T08:00:10.000+01:00,"
                 "10000,\"News, \"\"late\"\"\",1,playing,asPlanned,1,3,1,1,1,1,,4,")),
             qPrintable(lines[2]));
    QCOMPARE(lines[3].count(QLatin1Char(',')), lines[0].count(QLatin1Char(',')));
    const QStringList taken = lines[1].split(QLatin1Char(','));
    QCOMPARE(taken.size(), lines[0].split(QLatin1Char(',')).size());
    for (const char* const column : {"picture", "shown", "plannedFrom", "plannedTo", "outcome"}) {
        const int at = lines[0].split(QLatin1Char(',')).indexOf(QLatin1String(column));
        QVERIFY2(taken.at(at).isEmpty(), column);
    }
}

void tst_CtlAsRun::noNameBecomesAFormula_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("field");
    QTest::newRow("equal") << QStringLiteral("=1+1") << QStringLiteral("'=1+1");
    QTest::newRow("plus") << QStringLiteral("+1") << QStringLiteral("'+1");
    QTest::newRow("minus") << QStringLiteral("-1") << QStringLiteral("'-1");
    QTest::newRow("at") << QStringLiteral("@A1") << QStringLiteral("'@A1");
    QTest::newRow("wide") << QStringLiteral("\uFF1D1") << QStringLiteral("'\uFF1D1");
    QTest::newRow("blanks") << QStringLiteral(" =1") << QStringLiteral("' =1");
    QTest::newRow("tab") << QStringLiteral("\t=1") << QStringLiteral("'\\t=1");
    QTest::newRow("line") << QStringLiteral("a\n=1") << QStringLiteral("a\\n=1");
    QTest::newRow("comma") << QStringLiteral("=1,2") << QStringLiteral("\"'=1,2\"");
    QTest::newRow("command") << QStringLiteral("=cmd|' /C calc'!A0")
                             << QStringLiteral("'=cmd|' /C calc'!A0");
    QTest::newRow("semicolon") << QStringLiteral("a; =1;b;-2") << QStringLiteral("a;' =1;b;'-2");
    QTest::newRow("plain") << QStringLiteral("a=1") << QStringLiteral("a=1");
}

void tst_CtlAsRun::noNameBecomesAFormula()
{
    QFETCH(const QString, name);
    QFETCH(const QString, field);
    RecordedFixture fixture;
    fixture.records[1].program = name;
    fixture.hand();
    const QStringList list = fixture.asRun({QStringLiteral("--csv")}).lines();
    QVERIFY2(list[2].contains(QStringLiteral(",10000,%1,1,playing,").arg(field)),
             qPrintable(list[2]));
    const QString sums =
        fixture.asRun({QStringLiteral("--csv"), QStringLiteral("--totals")}).text();
    QVERIFY(!sums.contains(QStringLiteral("\n=")) && !sums.contains(QStringLiteral(",=")));
}

void tst_CtlAsRun::namesDoNotReachTheTerminal()
{
    const std::string name = "\x1b[2Jbad\nScreen";
    RecordedFixture fixture(name);
    fixture.records[1].why = QStringLiteral("\x1b]0;x\x07");
    fixture.hand(QStringLiteral("ha\x1bll"));
    for (const char* const option : {"", "--csv", "--json", "--totals", "--verify"}) {
        const QStringList options =
            *option == '\0' ? QStringList() : QStringList{QLatin1String(option)};
        const CtlResult result = fixture.asRun(options);
        QVERIFY(!result.out.contains('\x1b') && !result.out.contains('\x07'));
    }
    for (const QString& line : fixture.asRun().lines().mid(1)) {
        QVERIFY(!line.startsWith(QStringLiteral("Screen")));
    }
}

void tst_CtlAsRun::totals()
{
    RecordedFixture fixture;
    fixture.records[3].shown = AsRunShown::StandBy;
    fixture.hand();
    const CtlResult result = fixture.asRun({QStringLiteral("--totals")});
    QCOMPARE(result.status, 0);
    QCOMPARE(
        result.lines(),
        (QStringList{
            QStringLiteral("Screen \"hall\""),
            QStringLiteral("Index  Planned       Length  Shown       Length     Replaced    No "
                           "player  Program"),
            QStringLiteral(
                "    1        3  0:00:30.000      2  0:00:20.000  0:00:10.000  0:00:00.000  News"),
            QStringLiteral("    2        3  0:00:30.000      3  0:00:30.000  0:00:00.000  "
                           "0:00:00.000  Weather"),
        }));
    const QJsonArray sums = fixture.asRun({QStringLiteral("--totals"), QStringLiteral("--json")})
                                .json()
                                .value(QStringLiteral("totals"))
                                .toArray();
    QCOMPARE(sums.size(), 2);
    QCOMPARE(sums[0].toObject().value(QStringLiteral("shownMs")).toInt(), 20'000);
    QCOMPARE(fixture
                 .asRun({QStringLiteral("--totals"), QStringLiteral("--csv"),
                         QStringLiteral("--program"), QStringLiteral("2")})
                 .lines()
                 .mid(1),
             QStringList{QStringLiteral("hall,2,Weather,3,30000,3,30000,0,0")});
}

void tst_CtlAsRun::verifiedAndWhole()
{
    RecordedFixture fixture;
    fixture.hand();
    const CtlResult result = fixture.asRun({QStringLiteral("--verify")});
    QCOMPARE(result.status, 0);
    const QStringList lines = result.lines();
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], QStringLiteral("Screen \"hall\": 7 records."));
    QVERIFY(lines[1].startsWith(QStringLiteral("The chain is whole. It ends with record 7, ")));
    QCOMPARE(lines[2],
             QStringLiteral("On screen as planned 0:01:00.000, late 0:00:00.000, replaced "
                            "0:00:00.000, no player 0:00:00.000, unexplained 0:00:00.000."));
    QCOMPARE(lines[3], QStringLiteral("Every deviation from the timeline is explained."));
}

void tst_CtlAsRun::tamperedWith()
{
    RecordedFixture fixture;
    fixture.hand();
    fixture.tamper(
        "UPDATE record SET late = 7 WHERE number = 3; DELETE FROM record WHERE number = 6");
    const CtlResult result = fixture.asRun({QStringLiteral("--verify")});
    QCOMPARE(result.status, 1);
    QVERIFY(result.text().contains(
        QStringLiteral("The chain is broken at 2 places.\n"
                       "  Record 3, of 2024-01-03 08:00:10, was changed.\n"
                       "  Record 6 is missing, near 2024-01-03 08:00:50.\n")));
    QVERIFY(result.text().contains(
        QStringLiteral("2024-01-03 08:00:40 to 08:00:50: no record says what was on screen.")));
    const QJsonObject screen = fixture.asRun({QStringLiteral("--verify"), QStringLiteral("--json")})
                                   .json()
                                   .value(QStringLiteral("screens"))
                                   .toArray()[0]
                                   .toObject();
    QCOMPARE(screen.value(QStringLiteral("good")).toBool(true), false);
    QCOMPARE(screen.value(QStringLiteral("breakCount")).toInt(), 2);
    QCOMPARE(screen.value(QStringLiteral("deviations")).toArray().size(), 1);
}

void tst_CtlAsRun::unexplained()
{
    RecordedFixture fixture;
    fixture.records[2].progIndex = 1;
    fixture.records[2].program = QStringLiteral("News");
    fixture.hand();
    const CtlResult result = fixture.asRun({QStringLiteral("--verify")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.text().contains(QStringLiteral(
                 "1 deviation from the timeline is not explained:\n"
                 "  2024-01-03 08:00:10 to 08:00:20: the program planned is Weather, the one on "
                 "screen News (record 3), and no record says why.\n")),
             qPrintable(result.text()));
}

void tst_CtlAsRun::oldOnesAreRemoved()
{
    RecordedFixture fixture;
    constexpr qint64 day = 86'400'000;
    AsRunRecord recent = fixture.records.back();
    recent.begins = QDateTime::currentMSecsSinceEpoch() - 29 * day;
    recent.ends = recent.begins + 1000;
    fixture.records.push_back(recent);
    fixture.hand();
    const CtlResult result = fixture.asRun({QStringLiteral("--keep"), QStringLiteral("30")});
    QCOMPARE(result.status, 0);
    QVERIFY(
        result.text().startsWith(QStringLiteral("7 records of the screen \"hall\" from before ")));
    QCOMPARE(fixture.asRun().lines().size(), 2 + 1);
    QVERIFY(fixture.asRun({QStringLiteral("--verify")})
                .text()
                .contains(QStringLiteral("The chain is whole.")));
}

void tst_CtlAsRun::nothingRecordedYet()
{
    RecordedFixture fixture;
    const CtlResult result = fixture.asRun();
    QCOMPARE(result.status, 1);
    QVERIFY(result.err.contains(QStringLiteral("A player makes it when it shows the schedule.")));
    QVERIFY(fixture.files().isEmpty());
}

void tst_CtlAsRun::misuse_data()
{
    QTest::addColumn<QStringList>("options");
    const auto add = [](const char* name, const char* options) {
        QTest::newRow(name) << QString::fromLatin1(options).split(QLatin1Char(' '));
    };
    add("two", "--totals --verify");
    add("forms", "--csv --json");
    add("verify as csv", "--verify --csv");
    add("verify one program", "--verify --program 1");
    add("keep and from", "--keep 3 --from 2024-01-01");
    add("keep none", "--keep 0");
    add("keep words", "--keep all");
    add("backwards", "--from 2024-01-02 --to 2024-01-01");
    add("no moment", "--from yesterday");
}

void tst_CtlAsRun::misuse()
{
    QFETCH(const QStringList, options);
    RecordedFixture fixture;
    fixture.hand();
    const CtlResult result = fixture.asRun(options);
    QCOMPARE(result.status, 2);
    QVERIFY(result.out.isEmpty());
    QVERIFY(!result.err.isEmpty());
}

TREL_TEST(tst_CtlAsRun, QCoreApplication)
#include "tst_CtlAsRun.moc"
