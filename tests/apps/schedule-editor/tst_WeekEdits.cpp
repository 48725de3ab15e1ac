#include "EditorMenus.h"
#include "EditorRun.h"
#include "support/PlatformNotes.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "undo/HistoryModel.h"
#include "week/WeekPanel.h"
#include "week/WeekView.h"
#include "week/moves/MoveOverlay.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;

namespace {

/// The demonstration in the host's window, with the picture of its first task.
class Desk : public EditorRun
{
public:
    Desk()
        : EditorRun(QStringLiteral("week-edits"), QStringLiteral("en_US"))
        , panel(*window.findChild<WeekPanel*>())
        , view(*panel.view())
    {
        window.resize(1600, 1400);
        window.show();
        QCoreApplication::processEvents();
        view.setFocus();
        const QDate first =
            QDate::fromString(QString::fromStdString(manager.getTask(1).startDate), kDateFormat);
        view.showWeekOf(first.addDays(7));
        QTRY_VERIFY(!view.layoutOfWeek().days.front().blocks.empty());
    }

    PlayPlan plan(int row) const { return manager.getTask(1).plans.at(std::size_t(row)); }
    QString times(int row) const
    {
        return QString::fromStdString(plan(row).startTime + ' ' + plan(row).endTime);
    }
    /// The first block of a plan in the week, moved down by so many quarters.
    void drag(int row, int quarters) const
    {
        QTRY_VERIFY(!placeOf(row).isEmpty());
        const QPoint from = placeOf(row).center();
        const QPoint to = from + QPoint(0, view.geometryOfWeek().top(quarters * 900));
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseMove,
                                QEvent::MouseButtonRelease}) {
            const QPoint place = type == QEvent::MouseButtonPress ? from : to;
            QMouseEvent event(type, place, view.viewport()->mapToGlobal(place),
                              type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                              {});
            QCoreApplication::sendEvent(view.viewport(), &event);
        }
    }
    QRect placeOf(int row) const
    {
        for (const WeekColumn& column : view.layoutOfWeek().days) {
            if (const QRect place = view.visualRect({column.date, row}); !place.isEmpty()) {
                return place;
            }
        }
        return {};
    }
    QString lastStep() const
    {
        const auto* list = window.findChild<QListView*>(QStringLiteral("historyList"));
        return list->model()->index(list->model()->rowCount() - 1, 0).data().toString();
    }
    QString status() const { return window.statusBar()->currentMessage(); }

    /// Opens the first card and goes there.
    void goToEditor() const
    {
        card(0).toggleFold();
        editor->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), editor.get());
        QCoreApplication::processEvents();
    }

    WeekPanel& panel;
    WeekView& view;

private:
    NoPlatformNotes m_quiet;
};

} // namespace

/// Edits of the picture on their way into the schedule that is being edited.
class tst_WeekEdits : public QObject
{
    Q_OBJECT

private slots:
    void isAStepLikeAnyOther();
    void outlivesAHiddenEditor();
    void opensNothingBehindAClosedWindow();
    void neverEditsWhatWasCanceled();
    void takesOverWhatIsHalfTyped();
    void onlyWhatIsEdited();
    void copiesADay();
    void copiesNothing();
    void pictures_data();
    void pictures();
};

void tst_WeekEdits::isAStepLikeAnyOther()
{
    const Desk desk;
    const QString before = desk.times(3);
    const QStringList lines = desk.lines();
    desk.drag(3, 4);
    QVERIFY(desk.times(3) != before);
    // The card shows it at once.
    QVERIFY(desk.lines() != lines);
    QTRY_COMPARE(desk.lastStep(),
                 QStringLiteral("Task 1, plan 4: 13:30:00 – 18:00:00 → 14:30:00 – 19:00:00"));
    QVERIFY(desk.host.hasUnsavedChanges());
    QVERIFY(desk.host.trySave());
    QCOMPARE(desk.manager.getgTaskMap().at(1).plans.at(3).startTime, std::string("14:30:00"));
    desk.window.findChild<EditorMenus*>()->undo()->trigger();
    QCOMPARE(desk.times(3), before);
    QCOMPARE(desk.lines(), lines);
}

