#pragma once

#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>

namespace trel::mediadispatch {

/// The bytes of a record that its hash covers; the form is told in docs/decisions/0009-as-run.md
/// and never changes. The record's own hash is not among them.
TRELPROGRAMSCHEDULE_EXPORT void writeAsRunBytes(const AsRunRecord& record, QByteArray& bytes);

/// What stands for the hash before the first record of a screen.
TRELPROGRAMSCHEDULE_EXPORT QByteArray asRunFirstHash(const QString& screen);

/// Works out the hashes of a chain; one object for many records spares their memory.
class TRELPROGRAMSCHEDULE_EXPORT AsRunHasher
{
public:
    /// The hash of a record that follows the one with the hash before.
    QByteArray hash(const QByteArray& before, const AsRunRecord& record);

private:
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
    QByteArray m_bytes;
};

} // namespace trel::mediadispatch
