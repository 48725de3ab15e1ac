#include "HostFixture.h"
#include "support/PlanRecords.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"
#include "versions/DifferenceWords.h"

#include <functional>

using namespace trel::desktop::versions;
using namespace trel::mediadispatch;

namespace {

using Tasks = DifferenceWords::Tasks;
using Change = std::function<void(Tasks&)>;

struProgInfo named(int progIndex, const char* name, int playCount = 1)
{
    struProgInfo info = entry(progIndex, playCount);
    info.progName = name;
    return info;
}

Tasks schedule()
{
    PlayPlan second = frequencyPlan(4, "10:00:00", 2,
                                    {named(1, "News"), named(2, "Weather", 3), named(9, "Lost")});
    return {{7, taskWithPlans({timePlan(3, "08:00:00", "09:00:00", "1,3"), second}, 7)}};
}

DifferenceWords::Programs programs()
{
    DifferenceWords::Programs programs;
    for (const auto& [index, name] : {std::make_pair(1, "News"), std::make_pair(2, "Weather")}) {
        programs[index].progIndex = index;
        programs[index].progName = name;
    }
    return programs;
}

PlayPlan& firstPlan(Tasks& tasks)
{
    return tasks.at(7).plans[0];
}

std::vector<struProgInfo>& entriesOf(Tasks& tasks)
{
    return tasks.at(7).plans[1].programs;
}

QStringList linesOf(const Change& change)
{
    Tasks later = schedule();
    change(later);
    return DifferenceWords::lines(schedule(), later, programs(), 100);
}

/// Every kind and every field once, with values that have different words.
std::vector<ScheduleDifference> oneOfEach()
{
    std::vector<ScheduleDifference> all;
    const PlayTask task = everyFieldTask(1);
    for (int kind = 0; kind < kDifferenceKinds; ++kind) {
        ScheduleDifference one;
        one.kind = DifferenceKind(kind);
        one.field = DifferenceField::StartTime;
        one.before = std::string("1");
        one.after = std::string("2");
        one.task = task;
        one.plan = task.plans[0];
        one.plan.programs.clear();
        one.entry = named(1, "News");
        all.push_back(one);
    }
    for (int field = 1; field < kDifferenceFields; ++field) {
        for (const std::int64_t after : {0, 1}) {
            ScheduleDifference one;
            one.kind = DifferenceKind::PlanField;
            one.field = DifferenceField(field);
            one.before = std::int64_t(1 - after);
            one.after = after;
            switch (one.field) {
            case DifferenceField::StartDate:
            case DifferenceField::EndDate:
            case DifferenceField::StartTime:
            case DifferenceField::EndTime:
            case DifferenceField::Weeks:
            case DifferenceField::ServiceTime:
            case DifferenceField::ProgName:
                one.before = std::string("1");
                one.after = std::string("2");
                break;
            case DifferenceField::ServiceList:
                one.before = std::vector<std::int64_t>{1};
                one.after = std::vector<std::int64_t>{2};
                break;
            default:
                break;
            }
            all.push_back(one);
        }
    }
    return all;
}

QStringList textsOfEach()
{
    QStringList texts;
    for (const ScheduleDifference& one : oneOfEach()) {
        texts.append(DifferenceWords::line(one, programs()));
    }
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(Change)

/// What differs between two states of a schedule, as the operator reads it.
class tst_DifferenceWords : public QObject
{
    Q_OBJECT

private slots:
    void inEnglish_data();
    void inEnglish();
    void everythingHasWordsInEveryLanguage_data();
    void everythingHasWordsInEveryLanguage();
    void theWordsOfTheCardsAreUsed();
    void whatLooksTheSameIsSaidToBeHidden();
    void namesFromOutsideStayOneShortLine();
    void whatLooksLikeAPlaceStaysAsItIs();
    void onlySoManyAreListed();
};

void tst_DifferenceWords::inEnglish_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* tag, const Change& change, const char* line) {
        QTest::newRow(tag) << change << QString::fromUtf8(line);
    };
    row(
        "task added", [](Tasks& tasks) { tasks[8] = taskWithPlans({timePlan(1, "", "")}, 8); },
        "Task 8: added, valid from 2024.03.01 to 2024.03.31, 1 plan");
    row(
        "task deleted", [](Tasks& tasks) { tasks.erase(7); },
        "Task 7: deleted, was valid from 2024.03.01 to 2024.03.31, 2 plans");
    row(
        "first day", [](Tasks& tasks) { tasks.at(7).startDate = "2024.02.01"; },
        "Task 7: first day 2024.03.01 → 2024.02.01");
    row(
        "last day", [](Tasks& tasks) { tasks.at(7).endDate = ""; },
        "Task 7: last day 2024.03.31 → –");
    row(
        "plan added",
        [](Tasks& tasks) {
            auto& plans = tasks.at(7).plans;
            plans.insert(plans.begin(), timePlan(-1, "12:00:00", "13:00:00", "6,7"));
        },
        "Task 7, plan -1: added in row 1: Sat, Sun, 12:00:00 to 13:00:00, no programs");
    row(
        "plan deleted", [](Tasks& tasks) { tasks.at(7).plans.pop_back(); },
        "Task 7, plan 4: deleted from row 2: Every day, 10:00:00 to 00:00:00, "
        "News, Weather ×3, Lost (deleted)");
    row(
        "plan moved", [](Tasks& tasks) { std::swap(tasks.at(7).plans[0], tasks.at(7).plans[1]); },
        "Task 7, plan 4: row 2 → 1");
    row(
        "mode", [](Tasks& tasks) { firstPlan(tasks).mode = FrequencyMode; },
        "Task 7, plan 3: mode “Time” → “Plays”");
    row(
        "start", [](Tasks& tasks) { firstPlan(tasks).startTime = "07:00:00"; },
        "Task 7, plan 3: start 08:00:00 → 07:00:00");
    row(
        "end", [](Tasks& tasks) { firstPlan(tasks).endTime = "10:30:00"; },
        "Task 7, plan 3: end 09:00:00 → 10:30:00");
    row(
        "runs", [](Tasks& tasks) { firstPlan(tasks).times = 12; }, "Task 7, plan 3: runs 1 → 12");
    row(
        "end action", [](Tasks& tasks) { firstPlan(tasks).endAction = FreezeCurrentFrame; },
        "Task 7, plan 3: at the end “Black screen” → “Freeze frame”");
    row(
        "days", [](Tasks& tasks) { firstPlan(tasks).weeks = "0"; },
        "Task 7, plan 3: days Mon, Wed → Every day");
    row(
        "no day", [](Tasks& tasks) { firstPlan(tasks).weeks = "9,2"; },
        "Task 7, plan 3: days Mon, Wed → 9, Tue");
    row(
        "no length", [](Tasks& tasks) { firstPlan(tasks).hasNoDuration = true; },
        "Task 7, plan 3: now has a program without a length of its own");
    row(
        "service",
        [](Tasks& tasks) {
            firstPlan(tasks).serviceList = {1, 2};
        },
        "Task 7, plan 3: something that the editor does not show");
    row(
        "entry added",
        [](Tasks& tasks) {
            auto& entries = entriesOf(tasks);
            entries.insert(entries.begin() + 1, named(1, "News"));
        },
        "Task 7, plan 4: “News” added as entry 2");
    row(
        "entry deleted", [](Tasks& tasks) { entriesOf(tasks).pop_back(); },
        "Task 7, plan 4: “Lost (deleted)” deleted, was entry 3");
    row(
        "entry moved", [](Tasks& tasks) { std::swap(entriesOf(tasks)[0], entriesOf(tasks)[1]); },
        "Task 7, plan 4: “Weather”: entry 2 → 1");
    row(
        "plays", [](Tasks& tasks) { entriesOf(tasks)[1].playCount = 1; },
        "Task 7, plan 4: “Weather”, entry 2: plays in a row 3 → 1");
    row(
        "gone bad", [](Tasks& tasks) { entriesOf(tasks)[2].isInvalid = true; },
        "Task 7, plan 4: “Lost (invalid)”, entry 3: now invalid");
    row(
        "name", [](Tasks& tasks) { entriesOf(tasks)[0].progName = "Old news"; },
        "Task 7, plan 4: “News”, entry 1: name “News” → “Old news”");
    row(
        "conflict", [](Tasks& tasks) { firstPlan(tasks).isConflict = true; }, "");
}

