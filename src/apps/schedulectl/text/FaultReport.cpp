#include "FaultReport.h"

#include "trelprogramschedule/faults/FaultWords.h"

#include <QJsonArray>

using namespace trel::mediadispatch;

namespace trel::console {

QJsonObject faultJson(const Fault& fault)
{
    return {{QStringLiteral("code"), faultName(fault.code)},
            {QStringLiteral("arguments"), QJsonArray::fromStringList(fault.arguments)}};
}

QJsonObject refusalJson(const StoreResult& result)
{
    const QJsonObject error = {{QStringLiteral("code"), storeProblemName(result.problem)},
                               {QStringLiteral("path"), result.path},
                               {QStringLiteral("cause"), result.cause
                                                             ? QJsonValue(faultJson(result.cause))
                                                             : QJsonValue(QJsonValue::Null)}};
    return {{QStringLiteral("error"), error}};
}

QString refusalText(const StoreResult& result)
{
    // A command reads the store anew each time, so that nothing has to be merged.
    return result.problem == StoreProblem::MovedOn
               ? englishText(result) +
                     QStringLiteral(" Nothing was written. Look at what is saved now, and run the "
                                    "command again to replace that.")
               : englishText(result);
}

} // namespace trel::console
