#include "ScheduleWriting.h"
#include "StateWriting.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/ProgramVerdict.h"

#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

const char* ruleText(VerdictRule rule)
{
    switch (rule) {
    case VerdictRule::Plays:
        return "plays";
    case VerdictRule::TaskNotValid:
        return "task not valid";
    case VerdictRule::OtherTask:
        return "other task";
    case VerdictRule::OtherWeekday:
        return "other weekday";
    case VerdictRule::SpanUnreadable:
        return "span unreadable";
    case VerdictRule::SpanEmpty:
        return "span empty";
    case VerdictRule::SpanInverted:
        return "span inverted";
    case VerdictRule::NotYet:
        return "not yet";
    case VerdictRule::Over:
        return "over";
    case VerdictRule::EarlierRow:
        return "earlier row";
    case VerdictRule::Insertion:
        return "insertion";
    case VerdictRule::EntryInvalid:
        return "entry invalid";
    case VerdictRule::NotInCatalogue:
        return "not in catalogue";
    case VerdictRule::FileGone:
        return "file gone";
    case VerdictRule::NoLength:
        return "no length";
    case VerdictRule::NoPlays:
        return "no plays";
    case VerdictRule::NoRuns:
        return "no runs";
    case VerdictRule::RanOut:
        return "ran out";
    case VerdictRule::NeverReached:
        return "never reached";
    case VerdictRule::NotItsTurn:
        break;
    }
    return "not its turn";
}

/// "1.2 not its turn entry 0 by entry 1 next 08:00:10", plans with semicolons between.
QString lineOf(const ProgramVerdict& verdict, const ScreenTimeline& timeline)
{
    QStringList lines;
    for (const PlanVerdict& plan : verdict.plans) {
        QString line = QStringLiteral("%1%2.%3 %4 entry %5")
                           .arg(plan.isInsertion ? QStringLiteral("insertion ") : QString())
                           .arg(plan.taskId)
                           .arg(plan.planId)
                           .arg(QLatin1String(ruleText(plan.rule)))
                           .arg(plan.entry);
        if (plan.otherTaskId >= 0) {
            line += QStringLiteral(" by %1").arg(plan.otherTaskId);
        }
        if (plan.otherPlanId >= 0) {
            line += QStringLiteral(".%1 row %2").arg(plan.otherPlanId).arg(plan.otherRow);
        }
        if (plan.otherEntry >= 0) {
            line += QStringLiteral(" by entry %1").arg(plan.otherEntry);
        }
        if (plan.nextTurn != kNever) {
            line += QStringLiteral(" next ") +
                    timeline.local(plan.nextTurn).time().toString(QStringLiteral("hh:mm:ss"));
        }
        lines.append(line);
    }
    return lines.join(QStringLiteral("; "));
}

QTimeZone berlin()
{
    return QTimeZone("Europe/Berlin");
}

/// Schedules in which a few plans meet often, as the lines of ScheduleWriting.
class RandomSchedule
{
public:
    explicit RandomSchedule(unsigned seed)
        : m_random(seed)
    {}

    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(m_random); }

    QString plan()
    {
        QString text = QStringLiteral("/ %1 ").arg(time());
        text += below(3) == 0 ? QStringLiteral("x%1").arg(below(5)) : QString();
        if (!text.endsWith(QLatin1Char(' '))) {
            text += QLatin1Char(' ');
        } else {
            text.chop(1);
            text += QLatin1Char('-') + time() + QLatin1Char(' ');
        }
        const QString letters = QStringLiteral("ABCHINUZQ");
        for (int i = below(4); i >= 0; --i) {
            text += below(8) == 0 ? QStringLiteral("!") : QString();
            text += letters[below(letters.size())];
            text += QStringLiteral("*%1 ").arg(below(4));
        }
        text += below(2) == 0 ? QStringLiteral("freeze ") : QString();
        text += below(3) == 0 ? QStringLiteral("on=%1 ").arg(1 + below(7)) : QString();
        return text;
    }

    QString schedule()
    {
        QStringList tasks;
        for (int id = 1 + below(3); id > 0; --id) {
            QString task = QStringLiteral("%1 2024.10.%2-2024.10.%3 ")
                               .arg(id)
                               .arg(24 + below(4))
                               .arg(25 + below(5));
            for (int plans = 1 + below(4); plans > 0; --plans) {
                task += plan();
            }
            tasks.append(task.trimmed());
        }
        return tasks.join(QStringLiteral(" | "));
    }

    /// In the four days about the night in which an hour comes twice.
    Instant moment()
    {
        const Instant start = momentFromText(QStringLiteral("2024.10.25 00:00:00"), berlin());
        constexpr int seconds = 4 * 24 * 60 * 60;
        return start + below(seconds) * 1000LL;
    }

