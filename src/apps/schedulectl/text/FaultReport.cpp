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

} // namespace trel::console
