#include "../HostFixture.h"
#include "../HostWindows.h"
#include "EditorMenus.h"
#include "fit/ScrolledContent.h"
#include "fit/ScrolledEditor.h"
#include "fit/WindowsOnScreen.h"
#include "memory/RememberedWindow.h"
#include "merge/ConflictsDialog.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/merge/ScheduleMerge.h"
#include "week/WeekView.h"

#include "card/PlanColumns.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// Wide enough for the editor as a whole.
constexpr int kRoomy = 1366;
constexpr int kHighEnough = 640;
/// Where there is more room, the host's own window opens no higher.
constexpr int kHighest = 900;
/// Wide enough for the host's own window as a whole.
constexpr int kWide = 900;
/// What the desktop's frame takes of it.
constexpr QSize kFrame(12, 40);

QRect screenArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QString text(const QRect& place)
{
    return QStringLiteral("%1 by %2 at %3, %4")
        .arg(place.width())
        .arg(place.height())
        .arg(place.x())
        .arg(place.y());
}

/// Whether no edge of what a widget stands in cuts it off.
bool isWhole(const QWidget& widget)
{
    QRect place = widget.rect();
    for (const QWidget* at = &widget; !at->isWindow(); at = at->parentWidget()) {
        place.translate(at->pos());
        if (!at->parentWidget()->rect().contains(place)) {
            return false;
        }
    }
    return widget.isVisible();
}

/// The program's windows, kept on the screen as the program keeps them.
struct Station : HostFixture
{
    Station()
        : settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat)
        , onScreen(*qApp)
    {
        new fit::ScrolledEditor(*editor);
        window.takeRoomOnScreen();
        new RememberedWindow(settings, window);
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        window.show();
        exposed(window);
    }

    static void exposed(QWidget& shown)
    {
        QVERIFY(QTest::qWaitForWindowExposed(&shown));
        QCoreApplication::processEvents();
    }

    /// What a question or a message looks like that something leads to.
    template <typename Act, typename Look>
    void seeWindow(Act act, Look look)
    {
        bool isSeen = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &window, [&] {
            if (QWidget* const shown = QApplication::activeModalWidget()) {
                timer.stop();
                QCoreApplication::processEvents();
                isSeen = true;
                look(*shown);
                shown->close();
            }
        });
        timer.start(10);
        act();
        QTRY_VERIFY(isSeen);
    }

    QSettings settings;
    fit::WindowsOnScreen onScreen;
};

} // namespace

/// The windows on the screen that the test runs with, which is as large as those of stations are,
/// at each of the usual scales.
class tst_ScreenFit : public QObject
{
    Q_OBJECT

private slots:
    void isTheScreenThatIsMeant();
    void theWindowIsWhole();
    void theFirstWindowTakesTheRoom();
    void theEditorIsWholeOrScrolls();
    void otherWindowsAreWhole_data() { addHostWindows(); }
    void otherWindowsAreWhole();
    void theChooserIsWhole();
    void aPromptIsWhole();
    void theQuestionBeforeARemovalIsWhole();
    void theAddressIsWhole();
    void conflictsAreWhole();
};

void tst_ScreenFit::isTheScreenThatIsMeant()
{
    const QScreen& screen = *QGuiApplication::primaryScreen();
    QCOMPARE(QStringLiteral("%1x%2 at %3")
                 .arg(screen.size().width())
                 .arg(screen.size().height())
                 .arg(qRound(screen.devicePixelRatio() * 100)),
             qEnvironmentVariable("TREL_SCREEN"));
}

void tst_ScreenFit::theWindowIsWhole()
{
    const Station station;
    const EditorWindow& window = station.window;
    // With the frame that a desktop puts around it, too.
    QVERIFY2(screenArea().contains(window.geometry()), qPrintable(text(window.geometry())));
    const QSize room = screenArea().size() - kFrame;
    QVERIFY2(window.width() <= room.width() && window.height() <= room.height(),
             qPrintable(text(window.geometry())));
    QList<QWidget*> parts{window.menuBar(), window.statusBar(), window.centralWidget()};
    const QList<QDockWidget*> panels = window.findChildren<QDockWidget*>();
    for (QDockWidget* panel : panels) {
        if (panel->isVisible()) {
            parts.append(panel);
        }
    }
    QVERIFY(parts.size() >= 7);
    for (const QWidget* part : qAsConst(parts)) {
        QVERIFY2(isWhole(*part), qPrintable(part->objectName() + text(part->geometry())));
    }
    const auto* const area = qobject_cast<fit::ScrolledContent*>(window.centralWidget());
    QCOMPARE(area != nullptr, screenArea().width() < kWide);
    if (area == nullptr) {
        return;
    }
    // What has no room there is scrolled to.
    const QWidget& page = *area->widget();
    QVERIFY(page.width() >= page.minimumSizeHint().width() &&
            page.height() >= page.minimumSizeHint().height());
    QCOMPARE(area->viewport()->width() + area->horizontalScrollBar()->maximum(), page.width());
    QCOMPARE(area->viewport()->height() + area->verticalScrollBar()->maximum(), page.height());
    QVERIFY(area->horizontalScrollBar()->isVisible() && area->verticalScrollBar()->isVisible());
    QVERIFY(window.findChild<week::WeekView*>()->viewport()->height() >= 100);
}

