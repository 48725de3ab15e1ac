#include "../HostFixture.h"
#include "catalogue/ProgramTableModel.h"
#include "memory/RememberedWindow.h"
#include "support/PlatformNotes.h"
#include "support/TestProgram.h"
#include "week/WeekView.h"

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QScreen>
#include <QSettings>

using namespace trel::desktop;

namespace {

/// The window of a start of the program, with the settings of the folder.
struct Start : HostFixture
{
    explicit Start(const QString& file)
        : settings(file, QSettings::IniFormat)
    {
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
    }

    void run()
    {
        new RememberedWindow(settings, window);
        window.show();
        QCoreApplication::processEvents();
    }
    QDockWidget& history() const
    {
        return *window.findChild<QDockWidget*>(QStringLiteral("historyDock"));
    }
    QDockWidget& problems() const
    {
        return *window.findChild<QDockWidget*>(QStringLiteral("problemDock"));
    }
    QTableView& programs() const
    {
        return *window.findChild<QTableView*>(QStringLiteral("programTable"));
    }
    QHeaderView& columns() const { return *programs().horizontalHeader(); }
    QCheckBox& unused() const
    {
        return *window.findChild<QCheckBox*>(QStringLiteral("programUnused"));
    }
    /// The columns as they stand beside each other, what they are sorted by, and how.
    QString order() const
    {
        QStringList places;
        for (int place = 0; place < columns().count(); ++place) {
            places.append(QString::number(columns().logicalIndex(place)));
        }
        return QStringLiteral("%1 by %2 %3")
            .arg(places.join(QLatin1Char(' ')))
            .arg(columns().sortIndicatorSection())
            .arg(columns().sortIndicatorOrder() == Qt::AscendingOrder ? QStringLiteral("up")
                                                                      : QStringLiteral("down"));
    }
    QString firstProgram() const { return programs().model()->index(0, 0).data().toString(); }
    week::WeekView& week() const { return *window.findChild<week::WeekView*>(); }
    /// All that is remembered, as a line.
    QString line() const
    {
        return QStringLiteral("%1x%2, history %3, %4 px, %5 an hour, problems %6 high")
                   .arg(window.width())
                   .arg(window.height())
                   .arg(history().isHidden() ? QStringLiteral("hidden") : QStringLiteral("shown"))
                   .arg(columns().sectionSize(0))
                   .arg(week().isFit() ? 0 : qRound(week().hourHeight()))
                   .arg(problems().height()) +
               QStringLiteral(", ") + order();
    }

    QSettings settings;
    NoPlatformNotes quiet;
};

} // namespace

/// The window is as the operator has left it.
class tst_RememberedWindow : public QObject
{
    Q_OBJECT

private slots:
    void isAsItWasLeft();
    void theCatalogueIsInItsOrder();
    void isOnTheScreen();
    void beginsNoLargerThanTheScreen();
    void ignoresWhatIsNoneOfItsOwn_data();
    void ignoresWhatIsNoneOfItsOwn();
};

void tst_RememberedWindow::isAsItWasLeft()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    QString left;
    {
        Start start(file);
        start.run();
        start.window.resize(1100, 720);
        start.history().show();
        start.columns().resizeSection(0, 133);
        start.week().zoom(4);
        start.window.resizeDocks({&start.problems()}, {121}, Qt::Vertical);
        QCoreApplication::processEvents();
        left = start.line();
        QVERIFY2(left.contains(QStringLiteral("history shown, 133 px")), qPrintable(left));
        QVERIFY2(left.contains(QStringLiteral("problems 121 high")), qPrintable(left));
        QVERIFY(start.window.close());
    }
    Start next(file);
    QVERIFY(next.line() != left);
    next.run();
    QCOMPARE(next.line(), left);
    next.week().zoomToFit();
    QVERIFY(next.window.close());
    Start last(file);
    last.run();
    QVERIFY(last.week().isFit());
}

void tst_RememberedWindow::theCatalogueIsInItsOrder()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    {
        Start start(file);
        start.run();
        QCOMPARE(start.order(), QStringLiteral("0 1 2 3 4 by 4 up"));
        QTRY_COMPARE(start.firstProgram(), QStringLiteral("Brand film"));
        start.columns().moveSection(ProgramTableModel::LengthColumn, 1);
        start.columns().setSortIndicator(ProgramTableModel::NameColumn, Qt::DescendingOrder);
        start.unused().setChecked(true);
        QVERIFY(start.window.close());
    }
    Start next(file);
    next.run();
    QCOMPARE(next.order(), QStringLiteral("0 3 1 2 4 by 0 down"));
    QVERIFY(next.unused().isChecked());
    next.unused().setChecked(false);
    // The rows follow.
    QTRY_COMPARE(next.programs().model()->index(7, 0).data().toString(),
                 QStringLiteral("Brand film"));
}

/// Where it was left on a screen that has gone.
void tst_RememberedWindow::isOnTheScreen()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    {
        Start start(file);
        start.run();
        start.window.setGeometry(3000, 2000, 1100, 540);
        QCoreApplication::processEvents();
        QVERIFY(start.window.close());
    }
    Start next(file);
    next.run();
    const QRect screen = next.window.screen()->availableGeometry();
    const QRect place = next.window.geometry();
    QVERIFY2(screen.contains(place.topLeft()) && place.bottom() <= screen.bottom(),
             qPrintable(QStringLiteral("%1, %2").arg(place.x()).arg(place.y())));
    QCOMPARE(next.window.height(), 540);
}

void tst_RememberedWindow::beginsNoLargerThanTheScreen()
{
    const QTemporaryDir folder;
    Start start(folder.filePath(QStringLiteral("settings.ini")));
    const QSize screen = start.window.screen()->availableGeometry().size();
    // The first size of the window needs a larger screen than that of this test.
    QVERIFY(start.window.width() > screen.width());
    start.run();
    QVERIFY(QTest::qWaitForWindowExposed(&start.window));
    QCOMPARE(start.window.width(), qMax(screen.width(), start.window.minimumSizeHint().width()));
    QVERIFY(start.window.height() <= screen.height());
}

void tst_RememberedWindow::ignoresWhatIsNoneOfItsOwn_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant(QStringLiteral("a letter"));
    QTest::newRow("bytes") << QVariant(QByteArray(300, '\x7f'));
    QTest::newRow("a number") << QVariant(1e300);
    QTest::newRow("not a number") << QVariant(QStringLiteral("nan"));
    QTest::newRow("few widths") << QVariant(QStringList{QStringLiteral("80")});
    QTest::newRow("wild widths") << QVariant(
        QStringList{QStringLiteral("-1"), QStringLiteral("99999999"), QStringLiteral("0"),
                    QStringLiteral("x"), QStringLiteral("20"), QString()});
}

void tst_RememberedWindow::ignoresWhatIsNoneOfItsOwn()
{
    QFETCH(const QVariant, value);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    QString plain;
    QStringList keys;
    {
        Start start(file);
        start.run();
        plain = start.line();
        QVERIFY(start.window.close());
        keys = start.settings.allKeys();
        QVERIFY2(keys.size() >= 4, qPrintable(keys.join(QLatin1Char(' '))));
    }
    Start next(file);
    for (const QString& key : keys) {
        next.settings.setValue(key, value);
    }
    next.run();
    QCOMPARE(next.line(), plain);
}

TREL_TEST(tst_RememberedWindow, QApplication)
#include "tst_RememberedWindow.moc"
