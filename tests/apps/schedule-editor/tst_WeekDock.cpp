#include "HostFixture.h"
#include "LookSupport.h"
#include "support/TestProgram.h"
#include "week/WeekDock.h"
#include "week/WeekFixture.h"
#include "week/WeekPanel.h"
#include "week/WeekStrip.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;
using namespace weekfixture;

namespace {

/// A task that is valid on every day of a test's present.
PlayTask taskOf(std::vector<PlayPlan> plans)
{
    PlayTask task = taskWithPlans(std::move(plans));
    task.startDate = "2020.01.01";
    task.endDate = "2099.12.31";
    return task;
}

/// "08:00:00 09:00:00", the plans of the first day that is shown.
QStringList blocks(const WeekView& view)
{
    QStringList lines;
    for (const WeekBlock& block : view.layoutOfWeek().days.front().blocks) {
        lines.append(QStringLiteral("%1 %2").arg(block.start, block.end));
    }
    return lines;
}

} // namespace

/// The picture of the week in the host's window.
class tst_WeekDock : public QObject
{
    Q_OBJECT

private slots:
    void restsWhileHidden();
    void followsEdits();
    void showsWhatIsInEffect();
    void aBlockLeadsToTheEditor();
    void controlsMoveTheWeekAndTheHours();
    void speaksTheLanguageInUse();
    void textsStandOut_data() { addThemes(); }
    void textsStandOut();
    void eachPictureHasItsGround_data() { addThemes(); }
    void eachPictureHasItsGround();

private:
    struct Window : HostFixture
    {
        Window()
            : dock(*window.findChild<WeekDock*>())
            , view(*dock.panel()->view())
        {
            window.openDatabase(database);
            window.show();
        }

        void showDock()
        {
            dock.show();
            QCoreApplication::processEvents();
        }

        /// In a window of its own, large enough for every text.
        void showMixedPlans(const QString& theme)
        {
            themes.select(theme);
            dock.setFloating(true);
            dock.resize(1300, 900);
            showDock();
            view.setSchedule(scheduleOf(mixedPlans()));
            view.showNow();
        }

        WeekDock& dock;
        WeekView& view;
    };
};

void tst_WeekDock::restsWhileHidden()
{
    Window fixture;
    QVERIFY(!fixture.dock.isVisible());
    fixture.manager.addTask(taskOf({timePlan(1, "08:00:00", "09:00:00")}));
    QCoreApplication::processEvents();
    QCOMPARE(blocks(fixture.view), QStringList());
    fixture.showDock();
    QCOMPARE(blocks(fixture.view), QStringList{QStringLiteral("08:00:00 09:00:00")});
}

void tst_WeekDock::followsEdits()
{
    Window fixture;
    fixture.showDock();
    QCOMPARE(blocks(fixture.view), QStringList());
    fixture.manager.addTask(taskOf({timePlan(1, "08:00:00", "09:00:00")}));
    QTRY_COMPARE(blocks(fixture.view), QStringList{QStringLiteral("08:00:00 09:00:00")});
    fixture.manager.addPlan(1, timePlan(1, "10:00:00", "11:00:00"));
    QTRY_COMPARE(blocks(fixture.view), QStringList{QStringLiteral("10:00:00 11:00:00")});
    fixture.manager.deleteTask(1);
    QTRY_COMPARE(blocks(fixture.view), QStringList());
}

void tst_WeekDock::showsWhatIsInEffect()
{
    Window fixture;
    fixture.showDock();
    auto* source = fixture.dock.findChild<QComboBox*>();
    fixture.manager.addTask(taskOf({timePlan(1, "08:00:00", "09:00:00")}));
    source->setCurrentIndex(1);
    QCoreApplication::processEvents();
    QCOMPARE(blocks(fixture.view), QStringList());
    fixture.manager.save();
    fixture.manager.slotOpen();
    QTRY_COMPARE(blocks(fixture.view), QStringList{QStringLiteral("08:00:00 09:00:00")});
    fixture.manager.addPlan(1, timePlan(1, "10:00:00", "11:00:00"));
    QCoreApplication::processEvents();
    QCOMPARE(blocks(fixture.view), QStringList{QStringLiteral("08:00:00 09:00:00")});
    source->setCurrentIndex(0);
    QTRY_COMPARE(blocks(fixture.view), QStringList{QStringLiteral("10:00:00 11:00:00")});
}

