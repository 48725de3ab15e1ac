#include "VerdictReport.h"

#include "catalogue/ProgramReport.h"
#include "common/DisplayText.h"
#include "common/PlanFaultText.h"
#include "schedule/ScheduleWords.h"
#include "service/DateText.h"

#include <QJsonArray>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

QString ruleName(VerdictRule rule)
{
    switch (rule) {
    case VerdictRule::Plays:
        return QStringLiteral("plays");
    case VerdictRule::TaskNotValid:
        return QStringLiteral("taskNotValid");
    case VerdictRule::OtherTask:
        return QStringLiteral("otherTask");
    case VerdictRule::OtherWeekday:
        return QStringLiteral("otherWeekday");
    case VerdictRule::SpanUnreadable:
        return QStringLiteral("spanUnreadable");
    case VerdictRule::SpanEmpty:
        return QStringLiteral("spanEmpty");
    case VerdictRule::SpanInverted:
        return QStringLiteral("spanInverted");
    case VerdictRule::NotYet:
        return QStringLiteral("notYet");
    case VerdictRule::Over:
        return QStringLiteral("over");
    case VerdictRule::EarlierRow:
        return QStringLiteral("earlierRow");
    case VerdictRule::Insertion:
        return QStringLiteral("insertion");
    case VerdictRule::EntryInvalid:
        return QStringLiteral("entryInvalid");
    case VerdictRule::NotInCatalogue:
        return QStringLiteral("notInCatalogue");
    case VerdictRule::FileGone:
        return QStringLiteral("fileGone");
    case VerdictRule::NoLength:
        return QStringLiteral("noLength");
    case VerdictRule::NoPlays:
        return QStringLiteral("noPlays");
    case VerdictRule::NoRuns:
        return QStringLiteral("noRuns");
    case VerdictRule::RanOut:
        return QStringLiteral("ranOut");
    case VerdictRule::NeverReached:
        return QStringLiteral("neverReached");
    case VerdictRule::NotItsTurn:
        break;
    }
    return QStringLiteral("notItsTurn");
}

/// The sentences about one plan.
class PlanSentence
{
public:
    PlanSentence(const PlanVerdict& verdict, const VerdictSubject& subject,
                 const ScreenReport& words)
        : m_verdict(verdict)
        , m_screen(subject.verdict.screen)
        , m_moment(subject.moment)
        , m_words(words)
        , m_task(words.source().tasks.at(verdict.taskId))
        , m_plan(m_task.plans[static_cast<std::size_t>(verdict.planRow)])
    {}

