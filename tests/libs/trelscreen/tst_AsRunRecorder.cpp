#include "AsRunFixture.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;
using namespace trel::screen;

/// What happens on a screen, as records of what was on it.
class tst_AsRunRecorder : public QObject
{
    Q_OBJECT

private slots:
    void oneRecordForEachPicture()
    {
        AsRunFixture run("07:59:59");
        run.screen.advance(500);
        run.screen.start->saved = 7;
        run.screen.follow("08:00:00-08:00:20 A B freeze / 08:00:25-09:00:00 I");
        run.screen.advanceTo("08:00:30");
        run.recorder.end();
        QCOMPARE(run.take(),
                 lines({"07:59:59 +500 gap nothing read yet", "07:59:59.500 schedule 7",
                        "07:59:59.500 +500 black complete", "08:00:00 +10000 A complete",
                        "08:00:10 +4000 B complete", "08:00:14 +6000 A complete",
                        "08:00:20 +5000 A frozen complete", "08:00:25 +5000 I cut by end"}));
    }

    void namesPlanAndPlay()
    {
        AsRunFixture run("08:00:01");
        run.screen.start->saved = 3;
        run.screen.follow("08:00:00-09:00:00 A B*2");
        run.screen.advanceTo("08:00:19");
        const AsRunRecord& record = run.entries.back().record;
        QCOMPARE(record.kind, AsRunKind::Picture);
        QCOMPARE(record.revision, 3);
        QCOMPARE(record.picture, ScreenPicture::Playing);
        QCOMPARE(record.taskId, 1);
        QCOMPARE(record.planId, 1);
        QCOMPARE(record.planRow, 0);
        QCOMPARE(record.entry, 1);
        QCOMPARE(record.play, 1);
        QCOMPARE(record.run, 0);
        QCOMPARE(record.insertion, 0);
        QCOMPARE(record.progIndex, programOf(QLatin1Char('B')));
        QCOMPARE(record.program, QStringLiteral("B"));
        QCOMPARE(record.plannedBegin, ScreenFixture::moment("08:00:14").toMSecsSinceEpoch());
        QCOMPARE(record.plannedEnd, ScreenFixture::moment("08:00:18").toMSecsSinceEpoch());
        QCOMPARE(record.begins, record.plannedBegin);
        QCOMPARE(record.ends, record.plannedEnd);
        QCOMPARE(record.shown, AsRunShown::AsPlanned);
    }

    void theSchedule()
    {
        AsRunFixture run("08:00:01");
        run.screen.follow("08:00:00-09:00:00 A");
        QCOMPARE(run.entries.size(), std::size_t(1));
        QCOMPARE(run.entries.front().record.kind, AsRunKind::ScheduleTaken);
        QCOMPARE(run.entries.front().schedule.timeline, run.screen.timeline);
    }

    void comesLate()
    {
        AsRunFixture run("08:00:05");
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.advanceTo("08:00:06");
        run.screen.one.setReadyAfter(2500);
        run.screen.two.setReadyAfter(2500);
        run.take();
        run.screen.advanceTo("08:00:14");
        QCOMPARE(run.take(), lines({"08:00:05.250 +4750 A complete, 250 late",
                                    "08:00:10 +500 B by stand-by complete",
                                    "08:00:10.500 +3500 B complete, 500 late"}));
    }

    /// The record begins when it is made, after the screen has told how late it was.
    void aBusyMachine()
    {
        class HeldUp : public ScreenLog
        {
        public:
            void note(const ScreenEvent& event) override
            {
                ScreenEvent earlier = event;
                earlier.onScreenSince -= event.kind == ScreenEvent::Kind::Shown ? by : 0;
                to->note(earlier);
            }
            ScreenLog* to = nullptr;
            qint64 by = 0;
        };
        AsRunFixture run("08:00:05");
        HeldUp log;
        log.to = &run.recorder;
        run.screen.log.alsoTo = &log;
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.advanceTo("08:00:06");
        run.take();
        log.by = 70;
        run.screen.advanceTo("08:00:11");
        // The clock was set in between.
        log.by = 3'600'000;
        run.screen.advanceTo("08:00:15");
        log.by = 0;
        run.screen.advanceTo("08:00:26");
        QCOMPARE(run.take(),
                 lines({"08:00:05.250 +4750 A complete, 250 late",
                        "08:00:10 +4000 B complete, 70 late", "08:00:14 +10000 A complete"}));
    }

