#pragma once

#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <QString>

namespace trel::console {

// The words for what was on a screen. Texts are printable.

/// "plays News", "stand-by picture for News" or "no player".
QString shownText(const trel::mediadispatch::AsRunRecord& record);
/// "complete", "cut off by an insertion", with the reason where there is one.
QString outcomeText(const trel::mediadispatch::AsRunRecord& record);

// The same for machines, which never change.

QString kindName(trel::mediadispatch::AsRunKind kind);
QString pictureName(trel::mediadispatch::ScreenPicture picture);
QString shownName(trel::mediadispatch::AsRunShown shown);
QString outcomeName(trel::mediadispatch::AsRunOutcome outcome);
QString breakName(trel::mediadispatch::AsRunBreak::Kind kind);
QString deviationName(trel::mediadispatch::AsRunDeviation::Kind kind);

/// What is wrong at a place of a chain, or of the records against the timeline, as a sentence.
QString breakText(const trel::mediadispatch::AsRunBreak& place,
                  const trel::mediadispatch::MomentFormat& local);
QString deviationText(const trel::mediadispatch::AsRunDeviation& deviation,
                      const trel::mediadispatch::MomentFormat& local);

} // namespace trel::console
