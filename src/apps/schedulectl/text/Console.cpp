#include "Console.h"

#include "common/DisplayText.h"

#include <QJsonDocument>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace trel::hosts;

namespace trel::console {

namespace {

constexpr int kUsualColumns = 80;

int terminalColumns(int file)
{
    winsize size = {};
    const bool isKnown = ioctl(file, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : kUsualColumns;
}

bool writeBytes(std::FILE* stream, const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size;
}

} // namespace

Console::~Console()
{
    clearProgress();
}

void Console::write(const QString& lines)
{
    writeResult(escapedLines(lines).toUtf8());
}

void Console::writeLine(const QString& line)
{
    writeResult(escapedText(line).toUtf8() + '\n');
}

void Console::writeExport(const QByteArray& utf8)
{
    writeResult(utf8);
}

void Console::writeResult(const QByteArray& utf8)
{
    clearProgress();
    note(writeBytes(stdout, utf8));
}

bool Console::flush()
{
    note(std::fflush(stdout) == 0);
    return arrives();
}

/// The system's error is that of the first failure: what comes later has errors of its own.
void Console::note(bool hasArrived)
{
    if (!hasArrived && m_error == 0) {
        m_error = errno != 0 ? errno : EIO;
    }
}

void Console::writeJson(const QJsonObject& object)
{
    writeJson(QJsonDocument(object).toJson(QJsonDocument::Indented));
}

void Console::writeJson(const QByteArray& json)
{
    writeResult(printableJson(json));
}

void Console::tell(const QString& sentence)
{
    tellLine(QStringLiteral("schedulectl: ") + sentence);
}

void Console::tellLine(const QString& line)
{
    clearProgress();
    writeBytes(stderr, escapedText(line).toUtf8() + '\n');
}

int Console::tableColumns()
{
    return isatty(STDOUT_FILENO) == 0 ? 0 : terminalColumns(STDOUT_FILENO);
}

void Console::showProgress(int done, int total, const QString& what)
{
    if (isatty(STDERR_FILENO) == 0) {
        return;
    }
    clearProgress();
    const QString place = QStringLiteral("[%1/%2] ").arg(done).arg(total);
    // The last column stays free, since some terminals break the line when it is filled.
    writeBytes(
        stderr,
        (place + shortened(what, terminalColumns(STDERR_FILENO) - 1 - place.size())).toUtf8());
    std::fflush(stderr);
    m_showsProgress = true;
}

QString Console::finish()
{
    if (flush()) {
        return {};
    }
    return QStringLiteral("The results could not all be written: %1.")
        .arg(QString::fromLocal8Bit(std::strerror(m_error)));
}

void Console::clearProgress()
{
    if (m_showsProgress) {
        writeBytes(stderr, "\r\x1B[K");
        std::fflush(stderr);
        m_showsProgress = false;
    }
}

} // namespace trel::console
