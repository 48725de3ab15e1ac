#include "libs/trelprogramschedule/StoreChild.h"
#include "libs/trelprogramschedule/StoreFixture.h"
#include "store/sqlite/StoreFile.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>

using namespace trel::mediadispatch;

namespace {

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void setChanged(const QString& path, time_t seconds, long nanoseconds)
{
    const timespec times[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
}

} // namespace

class tst_StoreFile : public QObject
{
    Q_OBJECT

private slots:
    void stampsTellStatesOfAFileApart();
    void seesOthersAtTheLog();
    void aNewStoreIsPrivate();
};

void tst_StoreFile::stampsTellStatesOfAFileApart()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    const StoreFile file(path);
    write(path, "one");
    setChanged(path, 1000, 7);
    const StoreFile::Stamp first = file.stamp();
    const auto isSame = [&] { return file.stamp() == first; };
    QVERIFY(isSame());
    setChanged(path, 1001, 7);
    QVERIFY(!isSame());
    setChanged(path, 1000, 8);
    QVERIFY(!isSame());
    setChanged(path, 1000, 999'999'999);
    const StoreFile::Stamp late = file.stamp();
    setChanged(path, 1001, 0);
    QVERIFY(!(file.stamp() == late));
    setChanged(path, 1000, 7);
    QVERIFY(isSame());
    write(path, "three");
    setChanged(path, 1000, 7);
    QVERIFY(!isSame());
    write(path, "two");
    setChanged(path, 1000, 7);
    QVERIFY(isSame());
    write(path + QStringLiteral("-wal"), "x");
    QVERIFY(!isSame());
    QVERIFY(QFile::remove(path + QStringLiteral("-wal")));
    QVERIFY(isSame());
    // Another file in its place, while the former one is still there.
    const QString other = folder.filePath(QStringLiteral("other.db"));
    QVERIFY(QFile::rename(path, other));
    QVERIFY(!isSame());
    write(path, "one");
    setChanged(path, 1000, 7);
    QVERIFY(!isSame());
}

void tst_StoreFile::seesOthersAtTheLog()
{
    const StoreFixture store;
    const StoreFile file(store.path);
    // What this program itself has open does not count.
    QVERIFY(!file.isLogInUse());
    {
        const StoreChild other({QStringLiteral("hold"), store.path});
        QVERIFY(other.isReady());
        QVERIFY(file.isLogInUse());
    }
    QVERIFY(!file.isLogInUse());
}

void tst_StoreFile::aNewStoreIsPrivate()
{
    const StoreFixture store;
    for (const char* suffix : {"", "-wal", "-shm"}) {
        struct stat status = {};
        const QString path = store.path + QLatin1String(suffix);
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, mode_t(0600));
    }
}

TREL_TEST(tst_StoreFile, QCoreApplication)
#include "tst_StoreFile.moc"
