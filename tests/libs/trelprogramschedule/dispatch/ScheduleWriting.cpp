#include "ScheduleWriting.h"

#include <QStringList>

using namespace trel::mediadispatch;

namespace {

constexpr int kFirstProgram = 1;

/// The text behind a key, as in "on=1,2".
bool readField(const QString& word, const QString& key, QString* value)
{
    if (!word.startsWith(key + QLatin1Char('='))) {
        return false;
    }
    *value = word.mid(key.size() + 1);
    return true;
}

struProgInfo entryFromText(QString word)
{
    struProgInfo entry;
    entry.isInvalid = word.startsWith(QLatin1Char('!'));
    if (entry.isInvalid) {
        word.remove(0, 1);
    }
    entry.progIndex = programOf(word.at(0));
    if (word.size() > 1) {
        entry.playCount = word.mid(2).toInt();
    }
    return entry;
}

QString textOf(const struProgInfo& entry)
{
    QString text = entry.isInvalid ? QStringLiteral("!") : QString();
    text += letterOf(entry.progIndex);
    return entry.playCount == 1 ? text : text + QStringLiteral("*%1").arg(entry.playCount);
}

void readWord(const QString& word, PlayPlan& plan)
{
    QString value;
    if (word == QStringLiteral("freeze")) {
        plan.endAction = FreezeCurrentFrame;
    } else if (word.startsWith(QLatin1Char('x'))) {
        plan.mode = FrequencyMode;
        plan.times = word.mid(1).toInt();
    } else if (readField(word, QStringLiteral("on"), &value)) {
        plan.weeks = value.toStdString();
    } else if (readField(word, QStringLiteral("id"), &value)) {
        plan.id = value.toInt();
    } else if (readField(word, QStringLiteral("mode"), &value)) {
        plan.mode = value.toInt();
    } else if (readField(word, QStringLiteral("times"), &value)) {
        plan.times = value.toInt();
    } else if (readField(word, QStringLiteral("action"), &value)) {
        plan.endAction = value.toInt();
    } else {
        plan.programs.push_back(entryFromText(word));
    }
}

ProgramIten program(QChar letter, double durationMs, ProgramKind kind = ProgramKind::Video)
{
    ProgramIten program;
    program.progIndex = programOf(letter);
    program.progName = QString(letter).toStdString();
    program.durationMs = durationMs;
    program.kind = kind;
    program.isNull = letter == QLatin1Char('N');
    return program;
}

} // namespace

PlayPlan planFromText(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    PlayPlan plan;
    plan.id = 1;
    plan.times = 1;
    plan.weeks = "0";
    const QStringList span = words.value(0).split(QLatin1Char('-'));
    plan.startTime = span.value(0).toStdString();
    plan.endTime = span.value(1).toStdString();
    for (int i = 1; i < words.size(); ++i) {
        readWord(words.at(i), plan);
    }
    return plan;
}

std::map<int, PlayTask> scheduleFromText(const QString& text)
{
    std::map<int, PlayTask> tasks;
    for (const QString& part : text.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        const QStringList lines = part.split(QLatin1Char('/'));
        const QStringList head = lines.first().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        PlayTask task;
        task.id = head.value(0).toInt();
        task.startDate = head.value(1).section(QLatin1Char('-'), 0, 0).toStdString();
        task.endDate = head.value(1).section(QLatin1Char('-'), 1, 1).toStdString();
        for (int i = 1; i < lines.size(); ++i) {
            PlayPlan plan = planFromText(lines.at(i));
            if (!lines.at(i).contains(QStringLiteral("id="))) {
                plan.id = i;
            }
            task.plans.push_back(plan);
        }
        tasks[task.id] = task;
    }
    return tasks;
}

QString textOf(const PlayPlan& plan)
{
    QStringList words = {QStringLiteral("%1-%2").arg(QString::fromStdString(plan.startTime),
                                                     QString::fromStdString(plan.endTime)),
                         QStringLiteral("id=%1").arg(plan.id),
                         QStringLiteral("mode=%1").arg(plan.mode),
                         QStringLiteral("times=%1").arg(plan.times),
                         QStringLiteral("action=%1").arg(plan.endAction),
                         QStringLiteral("on=%1").arg(QString::fromStdString(plan.weeks))};
    for (const struProgInfo& entry : plan.programs) {
        words += textOf(entry);
    }
    return words.join(QLatin1Char(' '));
}

QString textOf(const std::map<int, PlayTask>& tasks)
{
    QStringList parts;
    for (const auto& [id, task] : tasks) {
        QStringList lines = {
            QStringLiteral("%1 %2-%3")
                .arg(id)
                .arg(QString::fromStdString(task.startDate), QString::fromStdString(task.endDate))};
        for (const PlayPlan& plan : task.plans) {
            lines += textOf(plan);
        }
        parts += lines.join(QStringLiteral(" / "));
    }
    return parts.join(QStringLiteral(" | "));
}

std::map<int, ProgramIten> lettersCatalogue()
{
    std::map<int, ProgramIten> catalogue;
    for (const ProgramIten& program :
         {program(QLatin1Char('A'), 10'000.0), program(QLatin1Char('B'), 4000.0),
          program(QLatin1Char('C'), 2500.5), program(QLatin1Char('D'), 1.0004),
          program(QLatin1Char('E'), 0.4), program(QLatin1Char('H'), 3'600'000.0),
          program(QLatin1Char('I'), 5000.0, ProgramKind::Image),
          program(QLatin1Char('L'), -1.0, ProgramKind::Live), program(QLatin1Char('N'), 3000.0),
          program(QLatin1Char('U'), -1.0), program(QLatin1Char('Z'), 0.0)}) {
        catalogue[program.progIndex] = program;
    }
    return catalogue;
}

int programOf(QChar letter)
{
    return kFirstProgram + letter.unicode() - u'A';
}

QString letterOf(int progIndex)
{
    return QString(QChar(u'A' + progIndex - kFirstProgram));
}
