#pragma once

#include "ScheduleCheck.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <map>

namespace trel::console {

/// A schedule and what a check found in it, for people and for programs. Rows count from 1 here, as
/// people count them.

QString tasksText(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                  const Catalogue& catalogue);
QJsonArray tasksJson(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                     const Catalogue& catalogue);

QString checkText(const ScheduleCheck& check,
                  const std::map<int, trel::mediadispatch::PlayTask>& tasks);
QJsonObject checkJson(const ScheduleCheck& check,
                      const std::map<int, trel::mediadispatch::PlayTask>& tasks);

/// "3 tasks with 7 plans"
QString sizeText(const std::map<int, trel::mediadispatch::PlayTask>& tasks);

} // namespace trel::console
