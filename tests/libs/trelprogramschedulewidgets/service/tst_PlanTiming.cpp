#include "LiteralRules.h"
#include "Pick.h"
#include "support/TestProgram.h"

#include "service/PlanTiming.h"

#include <QTest>

#include <limits>
#include <random>

Q_DECLARE_METATYPE(trel::mediadispatch::PlayPlan)

using namespace trel::mediadispatch;

namespace {

constexpr int kImage = 100;
constexpr int kMissing = 404;

struProgInfo entry(int progIndex, int playCount = 1)
{
    struProgInfo info;
    info.progIndex = progIndex;
    info.playCount = playCount;
    return info;
}

ProgramIten program(int progIndex, double durationMs)
{
    ProgramIten item;
    item.progIndex = progIndex;
    item.durationMs = durationMs;
    return item;
}

bool isImage(int progIndex)
{
    return progIndex == kImage;
}

PlayPlan plan(const std::string& start, int times, const std::vector<struProgInfo>& programs)
{
    PlayPlan result;
    result.mode = FrequencyMode;
    result.startTime = start;
    result.times = times;
    result.programs = programs;
    return result;
}

QByteArray described(const PlayPlan& plan, const std::map<int, ProgramIten>& catalogue)
{
    QByteArray text = "start \"" + QByteArray::fromStdString(plan.startTime) + "\" times " +
                      QByteArray::number(plan.times);
    for (const struProgInfo& info : plan.programs) {
        const auto found = catalogue.find(info.progIndex);
        text += ", " + QByteArray::number(info.progIndex) + " x" +
                QByteArray::number(info.playCount) + " of " +
                (found == catalogue.end() ? QByteArray("nothing")
                                          : QByteArray::number(found->second.durationMs, 'g', 17));
    }
    return text;
}

std::string randomStart(std::mt19937& random)
{
    if (random() % 4 == 0) {
        return pickText(random, {"", "x", "24:00:00", "8:00:00", "23:00:00", "22:59:59", "23:59:59",
                                 "00:00:00", "12:00"});
    }
    return QTime(0, 0)
        .addSecs(static_cast<int>(random() % 86400))
        .toString(QStringLiteral("hh:mm:ss"))
        .toStdString();
}

} // namespace

class tst_PlanTiming : public QObject
{
    Q_OBJECT

private slots:
    void addsADuration_data();
    void addsADuration();
    void addDurationFollowsTheLiteralRule();
    void plansAnEnd_data();
    void plansAnEnd();
    void looksAtNothingElse();
    void asksUntilOneHasNoDuration();
    void plannedEndFollowsTheLiteralRule();

private:
    const std::map<int, ProgramIten> m_catalogue{
        {1, program(1, 1000)},
        {2, program(2, 500)},
        {3, program(3, 1500.9)},
        {4, program(4, -1)},
        {5, program(5, 0.0)},
        {6, program(6, 86399000)},
        {7, program(7, 86399001)},
        {8, program(8, 86399000.5)},
        {9, program(9, 999.999)},
        {kImage, program(kImage, 5000)},
        {11, program(11, std::numeric_limits<double>::infinity())},
        {12, program(12, std::numeric_limits<double>::quiet_NaN())},
        {13, program(13, 1e300)}};
};

void tst_PlanTiming::addsADuration_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("end");

    const auto row = [](const char* name, const char* start, int seconds, const char* end) {
        QTest::newRow(name) << QString::fromLatin1(start) << seconds << QString::fromLatin1(end);
    };
    row("within the day", "22:30:00", 3600, "23:30:00");
    row("up to the last second", "22:59:59", 3600, "23:59:59");
    row("capped from 23:00:00 on", "23:00:00", 3600, "23:59:59");
    row("capped at the last second", "23:59:59", 3600, "23:59:59");
    row("capped for any number of seconds", "23:10:00", 1, "23:59:59");
    row("capped even backwards", "23:10:00", -3600, "23:59:59");
    row("wraps round when the start is early enough", "22:00:00", 7200, "00:00:00");
    row("backwards past midnight", "00:00:00", -1, "23:59:59");
    row("no start", "", 3600, "");
    row("a start that does not parse", "25:00:00", 3600, "");
}

void tst_PlanTiming::addsADuration()
{
    QFETCH(QString, start);
    QFETCH(int, seconds);
    QFETCH(QString, end);

    QCOMPARE(QString::fromStdString(addDuration(start.toStdString(), seconds)), end);
}

void tst_PlanTiming::addDurationFollowsTheLiteralRule()
{
    std::mt19937 random(33);
    for (int i = 0; i < 20000; ++i) {
        const std::string start = randomStart(random);
        const int seconds = pick(random, {3600, 0, 1, -1, -3600, 86400, 100000, 2147483});
        const std::string expected = literal::addDuration(start, seconds);
        QVERIFY2(addDuration(start, seconds) == expected,
                 (start + " + " + std::to_string(seconds)).c_str());
    }
}

