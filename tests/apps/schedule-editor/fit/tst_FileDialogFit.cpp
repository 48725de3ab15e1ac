#include "../HostFixture.h"
#include "EditorMenus.h"
#include "support/TestProgram.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QFileDialog>
#include <QHeaderView>
#include <QListView>
#include <QLocale>
#include <QTimer>
#include <QTreeView>

using namespace trel::desktop;

namespace {

/// What the next file dialog looks like, which is turned away then.
template <typename Look>
void seeFileDialog(QAction& entry, Look look)
{
    bool isSeen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            timer.stop();
            QCoreApplication::processEvents();
            isSeen = true;
            look(*dialog);
            dialog->reject();
        }
    });
    timer.start(10);
    entry.trigger();
    QVERIFY(isSeen);
}

} // namespace

/// The toolkit's file dialogs, as the host shows them.
class tst_FileDialogFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void columnsAreWhole_data();
    void columnsAreWhole();
    void kindsAreNamed();
};

void tst_FileDialogFit::columnsAreWhole_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"en_US", "de_DE", "ru_RU", "zh_CN"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void tst_FileDialogFit::columnsAreWhole()
{
    QFETCH(const QString, language);
    HostFixture fixture;
    fixture.languages.select(language);
    fixture.window.show();
    const auto& menus = *fixture.window.findChild<EditorMenus*>();
    for (QAction* const entry : {menus.openDatabase(), menus.newDatabase(), menus.importFiles(),
                                 menus.importFolder(), menus.importSchedule()}) {
        seeFileDialog(*entry, [](const QFileDialog& dialog) {
            const auto& list = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
            const QHeaderView& titles = *list.header();
            const QLocale system = QLocale::system();
            const QStringList longest{
                QString(), QStringLiteral("1000.00 MiB"), QString(),
                system.toString(QDateTime({2026, 12, 28}, {20, 58, 58}), QLocale::ShortFormat)};
            int width = 0;
            for (int column = 0; column < titles.count(); ++column) {
                QVERIFY2(titles.sectionSize(column) >= titles.sectionSizeHint(column),
                         qPrintable(QString::number(column)));
                QVERIFY(titles.sectionSize(column) >
                        list.fontMetrics().horizontalAdvance(longest.at(column)) + 8);
                width += titles.sectionSize(column);
            }
            QVERIFY2(width <= list.viewport()->width(),
                     qPrintable(QStringLiteral("%1 of %2").arg(width).arg(list.width())));
            // The names have what the others leave.
            QVERIFY(titles.sectionSize(0) >= 200 && list.viewport()->width() - width <= 40);
            const auto& places = *dialog.findChild<QListView*>(QStringLiteral("sidebar"));
            QVERIFY2(places.width() >= 120, qPrintable(QString::number(places.width())));
        });
    }
}

void tst_FileDialogFit::kindsAreNamed()
{
    HostFixture fixture;
    fixture.window.show();
    const auto& menus = *fixture.window.findChild<EditorMenus*>();
    seeFileDialog(*menus.importFiles(), [](const QFileDialog& dialog) {
        const auto& kinds = *dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        QCOMPARE(kinds.itemText(0), QStringLiteral("All media"));
        QCOMPARE(kinds.itemText(kinds.count() - 1), QStringLiteral("All files"));
        // The patterns are at work all the same.
        QVERIFY(dialog.nameFilters().constFirst().contains(QStringLiteral("*.mp4")));
    });
}

TREL_TEST(tst_FileDialogFit, QApplication)
#include "tst_FileDialogFit.moc"
