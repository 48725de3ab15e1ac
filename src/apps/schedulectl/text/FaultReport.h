#pragma once

#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule/store/StoreResult.h"

#include <QJsonObject>
#include <QString>

namespace trel::console {

/// A reason for machines: "code" and "arguments", which are texts.
QJsonObject faultJson(const trel::mediadispatch::Fault& fault);

/// What becomes of a command that the store refused, for machines: the member "error" with "code",
/// "path" and "cause", a reason or null.
QJsonObject refusalJson(const trel::mediadispatch::StoreResult& result);

/// The same for the user, with what to do where another program was quicker.
QString refusalText(const trel::mediadispatch::StoreResult& result);

} // namespace trel::console
