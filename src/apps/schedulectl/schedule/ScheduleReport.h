#pragma once

#include "ScheduleCheck.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <map>

namespace trel::console {

/// A schedule and what a check found in it, for people and for programs. Rows count from 1 here, as
/// people count them.

/// At most so many columns wide where that is possible; 0 for any number.
QString tasksText(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                  const Catalogue& catalogue, int columns);
QJsonArray tasksJson(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                     const Catalogue& catalogue);

QString checkText(const ScheduleCheck& check,
                  const std::map<int, trel::mediadispatch::PlayTask>& tasks);
QJsonObject checkJson(const ScheduleCheck& check,
                      const std::map<int, trel::mediadispatch::PlayTask>& tasks);

/// "3 tasks with 7 plans"
QString sizeText(const std::map<int, trel::mediadispatch::PlayTask>& tasks);

} // namespace trel::console
