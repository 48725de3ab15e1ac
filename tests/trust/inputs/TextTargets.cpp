#include "TextTargets.h"

#include "FuzzTarget.h"

#include "CommandLine.h"
#include "Commands.h"
#include "common/DisplayText.h"
#include "screen/MomentText.h"
#include "service/DateText.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "text/HelpText.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/NamedSchedule.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

#include <algorithm>

using namespace trel::console;
using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trust {

namespace {

/// No sentence quotes more than a piece of what it was given.
constexpr int kLongestSentence = 4096;

bool isObeyedByTerminal(QChar character)
{
    const ushort code = character.unicode();
    return code < 0x20 || (code >= 0x7F && code <= 0x9F) || code == 0x61C || code == 0x200E ||
           code == 0x200F || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

bool isHarmless(const QString& text)
{
    return std::none_of(text.begin(), text.end(), isObeyedByTerminal);
}

/// Every text is told to a terminal through the functions that tryTerminal looks at.
void expectSentence(const QString& sentence)
{
    expect(!sentence.isEmpty(), "a refusal has a reason");
    expect(sentence.size() <= kLongestSentence, "a reason has a bounded length");
}

} // namespace

void tryJson(const QByteArray& input)
{
    const ScheduleFromJson schedule = scheduleFromJson(input);
    if (schedule.fault) {
        expectSentence(englishText(schedule));
        expect(schedule.tasks.empty(), "a schedule is read whole or not at all");
        return;
    }
    const NamedScheduleFromJson named = namedScheduleFromJson(input);
    expect(!named.fault && named.tasks == schedule.tasks, "both readers agree");
    const QByteArray withPrograms = namedScheduleToJson(named.tasks, named.programs);
    const NamedScheduleFromJson back = namedScheduleFromJson(withPrograms);
    expect(!back.fault && back.tasks == named.tasks && back.programs == named.programs,
           "programs that are read back are the same");
    expect(printableJson(withPrograms) == withPrograms,
           "no program holds anything that a terminal obeys");
    const QByteArray written = scheduleToJson(schedule.tasks);
    const ScheduleFromJson again = scheduleFromJson(written);
    expect(!again.fault, "what was written can be read");
    expect(again.tasks == schedule.tasks, "a schedule that is read back is the same");
    expect(scheduleToJson(again.tasks) == written, "the same schedule gives the same bytes");
    expect(printableJson(written) == written, "an export holds nothing that a terminal obeys");
}

void tryArguments(const QByteArray& input)
{
    QStringList arguments;
    for (const QByteArray& argument : input.split('\0')) {
        arguments.append(QString::fromUtf8(argument));
    }
    const CommandLine line = CommandLine::read(arguments, allCommands());
    if (line.wish == CommandLine::Wish::Misuse) {
        expectSentence(line.misuse);
        expect(isHarmless(helpHint(line.command)), "the hint is one line");
        return;
    }
    if (line.wish == CommandLine::Wish::ShowHelp) {
        expect(!(line.command == nullptr ? generalHelp(allCommands()) : commandHelp(*line.command))
                    .isEmpty(),
               "there is help");
        return;
    }
    if (line.wish == CommandLine::Wish::ShowVersion) {
        return;
    }
    expect(line.command != nullptr, "a command that runs is known");
    const Command& command = *line.command;
    const int count = line.invocation.arguments.size();
    expect(count >= command.leastArguments, "no argument is missing");
    expect(command.mostArguments == Command::kAnyNumber || count <= command.mostArguments,
           "no argument is too many");
    expect(!line.invocation.json || command.hasJson, "JSON comes where there is some");
    expect(line.invocation.database.isEmpty() || command.hasDatabase,
           "a database is given where there is one");
    for (const auto& [name, value] : line.invocation.options) {
        const auto isThis = [&name = name](const CommandOption& option) {
            return name == QLatin1String(option.name.data(), static_cast<int>(option.name.size()));
        };
        expect(std::any_of(command.options.begin(), command.options.end(), isThis),
               "every option is one of the command");
    }
}

void tryMoment(const QByteArray& input)
{
    static const MomentFormat local(QTimeZone("Europe/Berlin"));
    const QDate today(2024, 3, 31); // A day on which the clock is put forward.
    const QString text = QString::fromUtf8(input);
    for (const DateAlone dateAlone : {DateAlone::Refused, DateAlone::StartOfDay}) {
        const MomentReading reading = readMoment(text, local, today, dateAlone);
        expect(reading.instant.has_value() == reading.error.isEmpty(),
               "a text names a moment or has a reason why not");
        if (reading.instant) {
            const MomentReading again =
                readMoment(local.isoText(*reading.instant), local, today, dateAlone);
            expect(!isDated(*reading.instant) || again.instant == reading.instant,
                   "a moment that is written reads the same");
        } else {
            expectSentence(reading.error);
        }
    }

    const std::string bytes = input.toStdString();
    const QTime time = timeFromText(bytes);
    expect(time == QTime::fromString(text, QStringLiteral("hh:mm:ss")) || input != text.toUtf8(),
           "a time of day is what the toolkit reads");
    expect(!time.isValid() ||
               timeFromText(timeToText(time)) == QTime(time.hour(), time.minute(), time.second()),
           "a time of day that is written reads the same");
    const QDate date = dateFromText(bytes);
    expect(date == QDate::fromString(text, QStringLiteral("yyyy.MM.dd")) || input != text.toUtf8(),
           "a date is what the toolkit reads");
    expect(!date.isValid() || dateFromText(dateToText(date)) == date,
           "a date that is written reads the same");
    std::vector<int> days;
    parseWeeks(bytes, days);
    std::vector<int> again;
    parseWeeks(joinWeeks(days), again);
    expect(again == days, "days that are written read the same");
    expect(weeksOverlap(bytes, bytes), "days share themselves");
}

void tryTerminal(const QByteArray& input)
{
    constexpr int columns = 40;
    const QString text = QString::fromUtf8(input);
    expect(isHarmless(printable(text)), "a printable text is harmless");
    expect(isHarmless(escapedText(text)), "an escaped text is harmless");
    expect(isHarmless(escapedLines(text).remove(QLatin1Char('\n'))), "escaped lines are harmless");
    const QString piece = shortened(text, columns);
    expect(isHarmless(piece) && displayWidth(piece) <= columns, "a shortened text keeps its width");

    const QJsonObject object{{QStringLiteral("text"), text}};
    const QByteArray json = printableJson(QJsonDocument(object).toJson(QJsonDocument::Compact));
    expect(isHarmless(QString::fromUtf8(json)), "JSON for a terminal is harmless");
    expect(QJsonDocument::fromJson(json).object() == object, "and it means the same");
}

} // namespace trust
