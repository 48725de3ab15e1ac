#include "SharedStore.h"

#include "FlightRecorder.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

#include <algorithm>

using namespace trel::mediadispatch;

namespace {

constexpr int kPatienceMSecs = 60000;
constexpr int kLongestLifeMSecs = 60;

QString readable(const Tasks& tasks)
{
    return QString::fromUtf8(scheduleToJson(tasks));
}

} // namespace

SharedStore::SharedStore(int desks)
    : m_database(m_folder.filePath(QStringLiteral("shared.db")))
{
    const QDir media(QStringLiteral(DEMONSTRATION "/media"));
    for (const QString& name : media.entryList(QDir::Files, QDir::Name)) {
        m_media.append(media.filePath(name));
    }
    const Output filled =
        console({QStringLiteral("import"), m_media.at(0), m_media.at(1), m_media.at(2)});
    if (filled.status != 0) {
        FlightRecorder::fail(QStringLiteral("the store could not be filled"));
    }
    m_programs = programs();
    for (int i = 0; i < desks; ++i) {
        m_desks.push_back(std::make_unique<DeskProcess>(m_database));
        refresh(*m_desks.back());
    }
}

void SharedStore::step(Dice& dice)
{
    DeskProcess& desk = *dice.of(m_desks);
    switch (dice.below(20)) {
    case 0:
    case 1:
        refresh(desk);
        break;
    case 2:
    case 3:
    case 4:
        save(desk);
        break;
    case 5:
    case 6: {
        DeskProcess& other = *dice.of(m_desks);
        if (&other != &desk) {
            saveAtOnce(desk, other);
        } else {
            save(desk);
        }
        break;
    }
    case 7:
        killInSave(dice, desk);
        break;
    case 8:
        importSchedule(dice, dice.oneIn(3));
        break;
    case 9:
        exportSchedule();
        break;
    case 10:
        importPrograms(dice, dice.oneIn(3));
        break;
    case 11:
        removeProgram(dice);
        break;
    default:
        edit(dice, desk);
        break;
    }
}

void SharedStore::edit(Dice& dice, DeskProcess& desk)
{
    const int number = dice.below(1000000);
    FlightRecorder::note(QStringLiteral("edit %1").arg(number));
    desk.ask(QStringLiteral("edit %1").arg(number));
}

void SharedStore::refresh(DeskProcess& desk)
{
    FlightRecorder::note(QStringLiteral("refresh"));
    const DeskProcess::Answer answer = desk.ask(QStringLiteral("refresh"));
    if (answer.tasks != m_tasks) {
        FlightRecorder::fail(QStringLiteral("an editor shows\n%1\ninstead of\n%2")
                                 .arg(readable(answer.tasks), readable(m_tasks)));
    }
    sees(desk);
    desk.base = answer.tasks;
}

void SharedStore::sees(DeskProcess& desk) const
{
    desk.seen = m_changes;
    desk.seenWrites = m_writes;
}

bool SharedStore::isCurrent(const DeskProcess& desk) const
{
    return desk.seen == m_changes && desk.seenWrites == m_writes;
}

void SharedStore::save(DeskProcess& desk)
{
    FlightRecorder::note(QStringLiteral("save"));
    takeSave(desk, desk.ask(QStringLiteral("save")), isCurrent(desk));
    compare("after a save");
}

void SharedStore::takeSave(DeskProcess& desk, const DeskProcess::Answer& answer, bool wasCurrent)
{
    const bool isSaved = answer.result == QLatin1String("saved");
    if (isSaved && desk.isEdited() && desk.seen != m_changes) {
        FlightRecorder::fail(QStringLiteral("a save undid what its editor has not seen"));
    }
    if (!isSaved && wasCurrent) {
        FlightRecorder::fail(QStringLiteral("a save was refused: ") + answer.result);
    }
    if (!isSaved) {
        return;
    }
    const bool sawAll = desk.seen == m_changes;
    if (desk.isEdited()) {
        changed(answer.tasks);
        desk.base = answer.tasks;
    } else {
        ++m_writes;
    }
    if (sawAll) {
        sees(desk);
    }
}

