#pragma once

#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QObject>

#include <memory>

class QThread;

namespace trel::desktop {

/// Looks at media on a thread of its own, so that the window stays alive meanwhile.
///
/// start() once. Destroying a running job cancels it.
class ImportJob : public QObject
{
    Q_OBJECT

public:
    /// Files are not read for their hash once more that are as they are known.
    explicit ImportJob(const QStringList& paths, QObject* parent = nullptr,
                       const trel::mediadispatch::FileContents& known = {});
    ~ImportJob() override;

    void start();
    /// Ends the scan in whatever it is; finished() comes within a fifth of a second. A thread that
    /// is held up by a disk that does not answer is left to itself.
    void cancel();
    /// Whether it was cancelled, be it too late for the scan to notice.
    bool isCancelled() const;

    /// What was found, once finished() has been emitted.
    const trel::mediadispatch::ImportScan& scan() const { return m_scan; }

signals:
    /// While files are still looked for: how many were found so far. The next number comes when
    /// this one has been taken, so that a quick disk does not bury the window in them. This and the
    /// next signal come from the thread.
    void searched(int found);
    /// The file about to be looked at, with its place from 0 and the number of files.
    void progressed(int done, int total, const QString& path);
    void finished();

private:
    struct Work;

    void finish();

    std::shared_ptr<Work> m_work;
    trel::mediadispatch::ImportScan m_scan;
    std::unique_ptr<QThread> m_thread;
    bool m_isFinished = false;
};

} // namespace trel::desktop