void tst_WeekEdits::outlivesAHiddenEditor()
{
    const Desk desk;
    desk.press("pushButtonClose");
    QVERIFY(!desk.editor->isVisible());
    const QString before = desk.times(3);
    // The editor takes no call in the first second after it was shown.
    const auto isMoved = [&] {
        if (desk.times(3) == before) {
            desk.drag(3, 4);
            QCoreApplication::processEvents();
        }
        return desk.times(3) != before;
    };
    QTRY_VERIFY(isMoved());
    QVERIFY(desk.editor->isVisible());
    QCOMPARE(desk.status(),
             QStringLiteral("The change is in the editor now, where it can be saved."));
    QTRY_COMPARE(desk.lastStep(),
                 QStringLiteral("Task 1, plan 4: 13:30:00 – 18:00:00 → 14:30:00 – 19:00:00"));
    QVERIFY(desk.host.hasUnsavedChanges());
    // From here on it lasts as long as any other edit.
    QVERIFY(desk.host.trySave());
    QCOMPARE(desk.manager.getgTaskMap().at(1).plans.at(3).startTime, std::string("14:30:00"));
}

void tst_WeekEdits::opensNothingBehindAClosedWindow()
{
    Desk desk;
    desk.press("pushButtonClose");
    TestClock clock(QDateTime::currentDateTime());
    clock.setElapsed(2000);
    const QString before = desk.times(3);
    desk.drag(3, 4);
    QVERIFY(desk.window.close());
    QCoreApplication::processEvents();
    QVERIFY(!desk.editor->isVisible());
    QCOMPARE(desk.times(3), before);
}

void tst_WeekEdits::neverEditsWhatWasCanceled()
{
    const Desk desk;
    desk.goToEditor();
    desk.card(0).type(desk.card(0).endTime(3), "17:00:00");
    desk.press("pushButtonClose");
    // The picture shows what was canceled until the editor is shown again.
    QCOMPARE(desk.times(3), QStringLiteral("13:30:00 17:00:00"));
    QCoreApplication::processEvents();
    const auto isRefused = [&] {
        if (!desk.editor->isVisible()) {
            desk.drag(3, 4);
            QCoreApplication::processEvents();
        }
        return desk.editor->isVisible();
    };
    QTRY_VERIFY(isRefused());
    QCOMPARE(desk.status(),
             QStringLiteral("The schedule has changed meanwhile; nothing was moved."));
    QCOMPARE(desk.times(3), QStringLiteral("13:30:00 18:00:00"));
    QVERIFY(!desk.host.hasUnsavedChanges());
}

void tst_WeekEdits::takesOverWhatIsHalfTyped()
{
    const Desk desk;
    desk.goToEditor();
    QTimeEdit& end = desk.card(0).endTime(2);
    end.setKeyboardTracking(false);
    end.setFocus();
    QTRY_VERIFY(end.hasFocus());
    end.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&end, QStringLiteral("13"));
    const int typed = 2;
    const QString before = desk.times(typed);
    desk.drag(3, 4);
    // What was typed counts; the block was dragged from before that, and stays.
    QVERIFY(desk.times(typed) != before);
    QCOMPARE(desk.times(3), QStringLiteral("13:30:00 18:00:00"));
    desk.drag(3, 4);
    QTRY_COMPARE(desk.times(3), QStringLiteral("14:30:00 19:00:00"));
}

void tst_WeekEdits::onlyWhatIsEdited()
{
    const Desk desk;
    auto* const source = desk.panel.findChild<QComboBox*>(QStringLiteral("weekSource"));
    QVERIFY(desk.host.startSchedule());
    source->setCurrentIndex(1);
    QTRY_VERIFY(!desk.placeOf(3).isEmpty());
    desk.drag(3, 4);
    QCOMPARE(desk.times(3), QStringLiteral("13:30:00 18:00:00"));
    source->setCurrentIndex(0);
    desk.drag(3, 4);
    QCOMPARE(desk.times(3), QStringLiteral("14:30:00 19:00:00"));
}

