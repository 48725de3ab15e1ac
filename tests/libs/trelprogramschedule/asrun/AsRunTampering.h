#pragma once

#include <QString>
#include <QStringList>
#include <QtTest>

#include <sqlite3.h>

/// Changes a database behind the back of the classes that keep it.
inline void tamper(const QString& path, const QStringList& statements)
{
    sqlite3* handle = nullptr;
    QCOMPARE(sqlite3_open(path.toUtf8().constData(), &handle), SQLITE_OK);
    for (const QString& statement : statements) {
        char* error = nullptr;
        sqlite3_exec(handle, statement.toUtf8().constData(), nullptr, nullptr, &error);
        QVERIFY2(error == nullptr, error);
    }
    sqlite3_close(handle);
}
