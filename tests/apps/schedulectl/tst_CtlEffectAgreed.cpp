#include "CtlFixture.h"
#include "EffectTexts.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

/// Several programs on one store agree on what is in effect, whichever of them changes it and
/// whichever is killed.
class tst_CtlEffectAgreed : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void allNameTheSameScreen();
    void killedWhileWriting();

private:
    QSharedPointer<CtlFixture> m_fixture;
};

namespace {

constexpr unsigned kSeed = 20261122;
/// EFFECT_STEPS and EFFECT_SEED give others for a long trial.
constexpr int kSteps = 120;
constexpr int kKills = 40;
constexpr int kPatience = 30000; // milliseconds
/// How long a follower may take, with what a busy machine adds.
constexpr int kFollowing = 3000; // milliseconds

const char* const kReasons[] = {"nothingInEffect", "noPlanYet",           "planPlays",
                                "planHasNothing",  "planRanOut",          "planEnded",
                                "insertionPlays",  "insertionHasNothing", "insertionRanOut"};

int numberOf(const char* name, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? number : otherwise;
}

/// A program of its own that answers line by line.
class Child
{
public:
    Child(const QString& task, const QString& store, const QString& more = {})
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(EFFECT_CHILD), {task, store, more});
    }
    ~Child() { kill(); }
    Q_DISABLE_COPY(Child)

    QString ask(const QString& line)
    {
        tell(line);
        return answer();
    }
    void tell(const QString& line) { m_process.write(line.toUtf8() + '\n'); }
    QString answer()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(kPatience)) {
        }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }
    /// At the latest; it may have ended before.
    void killAfter(int milliseconds)
    {
        m_process.waitForFinished(milliseconds);
        kill();
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(kPatience);
    }
    /// What it has said up to its end.
    QStringList lines()
    {
        return QString::fromUtf8(m_process.readAllStandardOutput())
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    void flush() { m_process.waitForBytesWritten(kPatience); }

private:
    QProcess m_process;
};

/// What the store itself says, worked out by the pure function.
QString storedState(const QString& path, Instant moment)
{
    ScheduleHost& host = ScheduleHost::instance();
    if (!host.open(path, ScheduleHost::OpenMode::ReadOnly)) {
        return QStringLiteral("unreadable");
    }
    QString text = stateText(ScreenState());
    if (host.started()) {
        const ScreenTimeline timeline(host.dispatch().tasks(), *host.catalogue(),
                                      QTimeZone(QTimeZone::systemTimeZoneId()));
        text = stateText(timeline.at(moment, host.dispatch().insertions()));
    }
    host.close();
    return text;
}

QString consoleState(const CtlFixture& fixture, Instant moment)
{
    const QString at = QDateTime::fromMSecsSinceEpoch(moment).toOffsetFromUtc(0).toString(
        QStringLiteral("yyyy-MM-ddTHH:mm:ss+00:00"));
    const QJsonObject json = fixture
                                 .onDatabase({QStringLiteral("now"), QStringLiteral("--json"),
                                              QStringLiteral("--at"), at})
                                 .json();
    if (json[QStringLiteral("effect")].isNull()) {
        return stateText(ScreenState());
    }
    const QJsonObject now = json[QStringLiteral("now")].toObject();
    const QString screen = now[QStringLiteral("screen")].toString();
    ScreenState state;
    state.picture = screen == QLatin1String("playing")  ? ScreenPicture::Playing
                    : screen == QLatin1String("frozen") ? ScreenPicture::Frozen
                                                        : ScreenPicture::Black;
    for (int reason = 0; reason < int(std::size(kReasons)); ++reason) {
        if (now[QStringLiteral("reason")].toString() == QLatin1String(kReasons[reason])) {
            state.reason = ScreenReason(reason);
        }
    }
    state.progIndex = now[QStringLiteral("program")].toInt(ScreenState().progIndex);
    const QJsonValue until = now[QStringLiteral("until")];
    state.until =
        until.isNull()
            ? kNever
            : QDateTime::fromString(until.toString(), Qt::ISODateWithMs).toMSecsSinceEpoch();
    return stateText(state);
}

/// A whole second that is to come, as the console takes no others.
Instant nextSecond()
{
    constexpr Instant second = 1000;
    return (QDateTime::currentMSecsSinceEpoch() / second + 1) * second;
}

} // namespace

void tst_CtlEffectAgreed::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    m_fixture->writeClip(QStringLiteral("A.wav"), 3000);
    m_fixture->writeClip(QStringLiteral("B.wav"), 2000);
    QCOMPARE(m_fixture
                 ->onDatabase(
                     {QStringLiteral("import"), QStringLiteral("A.wav"), QStringLiteral("B.wav")})
                 .status,
             0);
    m_fixture->store(generationTasks(0));
}

void tst_CtlEffectAgreed::cleanup()
{
    ScheduleHost::instance().close();
}

