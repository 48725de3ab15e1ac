#pragma once

#include "trelprogramschedule/history/ScheduleVersion.h"
#include "versions/ScheduleState.h"

#include <QCoreApplication>
#include <QString>
#include <QTimeZone>

#include <map>
#include <string>

namespace trel::desktop::versions {

/// What is told of versions, in the language in use. Plain texts.
class VersionWords
{
    Q_DECLARE_TR_FUNCTIONS(VersionWords)

public:
    /// "Version 12", "What is saved" or "What is in effect"
    static QString state(const ScheduleState& state);
    static QString version(qint64 number) { return tr("Version %1").arg(number); }
    /// When it was saved, by the clock of the zone.
    static QString saved(const trel::mediadispatch::ScheduleVersion& version,
                         const QTimeZone& zone);
    /// "new: 1, changed: 2 (tasks 1, 4, 7)"
    static QString change(const trel::mediadispatch::ScheduleVersion& version);
    /// What distinguishes a version in a list of choices: its number, when, and its name.
    static QString choice(const trel::mediadispatch::ScheduleVersion& version,
                          const QTimeZone& zone);
    /// How many differences there are.
    static QString count(int differences);
    /// The question before a version is brought back, given the programs that it needs and the
    /// catalog has not.
    static QString restoring(qint64 number, const std::map<int, std::string>& lost, bool isUnsaved);
};

} // namespace trel::desktop::versions
