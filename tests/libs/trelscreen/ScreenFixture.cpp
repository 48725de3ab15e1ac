#include "ScreenFixture.h"

#include <QCoreApplication>

using namespace trel::mediadispatch;
using namespace trel::screen;

ScreenFixture::ScreenFixture(const QDateTime& now, std::optional<qint64> readyAfter)
    : clock(now)
    , one(QStringLiteral("one"), [this](const QString& line) { tell(line); })
    , two(QStringLiteral("two"), [this](const QString& line) { tell(line); })
    , stage([this](const QString& line) { tell(line); })
    , conductor(stage, one, two, log)
{
    one.setReadyAfter(readyAfter);
    two.setReadyAfter(readyAfter);
    m_calls.clear();
}

QDateTime ScreenFixture::moment(const char* timeOfDay, int day)
{
    const QString text = QLatin1String(timeOfDay);
    return {QDate(2024, 3, day),
            QTime::fromString(text, text.contains(QLatin1Char('.')) ? QStringLiteral("hh:mm:ss.zzz")
                                                                    : QStringLiteral("hh:mm:ss")),
            QTimeZone("Europe/Berlin")};
}

std::map<int, ProgramIten> ScreenFixture::letters()
{
    std::map<int, ProgramIten> programs = lettersCatalogue();
    for (const auto& [letter, duration, kind] : {std::tuple('K', 1500.0, ProgramKind::Video),
                                                 std::tuple('M', 5000.0, ProgramKind::Audio)}) {
        ProgramIten program;
        program.progIndex = programOf(QLatin1Char(letter));
        program.progName = letter;
        program.durationMs = duration;
        program.kind = kind;
        programs[program.progIndex] = program;
    }
    for (auto& [index, program] : programs) {
        program.mediaPath = program.progName;
    }
    return programs;
}

void ScreenFixture::follow(const char* plans)
{
    tasks =
        scheduleFromText(QStringLiteral("1 2024.03.04-2024.03.10 / %1").arg(QLatin1String(plans)));
    give();
}

void ScreenFixture::followAgain()
{
    give();
}

void ScreenFixture::insert(const char* plan, bool isDelayed)
{
    ScreenInsertion request;
    request.taskId = 1;
    request.planId = 1;
    request.plan = planFromText(QLatin1String(plan));
    request.plan.serviceFlagA = true;
    insertions = timeline->withInsertion(insertions, request, clock.msecsSinceEpoch(), isDelayed);
    give();
}

void ScreenFixture::cancelInsertion()
{
    insertions = timeline->withoutInsertion(insertions, clock.msecsSinceEpoch());
    give();
}

void ScreenFixture::stop()
{
    tasks.clear();
    insertions.clear();
    start.reset();
    give();
}

void ScreenFixture::give()
{
    timeline = std::make_shared<const ScreenTimeline>(tasks, catalogue, clock.zone());
    ScreenSchedule schedule;
    schedule.timeline = timeline;
    schedule.insertions = insertions;
    schedule.catalogue = std::make_shared<const std::map<int, ProgramIten>>(catalogue);
    schedule.start = start;
    schedule.tasks = std::make_shared<const std::map<int, PlayTask>>(tasks);
    schedule.zone = clock.zone();
    if (beforeGiving) {
        beforeGiving(schedule);
    }
    conductor.setSchedule(schedule);
    QCoreApplication::processEvents();
}

void ScreenFixture::advance(qint64 milliseconds)
{
    clock.advance(milliseconds);
    QCoreApplication::processEvents();
}

void ScreenFixture::advanceTo(const char* timeOfDay)
{
    advance(clock.now().msecsTo(moment(timeOfDay, clock.now().date().day())));
}

QString ScreenFixture::picture() const
{
    const StagePicture& picture = stage.picture();
    if (picture.kind != StagePicture::Kind::Deck) {
        return RecordedStage::lineOf(picture);
    }
    const RecordedDeck* deck = stage.deck();
    const std::optional<qint64> position = deck->position();
    return position && deck->loaded().kind != ProgramKind::Live
               ? QStringLiteral("%1 at %2").arg(deck->loaded().media).arg(*position)
               : deck->loaded().media;
}

void ScreenFixture::tell(const QString& line)
{
    const QTime time = clock.now().time();
    m_calls.append(time.toString(time.msec() == 0 ? QStringLiteral("hh:mm:ss")
                                                  : QStringLiteral("hh:mm:ss.zzz")) +
                   QLatin1Char(' ') + line);
}
