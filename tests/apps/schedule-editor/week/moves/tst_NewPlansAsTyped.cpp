#include "OpenCard.h"
#include "support/ChooserAnswer.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "week/moves/NewPlans.h"

#include "MultiComboBox.h"
#include "service/TimeText.h"

#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QPushButton>
#include <QSpinBox>
#include <QTimeEdit>

#include <limits>

using namespace trel::mediadispatch;
using namespace trel::desktop::week;

namespace {

constexpr int kFilm = 1;
constexpr int kClip = 2;
constexpr int kPicture = 5;

RecordingService& service()
{
    return RecordingService::instance();
}

bool hasNoDuration(int progIndex)
{
    return service().noDuration.count(progIndex) > 0;
}

PlayTask someTask()
{
    return taskWithPlans(
        {timePlan(4, "08:00:00", "10:00:00", "1"), timePlan(9, "12:00:00", "13:00:00", "3,4")});
}

/// Adds a plan with the button of the card, choosing these rows of the catalogue.
void addPlan(OpenCard& open, const std::vector<int>& offeredRows)
{
    const ChooserAnswer answer([offeredRows](ChooserWindow& chooser) {
        for (const int row : offeredRows) {
            chooser.checkProgram(row);
        }
        chooser.choose();
        chooser.confirm();
    });
    click(named<QPushButton>(open.card, "pushButtonAdd"));
}

void typeTimes(const OpenCard& open, int row, const PlayPlan& to)
{
    QTimeEdit& start = open.rows.startTime(row);
    QTimeEdit& end = open.rows.endTime(row);
    if (start.time() < timeFromText(to.startTime) && end.isEnabled()) {
        end.setTime(timeFromText(to.endTime));
    }
    start.setTime(timeFromText(to.startTime));
    if (end.isEnabled()) {
        end.setTime(timeFromText(to.endTime));
    }
}

void tickDays(const OpenCard& open, int row, const std::string& weeks)
{
    QStringList labels;
    const QStringList days = QString::fromStdString(weeks).split(QLatin1Char(','));
    for (const QString& day : days) {
        labels.append(open.rows.weeks(row).itemText(day.toInt()));
    }
    open.rows.weeks(row).applySelection(labels.join(QLatin1Char(',')));
}

} // namespace

/// Plans that come to be in the picture, beside those that the add button and the fields make.
class tst_NewPlansAsTyped : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void programs_data();
    void programs();
    void likeAnother_data();
    void likeAnother();
    void nothing();
};

void tst_NewPlansAsTyped::init()
{
    service().reset();
    service().addProgram(kFilm, "Film", 3540000.0);
    service().addProgram(kClip, "Clip", 61500.9);
    service().addProgram(kPicture, "Picture", -1.0, true);
}

void tst_NewPlansAsTyped::programs_data()
{
    QTest::addColumn<std::vector<int>>("indexes");
    QTest::addColumn<std::vector<int>>("rows");
    QTest::addColumn<int>("second");
    QTest::newRow("film") << std::vector{kFilm} << std::vector{0} << 14 * 3600 + 900;
    QTest::newRow("two") << std::vector{kClip, kFilm} << std::vector{1, 0} << 0;
    QTest::newRow("film at the end of the day")
        << std::vector{kFilm} << std::vector{0} << 23 * 3600 + 1800;
    QTest::newRow("picture") << std::vector{kPicture} << std::vector{2} << 9 * 3600;
    QTest::newRow("late picture") << std::vector{kPicture} << std::vector{2} << 23 * 3600 + 1800;
    QTest::newRow("film and picture")
        << std::vector{kFilm, kPicture} << std::vector{0, 2} << 9 * 3600;
}

void tst_NewPlansAsTyped::programs()
{
    QFETCH(std::vector<int>, indexes);
    QFETCH(std::vector<int>, rows);
    QFETCH(int, second);
    PlayTask task = someTask();
    const std::optional<PlayPlan> plan =
        planOfPrograms(indexes, second, {3}, task, service().programs, hasNoDuration);
    QVERIFY(plan);

    const PromptAnswer noRefusal;
    OpenCard open(task);
    addPlan(open, rows);
    const int row = 2;
    if (plan->mode == FrequencyMode) {
        open.rows.mode(row).setCurrentIndex(FrequencyMode);
    }
    typeTimes(open, row, *plan);
    tickDays(open, row, plan->weeks);
    task.plans.push_back(*plan);
    markCollisions(task, service().programs, hasNoDuration);
    QCOMPARE(line(task), line(service().working[1]));
    QVERIFY(task == service().working[1]);
}

void tst_NewPlansAsTyped::likeAnother_data()
{
    QTest::addColumn<PlayPlan>("other");
    PlayPlan film = frequencyPlan(3, "14:00:00", 4, {entry(kClip), entry(kFilm)}, "1");
    film.endTime = "18:00:06";
    QTest::newRow("by runs") << film;
    PlayPlan timed = timePlan(3, "20:00:00", "21:30:00", "1,2");
    timed.programs = {entry(kFilm)};
    timed.endAction = FreezeCurrentFrame;
    timed.serviceCount = 77;
    QTest::newRow("by time") << timed;
    PlayPlan picture = timePlan(3, "01:00:00", "02:00:00");
    picture.programs = {entry(kPicture)};
    picture.hasNoDuration = true;
    QTest::newRow("picture") << picture;
}

void tst_NewPlansAsTyped::likeAnother()
{
    QFETCH(PlayPlan, other);
    for (struProgInfo& program : other.programs) {
        program.progName = service().programs[program.progIndex].progName;
    }
    PlayTask task = someTask();
    const std::optional<PlayPlan> plan =
        planLike(other, {2, 6}, task, service().programs, hasNoDuration);
    QVERIFY(plan);

    const PromptAnswer noRefusal;
    OpenCard open(task);
    std::vector<int> rows;
    for (const struProgInfo& program : other.programs) {
        rows.push_back(program.progIndex == kPicture ? 2 : program.progIndex - 1);
    }
    addPlan(open, rows);
    const int row = 2;
    open.rows.mode(row).setCurrentIndex(plan->mode);
    if (plan->mode == FrequencyMode) {
        open.rows.times(row).setValue(plan->times);
    }
    typeTimes(open, row, *plan);
    tickDays(open, row, plan->weeks);
    open.rows.endAction(row).setCurrentIndex(plan->endAction);
    task.plans.push_back(*plan);
    markCollisions(task, service().programs, hasNoDuration);
    QCOMPARE(line(task), line(service().working[1]));
    QVERIFY(task == service().working[1]);
}

void tst_NewPlansAsTyped::nothing()
{
    PlayTask task = someTask();
    const auto plan = [&](const std::vector<int>& indexes, int second) {
        return planOfPrograms(indexes, second, {1}, task, service().programs, hasNoDuration);
    };
    QVERIFY(plan({kFilm}, 0));
    QVERIFY(!plan({}, 0));
    QVERIFY(!plan({kFilm, 77}, 0));
    QVERIFY(!plan({kFilm}, kMidnight));
    QVERIFY(!plan({kFilm}, -900));
    task.plans.front().id = std::numeric_limits<int>::max();
    QVERIFY(!plan({kFilm}, 0));
}

TREL_TEST(tst_NewPlansAsTyped, QApplication)
#include "tst_NewPlansAsTyped.moc"
