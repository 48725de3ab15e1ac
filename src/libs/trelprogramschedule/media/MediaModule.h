#pragma once

#include "trelprogramschedule/media/MediaReader.h"

#include <QMutex>
#include <QStringList>

namespace trel::mediadispatch {

/// The module for media files, which is opened when it is first needed: it brings a hundred
/// libraries, and most runs of most programs look at no media. Any thread may ask for it.
class MediaModule
{
public:
    /// The module is the first of these files that exists.
    explicit MediaModule(QStringList places);
    Q_DISABLE_COPY(MediaModule)

    /// The one that belongs to this library. It stands in a folder beside the library, so that
    /// both can be moved together.
    static MediaModule& instance();

    /// Either a reader, which stays as long as the process, or why there is none, a sentence.
    struct Opened
    {
        const MediaReader* reader = nullptr;
        QString problem;
    };
    /// Opens the module, or gives what was opened before. A failure is logged the first time, and
    /// not remembered: whoever asks again once the file is in its place gets it.
    Opened open();

private:
    QString file() const;
    Opened failure(const QString& problem);

    const QStringList m_places;
    QMutex m_mutex;
    const MediaReader* m_reader = nullptr;
    bool m_isFailureKnown = false;
};

} // namespace trel::mediadispatch
