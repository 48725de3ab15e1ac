#pragma once

#include "trelscreen/ScreenLog.h"

#include <QStringList>

#include <utility>
#include <vector>

/// Keeps what happened on a screen, to be read as lines such as "switch A +0" or "fault A missing".
class RecordedLog : public trel::screen::ScreenLog
{
public:
    void note(const trel::screen::ScreenEvent& event) override
    {
        events.push_back(event);
        if (alsoTo != nullptr) {
            alsoTo->note(event);
        }
    }

    /// Since the last call, but for Due and StoodIn, which go with another line.
    QStringList take()
    {
        QStringList lines;
        for (const trel::screen::ScreenEvent& event : std::exchange(events, {})) {
            if (event.kind != trel::screen::ScreenEvent::Kind::Due &&
                event.kind != trel::screen::ScreenEvent::Kind::StoodIn) {
                lines += lineOf(event);
            }
        }
        return lines;
    }
    /// As take(), of one kind alone.
    QStringList take(trel::screen::ScreenEvent::Kind kind)
    {
        QStringList lines;
        for (const trel::screen::ScreenEvent& event : std::exchange(events, {})) {
            if (event.kind == kind) {
                lines += lineOf(event);
            }
        }
        return lines;
    }

    std::vector<trel::screen::ScreenEvent> events;
    trel::screen::ScreenLog* alsoTo = nullptr;

private:
    static QString lineOf(const trel::screen::ScreenEvent& event)
    {
        using Kind = trel::screen::ScreenEvent::Kind;
        const QString what = event.play.isBlack()    ? QStringLiteral("black")
                             : event.play.isFrozen() ? event.play.name + QStringLiteral(" frozen")
                                                     : event.play.name;
        const QString amount =
            (event.amount < 0 ? QString() : QStringLiteral("+")) + QString::number(event.amount);
        switch (event.kind) {
        case Kind::ScheduleTaken:
            return QStringLiteral("schedule");
        case Kind::Shown:
            return QStringLiteral("%1 %2 %3")
                .arg(QLatin1String(event.isSwitch ? "switch" : "shown"), what, amount);
        case Kind::Left:
            return QStringLiteral("left %1").arg(what);
        case Kind::Late:
            return QStringLiteral("late %1").arg(what);
        case Kind::Fault:
            return QStringLiteral("fault %1 %2").arg(what, troubleText(event.fault.trouble));
        case Kind::Recovered:
            return QStringLiteral("recovered %1 %2 %3 tries %4")
                .arg(what, troubleText(event.fault.trouble), amount)
                .arg(event.tries);
        case Kind::CorrectedBySpeed:
            return QStringLiteral("speed %1 %2").arg(what, amount);
        case Kind::Sought:
            return QStringLiteral("sought %1 %2").arg(what, amount);
        case Kind::ClockLeapt:
            return QStringLiteral("leapt %1").arg(amount);
        case Kind::Due:
            return QStringLiteral("due %1").arg(what);
        case Kind::StoodIn:
            return QStringLiteral("instead of %1 %2")
                .arg(what, QLatin1String(event.standIn == trel::screen::StandIn::LastPicture
                                             ? "its last picture"
                                             : "stand-by"));
        }
        return {};
    }

    static QString troubleText(trel::screen::DeckTrouble trouble)
    {
        using trel::screen::DeckTrouble;
        switch (trouble) {
        case DeckTrouble::None:
            return QStringLiteral("none");
        case DeckTrouble::Missing:
            return QStringLiteral("missing");
        case DeckTrouble::Refused:
            return QStringLiteral("refused");
        case DeckTrouble::Unreadable:
            return QStringLiteral("unreadable");
        case DeckTrouble::Unreachable:
            return QStringLiteral("unreachable");
        case DeckTrouble::Stalled:
            return QStringLiteral("stalled");
        case DeckTrouble::BrokeOff:
            return QStringLiteral("broke off");
        }
        return {};
    }
};
