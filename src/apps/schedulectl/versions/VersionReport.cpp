#include "VersionReport.h"

#include "common/DisplayText.h"
#include "text/TextTable.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QStringList>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

QString nameText(const ScheduleVersion& version)
{
    if (version.note.isEmpty()) {
        return printable(version.name);
    }
    return QStringLiteral("%1 (%2)")
        .arg(printable(version.name), printable(version.note))
        .trimmed();
}

} // namespace

QString changeText(const ScheduleVersion& version)
{
    const VersionChange& change = version.change;
    QStringList parts;
    const auto add = [&parts](int number, const char* what) {
        if (number > 0) {
            parts.append(QStringLiteral("%1 %2").arg(counted(number, QStringLiteral("task")),
                                                     QLatin1String(what)));
        }
    };
    add(change.added, "new");
    add(change.changed, "changed");
    add(change.removed, "gone");
    if (parts.isEmpty()) {
        return version.saved == 0 ? QString() : QStringLiteral("nothing of note");
    }
    QStringList ids;
    for (const int id : change.taskIds) {
        ids.append(QString::number(id));
    }
    const bool areMore =
        change.added + change.changed + change.removed > static_cast<int>(change.taskIds.size());
    QString text = QStringLiteral("%1 (%2%3)")
                       .arg(parts.join(QLatin1String(", ")), ids.join(QLatin1String(", ")),
                            areMore ? QStringLiteral(", \u2026") : QString());
    if (version.restored != kNoVersion) {
        text += QStringLiteral(", version %1 restored").arg(version.restored);
    }
    return text;
}

QString versionsText(const std::vector<ScheduleVersion>& versions, const MomentFormat& local,
                     int columns)
{
    TextTable table({{QStringLiteral("Number"), TextTable::Align::Right},
                     {QStringLiteral("Saved")},
                     {QStringLiteral("By")},
                     {QStringLiteral("Changes")},
                     {QStringLiteral("Name")}});
    for (const ScheduleVersion& version : versions) {
        table.addRow({QString::number(version.number),
                      version.saved == 0 ? QStringLiteral("not known") : local.text(version.saved),
                      printable(version.by), changeText(version), nameText(version)});
    }
    return table.text(0, columns);
}

QJsonObject versionJson(const ScheduleVersion& version, const MomentFormat& local)
{
    QJsonArray ids;
    for (const int id : version.change.taskIds) {
        ids.append(id);
    }
    return {{QStringLiteral("number"), version.number},
            {QStringLiteral("saved"),
             version.saved == 0 ? QJsonValue() : QJsonValue(local.isoText(version.saved))},
            {QStringLiteral("savedBy"), version.by},
            {QStringLiteral("tasksAdded"), version.change.added},
            {QStringLiteral("tasksChanged"), version.change.changed},
            {QStringLiteral("tasksRemoved"), version.change.removed},
            {QStringLiteral("taskIds"), ids},
            {QStringLiteral("restored"),
             version.restored == kNoVersion ? QJsonValue() : QJsonValue(version.restored)},
            {QStringLiteral("name"), version.name},
            {QStringLiteral("note"), version.note},
            {QStringLiteral("bytes"), version.bytes}};
}

std::optional<qint64> versionNumber(const QString& word)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]{1,18}$"));
    return form.match(word).hasMatch() ? std::make_optional(word.toLongLong()) : std::nullopt;
}

} // namespace trel::console
