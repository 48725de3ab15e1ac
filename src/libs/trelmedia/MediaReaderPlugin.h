#pragma once

#include "trelprogramschedule/media/MediaReader.h"

#include <QObject>

/// What the module hands to the service.
class MediaReaderPlugin : public QObject, public trel::mediadispatch::MediaReader
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID MEDIA_READER_INTERFACE)
    Q_INTERFACES(trel::mediadispatch::MediaReader)

public:
    MediaReaderPlugin();

    trel::mediadispatch::MediaFacts facts(const QString& path, bool isNamedAsMedia) const override;
    trel::mediadispatch::MediaPicture
    firstPicture(const QString& path, const QSize& bound,
                 const std::atomic<bool>& isCancelled) const override;
};
