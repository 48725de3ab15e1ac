#include "CtlFixture.h"

#include "support/MediaFiles.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>
#include <QtTest>

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

constexpr int kPatience = 60000; // milliseconds

void prepare(QProcess& process, const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    // The poorest locale there is: nothing may depend on it.
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    // A sanitizer keeps freed memory for a while, which would count as the program's own.
    const QString options = environment.value(QStringLiteral("ASAN_OPTIONS"));
    environment.insert(
        QStringLiteral("ASAN_OPTIONS"),
        options + QStringLiteral(":quarantine_size_mb=1:thread_local_quarantine_size_kb=64"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home);
    process.setProgram(QStringLiteral(SCHEDULECTL));
}

/// What a program complains of. Under the sanitizers, whose calls a filter would refuse, media are
/// read without one and a line says so, which is no complaint.
QString complaints(const QByteArray& err)
{
    QString text = QString::fromUtf8(err);
#if defined(TREL_ADDRESS_SANITIZER) || defined(TREL_THREAD_SANITIZER)
    text.remove(QStringLiteral("Media are read without a filter of system calls, which this system "
                               "or this build does not have; the limits hold.\n"));
#endif
    return text;
}

CtlResult finish(QProcess& process, const QByteArray& input)
{
    process.start();
    process.write(input);
    process.closeWriteChannel();
    CtlResult result;
    if (process.waitForFinished(kPatience) && process.exitStatus() == QProcess::NormalExit) {
        result.status = process.exitCode();
    }
    result.out = process.readAllStandardOutput();
    result.err = complaints(process.readAllStandardError());
    return result;
}

/// The controlling side of a pair of terminals.
class Terminal
{
public:
    Terminal()
        : m_handle(posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (grantpt(m_handle) != 0 || unlockpt(m_handle) != 0) {
            qFatal("no terminal to be had");
        }
        // The side that programs write to stays open, so that what they wrote can still be read.
        m_kept = open(ptsname(m_handle), O_RDWR | O_NOCTTY);
        fcntl(m_handle, F_SETFL, O_NONBLOCK);
    }

    ~Terminal()
    {
        close(m_kept);
        close(m_handle);
    }

    Q_DISABLE_COPY(Terminal)

    QString device() const { return QString::fromLocal8Bit(ptsname(m_handle)); }

    QString readAll() const
    {
        QByteArray all;
        std::array<char, 4096> buffer;
        for (ssize_t got = 0; (got = read(m_handle, buffer.data(), buffer.size())) > 0;) {
            all.append(buffer.data(), static_cast<int>(got));
        }
        return QString::fromUtf8(all);
    }

private:
    int m_handle;
    int m_kept = -1;
};

} // namespace

QStringList CtlResult::lines() const
{
    QStringList all = text().split(QLatin1Char('\n'));
    if (all.last().isEmpty()) {
        all.removeLast();
    }
    return all;
}

QJsonObject CtlResult::json() const
{
    return QJsonDocument::fromJson(out).object();
}

CtlFixture::CtlFixture()
{
    if (!m_folder.isValid()) {
        qFatal("no folder to be had");
    }
}

CtlResult CtlFixture::run(const QStringList& arguments, const QByteArray& input) const
{
    QProcess process;
    prepare(process, m_folder.path());
    process.setArguments(arguments);
    return finish(process, input);
}

CtlResult CtlFixture::onDatabase(const QStringList& arguments, const QByteArray& input) const
{
    return run(QStringList{QStringLiteral("--database"), database()} + arguments, input);
}

CtlResult CtlFixture::runInto(const QString& outputFile, const QStringList& arguments) const
{
    QProcess process;
    prepare(process, m_folder.path());
    process.setArguments(arguments);
    process.setStandardOutputFile(outputFile);
    return finish(process, {});
}

CtlResult CtlFixture::runWatched(const QStringList& arguments) const
{
    const Terminal terminal;
    QProcess process;
    prepare(process, m_folder.path());
    process.setArguments(arguments);
    process.setStandardErrorFile(terminal.device());
    CtlResult result = finish(process, {});
    result.err = terminal.readAll();
    return result;
}

void CtlFixture::start(QProcess& process, const QStringList& arguments) const
{
    prepare(process, m_folder.path());
    process.setArguments(QStringList{QStringLiteral("--database"), database()} + arguments);
    process.start();
    QVERIFY(process.waitForStarted());
}

void CtlFixture::store(const Schedule& schedule) const
{
    const CtlResult result = onDatabase({QStringLiteral("import-schedule"), QStringLiteral("-")},
                                        scheduleToJson(schedule));
    QCOMPARE(result.status, 0);
}

QByteArray CtlFixture::exported() const
{
    return onDatabase({QStringLiteral("export"), QStringLiteral("-")}).out;
}

void CtlFixture::writeFile(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    QVERIFY(QFileInfo(file).dir().mkpath(QStringLiteral(".")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray CtlFixture::fileContent(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CtlFixture::writeClip(const QString& name, int milliseconds) const
{
    QVERIFY(QFileInfo(path(name)).dir().mkpath(QStringLiteral(".")));
    QVERIFY(media::makeWav(path(name), milliseconds));
}

QStringList CtlFixture::files() const
{
    QStringList all;
    QDirIterator iterator(m_folder.path(), QDir::Files | QDir::Hidden,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        all.append(QDir(m_folder.path()).relativeFilePath(iterator.next()));
    }
    all.sort();
    return all;
}

PlayTask januaryTask(int id, const std::vector<PlayPlan>& plans)
{
    PlayTask task;
    task.id = id;
    task.startDate = "2024.01.01";
    task.endDate = "2024.01.31";
    task.plans = plans;
    return task;
}

PlayPlan timePlan(int id, const char* start, const char* end, const char* weeks, int progIndex)
{
    PlayPlan plan;
    plan.id = id;
    plan.startTime = start;
    plan.endTime = end;
    plan.weeks = weeks;
    plan.times = 1;
    plan.programs = {{progIndex, false, "entry", 1}};
    return plan;
}
