#pragma once

#include "ScreenWords.h"
#include "Upcoming.h"

#include <QJsonObject>
#include <QString>

/// What is on screen at a moment and what comes next, for people and for programs.

QString nowText(trel::mediadispatch::Instant moment, const trel::mediadispatch::ScreenState& state,
                const Upcoming& next, const ScreenWords& words);
QJsonObject nowJson(trel::mediadispatch::Instant moment,
                    const trel::mediadispatch::ScreenState& state, const Upcoming& next,
                    const ScreenWords& words);
