#pragma once

#include "trelprogramschedule/faults/Fault.h"

#include <QIODevice>

#include <chrono>

namespace trel::hosts {

/// A file that is read once from front to end. A pipe, whose other end may never write, is
/// waited for as long as the patience lasts: for its first byte, and again after each that comes. A
/// device, a folder and a socket are refused.
class PatientFile : public QIODevice
{
    Q_OBJECT

public:
    PatientFile(const QString& path, std::chrono::milliseconds patience);
    ~PatientFile() override;

    /// For reading alone. On failure fault() says why, as it does after a read that ended too
    /// early; errorString() has the same in English.
    bool open(OpenMode mode) override;
    void close() override;
    bool isSequential() const override { return true; }

    /// Whether opening or reading has failed.
    bool hasFailed() const { return static_cast<bool>(m_fault); }
    trel::mediadispatch::Fault fault() const { return m_fault; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 maxSize) override;

private:
    qint64 fail(const trel::mediadispatch::Fault& fault);
    bool waitForData();

    const QString m_path;
    const std::chrono::milliseconds m_patience;
    int m_descriptor = -1;
    bool m_isPipe = false;
    trel::mediadispatch::Fault m_fault;
};

} // namespace trel::hosts
