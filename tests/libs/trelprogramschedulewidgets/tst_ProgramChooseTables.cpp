#include "ChooserFixture.h"

#include "ScheduleText.h"
#include "support/MetaMethods.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

/// How the chooser looks when it opens: the tables and what fills them.
class tst_ProgramChooseTables : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyCatalogueGivesAnEmptyTable();
    void programsOnOfferStandInOrderOfTheirKeys();
    void aNewPlanStartsEmpty();
    void aPlanShowsItsPrograms();
    void theSameProgramMayStandSeveralTimes();
    void programsThatAreGoneAreYellow();
    void entriesGoneBadAreRed_data();
    void entriesGoneBadAreRed();
    void tombstonesAreStoredWhileOpening_data();
    void tombstonesAreStoredWhileOpening();
    void eachTombstoneIsStoredOnce();
    void anUnknownPlanIsEmpty();
    void theTablesDoNotKnowOfEachOther();
    void cellsOfThePlan();
    void modelsObeyTheRules();
    void columns();
    void looksOfTheTables();
};

namespace {

QModelIndex at(const QTableView* table, int row, int column)
{
    return table->model()->index(row, column);
}

QStringList rowTexts(const QTableView* table, int row)
{
    QStringList texts;
    for (int column = 0; column < table->model()->columnCount(); ++column) {
        texts.append(at(table, row, column).data().toString());
    }
    return texts;
}

QString nullSuffix()
{
    return scheduleText("szProgNullStr");
}

QString invalidSuffix()
{
    return scheduleText("szInvalidStr");
}

} // namespace

void tst_ProgramChooseTables::anEmptyCatalogueGivesAnEmptyTable()
{
    ChooserFixture fixture;
    fixture.service.programs.clear();
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.programRows(), QStringList());
        chooser.checkAllPrograms();
        chooser.choose();
        QCOMPARE(chooser.planRows(), QStringList());
        chooser.checkAllPrograms();
        chooser.cancel();
    });
}

void tst_ProgramChooseTables::programsOnOfferStandInOrderOfTheirKeys()
{
    ChooserFixture fixture;
    fixture.service.programs.clear();
    fixture.service.addProgram(30, "Zebra", 1.0);
    fixture.service.addProgram(4, "Ärger", 1.0);
    fixture.service.addProgram(12, "Gone", 1.0).isNull = true;
    fixture.service.addProgram(9, "News", 1.0);
    fixture.openNew([](ChooserWindow& chooser) {
        QCOMPARE(chooser.programRows(),
                 (QStringList{QStringLiteral("[ ] Ärger"), QStringLiteral("[ ] News"),
                              QStringLiteral("[ ] Zebra")}));
        const QTableView* table = chooser.programTable();
        QCOMPARE(table->model()->columnCount(), 3);
        QCOMPARE(at(table, 1, 2).data(Qt::ToolTipRole).toString(), QStringLiteral("News"));
        QCOMPARE(at(table, 1, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
        QVERIFY(!at(table, 1, 0).data(Qt::ToolTipRole).isValid());
        chooser.cancel();
    });
    QCOMPARE(fixture.service.count(QStringLiteral("getPrograms")), 1);
}

void tst_ProgramChooseTables::aNewPlanStartsEmpty()
{
    ChooserFixture fixture;
    // Not even asked for, though the service has a plan with this id.
    fixture.setPrograms({entry(1, "A")});
    const ChooserOutcome outcome = fixture.openNew([](ChooserWindow& chooser) {
        QCOMPARE(chooser.planRows(), QStringList());
        QVERIFY(!chooser.canConfirm());
        QCOMPARE(chooser.total(), QStringLiteral("00:00:00.000"));
        chooser.confirm();
        QVERIFY(chooser.frame()->isVisible());
        chooser.cancel();
    });
    QCOMPARE(outcome.result, 2);
    QCOMPARE(fixture.service.edits(), QStringList());
}

void tst_ProgramChooseTables::aPlanShowsItsPrograms()
{
    ChooserFixture fixture;
    // Under the names that the catalogue has now.
    fixture.setPrograms({entry(3, "Old name", 2), entry(1, "A")});
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.planRows(),
                 (QStringList{QStringLiteral("[ ]01 C x2"), QStringLiteral("[ ]02 A x1")}));
        QVERIFY(chooser.canConfirm());
        QCOMPARE(chooser.total(), QStringLiteral("00:30:00.000"));
        QCOMPARE(chooser.message(), QString());
        chooser.cancel();
    });
    QCOMPARE(outcome.textBefore, QStringLiteral("C,A"));
    QCOMPARE(fixture.service.edits(), QStringList(QStringLiteral("getPlan(3, 7, -1)")));
}