void SharedStore::saveAtOnce(DeskProcess& first, DeskProcess& second)
{
    FlightRecorder::note(QStringLiteral("two saves at once"));
    const bool areBothCurrent = isCurrent(first) && isCurrent(second);
    const bool areBothEdited = first.isEdited() && second.isEdited();
    first.send(QStringLiteral("save"));
    second.send(QStringLiteral("save"));
    const DeskProcess::Answer answers[] = {first.answer(), second.answer()};
    const bool isFirst = answers[0].result == QLatin1String("saved");
    const bool isSecond = answers[1].result == QLatin1String("saved");
    if (areBothEdited && ((isFirst && isSecond) || (areBothCurrent && !isFirst && !isSecond))) {
        FlightRecorder::fail(QStringLiteral("of two saves at once %1 came through: %2, %3")
                                 .arg(isFirst ? 2 : 0)
                                 .arg(answers[0].result, answers[1].result));
    }
    // Which came first is not told; a refusal may be due to the other one.
    takeSave(first, answers[0], isCurrent(first) && !isSecond);
    takeSave(second, answers[1], isCurrent(second) && !isFirst);
    compare("after two saves at once");
}

void SharedStore::killInSave(Dice& dice, DeskProcess& desk)
{
    FlightRecorder::note(QStringLiteral("kill in a save"));
    const bool mayBeSaved = desk.isEdited() && desk.seen == m_changes;
    const Tasks working = desk.tasks;
    ++m_writes;
    desk.send(QStringLiteral("save"));
    QThread::usleep(static_cast<unsigned long>(dice.below(kLongestLifeMSecs * 1000)));
    desk.killAndRestart();
    if (mayBeSaved) {
        takeEither(working);
    }
    compare("after a kill in a save");
    refresh(desk);
}

void SharedStore::takeEither(const Tasks& changedTasks)
{
    const Tasks now = stored();
    if (now == changedTasks) {
        changed(now);
    } else if (now != m_tasks) {
        FlightRecorder::fail(QStringLiteral("a part of a change stands in the store: ") +
                             readable(now));
    }
}

void SharedStore::changed(const Tasks& tasks)
{
    m_tasks = tasks;
    ++m_changes;
    ++m_writes;
}

void SharedStore::importSchedule(Dice& dice, bool isKilled)
{
    FlightRecorder::note(isKilled ? QStringLiteral("kill in import-schedule")
                                  : QStringLiteral("import-schedule"));
    const Tasks tasks = randomTasks(dice);
    const QString file = m_folder.filePath(QStringLiteral("in.json"));
    if (const Fault fault = writeScheduleFile(file, tasks)) {
        FlightRecorder::fail(englishSentence(fault));
    }
    const Tasks expected = tasksOfJson(scheduleToJson(tasks));
    const bool isSame = expected == m_tasks;
    const Output output = console({QStringLiteral("import-schedule"), file},
                                  isKilled ? dice.below(kLongestLifeMSecs) : -1);
    ++m_writes;
    if (output.status == 0 && !isSame) {
        changed(expected);
    } else if (isKilled && output.status != 0) {
        takeEither(expected);
    } else if (output.status != 0) {
        FlightRecorder::fail(QStringLiteral("import-schedule was refused"));
    }
    compare("after import-schedule");
}

void SharedStore::exportSchedule()
{
    FlightRecorder::note(QStringLiteral("export"));
    const QString file = m_folder.filePath(QStringLiteral("out.json"));
    const Output output = console({QStringLiteral("export"), file});
    QFile written(file);
    if (output.status != 0 || !written.open(QIODevice::ReadOnly) ||
        tasksOfJson(written.readAll()) != m_tasks) {
        FlightRecorder::fail(QStringLiteral("an export is not what stands in the store"));
    }
}