    QString text() const
    {
        switch (m_verdict.rule) {
        case VerdictRule::Plays:
            return QStringLiteral("It plays, as entry %1, until %2.")
                .arg(QString::number(m_verdict.entry + 1), until(m_screen.until));
        case VerdictRule::TaskNotValid:
            return periodSentence();
        case VerdictRule::OtherTask:
            return QStringLiteral("Task %1 has the day: it is valid too, and of a lower number.")
                .arg(m_verdict.otherTaskId);
        case VerdictRule::OtherWeekday:
            return namesAnyDay(m_plan.weeks)
                       ? QStringLiteral("The plan does not run on %1, only on %2.")
                             .arg(dayText(day().dayOfWeek()), daysText(m_plan.weeks))
                       : faultText(PlanFault::NoDay);
        case VerdictRule::SpanUnreadable:
        case VerdictRule::SpanEmpty:
        case VerdictRule::SpanInverted:
            return faultText(planFault(m_plan, m_verdict.end));
        case VerdictRule::NotYet:
            return QStringLiteral("The plan's span, %1, is still to come that day.").arg(span());
        case VerdictRule::Over:
            return QStringLiteral("The plan's span, %1, is over for the day.").arg(span());
        case VerdictRule::EarlierRow:
            return QStringLiteral("An earlier row claims this time too and takes precedence: %1.")
                .arg(otherPlan());
        case VerdictRule::Insertion:
            return QStringLiteral("An insertion for %1 is on screen.").arg(otherPlan());
        default:
            return entrySentence();
        }
    }

private:
    QString entrySentence() const
    {
        const QString entry = QString::number(m_verdict.entry + 1);
        switch (m_verdict.rule) {
        case VerdictRule::EntryInvalid:
            return QStringLiteral("Entry %1 has gone bad.").arg(entry);
        case VerdictRule::NotInCatalogue:
            return QStringLiteral("The catalog does not have the program of entry %1.").arg(entry);
        case VerdictRule::FileGone:
            return QStringLiteral("The file of the program is gone.");
        case VerdictRule::NoLength:
            return QStringLiteral("The program takes no time: no length of it is known.");
        case VerdictRule::NoPlays:
            return QStringLiteral("Entry %1 is to play less than once.").arg(entry);
        case VerdictRule::NoRuns:
            return faultText(PlanFault::RunsLessThanOnce);
        case VerdictRule::RanOut:
            return QStringLiteral("The list has run as set, %1, and does not play again until %2.")
                .arg(playsText(m_plan), until(m_screen.spanUntil));
        case VerdictRule::NeverReached:
            return QStringLiteral("Entry %1 is never reached: entry %2, %3, has no length of its "
                                  "own and holds the screen until %4.")
                .arg(entry, QString::number(m_verdict.otherEntry + 1),
                     m_words.programName(m_screen.progIndex), until(m_screen.spanUntil));
        default:
            return turnSentence();
        }
    }

    QString faultText(PlanFault fault) const
    {
        return hosts::PlanFaultText::sentence(fault, m_verdict.planId, start(), end());
    }

    QString periodSentence() const
    {
        const QDate first = dateFromText(m_task.startDate);
        const QDate last = dateFromText(m_task.endDate);
        const auto unreadable = [](const QString& name, const std::string& date) {
            return QStringLiteral("The task is never valid: its %1 date, %2, is not a date in the "
                                  "form %3.")
                .arg(name, inQuotes(QString::fromStdString(date)), kDateFormat);
        };
        if (!first.isValid()) {
            return unreadable(QStringLiteral("start"), m_task.startDate);
        }
        if (!last.isValid()) {
            return unreadable(QStringLiteral("end"), m_task.endDate);
        }
        return last < first ? QStringLiteral("The task is never valid: its end date, %1, lies "
                                             "before the start date, %2.")
                                  .arg(printable(m_task.endDate), printable(m_task.startDate))
                            : QStringLiteral("The task is not valid on %1; its period is %2.")
                                  .arg(day().toString(Qt::ISODate), periodText(m_task));
    }

    QString turnSentence() const
    {
        const QString playing = QStringLiteral("It is not its turn: entry %1, %2, plays")
                                    .arg(QString::number(m_verdict.otherEntry + 1),
                                         m_words.programName(m_screen.progIndex));
        return m_verdict.nextTurn == kNever
                   ? QStringLiteral("%1, and it does not come again before %2.")
                         .arg(playing, until(m_screen.spanUntil))
                   : QStringLiteral("%1. Its next turn is at %2.")
                         .arg(playing, until(m_verdict.nextTurn));
    }

    QDate day() const { return m_words.source().local.shownAt(m_moment).date(); }
    QString until(Instant moment) const { return m_words.untilText(moment, m_moment); }
    QString start() const { return printable(m_verdict.start); }
    QString end() const { return printable(m_verdict.end); }
    QString span() const { return QStringLiteral("%1 \u2013 %2").arg(start(), end()); }
    QString otherPlan() const
    {
        return ScreenReport::planText(m_verdict.otherTaskId, m_verdict.otherRow,
                                      m_verdict.otherPlanId);
    }

    const PlanVerdict& m_verdict;
    const ScreenState& m_screen;
    Instant m_moment;
    const ScreenReport& m_words;
    const PlayTask& m_task;
    const PlayPlan& m_plan;
};