void tst_ScreenFit::theFirstWindowTakesTheRoom()
{
    // Of the demonstration's problems there are several then.
    const TestClock clock(QDateTime(QDate(2026, 3, 11), QTime(12, 30)));
    const Station station;
    const int room = (screenArea().size() - kFrame).height();
    QCOMPARE(station.window.height(), qMin(room, kHighest));
    const auto* const problems =
        station.window.findChild<QTableView*>(QStringLiteral("problemTable"));
    QTRY_VERIFY(problems->isVisible());
    QCoreApplication::processEvents();
    const int rows =
        problems->viewport()->height() / problems->verticalHeader()->defaultSectionSize();
    QVERIFY2(rows >= (room >= kHighest ? 4 : 1), qPrintable(QString::number(rows)));
    if (screenArea().width() >= kRoomy) {
        const int week = station.window.findChild<week::WeekView*>()->viewport()->height();
        QVERIFY2(week >= (room >= kHighest ? 360 : 260), qPrintable(QString::number(week)));
        QVERIFY(rows >= 2);
    }
}

void tst_ScreenFit::theEditorIsWholeOrScrolls()
{
    Station station;
    station.showEditor();
    Station::exposed(*station.editor);
    QVERIFY2(screenArea().contains(station.editor->geometry()),
             qPrintable(text(station.editor->geometry())));
    const auto* panel = station.editor->findChild<QWidget*>(QStringLiteral("centerWidget"));
    const auto* save = panel->findChild<QPushButton*>(QStringLiteral("pushButtonSave"));
    const auto* area = station.editor->findChild<QScrollArea*>(QStringLiteral("editorArea"));
    QCOMPARE(panel->size(), QSize(1140, 600));
    if (screenArea().width() >= kRoomy) {
        QVERIFY(area == nullptr);
        QVERIFY(isWhole(*panel));
        return;
    }
    QVERIFY(area != nullptr);
    QVERIFY(area->horizontalScrollBar()->isVisible());
    // Where there is room upwards for all of it, the scroll bar included, there is no other.
    QCOMPARE(area->verticalScrollBar()->isVisible(), screenArea().height() < kHighEnough);
    QCOMPARE(area->viewport()->width() + area->horizontalScrollBar()->maximum(), panel->width());
    QVERIFY(!isWhole(*save));
    area->horizontalScrollBar()->setValue(area->horizontalScrollBar()->maximum());
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    QVERIFY(isWhole(*save));
}

void tst_ScreenFit::otherWindowsAreWhole()
{
    QFETCH(QString, name);
    const Station station;
    QWidget* const shown = openHostWindow(station.window, name);
    QVERIFY(shown != nullptr && shown->isWindow());
    QVERIFY2(screenArea().contains(shown->geometry()), qPrintable(text(shown->geometry())));
    // Nothing in it is cut off for that.
    const QSize least = shown->minimumSizeHint();
    QVERIFY(shown->width() >= least.width() && shown->height() >= least.height());
}

