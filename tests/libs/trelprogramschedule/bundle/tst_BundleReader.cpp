#include "BundleFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

/// An entry of an archive as it is written by hand, in the form of the first of all.
QByteArray entry(const QByteArray& name, const QByteArray& content, char type = '0',
                 const QByteArray& size = {})
{
    QByteArray head(512, '\0');
    const auto put = [&head](int place, const QByteArray& text) {
        head.replace(place, text.size(), text);
    };
    put(0, name);
    put(100, "0000644");
    put(108, "0000000");
    put(116, "0000000");
    put(124, size.isEmpty() ? QByteArray::number(content.size(), 8).rightJustified(11, '0') : size);
    put(136, "00000000000");
    put(156, QByteArray(1, type));
    put(257, QByteArray("ustar\0"
                        "00",
                        8));
    put(148, QByteArray(8, ' '));
    unsigned sum = 0;
    for (const char byte : qAsConst(head)) {
        sum += static_cast<unsigned char>(byte);
    }
    put(148, QByteArray::number(sum, 8).rightJustified(6, '0') + QByteArray("\0 ", 2));
    const int rest = content.size() % 512;
    return head + content + QByteArray(rest == 0 ? 0 : 512 - rest, '\0');
}

QByteArray manifest(const QByteArray& schedule, const QList<QByteArray>& media)
{
    BundleManifest made;
    made.scheduleSize = schedule.size();
    made.scheduleSha256 = BundleFixture::hashOf(schedule);
    for (const QByteArray& one : media) {
        made.media.push_back({BundleFixture::hashOf(one), one.size()});
    }
    return manifestToJson(made);
}

const QByteArray kSchedule = namedScheduleToJson({}, {});
const QByteArray kEnd(1024, '\0');

/// All in front of the media.
QByteArray heads(const QList<QByteArray>& media)
{
    return entry("bundle.json", manifest(kSchedule, media)) + entry("schedule.json", kSchedule);
}

QByteArray mediaEntry(const QByteArray& content)
{
    return entry("media/" + QByteArray::fromStdString(BundleFixture::hashOf(content)), content);
}

QString readText(const QByteArray& bytes)
{
    KeepingSink sink;
    return readText(bytes, sink);
}

} // namespace

/// Bundles, as they are written and as anybody may have made them.
class tst_BundleReader : public QObject
{
    Q_OBJECT

private slots:
    void whatWasWrittenIsRead();
    void theSameContentsGiveTheSameBytes();
    void mediaThatAreNotWantedArePassedOver();
    void programsMayShareAFile();
    void aBundleThatIsThereIsReplaced();
    void aFileThatHasChangedIsRefused();
    void theProgressMayEndIt();
    void everyCutIsTold();
    void everyWrongByteIsToldOrHarmless();
    void madeByHand();
    void otherArchives_data();
    void otherArchives();
};

void tst_BundleReader::whatWasWrittenIsRead()
{
    const BundleFixture fixture;
    fixture.written();
    QFile file(fixture.bundle());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(BundleReader::isArchive(file));
    BundleReader reader(file);
    const BundleFault fault = reader.open();
    QVERIFY2(!fault, qPrintable(englishClause(fault)));
    QVERIFY(reader.schedule().tasks == fixture.contents.tasks);
    QVERIFY(reader.schedule().programs == fixture.contents.programs);
    QCOMPARE(reader.media().size(), std::size_t(2));
    QCOMPARE(reader.media().at(1).size, qint64(5));
    KeepingSink sink;
    QVERIFY(!reader.readMedia(sink));
    QCOMPARE(sink.kept.size(), std::size_t(2));
    for (const auto& [hash, content] : sink.kept) {
        QCOMPARE(content, BundleFixture::contentOf(fixture.contents.files.at(hash)));
    }
}

void tst_BundleReader::theSameContentsGiveTheSameBytes()
{
    const BundleFixture fixture;
    const QByteArray bytes = fixture.written();
    QVERIFY(bytes == fixture.written());
    QCOMPARE(QFile::permissions(fixture.bundle()) &
                 (QFileDevice::ReadGroup | QFileDevice::ReadOther),
             QFileDevice::Permissions());
}

void tst_BundleReader::mediaThatAreNotWantedArePassedOver()
{
    const BundleFixture fixture;
    QByteArray bytes = fixture.written();
    KeepingSink sink(false);
    QCOMPARE(readText(bytes, sink), QStringLiteral("read"));
    // Not even looked at, but for their place.
    bytes.replace("nnnn", "mmmm");
    QCOMPARE(readText(bytes, sink), QStringLiteral("read"));
    QVERIFY(sink.kept.empty());
    const int end = bytes.lastIndexOf('m');
    QVERIFY(
        readText(bytes.left(end - 5000), sink).startsWith(QStringLiteral("it is cut at byte ")));
}