void tst_ProgramChooseTables::theSameProgramMayStandSeveralTimes()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(2, "B"), entry(2, "B"), entry(2, "B", 5)});
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.planRows(),
                 (QStringList{QStringLiteral("[ ]01 B x1"), QStringLiteral("[ ]02 B x1"),
                              QStringLiteral("[ ]03 B x5")}));
        chooser.cancel();
    });
}

void tst_ProgramChooseTables::programsThatAreGoneAreYellow()
{
    ChooserFixture fixture;
    for (auto& [key, program] : fixture.service.programs) {
        program.isNull = true;
    }
    fixture.setPrograms({entry(1, "A"), entry(2, "B"), entry(99, "Never known")});
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.programRows(), QStringList());
        QCOMPARE(chooser.planRows(),
                 (QStringList{QStringLiteral("[ ]01 A%1 x1").arg(nullSuffix()),
                              QStringLiteral("[ ]02 B%1 x1").arg(nullSuffix()),
                              QStringLiteral("[ ]03 %1 x1").arg(nullSuffix())}));
        const QTableView* table = chooser.planTable();
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(at(table, row, 2).data(Qt::ForegroundRole).value<QBrush>(),
                     QBrush(Qt::yellow));
        }
        QVERIFY(chooser.canConfirm());
        chooser.cancel();
    });
    QCOMPARE(outcome.text, QStringLiteral("A%1,B%1,%1").arg(nullSuffix()));
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), 0);
}

void tst_ProgramChooseTables::entriesGoneBadAreRed_data()
{
    QTest::addColumn<int>("progIndex");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("index of a program") << 1 << true;
    QTest::newRow("index of nothing") << 100 << true;
    QTest::newRow("last below the bound") << 65535 << true;
    QTest::newRow("tombstone") << 65536 << false;
    QTest::newRow("above the bound") << 65537 << false;
}

void tst_ProgramChooseTables::entriesGoneBadAreRed()
{
    QFETCH(int, progIndex);
    QFETCH(bool, isStored);
    ChooserFixture fixture;
    fixture.setPrograms({badEntry(progIndex, "Old")});
    const QString name = QLatin1String("Old") + (isStored ? invalidSuffix() : QString());
    const int shownIndex = qMax(progIndex, 65536);
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        const QTableView* table = chooser.planTable();
        QCOMPARE(rowTexts(table, 0),
                 (QStringList{QString(), QStringLiteral("01"), name, QStringLiteral("1"),
                              QString::number(shownIndex), QStringLiteral("0")}));
        QCOMPARE(at(table, 0, 2).data(Qt::ForegroundRole).value<QBrush>(), QBrush(Qt::red));
        QCOMPARE(at(table, 0, 2).data(Qt::ToolTipRole).toString(), name);
        chooser.cancel();
    });
    QCOMPARE(outcome.textBefore, name);
    QCOMPARE(outcome.text, name);
    QCOMPARE(line(outcome.programs), QStringLiteral("!%1 %2 x1").arg(shownIndex).arg(name));
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), isStored ? 1 : 0);
    QCOMPARE(fixture.service.count(QStringLiteral("getProgramItemByIndex")), 0);
}

