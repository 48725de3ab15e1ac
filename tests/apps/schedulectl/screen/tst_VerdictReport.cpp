#include "screen/VerdictReport.h"
#include "support/PlanRecords.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QJsonArray>
#include <QtTest>

using namespace trel::console;
using namespace trel::mediadispatch;

namespace {

constexpr int kNews = 1; ///< Of ten seconds.
constexpr int kClip = 2; ///< Of four.
constexpr int kImage = 3;
constexpr int kGone = 4;
constexpr int kNoLength = 5;
constexpr int kNowhere = 9;

std::map<int, ProgramIten> catalogue()
{
    std::map<int, ProgramIten> programs;
    const auto add = [&programs](int index, const char* name, double length, ProgramKind kind) {
        ProgramIten program;
        program.progIndex = index;
        program.progName = name;
        program.durationMs = length;
        program.kind = kind;
        programs[index] = program;
    };
    add(kNews, "News", 10000.0, ProgramKind::Video);
    add(kClip, "Clip", 4000.0, ProgramKind::Video);
    add(kImage, "Image", 0.0, ProgramKind::Image);
    add(kGone, "Gone", 4000.0, ProgramKind::Video);
    programs[kGone].isNull = true;
    add(kNoLength, "Short", 0.0, ProgramKind::Video);
    return programs;
}

PlayPlan eight(std::vector<struProgInfo> programs, const char* weeks = "0")
{
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", weeks);
    plan.programs = std::move(programs);
    return plan;
}

PlayPlan between(const char* start, const char* end)
{
    PlayPlan plan = timePlan(1, start, end);
    plan.programs = {entry(kNews)};
    return plan;
}

struProgInfo gone(struProgInfo entry)
{
    entry.isInvalid = true;
    return entry;
}

using Tasks = std::map<int, PlayTask>;

Tasks month(std::vector<PlayPlan> plans)
{
    return {{1, taskWithPlans(std::move(plans))}};
}

Tasks inPeriod(const char* first, const char* last)
{
    PlayTask task = taskWithPlans({eight({entry(kNews)})});
    task.startDate = first;
    task.endDate = last;
    return {{1, task}};
}

/// What is told about a program on Monday, 2024-03-04, at eight in Berlin.
class Telling
{
public:
    explicit Telling(Tasks tasks)
        : m_tasks(std::move(tasks))
    {}

    void insert(std::vector<struProgInfo> programs, int runs = 1)
    {
        ScreenInsertion request;
        request.taskId = 1;
        request.planId = 1;
        request.plan = eight(std::move(programs));
        request.plan.mode = runs == 1 ? TimeMode : FrequencyMode;
        request.plan.times = runs;
        m_insertions = m_timeline.withInsertion({}, request, m_moment - 11000, false);
    }

    QJsonObject json(int progIndex) const { return verdictJson(subject(progIndex), m_words); }
    QString text(int progIndex) const { return verdictText(subject(progIndex), m_words); }

private:
    VerdictSubject subject(int progIndex) const
    {
        m_verdict =
            programVerdict(m_timeline, m_tasks, m_programs, m_insertions, progIndex, m_moment);
        return {progIndex, QStringLiteral("It"), m_moment, m_verdict};
    }

    Tasks m_tasks;
    std::map<int, ProgramIten> m_programs = catalogue();
    QTimeZone m_zone = QTimeZone("Europe/Berlin");
    ScreenTimeline m_timeline = ScreenTimeline(m_tasks, m_programs, m_zone);
    MomentFormat m_local = MomentFormat(m_zone);
    ScreenReport m_words = ScreenReport({m_tasks, m_programs, m_local});
    Instant m_moment = m_timeline.instant(QDate(2024, 3, 4), QTime(8, 0));
    ScreenInsertions m_insertions;
    mutable ProgramVerdict m_verdict;
};

} // namespace

Q_DECLARE_METATYPE(Tasks)

