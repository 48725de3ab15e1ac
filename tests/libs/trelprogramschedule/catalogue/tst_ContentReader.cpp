#include "catalogue/ContentReader.h"
#include "support/TestProgram.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace trel::mediadispatch;

namespace {

// Of "abc", as the standard of the hash has it.
const QByteArray kHashOfAbc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
// Of a million times "a", from the same place.
const QByteArray kHashOfMillion =
    "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0";

/// Gives a file a time of change, in seconds since 1970.
bool setTime(const QString& path, qint64 seconds)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(QDateTime::fromSecsSinceEpoch(seconds),
                            QFileDevice::FileModificationTime);
}

} // namespace

/// What a file holds, and how it compares with what was known of it.
class tst_ContentReader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sizeTimeAndHash();
    void moreThanOnePart();
    void whatIsKnownIsNotReadAgain();
    void whatIsNoFileIsNotKnown();
    void whatIsChangedMeanwhileIsNotKnown();
    void canBeCancelled();
    void theFormOfWhatIsKnown();
    void states_data();
    void states();

private:
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QString write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
                   ? file.fileName()
                   : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ContentReader::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_ContentReader::sizeTimeAndHash()
{
    const QString file = write("abc", "abc");
    QVERIFY(setTime(file, 1'700'000'000));
    const ProgramContent content = readContent(file);
    QVERIFY(content.isKnown());
    QCOMPARE(content.size, qint64(3));
    QCOMPARE(content.modifiedNs, qint64(1'700'000'000'000'000'000));
    QCOMPARE(content.sha256, kHashOfAbc);
}

void tst_ContentReader::moreThanOnePart()
{
    QCOMPARE(readContent(write("million", QByteArray(1'000'000, 'a'))).sha256, kHashOfMillion);
    int asked = 0;
    const QString large = write("large", QByteArray(5 * 1024 * 1024 + 1, 'a'));
    const ProgramContent content = readContent(large, {}, [&asked] { return ++asked < 0; });
    QVERIFY(content.isKnown());
    QVERIFY2(asked >= 6, qPrintable(QString::number(asked)));
}

// A hash that is not the one of the file shows who has looked.
void tst_ContentReader::whatIsKnownIsNotReadAgain()
{
    const QString file = write("abc", "abc");
    QVERIFY(setTime(file, 1'700'000'000));
    ProgramContent known = readContent(file);
    known.sha256 = kHashOfMillion;
    QCOMPARE(readContent(file, known).sha256, kHashOfMillion);
    ProgramContent larger = known;
    larger.size += 1;
    QCOMPARE(readContent(file, larger).sha256, kHashOfAbc);
    QVERIFY(setTime(file, 1'700'000'001));
    const ProgramContent later = readContent(file, known);
    QCOMPARE(later.sha256, kHashOfAbc);
    QCOMPARE(later.modifiedNs, known.modifiedNs + 1'000'000'000);
    known.sha256.chop(1);
    QVERIFY(setTime(file, 1'700'000'000));
    QCOMPARE(readContent(file, known).sha256, kHashOfAbc);
}

void tst_ContentReader::whatIsNoFileIsNotKnown()
{
    const QString pipe = path("pipe");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString empty = write("empty", "");
    for (const QString& name :
         {pipe, empty, path("missing"), m_folder->path(), QStringLiteral("/dev/zero"),
          QStringLiteral("rtsp://host/1"), QString()}) {
        QVERIFY2(!readContent(name).isKnown(), qPrintable(name));
        QCOMPARE(readContent(name).size, qint64(-1));
    }
}

void tst_ContentReader::whatIsChangedMeanwhileIsNotKnown()
{
    const QString file = write("abc", "abc");
    int asked = 0;
    const ProgramContent content = readContent(file, {}, [&] {
        QFile changed(file);
        if (++asked == 1 && changed.open(QIODevice::Append)) {
            changed.write("d");
        }
        return false;
    });
    QVERIFY(asked > 0);
    QVERIFY(!content.isKnown());
    QVERIFY(readContent(file).isKnown());
}

void tst_ContentReader::canBeCancelled()
{
    const QString file = write("large", QByteArray(4 * 1024 * 1024, 'a'));
    int asked = 0;
    const ProgramContent content = readContent(file, {}, [&asked] { return ++asked == 2; });
    QVERIFY(!content.isKnown());
    QCOMPARE(asked, 2);
}

void tst_ContentReader::theFormOfWhatIsKnown()
{
    QVERIFY(!ProgramContent().isKnown());
    ProgramContent content = {0, 0, kHashOfAbc};
    QVERIFY(content.isKnown());
    content.size = -1;
    QVERIFY(!content.isKnown());
    for (const QByteArray& hash :
         {QByteArray(), kHashOfAbc.left(63), kHashOfAbc + '0', kHashOfAbc.toUpper(),
          kHashOfAbc.left(63) + 'g', kHashOfAbc.left(63) + '\0'}) {
        QVERIFY2(!(ProgramContent{3, 0, hash}.isKnown()), hash.constData());
    }
}

void tst_ContentReader::states_data()
{
    QTest::addColumn<QByteArray>("content"); ///< Null for no file.
    QTest::addColumn<int>("later");          ///< Seconds behind the time that is known.
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<int>("state");
    const auto row = [](const char* name, const QByteArray& content, int later, bool isKnown,
                        ContentState state) {
        QTest::newRow(name) << content << later << isKnown << int(state);
    };
    row("nothing known", "abc", 0, false, ContentState::NotKnown);
    row("untouched", "abc", 0, true, ContentState::Same);
    row("written once more", "abc", 5, true, ContentState::Same);
    row("an older copy", "abc", -5, true, ContentState::Same);
    row("another of the same size", "abd", 5, true, ContentState::Changed);
    row("another size, the same time", "abcd", 0, true, ContentState::Changed);
    row("empty", "", 0, true, ContentState::Changed);
    row("gone", QByteArray(), 0, true, ContentState::Unreadable);
}

void tst_ContentReader::states()
{
    QFETCH(QByteArray, content);
    QFETCH(int, later);
    QFETCH(bool, isKnown);
    QFETCH(int, state);
    constexpr qint64 time = 1'700'000'000;
    const QString file = path("file");
    if (!content.isNull()) {
        QCOMPARE(write("file", content), file);
        QVERIFY(setTime(file, time + later));
    }
    const ProgramContent known = {3, time * 1'000'000'000, kHashOfAbc};
    QCOMPARE(int(contentState(file, isKnown ? known : ProgramContent())), state);
}

TREL_TEST(tst_ContentReader, trel::tests::NoApplication)
#include "tst_ContentReader.moc"
