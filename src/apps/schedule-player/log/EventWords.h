#pragma once

#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelscreen/ScreenLog.h"

#include <QString>

namespace trel::player {

/// What keeps a program from being shown, as a sentence in English: "There is no such file." Fit
/// for a terminal.
QString faultSentence(const screen::DeckFault& fault);

/// An event on a screen as a line of the log, with the moment in front. Fit for a terminal.
QString eventLine(const screen::ScreenEvent& event, const mediadispatch::MomentFormat& local);

} // namespace trel::player
