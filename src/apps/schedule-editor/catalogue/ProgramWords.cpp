#include "catalogue/ProgramWords.h"

#include "trelprogramschedule/catalogue/ShownAddress.h"

#include <QCoreApplication>

using namespace trel::mediadispatch;

namespace trel::desktop::programwords {

namespace {

/// The context of the translations.
struct ProgramWords
{
    Q_DECLARE_TR_FUNCTIONS(ProgramWords)
};

} // namespace

QString kind(ProgramKind kind)
{
    switch (kind) {
    case ProgramKind::Video:
        return ProgramWords::tr("Video");
    case ProgramKind::Audio:
        return ProgramWords::tr("Audio");
    case ProgramKind::Image:
        return ProgramWords::tr("Image");
    case ProgramKind::Live:
        return ProgramWords::tr("Live");
    case ProgramKind::Other:
        return ProgramWords::tr("Other");
    }
    return {};
}

QString length(double durationMs)
{
    const auto seconds = static_cast<qint64>(durationMs / 1000.0);
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString length(const ProgramIten& program)
{
    return hasOwnLength(program) && program.durationMs >= 0.0 ? length(program.durationMs)
                                                              : QString();
}

QString name(const ProgramIten& program)
{
    return QString::fromStdString(program.progName);
}

QString address(const ProgramIten& program)
{
    return shownAddress(QString::fromStdString(program.mediaPath));
}

QString folder(const ProgramIten& program)
{
    const QString address = programwords::address(program);
    const int last = address.lastIndexOf(QLatin1Char('/'));
    const bool isFile = address.startsWith(QLatin1Char('/'));
    return isFile && last > 0 ? address.left(last) : isFile ? QStringLiteral("/") : address;
}

} // namespace trel::desktop::programwords
