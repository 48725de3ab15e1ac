#include "../HostFixture.h"
#include "look/ProgramSigns.h"
#include "players/PlayerModel.h"
#include "players/PlayersDock.h"
#include "support/PlatformNotes.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QApplication>
#include <QLabel>
#include <QTableView>
#include <QToolButton>

using namespace trel::desktop;
using namespace trel::desktop::players;
using namespace trel::mediadispatch;

namespace {

/// The window with the players of its database.
struct PlayersFixture : HostFixture
{
    PlayersFixture()
        : clock(QDateTime(QDate(2026, 3, 11), QTime(9, 20)))
    {
        window.openDatabase(database);
        dock = window.findChild<PlayersDock*>();
        number = window.findChild<QToolButton*>(QStringLiteral("playerNumber"));
        table = dock->findChild<QTableView*>(QStringLiteral("playerTable"));
        window.show();
        QCoreApplication::processEvents();
    }

    PlayerStatus status(const char* screen, const char* program) const
    {
        PlayerStatus status;
        status.screen = QLatin1String(screen);
        status.heard = clock.msecsSinceEpoch();
        status.shown.picture = ScreenPicture::Playing;
        status.shown.reason = ScreenReason::PlanPlays;
        status.program = QLatin1String(program);
        return status;
    }
    void tell(const PlayerStatus& status) const
    {
        QVERIFY(!PlayerStatusFolder(database).write(status));
    }
    /// What a row of the list says, from column to column.
    QString line(int row) const
    {
        QStringList cells;
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            cells.append(table->model()->index(row, column).data().toString());
        }
        return cells.join(QStringLiteral(" | "));
    }
    QString told() const { return number->isHidden() ? QString() : number->text(); }

    const NoPlatformNotes quiet;
    TestClock clock;
    PlayersDock* dock = nullptr;
    QToolButton* number = nullptr;
    QTableView* table = nullptr;
};

} // namespace

/// The players at work, in the window of the station.
class tst_PlayersDock : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsSaidWithoutPlayers();
    void withoutPlayersItSaysWhatToDo();
    void eachPlayerHasALine();
    void programsHaveTheirSigns();
    void whatStandsInIsTold();
    void aPlayerFallsSilent();
    void theNumberLeadsToTheList();
    void theSelectionStays();
    void anotherDatabaseHasItsOwn();
};

void tst_PlayersDock::nothingIsSaidWithoutPlayers()
{
    PlayersFixture fixture;
    fixture.clock.advance(20000);
    fixture.dock->look();
    // The folder has been read when the next one is.
    fixture.tell(fixture.status("lobby", "News"));
    QCOMPARE(fixture.told(), QString());
    QVERIFY(fixture.dock->isHidden());
}

void tst_PlayersDock::withoutPlayersItSaysWhatToDo()
{
    PlayersFixture fixture;
    fixture.dock->show();
    const auto* hint = fixture.dock->findChild<QLabel*>(QStringLiteral("playerHint"));
    QVERIFY(hint->isVisible());
    QVERIFY(!fixture.table->isVisible());
    QVERIFY2(hint->text().startsWith(QStringLiteral("No player follows this database.")) &&
                 hint->text().contains(QStringLiteral("schedule-player")),
             qPrintable(hint->text()));
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_VERIFY2(hint->text().startsWith(QStringLiteral("Kein Player")), qPrintable(hint->text()));
    fixture.tell(fixture.status("lobby", "News"));
    fixture.dock->look();
    QTRY_VERIFY(fixture.table->isVisible());
    QVERIFY(!hint->isVisible());
    PlayerStatusFolder(fixture.database).remove(QStringLiteral("lobby"));
    fixture.dock->look();
    QTRY_VERIFY(hint->isVisible());
    QVERIFY(!fixture.table->isVisible());
}

void tst_PlayersDock::eachPlayerHasALine()
{
    PlayersFixture fixture;
    fixture.tell(fixture.status("lobby", "City news"));
    PlayerStatus bar = fixture.status("bar", "Lunch menu");
    bar.shown.picture = ScreenPicture::Frozen;
    bar.faults = 2;
    bar.lastFault = QStringLiteral("There is no such file.");
    bar.lastFaultAt = fixture.clock.msecsSinceEpoch() - 86400000;
    fixture.tell(bar);
    // They are looked at every few seconds.
    fixture.clock.advance(6000);
    QTRY_COMPARE(fixture.told(), QStringLiteral("Players: 2"));
    QCOMPARE(fixture.line(0),
             QStringLiteral("bar | Last frame of Lunch menu | \u206609:20:00\u2069 | "
                            "2, the last at \u20662026.03.10 09:20:00\u2069: "
                            "There is no such file."));
    QCOMPARE(fixture.line(1), QStringLiteral("lobby | City news | \u206609:20:00\u2069 | None"));
    // Nothing opens by itself.
    QVERIFY(fixture.dock->isHidden());
}

