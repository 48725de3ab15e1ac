#include "HostFixture.h"
#include "LookSupport.h"
#include "look/ProgramColours.h"
#include "screen/ComingPrograms.h"
#include "screen/PreviewScreen.h"
#include "screen/ProgramName.h"
#include "screen/ScreenFollower.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QApplication>
#include <QRandomGenerator>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

PlayPlan planOf(int id, const QByteArray& start, const QByteArray& end,
                const std::vector<int>& programs)
{
    PlayPlan plan = timePlan(id, start.toStdString(), end.toStdString());
    for (const int index : programs) {
        plan.programs.push_back(entry(index));
    }
    return plan;
}

struct Window : HostFixture
{
    Window()
    {
        window.openDatabase(database);
        std::vector<MediaSource> sources;
        for (int number = 1; number <= 6; ++number) {
            const QString path = folder.filePath(QStringLiteral("%1.mp4").arg(number));
            QFile(path).open(QIODevice::WriteOnly);
            sources.push_back(
                {QStringLiteral("Film %1").arg(number), path, 60000.0, ProgramKind::Video});
        }
        host.addPrograms(sources);
        window.show();
        QCoreApplication::processEvents();
    }

    void start(std::vector<PlayPlan> plans)
    {
        PlayTask task = taskWithPlans(std::move(plans), 1);
        task.startDate = "2020.01.01";
        task.endDate = "2099.12.31";
        manager.addTask(task);
        manager.save();
        manager.slotOpen();
    }

    ScreenFollower& follower() const { return *window.findChild<ScreenFollower*>(); }
    QString coming() const
    {
        QStringList lines;
        for (const ScreenScene& scene : follower().coming()) {
            lines.append(
                QStringLiteral("%1 %2").arg(follower().timeText(scene.state.since),
                                            QString::fromStdString(scene.program.progName)));
        }
        return lines.join(QLatin1String(", "));
    }

    TestClock clock{QDateTime(QDate(2026, 3, 11), QTime(8, 0, 10))};
};

} // namespace

/// What comes next, and why there is nothing.
class tst_ComingPrograms : public QObject
{
    Q_OBJECT

private slots:
    void nothingComesWhileNothingIsInEffect();
    void tellsThreeOthers();
    void passesOverWhatIsKnown();
    void agreesWithALookAtEveryPlay();
    void showsTimesAndNames();
    void programsHaveTheirSigns_data() { addThemes(); }
    void programsHaveTheirSigns();
    void theBlackPictureSaysWhy_data() { addThemes(); }
    void theBlackPictureSaysWhy();
};

void tst_ComingPrograms::nothingComesWhileNothingIsInEffect()
{
    Window fixture;
    QCOMPARE(fixture.coming(), QString());
    QVERIFY(fixture.window.findChild<ComingPrograms*>()->isHidden());
}

void tst_ComingPrograms::tellsThreeOthers()
{
    Window fixture;
    fixture.start(
        {planOf(1, "08:00:00", "08:03:00", {1, 2, 3}), planOf(2, "09:00:00", "09:02:00", {4, 5})});
    QCOMPARE(fixture.coming(), QStringLiteral("08:01:00 Film 2, 08:02:00 Film 3, 09:00:00 Film 4"));
    QVERIFY(!fixture.window.findChild<ComingPrograms*>()->isHidden());
}

void tst_ComingPrograms::passesOverWhatIsKnown()
{
    Window fixture;
    // Hours of two films before the third, and one film for the rest of the day.
    fixture.start(
        {planOf(1, "08:00:00", "20:00:00", {1, 2}), planOf(2, "20:00:00", "23:59:59", {3})});
    QCOMPARE(fixture.coming(), QStringLiteral("08:01:00 Film 2, 20:00:00 Film 3"));
}

