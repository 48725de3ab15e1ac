#include "CtlFixture.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/NamedSchedule.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// A control of the lower and of the upper set, marks that turn the direction around, beside and
/// for what follows, and a separator of lines.
QString hostile()
{
    return QStringLiteral("a\x1b[31m") + QChar(0x9B) + QStringLiteral("2J") + QChar(0x7F) +
           QChar(0x200F) + QChar(0x61C) + QChar(0x202E) + QChar(0x2066) + QChar(0x2028) +
           QStringLiteral("\rz");
}

QString shown()
{
    return QStringLiteral("a\\x1b[31m\\x9b2J\\x7f\\u200f\\u061c\\u202e\\u2066\\u2028\\rz");
}

bool isObeyed(QChar character)
{
    const ushort code = character.unicode();
    return (code < 0x20 && code != '\n') || (code >= 0x7F && code <= 0x9F) || code == 0x61C ||
           code == 0x200E || code == 0x200F || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

bool isHarmless(const QString& text)
{
    return std::none_of(text.begin(), text.end(), isObeyed);
}

void makeHostileDatabase(const QString& path)
{
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path));
    QVERIFY(host.addPrograms(
                    {{hostile(), QStringLiteral("udp://") + hostile(), 0.0, ProgramKind::Live}})
                .store);
    const std::string text = hostile().toStdString();
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "", 1);
    plan.programs.front().progName = text;
    plan.serviceTime = text;
    PlayPlan bad = timePlan(2, text.c_str(), text.c_str(), text.c_str(), 1);
    PlayTask task = januaryTask(1, {plan, bad});
    PlayTask odd = januaryTask(2);
    odd.startDate = text;
    QVERIFY(host.replaceSchedule({{1, task}, {2, odd}}));
    host.close();
}

/// A day of plays of a millisecond each, every day of a month.
void playMilliseconds(const CtlFixture& fixture)
{
    fixture.writeFile(QStringLiteral("clip.mp4"), "x");
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(fixture.database()));
    QVERIFY(host.addPrograms({{QStringLiteral("a"), fixture.path(QStringLiteral("clip.mp4")), 1.0,
                               ProgramKind::Video}})
                .store);
    QVERIFY(
        host.replaceSchedule({{1, januaryTask(1, {timePlan(1, "00:00:00", "23:59:59", "", 1)})}}));
    host.close();
}

} // namespace

/// What comes from elsewhere never reaches the terminal as a command to it.
class tst_CtlTerminal : public QObject
{
    Q_OBJECT

private slots:
    void resultsAreHarmless_data();
    void resultsAreHarmless();
    void jsonMeansTheSame();
    void exportMeansTheSame();
    void longNamesDoNotFillTheTerminal_data();
    void longNamesDoNotFillTheTerminal();
    void playsAreStreamed_data();
    void playsAreStreamed();
    void lostOutputEndsEndlessPlays();
    void errorsAreHarmless_data();
    void errorsAreHarmless();
};

void tst_CtlTerminal::resultsAreHarmless_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* command : {"show", "check", "programs", "now --at 2024-01-03T08:30",
                                "export -", "timeline --from 2024-01-03 --to 2024-01-04",
                                "timeline --plays --from 2024-01-03T08:00 --to 2024-01-03T09:00",
                                "why 1 --at 2024-01-03T08:30", "import tape://x udp://2"}) {
        const QStringList words = QString::fromLatin1(command).split(QLatin1Char(' '));
        QTest::newRow(command) << words;
        if (words.first() != QLatin1String("export")) {
            QTest::addRow("%s --json", command) << (words + QStringList{QStringLiteral("--json")});
        }
    }
}

void tst_CtlTerminal::resultsAreHarmless()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    // The path of the database is told, too.
    const QString database = fixture.path(hostile() + QStringLiteral(".db"));
    makeHostileDatabase(database);
    const CtlResult result =
        fixture.run(arguments + QStringList{QStringLiteral("--database"), database});
    QVERIFY2(isHarmless(result.text()), result.out.toPercentEncoding(" ").constData());
    QVERIFY2(isHarmless(result.err), result.err.toUtf8().toPercentEncoding(" ").constData());
    QVERIFY(!result.out.isEmpty());
}

void tst_CtlTerminal::jsonMeansTheSame()
{
    const CtlFixture fixture;
    makeHostileDatabase(fixture.database());
    const CtlResult result =
        fixture.onDatabase({QStringLiteral("programs"), QStringLiteral("--json")});
    const QJsonArray programs = result.json()[QStringLiteral("programs")].toArray();
    QCOMPARE(programs.first()[QStringLiteral("name")].toString(), hostile());
}

void tst_CtlTerminal::exportMeansTheSame()
{
    const CtlFixture fixture;
    makeHostileDatabase(fixture.database());
    const QByteArray json = fixture.exported();
    const NamedScheduleFromJson read = namedScheduleFromJson(json);
    QCOMPARE(englishText(read), QString());
    QCOMPARE(QString::fromStdString(read.tasks.at(2).startDate), hostile());
    QCOMPARE(QString::fromStdString(read.programs.at(0).name), hostile());
    QCOMPARE(namedScheduleToJson(read.tasks, read.programs), json);
}