/// Every rule that keeps a program from the screen has a name of its own and a sentence.
class tst_VerdictReport : public QObject
{
    Q_OBJECT

private slots:
    void everyRuleHasItsWords_data();
    void everyRuleHasItsWords();
    void aTurnToComeIsTold();
    void anInsertionIsTold();
    void anInsertionThatIsOverIsTold();
    void anInsertionOfNothingIsTold();
};

void tst_VerdictReport::everyRuleHasItsWords_data()
{
    QTest::addColumn<Tasks>("tasks");
    QTest::addColumn<int>("program");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const char* rule, const Tasks& tasks, const char* sentence,
                        int program = kNews) {
        QTest::newRow(rule) << tasks << program << QString::fromUtf8(sentence);
    };
    row("plays", month({eight({entry(kNews)})}), "It plays, as entry 1, until 08:00:10.");
    row("taskNotValid", inPeriod("2024.03.05", "2024.03.31"),
        "The task is not valid on 2024-03-04; its period is 2024.03.05 – 2024.03.31.");
    row("otherTask",
        {{1, taskWithPlans({eight({entry(kClip)})})},
         {2, taskWithPlans({eight({entry(kNews)})}, 2)}},
        "Task 1 has the day: it is valid too, and of a lower number.");
    row("otherWeekday", month({eight({entry(kNews)}, "2,3")}),
        "The plan does not run on Mon, only on Tue,Wed.");
    row("spanUnreadable", month({between("eight", "09:00:00")}),
        "Plan 1 never plays: its start, “eight”, is not a time in the form hh:mm:ss.");
    row("spanEmpty", month({between("08:00:00", "08:00:00")}),
        "Plan 1 never plays: it starts and ends at 08:00:00.");
    row("spanInverted", month({between("08:00:00", "07:00:00")}),
        "Plan 1 never plays: it ends at 07:00:00, before it starts at 08:00:00.");
    row("notYet", month({between("08:00:01", "09:00:00")}),
        "The plan's span, 08:00:01 – 09:00:00, is still to come that day.");
    row("over", month({between("07:00:00", "08:00:00")}),
        "The plan's span, 07:00:00 – 08:00:00, is over for the day.");
    row("earlierRow", month({eight({entry(kClip)}), between("07:00:00", "10:00:00")}),
        "An earlier row claims this time too and takes precedence: task 1, row 1, plan 1.");
    row("entryInvalid", month({eight({entry(kClip), gone(entry(kNews))})}),
        "Entry 2 has gone bad.");
    row("notInCatalogue", month({eight({entry(kClip), entry(kNowhere)})}),
        "The catalog does not have the program of entry 2.", kNowhere);
    row("fileGone", month({eight({entry(kGone)})}), "The file of the program is gone.", kGone);
    row("noLength", month({eight({entry(kNoLength)})}),
        "The program takes no time: no length of it is known.", kNoLength);
    row("noPlays", month({eight({entry(kNews, 0)})}), "Entry 1 is to play less than once.");
    PlayPlan noRuns = eight({entry(kNews)});
    noRuns.mode = 7;
    noRuns.times = 0;
    row("noRuns", month({noRuns}), "Plan 1 never plays: its list is to run less than once.");
    PlayPlan over = frequencyPlan(1, "07:59:56", 1, {entry(kClip), gone(entry(kNews))});
    row("ranOut", month({over}),
        "The list has run as set, 1 time, and does not play again until 08:00:10.", kClip);
    row("neverReached", month({eight({entry(kImage), entry(kNews)})}),
        "Entry 2 is never reached: entry 1, Image, has no length of its own and holds the screen "
        "until 09:00:00.");
    PlayPlan once = between("07:59:50", "08:00:03");
    once.programs = {entry(kNews), entry(kClip)};
    row("notItsTurn", month({once}),
        "It is not its turn: entry 2, Clip, plays, and it does not come again before 08:00:03.");
}