void tst_ScreenFit::theChooserIsWhole()
{
    Station station;
    station.showDemonstration();
    QRect place;
    QTimer::singleShot(0, station.editor.get(), [&place] {
        QWidget* chooser = QApplication::activeModalWidget();
        place = chooser->geometry();
        chooser->close();
    });
    station.cell(0, ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    QCOMPARE(place.size(), QSize(610, 470));
    QVERIFY2(screenArea().contains(place), qPrintable(text(place)));
}

void tst_ScreenFit::aPromptIsWhole()
{
    Station station;
    // Far longer than those that there are.
    station.seeWindow(
        [&] { station.window.tell(QStringLiteral("One of very many sentences. ").repeated(50)); },
        [](const QWidget& prompt) {
            QVERIFY2(screenArea().contains(prompt.geometry()), qPrintable(text(prompt.geometry())));
            QVERIFY(isWhole(*prompt.findChild<QPushButton*>(QStringLiteral("tipButton1"))));
        });
}

/// Of every program of a schedule with more plans than a prompt tells of.
void tst_ScreenFit::theQuestionBeforeARemovalIsWhole()
{
    Station station;
    station.manager.slotOpen();
    PlayTask task = station.manager.getTask(1);
    for (int i = 0; i < 12; ++i) {
        PlayPlan plan = task.plans.front();
        plan.id = 100 + i;
        task.plans.push_back(plan);
    }
    station.manager.addTask(task);
    auto* const programs = station.window.findChild<QTableView*>(QStringLiteral("programTable"));
    QTRY_VERIFY(programs->model()->rowCount() > 1);
    programs->selectAll();
    auto* const menus = station.window.findChild<EditorMenus*>();
    station.seeWindow(
        [menus] { menus->removePrograms()->trigger(); },
        [](const QWidget& prompt) {
            QVERIFY2(screenArea().contains(prompt.geometry()), qPrintable(text(prompt.geometry())));
            QVERIFY(isWhole(*prompt.findChild<QPushButton*>(QStringLiteral("tipButton1"))));
            QVERIFY(isWhole(*prompt.findChild<QPushButton*>(QStringLiteral("tipButton2"))));
            const auto* const words = prompt.findChild<QLabel*>(QStringLiteral("dialogTipLabel"));
            QVERIFY(words->height() >= words->heightForWidth(words->width()));
            const auto* const area = prompt.findChild<QScrollArea*>();
            QCOMPARE(area != nullptr, !isWhole(*words));
            QCOMPARE(area != nullptr, screenArea().height() < 400);
            if (area != nullptr) {
                QCOMPARE(area->viewport()->height() + area->verticalScrollBar()->maximum(),
                         words->height());
                QVERIFY(area->viewport()->width() >= words->width());
            }
        });
}

/// With the longest that is said about an address.
void tst_ScreenFit::theAddressIsWhole()
{
    Station station;
    auto* const menus = station.window.findChild<EditorMenus*>();
    station.seeWindow(
        [menus] { menus->openFromServer()->trigger(); },
        [](const QWidget& dialog) {
            QCOMPARE(dialog.objectName(), QStringLiteral("addressDialog"));
            auto* const address = dialog.findChild<QLineEdit*>(QStringLiteral("address"));
            for (const char* typed : {"", "postgresql://", "postgresql://server/base?other=1"}) {
                address->setText(QLatin1String(typed));
                QCoreApplication::processEvents();
                QVERIFY2(screenArea().contains(dialog.geometry()),
                         qPrintable(text(dialog.geometry())));
                const QList<QWidget*> parts = dialog.findChildren<QWidget*>();
                for (const QWidget* part : parts) {
                    QVERIFY2(!part->isVisible() || isWhole(*part), qPrintable(part->objectName()));
                }
                const auto* const fault = dialog.findChild<QLabel*>(QStringLiteral("addressFault"));
                QVERIFY(fault->height() >= fault->heightForWidth(fault->width()));
            }
        });
}

void tst_ScreenFit::conflictsAreWhole()
{
    Station station;
    const ScheduleMerge::Tasks base = station.manager.getAllTask();
    ScheduleMerge::Tasks mine = base;
    ScheduleMerge::Tasks theirs = base;
    for (const auto& [id, task] : base) {
        mine[id].endDate = "2050.01.01";
        theirs[id].endDate = "2051.01.01";
    }
    const ScheduleMerge merge(base, theirs, mine);
    merge::ConflictsDialog dialog(merge, *station.host.catalogue(), {}, &station.window);
    dialog.show();
    Station::exposed(dialog);
    QVERIFY2(screenArea().contains(dialog.geometry()), qPrintable(text(dialog.geometry())));
    for (const char* name : {"conflictTable", "takeMine", "takeTheirs", "linesOfMine",
                             "linesOfTheirs", "mergeOutlook", "backToQuestion", "mergeChosen"}) {
        const auto* const part = dialog.findChild<QWidget*>(QLatin1String(name));
        QVERIFY2(isWhole(*part) && part->height() >= part->minimumSizeHint().height(), name);
    }
}

TREL_TEST(tst_ScreenFit, QApplication)
#include "tst_ScreenFit.moc"
