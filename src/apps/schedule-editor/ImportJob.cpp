#include "ImportJob.h"

#include <QThread>

using trel::mediadispatch::scanMedia;

ImportJob::ImportJob(const QStringList& paths, QObject* parent)
    : QObject(parent)
    , m_paths(paths)
{
    const auto search = [this](int found) {
        tellFound(found);
        return !m_cancelled;
    };
    const auto progress = [this](int done, int total, const QString& path) {
        emit progressed(done, total, path);
        return !m_cancelled;
    };
    m_thread.reset(QThread::create(
        [this, progress, search] { m_scan = scanMedia(m_paths, progress, search); }));
    connect(this, &ImportJob::searched, this, [this] { m_isTelling = false; });
    connect(m_thread.get(), &QThread::finished, this, &ImportJob::finished);
}

ImportJob::~ImportJob()
{
    cancel();
    m_thread->wait();
}

void ImportJob::start()
{
    m_thread->start();
}

void ImportJob::cancel()
{
    m_cancelled = true;
}

void ImportJob::tellFound(int found)
{
    if (!m_isTelling.exchange(true)) {
        emit searched(found);
    }
}
