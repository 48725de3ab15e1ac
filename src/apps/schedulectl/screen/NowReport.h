#pragma once

#include "ScreenReport.h"
#include "Upcoming.h"
#include "trelprogramschedule/effect/EffectStart.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace trel::console {

/// What is on screen at a moment and what comes next, for people and for programs; started tells
/// how that came into effect.

QString nowText(trel::mediadispatch::Instant moment, const trel::mediadispatch::ScreenState& state,
                const Upcoming& next,
                const std::optional<trel::mediadispatch::EffectStart>& started,
                const ScreenReport& words);
QJsonObject nowJson(trel::mediadispatch::Instant moment,
                    const trel::mediadispatch::ScreenState& state, const Upcoming& next,
                    const ScreenReport& words);

} // namespace trel::console
