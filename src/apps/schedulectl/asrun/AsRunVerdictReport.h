#pragma once

#include "trelprogramschedule/asrun/AsRunVerification.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <QJsonObject>

namespace trel::console {

class Console;

/// What became of verifying the records of a screen, in words.
void writeVerdict(Console& console, const trel::mediadispatch::AsRunVerdict& verdict,
                  const trel::mediadispatch::MomentFormat& local);
/// The same for machines.
QJsonObject verdictJson(const trel::mediadispatch::AsRunVerdict& verdict,
                        const trel::mediadispatch::MomentFormat& local);

} // namespace trel::console
