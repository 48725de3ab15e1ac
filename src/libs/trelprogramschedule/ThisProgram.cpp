#include "ThisProgram.h"

#include <QCoreApplication>
#include <QSysInfo>

namespace trel::mediadispatch {

QString thisProgram()
{
    return QCoreApplication::applicationName() + QLatin1Char('@') + QSysInfo::machineHostName();
}

} // namespace trel::mediadispatch
