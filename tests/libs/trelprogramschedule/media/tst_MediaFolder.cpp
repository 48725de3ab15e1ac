#include "media/MediaFolder.h"
#include "support/FolderSnapshot.h"
#include "support/TestProgram.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;
using Outcome = MediaFolder::Outcome;

/// A folder with files under the hash of what they hold.
class tst_MediaFolder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aFileComesUnderItsHash();
    void oneThatIsThereIsNotCopied();
    void whatIsCutShortIsPutAgain();
    void oneThatHasChangedIsNotPut_data();
    void oneThatHasChangedIsNotPut();
    void oneThatIsNotThereIsNotPut();
    void aFolderThatTakesNothingIsTold();
    void nothingIsLeftWhereItWasCancelled();
    void whatWasMadeForItIsAdopted();
    void whatIsSomethingElseIsNotAdopted();
    void leftoversGoAfterADay();

private:
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QString write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
        file.write(bytes);
        return file.fileName();
    }
    QByteArray read(const QString& name) const
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList shared() const
    {
        return QDir(path("shared")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QByteArray kFilm = QByteArray("a film ").repeated(500'000);

ProgramContent contentOf(const QByteArray& bytes)
{
    ProgramContent content;
    content.size = bytes.size();
    content.sha256 = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    return content;
}

} // namespace

void tst_MediaFolder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("shared")));
}

void tst_MediaFolder::cleanup()
{
    m_folder.reset();
}

void tst_MediaFolder::aFileComesUnderItsHash()
{
    const MediaFolder folder(path("shared"));
    QVERIFY(folder.isThere());
    QVERIFY(!MediaFolder(path("elsewhere")).isThere());
    const ProgramContent film = contentOf(kFilm);
    QVERIFY(!folder.holds(film));
    QCOMPARE(folder.put(write("film.mp4", kFilm), film).outcome, Outcome::Put);
    QVERIFY(folder.holds(film));
    QCOMPARE(folder.pathOf(film), path("shared/") + QString::fromLatin1(film.sha256));
    QCOMPARE(read(folder.pathOf(film)), kFilm);
    QCOMPARE(shared().size(), 1);
    // A web server reads it as another user.
    QVERIFY(QFile::permissions(folder.pathOf(film)) & QFile::ReadOwner);
}

void tst_MediaFolder::oneThatIsThereIsNotCopied()
{
    const MediaFolder folder(path("shared"));
    const ProgramContent film = contentOf(kFilm);
    QCOMPARE(folder.put(write("film.mp4", kFilm), film).outcome, Outcome::Put);
    const FolderSnapshot before(path("shared"));
    // Not even looked for.
    QVERIFY(QFile::remove(path("film.mp4")));
    QCOMPARE(folder.put(path("film.mp4"), film).outcome, Outcome::WasThere);
    QCOMPARE(before.differences(FolderSnapshot(path("shared"))), QStringList());
}

void tst_MediaFolder::whatIsCutShortIsPutAgain()
{
    const MediaFolder folder(path("shared"));
    const ProgramContent film = contentOf(kFilm);
    QFile(folder.pathOf(film)).open(QIODevice::WriteOnly);
    QVERIFY(!folder.holds(film));
    QCOMPARE(folder.put(write("film.mp4", kFilm), film).outcome, Outcome::Put);
    QCOMPARE(read(folder.pathOf(film)), kFilm);
}

void tst_MediaFolder::oneThatHasChangedIsNotPut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray other = kFilm;
    other[other.size() / 2] = 'x';
    QTest::newRow("another byte") << other;
    QTest::newRow("longer") << kFilm + 'x';
    QTest::newRow("shorter") << kFilm.left(kFilm.size() - 1);
}

void tst_MediaFolder::oneThatHasChangedIsNotPut()
{
    QFETCH(QByteArray, bytes);
    const MediaFolder folder(path("shared"));
    QCOMPARE(folder.put(write("film.mp4", bytes), contentOf(kFilm)).outcome, Outcome::Changed);
    QCOMPARE(shared(), QStringList());
}

void tst_MediaFolder::oneThatIsNotThereIsNotPut()
{
    const MediaFolder folder(path("shared"));
    const MediaFolder::Result result = folder.put(path("film.mp4"), contentOf(kFilm));
    QCOMPARE(result.outcome, Outcome::NotReadable);
    QCOMPARE(result.fault.code, FaultCode::FileMissing);
    QCOMPARE(shared(), QStringList());
}

void tst_MediaFolder::aFolderThatTakesNothingIsTold()
{
    const MediaFolder folder(path("elsewhere"));
    const MediaFolder::Result result = folder.put(write("film.mp4", kFilm), contentOf(kFilm));
    QCOMPARE(result.outcome, Outcome::NotWritable);
    QVERIFY(bool(result.fault));
}

void tst_MediaFolder::nothingIsLeftWhereItWasCancelled()
{
    const MediaFolder folder(path("shared"));
    int questions = 0;
    const auto afterAPart = [&questions] { return ++questions > 1; };
    QCOMPARE(folder.put(write("film.mp4", kFilm), contentOf(kFilm), afterAPart).outcome,
             Outcome::NotReadable);
    QCOMPARE(questions, 2);
    QCOMPARE(shared(), QStringList());
}

void tst_MediaFolder::whatWasMadeForItIsAdopted()
{
    const MediaFolder folder(path("shared"));
    const ProgramContent film = contentOf(kFilm);
    const QString made = write("shared/.made", kFilm);
    QCOMPARE(folder.adopt(made, film).outcome, Outcome::Put);
    QVERIFY(folder.holds(film));
    QCOMPARE(shared().size(), 1);
}

void tst_MediaFolder::whatIsSomethingElseIsNotAdopted()
{
    const MediaFolder folder(path("shared"));
    QByteArray other = kFilm;
    other[0] = 'x';
    QCOMPARE(folder.adopt(write("shared/.made", other), contentOf(kFilm)).outcome,
             Outcome::Changed);
    QCOMPARE(shared(), QStringList());
    QCOMPARE(folder.adopt(path("shared/.made"), contentOf(kFilm)).outcome, Outcome::NotReadable);
}

void tst_MediaFolder::leftoversGoAfterADay()
{
    const MediaFolder folder(path("shared"));
    const ProgramContent film = contentOf(kFilm);
    QCOMPARE(folder.put(write("film.mp4", kFilm), film).outcome, Outcome::Put);
    write("shared/.new.part", "x");
    QFile old(write("shared/.old.part", "x"));
    QVERIFY(old.open(QIODevice::ReadWrite));
    QVERIFY(old.setFileTime(QDateTime::currentDateTimeUtc().addDays(-2),
                            QFileDevice::FileModificationTime));
    old.close();
    folder.removeLeftovers();
    const QStringList left = {QStringLiteral(".new.part"), QString::fromLatin1(film.sha256)};
    QCOMPARE(shared(), left);
}

TREL_TEST(tst_MediaFolder, QCoreApplication)
#include "tst_MediaFolder.moc"
