#include "catalogue/DroppedMedia.h"

#include <QCoreApplication>
#include <QMimeData>
#include <QUrl>

namespace trel::desktop {

namespace {

/// The context of the translations.
struct Words
{
    Q_DECLARE_TR_FUNCTIONS(DroppedMedia)
};

} // namespace

DroppedMedia::DroppedMedia(const QMimeData* data)
{
    const QList<QUrl> urls = data == nullptr ? QList<QUrl>() : data->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
            ++files;
        } else if (!url.host().isEmpty()) {
            paths.append(url.toString());
            ++addresses;
        } else {
            ++refused;
        }
    }
}

QString DroppedMedia::words() const
{
    if (isEmpty()) {
        return Words::tr("None of this can be imported.");
    }
    QStringList parts;
    if (files > 0) {
        parts.append(Words::tr("%n files or folders", nullptr, files));
    }
    if (addresses > 0) {
        parts.append(Words::tr("%n addresses", nullptr, addresses));
    }
    const QString taken =
        parts.size() == 1 ? parts.first()
                          : Words::tr("%1 and %2", "files, and addresses").arg(parts[0], parts[1]);
    return refused == 0 ? Words::tr("Import %1", "files, or addresses, or both").arg(taken)
                        : Words::tr("Import %1; %n cannot be imported",
                                    "files, or addresses, or both", refused)
                              .arg(taken);
}

} // namespace trel::desktop
