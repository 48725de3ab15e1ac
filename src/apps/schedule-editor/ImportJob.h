#pragma once

#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QObject>

#include <atomic>
#include <memory>

class QThread;

/// Looks at media on a thread of its own, so that the window stays alive meanwhile.
///
/// start() once. Destroying a running job cancels it and waits for the file, or the entry of a
/// folder, in hand.
class ImportJob : public QObject
{
    Q_OBJECT

public:
    explicit ImportJob(const QStringList& paths, QObject* parent = nullptr);
    ~ImportJob() override;

    void start();
    /// Ends the scan before its next file or entry of a folder; finished() still comes.
    void cancel();
    /// Whether it was cancelled, be it too late for the scan to notice.
    bool isCancelled() const { return m_cancelled; }

    /// What was found; complete once finished() has been emitted.
    const trel::mediadispatch::ImportScan& scan() const { return m_scan; }

signals:
    /// While files are still looked for: how many were found so far. The next number comes when
    /// this one has been taken, so that a quick disk does not bury the window in them.
    void searched(int found);
    /// The file about to be looked at, with its place from 0 and the number of files.
    void progressed(int done, int total, const QString& path);
    void finished();

private:
    void tellFound(int found);

    QStringList m_paths;
    trel::mediadispatch::ImportScan m_scan;
    std::atomic<bool> m_cancelled{false};
    std::atomic<bool> m_isTelling{false}; ///< A number of files found is on its way.
    std::unique_ptr<QThread> m_thread;
};