void tst_WeekDock::aBlockLeadsToTheEditor()
{
    Window fixture;
    fixture.showDock();
    // In the first second of its life the editor stays away.
    QTRY_VERIFY((emit fixture.view.activated(1, 0), fixture.editor->isVisible()));
}

void tst_WeekDock::controlsMoveTheWeekAndTheHours()
{
    Window fixture;
    fixture.showDock();
    const auto press = [&fixture](const char* name) {
        auto* button = fixture.dock.findChild<QPushButton*>(QLatin1String(name));
        QVERIFY2(button != nullptr, name);
        QTest::mouseClick(button, Qt::LeftButton);
    };
    const QDate first = fixture.view.firstDay();
    press("weekNext");
    QCOMPARE(fixture.view.firstDay(), first.addDays(7));
    press("weekFormer");
    press("weekFormer");
    QCOMPARE(fixture.view.firstDay(), first.addDays(-7));
    press("weekToday");
    QCOMPARE(fixture.view.firstDay(), first);
    press("weekLarger");
    QVERIFY(!fixture.view.isFit());
    press("weekFit");
    QVERIFY(fixture.view.isFit());
}

void tst_WeekDock::speaksTheLanguageInUse()
{
    Window fixture;
    fixture.showDock();
    QCOMPARE(fixture.dock.windowTitle(), QStringLiteral("Week"));
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(fixture.dock.windowTitle(), QStringLiteral("Woche"));
    QCOMPARE(fixture.view.accessibleName(), QStringLiteral("Woche"));
    QCOMPARE(fixture.dock.findChild<QComboBox*>()->itemText(1), QStringLiteral("In Kraft"));
}

void tst_WeekDock::textsStandOut()
{
    QFETCH(QString, theme);
    const TestClock clock(wednesdayAtNine());
    Window fixture;
    fixture.showMixedPlans(theme);
    const QDate wednesday(2024, 3, 6);
    const QImage picture = pictureOf(fixture.view.viewport());
    const QRect plan = fixture.view.visualRect({wednesday, 0});
    const auto stretch = [&](int hour) {
        const int y = qRound(hour * fixture.view.hourHeight());
        return QRect(plan.left() + 4, y + 2, 120, 18);
    };
    QString faults;
    for (const int row : {0, 1, 2}) {
        const QRect block = fixture.view.visualRect({wednesday, row});
        faults += faultOf(picture, block.adjusted(9, 3, -4, -3),
                          QStringLiteral("plan in row %1").arg(row));
    }
    faults += faultOf(picture, stretch(0), QStringLiteral("black before all"));
    faults += faultOf(picture, stretch(12), QStringLiteral("frozen"));
    faults += faultOf(picture, stretch(16), QStringLiteral("black"));
    const QList<WeekStrip*> strips = fixture.view.findChildren<WeekStrip*>();
    QCOMPARE(strips.size(), 2);
    for (WeekStrip* strip : strips) {
        faults += faultOf(pictureOf(strip), strip->rect(), QStringLiteral("dates or hours"));
    }
    const QList<QPushButton*> buttons = fixture.dock.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        // The thin strokes of a sign do not fill a pixel, as those of a word do.
        const bool isSign = button->text().size() == 1;
        faults += faultsOf(button, isSign ? 3.0 : kLeastContrast);
    }
    faults += faultsOf(fixture.dock.findChild<QComboBox*>());
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_WeekDock::eachPictureHasItsGround()
{
    QFETCH(QString, theme);
    const TestClock clock(wednesdayAtNine());
    Window fixture;
    fixture.showMixedPlans(theme);
    const QImage picture = pictureOf(fixture.view.viewport());
    const QRect plan = fixture.view.visualRect({QDate(2024, 3, 6), 0});
    const auto groundAt = [&](double hour) {
        const int y = qRound(hour * fixture.view.hourHeight());
        return lookAt(picture, QRect(plan.center().x(), y, 30, 12)).ground.name();
    };
    const look::ThemeColours colours = fixture.themes.colours();
    QCOMPARE(groundAt(9.5), colours.weekBlock.name());
    QCOMPARE(groundAt(13.0), colours.weekFrozen.name());
    QCOMPARE(groundAt(17.0), colours.weekBlack.name());
    QVERIFY(colours.weekBlock != colours.weekFrozen && colours.weekFrozen != colours.weekBlack);
}

TREL_TEST(tst_WeekDock, QApplication)
#include "tst_WeekDock.moc"
