#include "Machine.h"

#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>
#include <QThread>

namespace bench {

namespace {

QString processor()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (!file.open(QIODevice::ReadOnly)) {
        return QSysInfo::currentCpuArchitecture();
    }
    static const QRegularExpression model(QStringLiteral("model name\\s*: *(.+)"));
    const auto match = model.match(QString::fromLatin1(file.readAll()));
    return match.hasMatch() ? match.captured(1).trimmed() : QSysInfo::currentCpuArchitecture();
}

} // namespace

std::string machineText()
{
    return QStringLiteral("%1 cores of %2, %3, Qt %4, GCC %5, offscreen platform")
        .arg(QThread::idealThreadCount())
        .arg(processor(), QSysInfo::prettyProductName(), QLatin1String(qVersion()),
             QLatin1String(__VERSION__))
        .toStdString();
}

} // namespace bench
