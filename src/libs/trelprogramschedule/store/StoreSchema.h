#pragma once

#include "StoreElements.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace trel::mediadispatch {

class StoreConnection;

/// The tables of the store and how they came to be what they are.
class StoreSchema
{
public:
    /// Says in the head of the file whose it is: the letters "TrlS".
    static constexpr qint64 kApplicationId = 0x54726c53;

    static int newestVersion();
    static bool isNewest(const StoreConnection& connection);
    /// Whether there are tables for what is in effect.
    static bool hasEffect(const StoreConnection& connection);
    /// Whether there are tables for former states of what is saved.
    static bool hasHistory(const StoreConnection& connection);
    /// Whether there is a table for what the files of programs hold.
    static bool hasContents(const StoreConnection& connection);
    /// Takes a database, an empty one too, to the newest version, each step in one transaction.
    /// What is no empty one has to have passed checkElements.
    static void migrate(const StoreConnection& connection);
    /// Finds out, without writing, whether a database can be worked with; throws StoreError.
    static void check(const StoreConnection& connection, const QString& path);
    /// The part of check that looks at tables and indices: they are exactly those of the version
    /// that the database has, to the letter of their definitions, and there is nothing else.
    static void checkElements(const StoreConnection& connection, const QString& path);

private:
    struct Step
    {
        int version; ///< What the schema is after the step.
        QStringList statements;
    };

    static const std::vector<Step>& steps();
    /// What a database of the version that this one says it has holds.
    static const StoreElements& expectedElements(const StoreConnection& connection);
};

} // namespace trel::mediadispatch
