#include "catalogue/UsesWindow.h"

#include "HostFixture.h"
#include "catalogue/ProgramLookup.h"
#include "catalogue/UseWords.h"
#include "catalogue/UsesModel.h"
#include "clock/Clock.h"
#include "look/ProgramColours.h"
#include "screen/ProgramName.h"
#include "support/PromptAnswer.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QTextLayout>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

struProgInfo entry(int program)
{
    struProgInfo entry;
    entry.progIndex = program;
    entry.progName = "Program";
    return entry;
}

PlayPlan plan(int id, const char* start, const char* end, const std::vector<int>& programs)
{
    PlayPlan plan;
    plan.id = id;
    plan.startTime = start;
    plan.endTime = end;
    for (const int program : programs) {
        plan.programs.push_back(entry(program));
    }
    return plan;
}

/// Two tasks of January and February 2024.
std::map<int, PlayTask> sampleTasks()
{
    PlayTask january;
    january.id = 1;
    january.startDate = "2024.01.01";
    january.endDate = "2024.01.31";
    january.plans = {plan(3, "08:00:00", "09:00:00", {2}), plan(4, "10:00:00", "11:00:00", {1, 2})};
    january.plans[1].weeks = "3,1,1";
    PlayTask february = january;
    february.id = 2;
    february.startDate = "2024.02.01";
    february.endDate = "2024.02.29";
    february.plans = {plan(7, "20:00:00", "21:00:00", {2, 1})};
    return {{1, january}, {2, february}};
}

/// Without the marks that have a part of a text read from the left.
QString unmarked(QString text)
{
    return text.remove(QChar(0x2066)).remove(QChar(0x2069));
}

/// From where to where a part of a line is drawn, by the places of its two ends, in a line that is
/// read from the right.
bool isReadFromTheLeft(const QString& line, const QString& part)
{
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    QTextLayout layout(line);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine drawn = layout.createLine();
    layout.endLayout();
    const int begin = line.indexOf(part);
    const int end = begin + part.size() - 1;
    return begin >= 0 && drawn.cursorToX(begin) < drawn.cursorToX(end);
}

} // namespace

/// Where programs are used, in a window of its own and before a removal.
class tst_UsesWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsPlansAndTheNextTime();
    void theProgramHasItsSign();
    void followsTheEdits();
    void whatIsInEffectDecidesAboutTheScreen();
    void whatNeverWasIsNotOverYet();
    void datesAndTimesAreReadFromTheLeft();
    void aPlanIsAskedForByMouseAndKey();
    void daysHaveTheirNames_data();
    void daysHaveTheirNames();
    void daysFollowTheLanguage();
    void aProgramInNoPlan();
    void aLongScheduleIsLookedThroughElsewhere();
    void aRemovalSaysWhatItBreaks();
    void enterRemovesNothing();
    void aRemovalOfTheUnusedSaysNothingElse();
    void manyPlansAreToldByTheirNumber();

private:
    QTableView& table() const
    {
        return *m_fixture->window.findChild<QTableView*>(QStringLiteral("programTable"));
    }
    QAction& action(const char* text) const
    {
        const QList<QAction*> actions = table().actions();
        for (QAction* action : actions) {
            if (action->text().remove(QLatin1Char('&')) == QString::fromUtf8(text)) {
                return *action;
            }
        }
        qFatal("no action %s", text);
    }
    QDialog& window() const
    {
        return *m_fixture->window.findChild<QDialog*>(QStringLiteral("usesWindow"));
    }
    QString text(const char* label) const
    {
        return unmarked(window().findChild<QLabel*>(QLatin1String(label))->text());
    }
    /// The rows, each in one line.
    QStringList rows() const
    {
        const QAbstractItemModel* model = uses().model();
        QStringList lines;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column) {
                cells.append(unmarked(model->index(row, column).data().toString()));
            }
            lines.append(cells.join(QLatin1Char('|')));
        }
        return lines;
    }
    QTableView& uses() const
    {
        return *window().findChild<QTableView*>(QStringLiteral("usesTable"));
    }
    void showUses(int row) const
    {
        table().selectRow(row);
        action("Where used…").trigger();
    }
    static QStringList removalLines(const PromptAnswer& answer)
    {
        return unmarked(answer.texts().value(0)).split(QLatin1Char('\n'));
    }

    std::unique_ptr<TestClock> m_clock;
    std::unique_ptr<HostFixture> m_fixture;
};