QString standingText(const VerdictSubject& subject, const ScreenReport& words)
{
    const auto found = words.source().programs.find(subject.progIndex);
    if (found == words.source().programs.end()) {
        return QStringLiteral("It is no longer in the catalog.\n");
    }
    return found->second.isNull
               ? QStringLiteral("Its file is gone: %1\n").arg(programPath(found->second))
               : QString();
}

/// The midnight at which a day ends counts as its own.
QString endText(Instant moment, const ProgramDay& day, const MomentFormat& local)
{
    return local.shownAt(moment).date() == day.date ? local.text(moment, day.from)
                                                    : QStringLiteral("24:00:00");
}

QJsonObject planJson(const PlanVerdict& plan, const VerdictSubject& subject,
                     const ScreenReport& words)
{
    const auto orNull = [](int number) {
        return number < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(number);
    };
    return {
        {QStringLiteral("rule"), ruleName(plan.rule)},
        {QStringLiteral("why"), PlanSentence(plan, subject, words).text()},
        {QStringLiteral("isInsertion"), plan.isInsertion},
        {QStringLiteral("task"), plan.taskId},
        {QStringLiteral("row"), jsonCount(plan.planRow)},
        {QStringLiteral("plan"), plan.planId},
        {QStringLiteral("startTime"), QString::fromStdString(plan.start)},
        {QStringLiteral("endTime"), QString::fromStdString(plan.end)},
        {QStringLiteral("entry"), jsonCount(plan.entry)},
        {QStringLiteral("otherTask"), orNull(plan.otherTaskId)},
        {QStringLiteral("otherRow"), jsonCount(plan.otherRow)},
        {QStringLiteral("otherPlan"), orNull(plan.otherPlanId)},
        {QStringLiteral("otherEntry"), jsonCount(plan.otherEntry)},
        {QStringLiteral("nextTurn"), words.jsonMoment(plan.nextTurn)},
    };
}

QJsonObject programJson(const VerdictSubject& subject, const ScreenReport& words)
{
    const auto found = words.source().programs.find(subject.progIndex);
    const bool isKnown = found != words.source().programs.end();
    return {
        {QStringLiteral("index"), subject.progIndex},
        {QStringLiteral("name"), subject.name},
        {QStringLiteral("isInCatalogue"), isKnown},
        {QStringLiteral("isGone"), isKnown ? found->second.isNull : true},
    };
}

} // namespace

QString dayText(const ProgramDay& day, const ScreenReport& words)
{
    const MomentFormat& local = words.source().local;
    const QString program =
        QStringLiteral("Program %1, %2, ").arg(QString::number(day.progIndex), printable(day.name));
    const QString date = day.date.toString(Qt::ISODate);
    const ProgramVerdict none;
    const VerdictSubject standing{day.progIndex, day.name, 0, none};
    QString text = program + (day.stretches.empty() ? QStringLiteral("is not on screen on %1.\n")
                                                    : QStringLiteral("is on screen on %1:\n"))
                                 .arg(date);
    for (const ProgramDay::Stretch& stretch : day.stretches) {
        text += QStringLiteral("  %1 \u2013 %2, %3: %4%5\n")
                    .arg(local.text(stretch.from, day.from), endText(stretch.to, day, local),
                         counted(stretch.plays, QStringLiteral("play")),
                         stretch.isInserted ? QStringLiteral("insertion for ") : QString(),
                         ScreenReport::planText(stretch.taskId, stretch.planRow, stretch.planId));
    }
    text += standingText(standing, words);
    if (!day.isInAnyPlan) {
        return text + QStringLiteral("It is not in any plan.\n");
    }
    if (!day.reasons.empty()) {
        text += QStringLiteral("It is not shown by:\n");
    }
    for (const ProgramDay::Reason& reason : day.reasons) {
        const ProgramVerdict verdict{reason.screen, {}};
        const VerdictSubject subject{day.progIndex, day.name, reason.moment, verdict};
        text += QStringLiteral("  %1%2: %3\n")
                    .arg(ScreenReport::planText(reason.verdict.taskId, reason.verdict.planRow,
                                                reason.verdict.planId),
                         reason.isForTheDay
                             ? QString()
                             : QStringLiteral(", at %1").arg(local.text(reason.moment, day.from)),
                         PlanSentence(reason.verdict, subject, words).text());
    }
    return text;
}

