#include "AsRunFixture.h"

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

QString timeText(Instant moment)
{
    const QTime time = QDateTime::fromMSecsSinceEpoch(moment, QTimeZone("Europe/Berlin")).time();
    return time.toString(time.msec() == 0 ? QStringLiteral("hh:mm:ss")
                                          : QStringLiteral("hh:mm:ss.zzz"));
}

QString pictureText(const AsRunRecord& record)
{
    switch (record.picture) {
    case ScreenPicture::Black:
        break;
    case ScreenPicture::Playing:
        return record.program;
    case ScreenPicture::Frozen:
        return record.program + QStringLiteral(" frozen");
    }
    return QStringLiteral("black");
}

QString shownText(AsRunShown shown)
{
    switch (shown) {
    case AsRunShown::AsPlanned:
        break;
    case AsRunShown::StandBy:
        return QStringLiteral(" by stand-by");
    case AsRunShown::LastFrame:
        return QStringLiteral(" by its last frame");
    case AsRunShown::FormerPicture:
        return QStringLiteral(" by the former picture");
    }
    return QString();
}

const char* outcomeText(AsRunOutcome outcome)
{
    switch (outcome) {
    case AsRunOutcome::Complete:
        return "complete";
    case AsRunOutcome::CutByInsertion:
        return "cut by insertion";
    case AsRunOutcome::CutBySchedule:
        return "cut by schedule";
    case AsRunOutcome::CutByStop:
        return "cut by stop";
    case AsRunOutcome::CutByPlayerEnd:
        return "cut by end";
    case AsRunOutcome::CutByKill:
        return "cut by kill";
    case AsRunOutcome::CutByFault:
        return "cut by fault";
    case AsRunOutcome::CutByClock:
        return "cut by clock";
    case AsRunOutcome::GoesOn:
        return "goes on";
    case AsRunOutcome::NothingReadYet:
        return "nothing read yet";
    case AsRunOutcome::MachineHadSlept:
        return "slept";
    default:
        return "?";
    }
}

QString wordsOf(const DeckFault& fault)
{
    return fault.trouble == DeckTrouble::None ? QString()
                                              : QString::number(static_cast<int>(fault.trouble));
}

} // namespace

AsRunFixture::AsRunFixture(const QDateTime& now, qint64 steady, std::optional<qint64> readyAfter)
    : screen(now, readyAfter)
    , slept(steady)
    , recorder([this] { return this->steady(); }, wordsOf,
               [this](const AsRunEntry& entry) { entries.push_back(entry); })
{
    screen.log.alsoTo = &recorder;
    screen.start = EffectStart();
    screen.beforeGiving = [this](const ScreenSchedule& schedule) { recorder.take(schedule); };
}

qint64 AsRunFixture::steady() const
{
    QElapsedTimer timer;
    timer.start();
    return screen.clock.elapsed(timer) + slept;
}

QStringList AsRunFixture::take()
{
    QStringList lines;
    for (; m_taken < entries.size(); ++m_taken) {
        lines += lineOf(entries[m_taken].record);
    }
    return lines;
}

void AsRunFixture::look()
{
    recorder.look(screen.conductor.status().play);
}

void AsRunFixture::sleep(qint64 milliseconds)
{
    slept += milliseconds;
    screen.clock.set(screen.clock.now().addMSecs(milliseconds));
}

QString AsRunFixture::lineOf(const AsRunRecord& record)
{
    const QString begin = timeText(record.begins);
    if (record.kind == AsRunKind::ScheduleTaken) {
        return QStringLiteral("%1 schedule %2").arg(begin).arg(record.revision);
    }
    const QString what = record.kind == AsRunKind::Gap
                             ? QStringLiteral("gap")
                             : pictureText(record) + shownText(record.shown);
    QString line = QStringLiteral("%1 +%2 %3 %4")
                       .arg(begin)
                       .arg(record.steadyEnd - record.steadyBegin)
                       .arg(what, QLatin1String(outcomeText(record.outcome)));
    if (record.late > 0) {
        line += QStringLiteral(", %1 late").arg(record.late);
    }
    return record.why.isEmpty() ? line : QStringLiteral("%1 (%2)").arg(line, record.why);
}