void tst_DifferenceWords::inEnglish()
{
    QFETCH(Change, change);
    QFETCH(QString, line);
    HostFixture fixture;
    QCOMPARE(linesOf(change).join(QLatin1Char('\n')), line);
}

void tst_DifferenceWords::everythingHasWordsInEveryLanguage_data()
{
    QTest::addColumn<bool>("isEnglish");
    const QStringList files =
        QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")});
    QCOMPARE(files.size(), 10);
    for (const QString& file : files) {
        QTest::newRow(qPrintable(file.left(5))) << file.startsWith(QLatin1String("en"));
    }
}

void tst_DifferenceWords::everythingHasWordsInEveryLanguage()
{
    QFETCH(bool, isEnglish);
    HostFixture fixture;
    const QStringList english = textsOfEach();
    fixture.languages.select(QLatin1String(QTest::currentDataTag()));
    const QStringList texts = textsOfEach();
    const QRegularExpression whole(QStringLiteral("^[^%]*\\p{L}[^%]*$"));
    for (int i = 0; i < texts.size(); ++i) {
        QVERIFY2(whole.match(texts[i]).hasMatch(), qPrintable(texts[i]));
        QVERIFY2((texts[i] == english[i]) == isEnglish, qPrintable(texts[i]));
    }
    // The kinds without the two that are a field, and the fields with words of their own: two of
    // each truth value and of each number, one of each text, and one for all that is hidden.
    QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), 9 + 1 + 3 * 2 + 4 * 2 + 5 + 1);
}

