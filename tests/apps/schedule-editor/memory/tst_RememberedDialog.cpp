#include "../HostFixture.h"
#include "../HostWindows.h"
#include "asrun/AsRunModel.h"
#include "memory/RememberedWindow.h"
#include "merge/ConflictsDialog.h"
#include "support/PlatformNotes.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/merge/ScheduleMerge.h"
#include "versions/StretchModel.h"
#include "versions/VersionModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// A start of the program, with the settings of a folder.
struct Start : HostFixture
{
    explicit Start(const QString& file)
        : settings(file, QSettings::IniFormat)
    {
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        new RememberedWindow(settings, window);
        window.show();
    }

    /// A window of those that the menus lead to, or that of the tasks that two desks have changed.
    QWidget& open(const QString& name)
    {
        if (name != QLatin1String("conflictsDialog")) {
            return *openHostWindow(window, name);
        }
        const ScheduleMerge::Tasks base = manager.getAllTask();
        ScheduleMerge::Tasks mine = base;
        ScheduleMerge::Tasks theirs = base;
        mine.begin()->second.endDate = "2050.01.01";
        theirs.begin()->second.endDate = "2051.01.01";
        merge = std::make_unique<ScheduleMerge>(base, theirs, mine);
        conflicts = std::make_unique<merge::ConflictsDialog>(*merge, *host.catalogue(),
                                                             ScheduleMerge::Choices(), &window);
        conflicts->show();
        QCoreApplication::processEvents();
        return *conflicts;
    }

    QSettings settings;
    NoPlatformNotes quiet;
    std::unique_ptr<ScheduleMerge> merge;
    std::unique_ptr<merge::ConflictsDialog> conflicts;
};

QList<QTableView*> tablesOf(const QWidget& shown)
{
    QList<QTableView*> tables = shown.findChildren<QTableView*>();
    std::sort(tables.begin(), tables.end(), [](const QTableView* one, const QTableView* other) {
        return one->objectName() < other->objectName();
    });
    tables.erase(std::remove_if(tables.begin(), tables.end(),
                                [](const QTableView* table) {
                                    return table->objectName().startsWith(QLatin1String("qt_"));
                                }),
                 tables.end());
    return tables;
}

/// A column that is as wide as it was made: the first ones of some follow what is read.
int columnOf(const QTableView& table)
{
    return table.objectName() == QLatin1String("asRunTable") ? AsRunModel::PlannedColumn
           : table.objectName() == QLatin1String("stretchTable")
               ? versions::StretchModel::FormerColumn
               : 0;
}

/// What is remembered of a window, as a line.
QString lineOf(const QWidget& shown)
{
    QStringList parts{QStringLiteral("%1x%2 at %3, %4")
                          .arg(shown.width())
                          .arg(shown.height())
                          .arg(shown.geometry().x())
                          .arg(shown.geometry().y())};
    const QList<QTableView*> tables = tablesOf(shown);
    for (const QTableView* table : tables) {
        parts.append(QStringLiteral("%1 %2")
                         .arg(table->objectName())
                         .arg(table->columnWidth(columnOf(*table))));
    }
    const QList<QSplitter*> splitters = shown.findChildren<QSplitter*>();
    for (const QSplitter* splitter : splitters) {
        parts.append(
            QStringLiteral("%1 %2").arg(splitter->objectName()).arg(splitter->sizes().value(0)));
    }
    return parts.join(QStringLiteral(", "));
}

/// Has everything otherwise than it opens.
void change(QWidget& shown)
{
    // Large enough for what is in it, and on the screen with a frame around it.
    const QSize least = shown.minimumSizeHint();
    const QSize size = (least + QSize(61, 43)).boundedTo({780, 750}).expandedTo(least);
    shown.setGeometry(QRect(QPoint(6, 34), size));
    const QList<QTableView*> tables = tablesOf(shown);
    for (QTableView* table : tables) {
        table->setColumnWidth(columnOf(*table), table->columnWidth(columnOf(*table)) + 37);
    }
    QCoreApplication::processEvents();
    const QList<QSplitter*> splitters = shown.findChildren<QSplitter*>();
    for (QSplitter* splitter : splitters) {
        QList<int> sizes = splitter->sizes();
        sizes[0] -= 19;
        sizes[1] += 19;
        splitter->setSizes(sizes);
    }
    QCoreApplication::processEvents();
}

} // namespace

