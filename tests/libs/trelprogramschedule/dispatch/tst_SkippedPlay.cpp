#include "ScheduleWriting.h"
#include "support/TestProgram.h"

#include "trelprogramschedule/dispatch/SkippedPlay.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

std::vector<struProgInfo> listFromText(const QString& text)
{
    return planFromText(QStringLiteral("08:00:00-09:00:00 ") + text).programs;
}

QString textOf(const std::vector<struProgInfo>& list)
{
    PlayPlan plan = planFromText(QStringLiteral("08:00:00-09:00:00 A"));
    plan.programs = list;
    // The list stands behind what all plans have.
    return ::textOf(plan).section(QLatin1Char(' '), 6);
}

ScreenState playing(ScreenReason reason)
{
    ScreenState state;
    state.picture = ScreenPicture::Playing;
    state.reason = reason;
    state.entry = 1;
    state.play = 0;
    return state;
}

ScreenInsertion shown(bool isOneProgram)
{
    ScreenInsertion insertion;
    insertion.taskId = 3;
    insertion.planId = 7;
    insertion.plan = planFromText(QStringLiteral("08:00:00-09:00:00 A B*2 D"));
    insertion.plan.serviceList = {1, 2};
    insertion.plan.serviceFlagB = isOneProgram;
    insertion.original = listFromText(QStringLiteral("D"));
    insertion.requested = 1;
    insertion.begins = 2;
    insertion.ends = 3;
    insertion.number = 12;
    return insertion;
}

} // namespace

/// What is cut in for the play on screen to be skipped.
class tst_SkippedPlay : public QObject
{
    Q_OBJECT

private slots:
    void theListGoesOnBehindThePlay_data();
    void theListGoesOnBehindThePlay();
    void skippingOnAndOnComesRound();
    void partsAreNotMadeLargerThanAnEntry();
    void anEntryThatIsNotThere();
    void theInsertionIsOneOfTheChooser();
    void nothingThatLeadsOn_data();
    void nothingThatLeadsOn();
};

void tst_SkippedPlay::theListGoesOnBehindThePlay_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("play");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* list, int entry, int play, const char* after) {
        QTest::addRow("%s, %d, %d", list, entry, play)
            << QString::fromLatin1(list) << entry << play << QString::fromLatin1(after);
    };
    row("A B D", 0, 0, "B D A");
    row("A B D", 1, 0, "D A B");
    row("A B D", 2, 0, "A B D");
    row("A", 0, 0, "A");
    row("A*3", 0, 0, "A*3");
    row("A*3 B", 0, 0, "A*2 B A");
    row("A*3 B", 0, 1, "A B A*2");
    row("A*3 B", 0, 2, "B A*3");
    row("A B*3 D", 1, 1, "B D A B*2");
    row("A !B D", 0, 0, "!B D A");
    // What lies apart of one program is one again.
    row("A*2 B A", 0, 0, "A B A*2");
    row("A*3 B !A", 0, 0, "A*2 B !A A");
}

void tst_SkippedPlay::theListGoesOnBehindThePlay()
{
    QFETCH(QString, list);
    QFETCH(int, entry);
    QFETCH(int, play);
    QTEST(textOf(listAfterPlay(listFromText(list), entry, play)), "after");
}

void tst_SkippedPlay::skippingOnAndOnComesRound()
{
    const std::vector<struProgInfo> list = listFromText(QStringLiteral("A*3 B D*2"));
    std::vector<struProgInfo> skipped = list;
    QStringList seen;
    for (int i = 0; i < 6; ++i) {
        seen.append(letterOf(skipped.front().progIndex));
        skipped = listAfterPlay(skipped, 0, 0);
        QVERIFY(skipped.size() <= list.size() + 1);
    }
    QCOMPARE(seen.join(QString()), QStringLiteral("AAABDD"));
    QVERIFY(skipped == list);
}

void tst_SkippedPlay::partsAreNotMadeLargerThanAnEntry()
{
    QCOMPARE(textOf(listAfterPlay(listFromText(QStringLiteral("A*2 B A*998")), 0, 0)),
             QStringLiteral("A B A*999"));
    QCOMPARE(textOf(listAfterPlay(listFromText(QStringLiteral("A*2 B A*999")), 0, 0)),
             QStringLiteral("A B A*999 A"));
}

void tst_SkippedPlay::anEntryThatIsNotThere()
{
    const std::vector<struProgInfo> list = listFromText(QStringLiteral("A B"));
    QVERIFY(listAfterPlay(list, -1, 0) == list);
    QVERIFY(listAfterPlay(list, 2, 0) == list);
    QVERIFY(listAfterPlay({}, 0, 0).empty());
}

void tst_SkippedPlay::theInsertionIsOneOfTheChooser()
{
    for (const ScreenReason reason : {ScreenReason::PlanPlays, ScreenReason::InsertionPlays}) {
        const auto next = skippedPlay(playing(reason), shown(false));
        QVERIFY(next);
        QCOMPARE(next->taskId, 3);
        QCOMPARE(next->planId, 7);
        QCOMPARE(textOf(next->plan.programs), QStringLiteral("B D A B"));
        QVERIFY(next->plan.serviceFlagA);
        QVERIFY(!next->plan.serviceFlagB);
        QCOMPARE(next->plan.endAction, int(FreezeCurrentFrame));
        QVERIFY(next->plan.serviceList.empty());
        QCOMPARE(textOf(next->original), QStringLiteral("D"));
        QCOMPARE(next->number, 0);
        QCOMPARE(next->begins, 0);
    }
}

void tst_SkippedPlay::nothingThatLeadsOn_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<int>("picture");
    QTest::addColumn<bool>("isOneProgram");
    QTest::addColumn<bool>("isAnything");
    const auto row = [](const char* name, ScreenReason reason, ScreenPicture picture,
                        bool isOneProgram, bool isAnything) {
        QTest::newRow(name) << int(reason) << int(picture) << isOneProgram << isAnything;
    };
    row("nothing in effect", ScreenReason::NothingInEffect, ScreenPicture::Black, false, false);
    row("a plan that ran out", ScreenReason::PlanRanOut, ScreenPicture::Frozen, false, false);
    row("a plan that is over", ScreenReason::PlanEnded, ScreenPicture::Frozen, false, false);
    row("an insertion that ran out", ScreenReason::InsertionRanOut, ScreenPicture::Frozen, false,
        true);
    row("an insertion of nothing", ScreenReason::InsertionHasNothing, ScreenPicture::Black, false,
        true);
    row("one program", ScreenReason::InsertionPlays, ScreenPicture::Playing, true, true);
}

void tst_SkippedPlay::nothingThatLeadsOn()
{
    QFETCH(int, reason);
    QFETCH(int, picture);
    QFETCH(bool, isOneProgram);
    ScreenState state = playing(static_cast<ScreenReason>(reason));
    state.picture = static_cast<ScreenPicture>(picture);
    QVERIFY(!skippedPlay(state, shown(isOneProgram)));
    QTEST(isSkippable(state), "isAnything");
}

TREL_TEST(tst_SkippedPlay, QCoreApplication)
#include "tst_SkippedPlay.moc"
