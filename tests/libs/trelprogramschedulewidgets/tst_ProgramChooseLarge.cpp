#include "ChooserFixture.h"

#include "support/AllocationCount.h"
#include "support/StepwiseChecks.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

constexpr int kPrograms = 20000;
constexpr int kPlanRows = 5000;

/// Counts what a model tells its views.
class ModelTraffic : public QObject
{
public:
    explicit ModelTraffic(const QAbstractItemModel* model)
    {
        connect(model, &QAbstractItemModel::dataChanged, this, [this] { ++changes; });
        connect(model, &QAbstractItemModel::rowsInserted, this, [this] { ++insertions; });
        connect(model, &QAbstractItemModel::rowsRemoved, this, [this] { ++removals; });
    }

    int changes = 0;
    int insertions = 0;
    int removals = 0;
};

/// A catalogue as large as they come.
class LargeFixture : public ChooserFixture
{
public:
    LargeFixture()
    {
        service.programs.clear();
        for (int index = 1; index <= kPrograms; ++index) {
            service.addProgram(index, "Program " + std::to_string(index), 1000.0);
        }
    }

    void setLongPlan()
    {
        std::vector<struProgInfo> programs;
        programs.reserve(kPlanRows);
        for (int index = 1; index <= kPlanRows; ++index) {
            programs.push_back(entry(index, "Program"));
        }
        setPrograms(programs);
    }
};

/// Their names are too long to be kept without an object on the heap.
void addThousand(RecordingService& service)
{
    const int known = static_cast<int>(service.programs.size());
    for (int index = known + 1; index <= known + 1000; ++index) {
        service.addProgram(index, "A program with a name of some length", 1000.0);
    }
}

double objectsOfOpening(ChooserFixture& fixture)
{
    const AllocationCount objects;
    const ProgramChoose chooser(&fixture.task, ChooserFixture::kTask, ChooserFixture::kPlan,
                                &fixture.caller, true);
    return static_cast<double>(objects.count());
}

QString cellText(const QTableView* table, int row, int column)
{
    return table->model()->index(row, column).data().toString();
}

/// The rows of the left table as the stepwise way renders them.
QStringList marks(const QTableView* table)
{
    QStringList texts;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        const bool checked = table->model()->index(row, 0).data(Qt::UserRole).toBool();
        texts.append(cellText(table, row, 1) + QLatin1String(checked ? "*" : ""));
    }
    return texts;
}

} // namespace

/// What an operation costs with a real catalogue, counted, and that the quick ways end where the
/// plain ones do.
class tst_ProgramChooseLarge : public QObject
{
    Q_OBJECT

private slots:
    void opening();
    void openingCopiesTheCatalogueOnce();
    void checkingAndClearingAll();
    void uncheckingOneOfAll();
    void checkingAllOfThePlan();
    void choosingMany();
    void deletingARun();
    void deletingEverySecondRow();
    void movingARow();
    void steppingACount();
    void checkingEqualsTheStepwiseWay();
};

