#include "catalogue/ImportJob.h"

#include <QMutex>
#include <QMutexLocker>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// How long a cancelled scan is waited for, in milliseconds; most end in a tenth of it.
constexpr int kPatience = 80;

} // namespace

/// What the thread works on. It outlives the job when the thread does.
struct ImportJob::Work
{
    /// Calls the job as long as it is there.
    template <typename Call>
    void tell(Call call)
    {
        const QMutexLocker lock(&mutex);
        if (job != nullptr) {
            call(*job);
        }
    }

    bool search(int found)
    {
        if (!isTelling.exchange(true)) {
            tell([found](ImportJob& told) { emit told.searched(found); });
        }
        return !isCancelled;
    }

    bool progress(int done, int total, const QString& path)
    {
        tell([&](ImportJob& told) { emit told.progressed(done, total, path); });
        return !isCancelled;
    }

    QMutex mutex;
    ImportJob* job = nullptr;
    std::atomic<bool> isCancelled{false};
    std::atomic<bool> isTelling{false}; ///< A number of files found is on its way.
    ImportScan scan;
};

ImportJob::ImportJob(const QStringList& paths, QObject* parent, const FileContents& known)
    : QObject(parent)
    , m_work(std::make_shared<Work>())
{
    m_work->job = this;
    m_thread.reset(QThread::create([work = m_work, paths, known] {
        work->scan = scanMedia(
            paths,
            [&work](int done, int total, const QString& path) {
                return work->progress(done, total, path);
            },
            [&work](int found) { return work->search(found); },
            [&work] { return work->isCancelled.load(); }, known);
    }));
    connect(this, &ImportJob::searched, this, [this] { m_work->isTelling = false; });
    connect(m_thread.get(), &QThread::finished, this, &ImportJob::finish);
}

ImportJob::~ImportJob()
{
    m_work->isCancelled = true;
    if (!m_thread->wait(kPatience)) {
        QThread* left = m_thread.release();
        connect(left, &QThread::finished, left, &QObject::deleteLater);
    }
    const QMutexLocker lock(&m_work->mutex);
    m_work->job = nullptr;
}

void ImportJob::start()
{
    m_thread->start();
}

void ImportJob::cancel()
{
    if (!m_work->isCancelled.exchange(true)) {
        QTimer::singleShot(kPatience, this, &ImportJob::finish);
    }
}

bool ImportJob::isCancelled() const
{
    return m_work->isCancelled;
}

void ImportJob::finish()
{
    if (std::exchange(m_isFinished, true)) {
        return;
    }
    if (m_thread->isFinished()) {
        m_scan = std::move(m_work->scan);
    } else {
        // The thread may still write to what it has.
        m_scan.cancelled = true;
    }
    emit finished();
}

} // namespace trel::desktop