/// Windows above that of the host are as the operator has left them.
class tst_RememberedDialog : public QObject
{
    Q_OBJECT

private slots:
    void isAsItWasLeft_data();
    void isAsItWasLeft();
    void isAsItWasLeftAtTheEnd();
    void isOnTheScreen();
    void ignoresWhatIsNoneOfItsOwn_data() { isAsItWasLeft_data(); }
    void ignoresWhatIsNoneOfItsOwn();
    void columnsStayWideEnough();
};

void tst_RememberedDialog::isAsItWasLeft_data()
{
    QTest::addColumn<QString>("name");
    QStringList names = hostWindows();
    // The sheet is as large as what is on it.
    names.removeOne(QStringLiteral("keySheet"));
    names.append(QStringLiteral("conflictsDialog"));
    for (const QString& name : qAsConst(names)) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_RememberedDialog::isAsItWasLeft()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    QString left;
    {
        Start start(file);
        QWidget& shown = start.open(name);
        const QString first = lineOf(shown);
        change(shown);
        left = lineOf(shown);
        QVERIFY2(left != first, qPrintable(left));
        QVERIFY(shown.close());
    }
    Start next(file);
    const QWidget& shown = next.open(name);
    QTRY_COMPARE(lineOf(shown), left);
}

/// It is still open when the program ends.
void tst_RememberedDialog::isAsItWasLeftAtTheEnd()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    const QString name = QStringLiteral("usesWindow");
    QString left;
    {
        Start start(file);
        QWidget& shown = start.open(name);
        change(shown);
        left = lineOf(shown);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }
    Start next(file);
    QCOMPARE(lineOf(next.open(name)), left);
}

/// Where it was left on a screen that has gone.
void tst_RememberedDialog::isOnTheScreen()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    for (const QPoint& far : {QPoint(2500, 1700), QPoint(-900, -700), QPoint(700, 600)}) {
        {
            Start start(file);
            QWidget& shown = start.open(QStringLiteral("usesWindow"));
            shown.setGeometry(QRect(far, QSize(480, 320)));
            QCoreApplication::processEvents();
            QVERIFY(shown.close());
        }
        Start next(file);
        const QWidget& shown = next.open(QStringLiteral("usesWindow"));
        QCOMPARE(shown.size(), QSize(480, 320));
        QVERIFY2(shown.screen()->availableGeometry().contains(shown.geometry()),
                 qPrintable(lineOf(shown)));
    }
}

void tst_RememberedDialog::ignoresWhatIsNoneOfItsOwn()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    QString plain;
    {
        Start start(file);
        QWidget& shown = start.open(name);
        plain = lineOf(shown);
        QVERIFY(shown.close());
        QVERIFY(start.settings.contains(QStringLiteral("windows/") + name));
        const QStringList keys = start.settings.allKeys();
        for (const QString& key : keys) {
            start.settings.setValue(
                key, QStringList{QStringLiteral("-1"), QStringLiteral("x"), QString()});
        }
    }
    Start next(file);
    const QWidget& shown = next.open(name);
    QTRY_COMPARE(lineOf(shown), plain);
}

/// What is written in a column may be longer than it was when the width was remembered.
void tst_RememberedDialog::columnsStayWideEnough()
{
    constexpr int kSaved = versions::VersionModel::SavedColumn;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("settings.ini"));
    {
        Start start(file);
        QWidget& shown = start.open(QStringLiteral("versionsWindow"));
        auto* const table = shown.findChild<QTableView*>(QStringLiteral("versionTable"));
        QTRY_VERIFY(table->model()->rowCount() > 0);
        table->setColumnWidth(kSaved, 40);
        QVERIFY(shown.close());
    }
    Start next(file);
    const QWidget& shown = next.open(QStringLiteral("versionsWindow"));
    const auto* const table = shown.findChild<QTableView*>(QStringLiteral("versionTable"));
    QTRY_VERIFY(table->model()->rowCount() > 0);
    const QString saved = table->model()->index(0, kSaved).data().toString();
    QVERIFY(!saved.isEmpty());
    QTRY_VERIFY(table->columnWidth(kSaved) > table->fontMetrics().horizontalAdvance(saved));
}

TREL_TEST(tst_RememberedDialog, QApplication)
#include "tst_RememberedDialog.moc"