private:
    QString time()
    {
        return QStringLiteral("%1:%2:00")
            .arg(below(6), 2, 10, QLatin1Char('0'))
            .arg(below(4) * 15, 2, 10, QLatin1Char('0'));
    }

    std::mt19937 m_random;
};

bool isOfList(VerdictRule rule)
{
    return rule == VerdictRule::Plays || rule > VerdictRule::Insertion;
}

} // namespace

class tst_ProgramVerdict : public QObject
{
    Q_OBJECT

private slots:
    void namesTheRule_data();
    void namesTheRule();
    void judgesInsertions();
    void agreesWithTheTimeline();
};

void tst_ProgramVerdict::namesTheRule_data()
{
    QTest::addColumn<QString>("schedule");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QChar>("program");
    QTest::addColumn<QString>("verdict");
    const auto row = [](const char* name, const char* schedule, const char* moment, char program,
                        const char* verdict) {
        QTest::newRow(name) << QString::fromLatin1(schedule)
                            << QStringLiteral("2024.03.04 ") + QLatin1String(moment)
                            << QChar(QLatin1Char(program)) << QString::fromLatin1(verdict);
    };
    const char* week = "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A B*2";
    row("plays", week, "08:00:00", 'A', "1.1 plays entry 0");
    row("plays in a later run", week, "08:00:35", 'B', "1.1 plays entry 1");
    row("in no plan", week, "08:00:00", 'C', "");
    row("task not yet valid", "1 2024.03.05-2024.03.10 / 08:00:00-09:00:00 A", "08:00:00", 'A',
        "1.1 task not valid entry 0");
    row("task over", "1 2024.03.01-2024.03.03 / 08:00:00-09:00:00 A", "08:00:00", 'A',
        "1.1 task not valid entry 0");
    row("no period at all", "1 2024.03.01-never / 08:00:00-09:00:00 A", "08:00:00", 'A',
        "1.1 task not valid entry 0");
    row("other task",
        "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 B | "
        "2 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A",
        "08:00:00", 'A', "2.1 other task entry 0 by 1");
    row("other weekday", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A on=2,3", "08:00:00", 'A',
        "1.1 other weekday entry 0");
    row("a day that is none", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A on=8", "08:00:00", 'A',
        "1.1 other weekday entry 0");
    row("span unreadable", "1 2024.03.01-2024.03.31 / 08:00:00-noon A", "08:00:00", 'A',
        "1.1 span unreadable entry 0");
    row("span empty", "1 2024.03.01-2024.03.31 / 08:00:00-08:00:00 A", "08:00:00", 'A',
        "1.1 span empty entry 0");
    row("span empty for want of runs", "1 2024.03.01-2024.03.31 / 08:00:00 x0 A", "08:00:00", 'A',
        "1.1 span empty entry 0");
    row("span inverted for want of runs", "1 2024.03.01-2024.03.31 / 08:00:00 x-3 A", "08:00:00",
        'A', "1.1 span inverted entry 0");
    row("no runs in a mode that is none",
        "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A mode=7 times=0", "08:00:00", 'A',
        "1.1 no runs entry 0");
    row("span inverted", "1 2024.03.01-2024.03.31 / 08:00:00-07:00:00 A", "08:00:00", 'A',
        "1.1 span inverted entry 0");
    row("not yet", week, "07:59:59.999", 'A', "1.1 not yet entry 0");
    row("over", week, "09:00:00", 'A', "1.1 over entry 0");
    row("earlier row",
        "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 B / 08:30:00-09:30:00 A / "
        "08:00:00-10:00:00 A",
        "08:30:00", 'A',
        "1.2 earlier row entry 0 by 1.1 row 0; 1.3 earlier row entry 0 by 1.1 row 0");
    row("later row", "1 2024.03.01-2024.03.31 / 09:00:00-10:00:00 B / 08:30:00-09:30:00 A",
        "08:30:00", 'A', "1.2 plays entry 0");
    row("entry invalid", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 !A B", "08:00:00", 'A',
        "1.1 entry invalid entry 0");
    row("one of two entries invalid", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 !A B A",
        "08:00:00", 'A', "1.1 not its turn entry 2 by entry 1 next 08:00:04");
    row("not in the catalogue", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 B Q", "08:00:00", 'Q',
        "1.1 not in catalogue entry 1");
    row("file gone", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 B N", "08:00:00", 'N',
        "1.1 file gone entry 1");
    row("length unknown", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 B U", "08:00:00", 'U',
        "1.1 no length entry 1");
    row("no length", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 B Z", "08:00:00", 'Z',
        "1.1 no length entry 1");
    row("no plays", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 B A*0", "08:00:00", 'A',
        "1.1 no plays entry 1");
    row("no runs", "1 2024.03.01-2024.03.31 / 08:00:00 x0 I", "08:00:00", 'I',
        "1.1 no runs entry 0");
    row("not its turn", week, "08:00:00", 'B', "1.1 not its turn entry 1 by entry 0 next 08:00:10");
    row("not its turn any more", week, "08:59:58", 'A', "1.1 not its turn entry 0 by entry 1");
    row("never reached", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A I B", "08:00:00", 'B',
        "1.1 never reached entry 2 by entry 1");
    row("an image that is gone holds nothing", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A !I B",
        "08:00:00", 'B', "1.1 not its turn entry 2 by entry 0 next 08:00:10");
    row("in front of what holds the screen", "1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A I B",
        "08:00:10", 'A', "1.1 not its turn entry 0 by entry 1");
    // The end of the span reckons with the entry that has gone bad.
    row("ran out", "1 2024.03.01-2024.03.31 / 08:00:00 x1 A !B", "08:00:10", 'A',
        "1.1 ran out entry 0");
    row("a list that ends within a second", "1 2024.03.01-2024.03.31 / 08:00:00 x1 A E", "08:00:10",
        'A', "1.1 over entry 0");
    row("a list that fills its span", "1 2024.03.01-2024.03.31 / 08:00:00 x2 A", "08:00:19.999",
        'A', "1.1 plays entry 0");
}

