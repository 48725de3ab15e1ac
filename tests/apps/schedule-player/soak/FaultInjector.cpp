#include "FaultInjector.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace {

constexpr int kPause = 7000;    // milliseconds from one fault to the next
constexpr int kDuration = 3000; // milliseconds that a file is broken

enum Way { Missing, Text, CutShort, Pipe, Folder, WayCount };

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

QByteArray halfOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(file.size() / 2) : QByteArray();
}

} // namespace

FaultInjector::FaultInjector(const PlayedPrograms& programs, unsigned seed)
    : m_programs(programs)
    , m_random(seed)
{
    m_mending.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &FaultInjector::breakOne);
    connect(&m_mending, &QTimer::timeout, this, &FaultInjector::mend);
    m_next.start(kPause);
}

FaultInjector::~FaultInjector()
{
    mend();
}

void FaultInjector::breakOne()
{
    const std::vector<PlayedProgram> victims{Short, Middle, Long};
    m_broken = m_programs.path(victims[m_random() % victims.size()]);
    if (!QFile::rename(m_broken, asideOf(m_broken))) {
        qFatal("The file cannot be moved: %s", qPrintable(m_broken));
    }
    switch (static_cast<Way>(m_random() % WayCount)) {
    case Missing:
    case WayCount:
        break;
    case Text:
        put(m_broken, QByteArray(5000, 'x'));
        break;
    case CutShort:
        put(m_broken, halfOf(asideOf(m_broken)));
        break;
    case Pipe:
        ::mkfifo(QFile::encodeName(m_broken).constData(), 0600);
        break;
    case Folder:
        QDir().mkdir(m_broken);
        break;
    }
    ++m_made;
    m_mending.start(kDuration);
}

void FaultInjector::mend()
{
    if (!m_broken.isEmpty()) {
        QFile::remove(m_broken);
        QDir().rmdir(m_broken);
        QFile::rename(asideOf(m_broken), m_broken);
        m_broken.clear();
    }
}
