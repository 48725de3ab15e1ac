#include "SignalCounts.h"
#include "StoreFixture.h"
#include "store/ScheduleDatabase.h"
#include "support/CountingLook.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

/// Which thread looks at the files of programs, and when.
class tst_FileLook : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void withoutAWatchCallsLook();
    void whileWatchedNoCallLooks();
    void findingsComeAsOneChange();
    void whatIsKnownStaysKnown();
    void anotherPathIsAnotherFile();

private:
    QString touch(const QString& name) const
    {
        QFile file(m_media->filePath(name));
        [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
        return file.fileName();
    }
    /// Files "1" and on, as programs.
    void import(int count, int first = 1) const
    {
        std::vector<MediaSource> sources;
        for (int number = first; number < first + count; ++number) {
            const QString name = QString::number(number);
            sources.push_back({name, touch(name), 1000.0, ProgramKind::Video});
        }
        QVERIFY(m_store->host.addPrograms(sources).store);
    }
    bool isThere(int progIndex) const
    {
        return !m_store->manager.getProgramItemByIndex(progIndex).isNull;
    }
    /// The indexes of the programs that are known to have lost their files.
    QList<int> lost() const
    {
        QList<int> indexes;
        for (const auto& [index, program] : m_store->manager.getPrograms()) {
            if (program.isNull) {
                indexes.append(index);
            }
        }
        return indexes;
    }

    std::unique_ptr<CountingLook> m_look;
    std::unique_ptr<StoreFixture> m_store;
    /// Apart from the store, whose files come and go.
    std::unique_ptr<QTemporaryDir> m_media;
};

void tst_FileLook::init()
{
    m_look = std::make_unique<CountingLook>();
    m_store = std::make_unique<StoreFixture>();
    m_media = std::make_unique<QTemporaryDir>();
}

void tst_FileLook::cleanup()
{
    m_store->host.watchFiles(false);
    m_store.reset();
    m_look.reset();
}

void tst_FileLook::withoutAWatchCallsLook()
{
    import(3);
    QCOMPARE(m_look->takeHere(), 3);
    m_store->restart();
    QCOMPARE(m_look->takeHere(), 3);
    m_store->manager.getgTaskMap();
    QCOMPARE(m_look->takeHere(), 3);
    QVERIFY(m_store->host.reload());
    QCOMPARE(m_look->takeHere(), 3);
    QCOMPARE(m_look->elsewhere(), 0);
}

void tst_FileLook::whileWatchedNoCallLooks()
{
    m_store->host.watchFiles();
    import(20);
    QTRY_COMPARE(m_look->elsewhere(), 20);
    m_store->restart();
    QTRY_COMPARE(m_look->elsewhere(), 40);
    // However often a list is refreshed in one go, each file is looked at once.
    for (int round = 0; round < 5; ++round) {
        m_store->manager.getgTaskMap();
    }
    QTRY_COMPARE(m_look->elsewhere(), 60);
    QVERIFY(m_store->host.reload());
    QTRY_COMPARE(m_look->elsewhere(), 80);
    QVERIFY(m_store->host.removePrograms({1, 2, 3, 4, 5}));
    QTRY_COMPARE(m_look->elsewhere(), 95);
    import(1, 6);
    QCOMPARE(m_look->takeHere(), 0);
}

/// A store whose files have gone opens with all of them, and loses them in one change.
void tst_FileLook::findingsComeAsOneChange()
{
    import(5);
    m_store->host.close();
    QVERIFY(QFile::remove(m_media->filePath(QStringLiteral("2"))));
    QVERIFY(QFile::remove(m_media->filePath(QStringLiteral("4"))));
    m_store->host.watchFiles();
    m_look->takeHere();
    SignalCounts counts;
    QVERIFY(counts.isValid());

    m_store->open();
    QCOMPARE(lost(), QList<int>());
    QCOMPARE(counts.take(), QString());
    QTRY_COMPARE(lost(), (QList<int>{2, 4}));
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
    QCOMPARE(m_look->takeHere(), 0);
}

void tst_FileLook::whatIsKnownStaysKnown()
{
    m_store->host.watchFiles();
    import(3);
    QVERIFY(QFile::remove(m_media->filePath(QStringLiteral("2"))));
    QTRY_COMPARE(lost(), QList<int>{2});
    SignalCounts counts;
    QVERIFY(counts.isValid());

    m_store->manager.getgTaskMap();
    QVERIFY(m_store->host.reload());
    QCOMPARE(lost(), QList<int>{2});
    QCOMPARE(counts.take(), QString());
    // What another editor takes in does not bring the file back, nor is it told to have come back.
    ScheduleDatabase other;
    StoreContents contents;
    QVERIFY(other.open(m_store->path, ScheduleHost::OpenMode::MustExist));
    QVERIFY(other.addPrograms(samplePrograms(1), contents).store);
    m_store->manager.getgTaskMap();
    QCOMPARE(m_store->manager.getPrograms().size(), std::size_t(4));
    QCOMPARE(lost(), QList<int>{2});
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
    // An import of it does, once it has been looked at.
    import(1, 2);
    QTRY_COMPARE(lost(), QList<int>());
}

/// Two stores may have different programs of one index.
void tst_FileLook::anotherPathIsAnotherFile()
{
    m_store->host.watchFiles();
    import(1);
    QVERIFY(QFile::remove(m_media->filePath(QStringLiteral("1"))));
    QTRY_VERIFY(!isThere(1));
    const QString other = m_store->folder.filePath(QStringLiteral("other.db"));
    QVERIFY(m_store->host.open(other));
    import(1, 7);
    m_store->host.close();
    m_store->open();
    QTRY_VERIFY(!isThere(1));

    // A file that takes the place of the store that is open.
    QVERIFY(QFile::remove(m_store->path));
    QVERIFY(QFile::rename(other, m_store->path));
    QVERIFY(m_store->host.reload());
    QVERIFY(isThere(1));
    QCOMPARE(m_look->takeHere(), 0);
}

TREL_TEST(tst_FileLook, QCoreApplication)
#include "tst_FileLook.moc"