void tst_ProgramChooseTables::tombstonesAreStoredWhileOpening_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("confirmed later") << true;
    QTest::newRow("cancelled later") << false;
}

void tst_ProgramChooseTables::tombstonesAreStoredWhileOpening()
{
    QFETCH(bool, confirmed);
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A", 3), badEntry(100, "Old")});
    const PlayPlan before = fixture.plan();
    fixture.openExisting([&](ChooserWindow& chooser) {
        // It is there before the operator has done anything.
        QCOMPARE(fixture.service.edits(),
                 (QStringList{QStringLiteral("getPlan(3, 7, -1)"),
                              QStringLiteral("addPlan(3, %1)").arg(line(fixture.plan()))}));
        if (confirmed) {
            chooser.confirm();
        } else {
            chooser.cancel();
        }
    });
    const PlayPlan stored = fixture.service.addedPlans.front().second;
    QCOMPARE(line(stored.programs), QStringLiteral("1 A x3, !65536 Old%1 x1").arg(invalidSuffix()));
    PlayPlan withoutPrograms = stored;
    withoutPrograms.programs = before.programs;
    QVERIFY(withoutPrograms == before);
    // Opened again, it stays as it is.
    fixture.service.clearLog();
    fixture.openExisting([](ChooserWindow& chooser) { chooser.cancel(); });
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), 0);
}

void tst_ProgramChooseTables::eachTombstoneIsStoredOnce()
{
    ChooserFixture fixture;
    fixture.setPrograms({badEntry(100, "Old"), badEntry(65536, "Older"), badEntry(7, "Last")});
    fixture.openExisting([](ChooserWindow& chooser) { chooser.cancel(); });
    const auto& stored = fixture.service.addedPlans;
    QCOMPARE(stored.size(), std::size_t(2));
    QCOMPARE(line(stored[0].second.programs),
             QStringLiteral("!65536 Old%1 x1, !65536 Older x1, !7 Last x1").arg(invalidSuffix()));
    QCOMPARE(
        line(stored[1].second.programs),
        QStringLiteral("!65536 Old%1 x1, !65536 Older x1, !65536 Last%1 x1").arg(invalidSuffix()));
}

void tst_ProgramChooseTables::anUnknownPlanIsEmpty()
{
    ChooserFixture fixture;
    fixture.service.working.clear();
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.planRows(), QStringList());
        QVERIFY(!chooser.canConfirm());
        chooser.cancel();
    });
    QCOMPARE(outcome.text, QString());
}

void tst_ProgramChooseTables::theTablesDoNotKnowOfEachOther()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkProgram(0);
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[ ]01 A x1")));
        chooser.checkProgram(0);
        chooser.checkPlan(0);
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[x]01 A x1")));
        QCOMPARE(chooser.programRows().first(), QStringLiteral("[ ] A"));
        chooser.cancel();
    });
}