void tst_CtlEffectAgreed::allNameTheSameScreen()
{
    const auto seed = static_cast<unsigned>(numberOf("EFFECT_SEED", int(kSeed)));
    const int steps = numberOf("EFFECT_STEPS", kSteps);
    std::mt19937 random(seed);
    const auto draw = [&random](int count) {
        return int(std::uniform_int_distribution<int>(0, count - 1)(random));
    };
    const QString path = m_fixture->database();
    const QString follow = QStringLiteral("follow");
    auto editor = std::make_unique<Child>(follow, path);
    QCOMPARE(editor->answer(), QStringLiteral("0"));
    Child follower(follow, path);
    QCOMPARE(follower.answer(), QStringLiteral("0"));
    int insertions = 0;

    for (int step = 0; step < steps; ++step) {
        const QString plan = QStringLiteral("%1").arg(1 + draw(5));
        const bool isDelayed = draw(2) == 1;
        const bool isConsole = draw(2) == 1;
        QString line;
        QStringList words;
        switch (draw(7)) {
        case 0:
            line = QStringLiteral("start");
            words = QStringList{line};
            break;
        case 1:
            line = QStringLiteral("stop");
            words = QStringList{line};
            break;
        case 2:
            line = QStringLiteral("cancel");
            words = QStringList{QStringLiteral("cancel-insertion")};
            break;
        default:
            line =
                QStringLiteral("insert 1 %1 %2")
                    .arg(plan, isDelayed ? QStringLiteral("delayed") : QStringLiteral("at-once"));
            words = QStringList{QStringLiteral("insert"), QStringLiteral("1/") + plan};
            if (isDelayed) {
                words.append(QStringLiteral("--delayed"));
            }
            break;
        }
        const int fate = draw(10);
        if (fate == 0) {
            // Killed in the middle, or before, or after: nobody knows.
            editor->tell(line);
            editor->flush();
            editor->killAfter(draw(4));
            editor = std::make_unique<Child>(follow, path);
            QCOMPARE(editor->answer(), QStringLiteral("0"));
        } else if (fate == 1) {
            // Both at once.
            editor->tell(line);
            editor->flush();
            m_fixture->onDatabase(words);
            QCOMPARE(editor->answer(), QStringLiteral("0"));
        } else if (isConsole) {
            m_fixture->onDatabase(words);
        } else {
            QCOMPARE(editor->ask(line), QStringLiteral("0"));
        }

        const Instant moment = nextSecond();
        const QString question = QStringLiteral("at %1").arg(moment);
        const QString expected = storedState(path, moment);
        insertions += expected.contains(QStringLiteral(" 6 ")) ? 1 : 0;
        const QString context =
            QStringLiteral("seed %1, step %2: %3").arg(seed).arg(step).arg(line);
        QVERIFY2(expected != QLatin1String("unreadable"), qPrintable(context));
        QCOMPARE(context + consoleState(*m_fixture, moment), context + expected);
        for (Child* child : {editor.get(), &follower}) {
            QTRY_COMPARE_WITH_TIMEOUT(context + child->ask(question), context + expected,
                                      kFollowing);
        }
    }
    QVERIFY2(insertions > 0, "The steps never came to an insertion.");
}

void tst_CtlEffectAgreed::killedWhileWriting()
{
    std::mt19937 random(kSeed);
    const QString path = m_fixture->database();
    ScheduleHost& host = ScheduleHost::instance();
    int generation = 1;
    bool isInserted = false;
    for (int kill = 0; kill < kKills; ++kill) {
        Child child(QStringLiteral("write"), path, QString::number(generation));
        QCOMPARE(child.answer(), QStringLiteral("0"));
        child.killAfter(std::uniform_int_distribution<int>(1, 60)(random));
        const QStringList lines = child.lines();
        const int last =
            lines.isEmpty() ? generation - 1 : lines.last().section(QLatin1Char(' '), 0, 0).toInt();
        QVERIFY(host.open(path, ScheduleHost::OpenMode::MustExist));
        const auto& tasks = host.dispatch().tasks();
        if (host.started()) {
            // One of them, whole.
            const int found = tasks.begin()->second.plans.front().serviceCount;
            QVERIFY2(found == last || found == last + 1, qPrintable(lines.join(QLatin1Char('\n'))));
            QVERIFY(tasks == generationTasks(found));
            const ScreenInsertions& insertions = host.dispatch().insertions();
            QVERIFY(insertions.size() <= 1);
            isInserted = isInserted || !insertions.empty();
            for (const ScreenInsertion& insertion : insertions) {
                QVERIFY(insertion.plan == generationInsertion(found));
            }
            // What was told of is there.
            QVERIFY(!lines.contains(QStringLiteral("%1 inserted").arg(found)) ||
                    insertions.size() == 1);
            QVERIFY(!lines.contains(QStringLiteral("%1 stopped").arg(found)));
            generation = found + 1;
        } else {
            QVERIFY(tasks.empty());
            QVERIFY2(lines.isEmpty() || last % 3 == 0, qPrintable(lines.join(QLatin1Char('\n'))));
            generation = last + 2;
        }
        host.close();
    }
    QVERIFY(isInserted);
}

QTEST_GUILESS_MAIN(tst_CtlEffectAgreed)
#include "tst_CtlEffectAgreed.moc"