void tst_PlanTiming::plansAnEnd_data()
{
    QTest::addColumn<PlayPlan>("plan");
    QTest::addColumn<QString>("end");

    const auto row = [](const char* name, const PlayPlan& plan, const char* end) {
        QTest::newRow(name) << plan << QString::fromLatin1(end);
    };
    row("no programs", plan("08:00:00", 3, {}), "08:00:00");
    row("two entries, three runs", plan("12:00:00", 3, {entry(1, 1), entry(2, 2)}), "12:00:06");
    row("cuts, never rounds", plan("10:00:00", 1, {entry(3)}), "10:00:01");
    row("parts of a second add up before the cut", plan("10:00:00", 2, {entry(3)}), "10:00:03");
    row("a hair below a second", plan("10:00:00", 1, {entry(9)}), "10:00:00");
    row("last second with anything to add", plan("23:59:59", 1, {entry(2)}), "23:59:59");
    row("last second with nothing to add", plan("23:59:59", 1, {}), "23:59:59");
    row("an exact fit", plan("00:00:00", 1, {entry(6)}), "23:59:59");
    row("a millisecond too much", plan("00:00:00", 1, {entry(7)}), "23:59:59");
    row("half a millisecond too much", plan("00:00:00", 1, {entry(8)}), "23:59:59");
    row("no length of its own, last", plan("08:00:00", 1, {entry(1), entry(kImage)}), "23:59:59");
    row("no length of its own, first", plan("08:00:00", 1, {entry(kImage), entry(1)}), "23:59:59");
    row("no length of its own, no start", plan("", 1, {entry(kImage)}), "23:59:59");
    row("no length of its own, no runs", plan("08:00:00", 0, {entry(kImage)}), "23:59:59");
    row("missing does not stop the sum", plan("08:00:00", 1, {entry(kMissing), entry(1)}),
        "08:00:01");
    row("negative length", plan("08:00:00", 1, {entry(4), entry(1)}), "08:00:01");
    row("length of zero", plan("08:00:00", 1, {entry(5), entry(1)}), "08:00:01");
    row("no runs", plan("08:00:00", 0, {entry(1)}), "08:00:00");
    row("negative runs go back", plan("08:00:00", -1, {entry(1)}), "07:59:59");
    row("negative runs wrap round", plan("00:00:00", -1, {entry(1)}), "23:59:59");
    row("negative play count", plan("08:00:02", 1, {entry(1, -2)}), "08:00:00");
    row("no start, something to add", plan("", 1, {entry(1)}), "23:59:59");
    row("no start, nothing to add", plan("", 1, {}), "");
    row("no start, less than nothing", plan("", -1, {entry(1)}), "");
    row("endless", plan("08:00:00", 1, {entry(11)}), "23:59:59");
    row("a length that is no number", plan("08:00:00", 1, {entry(12), entry(1)}), "08:00:01");
    row("more than any int", plan("08:00:00", 999, {entry(13, 999)}), "23:59:59");

    PlayPlan invalid = plan("08:00:00", 1, {entry(kMissing), entry(1)});
    invalid.programs[0].isInvalid = true;
    invalid.programs[1].isInvalid = true;
    row("a mark on the entry changes nothing", invalid, "08:00:01");
}

void tst_PlanTiming::plansAnEnd()
{
    QFETCH(PlayPlan, plan);
    QFETCH(QString, end);

    QCOMPARE(QString::fromStdString(plannedEnd(plan, m_catalogue, isImage)), end);
}

void tst_PlanTiming::looksAtNothingElse()
{
    PlayPlan timed = plan("08:00:00", 2, {entry(1)});
    timed.mode = TimeMode;
    timed.endTime = "09:00:00";
    timed.hasNoDuration = true;
    QCOMPARE(plannedEnd(timed, m_catalogue, isImage), std::string("08:00:02"));
}

void tst_PlanTiming::asksUntilOneHasNoDuration()
{
    std::vector<int> asked;
    const NoDurationTest ask = [&asked](int progIndex) {
        asked.push_back(progIndex);
        return isImage(progIndex);
    };
    plannedEnd(plan("08:00:00", 1, {entry(1), entry(kMissing), entry(kImage), entry(2)}),
               m_catalogue, ask);
    QCOMPARE(asked, (std::vector<int>{1, kImage}));
}

void tst_PlanTiming::plannedEndFollowsTheLiteralRule()
{
    std::mt19937 random(3);
    for (int i = 0; i < 20000; ++i) {
        PlayPlan tried =
            plan(randomStart(random), pick(random, {1, 1, 2, 3, 60, 999, 0, -1, -40}), {});
        for (std::size_t left = random() % 6; left > 0; --left) {
            const int index =
                random() % 20 == 0
                    ? kImage
                    : pick(random, {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, kMissing, 1, 2, 3, 9});
            tried.programs.push_back(entry(index, pick(random, {1, 1, 2, 7, 999, 0, -3})));
        }
        const QString expected = QString::fromStdString(
            literal::plannedEnd(tried, literal::lookupIn(m_catalogue), isImage));
        const QString end = QString::fromStdString(plannedEnd(tried, m_catalogue, isImage));
        const QByteArray message = described(tried, m_catalogue) + ": " + end.toUtf8() +
                                   " instead of " + expected.toUtf8();
        QVERIFY2(end == expected, message.constData());
    }
}

TREL_TEST(tst_PlanTiming, trel::tests::NoApplication)
#include "tst_PlanTiming.moc"
