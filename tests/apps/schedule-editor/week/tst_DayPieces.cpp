#include "support/TestProgram.h"
#include "week/DayPieces.h"

#include <QElapsedTimer>
#include <QtTest>

using namespace trel::desktop::week;
using namespace trel::desktop;

/// Which plan has the screen when, and where the claims stand that have it not.
class tst_DayPieces : public QObject
{
    Q_OBJECT

private slots:
    void pieces_data();
    void pieces();
    void lanesNeverOverlapAndHoldEverySecond();
    void manyClaimsAreQuick();
};

namespace {

using Claims = std::vector<DayClaim>;

/// Hours stand for seconds: the rules know no unit.
QString lineOf(const DayPiece& piece, const Claims& claims)
{
    const char* const states[] = {"shows", "hidden", "left out", "several"};
    QString line = QStringLiteral("%1-%2 ").arg(piece.from).arg(piece.to);
    line += piece.claim < 0
                ? QStringLiteral("+%1").arg(piece.count)
                : QStringLiteral("row %1").arg(claims[static_cast<std::size_t>(piece.claim)].row);
    return line + QStringLiteral(" %1 lane %2/%3")
                      .arg(QLatin1String(states[piece.state]))
                      .arg(piece.lane)
                      .arg(piece.lanes);
}

QStringList linesOf(const DayLanes& lanes, const Claims& claims)
{
    QStringList lines;
    for (const std::vector<DayPiece>& lane : lanes) {
        for (const DayPiece& piece : lane) {
            lines.append(lineOf(piece, claims));
        }
    }
    return lines;
}

std::vector<LeftOutTime> noGap()
{
    return {};
}

} // namespace

Q_DECLARE_METATYPE(std::vector<week::DayClaim>)
Q_DECLARE_METATYPE(std::vector<week::LeftOutTime>)

void tst_DayPieces::pieces_data()
{
    QTest::addColumn<Claims>("claims");
    QTest::addColumn<std::vector<LeftOutTime>>("leftOut");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const Claims& claims,
                        const std::vector<LeftOutTime>& leftOut, const char* expected) {
        QTest::newRow(name) << claims << leftOut
                            << QString::fromLatin1(expected).split(QLatin1Char('|'),
                                                                   Qt::SkipEmptyParts);
    };
    row("nothing", {}, noGap(), "");
    row("one plan", {{0, 8, 10}}, noGap(), "8-10 row 0 shows lane 0/1");
    row("plans that touch stand alone", {{0, 8, 10}, {1, 10, 12}}, noGap(),
        "8-10 row 0 shows lane 0/1|10-12 row 1 shows lane 0/1");
    row("plans that touch, the later row first", {{1, 8, 10}, {0, 10, 12}}, noGap(),
        "8-10 row 1 shows lane 0/1|10-12 row 0 shows lane 0/1");
    row("the same span", {{0, 8, 10}, {1, 8, 10}}, noGap(),
        "8-10 row 0 shows lane 0/2|8-10 row 1 hidden lane 1/2");
    row("an earlier row takes the screen over", {{1, 8, 12}, {0, 10, 14}}, noGap(),
        "8-10 row 1 shows lane 0/2|10-14 row 0 shows lane 0/2|10-12 row 1 hidden lane 1/2");
    row("a later row waits for its turn", {{0, 8, 10}, {1, 9, 12}}, noGap(),
        "8-10 row 0 shows lane 0/2|10-12 row 1 shows lane 0/2|9-10 row 1 hidden lane 1/2");
    row("gets the screen back", {{1, 8, 14}, {0, 10, 12}}, noGap(),
        "8-10 row 1 shows lane 0/2|10-12 row 0 shows lane 0/2|12-14 row 1 shows lane 0/2"
        "|10-12 row 1 hidden lane 1/2");
    row("hidden by two in turn stays one piece", {{0, 8, 10}, {1, 10, 12}, {2, 8, 12}}, noGap(),
        "8-10 row 0 shows lane 0/2|10-12 row 1 shows lane 0/2|8-12 row 2 hidden lane 1/2");
    row("a lane is taken again", {{0, 8, 12}, {1, 8, 10}, {2, 10, 12}}, noGap(),
        "8-12 row 0 shows lane 0/2|8-10 row 1 hidden lane 1/2|10-12 row 2 hidden lane 1/2");
    row("two lanes", {{0, 8, 12}, {1, 8, 10}, {2, 9, 12}}, noGap(),
        "8-12 row 0 shows lane 0/3|8-10 row 1 hidden lane 1/3|9-12 row 2 hidden lane 2/3");
    row("the last lane keeps the name of one", {{0, 8, 12}, {1, 8, 12}, {2, 8, 12}, {3, 9, 10}},
        noGap(),
        "8-12 row 0 shows lane 0/4|8-12 row 1 hidden lane 1/4|8-12 row 2 hidden lane 2/4"
        "|9-10 row 3 hidden lane 3/4");
    row("the last lane counts several",
        {{0, 8, 12}, {1, 8, 12}, {2, 8, 12}, {3, 8, 10}, {4, 9, 11}, {5, 11, 12}}, noGap(),
        "8-12 row 0 shows lane 0/4|8-12 row 1 hidden lane 1/4|8-12 row 2 hidden lane 2/4"
        "|8-11 +2 several lane 3/4|11-12 row 5 hidden lane 3/4");
    row("groups have lanes of their own", {{0, 1, 3}, {1, 2, 4}, {2, 4, 6}}, noGap(),
        "1-3 row 0 shows lane 0/2|3-4 row 1 shows lane 0/2|4-6 row 2 shows lane 0/1"
        "|2-3 row 1 hidden lane 1/2");
    row("left out in the middle", {{0, 1, 5}}, {{2, 3}},
        "1-2 row 0 shows lane 0/1|2-3 row 0 left out lane 0/1|3-5 row 0 shows lane 0/1");
    row("left out as a whole", {{0, 2, 3}}, {{1, 4}}, "2-3 row 0 left out lane 0/1");
    row("left out beside it", {{0, 3, 4}}, {{2, 3}}, "3-4 row 0 shows lane 0/1");
    row("what is hidden is left out as well", {{0, 1, 4}, {1, 1, 3}}, {{2, 4}},
        "1-2 row 0 shows lane 0/2|2-4 row 0 left out lane 0/2|1-2 row 1 hidden lane 1/2"
        "|2-3 row 1 left out lane 1/2");
}

