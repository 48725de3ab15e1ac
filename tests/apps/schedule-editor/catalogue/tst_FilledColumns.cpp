#include "../HostFixture.h"
#include "catalogue/ProgramTableModel.h"
#include "memory/RememberedWindow.h"
#include "support/PlatformNotes.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDockWidget>
#include <QHeaderView>
#include <QSettings>

using namespace trel::desktop;

namespace {

constexpr int kName = ProgramTableModel::NameColumn;
constexpr int kFolder = ProgramTableModel::FolderColumn;
constexpr int kKind = ProgramTableModel::KindColumn;
constexpr QSize kUsual(1350, 700);

/// The window of a start of the program, with the settings of the folder.
struct Start : HostFixture
{
    explicit Start(const QString& file)
        : settings(file, QSettings::IniFormat)
    {
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        new RememberedWindow(settings, window);
        // Larger than the screen of the tests, with all panels as they are at first.
        window.resize(kUsual);
        window.show();
        QTRY_VERIFY(table().isVisible());
        QCoreApplication::processEvents();
    }

    QTableView& table() const
    {
        return *window.findChild<QTableView*>(QStringLiteral("programTable"));
    }
    QHeaderView& header() const { return *table().horizontalHeader(); }
    void makePanel(int width)
    {
        auto* const panel = window.findChild<QDockWidget*>(QStringLiteral("catalogueDock"));
        window.resizeDocks({panel}, {width}, Qt::Horizontal);
        QCoreApplication::processEvents();
        QCOMPARE(panel->width(), width);
    }
    /// Where a column ends; 0 at the edge of what can be seen.
    int beyondEdge(int column) const
    {
        return header().sectionViewportPosition(column) + header().sectionSize(column) -
               table().viewport()->width();
    }

    QSettings settings;
    NoPlatformNotes quiet;
};

} // namespace

/// The columns of the catalog, in a panel of whatever width.
class tst_FilledColumns : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void endWhereThePanelDoes();
    void giveTheNameBackItsWidth();
    void followTheName();
    void leaveWhatTheOperatorHasChosen();
    void areAsTheyWereLeft();

private:
    QString file() const { return m_folder->filePath(QStringLiteral("settings.ini")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FilledColumns::endWhereThePanelDoes()
{
    Start start(file());
    QCOMPARE(start.beyondEdge(kFolder), 0);
    const int name = start.header().sectionSize(kName);
    const int folder = start.header().sectionSize(kFolder);
    start.makePanel(240);
    QCOMPARE(start.beyondEdge(kFolder), 0);
    QCOMPARE(start.header().sectionSize(kName), name);
    QVERIFY(start.header().sectionSize(kFolder) < folder);
    // Further columns come as soon as there is room for all of them.
    start.makePanel(300);
    QCOMPARE(start.beyondEdge(kFolder), 0);
    start.makePanel(400);
    QCOMPARE(start.beyondEdge(kKind), 0);
    QVERIFY(start.header().sectionSize(kFolder) >= folder - 1);
    start.makePanel(530);
    QCOMPARE(start.beyondEdge(ProgramTableModel::IndexColumn), 0);
}

void tst_FilledColumns::giveTheNameBackItsWidth()
{
    Start start(file());
    const int name = start.header().sectionSize(kName);
    start.header().resizeSection(kName, 190);
    start.makePanel(215);
    QCOMPARE(start.beyondEdge(kFolder), 0);
    QVERIFY(start.header().sectionSize(kName) < 190);
    start.makePanel(300);
    QCOMPARE(start.header().sectionSize(kName), 190);
    QCOMPARE(start.beyondEdge(kFolder), 0);
    QVERIFY(name != 190);
}

void tst_FilledColumns::followTheName()
{
    const Start start(file());
    start.header().resizeSection(kName, 133);
    QCOMPARE(start.header().sectionSize(kName), 133);
    QCOMPARE(start.beyondEdge(kFolder), 0);
}

void tst_FilledColumns::leaveWhatTheOperatorHasChosen()
{
    Start start(file());
    start.header().resizeSection(kFolder, 222);
    start.makePanel(240);
    QCOMPARE(start.header().sectionSize(kFolder), 222);
    start.makePanel(330);
    QCOMPARE(start.header().sectionSize(kFolder), 222);
}

void tst_FilledColumns::areAsTheyWereLeft()
{
    {
        Start start(file());
        start.header().resizeSection(kFolder, 222);
        QVERIFY(start.window.close());
    }
    int name = 0;
    {
        Start start(file());
        QCOMPARE(start.header().sectionSize(kFolder), 222);
        // At the edge again, where they stay.
        name = start.header().sectionSize(kName);
        start.header().resizeSection(kFolder, start.table().viewport()->width() - name);
        QVERIFY(start.window.close());
    }
    Start start(file());
    QCOMPARE(start.header().sectionSize(kName), name);
    start.makePanel(240);
    QCOMPARE(start.beyondEdge(kFolder), 0);
}

TREL_TEST(tst_FilledColumns, QApplication)
#include "tst_FilledColumns.moc"