void tst_CtlTerminal::longNamesDoNotFillTheTerminal_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* command :
         {"show", "check", "programs", "now --at 2024-01-03T08:30",
          "timeline --from 2024-01-03 --to 2024-01-04", "why 1 --at 2024-01-03T08:30"}) {
        QTest::newRow(command) << QString::fromLatin1(command).split(QLatin1Char(' '));
    }
}

void tst_CtlTerminal::longNamesDoNotFillTheTerminal()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    const QString longText(60000, QLatin1Char('x'));
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(fixture.database()));
    QVERIFY(
        host.addPrograms({{longText, QStringLiteral("udp://") + longText, 0.0, ProgramKind::Live}})
            .store);
    PlayTask task = januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1)});
    task.plans.front().programs.front().progName = longText.toStdString();
    task.plans.push_back(timePlan(2, longText.toLatin1().constData(), "", "", 1));
    QVERIFY(host.replaceSchedule({{1, task}}));
    host.close();
    const CtlResult result = fixture.onDatabase(arguments);
    for (const QString& line : result.lines()) {
        QVERIFY2(line.size() < 3000, qPrintable(line.left(200)));
    }
    QVERIFY(!result.lines().isEmpty());
}

// They would go on for hours into a disk that is full.
void tst_CtlTerminal::lostOutputEndsEndlessPlays()
{
    const CtlFixture fixture;
    playMilliseconds(fixture);
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    fixture.start(process, {QStringLiteral("timeline"), QStringLiteral("--plays"),
                            QStringLiteral("--from"), QStringLiteral("2024-01-03"),
                            QStringLiteral("--to"), QStringLiteral("2025-01-03")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
}

void tst_CtlTerminal::playsAreStreamed_data()
{
    QTest::addColumn<QStringList>("more");
    QTest::newRow("text") << QStringList();
    QTest::newRow("json") << QStringList{QStringLiteral("--json")};
}

/// A year of plays of a millisecond each has no end that anybody would wait for; what was written
/// so far is not kept.
void tst_CtlTerminal::playsAreStreamed()
{
    QFETCH(QStringList, more);
    const CtlFixture fixture;
    playMilliseconds(fixture);
    QProcess process;
    fixture.start(process, QStringList{QStringLiteral("timeline"), QStringLiteral("--plays"),
                                       QStringLiteral("--from"), QStringLiteral("2024-01-03"),
                                       QStringLiteral("--to"), QStringLiteral("2025-01-03")} +
                               more);
    const auto peak = [&process] {
        QFile status(QStringLiteral("/proc/%1/status").arg(process.processId()));
        if (!status.open(QIODevice::ReadOnly)) {
            return 0;
        }
        const QString text = QString::fromLatin1(status.readAll());
        const QRegularExpression form(QStringLiteral("VmHWM:\\s+(\\d+) kB"));
        return form.match(text).captured(1).toInt();
    };
    const auto readOn = [&process](qint64 bytes) {
        for (qint64 read = 0; read < bytes;) {
            if (process.bytesAvailable() == 0 && !process.waitForReadyRead()) {
                return false;
            }
            read += process.read(bytes - read).size();
        }
        return true;
    };
    process.setReadChannel(QProcess::StandardOutput);
    QVERIFY(readOn(1000000));
    const int before = peak();
    QVERIFY(before > 0);
    QVERIFY(readOn(50000000));
    const int after = peak();
    process.kill();
    process.waitForFinished();
    QVERIFY2(after - before < 4096, qPrintable(QStringLiteral("%1 kB more").arg(after - before)));
}

void tst_CtlTerminal::errorsAreHarmless_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString name = hostile();
    const auto row = [](const char* title, const QStringList& arguments) {
        QTest::newRow(title) << arguments;
    };
    const QString option = QStringLiteral("--database");
    row("missing database", {QStringLiteral("show"), option, name});
    row("missing folder", {QStringLiteral("import"), name, option, name + QStringLiteral("/x.db")});
    row("missing file", {QStringLiteral("import-schedule"), name});
    row("export to a folder that is missing",
        {QStringLiteral("export"), name + QStringLiteral("/x"), option,
         QStringLiteral("plain.db")});
    row("import of a file that is missing",
        {QStringLiteral("import"), name, option, QStringLiteral("plain.db")});
    row("command", {name});
    row("option", {QStringLiteral("show"), QStringLiteral("--") + name});
    row("moment", {QStringLiteral("now"), QStringLiteral("--at"), name});
    row("program", {QStringLiteral("why"), name, option, QStringLiteral("plain.db")});
    row("index", {QStringLiteral("remove-program"), name});
    row("language", {QStringLiteral("check-language"), name});
}

void tst_CtlTerminal::errorsAreHarmless()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    QVERIFY(ScheduleHost::instance().open(fixture.path(QStringLiteral("plain.db"))));
    ScheduleHost::instance().close();
    const CtlResult result = fixture.run(arguments);
    QVERIFY(result.status > 0);
    QVERIFY2(isHarmless(result.err + result.text()),
             result.err.toUtf8().toPercentEncoding(" ").constData());
    QVERIFY2(result.err.contains(shown()), qPrintable(result.err));
}

TREL_TEST(tst_CtlTerminal, QCoreApplication)
#include "tst_CtlTerminal.moc"
