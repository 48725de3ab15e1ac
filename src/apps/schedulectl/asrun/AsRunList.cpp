#include "AsRunList.h"

#include "AsRunWords.h"
#include "CsvLine.h"
#include "common/DisplayText.h"
#include "screen/ScreenReport.h"
#include "text/Console.h"

#include <QJsonDocument>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr int kMomentWidth = 23; ///< With milliseconds.
constexpr int kLateWidth = 8;

QString isoText(const MomentFormat& local, Instant moment)
{
    return isDated(moment) ? local.isoText(moment) : QString();
}

/// From 1, as people count; nothing for none.
QString countText(qint64 number)
{
    return number < 0 ? QString() : QString::number(number + 1);
}

QString numberText(qint64 number)
{
    return number < 0 ? QString() : QString::number(number);
}

QJsonValue jsonNumber(qint64 number)
{
    return number < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(number);
}

} // namespace

AsRunList::AsRunList(Console& console, const MomentFormat& local, Form form)
    : m_console(console)
    , m_local(local)
    , m_form(form)
{}

void AsRunList::begin(const QJsonObject& head)
{
    switch (m_form) {
    case Form::Json:
        beginJsonList(m_console, head, "records");
        break;
    case Form::Csv:
        m_console.writeExport("screen,number,kind,from,to,lengthMs,program,index,picture,shown,"
                              "task,plan,row,entry,play,run,insertion,save,plannedFrom,plannedTo,"
                              "lateMs,outcome,why,hash\n");
        break;
    case Form::Text:
        break;
    }
}

void AsRunList::write(const QString& screen, const AsRunRecord& record)
{
    switch (m_form) {
    case Form::Json:
        writeJson(screen, record);
        break;
    case Form::Csv:
        writeCsv(screen, record);
        break;
    case Form::Text:
        writeText(screen, record);
        break;
    }
    m_screen = screen;
    m_isFirst = false;
}

void AsRunList::end()
{
    if (m_form == Form::Json) {
        endJsonList(m_console, m_isFirst);
    } else if (m_form == Form::Text && m_isFirst) {
        m_console.writeLine(QStringLiteral("There is no record of this time."));
    }
}

void AsRunList::writeText(const QString& screen, const AsRunRecord& record)
{
    if (m_isFirst || screen != m_screen) {
        m_console.writeLine(QStringLiteral("Screen %1").arg(inQuotes(screen)));
        m_console.writeLine(
            QStringLiteral("From").leftJustified(kMomentWidth) + QStringLiteral("  ") +
            QStringLiteral("To").leftJustified(kMomentWidth) + QStringLiteral("  ") +
            QStringLiteral("Late").rightJustified(kLateWidth) + QStringLiteral("  On screen"));
    }
    const QString to = record.kind == AsRunKind::ScheduleTaken
                           ? QString()
                           : m_local.text(record.ends, record.begins);
    const QString late = record.late == 0 ? QString() : QStringLiteral("%1 ms").arg(record.late);
    const QString outcome = outcomeText(record);
    const bool isPlain = record.outcome == AsRunOutcome::Complete && record.why.isEmpty();
    QString line = m_local.text(record.begins).leftJustified(kMomentWidth) + QStringLiteral("  ") +
                   to.leftJustified(kMomentWidth) + QStringLiteral("  ") +
                   late.rightJustified(kLateWidth) + QStringLiteral("  ") + shownText(record);
    if (!isPlain && !outcome.isEmpty()) {
        line += QStringLiteral(" (%1)").arg(outcome);
    }
    m_console.writeLine(line);
}

