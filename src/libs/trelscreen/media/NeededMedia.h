#pragma once

#include "trelprogramschedule/catalogue/ProgramContent.h"
#include "trelscreen/ScreenSchedule.h"

#include <QMetaType>
#include <QString>

#include <vector>

namespace trel::screen {

/// A file that a screen needs, by what it holds.
struct NeededFile
{
    mediadispatch::ProgramContent content;
    QString program; ///< The name of a program that plays it, for people.
};

/// Soonest first, each once.
using NeededFiles = std::vector<NeededFile>;

/// The programs that a schedule plays from a moment on, in the order in which they are on screen
/// first, whether their files are there or not: those of the next day by its plays, the others of
/// the tasks in effect by the days on which these begin. Takes as long as some thousand questions
/// to a timeline.
std::vector<int> programsNeeded(const ScreenSchedule& schedule, mediadispatch::Instant from);

/// Their files, as far as their contents are known.
NeededFiles filesNeeded(const ScreenSchedule& schedule,
                        const mediadispatch::ProgramContents& contents,
                        mediadispatch::Instant from);

} // namespace trel::screen

Q_DECLARE_METATYPE(trel::screen::NeededFiles)
