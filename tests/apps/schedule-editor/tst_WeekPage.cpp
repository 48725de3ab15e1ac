#include "HostFixture.h"
#include "LookSupport.h"
#include "look/ProgramColours.h"
#include "support/TestProgram.h"
#include "week/WeekFixture.h"
#include "week/WeekLegend.h"
#include "week/WeekPage.h"
#include "week/WeekPanel.h"
#include "week/WeekStrip.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
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
class tst_WeekPage : public QObject
{
    Q_OBJECT

private slots:
    void isTheMiddleOfTheWindow();
    void restsWhileHidden();
    void followsEdits();
    void showsWhatIsInEffect();
    void aBlockLeadsToItsRow_data();
    void aBlockLeadsToItsRow();
    void aPlanThatIsNoMoreLeadsToTheEditor();
    void aMinimizedEditorComesBack();
    void aClickSaysWhy();
    void theCalendarLeadsToADay();
    void theMenuLeadsThroughTheWeeks();
    void theLegendNamesThePrograms();
    void theLegendCanBeRead_data() { addThemes(); }
    void theLegendCanBeRead();
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
            : page(*window.findChild<WeekPage*>())
            , view(*page.panel()->view())
        {
            window.openDatabase(database);
            window.show();
            QCoreApplication::processEvents();
        }

        /// Large enough for every text.
        void showMixedPlans(const QString& theme)
        {
            themes.select(theme);
            window.resize(2000, 1200);
            QCoreApplication::processEvents();
            view.setSchedule(scheduleOf(mixedPlans()));
            view.showNow();
        }

        WeekPage& page;
        WeekView& view;
    };
};

void tst_WeekPage::isTheMiddleOfTheWindow()
{
    Window fixture;
    QCOMPARE(fixture.window.centralWidget(), &fixture.page);
    QVERIFY(fixture.view.isVisible());
    QVERIFY(!fixture.editor->isVisible());
}

void tst_WeekPage::restsWhileHidden()
{
    Window fixture;
    fixture.window.hide();
    fixture.manager.addTask(taskOf({timePlan(1, "08:00:00", "09:00:00")}));
    QCoreApplication::processEvents();
    QCOMPARE(blocks(fixture.view), QStringList());
    fixture.window.show();
    QCOMPARE(blocks(fixture.view), QStringList{QStringLiteral("08:00:00 09:00:00")});
}

void tst_WeekPage::followsEdits()
{
    Window fixture;
    QCOMPARE(blocks(fixture.view), QStringList());
    fixture.manager.addTask(taskOf({timePlan(1, "08:00:00", "09:00:00")}));
    QTRY_COMPARE(blocks(fixture.view), QStringList{QStringLiteral("08:00:00 09:00:00")});
    fixture.manager.addPlan(1, timePlan(1, "10:00:00", "11:00:00"));
    QTRY_COMPARE(blocks(fixture.view), QStringList{QStringLiteral("10:00:00 11:00:00")});
    fixture.manager.deleteTask(1);
    QTRY_COMPARE(blocks(fixture.view), QStringList());
}

void tst_WeekPage::showsWhatIsInEffect()
{
    Window fixture;
    auto* source = fixture.page.findChild<QComboBox*>();
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

void tst_WeekPage::aBlockLeadsToItsRow_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("double click") << false;
    QTest::newRow("Enter") << true;
}

