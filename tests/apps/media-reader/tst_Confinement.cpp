#include "Confinement.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QTemporaryFile>
#include <QtTest>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace trel::mediareader;

Q_DECLARE_METATYPE(std::function<bool()>)

/// What a confined process can and cannot do, tried out in children of the test.
class tst_Confinement : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void callsThatAreRefused_data();
    void callsThatAreRefused();
    void callsThatAreNeeded_data();
    void callsThatAreNeeded();
    void memoryIsBounded();
    void openFilesAreBounded();
    void nothingIsWrittenEvenWithoutTheFilter();
    void processorTimeIsBounded();
    void eachFileHasProcessorTimeOfItsOwn();

private:
    /// What became of a child that did this: "yes", "no", or the signal that ended it.
    static QString inChild(const std::function<bool()>& work);
    /// The same in one that was confined first.
    QString confined(const std::function<bool()>& work) const
    {
        return inChild([&] {
            confinement::setLimits();
            confinement::refuseCalls(m_line[0]);
            return work();
        });
    }
    static bool isRefused(long result) { return result < 0 && errno == EPERM; }

    int m_line[2] = {-1, -1};
    QTemporaryFile m_file;
    bool m_isFiltered = false;
};

QString tst_Confinement::inChild(const std::function<bool()>& work)
{
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::_exit(work() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    if (WIFSIGNALED(status)) {
        return QString::fromLatin1(::strsignal(WTERMSIG(status)));
    }
    return WEXITSTATUS(status) == 0 ? QStringLiteral("yes") : QStringLiteral("no");
}

void tst_Confinement::initTestCase()
{
    QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM, 0, m_line), 0);
    QVERIFY(m_file.open());
    QCOMPARE(m_file.write("content"), qint64(7));
    QVERIFY(m_file.flush());
    m_isFiltered = inChild([this] {
                       return confinement::refuseCalls(m_line[0]) == confinement::Filter::InForce;
                   }) == QLatin1String("yes");
#if !defined(TREL_ADDRESS_SANITIZER) && !defined(TREL_THREAD_SANITIZER)
    // The packages of the project bring it, and the systems that it is built for have it.
    QVERIFY(m_isFiltered);
#endif
}

void tst_Confinement::callsThatAreRefused_data()
{
    QTest::addColumn<std::function<bool()>>("work");
    const auto row = [](const char* name, const std::function<bool()>& work) {
        QTest::newRow(name) << work;
    };
    const QByteArray name = QFile::encodeName(m_file.fileName());
    row("open another file", [] { return isRefused(::open("/etc/passwd", O_RDONLY)); });
    row("open the file again", [name] { return isRefused(::open(name.constData(), O_RDONLY)); });
    row("make a file", [] { return isRefused(::open("/tmp/confined", O_CREAT | O_WRONLY, 0600)); });
    row("write to an open file",
        [file = m_file.handle()] { return isRefused(::write(file, "x", 1)); });
    row("write to another line", [line = m_line[1]] { return isRefused(::write(line, "x", 1)); });
    row("remove a file", [name] { return isRefused(::unlink(name.constData())); });
    row("change its rights", [name] { return isRefused(::chmod(name.constData(), 0777)); });
    row("a socket", [] { return isRefused(::socket(AF_INET, SOCK_STREAM, 0)); });
    row("a local socket", [] { return isRefused(::socket(AF_UNIX, SOCK_STREAM, 0)); });
    row("fork", [] { return isRefused(::fork()); });
    row("another program", [] { return isRefused(::execl("/bin/false", "false", nullptr)); });
    row("a signal to others", [] { return isRefused(::kill(::getppid(), 0)); });
    row("a look into others", [] {
        char byte = 0;
        iovec own = {&byte, 1};
        iovec other = {&byte, 1};
        return isRefused(::process_vm_readv(::getppid(), &own, 1, &other, 1, 0));
    });
    row("memory as code", [] {
        return ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC,
                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED &&
               errno == EPERM;
    });
    row("memory that becomes code", [] {
        void* memory =
            ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        return memory != MAP_FAILED && isRefused(::mprotect(memory, 4096, PROT_READ | PROT_EXEC));
    });
    row("a higher bound of memory", [] {
        const rlimit bound = {RLIM_INFINITY, RLIM_INFINITY};
        return isRefused(::setrlimit(RLIMIT_AS, &bound));
    });
}

