#include "Pick.h"
#include "support/Growth.h"
#include "support/TestProgram.h"

#include "service/PlanCollisions.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"

#include <QTest>

#include <random>

Q_DECLARE_METATYPE(trel::mediadispatch::PlanClaim)

using namespace trel::mediadispatch;

namespace {

using Claims = std::vector<PlanClaim>;

/// The rule of the editor for a pair, word for word.
bool collide(const PlanClaim& a, const PlanClaim& b)
{
    if (!weeksOverlap(a.weeks, b.weeks)) {
        return false;
    }
    return b.end < b.start || a.end < a.start || (a.start < b.end && b.start < a.end);
}

std::vector<int> firstOfAllPairs(const Claims& claims)
{
    std::vector<int> first(claims.size(), -1);
    for (std::size_t later = 0; later < claims.size(); ++later) {
        for (std::size_t earlier = 0; earlier < later && first[later] < 0; ++earlier) {
            if (collide(claims[earlier], claims[later])) {
                first[later] = static_cast<int>(earlier);
            }
        }
    }
    return first;
}

QString written(const std::vector<int>& places)
{
    QStringList texts;
    for (const int place : places) {
        texts.append(QString::number(place));
    }
    return texts.join(QLatin1Char(' '));
}

QByteArray written(const Claims& claims)
{
    QByteArray text;
    for (const PlanClaim& claim : claims) {
        text += "\n  \"" + QByteArray::fromStdString(claim.start) + "\" to \"" +
                QByteArray::fromStdString(claim.end) + "\" on \"" +
                QByteArray::fromStdString(claim.weeks) + '"';
    }
    return text;
}

std::string randomTime(std::mt19937& random)
{
    if (random() % 20 == 0) {
        return pickText(random, {"", "x", "8:00:00", "08:00:00 and later", "\xff"});
    }
    return timeToText(QTime(6, 0).addSecs(static_cast<int>(random() % 16) * 900));
}

PlanClaim randomClaim(std::mt19937& random)
{
    PlanClaim claim = {randomTime(random), randomTime(random),
                       pickText(random, {"", "0", "1", "2", "1,2", "2,3,2", "3", "8", "abc", "4,8",
                                         "5", "6", "7", "1,,2"})};
    if (random() % 6 != 0 && claim.end < claim.start) {
        std::swap(claim.start, claim.end);
    }
    return claim;
}

Claims randomClaims(std::mt19937& random, std::size_t count)
{
    Claims claims;
    while (claims.size() < count) {
        claims.push_back(randomClaim(random));
    }
    return claims;
}

} // namespace

class tst_PlanCollisions : public QObject
{
    Q_OBJECT

private slots:
    void first_data();
    void first();
    void followsTheWalkOverAllPairs();
    void marksWhatTheCardsMark();
    void bothWays();
    void aPlaceThatIsNone();
    void growsWithTheClaims_data();
    void growsWithTheClaims();
};

void tst_PlanCollisions::first_data()
{
    QTest::addColumn<Claims>("claims");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const Claims& claims, const char* expected) {
        QTest::newRow(name) << claims << QString::fromLatin1(expected);
    };
    const std::string eight("08:00:00");
    const std::string nine("09:00:00");
    const std::string ten("10:00:00");
    row("none", {}, "");
    row("one", {{eight, nine, "1"}}, "-1");
    row("one that is inverted", {{nine, eight, "1"}}, "-1");
    row("touching", {{eight, nine, "1"}, {nine, ten, "1"}}, "-1 -1");
    row("the first of several", {{eight, nine, "1"}, {nine, ten, "1"}, {eight, ten, "1"}},
        "-1 -1 0");
    row("a later one that shares the day", {{eight, ten, "2"}, {nine, ten, "1"}, {eight, ten, "1"}},
        "-1 -1 1");
    row("of two days the earlier row",
        {{eight, nine, "2"}, {eight, nine, "1"}, {eight, ten, "1,2"}}, "-1 -1 0");
    row("every day meets all", {{eight, nine, "5"}, {eight, nine, "0"}, {eight, nine, "8"}},
        "-1 0 1");
    row("inverted meets all of its day",
        {{ten, eight, "1"}, {eight, nine, "2"}, {"23:00:00", "23:00:00", "1"}}, "-1 -1 0");
    row("inverted meets inverted", {{ten, eight, "1"}, {nine, eight, "1"}}, "-1 0");
    row("inside without a length", {{eight, ten, "1"}, {nine, nine, "1"}, {ten, ten, "1"}},
        "-1 0 -1");
}

