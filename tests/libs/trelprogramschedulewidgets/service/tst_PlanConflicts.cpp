#include "LiteralRules.h"
#include "Pick.h"
#include "support/TestProgram.h"

#include "service/PlanConflicts.h"
#include "service/TimeText.h"

#include <QTest>

#include <algorithm>
#include <random>

Q_DECLARE_METATYPE(trel::mediadispatch::PlanClaim)

using namespace trel::mediadispatch;

namespace {

using Claims = std::vector<PlanClaim>;

// One letter a claim: C for a collision, a dot for none.
QString marks(const std::vector<bool>& collides)
{
    QString text;
    for (const bool mark : collides) {
        text += QLatin1Char(mark ? 'C' : '.');
    }
    return text;
}

ProgramIten program(int progIndex, double durationMs)
{
    ProgramIten item;
    item.progIndex = progIndex;
    item.durationMs = durationMs;
    return item;
}

const std::map<int, ProgramIten>& catalogue()
{
    static const std::map<int, ProgramIten> programs{
        {1, program(1, 3600000)}, {2, program(2, 1800000)}, {3, program(3, 500.5)},
        {4, program(4, -5)},      {5, program(5, 0)},       {6, program(6, 7200000)}};
    return programs;
}

bool isImage(int progIndex)
{
    return progIndex == 5;
}

// Half hours, so that spans often touch, are equal or have no length; now and then no time at all.
std::string randomTime(std::mt19937& random)
{
    if (random() % 12 == 0) {
        return pickText(random, {"", "x", "8:00:00", "24:00:00", "08:00:00.5", "08:00:0",
                                 "08:00:00 and later", "08:00:00 and sooner",
                                 std::string("08:00\0", 6), "\xff\xfe", "0\xff"});
    }
    return QTime(6, 0)
        .addSecs(static_cast<int>(random() % 12) * 1800)
        .toString(QStringLiteral("hh:mm:ss"))
        .toStdString();
}

std::string randomWeeks(std::mt19937& random)
{
    if (random() % 3 == 0) {
        return pickText(random, {"", "0", "abc", "8", "-1", "8,-1", "2,2", "1,1,1", "1,,2", ",,",
                                 " ", " 3", "3 ", "1,", "4294967297", "99999999999999999999"});
    }
    std::string weeks = std::to_string(1 + random() % 7);
    for (std::size_t left = random() % 3; left > 0; --left) {
        weeks += ',' + std::to_string(1 + random() % 7);
    }
    return weeks;
}

PlayPlan randomPlan(std::mt19937& random)
{
    PlayPlan plan;
    plan.mode = pick(random, {0, 0, 1, 1, 1, 2});
    plan.startTime = randomTime(random);
    plan.endTime = randomTime(random);
    if (random() % 4 != 0 && plan.endTime < plan.startTime) {
        std::swap(plan.startTime, plan.endTime);
    }
    plan.weeks = randomWeeks(random);
    plan.times = pick(random, {1, 1, 1, 2, 3, 0, -1, 999});
    for (std::size_t left = random() % 4; left > 0; --left) {
        struProgInfo info;
        info.progIndex = pick(random, {1, 2, 3, 4, 6, 2, 3, 5, 77});
        info.playCount = pick(random, {1, 1, 2, 0, -1});
        plan.programs.push_back(info);
    }
    return plan;
}

QByteArray described(const std::vector<PlayPlan>& plans)
{
    QByteArray text;
    for (const PlayPlan& plan : plans) {
        text += "\n  mode " + QByteArray::number(plan.mode) + " \"" +
                QByteArray::fromStdString(plan.startTime) + "\" to \"" +
                QByteArray::fromStdString(plan.endTime) + "\" days \"" +
                QByteArray::fromStdString(plan.weeks) + "\" times " +
                QByteArray::number(plan.times) + " programs";
        for (const struProgInfo& info : plan.programs) {
            text +=
                ' ' + QByteArray::number(info.progIndex) + 'x' + QByteArray::number(info.playCount);
        }
    }
    return text;
}

} // namespace

class tst_PlanConflicts : public QObject
{
    Q_OBJECT

private slots:
    void collides_data();
    void collides();
    void plansAreClaims();
    void asksOncePerProgram();
    void neverAsksAboutTimedPlans();
    void followsTheWalkOverAllPairs();
    void followsTheWalkOnLongLists();
    void manyClaimsWithoutACollision();
};