void SharedStore::importPrograms(Dice& dice, bool isKilled)
{
    const QString& file = dice.of(m_media);
    FlightRecorder::note(
        QStringLiteral("%1 %2").arg(QLatin1String(isKilled ? "kill in import" : "import"), file));
    console({QStringLiteral("import"), file}, isKilled ? dice.below(kLongestLifeMSecs) : -1);
    const QStringList now = programs();
    QStringList added = now;
    for (const QString& known : qAsConst(m_programs)) {
        if (added.removeAll(known) == 0) {
            FlightRecorder::fail(QStringLiteral("a program was lost: ") + known);
        }
    }
    const auto isOf = [&file](const QString& program) {
        return program.endsWith(QLatin1Char(' ') + file);
    };
    const bool wasKnown = std::any_of(m_programs.begin(), m_programs.end(), isOf);
    const bool isRight = added.isEmpty() ? (wasKnown || isKilled)
                                         : added.size() == 1 && isOf(added.first()) && !wasKnown;
    if (!isRight) {
        FlightRecorder::fail(QStringLiteral("after an import the catalog has ") +
                             now.join(QLatin1String("; ")));
    }
    for (const QString& program : qAsConst(added)) {
        if (m_removed.contains(program.section(QLatin1Char(' '), 0, 0))) {
            FlightRecorder::fail(QStringLiteral("an index was given out twice: ") + program);
        }
    }
    m_programs = now;
    compare("after an import");
}

void SharedStore::removeProgram(Dice& dice)
{
    FlightRecorder::note(QStringLiteral("remove-program"));
    if (m_programs.size() < 2) {
        return;
    }
    const QString gone = dice.of(m_programs);
    const QString index = gone.section(QLatin1Char(' '), 0, 0);
    console({QStringLiteral("remove-program"), index});
    m_programs.removeAll(gone);
    m_removed.insert(index);
    if (programs() != m_programs) {
        FlightRecorder::fail(QStringLiteral("the catalog is not what is left of it"));
    }
    compare("after a removal");
}

SharedStore::Output SharedStore::console(const QStringList& arguments, int killAfterMSecs) const
{
    QProcess process;
    process.start(QStringLiteral(SCHEDULECTL),
                  QStringList{QStringLiteral("--database"), m_database} + arguments);
    if (killAfterMSecs >= 0) {
        process.waitForStarted(kPatienceMSecs);
        process.waitForFinished(killAfterMSecs);
        process.kill();
    }
    if (!process.waitForFinished(kPatienceMSecs) && process.state() != QProcess::NotRunning) {
        FlightRecorder::fail(QStringLiteral("the console does not end"));
    }
    Output output;
    output.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    output.out = process.readAllStandardOutput();
    return output;
}

Tasks SharedStore::stored() const
{
    return tasksOfJson(console({QStringLiteral("export"), QStringLiteral("-")}).out);
}

/// Index and file of each program.
QStringList SharedStore::programs() const
{
    const Output output = console({QStringLiteral("programs"), QStringLiteral("--json")});
    const QJsonArray array =
        QJsonDocument::fromJson(output.out).object().value(QStringLiteral("programs")).toArray();
    QStringList list;
    for (const QJsonValue& value : array) {
        const QJsonObject program = value.toObject();
        list.append(QStringLiteral("%1 %2")
                        .arg(program.value(QStringLiteral("index")).toInt())
                        .arg(program.value(QStringLiteral("path")).toString()));
    }
    return list;
}

void SharedStore::compare(const char* when) const
{
    const Tasks now = stored();
    if (now != m_tasks) {
        FlightRecorder::fail(QStringLiteral("%1 the store holds\n%2\ninstead of\n%3")
                                 .arg(QLatin1String(when), readable(now), readable(m_tasks)));
    }
}

Tasks SharedStore::randomTasks(Dice& dice) const
{
    Tasks tasks;
    const int count = dice.between(1, 4);
    QDate day(2024, 3, 1);
    for (int id = 1; id <= count; ++id) {
        PlayTask task;
        task.id = id;
        task.startDate = day.toString(kDateFormat).toStdString();
        day = day.addDays(dice.below(20));
        task.endDate = day.toString(kDateFormat).toStdString();
        day = day.addDays(1);
        const int plans = dice.below(4);
        for (int plan = 1; plan <= plans; ++plan) {
            PlayPlan made;
            made.id = plan;
            made.mode = TimeMode;
            made.startTime = "08:00:00";
            made.endTime = "09:00:00";
            made.times = dice.between(1, 9);
            made.weeks = "0";
            struProgInfo entry;
            entry.progIndex = m_programs.first().section(QLatin1Char(' '), 0, 0).toInt();
            entry.progName = "Program";
            made.programs = {entry};
            task.plans.push_back(made);
        }
        tasks[id] = task;
    }
    return tasks;
}