void tst_DifferenceWords::theWordsOfTheCardsAreUsed()
{
    HostFixture fixture;
    fixture.languages.select(QStringLiteral("de_DE"));
    QCOMPARE(
        linesOf([](Tasks& tasks) {
            firstPlan(tasks).weeks = "0";
            firstPlan(tasks).endAction = FreezeCurrentFrame;
        }),
        (QStringList{QStringLiteral("Auftrag 7, Plan 3: am Ende „Schwarzbild“ → „Bild einfrieren“"),
                     QStringLiteral("Auftrag 7, Plan 3: Tage Mo, Mi → Täglich")}));
}

void tst_DifferenceWords::whatLooksTheSameIsSaidToBeHidden()
{
    HostFixture fixture;
    const QString hidden =
        QStringLiteral("Task 7, plan 3: something that the editor does not show");
    QCOMPARE(linesOf([](Tasks& tasks) { firstPlan(tasks).weeks = "01,03"; }), QStringList{hidden});
    QCOMPARE(linesOf([](Tasks& tasks) { firstPlan(tasks).serviceFlagB = true; }),
             QStringList{hidden});
}

void tst_DifferenceWords::namesFromOutsideStayOneShortLine()
{
    HostFixture fixture;
    const QString hostile =
        QStringLiteral("a\nb\u2028c\u202Ed<b>e</b>\t") + QString(100'000, QLatin1Char('x'));
    const std::string text = hostile.toStdString();
    Tasks later = schedule();
    later[9] = taskWithPlans({timePlan(1, text, text, text)}, 9);
    later[9].startDate = text;
    later.at(7).endDate = text;
    later.at(7).plans.push_back(timePlan(5, text, text, text));
    later.at(7).plans.back().programs.assign(10'000, named(9, text.c_str()));
    firstPlan(later).startTime = text;
    firstPlan(later).weeks = text;
    entriesOf(later).push_back(named(8, text.c_str()));
    entriesOf(later)[0].progName = text;
    const QStringList lines = DifferenceWords::lines(schedule(), later, programs(), 100);
    QCOMPARE(lines.size(), 7);
    const QRegularExpression moving(QStringLiteral("[\\x00-\\x1f\\x{2028}\\x{202e}]"));
    for (const QString& line : lines) {
        QVERIFY2(line.size() < 1'000, qPrintable(QString::number(line.size())));
        QVERIFY2(!moving.match(line).hasMatch(), qPrintable(line));
    }
}

void tst_DifferenceWords::whatLooksLikeAPlaceStaysAsItIs()
{
    HostFixture fixture;
    QCOMPARE(
        linesOf([](Tasks& tasks) {
            entriesOf(tasks)[0].progName = "%3 %2";
            tasks.at(7).startDate = "%2 %n";
        }),
        (QStringList{QStringLiteral("Task 7: first day 2024.03.01 → %2 %n"),
                     QStringLiteral("Task 7, plan 4: “News”, entry 1: name “News” → “%3 %2”")}));
}

void tst_DifferenceWords::onlySoManyAreListed()
{
    HostFixture fixture;
    Tasks later;
    const auto lines = [&](int most) {
        return DifferenceWords::lines(sampleSchedule(4, 1, 1), later, programs(), most);
    };
    QCOMPARE(lines(4).size(), 4);
    QCOMPARE(lines(3).size(), 4);
    QCOMPARE(lines(3).last(), QStringLiteral("… and 1 more difference."));
    QCOMPARE(lines(1).last(), QStringLiteral("… and 3 more differences."));
    later = sampleSchedule(4, 1, 1);
    QCOMPARE(lines(3), QStringList());
}

TREL_TEST(tst_DifferenceWords, QApplication)
#include "tst_DifferenceWords.moc"
