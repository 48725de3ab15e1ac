#include "catalogue/ProgramImporter.h"
#include "support/MediaFiles.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

using namespace trel::mediadispatch;

namespace {

QStringList names(const ImportScan& scan)
{
    QStringList list;
    for (const MediaSource& source : scan.sources) {
        list.append(source.name);
    }
    return list;
}

} // namespace

/// Files whose names are odd, and yet names.
class tst_ImportNames : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void namesThatDifferInCaseAlone();
    void aNameThatEndsWithinACharacter();
    void aReplacementCharacterThatIsThere();
    void aFileThatIsNamedLikeAnAddress();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    QSharedPointer<QTemporaryDir> m_folder;
};

void tst_ImportNames::init()
{
    m_folder = QSharedPointer<QTemporaryDir>::create();
}

void tst_ImportNames::namesThatDifferInCaseAlone()
{
    for (const char* name : {"b.wav", "B.wav", "a.wav", "C.wav"}) {
        QVERIFY(media::makeWav(path(QLatin1String(name)), 100));
    }
    QCOMPARE(names(scanMedia({m_folder->path()})),
             (QStringList{QStringLiteral("a"), QStringLiteral("B"), QStringLiteral("b"),
                          QStringLiteral("C")}));
}

void tst_ImportNames::aNameThatEndsWithinACharacter()
{
    const QString whole = path(QStringLiteral("whole.wav"));
    QVERIFY(media::makeWav(whole, 100));
    const QByteArray cut = QFile::encodeName(m_folder->path()) + "/caf\xc3";
    QCOMPARE(std::rename(QFile::encodeName(whole).constData(), cut.constData()), 0);
    const ImportScan scan = scanMedia({m_folder->path()});
    QCOMPARE(names(scan), QStringList());
    QCOMPARE(scan.refusals.size(), std::size_t(1));
    QCOMPARE(int(scan.refusals.front().fault.code), int(FaultCode::ForeignName));
    QCOMPARE(scan.refusals.front().path, path(QStringLiteral("caf\\xc3")));
    QCOMPARE(std::remove(cut.constData()), 0);
}

void tst_ImportNames::aReplacementCharacterThatIsThere()
{
    const QString odd =
        path(QStringLiteral("a") + QChar(QChar::ReplacementCharacter) + QStringLiteral(".wav"));
    QVERIFY(media::makeWav(odd, 100));
    QCOMPARE(names(scanMedia({odd})).size(), 1);
    QVERIFY(QFile::remove(odd));
    const ImportScan scan = scanMedia({odd});
    QCOMPARE(int(scan.refusals.at(0).fault.code), int(FaultCode::ForeignName));
}

void tst_ImportNames::aFileThatIsNamedLikeAnAddress()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("tape:")));
    QVERIFY(media::makeWav(path(QStringLiteral("tape:/news.wav")), 100));
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    const ImportScan scan = scanMedia({QStringLiteral("tape://news.wav")});
    QVERIFY(QDir::setCurrent(former));
    QCOMPARE(names(scan), QStringList(QStringLiteral("news")));
    QVERIFY(scan.sources.at(0).kind == ProgramKind::Audio);
}

TREL_TEST(tst_ImportNames, QCoreApplication)
#include "tst_ImportNames.moc"
