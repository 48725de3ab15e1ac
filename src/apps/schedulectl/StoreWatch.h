#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/// Notices that somebody writes into a store that is open here. Sleeps until the system tells of a
/// change of the database or of its log, where every commit goes first.
class StoreWatch : public QObject
{
    Q_OBJECT

public:
    explicit StoreWatch(const QString& store);

    /// False when the system does not tell of changes.
    bool isWatching() const { return m_isWatching; }

signals:
    /// Once for all that is written within a moment. What was written need not be a save.
    void written();

private:
    QFileSystemWatcher m_files;
    QTimer m_pause;
    bool m_isWatching;
};
