#include "AsRunList.h"
#include "AsRunTotalsReport.h"
#include "AsRunVerdictReport.h"
#include "Commands.h"
#include "clock/Clock.h"
#include "common/DefaultDatabase.h"
#include "common/DisplayText.h"
#include "screen/PlayerRecords.h"
#include "screen/StoredScreen.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QJsonArray>

#include <algorithm>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr qint64 kMillisecondsOfDay = 86'400'000;
constexpr int kMostDays = 36'500;

/// What is asked of the records.
struct AsRunQuery
{
    QString screen; ///< Empty for all.
    QString program;
    Instant from = kEver;
    Instant to = kNever;
    bool hasTimes = false;
};

/// The database of a command, with what it was asked.
class AsRunWork
{
public:
    AsRunWork(const Invocation& invocation, Console& console, const MomentFormat& local)
        : m_invocation(invocation)
        , m_console(console)
        , m_local(local)
    {}

    ExitStatus run();

private:
    bool understand();
    bool understandOptions();
    bool understandTimes();
    bool chooseScreens();
    ExitStatus list();
    ExitStatus total();
    ExitStatus verify();
    ExitStatus forget();
    bool isChosen(int progIndex, const QString& program) const;
    AsRunList::Form form() const;
    QJsonObject head() const;
    ExitStatus refuse(const StoreResult& result);
    bool misuse(const QString& sentence);

    const Invocation& m_invocation;
    Console& m_console;
    const MomentFormat& m_local;
    AsRunQuery m_query;
    int m_days = 0;
    AsRunDatabase m_database;
    std::vector<AsRunScreen> m_screens;
};

bool AsRunWork::misuse(const QString& sentence)
{
    m_console.tell(sentence);
    return false;
}

bool AsRunWork::understandOptions()
{
    const bool isTotal = m_invocation.has("--totals");
    const bool isVerified = m_invocation.has("--verify");
    const bool isForgotten = m_invocation.has("--keep");
    if (int(isTotal) + int(isVerified) + int(isForgotten) > 1) {
        return misuse(QStringLiteral(
            "Of \"--totals\", \"--verify\" and \"--keep\" only one can be given at a time."));
    }
    if (m_invocation.json && m_invocation.has("--csv")) {
        return misuse(QStringLiteral("\"--json\" and \"--csv\" do not go together."));
    }
    if ((isVerified || isForgotten) &&
        (m_invocation.has("--csv") || m_invocation.has("--program"))) {
        return misuse(QStringLiteral("\"%1\" does not go together with \"--csv\" or \"--program\".")
                          .arg(isVerified ? QStringLiteral("--verify") : QStringLiteral("--keep")));
    }
    if (isForgotten && (m_invocation.has("--from") || m_invocation.has("--to"))) {
        return misuse(
            QStringLiteral("\"--keep\" does not go together with \"--from\" and \"--to\"."));
    }
    bool isNumber = true;
    m_days = isForgotten ? m_invocation.value("--keep").toInt(&isNumber) : 0;
    if (isForgotten && (!isNumber || m_days < 1 || m_days > kMostDays)) {
        return misuse(QStringLiteral("\"--keep\" takes a number of days, from 1 to %1, not %2.")
                          .arg(QString::number(kMostDays), inQuotes(m_invocation.value("--keep"))));
    }
    return true;
}

bool AsRunWork::understandTimes()
{
    const auto read = [this](const char* option, Instant& moment) {
        if (!m_invocation.has(option)) {
            return true;
        }
        const auto given =
            momentOption(m_invocation, option, m_local, DateAlone::StartOfDay, m_console);
        moment = given.value_or(moment);
        return given.has_value();
    };
    if (!read("--from", m_query.from) || !read("--to", m_query.to)) {
        return false;
    }
    m_query.hasTimes = m_query.from != kEver || m_query.to != kNever;
    if (m_query.to <= m_query.from) {
        return misuse(QStringLiteral("The moment of \"--to\", %1, does not lie behind that of "
                                     "\"--from\", %2.")
                          .arg(m_local.text(m_query.to), m_local.text(m_query.from)));
    }
    return true;
}