void tst_BundleReader::programsMayShareAFile()
{
    BundleFixture fixture;
    NamedProgram again = fixture.contents.programs.front();
    again.progIndex = 20;
    fixture.contents.programs.push_back(again);
    KeepingSink sink;
    QCOMPARE(readText(fixture.written(), sink), QStringLiteral("read"));
    QCOMPARE(sink.kept.size(), std::size_t(2));
}

void tst_BundleReader::aBundleThatIsThereIsReplaced()
{
    const BundleFixture fixture;
    BundleFixture::writeFile(fixture.bundle(), QByteArray(1000000, 'x'));
    QCOMPARE(readText(fixture.written()), QStringLiteral("read"));
    const QStringList files = QDir(fixture.folder.path()).entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(files.size(), 3);
    const BundleFault refused = writeBundle(fixture.folder.path(), fixture.contents);
    QCOMPARE(englishClause(refused), QStringLiteral("it cannot be written: it is a folder"));
}

void tst_BundleReader::aFileThatHasChangedIsRefused()
{
    const BundleFixture fixture;
    const QByteArray before = fixture.written();
    const QString file = fixture.path("Weather.mp4");
    for (const char* content : {"rainy", "sun", "sunny day"}) {
        BundleFixture::writeFile(file, content);
        QCOMPARE(englishClause(writeBundle(fixture.bundle(), fixture.contents)),
                 file + QStringLiteral(" was changed while it was read"));
    }
    QVERIFY(QFile::remove(file));
    QCOMPARE(englishClause(writeBundle(fixture.bundle(), fixture.contents)),
             file + QStringLiteral(" cannot be read"));
    QVERIFY(BundleFixture::contentOf(fixture.bundle()) == before);
    QCOMPARE(QDir(fixture.folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void tst_BundleReader::theProgressMayEndIt()
{
    const BundleFixture fixture;
    QStringList told;
    const BundleFault fault =
        writeBundle(fixture.bundle(), fixture.contents, [&](int done, int total, const QString&) {
            told.append(QStringLiteral("%1/%2").arg(done).arg(total));
            return done == 0;
        });
    QVERIFY(fault);
    QCOMPARE(told, (QStringList{QStringLiteral("0/2"), QStringLiteral("1/2")}));
    QVERIFY(!QFile::exists(fixture.bundle()));
}

void tst_BundleReader::everyCutIsTold()
{
    BundleFixture fixture;
    fixture.contents.programs.clear();
    fixture.add(7, "News", "breaking");
    const QByteArray bytes = fixture.written();
    const QByteArray last = "breaking";
    const int end = bytes.lastIndexOf(last) + last.size();
    for (int length = 0; length < end; ++length) {
        const QString text = readText(bytes.left(length));
        const QString expected =
            length < 512 ? QStringLiteral("it is no bundle") : QStringLiteral("it is cut at byte ");
        QVERIFY2(text.startsWith(expected),
                 qPrintable(QStringLiteral("%1: %2").arg(length).arg(text)));
    }
}

// Either it is refused, or all that it brings is what it was.
void tst_BundleReader::everyWrongByteIsToldOrHarmless()
{
    BundleFixture fixture;
    fixture.contents.programs.clear();
    fixture.add(7, "News", "breaking");
    const QByteArray bytes = fixture.written();
    std::mt19937 random(5);
    int refused = 0;
    for (int place = 0; place < bytes.size(); ++place) {
        QByteArray wrong = bytes;
        wrong[place] =
            char(wrong.at(place) ^ (1 << std::uniform_int_distribution<int>(0, 7)(random)));
        KeepingSink sink;
        const QString text = readText(wrong, sink);
        if (text == QLatin1String("read")) {
            QCOMPARE(sink.kept.size(), std::size_t(1));
            QCOMPARE(sink.kept.begin()->second, QByteArray("breaking"));
        } else {
            ++refused;
        }
    }
    // Heads, texts and media, but not what fills them up.
    QVERIFY(refused > 1000);
}

// An archive of another program, from the folder that the entries are in.
void tst_BundleReader::madeByHand()
{
    KeepingSink sink;
    QCOMPARE(readText(heads({"a", "bc"}) + mediaEntry("a") + mediaEntry("bc") + kEnd, sink),
             QStringLiteral("read"));
    QCOMPARE(sink.kept.size(), std::size_t(2));
    QCOMPARE(readText(heads({}) + kEnd), QStringLiteral("read"));
}

void tst_BundleReader::otherArchives_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& bytes, const QString& reason) {
        QTest::newRow(name) << bytes << reason;
    };
    const QByteArray heads1 = heads({"a"});
    const QString place = QStringLiteral(" at byte %1, in media/%2")
                              .arg(heads1.size())
                              .arg(QString::fromStdString(BundleFixture::hashOf("a")));
    row("nothing", {}, QStringLiteral("it is no bundle"));
    row("text", QByteArray(5000, 't'), QStringLiteral("it is no bundle"));
    row("other files", entry("notes.txt", "x") + kEnd,
        QStringLiteral("it is no bundle: an archive of other files"));
    row("no end of the head", entry("bundle.json", "{}").left(511),
        QStringLiteral("it is no bundle"));
    row("no manifest in it", entry("bundle.json", "[]") + kEnd,
        QStringLiteral("it is damaged at byte 2, in bundle.json: an object is expected here, not "
                       "an array"));
    row("a newer form", entry("bundle.json", R"({"version": 2, "more": 1})") + kEnd,
        QStringLiteral(": version: 2 is newer than 1, the newest that this program reads"));
    row("media twice", entry("bundle.json", manifest(kSchedule, {"a", "a"})) + kEnd,
        QStringLiteral(": media[1]: the member \"%1\" stands here for the second time")
            .arg(
                QString::fromStdString(BundleFixture::hashOf("a")).left(59).append(QChar(0x2026))));
    const QByteArray one = manifest(kSchedule, {"a"});
    row("media of no size",
        entry("bundle.json", QByteArray(one).replace("\"size\": \"1\"", "\"size\": \"0\"")) + kEnd,
        QStringLiteral(": media[0].size: a size in bytes above 0 is expected here, not another "
                       "number"));
    row("media of no hash",
        entry("bundle.json", QByteArray(one).replace("\"sha256\": \"", "\"sha256\": \"x")) + kEnd,
        QStringLiteral(": media[0].sha256: a SHA-256 in 64 small hexadecimal digits, or an empty "
                       "text is expected here, not another text"));
    row("another schedule",
        entry("bundle.json", manifest(kSchedule, {})) +
            entry("schedule.json", QByteArray(kSchedule).replace('2', '3')) + kEnd,
        QStringLiteral(", in schedule.json: the content is not that of its hash"));
    row("another size",
        entry("bundle.json", manifest(kSchedule, {})) + entry("schedule.json", kSchedule + ' ') +
            kEnd,
        QStringLiteral(", in schedule.json: the size is another one"));
    row("a schedule that is none",
        entry("bundle.json", manifest("{}", {})) + entry("schedule.json", "{}") + kEnd,
        QStringLiteral(", in schedule.json: the member \"format\" is missing; this is no "
                       "schedule"));
    const QByteArray former = scheduleToJson({});
    row("a schedule without programs",
        entry("bundle.json", manifest(former, {})) + entry("schedule.json", former) + kEnd,
        QStringLiteral(", in schedule.json: version: there is no version 1"));
    row("no media", heads1 + kEnd, QStringLiteral("it is cut"));
    row("other media", heads1 + mediaEntry("b") + kEnd,
        QStringLiteral("it is damaged") + place + QStringLiteral(": \"media/"));
    row("a way out of the folder", heads1 + entry("../../etc/passwd", "a") + kEnd,
        QStringLiteral("it is damaged") + place +
            QStringLiteral(": \"../../etc/passwd\" stands there"));
    const QByteArray name = "media/" + QByteArray::fromStdString(BundleFixture::hashOf("a"));
    row("a link", heads1 + entry(name, {}, '2') + kEnd,
        QStringLiteral("it is damaged") + place + QStringLiteral(": something else stands there"));
    row("a folder", heads1 + entry(name, {}, '5') + kEnd,
        QStringLiteral("it is damaged") + place + QStringLiteral(": "));
    row("other content", heads1 + entry(name, "b") + kEnd,
        QStringLiteral(": the content is not that of its hash"));
    row("media larger than the archive", heads1 + entry(name, "a", '0', "77777777777"),
        QStringLiteral("it is cut at byte "));
    row("a manifest larger than any", entry("bundle.json", "a", '0', "00200000000"),
        QStringLiteral(", in bundle.json is too large"));
    row("more behind", heads1 + mediaEntry("a") + entry("more", "x") + kEnd,
        QStringLiteral(": \"more\" stands behind its end"));
    row("the same twice", heads1 + mediaEntry("a") + mediaEntry("a") + kEnd,
        QStringLiteral(" stands behind its end"));
}

void tst_BundleReader::otherArchives()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    KeepingSink sink;
    const QString text = readText(bytes, sink);
    QVERIFY2(text.contains(reason), qPrintable(text));
    QVERIFY(text != QLatin1String("read"));
}

TREL_TEST(tst_BundleReader, QCoreApplication)
#include "tst_BundleReader.moc"
