#include "HostFixture.h"
#include "PaintedTexts.h"
#include "PseudoLanguage.h"
#include "WindowTexts.h"
#include "support/PlanRecords.h"
#include "support/PlatformNotes.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "week/WeekFixture.h"
#include "week/WeekPage.h"
#include "week/WeekPanel.h"
#include "week/WeekStrip.h"

#include <QHelpEvent>
#include <QTextDocument>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace weekfixture;

namespace {

/// What stands above and beside the days.
QStringList textsOfStrips(const week::WeekView& view)
{
    PaintedTexts device(view.size());
    const QList<week::WeekStrip*> strips = view.findChildren<week::WeekStrip*>();
    for (week::WeekStrip* strip : strips) {
        strip->render(&device);
    }
    return device.texts();
}

/// The week in the host's window with everything that it has words for. Programs are called by
/// signs, so that every letter is a word of the host or a part of a date.
struct WeekTexts : HostFixture
{
    WeekTexts()
        : clock(wednesdayAtNine())
        , page(*window.findChild<week::WeekPage*>())
        , view(*page.panel()->view())
    {
        window.openDatabase(database);
        window.show();
        QCoreApplication::processEvents();
    }

    static ScreenInsertion insertion()
    {
        ScreenInsertion insertion;
        insertion.taskId = 1;
        insertion.planId = 11;
        insertion.plan = timePlan(11, "08:00:00", "10:00:00", "3");
        insertion.plan.programs = {entry(3)};
        insertion.requested = insertion.begins =
            QDateTime(QDate(2024, 3, 6), QTime(8, 30), berlin()).toMSecsSinceEpoch();
        insertion.ends = QDateTime(QDate(2024, 3, 6), QTime(9, 30), berlin()).toMSecsSinceEpoch();
        return insertion;
    }

    void showWeekOf(const QDate& day)
    {
        std::vector<PlayPlan> plans = mixedPlans();
        plans.push_back(timePlan(15, "08:00:00", "10:00:00", "3"));
        for (const int id : {16, 20, 21, 22}) {
            plans.push_back(timePlan(id, "08:00:00", "10:00:00", "3"));
        }
        plans.push_back(timePlan(17, "16:15:00", "17:45:00", "3"));
        plans.push_back(timePlan(18, "18:00:00", "18:00:00", "3"));
        plans.push_back(timePlan(19, "noon", "18:00:00", "3"));
        for (PlayPlan& plan : plans) {
            plan.programs = {entry(plan.id == 17 ? 9 : 1), entry(plan.id == 17 ? 9 : 2)};
        }
        PlayTask task = taskWithPlans(std::move(plans));
        task.startDate = "2024.03.05";
        task.endDate = "2024.10.27";
        const week::WeekSchedule::Catalogue catalogue{{1, program(1, "1·1", 90000, kVideo)},
                                                      {2, program(2, "2·2", 30000, kVideo)},
                                                      {3, program(3, "3·3", -1, kImage)}};
        view.setSchedule(
            std::make_shared<week::WeekSchedule>(week::WeekSchedule::Tasks{{1, task}}, catalogue,
                                                 ScreenInsertions{insertion()}, berlin()));
        view.showWeekOf(day);
        QCoreApplication::processEvents();
    }

    QStringList painted() const
    {
        PaintedTexts device(view.size());
        view.viewport()->render(&device);
        return device.texts() + textsOfStrips(view);
    }

    /// What the tool tips say, all over the picture.
    QStringList tips() const
    {
        QStringList texts;
        for (int y = 2; y < view.viewport()->height(); y += 4) {
            for (int x = 6; x < view.viewport()->width(); x += 8) {
                const QPoint place(x, y);
                QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
                QCoreApplication::sendEvent(view.viewport(), &event);
                texts.append(QToolTip::text());
            }
        }
        QToolTip::hideText();
        texts.removeDuplicates();
        return texts;
    }

    /// Without the names of days and months, which the language of the dates has.
    QString withoutDates(QString text) const
    {
        const QLocale locale = view.locale();
        for (const QLocale::FormatType format : {QLocale::LongFormat, QLocale::ShortFormat}) {
            for (int day = 1; day <= 7; ++day) {
                text.remove(locale.dayName(day, format));
            }
            for (int month = 1; month <= 12; ++month) {
                text.remove(locale.monthName(month, format));
            }
        }
        return text.remove(QStringLiteral("noon"));
    }

    static constexpr ProgramKind kVideo = ProgramKind::Video;
    static constexpr ProgramKind kImage = ProgramKind::Image;

    const NoPlatformNotes quiet;
    TestClock clock;
    week::WeekPage& page;
    week::WeekView& view;
};

/// Weeks with a usual day, with an hour that is left out, and with one that comes twice.
const QDate kWeeks[] = {QDate(2024, 3, 6), QDate(2024, 3, 31), QDate(2024, 10, 27)};

} // namespace