void AsRunList::writeCsv(const QString& screen, const AsRunRecord& record)
{
    const bool isPicture = record.kind == AsRunKind::Picture;
    CsvLine line;
    line.addText(screen);
    line.addNumber(record.number);
    line.addWord(kindName(record.kind));
    line.addWord(isoText(m_local, record.begins));
    line.addWord(isoText(m_local, record.ends));
    line.addNumber(record.ends - record.begins);
    line.addText(record.program);
    line.addWord(numberText(record.progIndex));
    line.addWord(isPicture ? pictureName(record.picture) : QString());
    line.addWord(isPicture ? shownName(record.shown) : QString());
    line.addWord(numberText(record.taskId));
    line.addWord(numberText(record.planId));
    line.addWord(countText(record.planRow));
    line.addWord(countText(record.entry));
    line.addWord(countText(record.play));
    line.addWord(countText(record.run));
    line.addWord(record.insertion == 0 ? QString() : QString::number(record.insertion));
    line.addNumber(record.revision);
    line.addWord(isPicture ? isoText(m_local, record.plannedBegin) : QString());
    line.addWord(isPicture ? isoText(m_local, record.plannedEnd) : QString());
    line.addNumber(record.late);
    line.addWord(record.kind == AsRunKind::ScheduleTaken ? QString() : outcomeName(record.outcome));
    line.addText(record.why);
    line.addWord(QString::fromLatin1(record.hash.toHex()));
    m_console.writeExport(line.text());
}

void AsRunList::writeJson(const QString& screen, const AsRunRecord& record)
{
    const bool isPicture = record.kind == AsRunKind::Picture;
    const QJsonObject object{
        {QStringLiteral("screen"), screen},
        {QStringLiteral("number"), record.number},
        {QStringLiteral("kind"), kindName(record.kind)},
        {QStringLiteral("from"), asRunMoment(m_local, record.begins)},
        {QStringLiteral("to"), asRunMoment(m_local, record.ends)},
        {QStringLiteral("steadyFromMs"), record.steadyBegin},
        {QStringLiteral("steadyToMs"), record.steadyEnd},
        {QStringLiteral("boot"), QString::fromLatin1(record.boot.toHex())},
        {QStringLiteral("program"), record.program},
        {QStringLiteral("index"), jsonNumber(record.progIndex)},
        {QStringLiteral("picture"),
         isPicture ? QJsonValue(pictureName(record.picture)) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("shown"),
         isPicture ? QJsonValue(shownName(record.shown)) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("task"), jsonNumber(record.taskId)},
        {QStringLiteral("plan"), jsonNumber(record.planId)},
        {QStringLiteral("row"), jsonCount(record.planRow)},
        {QStringLiteral("entry"), jsonCount(record.entry)},
        {QStringLiteral("play"), jsonCount(record.play)},
        {QStringLiteral("run"), jsonCount(record.run)},
        {QStringLiteral("insertion"),
         record.insertion == 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(record.insertion)},
        {QStringLiteral("save"), record.revision},
        {QStringLiteral("schedule"), QString::fromLatin1(record.schedule.toHex())},
        {QStringLiteral("plannedFrom"),
         isPicture ? asRunMoment(m_local, record.plannedBegin) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("plannedTo"),
         isPicture ? asRunMoment(m_local, record.plannedEnd) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("lateMs"), record.late},
        {QStringLiteral("outcome"), record.kind == AsRunKind::ScheduleTaken
                                        ? QJsonValue(QJsonValue::Null)
                                        : QJsonValue(outcomeName(record.outcome))},
        {QStringLiteral("why"), record.why},
        {QStringLiteral("hash"), QString::fromLatin1(record.hash.toHex())},
    };
    writeJsonElement(m_console, object, m_isFirst);
}

void beginJsonList(Console& console, const QJsonObject& head, const char* name)
{
    QByteArray text = QJsonDocument(head).toJson(QJsonDocument::Indented);
    text.truncate(text.lastIndexOf("\n}"));
    console.writeJson(text + ",\n    \"" + name + "\": [");
}

void writeJsonElement(Console& console, const QJsonObject& element, bool isFirst)
{
    console.writeJson((isFirst ? QByteArray("\n        ") : QByteArray(",\n        ")) +
                      QJsonDocument(element).toJson(QJsonDocument::Compact));
}

void endJsonList(Console& console, bool isEmpty)
{
    console.writeJson(isEmpty ? QByteArray("]\n}\n") : QByteArray("\n    ]\n}\n"));
}

QJsonValue asRunMoment(const MomentFormat& local, Instant moment)
{
    return isDated(moment) ? QJsonValue(local.isoText(moment)) : QJsonValue(QJsonValue::Null);
}

} // namespace trel::console
