#include "HostFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QMimeDatabase>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace trel::mediadispatch;

/// What a desktop takes a schedule for, whatever its file is called.
class tst_ScheduleFileType : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aScheduleByItsContents();
    void anotherDatabaseIsNone();
    void anEmptyOneByItsName();

private:
    QString file(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    static QString typeOf(const QString& path)
    {
        return QMimeDatabase().mimeTypeForFile(path).name();
    }

    QTemporaryDir m_folder;
};

/// A folder of types as the system has it when the package is installed.
void tst_ScheduleFileType::initTestCase()
{
    const QString packages = m_folder.filePath(QStringLiteral("mime/packages"));
    QVERIFY(QDir().mkpath(packages));
    QVERIFY(QFile::copy(QStringLiteral("/usr/share/mime/packages/freedesktop.org.xml"),
                        packages + QStringLiteral("/freedesktop.org.xml")));
    QVERIFY(
        QFile::copy(QStringLiteral(FILE_TYPE), packages + QStringLiteral("/trel-schedule.xml")));
    // The types of a test need not survive a loss of power.
    qputenv("PKGSYSTEM_ENABLE_FSYNC", "0");
    QProcess update;
    update.start(QStringLiteral("update-mime-database"),
                 {m_folder.filePath(QStringLiteral("mime"))});
    QVERIFY(update.waitForFinished());
    QCOMPARE(update.exitCode(), 0);
    qputenv("XDG_DATA_DIRS", QFile::encodeName(m_folder.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(file("none")));
}

void tst_ScheduleFileType::aScheduleByItsContents()
{
    for (const char* name : {"schedule.db", "week 47", "copy"}) {
        HostFixture fixture;
        QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
        fixture.host.close();
        QVERIFY(QFile::copy(fixture.database, file(name)));
        QCOMPARE(typeOf(file(name)), QStringLiteral("application/x-trel-schedule"));
    }
    QCOMPARE(QMimeDatabase().mimeTypeForFile(file("schedule.db")).iconName(),
             QStringLiteral("application-x-trel-schedule"));
    QVERIFY(QMimeDatabase()
                .mimeTypeForName(QStringLiteral("application/x-trel-schedule"))
                .inherits(QStringLiteral("application/vnd.sqlite3")));
}

void tst_ScheduleFileType::anotherDatabaseIsNone()
{
    {
        QSqlDatabase other =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
        other.setDatabaseName(file("other.db"));
        QVERIFY(other.open());
        QSqlQuery query(other);
        QVERIFY(query.exec(QStringLiteral("CREATE TABLE tasks (id INTEGER)")));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
    QCOMPARE(typeOf(file("other.db")), QStringLiteral("application/vnd.sqlite3"));
}

void tst_ScheduleFileType::anEmptyOneByItsName()
{
    QFile empty(file("next week.trel-schedule"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QCOMPARE(typeOf(empty.fileName()), QStringLiteral("application/x-trel-schedule"));
}

TREL_TEST(tst_ScheduleFileType, QApplication)
#include "tst_ScheduleFileType.moc"
