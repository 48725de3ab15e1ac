#include "BundleFixture.h"
#include "bundle/BundleFolder.h"
#include "catalogue/ContentReader.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QtTest>

#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

/// A bundle, and a folder that its media are put into.
class Taking
{
public:
    Taking()
        : bytes(fixture.written())
        , target(fixture.path("deep/er"))
    {
        for (const NamedProgram& program : fixture.contents.programs) {
            wanted[program.sha256] = program;
        }
    }

    /// What comes of it; the media stay where they were put.
    QString take()
    {
        BundleFolder folder(target, wanted);
        const QString text = readText(bytes, folder);
        files = folder.files();
        folder.keep();
        return text;
    }

    /// Names in the folder, sorted.
    QString names() const
    {
        return QDir(target)
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDir::Name)
            .join(QLatin1Char(' '));
    }
    QString file(const char* name) const { return target + QLatin1Char('/') + QLatin1String(name); }
    std::string hash(std::size_t program) const
    {
        return fixture.contents.programs.at(program).sha256;
    }

    BundleFixture fixture;
    QByteArray bytes;
    QString target;
    std::map<std::string, NamedProgram> wanted;
    std::map<std::string, BundleFolder::File> files;
};

} // namespace

/// Media of a bundle in a folder.
class tst_BundleFolder : public QObject
{
    Q_OBJECT

private slots:
    void mediaHaveTheNamesOfTheirPrograms();
    void whatIsNotWantedStaysInTheBundle();
    void theSameIsTakenAsItIs();
    void whatIsThereIsNotWrittenOver();
    void linksAreNotFollowed();
    void nothingStaysOfWhatIsNotKept();
    void nothingStaysOfADamagedBundle();
    void aFolderThatCannotBeMade();
};

void tst_BundleFolder::mediaHaveTheNamesOfTheirPrograms()
{
    Taking taking;
    QCOMPARE(taking.take(), QStringLiteral("read"));
    QCOMPARE(taking.names(), QStringLiteral("News.mp4 Weather.mp4"));
    QCOMPARE(BundleFixture::contentOf(taking.file("Weather.mp4")), QByteArray("sunny"));
    const BundleFolder::File file = taking.files.at(taking.hash(1));
    QCOMPARE(file.path, taking.file("Weather.mp4"));
    QVERIFY(!file.wasThere);
    // So that nobody has to read it once more.
    const ProgramContent content = readContent(file.path);
    QCOMPARE(file.content.size, content.size);
    QCOMPARE(file.content.modifiedNs, content.modifiedNs);
    QCOMPARE(file.content.sha256, content.sha256);
}

void tst_BundleFolder::whatIsNotWantedStaysInTheBundle()
{
    Taking taking;
    taking.wanted.erase(taking.hash(0));
    QCOMPARE(taking.take(), QStringLiteral("read"));
    QCOMPARE(taking.names(), QStringLiteral("Weather.mp4"));
    taking.wanted.clear();
    taking.target = taking.fixture.path("none");
    QCOMPARE(taking.take(), QStringLiteral("read"));
    QVERIFY(!QFile::exists(taking.target));
}

void tst_BundleFolder::theSameIsTakenAsItIs()
{
    Taking taking;
    QCOMPARE(taking.take(), QStringLiteral("read"));
    const QDateTime written = QFileInfo(taking.file("News.mp4")).lastModified();
    QVERIFY(QFile::remove(taking.file("Weather.mp4")));
    {
        BundleFolder folder(taking.target, taking.wanted);
        QCOMPARE(readText(taking.bytes, folder), QStringLiteral("read"));
        QVERIFY(folder.files().at(taking.hash(0)).wasThere);
        QVERIFY(!folder.files().at(taking.hash(1)).wasThere);
    }
    // What was there stays in any case.
    QCOMPARE(taking.names(), QStringLiteral("News.mp4"));
    QCOMPARE(QFileInfo(taking.file("News.mp4")).lastModified(), written);
}

void tst_BundleFolder::whatIsThereIsNotWrittenOver()
{
    Taking taking;
    QVERIFY(QDir().mkpath(taking.target));
    BundleFixture::writeFile(taking.file("Weather.mp4"), "other");
    QCOMPARE(taking.take(), QStringLiteral("read"));
    const QString marked =
        QStringLiteral("Weather-%1.mp4").arg(QString::fromStdString(taking.hash(1)).left(12));
    QCOMPARE(taking.names(), QStringLiteral("News.mp4 %1 Weather.mp4").arg(marked));
    QCOMPARE(BundleFixture::contentOf(taking.file("Weather.mp4")), QByteArray("other"));
    QCOMPARE(taking.files.at(taking.hash(1)).path, taking.file(qPrintable(marked)));
    // Once more, it is found there.
    QCOMPARE(taking.take(), QStringLiteral("read"));
    QVERIFY(taking.files.at(taking.hash(1)).wasThere);
    // Until no name is left.
    BundleFixture::writeFile(taking.file(qPrintable(marked)), "third");
    BundleFixture::writeFile(
        taking.file(qPrintable(
            QStringLiteral("Weather-%1.mp4").arg(QString::fromStdString(taking.hash(1))))),
        "fourth");
    QVERIFY(
        taking.take().endsWith(QStringLiteral(" cannot be written: another file has its name")));
}

void tst_BundleFolder::linksAreNotFollowed()
{
    Taking taking;
    QVERIFY(QDir().mkpath(taking.target));
    const QString outside = taking.fixture.path("outside");
    QVERIFY(QFile::link(outside, taking.file("Weather.mp4")));
    const QString draft = taking.file("News.mp4") + QStringLiteral(".new-%1").arg(::getpid());
    QVERIFY(QFile::link(outside, draft));
    QCOMPARE(taking.take(), QStringLiteral("read"));
    QVERIFY(!QFile::exists(outside));
    QCOMPARE(BundleFixture::contentOf(taking.file("News.mp4")).size(), 100000);
    QVERIFY(QFileInfo(taking.file("Weather.mp4")).isSymLink());
}

void tst_BundleFolder::nothingStaysOfWhatIsNotKept()
{
    Taking taking;
    {
        BundleFolder folder(taking.target, taking.wanted);
        QCOMPARE(readText(taking.bytes, folder), QStringLiteral("read"));
        QCOMPARE(taking.names(), QStringLiteral("News.mp4 Weather.mp4"));
    }
    QCOMPARE(taking.names(), QString());
}

void tst_BundleFolder::nothingStaysOfADamagedBundle()
{
    Taking taking;
    taking.bytes.replace("sunny", "rainy");
    {
        BundleFolder folder(taking.target, taking.wanted);
        QVERIFY(readText(taking.bytes, folder)
                    .endsWith(QStringLiteral(": the content is not that of its hash")));
        QVERIFY(!QFile::exists(taking.file("Weather.mp4")));
    }
    QCOMPARE(taking.names(), QString());
}

void tst_BundleFolder::aFolderThatCannotBeMade()
{
    Taking taking;
    taking.target = taking.fixture.bundle() + QStringLiteral("/below");
    QVERIFY(taking.take().startsWith(taking.target + QStringLiteral(" cannot be written: ")));
}

TREL_TEST(tst_BundleFolder, QCoreApplication)
#include "tst_BundleFolder.moc"
