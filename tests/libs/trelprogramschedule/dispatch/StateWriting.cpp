#include "StateWriting.h"

#include "ScheduleWriting.h"

#include <QDateTime>

using namespace trel::mediadispatch;

namespace {

QString pictureText(const ScreenState& state)
{
    switch (state.picture) {
    case ScreenPicture::Black:
        return QStringLiteral("black");
    case ScreenPicture::Playing:
        return QStringLiteral("plays");
    case ScreenPicture::Frozen:
        return QStringLiteral("frozen");
    }
    return {};
}

QString reasonText(const ScreenState& state)
{
    switch (state.reason) {
    case ScreenReason::NothingInEffect:
        return QStringLiteral("nothing in effect");
    case ScreenReason::NoPlanYet:
        return QStringLiteral("no plan yet");
    case ScreenReason::PlanPlays:
        return QStringLiteral("plan");
    case ScreenReason::PlanHasNothing:
        return QStringLiteral("plan has nothing");
    case ScreenReason::PlanRanOut:
        return QStringLiteral("plan ran out");
    case ScreenReason::PlanEnded:
        return QStringLiteral("plan ended");
    case ScreenReason::InsertionPlays:
        return QStringLiteral("insertion");
    case ScreenReason::InsertionHasNothing:
        return QStringLiteral("insertion has nothing");
    case ScreenReason::InsertionRanOut:
        return QStringLiteral("insertion ran out");
    }
    return {};
}

QString ownerText(const ScreenState& state)
{
    return state.taskId == -1 && state.planId == -1 && state.planRow == -1
               ? QString()
               : QStringLiteral(" %1.%2 row %3")
                     .arg(state.taskId)
                     .arg(state.planId)
                     .arg(state.planRow);
}

QString entryText(const ScreenState& state)
{
    return state.entry == -1 && state.progIndex == -1 && state.play == -1 && state.run == -1 &&
                   state.position == 0
               ? QString()
               : QStringLiteral(" %1 entry %2 play %3 run %4 at %5")
                     .arg(letterOf(state.progIndex))
                     .arg(state.entry)
                     .arg(state.play)
                     .arg(state.run)
                     .arg(state.position);
}

QString instantText(Instant instant, const QDateTime& near, const ScreenTimeline& timeline)
{
    if (instant == kNever) {
        return QStringLiteral("never");
    }
    if (instant == kEver) {
        return QStringLiteral("ever");
    }
    const QDateTime local = timeline.local(instant);
    QString text =
        local.date() == near.date() ? QString() : local.date().toString(QStringLiteral("MM.dd "));
    text += local.time().toString(local.time().msec() == 0 ? QStringLiteral("hh:mm:ss")
                                                           : QStringLiteral("hh:mm:ss.zzz"));
    if (local.offsetFromUtc() != near.offsetFromUtc()) {
        text += QStringLiteral("%1%2")
                    .arg(QLatin1String(local.offsetFromUtc() < 0 ? "" : "+"))
                    .arg(local.offsetFromUtc() / 3600.0);
    }
    return text;
}

} // namespace

QString lineOf(const ScreenState& state, const ScreenTimeline& timeline, Instant moment)
{
    const QDateTime near = timeline.local(moment);
    const QString until = instantText(state.until, near, timeline);
    const QString spanUntil = instantText(state.spanUntil, near, timeline);
    return QStringLiteral("%1%2%3, %4, %5 - %6%7")
        .arg(pictureText(state), entryText(state), ownerText(state), reasonText(state),
             instantText(state.since, near, timeline), until,
             until == spanUntil ? QString() : QStringLiteral(" - ") + spanUntil);
}

Instant momentFromText(const QString& text, const QTimeZone& zone)
{
    const QDate date = QDate::fromString(text.section(QLatin1Char(' '), 0, 0), kDateFormat);
    const QString clock = text.section(QLatin1Char(' '), 1, 1);
    const QTime time =
        QTime::fromString(clock, clock.contains(QLatin1Char('.')) ? QStringLiteral("hh:mm:ss.zzz")
                                                                  : QStringLiteral("hh:mm:ss"));
    Q_ASSERT(date.isValid() && time.isValid());
    const QString offset = text.section(QLatin1Char(' '), 2, 2);
    if (offset.isEmpty()) {
        return QDateTime(date, time, zone).toMSecsSinceEpoch();
    }
    return QDateTime(date, time, Qt::OffsetFromUTC, qRound(offset.toDouble() * 3600.0))
        .toMSecsSinceEpoch();
}

QString momentText(Instant moment, const QTimeZone& zone)
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(moment, zone);
    return local.toString(QStringLiteral("yyyy.MM.dd hh:mm:ss.zzz ")) +
           QString::number(local.offsetFromUtc() / 3600.0);
}
