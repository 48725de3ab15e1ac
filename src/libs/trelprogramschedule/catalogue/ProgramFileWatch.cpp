#include "ProgramFileWatch.h"

#include <QThread>

#include <utility>

namespace trel::mediadispatch {

namespace {

/// How long the thread is waited for, in milliseconds. One that waits for a server itself is left
/// to its own; it ends as soon as that answers.
constexpr unsigned long kPatience = 500;

} // namespace

ProgramFileWatch::ProgramFileWatch(Source source, FileScanHabits habits)
    : m_source(std::move(source))
    , m_thread(std::make_unique<QThread>())
    , m_scan(new ProgramFileScan(std::move(habits)))
{
    qRegisterMetaType<ProgramFiles>();
    m_thread->setObjectName(QStringLiteral("program files"));
    m_scan->moveToThread(m_thread.get());
    connect(m_thread.get(), &QThread::finished, m_scan, &QObject::deleteLater);
    connect(m_scan, &ProgramFileScan::found, this,
            [this](int generation, const ProgramFiles& files) {
                if (generation == m_generation) {
                    emit found(files);
                }
            });
    m_thread->start(QThread::LowPriority);
}

ProgramFileWatch::~ProgramFileWatch()
{
    m_thread->requestInterruption();
    m_thread->quit();
    if (!m_thread->wait(kPatience)) {
        QThread* left = m_thread.release();
        connect(left, &QThread::finished, left, &QObject::deleteLater);
    }
}

void ProgramFileWatch::renew()
{
    ++m_generation;
    m_isRenewed = true;
    passSoon();
}

void ProgramFileWatch::look()
{
    passSoon();
}

void ProgramFileWatch::passSoon()
{
    if (!std::exchange(m_isDue, true)) {
        QMetaObject::invokeMethod(this, &ProgramFileWatch::pass, Qt::QueuedConnection);
    }
}

void ProgramFileWatch::pass()
{
    m_isDue = false;
    if (!std::exchange(m_isRenewed, false)) {
        QMetaObject::invokeMethod(m_scan, &ProgramFileScan::lookSoon);
        return;
    }
    QMetaObject::invokeMethod(
        m_scan, [scan = m_scan, generation = m_generation, files = m_source()]() mutable {
            scan->take(generation, std::move(files));
        });
}

} // namespace trel::mediadispatch
