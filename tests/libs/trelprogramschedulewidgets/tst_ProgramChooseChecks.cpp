#include "ChooserFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QString joined(const QStringList& rows)
{
    return rows.join(QLatin1Char('|'));
}

std::vector<struProgInfo> abc()
{
    return {entry(1, "A"), entry(2, "B"), entry(3, "C")};
}

} // namespace

/// Check marks, their order, and the headers that go along.
class tst_ProgramChooseChecks : public QObject
{
    Q_OBJECT

private slots:
    void programsAreNumberedAndCopiedInTheOrderOfChecking();
    void uncheckingClosesTheGap();
    void theHeaderNumbersFromTheTop();
    void theHeaderFollowsSingleChecks();
    void theHeaderOfThePlanFollowsSingleChecks();
    void theHeaderOfThePlanChecksAll();
    void otherTablesAreIgnored();
};

void tst_ProgramChooseChecks::programsAreNumberedAndCopiedInTheOrderOfChecking()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkPrograms({5, 1, 3});
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[ ] A|[x]02 B|[ ] C|[x]03 D|[ ] E|[x]01 F"));
        chooser.choose();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 F x1|[ ]02 B x1|[ ]03 D x1"));
        QVERIFY(chooser.canConfirm());
        QCOMPARE(chooser.total(), QStringLiteral("00:30:00.000"));
        chooser.cancel();
    });
}

void tst_ProgramChooseChecks::uncheckingClosesTheGap()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkPrograms({5, 1, 3});
        chooser.checkProgram(1);
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[ ] A|[ ] B|[ ] C|[x]02 D|[ ] E|[x]01 F"));
        // The count is 2 again.
        chooser.checkProgram(0);
        QCOMPARE(chooser.programRows().first(), QStringLiteral("[x]03 A"));
        chooser.cancel();
    });
}

void tst_ProgramChooseChecks::theHeaderNumbersFromTheTop()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkProgram(4);
        chooser.checkAllPrograms();
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[x]01 A|[x]02 B|[x]03 C|[x]04 D|[x]05 E|[x]06 F"));
        chooser.checkAllPrograms();
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[ ] A|[ ] B|[ ] C|[ ] D|[ ] E|[ ] F"));
        chooser.checkProgram(4);
        QCOMPARE(chooser.programRows().at(4), QStringLiteral("[x]01 E"));
        chooser.cancel();
    });
}

void tst_ProgramChooseChecks::theHeaderFollowsSingleChecks()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkPrograms({3, 0, 1, 2, 5, 4});
        // The mark is set now, so that a press clears everything.
        chooser.checkAllPrograms();
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[ ] A|[ ] B|[ ] C|[ ] D|[ ] E|[ ] F"));
        chooser.checkPrograms({3, 0, 1, 2, 5, 4});
        chooser.checkProgram(2);
        // Cleared by the one: a press checks everything.
        chooser.checkAllPrograms();
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[x]01 A|[x]02 B|[x]03 C|[x]04 D|[x]05 E|[x]06 F"));
        chooser.cancel();
    });
}

void tst_ProgramChooseChecks::theHeaderOfThePlanFollowsSingleChecks()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkPlan(0);
        chooser.checkPlan(1);
        chooser.checkPlan(2);
        chooser.checkAllPlan();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x1|[ ]02 B x1|[ ]03 C x1"));
        chooser.checkPlan(1);
        chooser.checkAllPlan();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[x]01 A x1|[x]02 B x1|[x]03 C x1"));
        chooser.checkPlan(1);
        chooser.checkAllPlan();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[x]01 A x1|[x]02 B x1|[x]03 C x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseChecks::theHeaderOfThePlanChecksAll()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[x]01 A x1|[x]02 B x1|[x]03 C x1"));
        chooser.checkAllPlan();
        QCOMPARE(joined(chooser.planRows()), QStringLiteral("[ ]01 A x1|[ ]02 B x1|[ ]03 C x1"));
        // The other table has a header of its own.
        QCOMPARE(joined(chooser.programRows()),
                 QStringLiteral("[ ] A|[ ] B|[ ] C|[ ] D|[ ] E|[ ] F"));
        chooser.cancel();
    });
}

void tst_ProgramChooseChecks::otherTablesAreIgnored()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        const QStringList programs = chooser.programRows();
        const QStringList plan = chooser.planRows();
        auto* dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
        dialog->slotChecked(static_cast<CheckType>(2), 0, true);
        dialog->slotSelectAll(static_cast<CheckType>(2), true);
        QCOMPARE(chooser.programRows(), programs);
        QCOMPARE(chooser.planRows(), plan);
        chooser.cancel();
    });
}

TREL_TEST(tst_ProgramChooseChecks, QApplication)

#include "tst_ProgramChooseChecks.moc"
