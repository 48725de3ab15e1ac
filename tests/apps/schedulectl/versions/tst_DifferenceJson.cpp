#include "support/TestProgram.h"
#include "versions/DifferenceWords.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QtTest>

#include <limits>
#include <utility>

using namespace trel::console;
using namespace trel::mediadispatch;

namespace {

struct Field
{
    const char* name; ///< As in the JSON form of a schedule.
    DifferenceField field;
    bool isTruth;
};

constexpr Field kFields[] = {
    {"startDate", DifferenceField::StartDate, false},
    {"endDate", DifferenceField::EndDate, false},
    {"mode", DifferenceField::Mode, false},
    {"startTime", DifferenceField::StartTime, false},
    {"endTime", DifferenceField::EndTime, false},
    {"times", DifferenceField::Times, false},
    {"endAction", DifferenceField::EndAction, false},
    {"weeks", DifferenceField::Weeks, false},
    {"hasNoDuration", DifferenceField::HasNoDuration, true},
    {"isConflict", DifferenceField::IsConflict, true},
    {"serviceCount", DifferenceField::ServiceCount, false},
    {"serviceList", DifferenceField::ServiceList, false},
    {"serviceTime", DifferenceField::ServiceTime, false},
    {"serviceFlagA", DifferenceField::ServiceFlagA, true},
    {"serviceFlagB", DifferenceField::ServiceFlagB, true},
    {"progName", DifferenceField::ProgName, false},
    {"playCount", DifferenceField::PlayCount, false},
    {"isInvalid", DifferenceField::IsInvalid, true},
};

ScheduleDifference changed(DifferenceField field, DifferenceValue before, DifferenceValue after)
{
    ScheduleDifference one;
    one.kind = DifferenceKind::PlanField;
    one.taskId = 3;
    one.planId = 5;
    one.formerRow = 0;
    one.row = 1;
    one.field = field;
    one.before = std::move(before);
    one.after = std::move(after);
    return one;
}

} // namespace

/// What differs, for machines.
class tst_DifferenceJson : public QObject
{
    Q_OBJECT

private slots:
    void namesEveryField_data();
    void namesEveryField();
    void namesEveryKind();
    void countsRowsAndPlacesFromOne();
    void keepsTextsAndLists();
};

void tst_DifferenceJson::namesEveryField_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<bool>("isTruth");
    for (const Field& field : kFields) {
        QTest::newRow(field.name) << int(field.field) << field.isTruth;
    }
    QCOMPARE(int(std::size(kFields)), kDifferenceFields - 1);
}

/// Truth values are such, and numbers are numbers.
void tst_DifferenceJson::namesEveryField()
{
    QFETCH(int, field);
    QFETCH(bool, isTruth);
    const QJsonObject json =
        differenceJson(changed(DifferenceField(field), std::int64_t(1), std::int64_t(0)));
    QCOMPARE(json[QStringLiteral("field")].toString(),
             QString::fromLatin1(QTest::currentDataTag()));
    const QJsonValue before = json[QStringLiteral("before")];
    const QJsonValue after = json[QStringLiteral("after")];
    QCOMPARE(before, isTruth ? QJsonValue(true) : QJsonValue(1));
    QCOMPARE(after, isTruth ? QJsonValue(false) : QJsonValue(0));
}

void tst_DifferenceJson::namesEveryKind()
{
    constexpr const char* names[] = {"taskAdded",    "taskRemoved", "taskField", "planAdded",
                                     "planRemoved",  "planMoved",   "planField", "entryAdded",
                                     "entryRemoved", "entryMoved",  "entryField"};
    QCOMPARE(int(std::size(names)), kDifferenceKinds);
    for (int kind = 0; kind < kDifferenceKinds; ++kind) {
        ScheduleDifference one;
        one.kind = DifferenceKind(kind);
        one.taskId = 7;
        const QJsonObject json = differenceJson(one);
        QCOMPARE(json[QStringLiteral("kind")].toString(), QString::fromLatin1(names[kind]));
        QCOMPARE(json[QStringLiteral("taskId")].toInt(), 7);
        // What does not apply is left out.
        QCOMPARE(json.size(), 2);
    }
}

void tst_DifferenceJson::countsRowsAndPlacesFromOne()
{
    ScheduleDifference one = changed(DifferenceField::PlayCount, std::int64_t(2), std::int64_t(3));
    one.kind = DifferenceKind::EntryField;
    one.formerPlace = 3;
    one.place = 2;
    one.entry = {9, false, "News", 3};
    const QJsonObject json = differenceJson(one);
    QCOMPARE(json[QStringLiteral("planId")].toInt(), 5);
    QCOMPARE(json[QStringLiteral("formerRow")].toInt(), 1);
    QCOMPARE(json[QStringLiteral("row")].toInt(), 2);
    QCOMPARE(json[QStringLiteral("formerPlace")].toInt(), 4);
    QCOMPARE(json[QStringLiteral("place")].toInt(), 3);
    QCOMPARE(json[QStringLiteral("progIndex")].toInt(), 9);
    QCOMPARE(json[QStringLiteral("progName")].toString(), QStringLiteral("News"));
}

void tst_DifferenceJson::keepsTextsAndLists()
{
    QJsonObject json = differenceJson(
        changed(DifferenceField::ServiceTime, std::string(), std::string("yes \xe6\x98\xa5")));
    QCOMPARE(json[QStringLiteral("before")], QJsonValue(QString()));
    QCOMPARE(json[QStringLiteral("after")], QJsonValue(QStringLiteral("yes 春")));
    using List = std::vector<std::int64_t>;
    json = differenceJson(changed(DifferenceField::ServiceList, List(),
                                  List{std::numeric_limits<std::int64_t>::max(), -1}));
    QCOMPARE(json[QStringLiteral("before")].toArray(), QJsonArray());
    // As texts, since many readers round numbers of that size.
    QCOMPARE(json[QStringLiteral("after")].toArray(),
             (QJsonArray{QStringLiteral("9223372036854775807"), QStringLiteral("-1")}));
}

TREL_TEST(tst_DifferenceJson, QCoreApplication)
#include "tst_DifferenceJson.moc"