void tst_UsesWindow::init()
{
    m_clock = std::make_unique<TestClock>(QDateTime({2024, 1, 4}, {12, 0}, Qt::LocalTime));
    m_fixture = std::make_unique<HostFixture>();
    QCOMPARE(m_fixture->window.openDatabase(m_fixture->database, QStringLiteral(DEMONSTRATION)),
             QString());
    QVERIFY(m_fixture->host.replaceSchedule(sampleTasks()));
    m_fixture->window.show();
    QCoreApplication::processEvents();
}

void tst_UsesWindow::cleanup()
{
    m_fixture.reset();
    m_clock.reset();
}

void tst_UsesWindow::showsPlansAndTheNextTime()
{
    QVERIFY(!action("Where used…").isEnabled());
    showUses(0);
    QVERIFY(window().isVisible());
    QCOMPARE(text("usesSummary"), QStringLiteral("“Brand film” is played by 2 plans."));
    QCOMPARE(rows(), (QStringList{QStringLiteral("1|2024.01.01 – 2024.01.31|2|Mon, Wed|10:00:00 – "
                                                 "11:00:00"),
                                  QStringLiteral("2|2024.02.01 – 2024.02.29|1|every day|20:00:00 – "
                                                 "21:00:00")}));
    QCOMPARE(text("usesNext"),
             QStringLiteral("Next on screen: 2024.01.08 10:00:00, task 1, plan 2."));
    // Another program takes its place in the same window.
    showUses(1);
    QCOMPARE(text("usesSummary"), QStringLiteral("“City news” is played by 3 plans."));
    QCOMPARE(text("usesNext"),
             QStringLiteral("Next on screen: 2024.01.05 08:00:00, task 1, plan 1."));
}

void tst_UsesWindow::theProgramHasItsSign()
{
    const QStringList themes = Themes::names();
    for (const int row : {0, 1}) {
        showUses(row);
        auto* const summary = window().findChild<ProgramName*>(QStringLiteral("usesSummary"));
        for (const QString& theme : themes) {
            m_fixture->themes.select(theme);
            QCoreApplication::processEvents();
            QCOMPARE(summary->grab().toImage().pixelColor(summary->sign().center()).rgb(),
                     look::programColours(row + 1, m_fixture->themes.colours()).ground.rgb());
        }
    }
}

void tst_UsesWindow::followsTheEdits()
{
    showUses(0);
    m_fixture->manager.deleteTask(2);
    QTRY_COMPARE(rows().size(), 1);
    QCOMPARE(text("usesSummary"), QStringLiteral("“Brand film” is played by 1 plan."));
    m_fixture->languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(text("usesSummary"),
                 QStringLiteral("„Brand film“ wird von 1 Plan wiedergegeben."));
}

void tst_UsesWindow::whatIsInEffectDecidesAboutTheScreen()
{
    QVERIFY(m_fixture->host.startSchedule());
    QVERIFY(m_fixture->host.replaceSchedule({}));
    QCoreApplication::processEvents();
    showUses(0);
    QCOMPARE(text("usesSummary"), QStringLiteral("No plan plays “Brand film”."));
    QCOMPARE(text("usesNext"),
             QStringLiteral("Next on screen: 2024.01.08 10:00:00, task 1, plan 2."));
    QVERIFY(m_fixture->host.stopSchedule());
    QTRY_COMPARE(text("usesNext"), QStringLiteral("Never on screen, as the schedule is edited."));
}

/// What was on screen once and what never is are told apart.
void tst_UsesWindow::whatNeverWasIsNotOverYet()
{
    m_clock->set(QDateTime({2024, 3, 4}, {12, 0}));
    showUses(0);
    QTRY_COMPARE(text("usesNext"),
                 QStringLiteral("Not on screen any more, as the schedule is edited."));
    showUses(4);
    QTRY_COMPARE(text("usesNext"), QStringLiteral("Never on screen, as the schedule is edited."));
    QVERIFY(m_fixture->host.startSchedule());
    QTRY_COMPARE(text("usesNext"),
                 QStringLiteral("Never on screen, as the schedule in effect has it."));
    showUses(0);
    QTRY_COMPARE(text("usesNext"),
                 QStringLiteral("Not on screen any more, as the schedule in effect has it."));
    // What a plan plays on no date was never on screen either.
    std::map<int, PlayTask> tasks = sampleTasks();
    tasks.erase(2);
    tasks[1].startDate = tasks[1].endDate = "2024.01.02";
    QVERIFY(m_fixture->host.stopSchedule());
    QVERIFY(m_fixture->host.replaceSchedule(tasks));
    QTRY_COMPARE(text("usesNext"), QStringLiteral("Never on screen, as the schedule is edited."));
    QCOMPARE(rows().size(), 1);
}

