#pragma once

#include <QProcess>
#include <QStringList>

/// Another program that works on a store; see store_child.cpp for what it can be asked to do. Ends
/// with the object.
class StoreChild
{
public:
    explicit StoreChild(const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(STORE_CHILD), arguments);
    }
    ~StoreChild()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY(StoreChild)

    /// Waits until it says that it is where it was asked to go.
    bool isReady() const
    {
        return m_process.waitForStarted() &&
               (m_process.canReadLine() || m_process.waitForReadyRead()) &&
               m_process.readLine() == "ready\n";
    }

    /// Waits for its end; the lines that it wrote.
    QStringList lines()
    {
        m_process.waitForFinished(120000);
        return QString::fromUtf8(m_process.readAllStandardOutput())
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    bool wasStopped() const { return m_process.exitStatus() == QProcess::CrashExit; }

    bool hasSucceeded() const { return !wasStopped() && m_process.exitCode() == 0; }

private:
    mutable QProcess m_process;
};