void tst_ProgramChooseTables::cellsOfThePlan()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(2, "B", 12)});
    fixture.openExisting([](ChooserWindow& chooser) {
        const QTableView* table = chooser.planTable();
        QCOMPARE(rowTexts(table, 0),
                 (QStringList{QString(), QStringLiteral("01"), QStringLiteral("B"),
                              QStringLiteral("12"), QStringLiteral("2"), QStringLiteral("0")}));
        const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        for (int column = 0; column < 6; ++column) {
            QCOMPARE(at(table, 0, column).flags(),
                     column == 3 ? plain | Qt::ItemIsEditable : plain);
        }
        QCOMPARE(at(table, 0, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
        QCOMPARE(at(table, 0, 2).data(Qt::ToolTipRole).toString(), QStringLiteral("B"));
        QVERIFY(!at(table, 0, 2).data(Qt::ForegroundRole).isValid());
        QVERIFY(table->isColumnHidden(4));
        QVERIFY(table->isColumnHidden(5));
        chooser.cancel();
    });
}

void tst_ProgramChooseTables::modelsObeyTheRules()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A"), entry(2, "B"), entry(3, "C")});
    fixture.openExisting([](ChooserWindow& chooser) {
        using Mode = QAbstractItemModelTester::FailureReportingMode;
        const QAbstractItemModelTester programs(chooser.programTable()->model(), Mode::QtTest);
        const QAbstractItemModelTester plan(chooser.planTable()->model(), Mode::QtTest);
        chooser.checkAllPrograms();
        chooser.checkProgram(2);
        chooser.choose();
        chooser.checkPlan(1);
        chooser.moveUp();
        chooser.checkPlan(3);
        chooser.checkPlan(4);
        chooser.remove();
        QCOMPARE(chooser.planRows(),
                 (QStringList{QStringLiteral("[ ]01 A x1"), QStringLiteral("[ ]02 C x1"),
                              QStringLiteral("[ ]03 D x1"), QStringLiteral("[ ]04 E x1"),
                              QStringLiteral("[ ]05 F x1")}));
        chooser.cancel();
    });
}

void tst_ProgramChooseTables::columns()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    fixture.openExisting([](ChooserWindow& chooser) {
        const QHeaderView* left = chooser.programTable()->horizontalHeader();
        const QHeaderView* right = chooser.planTable()->horizontalHeader();
        QCOMPARE(left->sectionSize(0), 34);
        QCOMPARE(left->sectionSize(1), 50);
        QCOMPARE(left->sectionViewportPosition(2) + left->sectionSize(2), left->width());
        QCOMPARE(right->sectionSize(0), 34);
        QCOMPARE(right->sectionSize(1), 50);
        QCOMPARE(right->sectionSize(2), 110);
        QCOMPARE(right->sectionViewportPosition(3) + right->sectionSize(3), right->width());
        for (int section = 0; section < 3; ++section) {
            QCOMPARE(left->sectionResizeMode(section), QHeaderView::Fixed);
            QCOMPARE(right->sectionResizeMode(section), QHeaderView::Fixed);
        }
        QCOMPARE(right->sectionResizeMode(3), QHeaderView::Fixed);
        chooser.cancel();
    });
}

void tst_ProgramChooseTables::looksOfTheTables()
{
    ChooserFixture fixture;
    fixture.openExisting([](ChooserWindow& chooser) {
        for (const QTableView* table : {chooser.programTable(), chooser.planTable()}) {
            QCOMPARE(table->objectName(), QStringLiteral("schedule"));
            QCOMPARE(table->horizontalHeader()->objectName(), QStringLiteral("schedule"));
            QCOMPARE(table->horizontalHeader()->defaultAlignment(), Qt::AlignCenter);
            QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
            QCOMPARE(table->verticalHeader()->defaultSectionSize(), 31);
            QVERIFY(table->verticalHeader()->isHidden());
            QVERIFY(!table->showGrid());
            QVERIFY(!table->wordWrap());
            QCOMPARE(table->focusPolicy(), Qt::NoFocus);
            QCOMPARE(table->selectionMode(), QAbstractItemView::NoSelection);
            QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
            QVERIFY(!table->dragEnabled());
            QVERIFY(!table->acceptDrops());
            QCOMPARE(table->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
        }
        QCOMPARE(chooser.programTable()->editTriggers(), QAbstractItemView::NoEditTriggers);
        QVERIFY(chooser.programTable()->testAttribute(Qt::WA_Hover));
        QCOMPARE(chooser.planTable()->editTriggers(), QAbstractItemView::DoubleClicked);
        QCOMPARE(chooser.planTable()->contextMenuPolicy(), Qt::CustomContextMenu);
        chooser.cancel();
    });
}

TREL_TEST(tst_ProgramChooseTables, QApplication)

#include "tst_ProgramChooseTables.moc"