void tst_UsesWindow::datesAndTimesAreReadFromTheLeft()
{
    const QString validity = QStringLiteral("2024.01.01 – 2024.01.31");
    const QString span = QStringLiteral("10:00:00 – 11:00:00");
    QVERIFY(!isReadFromTheLeft(validity, validity));
    showUses(0);
    const QAbstractItemModel& model = *uses().model();
    QVERIFY(isReadFromTheLeft(model.index(0, UsesModel::ValidColumn).data().toString(), validity));
    QVERIFY(isReadFromTheLeft(model.index(0, UsesModel::TimeColumn).data().toString(), span));
    QVERIFY(isReadFromTheLeft(window().findChild<QLabel*>(QStringLiteral("usesNext"))->text(),
                              QStringLiteral("2024.01.08 10:00:00")));

    const PromptAnswer answer(2);
    action("Remove from catalog").trigger();
    const QString line = answer.texts().value(0).section(QLatin1Char('\n'), 3, 3);
    QVERIFY(isReadFromTheLeft(line, validity));
    QVERIFY(isReadFromTheLeft(line, span));
}

void tst_UsesWindow::aPlanIsAskedForByMouseAndKey()
{
    showUses(0);
    QSignalSpy asked(qobject_cast<UsesWindow*>(&window()), &UsesWindow::planAsked);
    QVERIFY(asked.isValid());
    const QPoint second = uses().visualRect(uses().model()->index(1, 1)).center();
    QTest::mouseClick(uses().viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(uses().viewport(), Qt::LeftButton, {}, second);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0], (QVariantList{2, 7}));
    uses().setCurrentIndex(uses().model()->index(0, 0));
    QTest::keyClick(&uses(), Qt::Key_Return);
    QCOMPARE(asked.count(), 2);
    QCOMPARE(asked[1], (QVariantList{1, 4}));
}

void tst_UsesWindow::daysHaveTheirNames_data()
{
    QTest::addColumn<QString>("weeks");
    QTest::addColumn<QString>("words");
    QTest::newRow("empty") << QString() << QStringLiteral("every day");
    QTest::newRow("every") << QStringLiteral("0") << QStringLiteral("every day");
    QTest::newRow("all") << QStringLiteral("1,2,3,4,5,6,7") << QStringLiteral("every day");
    QTest::newRow("one") << QStringLiteral("7") << QStringLiteral("Sun");
    QTest::newRow("two") << QStringLiteral("6,7") << QStringLiteral("Sat, Sun");
    QTest::newRow("a week") << QStringLiteral("1,2,3,4,5") << QStringLiteral("Mon–Fri");
    QTest::newRow("parts") << QStringLiteral("1,2,3,5,7") << QStringLiteral("Mon–Wed, Fri, Sun");
}

void tst_UsesWindow::daysHaveTheirNames()
{
    QFETCH(QString, weeks);
    PlayPlan plan;
    plan.weeks = weeks.toStdString();
    QTEST(UseWords::days(plan, QLocale(QStringLiteral("en_US"))), "words");
}

void tst_UsesWindow::daysFollowTheLanguage()
{
    showUses(0);
    QVERIFY(rows().first().contains(QStringLiteral("|Mon, Wed|")));
    m_fixture->languages.select(QStringLiteral("de_DE"));
    const QLocale german(QLocale::German, QLocale::Germany);
    const QString days = QStringLiteral("|%1, %2|")
                             .arg(german.dayName(Qt::Monday, QLocale::ShortFormat),
                                  german.dayName(Qt::Wednesday, QLocale::ShortFormat));
    QTRY_VERIFY2(rows().first().contains(days), qPrintable(rows().first()));
    // What stands between them is of the language as well.
    for (const char* language : {"zh_CN", "zh_TW", "ja_JP"}) {
        m_fixture->languages.select(QLatin1String(language));
        const QLocale locale{QLatin1String(language)};
        const QString inRow = QStringLiteral("|%1、%2|")
                                  .arg(locale.dayName(Qt::Monday, QLocale::ShortFormat),
                                       locale.dayName(Qt::Wednesday, QLocale::ShortFormat));
        QTRY_VERIFY2(rows().first().contains(inRow), qPrintable(rows().first()));
    }
}