void tst_PlanConflicts::collides_data()
{
    QTest::addColumn<Claims>("claims");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* name, const Claims& claims, const char* expected) {
        QTest::newRow(name) << claims << QString::fromLatin1(expected);
    };
    const std::string eight("08:00:00");
    const std::string half("08:30:00");
    const std::string nine("09:00:00");
    const std::string ten("10:00:00");

    row("none", {}, "");
    row("one", {{eight, nine, "1"}}, ".");
    row("one, inverted", {{nine, eight, "1"}}, ".");
    row("one that names a day twice", {{nine, eight, "1,1"}}, ".");
    row("later of two that share a day", {{eight, nine, "1,2"}, {half, ten, "2,3"}}, ".C");
    row("no shared day", {{eight, nine, "1,2"}, {eight, nine, "3,4"}}, "..");
    row("every day first", {{eight, nine, "0"}, {eight, nine, "3"}}, ".C");
    row("every day second", {{eight, nine, "3"}, {eight, nine, "0"}}, ".C");
    row("every day twice", {{eight, nine, "0"}, {eight, nine, "0"}}, ".C");
    row("no days counts as every day", {{eight, nine, ""}, {eight, nine, "3"}}, ".C");
    row("a word counts as every day", {{eight, nine, "4"}, {eight, nine, "abc"}}, ".C");
    row("touching", {{eight, nine, "1"}, {nine, ten, "1"}}, "..");
    row("touching, later first", {{nine, ten, "1"}, {eight, nine, "1"}}, "..");
    row("equal", {{eight, nine, "1"}, {eight, nine, "1"}}, ".C");
    row("within", {{eight, ten, "1"}, {half, nine, "1"}}, ".C");
    row("around", {{half, nine, "1"}, {eight, ten, "1"}}, ".C");
    row("no length, inside", {{eight, nine, "1"}, {half, half, "1"}}, ".C");
    row("no length, around", {{half, half, "1"}, {eight, nine, "1"}}, ".C");
    row("no length, at the start", {{eight, nine, "1"}, {eight, eight, "1"}}, "..");
    row("no length, at the end", {{eight, nine, "1"}, {nine, nine, "1"}}, "..");
    row("no length, outside", {{eight, nine, "1"}, {ten, ten, "1"}}, "..");
    row("no length twice", {{half, half, "1"}, {half, half, "1"}}, "..");
    row("inverted first", {{ten, nine, "1"}, {eight, half, "1"}}, ".C");
    row("inverted second", {{eight, half, "1"}, {ten, nine, "1"}}, ".C");
    row("inverted, no shared day", {{ten, nine, "1"}, {eight, half, "2"}}, "..");
    row("inverted every day", {{ten, nine, "0"}, {eight, half, "2"}, {nine, ten, "3"}}, ".CC");
    row("inverted meets every day", {{eight, eight, "0"}, {ten, nine, "2"}}, ".C");
    row("inverted and no length", {{ten, nine, "1"}, {eight, eight, "1"}}, ".C");
    row("marks do not pass on", {{eight, nine, "1"}, {half, ten, "1"}, {nine, ten, "2"}}, ".C.");
    row("a marked one still counts", {{eight, nine, "1"}, {half, ten, "1"}, {nine, ten, "1"}},
        ".CC");
    row("8 meets 8", {{eight, nine, "8"}, {eight, nine, "8"}}, ".C");
    row("8 meets every day", {{eight, nine, "8"}, {eight, nine, "0"}}, ".C");
    row("8 meets no day of the week", {{eight, nine, "8"}, {eight, nine, "1,2,3,4,5,6,7"}}, "..");
    row("-1 meets -1", {{eight, nine, "-1"}, {eight, nine, "2,-1"}}, ".C");
    row("any earlier one will do", {{eight, nine, "1"}, {nine, ten, "1"}, {half, nine, "3,1"}},
        "..C");
    row("times are bytes", {{"8:00:00", "9:00:00", "1"}, {eight, ten, "1"}}, "..");
    row("an empty end is inverted", {{eight, "", "1"}, {nine, ten, "1"}}, ".C");
    row("no times at all", {{"", "", "1"}, {"", "", "1"}}, "..");
    row("alike in eight bytes", {{"08:00:00a", "08:00:00c", "1"}, {"08:00:00b", "08:00:00d", "1"}},
        ".C");
    row("alike in eight bytes, touching",
        {{"08:00:00a", "08:00:00b", "1"}, {"08:00:00b", "08:00:00d", "1"}}, "..");
    row("a zero byte is a byte", {{"a", std::string("a\0", 2), "1"}, {"a", "b", "1"}}, ".C");
    row("high bytes come last", {{"\x7f", "\x80", "1"}, {"a", "\xff", "1"}}, ".C");
}

void tst_PlanConflicts::collides()
{
    QFETCH(Claims, claims);
    QFETCH(QString, expected);

    QCOMPARE(marks(collidingClaims(claims)), expected);
}