void tst_ProgramVerdict::namesTheRule()
{
    QFETCH(QString, schedule);
    QFETCH(QString, moment);
    QFETCH(QChar, program);
    QFETCH(QString, verdict);
    const auto tasks = scheduleFromText(schedule);
    const auto catalogue = lettersCatalogue();
    const ScreenTimeline timeline(tasks, catalogue, berlin());
    const ProgramVerdict found = programVerdict(timeline, tasks, catalogue, {}, programOf(program),
                                                momentFromText(moment, berlin()));
    QCOMPARE(lineOf(found, timeline), verdict);
}

void tst_ProgramVerdict::judgesInsertions()
{
    const auto tasks =
        scheduleFromText(QStringLiteral("1 2024.03.01-2024.03.31 / 08:00:00-09:00:00 A B"));
    const auto catalogue = lettersCatalogue();
    const ScreenTimeline timeline(tasks, catalogue, berlin());
    const Instant moment = momentFromText(QStringLiteral("2024.03.04 08:10:00"), berlin());
    ScreenInsertion request;
    request.taskId = 1;
    request.planId = 1;
    request.plan = planFromText(QStringLiteral("08:00:00-09:00:00 C B"));
    request.plan.id = 1;
    const ScreenInsertions insertions = timeline.withInsertion({}, request, moment, false);
    const auto line = [&](char program, Instant asked) {
        return lineOf(programVerdict(timeline, tasks, catalogue, insertions,
                                     programOf(QLatin1Char(program)), asked),
                      timeline);
    };
    QCOMPARE(line('C', moment), QStringLiteral("insertion 1.1 plays entry 0"));
    QCOMPARE(line('A', moment), QStringLiteral("1.1 insertion entry 0 by 1.1 row 0"));
    QCOMPARE(line('B', moment),
             QStringLiteral("insertion 1.1 not its turn entry 1 by entry 0 next 08:10:02; "
                            "1.1 insertion entry 1 by 1.1 row 0"));
    QCOMPARE(line('C', moment - 1), QString());
    QCOMPARE(line('B', moment - 1), QStringLiteral("1.1 plays entry 1"));
}