void tst_ProgramChooseLarge::opening()
{
    LargeFixture fixture;
    fixture.setLongPlan();
    fixture.openExisting([&](ChooserWindow& chooser) {
        QCOMPARE(chooser.programTable()->model()->rowCount(), kPrograms);
        QCOMPARE(chooser.planTable()->model()->rowCount(), kPlanRows);
        QCOMPARE(fixture.service.count(QStringLiteral("getPrograms")), 1);
        QCOMPARE(fixture.service.count(QStringLiteral("getPlan")), 1);
        QCOMPARE(fixture.service.count(QStringLiteral("getDurationByIndex")), kPlanRows);
        // Once for the rows, and once for the text that the caller has asked for.
        QCOMPARE(fixture.service.count(QStringLiteral("getProgramItemByIndex")), 2 * kPlanRows);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::openingCopiesTheCatalogueOnce()
{
    ChooserFixture fixture;
    addThousand(fixture.service);
    const double before = objectsOfOpening(fixture);
    addThousand(fixture.service);
    const double more = objectsOfOpening(fixture) - before;
    // Of each program: the copy that the service hands out, which is a node and its name, and three
    // cells, each with what the toolkit keeps behind it. The chooser's own records take the name.
    // A window has a few objects more or less each time.
    QCOMPARE(qRound(more / 1000), 2 + 3 * 2);
}

void tst_ProgramChooseLarge::checkingAndClearingAll()
{
    LargeFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        const QTableView* table = chooser.programTable();
        ModelTraffic checking(table->model());
        chooser.checkAllPrograms();
        QCOMPARE(cellText(table, 0, 1), QStringLiteral("01"));
        QCOMPARE(cellText(table, kPrograms - 1, 1), QString::number(kPrograms));
        QVERIFY(checking.changes <= 2 * kPrograms);

        ModelTraffic clearing(table->model());
        chooser.checkAllPrograms();
        QCOMPARE(cellText(table, 0, 1), QString());
        QCOMPARE(cellText(table, kPrograms - 1, 1), QString());
        QVERIFY(clearing.changes <= 2 * kPrograms);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::uncheckingOneOfAll()
{
    LargeFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        const QTableView* table = chooser.programTable();
        chooser.checkAllPrograms();
        ModelTraffic first(table->model());
        chooser.checkProgram(0);
        QCOMPARE(cellText(table, 1, 1), QStringLiteral("01"));
        QCOMPARE(cellText(table, kPrograms - 1, 1), QString::number(kPrograms - 1));
        QVERIFY(first.changes <= kPrograms + 2);
        // Only the rows behind it change.
        ModelTraffic last(table->model());
        chooser.checkProgram(kPrograms - 3);
        QVERIFY(last.changes <= 6);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::checkingAllOfThePlan()
{
    LargeFixture fixture;
    fixture.setLongPlan();
    fixture.openExisting([&](ChooserWindow& chooser) {
        ModelTraffic checking(chooser.planTable()->model());
        fixture.service.clearLog();
        chooser.checkAllPlan();
        QCOMPARE(checking.changes, kPlanRows);
        chooser.checkAllPlan();
        QCOMPARE(checking.changes, 2 * kPlanRows);
        QCOMPARE(fixture.service.log.size(), 0);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::choosingMany()
{
    LargeFixture fixture;
    fixture.openNew([&](ChooserWindow& chooser) {
        auto* dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
        for (int row = kPlanRows - 1; row >= 0; --row) {
            dialog->slotChecked(ProgramListCheck, row, true);
        }
        const QTableView* table = chooser.planTable();
        ModelTraffic traffic(table->model());
        fixture.service.clearLog();
        chooser.choose();
        QCOMPARE(table->model()->rowCount(), kPlanRows);
        QCOMPARE(cellText(table, 0, 2), QStringLiteral("Program %1").arg(kPlanRows));
        QCOMPARE(cellText(table, kPlanRows - 1, 1), QString::number(kPlanRows));
        QCOMPARE(traffic.insertions, 1);
        // The rows come with their numbers.
        QCOMPARE(traffic.changes, 0);
        QCOMPARE(fixture.service.log.size(), kPlanRows);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::deletingARun()
{
    LargeFixture fixture;
    fixture.setLongPlan();
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.checkPlan(0);
        ModelTraffic traffic(chooser.planTable()->model());
        chooser.remove();
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[ ]01 Program 1 x1")));
        QCOMPARE(traffic.removals, 1);
        QCOMPARE(traffic.changes, 0);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::deletingEverySecondRow()
{
    LargeFixture fixture;
    fixture.setLongPlan();
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        auto* dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
        for (int row = 0; row < kPlanRows; row += 2) {
            dialog->slotChecked(PlanListCheck, row, true);
        }
        const QTableView* table = chooser.planTable();
        ModelTraffic traffic(table->model());
        chooser.remove();
        // No two of them are neighbours, and the rows that stay are not taken out.
        QCOMPARE(traffic.removals, kPlanRows / 2);
        QCOMPARE(traffic.insertions, 0);
        QVERIFY(traffic.changes <= kPlanRows / 2);
        QCOMPARE(table->model()->rowCount(), kPlanRows / 2);
        QCOMPARE(cellText(table, 0, 2), QStringLiteral("Program 2"));
        QCOMPARE(cellText(table, kPlanRows / 2 - 1, 1), QString::number(kPlanRows / 2));
        chooser.cancel();
    });
    QCOMPARE(outcome.programs.size(), std::size_t(kPlanRows / 2));
    QCOMPARE(outcome.programs.back().progIndex, kPlanRows);
}

void tst_ProgramChooseLarge::movingARow()
{
    LargeFixture fixture;
    fixture.setLongPlan();
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkPlan(kPlanRows / 2);
        ModelTraffic traffic(chooser.planTable()->model());
        fixture.service.clearLog();
        chooser.moveUp();
        QCOMPARE(traffic.removals, 1);
        QCOMPARE(traffic.insertions, 1);
        // Two rows have another number now.
        QCOMPARE(traffic.changes, 2);
        QCOMPARE(fixture.service.log.size(), kPlanRows);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::steppingACount()
{
    LargeFixture fixture;
    fixture.setLongPlan();
    fixture.openExisting([&](ChooserWindow& chooser) {
        QSpinBox* box = chooser.openCount(2500);
        ModelTraffic traffic(chooser.planTable()->model());
        fixture.service.clearLog();
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(chooser.total(), QStringLiteral("01:23:21.000"));
        QCOMPARE(fixture.service.log.size(), kPlanRows);
        QCOMPARE(traffic.changes, 0);
        chooser.cancel();
    });
}

void tst_ProgramChooseLarge::checkingEqualsTheStepwiseWay()
{
    for (quint32 seed = 0; seed < 40; ++seed) {
        ChooserFixture fixture;
        fixture.openNew([&](ChooserWindow& chooser) {
            auto* dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
            QRandomGenerator random(seed);
            const int rowCount = chooser.programTable()->model()->rowCount();
            StepwiseChecks stepwise(rowCount);
            for (int step = 0; step < 60; ++step) {
                const int row = random.bounded(rowCount);
                const bool check = random.bounded(2) == 1;
                if (random.bounded(8) == 0) {
                    dialog->slotSelectAll(ProgramListCheck, check);
                    stepwise.checkAll(check);
                } else {
                    dialog->slotChecked(ProgramListCheck, row, check);
                    stepwise.checkRow(row, check);
                }
                QCOMPARE(marks(chooser.programTable()), stepwise.lines());
            }
            // The header tells its mark by what the next press does.
            const bool headerWasChecked = stepwise.headerChecked();
            chooser.checkAllPrograms();
            stepwise.checkAll(!headerWasChecked);
            QCOMPARE(marks(chooser.programTable()), stepwise.lines());
            chooser.cancel();
        });
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

TREL_TEST(tst_ProgramChooseLarge, QApplication)

#include "tst_ProgramChooseLarge.moc"
