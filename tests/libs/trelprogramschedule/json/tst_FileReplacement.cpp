#include "faults/FaultWords.h"
#include "support/FolderSnapshot.h"
#include "json/FileReplacement.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <csignal>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

bool doesSyncFail = false;
int syncs = 0;
int folderSyncs = 0;

} // namespace

/// Stands in the place of the system's, for the code that this program links.
extern "C" int fdatasync(int handle)
{
    ++syncs;
    if (doesSyncFail) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fdatasync, handle));
}

extern "C" int fsync(int handle)
{
    struct stat status = {};
    folderSyncs += ::fstat(handle, &status) == 0 && S_ISDIR(status.st_mode) ? 1 : 0;
    return static_cast<int>(::syscall(SYS_fsync, handle));
}

namespace {

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

mode_t modeOf(const QString& path)
{
    struct stat status = {};
    ::lstat(QFile::encodeName(path).constData(), &status);
    return status.st_mode;
}

} // namespace

/// A file is replaced whole and for good, or stays as it was.
class tst_FileReplacement : public QObject
{
    Q_OBJECT

private slots:
    void replacesAFile();
    void aNewFileIsPrivate();
    void linksAreFollowed();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();
    void aFailedSyncLeavesTheOldFile();
    void aFileThatMayNotGrowLeavesTheOldFile();
    void whatStoppedProgramsLeftGoes();
};

void tst_FileReplacement::replacesAFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a %1.json"));
    write(path, "old");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const mode_t mode = modeOf(path);
    syncs = 0;
    folderSyncs = 0;
    QVERIFY(!replaceFile(path, "new"));
    QCOMPARE(contentOf(path), QByteArray("new"));
    QCOMPARE(modeOf(path), mode);
    QCOMPARE(syncs, 1);
    QCOMPARE(folderSyncs, 1);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("a %1.json")});
    QCOMPARE(englishClause(replaceFile(folder.filePath(QStringLiteral("no/such")), "new")),
             qt_error_string(ENOENT));
    // What cannot be looked at is told as such.
    QCOMPARE(englishClause(replaceFile(path + QStringLiteral("/inside"), "new")),
             qt_error_string(ENOTDIR));
}

void tst_FileReplacement::aNewFileIsPrivate()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new.json"));
    QVERIFY(!replaceFile(path, "new"));
    QCOMPARE(modeOf(path) & 0777, mode_t(0600));
}

void tst_FileReplacement::linksAreFollowed()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target.json"));
    const QString link = folder.filePath(QStringLiteral("link.json"));
    QVERIFY(QFile::link(target, link));
    for (const char* content : {"first", "second"}) {
        QVERIFY(!replaceFile(link, content));
        QVERIFY(S_ISLNK(modeOf(link)));
        QVERIFY(S_ISREG(modeOf(target)));
        QCOMPARE(contentOf(target), QByteArray(content));
    }
}

void tst_FileReplacement::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("word");
    for (const bool isLinked : {false, true}) {
        for (const char* kind : {"folder", "pipe", "socket", "device"}) {
            QTest::addRow("%s%s", kind, isLinked ? ", linked" : "")
                << (QString::fromLatin1(kind) + (isLinked ? QStringLiteral("+") : QString()))
                << QString::fromLatin1(kind);
        }
    }
}

void tst_FileReplacement::whatIsNoFileIsRefused()
{
    QFETCH(QString, kind);
    QFETCH(QString, word);
    const QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("thing"));
    const QByteArray name = QFile::encodeName(path);
    int socketHandle = -1;
    if (word == QLatin1String("folder")) {
        QVERIFY(QDir().mkpath(path));
    } else if (word == QLatin1String("pipe")) {
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    } else if (word == QLatin1String("socket")) {
        socketHandle = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, name.constData(), sizeof address.sun_path);
        QCOMPARE(::bind(socketHandle, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    } else if (::mknod(name.constData(), S_IFCHR | 0600, makedev(1, 7)) != 0) {
        // Only root may make one. The machine's own is in no danger from others.
        path = QStringLiteral("/dev/full");
    }
    const mode_t before = modeOf(path);
    const QString target = path;
    if (kind.endsWith(QLatin1Char('+'))) {
        path = folder.filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(target, path));
    }
    const QString reason = englishClause(replaceFile(path, "new"));
    QVERIFY2(reason.contains(word), qPrintable(reason));
    QCOMPARE(modeOf(target), before);
    QVERIFY(QDir(folder.path()).entryList({QStringLiteral("*.??????")}, QDir::Files).isEmpty());
    ::close(socketHandle);
}

void tst_FileReplacement::aFailedSyncLeavesTheOldFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    write(path, "old");
    const FolderSnapshot before(folder.path());
    doesSyncFail = true;
    const QString reason = englishClause(replaceFile(path, "new"));
    const QString ofNew =
        englishClause(replaceFile(folder.filePath(QStringLiteral("new.json")), "new"));
    doesSyncFail = false;
    QCOMPARE(reason, qt_error_string(EIO));
    QCOMPARE(ofNew, qt_error_string(EIO));
    QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
}

void tst_FileReplacement::aFileThatMayNotGrowLeavesTheOldFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    write(path, "old");
    const FolderSnapshot before(folder.path());
    const auto former = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit none = limit;
    limit.rlim_cur = 4096;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const QString reason = englishClause(replaceFile(path, QByteArray(10000, 'x')));
    ::setrlimit(RLIMIT_FSIZE, &none);
    std::signal(SIGXFSZ, former);
    QCOMPARE(reason, qt_error_string(EFBIG));
    QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
}

/// What a program that was killed in an export has left goes with the next export to the same
/// place; what looks alike, and what a program at work makes, stays.
void tst_FileReplacement::whatStoppedProgramsLeftGoes()
{
    QProcess ended;
    ended.start(QStringLiteral("true"), QStringList());
    QVERIFY(ended.waitForStarted());
    const qint64 stopped = ended.processId();
    QVERIFY(ended.waitForFinished());
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.json"));
    const QString left = path + QStringLiteral(".new-%1").arg(stopped);
    const QStringList others = {path + QStringLiteral(".new-%1").arg(::getppid()),
                                path + QStringLiteral(".new-x"), path + QStringLiteral(".old"),
                                folder.filePath(QStringLiteral("other.json.new-%1").arg(stopped))};
    write(left, "half");
    for (const QString& other : others) {
        write(other, "other");
    }
    QVERIFY(!replaceFile(path, "new"));
    QVERIFY(!QFile::exists(left));
    for (const QString& other : others) {
        QCOMPARE(contentOf(other), QByteArray("other"));
    }
    QCOMPARE(contentOf(path), QByteArray("new"));
}

QTEST_GUILESS_MAIN(tst_FileReplacement)
#include "tst_FileReplacement.moc"
