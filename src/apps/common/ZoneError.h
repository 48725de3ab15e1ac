#pragma once

#include <QCoreApplication>
#include <QString>

namespace trel::hosts {

/// A program whose local time is unknown would take universal time for it without a word, so it
/// asks here first.
class ZoneError
{
    Q_DECLARE_TR_FUNCTIONS(ZoneError)

public:
    /// Why the local time of the clock in force is not known, as a sentence; empty where it is.
    static QString sentence();
};

} // namespace trel::hosts