void tst_Confinement::callsThatAreRefused()
{
    if (!m_isFiltered) {
        QSKIP("the filter is off under the sanitizers");
    }
    QFETCH(std::function<bool()>, work);
    QCOMPARE(confined(work), QStringLiteral("yes"));
    // Without it the same does not fail in this way.
    QVERIFY(inChild(work) != QLatin1String("yes"));
}

void tst_Confinement::callsThatAreNeeded_data()
{
    QTest::addColumn<std::function<bool()>>("work");
    QTest::newRow("read an open file") << std::function<bool()>([file = m_file.handle()] {
        char bytes[8] = {};
        return ::pread(file, bytes, 7, 0) == 7 && std::memcmp(bytes, "content", 7) == 0;
    });
    QTest::newRow("answer") << std::function<bool()>(
        [line = m_line[0]] { return ::send(line, "x", 1, MSG_NOSIGNAL) == 1; });
    QTest::newRow("memory") << std::function<bool()>([] {
        const std::vector<char> much(64 * 1024 * 1024, 'x');
        return much.back() == 'x';
    });
    QTest::newRow("bound processor time") << std::function<bool()>([] {
        confinement::allowProcessorTime(5);
        rlimit bound = {};
        ::getrlimit(RLIMIT_CPU, &bound);
        return bound.rlim_cur >= 5 && bound.rlim_cur < 20;
    });
}

void tst_Confinement::callsThatAreNeeded()
{
    QFETCH(std::function<bool()>, work);
    QCOMPARE(confined(work), QStringLiteral("yes"));
}

void tst_Confinement::memoryIsBounded()
{
#if defined(TREL_ADDRESS_SANITIZER) || defined(TREL_THREAD_SANITIZER)
    QSKIP("the sanitizers claim terabytes");
#endif
    const auto claim = [] {
        void* memory = ::mmap(nullptr, confinement::kMostMemory, PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        return memory == MAP_FAILED && errno == ENOMEM;
    };
    QCOMPARE(confined(claim), QStringLiteral("yes"));
    QCOMPARE(inChild(claim), QStringLiteral("no"));
}

void tst_Confinement::openFilesAreBounded()
{
    const auto openMany = [file = m_file.handle()] {
        confinement::setLimits();
        for (std::uint64_t i = 0; i < confinement::kMostFiles; ++i) {
            if (::dup(file) < 0) {
                return errno == EMFILE;
            }
        }
        return false;
    };
    QCOMPARE(inChild(openMany), QStringLiteral("yes"));
}

void tst_Confinement::nothingIsWrittenEvenWithoutTheFilter()
{
    const qint64 size = m_file.size();
    const auto append = [file = m_file.handle()] {
        confinement::setLimits();
        return ::pwrite(file, "x", 1, 1000) == 1;
    };
    QCOMPARE(inChild(append), QString::fromLatin1(::strsignal(SIGXFSZ)));
    QCOMPARE(m_file.size(), size);
}

void tst_Confinement::processorTimeIsBounded()
{
    const auto spin = [] {
        confinement::allowProcessorTime(0);
        for (volatile bool goesOn = true; goesOn;) {
        }
        return true;
    };
    QCOMPARE(confined(spin), QString::fromLatin1(::strsignal(SIGXCPU)));
}

void tst_Confinement::eachFileHasProcessorTimeOfItsOwn()
{
    const auto renew = [] {
        rlimit first = {};
        rlimit second = {};
        confinement::allowProcessorTime(1);
        ::getrlimit(RLIMIT_CPU, &first);
        rusage used = {};
        do {
            ::getrusage(RUSAGE_SELF, &used);
        } while (used.ru_utime.tv_sec + used.ru_stime.tv_sec < 1);
        confinement::allowProcessorTime(1);
        ::getrlimit(RLIMIT_CPU, &second);
        return second.rlim_cur > first.rlim_cur;
    };
    QCOMPARE(confined(renew), QStringLiteral("yes"));
}

TREL_TEST(tst_Confinement, QCoreApplication)
#include "tst_Confinement.moc"
