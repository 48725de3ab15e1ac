#pragma once

#include "trelprogramschedule/media/MediaPicture.h"

/// As MediaReader::firstPicture, which it carries out.
trel::mediadispatch::MediaPicture readFirstPicture(const QString& path, const QSize& bound,
                                                   const std::atomic<bool>& isCancelled);