void tst_VerdictReport::everyRuleHasItsWords()
{
    QFETCH(Tasks, tasks);
    QFETCH(int, program);
    QFETCH(QString, sentence);
    const Telling telling(tasks);
    const QJsonObject json = telling.json(program);
    const QJsonObject plan = json[QStringLiteral("plans")].toArray().last().toObject();
    QCOMPARE(plan[QStringLiteral("rule")].toString(), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(plan[QStringLiteral("why")].toString(), sentence);
    QVERIFY2(telling.text(program).contains(sentence), qPrintable(telling.text(program)));
}

void tst_VerdictReport::aTurnToComeIsTold()
{
    const Telling telling(month({eight({entry(kNews), entry(kClip)})}));
    const QJsonObject plan =
        telling.json(kClip)[QStringLiteral("plans")].toArray().last().toObject();
    QCOMPARE(plan[QStringLiteral("rule")].toString(), QStringLiteral("notItsTurn"));
    QCOMPARE(plan[QStringLiteral("entry")].toInt(), 2);
    QCOMPARE(plan[QStringLiteral("otherEntry")].toInt(), 1);
    QCOMPARE(plan[QStringLiteral("nextTurn")].toString(),
             QStringLiteral("2024-03-04T08:00:10.000+01:00"));
    QCOMPARE(plan[QStringLiteral("why")].toString(),
             QStringLiteral("It is not its turn: entry 1, News, plays. Its next turn is at "
                            "08:00:10."));
}

void tst_VerdictReport::anInsertionIsTold()
{
    Telling telling(month({eight({entry(kNews)})}));
    telling.insert({entry(kClip)});
    const QString other = telling.text(kNews);
    QVERIFY2(other.contains(QStringLiteral("  task 1, row 1, plan 1: An insertion for task 1, row "
                                           "1, plan 1 is on screen.\n")),
             qPrintable(other));
    const QJsonObject json = telling.json(kNews);
    const QJsonObject plan = json[QStringLiteral("plans")].toArray().first().toObject();
    QCOMPARE(plan[QStringLiteral("rule")].toString(), QStringLiteral("insertion"));
    QCOMPARE(plan[QStringLiteral("otherRow")].toInt(), 1);
    QCOMPARE(json[QStringLiteral("now")].toObject()[QStringLiteral("reason")].toString(),
             QStringLiteral("insertionPlays"));

    const QString own = telling.text(kClip);
    QVERIFY2(own.contains(QStringLiteral("  insertion for task 1, row 1, plan 1: It plays, as "
                                         "entry 1, until 08:00:01.\n")),
             qPrintable(own));
    QVERIFY2(own.endsWith(QStringLiteral("On screen: plays Clip until 08:00:01. An insertion for "
                                         "task 1, row 1, plan 1 is on screen.\n")),
             qPrintable(own));
}

void tst_VerdictReport::anInsertionThatIsOverIsTold()
{
    Telling telling(month({eight({entry(kNews)})}));
    telling.insert({entry(kClip)}, 2);
    QVERIFY2(telling.text(kNews).endsWith(QStringLiteral(
                 "An insertion for task 1, row 1, plan 1 is due; its list has run the set number "
                 "of times, and left a black screen.\n")),
             qPrintable(telling.text(kNews)));
    QCOMPARE(telling.json(kNews)[QStringLiteral("now")].toObject()[QStringLiteral("reason")],
             QJsonValue(QStringLiteral("insertionRanOut")));
}

void tst_VerdictReport::anInsertionOfNothingIsTold()
{
    Telling telling(month({eight({entry(kNews)})}));
    telling.insert({entry(kGone)});
    QVERIFY2(telling.text(kNews).endsWith(QStringLiteral("An insertion for task 1, row 1, plan 1 "
                                                         "is due, but none of its entries can "
                                                         "play.\n")),
             qPrintable(telling.text(kNews)));
    QCOMPARE(telling.json(kNews)[QStringLiteral("now")].toObject()[QStringLiteral("reason")],
             QJsonValue(QStringLiteral("insertionHasNothing")));
}

TREL_TEST(tst_VerdictReport, QCoreApplication)
#include "tst_VerdictReport.moc"
