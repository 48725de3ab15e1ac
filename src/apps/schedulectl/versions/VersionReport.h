#pragma once

#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QJsonObject>
#include <QString>

#include <optional>
#include <vector>

namespace trel::console {

/// A table, a line for each, at most so many columns wide where that is possible; 0 for any number.
/// Printable.
QString versionsText(const std::vector<trel::mediadispatch::ScheduleVersion>& versions,
                     const trel::mediadispatch::MomentFormat& local, int columns);
QJsonObject versionJson(const trel::mediadispatch::ScheduleVersion& version,
                        const trel::mediadispatch::MomentFormat& local);

/// "1 task new, 2 changed (1, 4, 7)"
QString changeText(const trel::mediadispatch::ScheduleVersion& version);

/// The number of a version as it is written; none for what is no number.
std::optional<qint64> versionNumber(const QString& word);

} // namespace trel::console
