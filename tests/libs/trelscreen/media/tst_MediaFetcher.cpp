#include "FileServer.h"
#include "support/TestProgram.h"
#include "trelscreen/media/MediaFetcher.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <vector>

using namespace trel::mediadispatch;
using namespace trel::screen;
using namespace std::chrono_literals;

namespace {

MediaFetcher::Pauses quickly()
{
    MediaFetcher::Pauses pauses;
    pauses.first = 10ms;
    pauses.most = 50ms;
    return pauses;
}

/// The bytes of a film, which differ from place to place.
QByteArray film(char letter, int size = 300'000)
{
    QByteArray bytes(size, letter);
    for (int place = 0; place + 4 < size; place += 1000) {
        bytes.replace(place, 4, QByteArray::number(place % 9000 + 1000));
    }
    return bytes;
}

NeededFile needed(const QByteArray& bytes)
{
    NeededFile file;
    file.content.size = bytes.size();
    file.content.sha256 = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    file.program = QString(QLatin1Char(bytes.back()));
    return file;
}

QString nameOf(const QByteArray& bytes)
{
    return QString::fromLatin1(needed(bytes).content.sha256);
}

/// A fetcher in this thread, and what it told.
class Fetched
{
public:
    Fetched(const QString& place, const QString& cache, qint64 limit = 0)
        : fetcher(place, cache, limit, quickly())
        , m_folder(cache)
    {
        QObject::connect(&fetcher, &MediaFetcher::arrived, &m_context, [this] { ++arrivals; });
        QObject::connect(&fetcher, &MediaFetcher::failed, &m_context,
                         [this](const QString& program, MediaTrouble trouble, const QString&) {
                             failures.append(QStringLiteral("%1 %2").arg(
                                 program, QString::number(static_cast<int>(trouble))));
                         });
        fetcher.begin();
    }
    ~Fetched() { fetcher.end(); }
    Q_DISABLE_COPY(Fetched)

    bool has(const QByteArray& bytes) const
    {
        QFile file(m_folder + QLatin1Char('/') + nameOf(bytes));
        return file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
    }
    static QString failure(const QByteArray& bytes, MediaTrouble trouble)
    {
        return QStringLiteral("%1 %2").arg(needed(bytes).program,
                                           QString::number(static_cast<int>(trouble)));
    }

    int arrivals = 0;
    QStringList failures;
    MediaFetcher fetcher;

private:
    QString m_folder;
    QObject m_context;
};

} // namespace

/// How files come to a screen.
class tst_MediaFetcher : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void fromAFolder();
    void fromAWebServer();
    void soonestFirst();
    void whatIsThereIsNotFetched();
    void aTransferThatBreaksGoesOn_data();
    void aTransferThatBreaksGoesOn();
    void aPartOutlastsTheProgram();
    void allOfItMayHaveCome();
    void aServerWithoutPartsSendsAllOfIt();
    void whatIsSomethingElseIsNotTaken_data();
    void whatIsSomethingElseIsNotTaken();
    void whatIsNotThereHoldsUpNothing();
    void whatIsNeededSoonerTakesItsPlace();
    void theLimitDropsWhatIsNeededLast();
    void placesOnTheWeb();

private:
    QString cache() const { return m_folder->filePath(QStringLiteral("cache")); }
    QString share() const { return m_folder->filePath(QStringLiteral("share")); }
    void putOnShare(const QByteArray& bytes, const QString& name) const
    {
        QFile file(share() + QLatin1Char('/') + name);
        [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
        file.write(bytes);
    }
    void putPart(const QByteArray& bytes, const QByteArray& of) const
    {
        QDir().mkpath(cache());
        QFile file(MediaCache(cache()).partOf(needed(of).content));
        [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
        file.write(bytes);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_MediaFetcher::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(share()));
}

void tst_MediaFetcher::cleanup()
{
    m_folder.reset();
}

void tst_MediaFetcher::fromAFolder()
{
    putOnShare(film('a'), nameOf(film('a')));
    putOnShare(film('b', 3'000'000), nameOf(film('b', 3'000'000)));
    Fetched screen(share(), cache());
    screen.fetcher.need({needed(film('a')), needed(film('b', 3'000'000))});
    QTRY_COMPARE(screen.arrivals, 2);
    QVERIFY(screen.has(film('a')));
    QVERIFY(screen.has(film('b', 3'000'000)));
    QCOMPARE(screen.failures, QStringList());
}

void tst_MediaFetcher::fromAWebServer()
{
    FileServer server;
    server.serve(nameOf(film('a', 9'000'000)), film('a', 9'000'000));
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a', 9'000'000))});
    QTRY_COMPARE(screen.arrivals, 1);
    QVERIFY(screen.has(film('a', 9'000'000)));
    QCOMPARE(server.asked(), QStringList{nameOf(film('a', 9'000'000))});
}

void tst_MediaFetcher::soonestFirst()
{
    FileServer server;
    QStringList order;
    NeededFiles files;
    for (const char letter : {'d', 'a', 'c', 'b'}) {
        server.serve(nameOf(film(letter)), film(letter));
        order.append(nameOf(film(letter)));
        files.push_back(needed(film(letter)));
    }
    Fetched screen(server.address(), cache());
    screen.fetcher.need(files);
    QTRY_COMPARE(screen.arrivals, 4);
    QCOMPARE(server.asked(), order);
}

void tst_MediaFetcher::whatIsThereIsNotFetched()
{
    FileServer server;
    server.serve(nameOf(film('a')), film('a'));
    server.serve(nameOf(film('b')), film('b'));
    {
        Fetched screen(server.address(), cache());
        screen.fetcher.need({needed(film('a'))});
        QTRY_COMPARE(screen.arrivals, 1);
    }
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a')), needed(film('b'))});
    QTRY_COMPARE(screen.arrivals, 1);
    const QStringList asked = {nameOf(film('a')), nameOf(film('b'))};
    QCOMPARE(server.asked(), asked);
}

void tst_MediaFetcher::aTransferThatBreaksGoesOn_data()
{
    QTest::addColumn<int>("bytes");
    QTest::newRow("at every tenth") << 30'000;
    QTest::newRow("at every third") << 100'001;
    QTest::newRow("before the last byte") << 299'999;
}

void tst_MediaFetcher::aTransferThatBreaksGoesOn()
{
    QFETCH(int, bytes);
    FileServer server;
    server.serve(nameOf(film('a')), film('a'));
    server.setCutAfter(bytes);
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a'))});
    QTRY_COMPARE(screen.arrivals, 1);
    QVERIFY(screen.has(film('a')));
    // Each time only for what was missing, and told once.
    QStringList asked = {nameOf(film('a'))};
    for (int from = bytes; from < 300'000; from += bytes) {
        asked.append(QStringLiteral("%1 from %2").arg(nameOf(film('a')), QString::number(from)));
    }
    QCOMPARE(server.asked(), asked);
    QCOMPARE(screen.failures, QStringList{Fetched::failure(film('a'), MediaTrouble::Broken)});
}

void tst_MediaFetcher::aPartOutlastsTheProgram()
{
    FileServer server;
    server.serve(nameOf(film('a')), film('a'));
    putPart(film('a').left(123), film('a'));
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a'))});
    QTRY_COMPARE(screen.arrivals, 1);
    QVERIFY(screen.has(film('a')));
    QCOMPARE(server.asked(), QStringList{nameOf(film('a')) + QStringLiteral(" from 123")});
}

void tst_MediaFetcher::allOfItMayHaveCome()
{
    FileServer server;
    putPart(film('a'), film('a'));
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a'))});
    QTRY_COMPARE(screen.arrivals, 1);
    QVERIFY(screen.has(film('a')));
    QCOMPARE(server.asked(), QStringList());
}

void tst_MediaFetcher::aServerWithoutPartsSendsAllOfIt()
{
    FileServer server;
    server.setKnowsParts(false);
    server.serve(nameOf(film('a')), film('a'));
    putPart(film('x').left(1000), film('a'));
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a'))});
    QTRY_COMPARE(screen.arrivals, 1);
    QVERIFY(screen.has(film('a')));
}

void tst_MediaFetcher::whatIsSomethingElseIsNotTaken_data()
{
    QTest::addColumn<bool>("isWeb");
    QTest::addColumn<QByteArray>("bytes");
    QByteArray other = film('a');
    other[150'000] = '!';
    for (const bool isWeb : {true, false}) {
        const QByteArray where = isWeb ? "web server, " : "folder, ";
        QTest::newRow((where + "another byte").constData()) << isWeb << other;
        QTest::newRow((where + "longer").constData()) << isWeb << film('a') + 'x';
    }
}

void tst_MediaFetcher::whatIsSomethingElseIsNotTaken()
{
    QFETCH(bool, isWeb);
    QFETCH(QByteArray, bytes);
    FileServer server;
    server.serve(nameOf(film('a')), bytes);
    putOnShare(bytes, nameOf(film('a')));
    Fetched screen(isWeb ? server.address() : share(), cache());
    screen.fetcher.need({needed(film('a'))});
    QTRY_COMPARE(screen.failures,
                 QStringList{Fetched::failure(film('a'), MediaTrouble::OtherContent)});
    QCOMPARE(screen.arrivals, 0);
    QVERIFY(!screen.has(bytes));
    // Nothing is left of it once the right one is there.
    server.serve(nameOf(film('a')), film('a'));
    putOnShare(film('a'), nameOf(film('a')));
    QTRY_COMPARE(screen.arrivals, 1);
    QVERIFY(screen.has(film('a')));
    QCOMPARE(QDir(cache()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void tst_MediaFetcher::whatIsNotThereHoldsUpNothing()
{
    FileServer server;
    server.serve(nameOf(film('b')), film('b'));
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a')), needed(film('b'))});
    QTRY_COMPARE(screen.arrivals, 1);
    QVERIFY(screen.has(film('b')));
    QCOMPARE(screen.failures, QStringList{Fetched::failure(film('a'), MediaTrouble::NotThere)});
    server.serve(nameOf(film('a')), film('a'));
    QTRY_COMPARE(screen.arrivals, 2);
    QVERIFY(screen.has(film('a')));
}

void tst_MediaFetcher::whatIsNeededSoonerTakesItsPlace()
{
    FileServer server;
    server.serve(nameOf(film('a')), film('a'));
    server.serve(nameOf(film('b')), film('b'));
    server.setStalls(true);
    Fetched screen(server.address(), cache());
    screen.fetcher.need({needed(film('a'))});
    const QString part = MediaCache(cache()).partOf(needed(film('a')).content);
    QTRY_COMPARE(QFileInfo(part).size(), qint64(150'000));
    server.setStalls(false);
    screen.fetcher.need({needed(film('b')), needed(film('a'))});
    QTRY_COMPARE(screen.arrivals, 2);
    QVERIFY(screen.has(film('a')));
    const QStringList asked = {nameOf(film('a')), nameOf(film('b')),
                               nameOf(film('a')) + QStringLiteral(" from 150000")};
    QCOMPARE(server.asked(), asked);
    QCOMPARE(screen.failures, QStringList());
}

void tst_MediaFetcher::theLimitDropsWhatIsNeededLast()
{
    for (const char letter : {'a', 'b', 'c'}) {
        putOnShare(film(letter), nameOf(film(letter)));
    }
    Fetched screen(share(), cache(), 700'000);
    screen.fetcher.need({needed(film('a')), needed(film('b'))});
    QTRY_COMPARE(screen.arrivals, 2);
    screen.fetcher.need({needed(film('c')), needed(film('a')), needed(film('b'))});
    QTRY_COMPARE(screen.arrivals, 3);
    QVERIFY(screen.has(film('c')));
    QVERIFY(screen.has(film('a')));
    QVERIFY(!screen.has(film('b')));
    QTRY_COMPARE(screen.failures, QStringList{Fetched::failure(film('b'), MediaTrouble::NoRoom)});
}

void tst_MediaFetcher::placesOnTheWeb()
{
    QVERIFY(MediaFetcher::isWeb(QStringLiteral("http://desk/media")));
    QVERIFY(MediaFetcher::isWeb(QStringLiteral("HTTPS://desk")));
    QVERIFY(!MediaFetcher::isWeb(QStringLiteral("/srv/http://desk")));
    QVERIFY(!MediaFetcher::isWeb(QStringLiteral("media")));
}

TREL_TEST(tst_MediaFetcher, QCoreApplication)
#include "tst_MediaFetcher.moc"
