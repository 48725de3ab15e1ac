#include "InUseFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QMenu>

using namespace trel::mediadispatch;

namespace {

QStringList greyed()
{
    QStringList texts;
    for (const QString& text : menuTexts()) {
        texts.append(QLatin1Char('(') + text + QLatin1Char(')'));
    }
    return texts;
}

QString joined(const QStringList& rows)
{
    return rows.join(QLatin1Char('|'));
}

} // namespace

/// The menu of a row of the plan: when it is in reach, and the moves in it.
class tst_ProgramChooseMenu : public QObject
{
    Q_OBJECT

private slots:
    void theMenuOfAGoodRow();
    void aBusyServiceGreysTheMenu();
    void theEmptySpaceGreysTheMenu();
    void aNewRowGreysTheMenu();
    void aPlanNotInUseGreysTheMenu();
    void aProgramThatIsGoneGreysTheMenu();
    void theLastEntryInUseDecides_data();
    void theLastEntryInUseDecides();
    void openingTheMenuReadsTheTableBack();
    void aGreyedMenuDoesNothing();
    void movingByTheMenu_data();
    void movingByTheMenu();
};

void tst_ProgramChooseMenu::theMenuOfAGoodRow()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(1), menuTexts());
        QCOMPARE(fixture.service.log, (QStringList{QStringLiteral("getScheduleState()"),
                                                   QStringLiteral("getProgramItemByIndex(1)"),
                                                   QStringLiteral("getProgramItemByIndex(2)"),
                                                   QStringLiteral("getProgramItemByIndex(3)"),
                                                   QStringLiteral("getNowUsePlan(3, 7, -1)"),
                                                   QStringLiteral("getProgramItemByIndex(2)")}));
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::aBusyServiceGreysTheMenu()
{
    InUseFixture fixture;
    fixture.service.scheduleState = true;
    fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(1), greyed());
        // Nothing else is asked then.
        QCOMPARE(fixture.service.log, QStringList(QStringLiteral("getScheduleState()")));
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::theEmptySpaceGreysTheMenu()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(1), menuTexts());
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(3), greyed());
        QCOMPARE(fixture.service.edits(), QStringList(QStringLiteral("getScheduleState()")));
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::aNewRowGreysTheMenu()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkProgram(0);
        chooser.choose();
        QCOMPARE(chooser.contextMenu(3), greyed());
        QCOMPARE(chooser.contextMenu(0), menuTexts());
        // The mark travels with its row.
        chooser.checkPlan(3);
        chooser.moveUp();
        QCOMPARE(chooser.contextMenu(2), greyed());
        QCOMPARE(chooser.contextMenu(3), menuTexts());
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::aPlanNotInUseGreysTheMenu()
{
    InUseFixture fixture;
    fixture.service.planInUse.reset();
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(0), greyed());
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::aProgramThatIsGoneGreysTheMenu()
{
    InUseFixture fixture;
    fixture.service.programs.at(2).isNull = true;
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(1), greyed());
        QCOMPARE(chooser.contextMenu(0), menuTexts());
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::theLastEntryInUseDecides_data()
{
    QTest::addColumn<bool>("firstIsBad");
    QTest::addColumn<bool>("lastIsBad");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("both good") << false << false << true;
    QTest::newRow("first bad") << true << false << true;
    QTest::newRow("last bad") << false << true << false;
    QTest::newRow("both bad") << true << true << false;
}

void tst_ProgramChooseMenu::theLastEntryInUseDecides()
{
    QFETCH(bool, firstIsBad);
    QFETCH(bool, lastIsBad);
    QFETCH(bool, enabled);
    InUseFixture fixture;
    std::vector<struProgInfo>& inUse = fixture.service.planInUse->programs;
    inUse = {entry(2, "B"), badEntry(1, "A"), entry(2, "B"), badEntry(3, "C")};
    inUse[0].isInvalid = firstIsBad;
    inUse[2].isInvalid = lastIsBad;
    fixture.openExisting([&](ChooserWindow& chooser) {
        QCOMPARE(chooser.contextMenu(1), enabled ? menuTexts() : greyed());
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::openingTheMenuReadsTheTableBack()
{
    InUseFixture fixture;
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        chooser.setCount(0, 4);
        chooser.checkPlan(2);
        chooser.moveUp();
        chooser.contextMenu(3);
        chooser.cancel();
    });
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x4, 3 C x1, 2 B x1"));
}

void tst_ProgramChooseMenu::aGreyedMenuDoesNothing()
{
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.contextMenu(1);
        fixture.service.scheduleState = true;
        const QStringList before = chooser.planRows();
        for (const int menuLine : {CutLine, DelayLine, UpLine, DownLine}) {
            fixture.service.clearLog();
            chooser.contextMenu(1, menuLine);
            QCOMPARE(fixture.service.log, QStringList(QStringLiteral("getScheduleState()")));
            QCOMPARE(chooser.planRows(), before);
        }
        // Nor by the actions themselves: nothing is connected.
        chooser.withContextMenu(1, [](QMenu& menu) {
            for (QAction* action : menu.actions()) {
                action->trigger();
            }
        });
        QCOMPARE(chooser.planRows(), before);
        QVERIFY(fixture.service.insertions.empty());
        chooser.cancel();
    });
}

void tst_ProgramChooseMenu::movingByTheMenu_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("menuLine");
    QTest::addColumn<QString>("rows");
    QTest::newRow("up") << 1 << int(UpLine) << QStringLiteral("[ ]01 B x1|[ ]02 A x1|[x]03 C x1");
    QTest::newRow("down") << 1 << int(DownLine)
                          << QStringLiteral("[ ]01 A x1|[x]02 C x1|[ ]03 B x1");
    QTest::newRow("up from the top")
        << 0 << int(UpLine) << QStringLiteral("[ ]01 A x1|[ ]02 B x1|[x]03 C x1");
    QTest::newRow("down from the bottom")
        << 2 << int(DownLine) << QStringLiteral("[ ]01 A x1|[ ]02 B x1|[x]03 C x1");
}

void tst_ProgramChooseMenu::movingByTheMenu()
{
    QFETCH(int, row);
    QFETCH(int, menuLine);
    QFETCH(QString, rows);
    InUseFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        // The row under the pointer moves, whichever is checked.
        chooser.checkPlan(2);
        fixture.service.clearLog();
        QCOMPARE(chooser.contextMenu(row, menuLine), menuTexts());
        QCOMPARE(joined(chooser.planRows()), rows);
        QCOMPARE(fixture.service.calls({QStringLiteral("getPlan"), QStringLiteral("getTask")}),
                 QStringList());
        chooser.cancel();
    });
}

TREL_TEST(tst_ProgramChooseMenu, QApplication)

#include "tst_ProgramChooseMenu.moc"
