#include "service/PlanInsertion.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

Q_DECLARE_METATYPE(InsertionScope)

class tst_PlanInsertion : public QObject
{
    Q_OBJECT

private slots:
    void scopes_data();
    void scopes();
    void listStartsAtTheRow_data();
    void listStartsAtTheRow();
    void theSearchComparesAllFields();
    void theRotationGoesByTheRow();
    void theInsertedPlanFreezesAndIsMarked();
    void theMarkOfALoneProgram();
    void theRestOfThePlanStays();
    void theTestStopsAtTheFirst();
};

namespace {

struProgInfo entry(int index, const char* name, int playCount = 1)
{
    return {index, false, name, playCount};
}

std::vector<struProgInfo> threePrograms(int countOfSecond = 1)
{
    return {entry(1, "A"), entry(2, "B", countOfSecond), entry(3, "C")};
}

QString names(const std::vector<struProgInfo>& list)
{
    QString text;
    for (const struProgInfo& program : list) {
        text += QString::fromStdString(program.progName);
    }
    return text;
}

} // namespace

void tst_PlanInsertion::scopes_data()
{
    QTest::addColumn<int>("lastDay");
    QTest::addColumn<bool>("endPassed");
    QTest::addColumn<InsertionScope>("scope");
    QTest::newRow("over, window open") << int(DateBeforeToday) << false << InsertionScope::Refused;
    QTest::newRow("over, window past") << int(DateBeforeToday) << true << InsertionScope::Refused;
    QTest::newRow("last day, window past") << int(DateIsToday) << true << InsertionScope::Refused;
    QTest::newRow("last day, window open")
        << int(DateIsToday) << false << InsertionScope::WholeList;
    QTest::newRow("more days, window past")
        << int(DateAfterToday) << true << InsertionScope::OneProgram;
    QTest::newRow("more days, window open")
        << int(DateAfterToday) << false << InsertionScope::WholeList;
    QTest::newRow("another answer, window past") << 3 << true << InsertionScope::WholeList;
    QTest::newRow("another answer, window open") << 3 << false << InsertionScope::WholeList;
}

void tst_PlanInsertion::scopes()
{
    QFETCH(int, lastDay);
    QFETCH(bool, endPassed);
    QTEST(insertionScope(static_cast<DataCompareType>(lastDay), endPassed), "scope");
}

void tst_PlanInsertion::listStartsAtTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("order");
    QTest::newRow("first row") << 0 << QStringLiteral("ABC");
    QTest::newRow("second row") << 1 << QStringLiteral("BCA");
    QTest::newRow("last row") << 2 << QStringLiteral("CAB");
    QTest::newRow("past the end") << 3 << QStringLiteral("ABC");
    QTest::newRow("no row") << -1 << QStringLiteral("ABC");
}

void tst_PlanInsertion::listStartsAtTheRow()
{
    QFETCH(int, row);
    QTEST(names(listFromRow(threePrograms(), entry(2, "B"), row)), "order");
}

void tst_PlanInsertion::theSearchComparesAllFields()
{
    QCOMPARE(names(listFromRow(threePrograms(3), entry(2, "B"), 1)), QStringLiteral("ABC"));
    QCOMPARE(names(listFromRow(threePrograms(), entry(2, "B!"), 1)), QStringLiteral("ABC"));
    QCOMPARE(names(listFromRow(threePrograms(), entry(9, "B"), 1)), QStringLiteral("ABC"));
    std::vector<struProgInfo> withInvalid = threePrograms();
    withInvalid[1].isInvalid = true;
    QCOMPARE(names(listFromRow(withInvalid, entry(2, "B"), 1)), QStringLiteral("ABC"));
}

void tst_PlanInsertion::theRotationGoesByTheRow()
{
    // The first row equals the target, the third one is meant.
    std::vector<struProgInfo> list = threePrograms();
    list[2] = entry(1, "A", 4);
    const auto rotated = listFromRow(list, entry(1, "A"), 2);
    QCOMPARE(names(rotated), QStringLiteral("AAB"));
    QCOMPARE(rotated.front().playCount, 4);
}

void tst_PlanInsertion::theInsertedPlanFreezesAndIsMarked()
{
    PlayPlan plan;
    plan.endAction = BlackScreen;
    plan.serviceList = {1, 2};
    plan.serviceFlagB = true;
    plan.programs = {entry(9, "Z")};
    const PlayPlan inserted = insertedPlan(plan, threePrograms(), InsertionScope::WholeList);
    QCOMPARE(names(inserted.programs), QStringLiteral("ABC"));
    QVERIFY(inserted.serviceList.empty());
    QCOMPARE(inserted.endAction, int(FreezeCurrentFrame));
    QVERIFY(inserted.serviceFlagA);
    QVERIFY(!inserted.serviceFlagB);
}

void tst_PlanInsertion::theMarkOfALoneProgram()
{
    const PlayPlan inserted = insertedPlan(PlayPlan(), {entry(2, "B")}, InsertionScope::OneProgram);
    QVERIFY(inserted.serviceFlagA);
    QVERIFY(inserted.serviceFlagB);
}

void tst_PlanInsertion::theRestOfThePlanStays()
{
    PlayPlan plan;
    plan.mode = FrequencyMode;
    plan.id = 4;
    plan.startTime = "08:00:00";
    plan.endTime = "09:00:00";
    plan.times = 3;
    plan.serviceCount = 7;
    plan.isConflict = true;
    plan.weeks = "1,2";
    plan.serviceTime = "23:59:59";
    plan.hasNoDuration = true;
    PlayPlan expected = plan;
    expected.programs = threePrograms();
    expected.endAction = FreezeCurrentFrame;
    expected.serviceFlagA = true;
    QVERIFY(insertedPlan(plan, threePrograms(), InsertionScope::WholeList) == expected);
}

void tst_PlanInsertion::theTestStopsAtTheFirst()
{
    std::vector<int> asked;
    const auto isSecond = [&asked](int index) {
        asked.push_back(index);
        return index == 2;
    };
    QVERIFY(containsNoDuration(threePrograms(), isSecond));
    QCOMPARE(asked, (std::vector<int>{1, 2}));
    QVERIFY(!containsNoDuration({entry(5, "E")}, isSecond));
    QVERIFY(!containsNoDuration({}, isSecond));
}

TREL_TEST(tst_PlanInsertion, trel::tests::NoApplication)

#include "tst_PlanInsertion.moc"