void tst_WeekPage::aBlockLeadsToItsRow()
{
    QFETCH(const bool, byKey);
    Window fixture;
    fixture.window.resize(2000, 1200);
    fixture.manager.addTask(
        taskOf({timePlan(11, "02:00:00", "06:00:00", "9"), timePlan(12, "08:00:00", "16:00:00")}));
    fixture.manager.save();
    QTRY_COMPARE(blocks(fixture.view).size(), 1);
    const QPoint place = fixture.view.visualRect({fixture.view.firstDay().addDays(2), 1}).center();
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(fixture.view.selected()->row, 1);
    QVERIFY(!fixture.editor->isVisible());
    const auto activate = [&] {
        if (byKey) {
            QTest::keyClick(&fixture.view, Qt::Key_Return);
        } else {
            QTest::mouseDClick(fixture.view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        }
        return fixture.editor->isVisible();
    };
    // In the first second of its life the editor stays away.
    QTRY_VERIFY(activate());
    QTableView* const table = fixture.firstTable();
    QVERIFY(table->isVisible());
    const QModelIndexList marked = table->selectionModel()->selectedRows();
    QCOMPARE(marked.size(), 1);
    QCOMPARE(marked.first().row(), 1);
}

void tst_WeekPage::aPlanThatIsNoMoreLeadsToTheEditor()
{
    Window fixture;
    QTRY_VERIFY((fixture.window.showPlan(1, 11), fixture.editor->isVisible()));
}

void tst_WeekPage::aMinimizedEditorComesBack()
{
    Window fixture;
    QTRY_VERIFY((fixture.window.showEditor(), fixture.editor->isVisible()));
    fixture.editor->setWindowState(Qt::WindowMinimized);
    fixture.window.showEditor();
    QVERIFY(!fixture.editor->isMinimized());
}

void tst_WeekPage::aClickSaysWhy()
{
    const TestClock clock(wednesdayAtNine());
    Window fixture;
    fixture.showMixedPlans(QStringLiteral("dark"));
    auto* reason = fixture.page.findChild<QLabel*>(QStringLiteral("weekReason"));
    const QString hint = reason->text();
    QVERIFY(!hint.isEmpty());
    const BlockRef block{QDate(2024, 3, 6), 0};
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      fixture.view.visualRect(block).center());
    QCOMPARE(reason->text(), fixture.view.explanation());
    QVERIFY2(reason->text().contains(QStringLiteral("is the first of the plans for this time")),
             qPrintable(reason->text()));
    // Another week has no such block.
    fixture.view.stepWeeks(1);
    QCOMPARE(reason->text(), hint);
    fixture.view.stepWeeks(-1);
    QVERIFY(reason->text() != hint);
    // What it says follows the schedule.
    fixture.view.setSchedule(scheduleOf({}));
    QCOMPARE(reason->text(), hint);
}

void tst_WeekPage::theCalendarLeadsToADay()
{
    Window fixture;
    fixture.languages.select(QStringLiteral("de_DE"));
    auto* button = fixture.page.findChild<QPushButton*>(QStringLiteral("weekTitle"));
    QTest::mouseClick(button, Qt::LeftButton);
    auto* calendar = fixture.page.findChild<QCalendarWidget*>();
    QVERIFY(calendar != nullptr);
    QVERIFY(calendar->isVisible());
    QCOMPARE(calendar->selectedDate(), fixture.view.firstDay());
    QCOMPARE(calendar->firstDayOfWeek(), Qt::Monday);
    calendar->setSelectedDate(QDate(2031, 5, 15));
    QTest::keyClick(calendar->findChild<QTableView*>(), Qt::Key_Return);
    QCOMPARE(fixture.view.firstDay(), QDate(2031, 5, 12));
    QTRY_VERIFY(fixture.page.findChild<QCalendarWidget*>() == nullptr);
}