void tst_DayPieces::pieces()
{
    QFETCH(Claims, claims);
    QFETCH(std::vector<LeftOutTime>, leftOut);
    QFETCH(QStringList, expected);
    QCOMPARE(linesOf(dayPieces(claims, leftOut), claims).join(QLatin1Char('\n')),
             expected.join(QLatin1Char('\n')));
}

void tst_DayPieces::lanesNeverOverlapAndHoldEverySecond()
{
    // Every pattern of up to five claims on a day of six seconds, in a fixed order of chance.
    unsigned chance = 7;
    const auto next = [&chance](unsigned below) {
        chance = chance * 1664525U + 1013904223U;
        return static_cast<int>((chance >> 16U) % below);
    };
    for (int round = 0; round < 3000; ++round) {
        Claims claims;
        const int count = next(6);
        for (int row = 0; row < count; ++row) {
            const int from = next(6);
            claims.push_back({row, from, from + 1 + next(static_cast<unsigned>(6 - from))});
        }
        const DayLanes lanes = dayPieces(claims);
        QCOMPARE(lanes.size(), std::size_t{kLanes});
        for (const std::vector<DayPiece>& lane : lanes) {
            for (std::size_t i = 1; i < lane.size(); ++i) {
                QVERIFY(lane[i - 1].to <= lane[i].from);
            }
            for (const DayPiece& piece : lane) {
                QVERIFY(piece.from < piece.to && piece.lane < piece.lanes);
            }
        }
        for (int second = 0; second < 6; ++second) {
            int holder = -1;
            int claiming = 0;
            for (const DayClaim& claim : claims) {
                if (claim.from <= second && second < claim.to) {
                    holder = holder < 0 ? claim.row : holder;
                    ++claiming;
                }
            }
            int shown = -1;
            int standing = 0;
            bool isCounted = false;
            for (const std::vector<DayPiece>& lane : lanes) {
                for (const DayPiece& piece : lane) {
                    if (piece.from <= second && second < piece.to) {
                        shown = piece.lane == 0 ? claims[static_cast<std::size_t>(piece.claim)].row
                                                : shown;
                        standing += piece.state == DayPiece::Several ? 0 : 1;
                        isCounted = isCounted || piece.state == DayPiece::Several;
                    }
                }
            }
            QCOMPARE(shown, holder);
            QVERIFY(isCounted ? standing < claiming : standing == claiming);
        }
    }
}

void tst_DayPieces::manyClaimsAreQuick()
{
    // Each claims the whole day, so that all but one are hidden; the work must not grow by squares.
    constexpr int kMany = 100000;
    Claims claims;
    for (int row = 0; row < kMany; ++row) {
        claims.push_back({row, row % 7, 86000 + row % 7});
    }
    const DayLanes lanes = dayPieces(claims);
    QCOMPARE(lanes[0].front().claim, 0);
    QVERIFY(lanes[kSeveralLane].front().count > kMany / 2);
}

TREL_TEST(tst_DayPieces, trel::tests::NoApplication)
#include "tst_DayPieces.moc"
