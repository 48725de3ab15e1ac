#include "EventWords.h"

#include "common/DisplayText.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;
using namespace trel::screen;

namespace trel::player {

namespace {

QString sentence(DeckTrouble trouble)
{
    switch (trouble) {
    case DeckTrouble::None:
        break;
    case DeckTrouble::Missing:
        return QStringLiteral("There is no such file.");
    case DeckTrouble::Refused:
        return QStringLiteral("It is no file that may be played.");
    case DeckTrouble::Unreadable:
        return QStringLiteral("It cannot be decoded.");
    case DeckTrouble::Unreachable:
        return QStringLiteral("The address does not answer.");
    case DeckTrouble::Stalled:
        return QStringLiteral("Nothing comes any more.");
    case DeckTrouble::BrokeOff:
        return QStringLiteral("It was over before its time.");
    }
    return QString();
}

QString placeText(const ScreenState& state)
{
    return state.taskId < 0
               ? QString()
               : QStringLiteral(" (task %1, row %2, plan %3%4)")
                     .arg(state.taskId)
                     .arg(state.planRow + 1)
                     .arg(state.planId)
                     .arg(state.isInserted() ? QStringLiteral(", inserted") : QString());
}

/// "plays “News”", "last frame of “News”" or "black screen".
QString playText(const ScreenPlay& play)
{
    const QString name = inQuotes(printable(play.name));
    switch (play.state.picture) {
    case ScreenPicture::Black:
        return QStringLiteral("black screen");
    case ScreenPicture::Playing:
        return QStringLiteral("plays %1").arg(name);
    case ScreenPicture::Frozen:
        break;
    }
    return QStringLiteral("last frame of %1").arg(name);
}

QString seconds(qint64 milliseconds)
{
    return QStringLiteral("%1 s").arg(static_cast<double>(milliseconds) / 1000.0, 0, 'f', 3);
}

/// "0.250 s ahead" or "0.250 s behind".
QString offText(qint64 ahead)
{
    return ahead < 0 ? QStringLiteral("%1 behind").arg(seconds(-ahead))
                     : QStringLiteral("%1 ahead").arg(seconds(ahead));
}

QString shownText(const ScreenEvent& event)
{
    const QString late = event.isSwitch ? QStringLiteral(", %1 ms late").arg(event.amount)
                                        : QStringLiteral(", joined after %1 ms").arg(event.amount);
    return playText(event.play) + placeText(event.play.state) + late;
}

QString whatText(const ScreenEvent& event)
{
    const QString name = inQuotes(printable(event.play.name));
    switch (event.kind) {
    case ScreenEvent::Kind::ScheduleTaken:
        return QStringLiteral("takes another schedule");
    case ScreenEvent::Kind::Shown:
        return shownText(event);
    case ScreenEvent::Kind::Left:
        return QStringLiteral("leaves %1").arg(playText(event.play));
    case ScreenEvent::Kind::Late:
        return QStringLiteral("%1 is not ready when its time has come").arg(name);
    case ScreenEvent::Kind::Fault:
        return QStringLiteral("cannot show %1: %2").arg(name, faultSentence(event.fault));
    case ScreenEvent::Kind::Recovered:
        return QStringLiteral("shows %1 again after %2 and %3")
            .arg(name, seconds(event.amount), counted(event.tries, QStringLiteral("attempt")));
    case ScreenEvent::Kind::CorrectedBySpeed:
        return QStringLiteral("%1 is %2 of the schedule, and is brought back by its speed")
            .arg(name, offText(event.amount));
    case ScreenEvent::Kind::Sought:
        return QStringLiteral("%1 is %2 of the schedule, and is sought")
            .arg(name, offText(event.amount));
    case ScreenEvent::Kind::ClockLeapt:
        return QStringLiteral("the clock was set: it is %1 of what it was")
            .arg(offText(event.amount));
    case ScreenEvent::Kind::Due:
        return QStringLiteral("has %1 on").arg(playText(event.play));
    case ScreenEvent::Kind::StoodIn:
        return QStringLiteral("%1 stands in for %2")
            .arg(event.standIn == StandIn::LastPicture ? QStringLiteral("its last picture")
                                                       : QStringLiteral("the stand-by picture"),
                 name);
    }
    return QString();
}

} // namespace

QString faultSentence(const DeckFault& fault)
{
    const QString words = printable(fault.words.simplified());
    return words.isEmpty() ? sentence(fault.trouble)
                           : QStringLiteral("%1 (%2)").arg(sentence(fault.trouble), words);
}

QString eventLine(const ScreenEvent& event, const MomentFormat& local)
{
    return QStringLiteral("%1  %2").arg(local.text(event.moment), whatText(event));
}

} // namespace trel::player