void tst_WeekEdits::copiesADay()
{
    Desk desk;
    // The menu belongs to what stands under the pointer.
    const int monday = desk.view.geometryOfWeek().column(1).center().x();
    const QPoint place(monday - desk.view.offset().x(), 30);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            desk.view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(desk.view.viewport(), &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    const QDate first = desk.view.layoutOfWeek().days.at(1).date;
    QString text = menu->actions().front()->text();
    // The date runs from the left in every language.
    text.remove(QChar(0x2066)).remove(QChar(0x2069));
    QCOMPARE(text,
             QStringLiteral("Copy the plans of Monday, %1…").arg(first.toString(kDateFormat)));
    QStringList said;
    QTimer asked;
    asked.setInterval(0);
    connect(&asked, &QTimer::timeout, &desk.view, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) {
            return;
        }
        asked.stop();
        auto* const confirm = dialog->findChild<QPushButton*>(QStringLiteral("copyDayConfirm"));
        const auto* summary = dialog->findChild<QLabel*>(QStringLiteral("copyDaySummary"));
        const QList<QCheckBox*> days = dialog->findChildren<QCheckBox*>();
        said.append(QStringLiteral("%1 %2").arg(days.size()).arg(confirm->isEnabled()));
        said.append(summary->text());
        days.at(1)->setChecked(true);
        said.append(summary->text());
        days.back()->setChecked(true);
        said.append(summary->text());
        desk.picture(*dialog, QStringLiteral("copy-day"));
        QTest::mouseClick(confirm, Qt::LeftButton);
    });
    asked.start();
    menu->actions().front()->trigger();
    menu->close();
    QTRY_COMPARE(
        said,
        (QStringList{QStringLiteral("6 0"),
                     QStringLiteral("5 plans play on that day. Choose the days to copy them onto."),
                     QStringLiteral("All of them play on these days already."),
                     QStringLiteral("5 plans are copied.")}));
    QCOMPARE(QString::fromStdString(desk.plan(3).weeks), QStringLiteral("1,2,3,4,5,6"));
    QTRY_COMPARE(desk.lastStep(), QStringLiteral("Task 1 edited"));
    desk.window.findChild<EditorMenus*>()->undo()->trigger();
    QCOMPARE(QString::fromStdString(desk.plan(3).weeks), QStringLiteral("1,2,3,4,5"));
}

void tst_WeekEdits::copiesNothing()
{
    const Desk desk;
    auto* const source = desk.panel.findChild<QComboBox*>(QStringLiteral("weekSource"));
    source->setCurrentIndex(1);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(30, 30));
    QCoreApplication::sendEvent(desk.view.viewport(), &event);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

void tst_WeekEdits::pictures_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString& theme : Themes::names()) {
        QTest::newRow(qPrintable(theme)) << theme;
    }
}

void tst_WeekEdits::pictures()
{
    QFETCH(QString, theme);
    Desk desk;
    desk.themes.select(theme);
    QTRY_VERIFY(!desk.placeOf(3).isEmpty());
    const QPoint from = desk.placeOf(3).center();
    for (const int pixels : {0, -40, -150}) {
        const QPoint place = from + QPoint(0, pixels);
        QMouseEvent event(pixels == 0 ? QEvent::MouseButtonPress : QEvent::MouseMove, place,
                          desk.view.viewport()->mapToGlobal(place),
                          pixels == 0 ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(desk.view.viewport(), &event);
    }
    const auto* overlay = desk.view.findChild<MoveOverlay*>(QStringLiteral("weekMove"));
    QVERIFY(overlay->isVisible());
    QVERIFY(!overlay->shown().collisions.empty());
    desk.picture(desk.panel, QStringLiteral("dragging-") + theme);
    QTest::keyClick(&desk.view, Qt::Key_Escape);
}

TREL_TEST(tst_WeekEdits, QApplication)
#include "tst_WeekEdits.moc"