QJsonObject dayJson(const ProgramDay& day, const ScreenReport& words)
{
    QJsonArray stretches;
    for (const ProgramDay::Stretch& stretch : day.stretches) {
        stretches.append(QJsonObject{
            {QStringLiteral("since"), words.jsonMoment(stretch.from)},
            {QStringLiteral("until"), words.jsonMoment(stretch.to)},
            {QStringLiteral("plays"), stretch.plays},
            {QStringLiteral("task"), stretch.taskId},
            {QStringLiteral("row"), jsonCount(stretch.planRow)},
            {QStringLiteral("plan"), stretch.planId},
            {QStringLiteral("isInsertion"), stretch.isInserted},
        });
    }
    QJsonArray plans;
    for (const ProgramDay::Reason& reason : day.reasons) {
        const ProgramVerdict verdict{reason.screen, {}};
        const VerdictSubject subject{day.progIndex, day.name, reason.moment, verdict};
        QJsonObject plan = planJson(reason.verdict, subject, words);
        plan.insert(QStringLiteral("moment"), reason.isForTheDay ? QJsonValue(QJsonValue::Null)
                                                                 : words.jsonMoment(reason.moment));
        plans.append(plan);
    }
    const ProgramVerdict none;
    return {
        {QStringLiteral("date"), day.date.toString(Qt::ISODate)},
        {QStringLiteral("program"), programJson({day.progIndex, day.name, 0, none}, words)},
        {QStringLiteral("onScreen"), stretches},
        {QStringLiteral("plans"), plans},
    };
}

QString verdictText(const VerdictSubject& subject, const ScreenReport& words)
{
    const ScreenState& screen = subject.verdict.screen;
    const bool plays = subject.verdict.plays();
    QString text = QStringLiteral("Program %1, %2, %3 at %4.\n")
                       .arg(QString::number(subject.progIndex), printable(subject.name),
                            plays ? QStringLiteral("plays") : QStringLiteral("does not play"),
                            words.source().local.text(subject.moment)) +
                   standingText(subject, words);
    if (subject.verdict.plans.empty()) {
        text += QStringLiteral("It is not in any plan.\n");
    }
    for (const PlanVerdict& plan : subject.verdict.plans) {
        text += QStringLiteral("  %1%2: %3\n")
                    .arg(plan.isInsertion ? QStringLiteral("insertion for ") : QString(),
                         ScreenReport::planText(plan.taskId, plan.planRow, plan.planId),
                         PlanSentence(plan, subject, words).text());
    }
    return text +
           QStringLiteral("%1: %2 until %3. %4\n")
               .arg(plays ? QStringLiteral("On screen") : QStringLiteral("On screen instead"),
                    words.pictureText(screen), words.untilText(screen.until, subject.moment),
                    words.reasonText(screen));
}

QJsonObject verdictJson(const VerdictSubject& subject, const ScreenReport& words)
{
    QJsonArray plans;
    for (const PlanVerdict& plan : subject.verdict.plans) {
        plans.append(planJson(plan, subject, words));
    }
    QJsonObject screen = words.json(subject.verdict.screen);
    screen.insert(QStringLiteral("why"), words.reasonText(subject.verdict.screen));
    return {
        {QStringLiteral("moment"), words.jsonMoment(subject.moment)},
        {QStringLiteral("program"), programJson(subject, words)},
        {QStringLiteral("plays"), subject.verdict.plays()},
        {QStringLiteral("plans"), plans},
        {QStringLiteral("now"), screen},
    };
}

} // namespace trel::console