void tst_WeekPage::theMenuLeadsThroughTheWeeks()
{
    Window fixture;
    const QDate today = fixture.view.firstDay();
    // From wherever the keyboard is in the window.
    auto* const search = fixture.window.findChild<QLineEdit*>(QStringLiteral("programSearch"));
    search->setFocus();
    QTest::keyClick(search, Qt::Key_PageDown, Qt::AltModifier);
    QTest::keyClick(search, Qt::Key_PageDown, Qt::AltModifier);
    QCOMPARE(fixture.view.firstDay(), today.addDays(14));
    QTest::keyClick(search, Qt::Key_PageUp, Qt::AltModifier);
    QCOMPARE(fixture.view.firstDay(), today.addDays(7));
    QTest::keyClick(search, Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(fixture.view.firstDay(), today);
    QTest::keyClick(search, Qt::Key_G, Qt::ControlModifier);
    QVERIFY(fixture.window.findChild<QCalendarWidget*>()->isVisible());
}

void tst_WeekPage::theLegendNamesThePrograms()
{
    const TestClock clock(wednesdayAtNine());
    Window fixture;
    fixture.showMixedPlans(QStringLiteral("dark"));
    auto* legend = fixture.page.findChild<WeekLegend*>();
    QSet<QString> programs;
    for (const WeekColumn& column : fixture.view.layoutOfWeek().days) {
        for (const WeekBlock& block : column.blocks) {
            for (const QString& name : block.programs) {
                programs.insert(name);
            }
        }
    }
    QVERIFY(!programs.isEmpty());
    for (const QString& name : qAsConst(programs)) {
        QVERIFY2(legend->accessibleDescription().contains(name), qPrintable(name));
    }
    fixture.view.setSchedule(scheduleOf({}));
    QCOMPARE(legend->accessibleDescription(), QString());
}

void tst_WeekPage::controlsMoveTheWeekAndTheHours()
{
    Window fixture;
    const auto press = [&fixture](const char* name) {
        auto* button = fixture.page.findChild<QPushButton*>(QLatin1String(name));
        QVERIFY2(button != nullptr, name);
        QTest::mouseClick(button, Qt::LeftButton);
    };
    const QDate first = fixture.view.firstDay();
    press("weekNext");
    QCOMPARE(fixture.view.firstDay(), first.addDays(7));
    press("weekFormer");
    press("weekNextMonth");
    QVERIFY(fixture.view.firstDay() >= first.addDays(21));
    QVERIFY(fixture.view.firstDay() <= first.addDays(35));
    press("weekFormerMonth");
    QCOMPARE(fixture.view.firstDay(), first);
    press("weekFormer");
    QCOMPARE(fixture.view.firstDay(), first.addDays(-7));
    press("weekToday");
    QCOMPARE(fixture.view.firstDay(), first);
    press("weekLarger");
    QVERIFY(!fixture.view.isFit());
    press("weekFit");
    QVERIFY(fixture.view.isFit());
}

void tst_WeekPage::speaksTheLanguageInUse()
{
    Window fixture;
    QCOMPARE(fixture.view.accessibleName(), QStringLiteral("Week"));
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(fixture.view.accessibleName(), QStringLiteral("Woche"));
    QCOMPARE(fixture.page.findChild<QComboBox*>()->itemText(1), QStringLiteral("In Kraft"));
}

void tst_WeekPage::textsStandOut()
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
    const QList<QPushButton*> buttons = fixture.page.findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        // The thin strokes of a sign do not fill a pixel, as those of a word do.
        const bool isSign = button->text().size() == 1;
        faults += faultsOf(button, isSign ? 3.0 : kLeastContrast);
    }
    faults += faultsOf(fixture.page.findChild<QComboBox*>());
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_WeekPage::theLegendCanBeRead()
{
    QFETCH(QString, theme);
    const TestClock clock(wednesdayAtNine());
    Window fixture;
    fixture.showMixedPlans(theme);
    auto* legend = fixture.page.findChild<WeekLegend*>();
    const QString faults = faultOf(pictureOf(legend), legend->rect(), QStringLiteral("legend")) +
                           faultsOf(fixture.page.findChild<QLabel*>(QStringLiteral("weekReason")));
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_WeekPage::eachPictureHasItsGround()
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
    const int program = fixture.view.layoutOfWeek().days[3].blockOf(0)->programIndexes.front();
    QCOMPARE(groundAt(9.5), look::programColours(program, colours).ground.name());
    QCOMPARE(groundAt(13.0), colours.weekFrozen.name());
    QCOMPARE(groundAt(17.0), colours.weekBlack.name());
    QVERIFY(colours.weekBlock != colours.weekFrozen && colours.weekFrozen != colours.weekBlack);
}

TREL_TEST(tst_WeekPage, QApplication)
#include "tst_WeekPage.moc"