void tst_UsesWindow::aProgramInNoPlan()
{
    showUses(4);
    QCOMPARE(text("usesSummary"), QStringLiteral("No plan plays “Lunch menu”."));
    QVERIFY(rows().isEmpty());
}

void tst_UsesWindow::aLongScheduleIsLookedThroughElsewhere()
{
    std::map<int, PlayTask> tasks = sampleTasks();
    PlayTask& task = tasks[1];
    for (int i = 0; i < 600; ++i) {
        task.plans.push_back(plan(100 + i, "12:00:00", "12:00:01", {3}));
    }
    QVERIFY(m_fixture->host.replaceSchedule(tasks));
    QCoreApplication::processEvents();
    ProgramLookup lookup;
    LookupAnswer answer;
    int answers = 0;
    connect(&lookup, &ProgramLookup::answered, this, [&](const LookupAnswer& given) {
        answer = given;
        ++answers;
    });
    lookup.ask({4});
    // Whichever is looked for first.
    const std::vector<std::vector<int>> orders{{1, 3}, {3, 1}};
    for (const std::vector<int>& programs : orders) {
        answers = 0;
        lookup.ask(programs);
        QCOMPARE(answers, 0);
        QTRY_COMPARE(answers, 1);
        QCOMPARE(answer.programs, programs);
        QCOMPARE(answer.uses.size(), std::size_t(602));
        QVERIFY(answer.next.has_value());
        // 12:00:00 on the next day comes before the Monday of the first program.
        QCOMPARE(answer.next->progIndex, 3);
    }
}

void tst_UsesWindow::aRemovalSaysWhatItBreaks()
{
    table().selectRow(1);
    const PromptAnswer answer(2);
    action("Remove from catalog").trigger();
    QCOMPARE(removalLines(answer),
             (QStringList{
                 QStringLiteral("Remove this program from the catalog? The file is not deleted."),
                 QString(),
                 QStringLiteral("Entries become invalid in 3 plans:"),
                 QStringLiteral("Task 1 (2024.01.01 – 2024.01.31), plan 1, every day 08:00:00 – "
                                "09:00:00: nothing else is left of it"),
                 QStringLiteral("Task 1 (2024.01.01 – 2024.01.31), plan 2, Mon, Wed 10:00:00 – "
                                "11:00:00"),
                 QStringLiteral("Task 2 (2024.02.01 – 2024.02.29), plan 1, every day 20:00:00 – "
                                "21:00:00"),
                 QStringLiteral("Next on screen: 2024.01.05 08:00:00, task 1, plan 1."),
             }));
    QCOMPARE(m_fixture->manager.getPrograms().size(), std::size_t(8));
}

void tst_UsesWindow::enterRemovesNothing()
{
    table().selectRow(1);
    const PromptAnswer answer(PromptAnswer::Enter);
    action("Remove from catalog").trigger();
    QCOMPARE(answer.count(), 1);
    QCOMPARE(m_fixture->manager.getPrograms().size(), std::size_t(8));
}

void tst_UsesWindow::aRemovalOfTheUnusedSaysNothingElse()
{
    table().selectRow(4);
    const PromptAnswer answer(1);
    action("Remove from catalog").trigger();
    QCOMPARE(removalLines(answer),
             QStringList{
                 QStringLiteral("Remove this program from the catalog? The file is not deleted.")});
    QCOMPARE(m_fixture->manager.getPrograms().count(5), std::size_t(0));
}

void tst_UsesWindow::manyPlansAreToldByTheirNumber()
{
    std::map<int, PlayTask> tasks = sampleTasks();
    for (int i = 0; i < 20; ++i) {
        tasks[1].plans.push_back(plan(100 + i, "12:00:00", "12:00:01", {5}));
    }
    QVERIFY(m_fixture->host.replaceSchedule(tasks));
    QCoreApplication::processEvents();
    table().selectRow(4);
    const PromptAnswer answer(2);
    action("Remove from catalog").trigger();
    const QStringList lines = removalLines(answer);
    QCOMPARE(lines.size(), 3 + 8 + 2);
    QCOMPARE(lines[11], QStringLiteral("… and 12 more plans."));
}

TREL_TEST(tst_UsesWindow, QApplication)
#include "tst_UsesWindow.moc"
