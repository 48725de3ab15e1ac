#include "support/TestProgram.h"
#include "trelscreen/media/MediaCache.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;
using namespace trel::screen;

/// What a screen keeps, and what it gives up for what it needs.
class tst_MediaCache : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void makesItsFolder();
    void whatFitsRemovesNothing();
    void whatNobodyNeedsGoesFirst();
    void whatIsNeededLastGoesNext();
    void whatIsNeededSoonerStays();
    void partsOfOthersGoToo();
    void whatHasComeOfItCounts();
    void withoutALimitTheDiskIsOne();

private:
    /// A file in the cache, told by a letter, with so many bytes.
    NeededFile file(char letter, int size) const
    {
        NeededFile made;
        made.content.size = size;
        made.content.sha256 = QByteArray(64, letter);
        return made;
    }
    void put(const NeededFile& file) const { write(m_cache->folder().pathOf(file.content), file); }
    void write(const QString& path, const NeededFile& file) const
    {
        QFile made(path);
        [&] { QVERIFY(made.open(QIODevice::WriteOnly)); }();
        made.write(QByteArray(static_cast<int>(file.content.size), 'x'));
    }
    /// The letters of what is there.
    QString kept() const
    {
        QString letters;
        const QStringList names =
            QDir(m_cache->folder().path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        for (const QString& name : names) {
            letters += name.startsWith(QLatin1Char('.')) ? name[1].toUpper() : name[0];
        }
        return letters;
    }
    void limit(qint64 bytes)
    {
        m_cache =
            std::make_unique<MediaCache>(m_folder->filePath(QStringLiteral("deep/media")), bytes);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MediaCache> m_cache;
};

void tst_MediaCache::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    limit(100);
}

void tst_MediaCache::cleanup()
{
    m_cache.reset();
    m_folder.reset();
}

void tst_MediaCache::makesItsFolder()
{
    QVERIFY(m_cache->folder().isThere());
}

void tst_MediaCache::whatFitsRemovesNothing()
{
    put(file('a', 40));
    put(file('b', 20));
    QVERIFY(m_cache->makeRoom({file('c', 40)}, 0));
    QCOMPARE(kept(), QStringLiteral("ab"));
}

void tst_MediaCache::whatNobodyNeedsGoesFirst()
{
    put(file('a', 40));
    put(file('b', 40));
    QVERIFY(m_cache->makeRoom({file('c', 60), file('b', 40)}, 0));
    QCOMPARE(kept(), QStringLiteral("b"));
}

void tst_MediaCache::whatIsNeededLastGoesNext()
{
    put(file('a', 30));
    put(file('b', 30));
    put(file('c', 30));
    QVERIFY(m_cache->makeRoom({file('d', 30), file('b', 30), file('c', 30), file('a', 30)}, 0));
    QCOMPARE(kept(), QStringLiteral("bc"));
}

void tst_MediaCache::whatIsNeededSoonerStays()
{
    put(file('a', 30));
    put(file('b', 30));
    put(file('c', 30));
    // Its own room would take more than what is needed behind it.
    const NeededFiles needed = {file('a', 30), file('b', 30), file('d', 60), file('c', 30)};
    QVERIFY(!m_cache->makeRoom(needed, 2));
    QCOMPARE(kept(), QStringLiteral("abc"));
}

void tst_MediaCache::partsOfOthersGoToo()
{
    write(m_cache->partOf(file('a', 90).content), file('a', 90));
    QVERIFY(m_cache->makeRoom({file('b', 50)}, 0));
    QCOMPARE(kept(), QString());
}

void tst_MediaCache::whatHasComeOfItCounts()
{
    put(file('a', 50));
    write(m_cache->partOf(file('b', 0).content), file('b', 40));
    // Of 50 there are 40, and of the rest of 10 there is room.
    QVERIFY(m_cache->makeRoom({file('a', 50), file('b', 50)}, 1));
    QVERIFY(!m_cache->makeRoom({file('a', 50), file('b', 51)}, 1));
    QCOMPARE(kept(), QStringLiteral("Ba"));
}

void tst_MediaCache::withoutALimitTheDiskIsOne()
{
    limit(0);
    put(file('a', 50));
    NeededFile huge = file('b', 0);
    huge.content.size = qint64(1) << 60;
    QVERIFY(!m_cache->makeRoom({huge}, 0));
    QCOMPARE(kept(), QStringLiteral("a"));
}

TREL_TEST(tst_MediaCache, trel::tests::NoApplication)
#include "tst_MediaCache.moc"