bool AsRunWork::understand()
{
    m_query.screen = m_invocation.value("--screen");
    m_query.program = m_invocation.value("--program");
    return understandOptions() && understandTimes();
}

ExitStatus AsRunWork::refuse(const StoreResult& result)
{
    const bool isMissing = result.problem == StoreProblem::FileMissing;
    m_console.tell(isMissing ? QStringLiteral("%1 A player makes it when it shows the schedule.")
                                   .arg(englishText(result))
                             : englishText(result));
    if (m_invocation.json) {
        m_console.writeJson(refusalJson(result));
    }
    return Refused;
}

bool AsRunWork::chooseScreens()
{
    if (m_query.screen.isEmpty()) {
        return true;
    }
    QStringList names;
    for (const AsRunScreen& screen : m_screens) {
        names.append(inQuotes(screen.name));
    }
    const auto isOther = [this](const AsRunScreen& screen) {
        return screen.name != m_query.screen;
    };
    m_screens.erase(std::remove_if(m_screens.begin(), m_screens.end(), isOther), m_screens.end());
    if (!m_screens.empty()) {
        return true;
    }
    m_console.tell(names.isEmpty()
                       ? QStringLiteral("There are no records of any screen.")
                       : QStringLiteral("There are no records of a screen %1, but of %2.")
                             .arg(inQuotes(m_query.screen), names.join(QStringLiteral(", "))));
    return false;
}

ExitStatus AsRunWork::run()
{
    if (!understand()) {
        return Misused;
    }
    if (refusesServer(m_invocation, m_console, QStringLiteral("Players keep what was on screen"))) {
        return Refused;
    }
    const QString store =
        m_invocation.database.isEmpty() ? defaultDatabasePath() : m_invocation.database;
    const bool isChange = m_invocation.has("--keep");
    StoreResult result =
        m_database.open(AsRunDatabase::pathFor(store),
                        isChange ? StoreOpenMode::MustExist : StoreOpenMode::ReadOnly);
    if (result) {
        result = m_database.screens(m_screens);
    }
    if (!result) {
        return refuse(result);
    }
    if (!chooseScreens()) {
        return Refused;
    }
    return isChange                       ? forget()
           : m_invocation.has("--verify") ? verify()
           : m_invocation.has("--totals") ? total()
                                          : list();
}

AsRunList::Form AsRunWork::form() const
{
    return m_invocation.json           ? AsRunList::Form::Json
           : m_invocation.has("--csv") ? AsRunList::Form::Csv
                                       : AsRunList::Form::Text;
}

QJsonObject AsRunWork::head() const
{
    return {{QStringLiteral("database"), m_database.path()},
            {QStringLiteral("from"), asRunMoment(m_local, m_query.from)},
            {QStringLiteral("to"), asRunMoment(m_local, m_query.to)}};
}

bool AsRunWork::isChosen(int progIndex, const QString& program) const
{
    return m_query.program.isEmpty() || QString::number(progIndex) == m_query.program ||
           program.contains(m_query.program, Qt::CaseInsensitive);
}

ExitStatus AsRunWork::list()
{
    AsRunList lines(m_console, m_local, form());
    lines.begin(head());
    for (const AsRunScreen& screen : m_screens) {
        AsRunNumbers numbers{screen.firstStored, screen.lastStored};
        StoreResult result;
        if (m_query.hasTimes) {
            result = m_database.numbersIn(screen.name, m_query.from, m_query.to, numbers);
        }
        const auto write = [&](const AsRunRecord& record) {
            // The clock may have leapt, so that records of other times lie between.
            const bool isWithin = record.begins < m_query.to &&
                                  (record.ends > m_query.from || record.begins >= m_query.from);
            if (isWithin && isChosen(record.progIndex, record.program)) {
                lines.write(screen.name, record);
            }
            return m_console.arrives();
        };
        if (result) {
            result = m_database.visit(screen.name, numbers, write);
        }
        if (!result) {
            m_console.tell(englishText(result));
            return Refused;
        }
    }
    lines.end();
    return Done;
}

