#include "common/PatientFile.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;

/// Files that are read to their end, and pipes with somebody or nobody at the other end.
class tst_PatientFile : public QObject
{
    Q_OBJECT

private slots:
    void aFileIsReadToItsEnd();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();
    void aPipeIsReadToItsEnd();
    void aPipeWithoutAWriterIsLeft();
    void aPipeThatStopsIsLeft();

private:
    QByteArray pipe(const char* name) const
    {
        const QByteArray path = QFile::encodeName(m_folder.filePath(QLatin1String(name)));
        ::mkfifo(path.constData(), 0600);
        return path;
    }

    QTemporaryDir m_folder;
};

void tst_PatientFile::aFileIsReadToItsEnd()
{
    const QString path = m_folder.filePath(QStringLiteral("file"));
    const QByteArray content = QByteArray("content ").repeated(100000);
    QFile stored(path);
    QVERIFY(stored.open(QIODevice::WriteOnly));
    QCOMPARE(stored.write(content), qint64(content.size()));
    stored.close();
    trel::hosts::PatientFile file(path, 0ms);

    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content);
    QVERIFY(!file.hasFailed());
}

void tst_PatientFile::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");

    QTest::newRow("device") << "/dev/zero"
                            << "it is not a file";
    QTest::newRow("folder") << m_folder.path() << "it is not a file";
    QTest::newRow("nothing") << m_folder.filePath(QStringLiteral("nothing"))
                             << "No such file or directory";
}

void tst_PatientFile::whatIsNoFileIsRefused()
{
    QFETCH(QString, path);
    trel::hosts::PatientFile file(path, 10s);

    QVERIFY(!file.open(QIODevice::ReadOnly));
    QVERIFY(file.hasFailed());
    QTEST(file.errorString(), "reason");
}

void tst_PatientFile::aPipeIsReadToItsEnd()
{
    const QByteArray path = pipe("whole");
    const QByteArray content = QByteArray("content ").repeated(100000);
    std::thread writer([&] {
        QFile end(QFile::decodeName(path));
        end.open(QIODevice::WriteOnly);
        end.write(content);
    });
    trel::hosts::PatientFile file(QFile::decodeName(path), 20s);

    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray read = file.readAll();
    writer.join();

    QCOMPARE(read, content);
    QVERIFY(!file.hasFailed());
}

void tst_PatientFile::aPipeWithoutAWriterIsLeft()
{
    trel::hosts::PatientFile file(QFile::decodeName(pipe("empty")), 100ms);
    QVERIFY(file.open(QIODevice::ReadOnly));

    QCOMPARE(file.readAll(), QByteArray());
    QVERIFY(file.hasFailed());
    QCOMPARE(file.errorString(), QStringLiteral("nothing came through the pipe for 0.1 seconds"));
}

void tst_PatientFile::aPipeThatStopsIsLeft()
{
    const QByteArray path = pipe("half");
    // Open for both, so that it has a writer without anybody to wait for.
    const int end = ::open(path.constData(), O_RDWR | O_CLOEXEC);
    QVERIFY(end >= 0);
    trel::hosts::PatientFile file(QFile::decodeName(path), 100ms);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(::write(end, "half", 4), ssize_t(4));

    QCOMPARE(file.read(100), QByteArray("half"));
    QVERIFY(!file.hasFailed());
    QCOMPARE(file.read(100), QByteArray());
    QVERIFY(file.hasFailed());
    ::close(end);
}

TREL_TEST(tst_PatientFile, QCoreApplication)
#include "tst_PatientFile.moc"
