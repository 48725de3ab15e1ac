#include "catalogue/MediaFilters.h"

#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QCoreApplication>
#include <QStringList>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// The context of the translations.
struct MediaFilters
{
    Q_DECLARE_TR_FUNCTIONS(MediaFilters)
};

/// "Films (*.avi *.mp4)"; names of files are found in either case.
QString filter(const QString& name, const QStringList& suffixes)
{
    QStringList patterns;
    for (const QString& suffix : suffixes) {
        patterns.append(QStringLiteral("*.") + suffix);
        patterns.append(QStringLiteral("*.") + suffix.toUpper());
    }
    return QStringLiteral("%1 (%2)").arg(name, patterns.join(QLatin1Char(' ')));
}

} // namespace

QString mediaFilters()
{
    const QStringList films = mediaSuffixes(ProgramKind::Video);
    const QStringList images = mediaSuffixes(ProgramKind::Image);
    const QStringList sounds = mediaSuffixes(ProgramKind::Audio);
    return QStringList{filter(MediaFilters::tr("All media"), films + images + sounds),
                       filter(MediaFilters::tr("Films"), films),
                       filter(MediaFilters::tr("Images"), images),
                       filter(MediaFilters::tr("Sound"), sounds), MediaFilters::tr("All files (*)")}
        .join(QStringLiteral(";;"));
}

} // namespace trel::desktop
