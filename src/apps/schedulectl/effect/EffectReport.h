#pragma once

#include "screen/ScreenReport.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/effect/EffectStart.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>
#include <set>

namespace trel::console {

/// What is in effect, for people and for programs.

/// "since 2026-11-22 08:00:00, save 12, started by schedulectl@studio"
QString sinceText(const trel::mediadispatch::EffectStart& started,
                  const trel::mediadispatch::MomentFormat& local);
/// Null while nothing is in effect.
QJsonValue startJson(const std::optional<trel::mediadispatch::EffectStart>& started,
                     const ScreenReport& words);

/// "from 08:00:12 to 08:00:30, for task 1, row 2, plan 4"
QString insertionText(const trel::mediadispatch::ScreenInsertion& insertion,
                      trel::mediadispatch::Instant besides, const ScreenReport& words);
QJsonObject insertionJson(const trel::mediadispatch::ScreenInsertion& insertion,
                          const ScreenReport& words);

/// "1, 2 and 4 more"; as many of them as stay readable.
QString taskIdsText(const std::set<int>& taskIds);
QJsonArray taskIdsJson(const std::set<int>& taskIds);

} // namespace trel::console
