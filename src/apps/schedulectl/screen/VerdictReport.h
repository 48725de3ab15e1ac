#pragma once

#include "ProgramDay.h"
#include "ScreenReport.h"
#include "trelprogramschedule/dispatch/ProgramVerdict.h"

#include <QJsonObject>
#include <QString>

namespace trel::console {

/// A program at a moment, and what was found out about it.
struct VerdictSubject
{
    int progIndex;
    QString name; ///< As the catalogue or, failing that, a plan has it.
    trel::mediadispatch::Instant moment;
    const trel::mediadispatch::ProgramVerdict& verdict;
};

/// Why a program plays, or which rules keep it from the screen, for people and for programs.

QString verdictText(const VerdictSubject& subject, const ScreenReport& words);
QJsonObject verdictJson(const VerdictSubject& subject, const ScreenReport& words);

/// The same of a whole day.
QString dayText(const ProgramDay& day, const ScreenReport& words);
QJsonObject dayJson(const ProgramDay& day, const ScreenReport& words);

} // namespace trel::console