ExitStatus AsRunWork::total()
{
    std::map<QString, AsRunProgramTotals> sums;
    for (const AsRunScreen& screen : m_screens) {
        AsRunTotals totals;
        const StoreResult result =
            compareAsRun(m_database, screen, m_query.from, m_query.to,
                         AsRunComparison::Gaps::ByPlay, [&totals](const AsRunStretch& stretch) {
                             totals.add(stretch);
                             return true;
                         });
        if (!result) {
            return refuse(result);
        }
        AsRunProgramTotals& chosen = sums[screen.name];
        for (const auto& [index, sum] : totals.programs()) {
            if (isChosen(index, sum.program)) {
                chosen.emplace(index, sum);
            }
        }
    }
    writeTotals(m_console, sums, head(), form());
    return Done;
}

ExitStatus AsRunWork::verify()
{
    bool isGood = true;
    QJsonArray verdicts;
    for (const AsRunScreen& screen : m_screens) {
        AsRunVerdict verdict;
        const StoreResult result =
            verifyAsRun(m_database, screen, m_query.from, m_query.to, verdict);
        if (!result) {
            return refuse(result);
        }
        isGood = isGood && verdict.isGood();
        if (m_invocation.json) {
            verdicts.append(verdictJson(verdict, m_local));
        } else {
            writeVerdict(m_console, verdict, m_local);
        }
    }
    if (m_invocation.json) {
        QJsonObject object = head();
        object.insert(QStringLiteral("screens"), verdicts);
        m_console.writeJson(object);
    } else if (m_screens.empty()) {
        m_console.writeLine(QStringLiteral("There are no records of any screen."));
    }
    return isGood ? Done : Refused;
}

ExitStatus AsRunWork::forget()
{
    const Instant before = Clock::current().msecsSinceEpoch() - m_days * kMillisecondsOfDay;
    QJsonObject removals;
    for (const AsRunScreen& screen : m_screens) {
        qint64 all = 0;
        for (qint64 removed = 1; removed > 0; all += removed) {
            const StoreResult result = m_database.removeBefore(screen.name, before, removed);
            if (!result) {
                return refuse(result);
            }
        }
        removals.insert(screen.name, all);
        if (!m_invocation.json) {
            m_console.writeLine(QStringLiteral("%1 of the screen %2 from before %3 removed.")
                                    .arg(counted(all, QStringLiteral("record")),
                                         inQuotes(screen.name), m_local.text(before)));
        }
    }
    if (m_invocation.json) {
        m_console.writeJson(QJsonObject{{QStringLiteral("database"), m_database.path()},
                                        {QStringLiteral("before"), asRunMoment(m_local, before)},
                                        {QStringLiteral("removed"), removals}});
    }
    return Done;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    const MomentFormat local(Clock::current().zone());
    return AsRunWork(invocation, console, local).run();
}

} // namespace

Command asRunCommand()
{
    return {
        "as-run",
        "",
        0,
        0,
        true,
        "Tell what was on the screens, and hold it against the schedule",
        R"(Lists what the players of the database have had on screen: a line for each
picture, from when to when, how late it came, and how it ended where it did not
end as planned. Times without a player are listed with the reason.

Moments are written as for "schedulectl now"; a date alone is the start of that
day. Without --from or --to the list begins with the first record or ends with
the last.

--verify checks that no record was changed, taken out or put in since it was
written, and that every deviation from the timeline of the schedules that were
followed is explained by a record. It ends with 0 if so, and with 1 otherwise.)",
        run,
        true,
        {{"--from", "MOMENT", "The first moment."},
         {"--to", "MOMENT", "The moment before which it ends."},
         {"--screen", "NAME", "Only this screen."},
         {"--program", "PROGRAM",
          "Only programs with this index, or with this text in\ntheir name."},
         {"--csv", "", "Comma-separated values, for spreadsheets."},
         {"--totals", "", "How often and how long each program was planned and\non screen."},
         {"--verify", "",
          "Look for records that were tampered with, and for\ndeviations that nothing explains."},
         {"--keep", "DAYS", "Remove records that are older than that."}}};
}

} // namespace trel::console
