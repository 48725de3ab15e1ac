#include "AsRunTotalsReport.h"

#include "CsvLine.h"
#include "common/DisplayText.h"
#include "text/Console.h"
#include "text/TextTable.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

QString lengthText(qint64 milliseconds)
{
    return durationText(static_cast<double>(milliseconds));
}

void writeText(Console& console, const QString& screen, const AsRunProgramTotals& programs)
{
    constexpr auto right = TextTable::Align::Right;
    TextTable table({{QStringLiteral("Index"), right},
                     {QStringLiteral("Planned"), right},
                     {QStringLiteral("Length"), right},
                     {QStringLiteral("Shown"), right},
                     {QStringLiteral("Length"), right},
                     {QStringLiteral("Replaced"), right},
                     {QStringLiteral("No player"), right},
                     {QStringLiteral("Program")}});
    for (const auto& [index, total] : programs) {
        table.addRow({QString::number(index), QString::number(total.plannedTimes),
                      lengthText(total.plannedLength), QString::number(total.shownTimes),
                      lengthText(total.shownLength), lengthText(total.stoodInLength),
                      lengthText(total.gapLength), printable(total.program)});
    }
    console.writeLine(QStringLiteral("Screen %1").arg(inQuotes(screen)));
    if (table.isEmpty()) {
        console.writeLine(QStringLiteral("No program was planned or on screen in this time."));
    } else {
        console.write(table.text());
    }
}

void writeCsv(Console& console, const QString& screen, const AsRunProgramTotals& programs)
{
    for (const auto& [index, total] : programs) {
        CsvLine line;
        line.addText(screen);
        line.addNumber(index);
        line.addText(total.program);
        for (const qint64 number : {total.plannedTimes, total.plannedLength, total.shownTimes,
                                    total.shownLength, total.stoodInLength, total.gapLength}) {
            line.addNumber(number);
        }
        console.writeExport(line.text());
    }
}

QJsonObject totalJson(const QString& screen, int index, const AsRunTotal& total)
{
    return {
        {QStringLiteral("screen"), screen},
        {QStringLiteral("index"), index},
        {QStringLiteral("program"), total.program},
        {QStringLiteral("plannedTimes"), total.plannedTimes},
        {QStringLiteral("plannedMs"), total.plannedLength},
        {QStringLiteral("shownTimes"), total.shownTimes},
        {QStringLiteral("shownMs"), total.shownLength},
        {QStringLiteral("replacedMs"), total.stoodInLength},
        {QStringLiteral("noPlayerMs"), total.gapLength},
    };
}

void writeJson(Console& console, const std::map<QString, AsRunProgramTotals>& screens,
               const QJsonObject& head)
{
    beginJsonList(console, head, "totals");
    bool isFirst = true;
    for (const auto& [screen, programs] : screens) {
        for (const auto& [index, total] : programs) {
            writeJsonElement(console, totalJson(screen, index, total), isFirst);
            isFirst = false;
        }
    }
    endJsonList(console, isFirst);
}

} // namespace

void writeTotals(Console& console, const std::map<QString, AsRunProgramTotals>& screens,
                 const QJsonObject& head, AsRunList::Form form)
{
    if (form == AsRunList::Form::Json) {
        writeJson(console, screens, head);
        return;
    }
    if (form == AsRunList::Form::Csv) {
        console.writeExport("screen,index,program,plannedTimes,plannedMs,shownTimes,shownMs,"
                            "replacedMs,noPlayerMs\n");
    }
    for (const auto& [screen, programs] : screens) {
        (form == AsRunList::Form::Csv ? writeCsv : writeText)(console, screen, programs);
    }
}

} // namespace trel::console
