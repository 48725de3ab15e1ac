#include "ImportJob.h"

#include <QThread>

using trel::mediadispatch::scanMedia;

ImportJob::ImportJob(const QStringList& paths, QObject* parent)
    : QObject(parent)
    , m_paths(paths)
{
    m_thread.reset(QThread::create([this] {
        m_scan = scanMedia(m_paths, [this](int done, int total, const QString& path) {
            emit progressed(done, total, path);
            return !m_cancelled;
        });
    }));
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
