#pragma once

#include "ScreenReport.h"
#include "Upcoming.h"

#include <QJsonObject>
#include <QString>

namespace trel::console {

/// What is on screen at a moment and what comes next, for people and for programs.

QString nowText(trel::mediadispatch::Instant moment, const trel::mediadispatch::ScreenState& state,
                const Upcoming& next, const ScreenReport& words);
QJsonObject nowJson(trel::mediadispatch::Instant moment,
                    const trel::mediadispatch::ScreenState& state, const Upcoming& next,
                    const ScreenReport& words);

} // namespace trel::console
