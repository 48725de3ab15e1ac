#include "HostFixture.h"
#include "catalogue/ProgramTableModel.h"
#include "support/CountingLook.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QAction>
#include <QApplication>
#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTableView>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What the window does itself, and what it leaves to others, when the catalogue changes.
class tst_CatalogueWaits : public QObject
{
    Q_OBJECT

private slots:
    void manyProgramsGoInOneChange();
    void theWindowLooksAtNoFile();
    void aLostFileIsFoundLater();
};

void tst_CatalogueWaits::manyProgramsGoInOneChange()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    auto* table = fixture.window.findChild<QTableView*>(QStringLiteral("programTable"));
    for (const int row : {1, 3, 4, 6}) {
        table->selectionModel()->select(table->model()->index(row, 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    QAction* remove = nullptr;
    const QList<QAction*> actions = table->actions();
    for (QAction* action : actions) {
        if (action->text().remove(QLatin1Char('&')) == QLatin1String("Remove from catalog")) {
            remove = action;
        }
    }
    QVERIFY(remove != nullptr);
    QSignalSpy changes(&fixture.host, &ScheduleHost::catalogueChanged);
    QSignalSpy ends(&fixture.manager, &scheduleManage::signalUpdatePlanEndTime);
    QSignalSpy conflicts(&fixture.manager, &scheduleManage::signalReflushConflict);
    QVERIFY(changes.isValid() && ends.isValid() && conflicts.isValid());

    const PromptAnswer answer(1);
    remove->trigger();

    QCOMPARE(changes.count(), 1);
    QCOMPARE(ends.count(), 1);
    QCOMPARE(conflicts.count(), 0);
    QCOMPARE(table->model()->rowCount(), 4);
    for (const int index : {2, 4, 5, 7}) {
        QCOMPARE(fixture.manager.getPrograms().count(index), std::size_t(0));
    }
}

void tst_CatalogueWaits::theWindowLooksAtNoFile()
{
    const CountingLook look;
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    fixture.showEditor();
    fixture.editor->close();
    fixture.showEditor();
    QVERIFY(fixture.host.reload());
    fixture.host.close();
    fixture.window.openDatabase(fixture.database);
    QTRY_VERIFY(look.elsewhere() >= 8);
    QCOMPARE(look.takeHere(), 0);
    fixture.host.watchFiles(false);
}

void tst_CatalogueWaits::aLostFileIsFoundLater()
{
    HostFixture fixture;
    const QString media = fixture.copyMedia(QStringLiteral("media"));
    fixture.window.openDatabase(fixture.database);
    fixture.window.importMedia({media});
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QTRY_COMPARE(ended.count(), 1);
    const auto* table = fixture.window.findChild<QTableView*>(QStringLiteral("programTable"));
    const int programs = table->model()->rowCount();
    QVERIFY(programs > 1);
    fixture.host.close();
    QVERIFY(QDir(media).removeRecursively());

    const auto isLost = [table](int row) {
        return table->model()->index(row, 0).data(ProgramTableModel::MissingRole).toBool();
    };
    fixture.window.openDatabase(fixture.database);
    QVERIFY(!isLost(0));
    QTRY_VERIFY(isLost(0));
    QVERIFY(isLost(programs - 1));
}

TREL_TEST(tst_CatalogueWaits, QApplication)
#include "tst_CatalogueWaits.moc"
