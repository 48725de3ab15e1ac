#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QJsonObject>
#include <QString>

#include <map>

namespace trel::console {

/// The schedule and the clock that words about a screen are taken from. All of them have to live
/// on.
struct ScreenSource
{
    const std::map<int, trel::mediadispatch::PlayTask>& tasks;
    const std::map<int, trel::mediadispatch::ProgramIten>& programs;
    const trel::mediadispatch::MomentFormat& local;
};

/// The words and the JSON form of what is on screen. Rows, entries, plays and runs count from 1
/// here, as people count them.
class ScreenReport
{
public:
    explicit ScreenReport(const ScreenSource& source);

    /// "plays News", "black screen" or "last frame of News".
    QString pictureText(const trel::mediadispatch::ScreenState& state) const;
    /// The rule behind it, as a sentence.
    QString reasonText(const trel::mediadispatch::ScreenState& state) const;
    /// What keeps a plan that has the screen from playing anything.
    QString nothingText(const trel::mediadispatch::ScreenState& state) const;
    /// "task 1, row 2, plan 4"
    static QString planText(int taskId, int row, int planId);
    /// Printable.
    QString programName(int progIndex) const;
    /// "09:00:00" or, on another day than the other moment, "2024-01-31 09:00:00"; "further
    /// notice" where it never comes. Reads well behind "until".
    QString untilText(trel::mediadispatch::Instant until,
                      trel::mediadispatch::Instant besides) const;

    /// Without the sentence, so that long lists stay short.
    QJsonObject json(const trel::mediadispatch::ScreenState& state) const;
    /// ISO 8601, or null for a moment that never comes.
    QJsonValue jsonMoment(trel::mediadispatch::Instant moment) const;

    const ScreenSource& source() const { return m_source; }
    /// The plan that a state speaks of; none where it speaks of none.
    const trel::mediadispatch::PlayPlan* plan(const trel::mediadispatch::ScreenState& state) const;

private:
    const trel::mediadispatch::ProgramIten* program(int progIndex) const;
    QString leftText(const trel::mediadispatch::ScreenState& state) const;

    ScreenSource m_source;
};

/// A number that counts from 0, as people count; null for none.
QJsonValue jsonCount(qint64 number);

} // namespace trel::console
