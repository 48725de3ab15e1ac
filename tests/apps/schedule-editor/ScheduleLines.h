#pragma once

#include <QStringList>

/// What a schedule says, one short text for a task and for each of its plans, however it was come
/// by: read from the widgets of a card, or from what schedulectl prints.
///
///     task 1: 2026.11.01-2026.11.30
///     1: 07:30:00-07:31:21 frequency x3 days 1,2 black [Opening,City news]
///     2: 08:00:00-11:30:00 time days 0 freeze [Weather] collides
struct PlanLine
{
    QString text() const;

    int id = 0;
    int mode = 0;
    QString start;
    QString end;
    int times = 0;
    QStringList days; ///< Numbers, 0 for every day.
    int endAction = 0;
    QString programs;
    bool collides = false;
};

QString taskLine(int id, const QString& firstDay, const QString& lastDay);

/// Lets schedulectl, a process of its own, show a database. Fails the test, and is empty, when it
/// does not.
QStringList shownBySchedulectl(const QString& database);

/// The programs of one plan in the same way: "Opening x2".
QStringList entriesShownBySchedulectl(const QString& database, int taskId, int planId);
