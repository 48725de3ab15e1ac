#pragma once

#include "trelprogramschedule/ProgramImporter.h"

#include <QObject>

#include <atomic>
#include <memory>

class QThread;

/// Looks at media on a thread of its own, so that the window stays alive meanwhile.
///
/// start() once. Destroying a running job cancels it and waits for the file in hand.
class ImportJob : public QObject
{
    Q_OBJECT

public:
    explicit ImportJob(const QStringList& paths, QObject* parent = nullptr);
    ~ImportJob() override;

    void start();
    /// Ends the scan before its next file; finished() still comes.
    void cancel();

    /// What was found; complete once finished() has been emitted.
    const trel::mediadispatch::ImportScan& scan() const { return m_scan; }

signals:
    /// The file about to be looked at, with its place from 0 and the number of files.
    void progressed(int done, int total, const QString& path);
    void finished();

private:
    QStringList m_paths;
    trel::mediadispatch::ImportScan m_scan;
    std::atomic<bool> m_cancelled{false};
    std::unique_ptr<QThread> m_thread;
};
