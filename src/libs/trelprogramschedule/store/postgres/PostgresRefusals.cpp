#include "PostgresRefusals.h"

#include "store/StoreRefusals.h"

#include <QSqlError>

#include <iterator>

namespace trel::mediadispatch {

namespace {

/// What the states of an error begin with that have a problem of their own here.
struct Meaning
{
    const char* state;
    StoreProblem problem;
};

constexpr Meaning kMeanings[] = {
    {"55P03", StoreProblem::Locked},   // a lock that was not to be had in time
    {"40001", StoreProblem::Locked},   // two changes that do not follow each other
    {"40P01", StoreProblem::Locked},   // two that wait for each other
    {"42501", StoreProblem::ReadOnly}, // a right that is missing
    {"25006", StoreProblem::ReadOnly}, // a server that is only read
    {"53100", StoreProblem::DiskFull},
    {"3F000", StoreProblem::Damaged}, // every statement fits the schema
    {"42P01", StoreProblem::Damaged},
    {"42703", StoreProblem::Damaged},
    {"42804", StoreProblem::Damaged},
    {"XX001", StoreProblem::Damaged},
    {"XX002", StoreProblem::Damaged},
    {"22001", StoreProblem::TooLarge},
    {"54", StoreProblem::TooLarge},
};

StoreProblem problemOf(const QString& state)
{
    for (const Meaning& meaning : kMeanings) {
        if (state.startsWith(QLatin1String(meaning.state))) {
            return meaning.problem;
        }
    }
    return StoreProblem::Other;
}

Fault causeOf(const QString& state, const QSqlError& error)
{
    if (state == QLatin1String("57014")) {
        return {FaultCode::ReadTooSlow, {}};
    }
    if (state == QLatin1String("53200")) {
        return {FaultCode::NoMemory, {}};
    }
    // Its first line; the others say where in the statement it was.
    const QString words = error.databaseText().section(QLatin1Char('\n'), 0, 0).simplified();
    return faultOf(FaultCode::Database, 0, words);
}

} // namespace

StoreResult refusalOfServer(const QSqlError& error, const QString& place)
{
    const QString state = error.nativeErrorCode();
    const StoreProblem problem = problemOf(state);
    return refusal(problem, place,
                   problem == StoreProblem::DiskFull ? Fault() : causeOf(state, error));
}

} // namespace trel::mediadispatch