/// The program plays exactly when a verdict says so, and what a verdict names is so.
void tst_ProgramVerdict::agreesWithTheTimeline()
{
    const auto catalogue = lettersCatalogue();
    int playing = 0;
    for (unsigned seed = 0; seed < 400; ++seed) {
        RandomSchedule random(seed);
        const QString text = random.schedule();
        const auto tasks = scheduleFromText(text);
        const ScreenTimeline timeline(tasks, catalogue, berlin());
        ScreenInsertions insertions;
        if (seed % 3 == 0) {
            ScreenInsertion request;
            request.taskId = tasks.begin()->first;
            request.planId = tasks.begin()->second.plans.front().id;
            request.plan = planFromText(random.plan().mid(1));
            request.plan.id = request.planId;
            insertions = timeline.withInsertion({}, request, random.moment(), random.below(2) == 0);
        }
        for (int i = 0; i < 25; ++i) {
            const Instant moment = random.moment();
            const ScreenState state = timeline.at(moment, insertions);
            for (const QChar letter : QStringLiteral("ABCHINUZQ")) {
                const int progIndex = programOf(letter);
                const ProgramVerdict verdict =
                    programVerdict(timeline, tasks, catalogue, insertions, progIndex, moment);
                const QString place =
                    QStringLiteral("%1 | %2 at %3: %4")
                        .arg(text, letter, momentText(moment, berlin()), lineOf(verdict, timeline));
                const bool plays = state.isPlaying() && state.progIndex == progIndex;
                playing += plays ? 1 : 0;
                QVERIFY2(verdict.plays() == plays, qPrintable(place));
                for (const PlanVerdict& plan : verdict.plans) {
                    QVERIFY2(!isOfList(plan.rule) ||
                                 (plan.taskId == state.taskId && plan.planRow == state.planRow &&
                                  plan.isInsertion == state.isInserted()),
                             qPrintable(place));
                    QVERIFY2(
                        plan.rule != VerdictRule::EarlierRow || state.isInserted() ||
                            (plan.otherTaskId == state.taskId && plan.otherRow == state.planRow),
                        qPrintable(place));
                    QVERIFY2(plan.nextTurn == kNever ||
                                 timeline.at(plan.nextTurn, insertions).progIndex == progIndex,
                             qPrintable(place));
                }
            }
        }
    }
    QVERIFY2(playing > 500, qPrintable(QString::number(playing)));
}

TREL_TEST(tst_ProgramVerdict, trel::tests::NoApplication)
#include "tst_ProgramVerdict.moc"
