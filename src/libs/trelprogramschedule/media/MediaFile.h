#pragma once

#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

#include <QString>

namespace trel::mediadispatch {

/// A media file, open for reading. Only what lies on a disk is opened, which a device, a pipe and a
/// socket do not: those may keep who opens or reads them waiting for ever, and some do something
/// when they are opened.
class TRELPROGRAMSCHEDULE_EXPORT MediaFile
{
public:
    explicit MediaFile(const QString& path);
    ~MediaFile();
    Q_DISABLE_COPY(MediaFile)

    /// -1 when the file was refused.
    int descriptor() const { return m_descriptor; }
    /// Why.
    Fault fault() const { return m_fault; }

private:
    int m_descriptor = -1;
    Fault m_fault;
};

} // namespace trel::mediadispatch