    void aProgramThatBreaks()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.advanceTo("08:00:04");
        run.take();
        run.screen.one.tellFailed(DeckTrouble::BrokeOff);
        run.screen.advanceTo("08:00:15");
        const QString brokeOff = QString::number(static_cast<int>(DeckTrouble::BrokeOff));
        const QStringList records = run.take();
        QCOMPARE(records.size(), 4);
        QCOMPARE(records[0], QStringLiteral("08:00:00 +4000 A cut by fault (%1)").arg(brokeOff));
        QVERIFY2(records[1].startsWith(QStringLiteral("08:00:04 +")) &&
                     records[1].endsWith(
                         QStringLiteral(" A by its last frame complete (%1)").arg(brokeOff)),
                 qPrintable(records[1]));
        QVERIFY2(records[2].contains(QStringLiteral(" A complete, ")), qPrintable(records[2]));
        QCOMPARE(records[3], QStringLiteral("08:00:10 +4000 B complete"));
    }

    void aProgramThatIsNeverThere()
    {
        AsRunFixture run("07:59:55");
        for (RecordedDeck* deck : {&run.screen.one, &run.screen.two}) {
            deck->setTrouble([](const QString& media) {
                return media == QLatin1String("L") ? DeckTrouble::None : DeckTrouble::Missing;
            });
        }
        run.screen.follow("08:00:00-08:01:00 A B");
        run.screen.advanceTo("08:00:14");
        QCOMPARE(run.take().mid(1), lines({"07:59:55 +5000 black complete",
                                           "08:00:00 +10000 A by stand-by complete (1)",
                                           "08:00:10 +4000 B by stand-by complete (1)"}));
    }

    /// The reason comes when the program is missed already.
    void aReasonThatComesLater()
    {
        AsRunFixture run("07:59:59", std::nullopt);
        run.screen.follow("08:00:00-08:01:00 A B");
        run.screen.advanceTo("08:00:03");
        run.screen.one.tellFailed(DeckTrouble::Unreadable);
        run.screen.advanceTo("08:00:10");
        QCOMPARE(run.take().last(), QStringLiteral("08:00:00 +10000 A by stand-by complete (%1)")
                                        .arg(static_cast<int>(DeckTrouble::Unreadable)));
    }

    void tooShortToBeSeen()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-08:00:01 D / 08:00:01-08:00:20 A");
        run.screen.advanceTo("08:00:11");
        QCOMPARE(run.take().mid(1),
                 lines({"07:59:59 +1000 black complete",
                        "08:00:00 +1000 D by stand-by complete (It is over before it could be "
                        "seen.)",
                        "08:00:01 +10000 A complete"}));
    }

    void anInsertionAtOnce()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.advanceTo("08:00:03");
        run.take();
        run.screen.insert("08:00:00-08:00:08 K");
        run.screen.advanceTo("08:00:09");
        const QStringList records = run.take();
        QCOMPARE(records.mid(0, 4),
                 lines({"08:00:00 +3000 A cut by insertion", "08:00:03 schedule 0",
                        "08:00:03 +100 K by the former picture complete",
                        "08:00:03.100 +1400 K complete, 100 late"}));
        QVERIFY(!records.filter(QStringLiteral("+500 K complete")).isEmpty());
    }

    void anInsertionThatIsTakenBack()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.insert("08:00:00-08:30:00 I");
        run.screen.advanceTo("08:00:03");
        run.take();
        run.screen.cancelInsertion();
        run.screen.advanceTo("08:00:11");
        const QStringList records = run.take();
        QCOMPARE(records.first(), QStringLiteral("07:59:59.001 +3999 I cut by insertion, 1 late"));
        QCOMPARE(records[1], QStringLiteral("08:00:03 schedule 0"));
    }

    void whatIsStopped()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.advanceTo("08:00:03");
        run.take();
        run.screen.stop();
        run.screen.advance(1000);
        run.recorder.end();
        QCOMPARE(run.take(), lines({"08:00:00 +3000 A cut by stop", "08:00:03 schedule 0",
                                    "08:00:03 +1000 black cut by end"}));
    }

    void anotherScheduleUnderWhichItGoesOn()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.advanceTo("08:00:03");
        run.take();
        run.screen.start->saved = 2;
        run.screen.follow("08:00:00-08:00:08 A B");
        run.look();
        run.screen.advanceTo("08:00:09");
        QCOMPARE(run.take(), lines({"08:00:00 +3000 A goes on", "08:00:03 schedule 2",
                                    "08:00:03 +5000 A complete"}));
        const AsRunRecord& record = run.entries.back().record;
        QCOMPARE(record.revision, 2);
        QCOMPARE(record.plannedBegin, ScreenFixture::moment("08:00:00").toMSecsSinceEpoch());
        QCOMPARE(record.plannedEnd, ScreenFixture::moment("08:00:08").toMSecsSinceEpoch());
    }

    void theSameScheduleAgainIsNoRecord()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 A B");
        run.screen.advanceTo("08:00:03");
        run.take();
        ScreenSchedule same = run.entries.front().schedule;
        run.recorder.take(same);
        run.screen.conductor.setSchedule(same);
        run.screen.advanceTo("08:00:10");
        QCOMPARE(run.take(), lines({"08:00:00 +10000 A complete"}));
    }

    void theClockIsSet()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 A I");
        run.screen.advanceTo("08:00:03");
        run.take();
        run.screen.clock.set(ScreenFixture::moment("10:00:00"));
        run.screen.advance(5000);
        run.recorder.end();
        QCOMPARE(run.take(),
                 lines({"08:00:00 +3000 A cut by clock", "10:00:00 +5000 black cut by end"}));
        const AsRunRecord& former = run.entries[run.entries.size() - 2].record;
        QCOMPARE(former.ends, ScreenFixture::moment("08:00:03").toMSecsSinceEpoch());
    }

    void theMachineSleeps()
    {
        AsRunFixture run("07:59:59");
        run.screen.follow("08:00:00-09:00:00 I");
        run.screen.advanceTo("08:00:03");
        run.take();
        run.sleep(600'000);
        run.screen.advance(5000);
        run.recorder.end();
        QCOMPARE(run.take(), lines({"08:00:00 +3000 I cut by clock", "08:00:03 +600000 gap slept",
                                    "08:10:03 +5000 I cut by end"}));
    }

    void whatIsOnNow()
    {
        AsRunFixture run("07:59:59");
        QCOMPARE(AsRunFixture::lineOf(run.recorder.open()),
                 QStringLiteral("07:59:59 +0 gap nothing read yet"));
        run.screen.follow("08:00:00-09:00:00 A");
        run.screen.advanceTo("08:00:03");
        run.look();
        QCOMPARE(AsRunFixture::lineOf(run.recorder.open()),
                 QStringLiteral("08:00:00 +3000 A cut by kill"));
    }
};

TREL_TEST(tst_AsRunRecorder, QCoreApplication)
#include "tst_AsRunRecorder.moc"
