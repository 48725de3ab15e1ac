#pragma once

#include "store/StoreEngines.h"
#include "store/StorePlace.h"
#include "store/postgres/PostgresConnection.h"
#include "store/sqlite/SqliteConnection.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The address without a schedule of the server on which stores are to be, as the program
/// `with_server` gives it; empty for files.
inline QString storeServer()
{
    return qEnvironmentVariable("TREL_TEST_SERVER");
}

/// A place for a new store, which no other test has: in a folder, or on the server, where the
/// schedule is made.
inline QString newPlace(const QTemporaryDir& folder)
{
    if (storeServer().isEmpty()) {
        return folder.filePath(QStringLiteral("schedule.db"));
    }
    static int count = 0;
    const QString place =
        storeServer() +
        QStringLiteral("?schedule=%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
    [&place] { QVERIFY(trel::mediadispatch::setUpStore(place)); }();
    return place;
}

/// A connection of another program to a store, which may be open in this one. It cares for no
/// foreign keys.
inline std::unique_ptr<trel::mediadispatch::StoreConnection> connectionTo(const QString& place)
{
    using namespace trel::mediadispatch;
    if (StorePlace::isAddress(place)) {
        auto connection = std::make_unique<PostgresConnection>(
            StorePlace(place), PostgresConnection::Access::ReadWrite);
        connection->run(QStringLiteral("SET session_replication_role = replica"));
        return connection;
    }
    return std::make_unique<SqliteConnection>(place, SqliteConnection::Access::ReadWrite);
}