void tst_ComingPrograms::agreesWithALookAtEveryPlay()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 20; ++round) {
        Window fixture;
        std::vector<PlayPlan> plans;
        for (int id = 1; id <= 4; ++id) {
            const QTime start(8 + 2 * id - 2, random.bounded(60));
            std::vector<int> programs;
            for (int i = 0; i <= random.bounded(3); ++i) {
                programs.push_back(1 + random.bounded(6));
            }
            plans.push_back(planOf(id, start.toString(QStringLiteral("hh:mm:ss")).toLatin1(),
                                   start.addSecs(300 + random.bounded(3000))
                                       .toString(QStringLiteral("hh:mm:ss"))
                                       .toLatin1(),
                                   programs));
        }
        fixture.start(plans);
        const ScreenDispatch& dispatch = fixture.host.dispatch();
        QStringList expected;
        std::set<int> known{fixture.follower().now().state.progIndex};
        const Instant from = fixture.follower().now().state.until;
        dispatch.timeline().visitPlays(
            from, from + qint64(48) * 3600 * 1000, {}, [&](const ScreenState& state) {
                if (state.isPlaying() && known.insert(state.progIndex).second) {
                    expected.append(QStringLiteral("%1 Film %2")
                                        .arg(fixture.follower().timeText(state.since),
                                             QString::number(state.progIndex)));
                }
                return expected.size() < 3;
            });
        QCOMPARE(fixture.coming(), expected.join(QLatin1String(", ")));
    }
}

void tst_ComingPrograms::showsTimesAndNames()
{
    Window fixture;
    fixture.start(
        {planOf(1, "08:00:00", "08:03:00", {1, 2}), planOf(2, "07:00:00", "07:02:00", {4})});
    const auto* shown = fixture.window.findChild<ComingPrograms*>();
    const QStringList lines = shown->accessibleDescription().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).contains(QStringLiteral("08:01:00")));
    QVERIFY(lines.at(0).contains(QStringLiteral("Film 2")));
    // On another day than today.
    QVERIFY(lines.at(1).contains(QStringLiteral("2026.03.12 07:00:00")));
    QVERIFY(lines.at(1).contains(QStringLiteral("Film 4")));
    QCOMPARE(shown->accessibleName(), QStringLiteral("Programs to come"));
}

/// Those of now and next as well.
void tst_ComingPrograms::programsHaveTheirSigns()
{
    QFETCH(QString, theme);
    Window fixture;
    const auto& now = *fixture.window.findChild<ProgramName*>(QStringLiteral("nowProgram"));
    const auto& next = *fixture.window.findChild<ProgramName*>(QStringLiteral("nextProgram"));
    QVERIFY(now.sign().isEmpty() && next.sign().isEmpty());
    fixture.start({planOf(1, "08:00:00", "08:03:00", {5, 2})});
    fixture.themes.select(theme);
    QCoreApplication::processEvents();
    const auto seen = [](const ProgramName& name) {
        return const_cast<ProgramName&>(name).grab().toImage().pixelColor(name.sign().center());
    };
    const auto ground = [&fixture](int program) {
        return look::programColours(program, fixture.themes.colours()).ground.rgb();
    };
    QCOMPARE(now.text(), QStringLiteral("Film 5"));
    QCOMPARE(seen(now).rgb(), ground(5));
    QCOMPARE(next.text(), QStringLiteral("Film 2"));
    QCOMPARE(seen(next).rgb(), ground(2));
    QVERIFY(fixture.host.stopSchedule());
    QTRY_COMPARE(now.text(), QStringLiteral("Not started"));
    QVERIFY(now.sign().isEmpty());
}

void tst_ComingPrograms::theBlackPictureSaysWhy()
{
    QFETCH(QString, theme);
    Window fixture;
    fixture.themes.select(theme);
    auto* preview = fixture.window.findChild<PreviewScreen*>();
    QVERIFY2(preview->accessibleName().contains(QStringLiteral("Choose Start")),
             qPrintable(preview->accessibleName()));
    const QImage picture = pictureOf(preview);
    QCOMPARE(faultOf(picture, preview->rect(), QStringLiteral("why it is black")), QString());
    QVERIFY(shareOf(picture, Qt::black) < 0.99);
}

TREL_TEST(tst_ComingPrograms, QApplication)
#include "tst_ComingPrograms.moc"