void tst_PlanCollisions::first()
{
    QFETCH(Claims, claims);
    QFETCH(QString, expected);
    QCOMPARE(written(firstCollisions(claims)), expected);
}

void tst_PlanCollisions::followsTheWalkOverAllPairs()
{
    std::mt19937 random(2201);
    for (int i = 0; i < 6000; ++i) {
        const Claims claims = randomClaims(random, random() % (i % 20 == 0 ? 40 : 9));
        const QString expected = written(firstOfAllPairs(claims));
        const QString found = written(firstCollisions(claims));
        const QByteArray message =
            (found + QStringLiteral(" instead of ") + expected).toUtf8() + written(claims);
        QVERIFY2(found == expected, message.constData());
    }
}

void tst_PlanCollisions::marksWhatTheCardsMark()
{
    std::mt19937 random(2202);
    for (int i = 0; i < 1000; ++i) {
        const Claims claims = randomClaims(random, random() % 12);
        const std::vector<bool> marks = collidingClaims(claims);
        const std::vector<int> first = firstCollisions(claims);
        QCOMPARE(first.size(), marks.size());
        for (std::size_t place = 0; place < marks.size(); ++place) {
            QVERIFY2((first[place] >= 0) == marks[place], written(claims).constData());
        }
    }
}

void tst_PlanCollisions::bothWays()
{
    std::mt19937 random(2203);
    for (int i = 0; i < 500; ++i) {
        const Claims claims = randomClaims(random, 1 + random() % 10);
        const auto place = static_cast<int>(random() % claims.size());
        std::vector<int> expected;
        for (std::size_t other = 0; other < claims.size(); ++other) {
            if (static_cast<int>(other) != place &&
                collide(claims[other], claims[static_cast<std::size_t>(place)])) {
                expected.push_back(static_cast<int>(other));
            }
        }
        QCOMPARE(collisionsOf(claims, place), expected);
    }
}

void tst_PlanCollisions::aPlaceThatIsNone()
{
    const Claims claims = {{"08:00:00", "09:00:00", "1"}, {"08:00:00", "09:00:00", "1"}};
    QCOMPARE(collisionsOf(claims, -1), std::vector<int>());
    QCOMPARE(collisionsOf(claims, 2), std::vector<int>());
}

void tst_PlanCollisions::growsWithTheClaims_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("all collide with the first") << 0;
    QTest::newRow("each collides with the last before the half only") << 1;
    QTest::newRow("none collide") << 2;
    QTest::newRow("all are inverted") << 3;
}

void tst_PlanCollisions::growsWithTheClaims()
{
    QFETCH(int, shape);
    const auto work = [shape](int count) {
        const auto timeAt = [](int second) { return timeToText(QTime(0, 0).addSecs(second)); };
        Claims claims;
        for (int i = 0; i < count; ++i) {
            switch (shape) {
            case 0:
                claims.push_back({"08:00:00", "09:00:00", "1,3"});
                break;
            case 1:
                claims.push_back(i < count / 2
                                     ? PlanClaim{timeAt(i), timeAt(i + 1), "1"}
                                     : PlanClaim{timeAt(count / 2 - 1), timeAt(count), "1"});
                break;
            case 2:
                claims.push_back({timeAt(i), timeAt(i + 1), "1"});
                break;
            default:
                claims.push_back({"09:00:00", "08:00:00", "0"});
            }
        }
        const double start = processorTime();
        firstCollisions(claims);
        return processorTime() - start;
    };
    QVERIFY2(growth(2000, 20000, work) < 4.0, "grows with the square");
}

TREL_TEST(tst_PlanCollisions, trel::tests::NoApplication)
#include "tst_PlanCollisions.moc"
