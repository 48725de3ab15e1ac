#include "FaultInjector.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace {

constexpr int kPause = 7000;    // milliseconds from some faults to the next
constexpr int kDuration = 3000; // milliseconds that they last

const std::vector<PlayedProgram> kVictims{Short, Middle, Long, Longer, Still, Sound, Stream};

QString asideOf(const QString& path)
{
    return path + QStringLiteral(".whole");
}

void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

FaultInjector::FaultInjector(const PlayedPrograms& programs, StreamServer& server)
    : m_programs(programs)
    , m_server(server)
{
    m_mending.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &FaultInjector::breakSome);
    connect(&m_mending, &QTimer::timeout, this, &FaultInjector::mend);
}

FaultInjector::~FaultInjector()
{
    mend();
}

void FaultInjector::goOn(unsigned seed)
{
    m_random.seed(seed);
    m_next.start(kPause);
}

void FaultInjector::breakSome()
{
    const std::size_t count = 1 + m_random() % kVictims.size();
    for (std::size_t number = 0; number < count; ++number) {
        const PlayedProgram victim = kVictims[m_random() % kVictims.size()];
        if (isBroken(victim)) {
            continue;
        }
        const int way = victim == Stream ? kFileWays + static_cast<int>(m_random() % kStreamWays)
                                         : static_cast<int>(m_random() % kFileWays);
        breakNow(victim, static_cast<Way>(way));
    }
    m_mending.start(kDuration);
}

void FaultInjector::breakNow(PlayedProgram program, Way way)
{
    m_broken[program] = way;
    ++m_made;
    if (program == Stream) {
        breakStream(way);
    } else {
        breakFile(m_programs.path(program), way);
    }
    emit broke(program, static_cast<int>(way));
}

void FaultInjector::breakFile(const QString& path, Way way)
{
    const QByteArray whole = contentOf(path);
    if (way == Way::Emptied) {
        put(asideOf(path), whole);
        QFile::resize(path, 0);
        return;
    }
    if (!QFile::rename(path, asideOf(path))) {
        qFatal("The file cannot be moved: %s", qPrintable(path));
    }
    switch (way) {
    case Way::Text:
        put(path, QByteArray(5000, 'x'));
        break;
    case Way::CutShort:
        put(path, whole.left(whole.size() / 2));
        break;
    case Way::Pipe:
        ::mkfifo(QFile::encodeName(path).constData(), 0600);
        break;
    case Way::Folder:
        QDir().mkdir(path);
        break;
    default:
        break;
    }
}

void FaultInjector::breakStream(Way way)
{
    switch (way) {
    case Way::Stalls:
        m_server.setStalled(true);
        break;
    case Way::BreaksOff:
        m_server.setBreaksOff(true);
        m_server.hangUp();
        break;
    case Way::Unreachable:
        m_server.stop();
        break;
    case Way::Silent:
        m_server.setSilent(true);
        m_server.hangUp();
        break;
    default:
        m_server.setSilent(true);
        m_server.forgetLines();
        break;
    }
}

void FaultInjector::mend()
{
    for (const auto& [program, way] : m_broken) {
        if (program == Stream) {
            continue;
        }
        const QString path = m_programs.path(program);
        QFile::remove(path);
        QDir().rmdir(path);
        QFile::rename(asideOf(path), path);
    }
    if (isBroken(Stream)) {
        m_server.setStalled(false);
        m_server.setBreaksOff(false);
        m_server.setSilent(false);
        m_server.goOn();
    }
    m_broken.clear();
    emit mended();
}