void tst_PlayersDock::programsHaveTheirSigns()
{
    PlayersFixture fixture;
    PlayerStatus status = fixture.status("a", "City news");
    status.shown.progIndex = 2;
    fixture.tell(status);
    status.screen = QStringLiteral("b");
    status.shown.picture = ScreenPicture::Black;
    fixture.tell(status);
    fixture.dock->look();
    QTRY_COMPARE(fixture.told(), QStringLiteral("Players: 2"));
    const auto signs = [&fixture](int row, int column) {
        const QModelIndex index = fixture.table->model()->index(row, column);
        return look::signedPrograms(index.data(look::kProgramsRole).value<look::ProgramIndexes>());
    };
    QCOMPARE(signs(0, PlayerModel::ShownColumn), look::ProgramIndexes{2});
    QCOMPARE(signs(0, PlayerModel::ScreenColumn), look::ProgramIndexes());
    QCOMPARE(signs(1, PlayerModel::ShownColumn), look::ProgramIndexes());
}

void tst_PlayersDock::whatStandsInIsTold()
{
    PlayersFixture fixture;
    PlayerStatus one = fixture.status("a", "News");
    one.isStandIn = true;
    fixture.tell(one);
    one.screen = QStringLiteral("b");
    one.keepsLastPicture = true;
    fixture.tell(one);
    fixture.dock->look();
    QTRY_COMPARE(fixture.told(), QStringLiteral("Players: 2"));
    QCOMPARE(fixture.line(0).section(QStringLiteral(" | "), 1, 1),
             QStringLiteral("Has no picture for: News"));
    QCOMPARE(fixture.line(1).section(QStringLiteral(" | "), 1, 1),
             QStringLiteral("Stands still in: News"));
}

void tst_PlayersDock::aPlayerFallsSilent()
{
    PlayersFixture fixture;
    fixture.tell(fixture.status("lobby", "News"));
    fixture.dock->look();
    QTRY_COMPARE(fixture.told(), QStringLiteral("Players: 1"));
    fixture.clock.advance(30000);
    QCOMPARE(fixture.told(), QStringLiteral("Players: 1"));
    fixture.clock.advance(1000);
    QCOMPARE(fixture.told(), QStringLiteral("Players: 1, silent: 1"));
    QCOMPARE(fixture.line(0),
             QStringLiteral("lobby | News | Not since \u206609:20:00\u2069 | None"));
    // One that ends leaves the list.
    PlayerStatusFolder(fixture.database).remove(QStringLiteral("lobby"));
    fixture.dock->look();
    QTRY_COMPARE(fixture.told(), QString());
}

void tst_PlayersDock::theNumberLeadsToTheList()
{
    PlayersFixture fixture;
    fixture.tell(fixture.status("lobby", "News"));
    fixture.dock->look();
    QTRY_COMPARE(fixture.told(), QStringLiteral("Players: 1"));
    fixture.window.activateWindow();
    QTest::mouseClick(fixture.number, Qt::LeftButton);
    QVERIFY(fixture.dock->isVisible());
    QTRY_COMPARE(QApplication::focusWidget(), fixture.table);
    fixture.window.grab().save(QStringLiteral(PICTURES "/players.png"));
}

void tst_PlayersDock::theSelectionStays()
{
    PlayersFixture fixture;
    fixture.tell(fixture.status("bar", "News"));
    fixture.tell(fixture.status("lobby", "News"));
    fixture.dock->look();
    QTRY_COMPARE(fixture.told(), QStringLiteral("Players: 2"));
    fixture.table->selectRow(1);
    fixture.tell(fixture.status("lobby", "Weather"));
    fixture.dock->look();
    QTRY_COMPARE(fixture.line(1), QStringLiteral("lobby | Weather | \u206609:20:00\u2069 | None"));
    QCOMPARE(fixture.table->currentIndex().row(), 1);
}

void tst_PlayersDock::anotherDatabaseHasItsOwn()
{
    PlayersFixture fixture;
    fixture.tell(fixture.status("lobby", "News"));
    fixture.dock->look();
    QTRY_COMPARE(fixture.told(), QStringLiteral("Players: 1"));
    fixture.window.openDatabase(fixture.folder.filePath(QStringLiteral("other.db")));
    QTRY_COMPARE(fixture.told(), QString());
}

TREL_TEST(tst_PlayersDock, QApplication)
#include "tst_PlayersDock.moc"
