#pragma once

#include "StoredEffect.h"

#include <QString>

namespace trel::mediadispatch {

class StoreConnection;

/// Reads and writes what is in effect, in the tables that are for it. Members throw StoreError, and
/// have to be called within a transaction.
class StoreEffect
{
public:
    StoreEffect(const StoreConnection& connection, QString path);

    /// Nothing is in effect in a store whose schema had no place for it yet.
    StoredEffect read() const;

    /// Puts the saved tasks into effect, in the place of what was; its insertions go with it.
    void start(const EffectStart& start) const;
    void stop() const;
    /// Writes the insertions in the place of those that are there. One of them may be without a
    /// number, and gets one.
    void putInsertions(ScreenInsertions& insertions) const;

    /// Which state of it the store has now. Not to be asked where there are no tables for it.
    static qint64 revision(const StoreConnection& connection);

private:
    /// Part of every change.
    void countUp() const;
    void clear() const;
    ScreenInsertions readInsertions() const;

    const StoreConnection& m_connection;
    QString m_path;
};

} // namespace trel::mediadispatch
