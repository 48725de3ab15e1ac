#pragma once

#include "RecordedLog.h"
#include "libs/trelprogramschedule/dispatch/ScheduleWriting.h"
#include "support/RecordedDeck.h"
#include "support/RecordedStage.h"
#include "support/TestClock.h"
#include "trelscreen/Conductor.h"

#include <QStringList>

#include <functional>
#include <memory>

/// A screen of recorded decks, "one" and "two", on a clock that stands on 2024.03.04, a Monday, in
/// Europe/Berlin. The programs are those of lettersCatalogue() with K of 1.5 s and the sound M of
/// 5 s; the media of a program has its letter for a path. A load takes a millisecond.
class ScreenFixture
{
public:
    explicit ScreenFixture(const char* timeOfDay, std::optional<qint64> readyAfter = 1)
        : ScreenFixture(moment(timeOfDay), readyAfter)
    {}
    explicit ScreenFixture(const QDateTime& now, std::optional<qint64> readyAfter = 1);

    static QDateTime moment(const char* timeOfDay, int day = 4);
    static std::map<int, trel::mediadispatch::ProgramIten> letters();

    /// Gives the screen a schedule of one task for that week with these plans, written as
    /// scheduleFromText has them.
    void follow(const char* plans);
    /// Gives it the same schedule again, read another time.
    void followAgain();
    /// Cuts a plan in, for the plan with the id 1.
    void insert(const char* plan, bool isDelayed = false);
    void cancelInsertion();
    /// Nothing is in effect any more.
    void stop();

    /// Lets time go by; each moment at which something happens is met.
    void advance(qint64 milliseconds);
    void advanceTo(const char* timeOfDay);
    /// What deck and stage were asked for since the last call, each line with the moment before it,
    /// as "08:00:10 stage: two" or, between two seconds, "08:00:10.250 two: play".
    QStringList takeCalls() { return std::exchange(m_calls, {}); }
    /// What is out, as "A at 4000", "A" where there is no position, "black" or "stand-by".
    QString picture() const;

private:
    QStringList m_calls;

public:
    TestClock clock;
    RecordedDeck one;
    RecordedDeck two;
    RecordedStage stage;
    RecordedLog log;
    trel::screen::Conductor conductor;

    std::map<int, trel::mediadispatch::ProgramIten> catalogue = letters();
    std::map<int, trel::mediadispatch::PlayTask> tasks;
    trel::mediadispatch::ScreenInsertions insertions;
    std::shared_ptr<const trel::mediadispatch::ScreenTimeline> timeline;
    std::optional<trel::mediadispatch::EffectStart> start;
    /// Gets each schedule right before the screen does.
    std::function<void(const trel::screen::ScreenSchedule&)> beforeGiving;

private:
    void give();
    void tell(const QString& line);
};

/// Lines as written in a test.
inline QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList strings;
    for (const char* text : texts) {
        strings.append(QString::fromLatin1(text));
    }
    return strings;
}