void tst_PlanConflicts::plansAreClaims()
{
    PlayPlan timed;
    timed.startTime = "08:00:00";
    timed.endTime = "09:00:00";
    timed.weeks = "1,2";
    timed.times = 1;
    timed.programs.resize(1);
    timed.programs[0].progIndex = 2;
    PlayPlan repeated = timed;
    repeated.mode = FrequencyMode;
    PlayPlan otherMode = timed;
    otherMode.mode = 2;

    const std::vector<PlanClaim> claims =
        planClaims({timed, repeated, otherMode}, catalogue(), isImage);

    QCOMPARE(claims.size(), std::size_t{3});
    QCOMPARE(claims[0].end, std::string("09:00:00"));
    QCOMPARE(claims[1].end, std::string("08:30:00"));
    QCOMPARE(claims[2].end, std::string("09:00:00"));
    for (const PlanClaim& claim : claims) {
        QCOMPARE(claim.start, std::string("08:00:00"));
        QCOMPARE(claim.weeks, std::string("1,2"));
    }
}

void tst_PlanConflicts::asksOncePerProgram()
{
    PlayPlan plan;
    plan.mode = FrequencyMode;
    plan.startTime = "08:00:00";
    plan.times = 1;
    for (const int progIndex : {1, 2, 1, 3, 77}) {
        plan.programs.emplace_back();
        plan.programs.back().progIndex = progIndex;
    }
    int questions = 0;
    const NoDurationTest count = [&questions](int) {
        ++questions;
        return false;
    };

    planClaims(std::vector<PlayPlan>(1000, plan), catalogue(), count);

    QCOMPARE(questions, 3);
}

void tst_PlanConflicts::neverAsksAboutTimedPlans()
{
    PlayPlan plan;
    plan.programs.resize(1);
    plan.programs[0].progIndex = 1;
    int questions = 0;
    planClaims({plan, plan}, catalogue(), [&questions](int) {
        ++questions;
        return false;
    });
    QCOMPARE(questions, 0);
}

void tst_PlanConflicts::followsTheWalkOverAllPairs()
{
    std::mt19937 random(34);
    for (int i = 0; i < 25000; ++i) {
        std::vector<PlayPlan> plans;
        for (std::size_t left = random() % 8; left > 0; --left) {
            plans.push_back(randomPlan(random));
        }
        const QString expected =
            marks(literal::collidingPlans(plans, literal::lookupIn(catalogue()), isImage));
        const QString found = marks(collidingClaims(planClaims(plans, catalogue(), isImage)));
        const QByteArray message = "task " + QByteArray::number(i) + ": " + found.toLatin1() +
                                   " instead of " + expected.toLatin1() + described(plans);
        QVERIFY2(found == expected, message.constData());
    }
}

// Long lists fill the tables of a day; days beyond the week keep some rows free of collisions.
void tst_PlanConflicts::followsTheWalkOnLongLists()
{
    std::mt19937 random(35);
    for (int i = 0; i < 300; ++i) {
        std::vector<PlayPlan> plans;
        const int days = pick(random, {3, 20, 200});
        for (int row = 0; row < 60; ++row) {
            PlayPlan plan;
            const int start = static_cast<int>(random() % 80000);
            const int length = static_cast<int>(random() % 3000) - (random() % 300 == 0 ? 3000 : 0);
            plan.startTime =
                QTime(0, 0).addSecs(start).toString(QStringLiteral("hh:mm:ss")).toStdString();
            plan.endTime = QTime(0, 0)
                               .addSecs(std::max(start + length, 0))
                               .toString(QStringLiteral("hh:mm:ss"))
                               .toStdString();
            plan.weeks = std::to_string(1 + static_cast<int>(random()) % days) + ',' +
                         std::to_string(1 + static_cast<int>(random() % 5));
            plans.push_back(plan);
        }
        const QString expected =
            marks(literal::collidingPlans(plans, literal::lookupIn(catalogue()), isImage));
        const QString found = marks(collidingClaims(planClaims(plans, catalogue(), isImage)));
        const QByteArray message = "list " + QByteArray::number(i) + described(plans);
        QVERIFY2(found == expected, message.constData());
    }
}

// A walk over all pairs of these would not come back.
void tst_PlanConflicts::manyClaimsWithoutACollision()
{
    Claims claims;
    for (int i = 0; i < 86399; ++i) {
        const QTime start = QTime(0, 0).addSecs(static_cast<int>(i * 7919LL % 86399));
        claims.push_back({timeToText(start), timeToText(start.addSecs(1)), "1,2,3,4,5,6,7"});
    }
    claims.push_back({"12:00:00", "12:00:02", "7"});
    const std::vector<bool> collides = collidingClaims(claims);
    QCOMPARE(std::count(collides.begin(), collides.end(), true), std::ptrdiff_t{1});
    QVERIFY(collides.back());
}

TREL_TEST(tst_PlanConflicts, trel::tests::NoApplication)
#include "tst_PlanConflicts.moc"