/// The words that the picture of the week draws itself, and those of its tool tips.
class tst_WeekLanguages : public QObject
{
    Q_OBJECT

private slots:
    void everyWordIsTranslated();
    void wordsFitTheirColumns_data() { addLanguages(); }
    void wordsFitTheirColumns();
    void datesAreThoseOfTheEditor_data() { addLanguages(); }
    void datesAreThoseOfTheEditor();
    void narrowDaysKeepTheirDates();
    void nothingIsHalfBehindThePresentTime();

private:
    static void addLanguages();
};

void tst_WeekLanguages::everyWordIsTranslated()
{
    WeekTexts fixture;
    const PseudoLanguage language(*fixture.editor);
    fixture.window.resize(2400, 1400);
    QStringList texts;
    for (const QDate& day : kWeeks) {
        fixture.showWeekOf(day);
        texts += fixture.painted() + fixture.tips();
    }
    texts.removeDuplicates();
    QStringList untranslated;
    for (const QString& text : texts) {
        if (WindowTexts::hasUntranslated(fixture.withoutDates(text))) {
            untranslated.append(text);
        }
    }
    QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join(QStringLiteral("\n---\n"))));
    const QString all = texts.join(QLatin1Char('\n'));
    for (const char* word :
         {"No task", "No task is valid", "Task 1", "nothing to show", "Skipped", "Repeated",
          "Cut in: ", "Frozen: ", "Black", "more plans do not reach the screen", "takes precedence",
          "conflicts with a plan above it", "clocks go forward", "clocks go back",
          "starts and ends at", "is not a time in the form"}) {
        QVERIFY2(all.contains(QString::fromUtf8(word)), word);
    }
}

void tst_WeekLanguages::addLanguages()
{
    QTest::addColumn<bool>("unused");
    const QStringList files =
        QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")});
    QCOMPARE(files.size(), 10);
    for (const QString& file : files) {
        QTest::newRow(qPrintable(file.left(5))) << true;
    }
}

/// In the window as it first opens.
void tst_WeekLanguages::wordsFitTheirColumns()
{
    WeekTexts fixture;
    fixture.languages.select(QLatin1String(QTest::currentDataTag()));
    QStringList cut;
    for (const QDate& day : kWeeks) {
        fixture.showWeekOf(day);
        for (const QString& text : fixture.painted()) {
            if (text.contains(QChar(0x2026)) && !text.contains(QStringLiteral("·"))) {
                cut.append(text);
            }
        }
    }
    cut.removeDuplicates();
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
}

void tst_WeekLanguages::datesAreThoseOfTheEditor()
{
    WeekTexts fixture;
    fixture.languages.select(QLatin1String(QTest::currentDataTag()));
    fixture.showWeekOf(kWeeks[0]);
    const QStringList painted = fixture.painted();
    const QString name = fixture.view.locale().dayName(Qt::Wednesday, QLocale::ShortFormat);
    const QString head = name + QStringLiteral(" \u206603.06\u2069");
    QVERIFY2(painted.contains(head), qPrintable(painted.join(QLatin1Char('\n'))));
}

void tst_WeekLanguages::narrowDaysKeepTheirDates()
{
    const QLocale former;
    ShownWeek shown;
    // The narrowest columns that there are, and letters that are large for them.
    shown.view.resize(380, 560);
    QFont large = shown.view.font();
    large.setPixelSize(19);
    shown.view.setFont(large);
    QCoreApplication::processEvents();
    const QStringList painted = textsOfStrips(shown.view);
    QLocale::setDefault(former);
    for (int day = 4; day <= 10; ++day) {
        const QString date = QStringLiteral("\u206603.%1\u2069").arg(day, 2, 10, QLatin1Char('0'));
        QVERIFY2(painted.contains(date), qPrintable(painted.join(QLatin1Char('\n'))));
    }
}

void tst_WeekLanguages::nothingIsHalfBehindThePresentTime()
{
    const QLocale former;
    ShownWeek shown;
    // Behind an hour that is written at every zoom.
    shown.clock.set(wednesdayAtNine().addSecs(3 * 3600 + 5 * 60));
    shown.view.setSchedule(scheduleOf(mixedPlans()));
    const QStringList painted = textsOfStrips(shown.view);
    QLocale::setDefault(former);
    QVERIFY2(painted.contains(QStringLiteral("12:05")) && painted.contains(QStringLiteral("18:00")),
             qPrintable(painted.join(QLatin1Char('\n'))));
    QVERIFY(!painted.contains(QStringLiteral("12:00")));
}

TREL_TEST(tst_WeekLanguages, QApplication)
#include "tst_WeekLanguages.moc"
