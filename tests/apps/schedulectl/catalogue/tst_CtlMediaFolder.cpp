#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QtTest>

/// How the files of programs get to where screens fetch them.
class tst_CtlMediaFolder : public QObject
{
    Q_OBJECT

private slots:
    void puttingThemThere();
    void onceMoreNothingIsCopied();
    void whatHasChangedIsLeftOut();
    void forMachines();
    void theFolderHasToBeThere();
};

namespace {

/// Two sounds and a stream in a catalog.
class Fixture : public CtlFixture
{
public:
    Fixture()
    {
        writeClip(QStringLiteral("a.wav"), 1000);
        writeClip(QStringLiteral("b.wav"), 2000);
        const CtlResult imported =
            onDatabase({QStringLiteral("import"), path(QStringLiteral("a.wav")),
                        path(QStringLiteral("b.wav")), QStringLiteral("udp://239.0.0.1:5000")});
        [&imported] { QVERIFY2(imported.status == 0, qPrintable(imported.err)); }();
        [this] { QVERIFY(QDir(path(QString())).mkdir(QStringLiteral("shared"))); }();
    }

    CtlResult put(const QStringList& options = {}) const
    {
        return onDatabase(QStringList{QStringLiteral("media-folder"), QStringLiteral("shared")} +
                          options);
    }
    QString hashOf(const QString& name) const
    {
        return QString::fromLatin1(
            QCryptographicHash::hash(fileContent(name), QCryptographicHash::Sha256).toHex());
    }
    QStringList shared() const
    {
        return QDir(path(QStringLiteral("shared"))).entryList(QDir::Files | QDir::Hidden);
    }
};

} // namespace

void tst_CtlMediaFolder::puttingThemThere()
{
    const Fixture fixture;
    const CtlResult result = fixture.put();
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QCOMPARE(result.text(), QStringLiteral("2 files put there, 0 there before.\n"));
    QStringList names = {fixture.hashOf(QStringLiteral("a.wav")),
                         fixture.hashOf(QStringLiteral("b.wav"))};
    names.sort();
    QCOMPARE(fixture.shared(), names);
    QCOMPARE(
        fixture.fileContent(QStringLiteral("shared/") + fixture.hashOf(QStringLiteral("a.wav"))),
        fixture.fileContent(QStringLiteral("a.wav")));
}

void tst_CtlMediaFolder::onceMoreNothingIsCopied()
{
    const Fixture fixture;
    QCOMPARE(fixture.put().status, 0);
    const CtlResult result = fixture.put();
    QCOMPARE(result.status, 0);
    QCOMPARE(result.text(), QStringLiteral("0 files put there, 2 there before.\n"));
}

void tst_CtlMediaFolder::whatHasChangedIsLeftOut()
{
    const Fixture fixture;
    fixture.writeClip(QStringLiteral("a.wav"), 3000);
    const CtlResult result = fixture.put();
    QCOMPARE(result.status, 1);
    QCOMPARE(result.text(), QStringLiteral("1 file put there, 0 there before.\n"));
    QVERIFY2(result.err.contains(QStringLiteral("something else than when it was imported")),
             qPrintable(result.err));
    QCOMPARE(fixture.shared(), QStringList{fixture.hashOf(QStringLiteral("b.wav"))});
}

void tst_CtlMediaFolder::forMachines()
{
    const Fixture fixture;
    QVERIFY(QFile::remove(fixture.path(QStringLiteral("a.wav"))));
    const CtlResult result = fixture.put({QStringLiteral("--json")});
    QCOMPARE(result.status, 1);
    const QJsonObject json = result.json();
    QCOMPARE(json.value(QLatin1String("folder")).toString(),
             fixture.path(QStringLiteral("shared")));
    const QJsonArray programs = json.value(QLatin1String("programs")).toArray();
    QCOMPARE(programs.size(), 2);
    QCOMPARE(programs[0].toObject().value(QLatin1String("outcome")).toString(),
             QStringLiteral("notReadable"));
    QCOMPARE(programs[0]
                 .toObject()
                 .value(QLatin1String("cause"))
                 .toObject()
                 .value(QLatin1String("code"))
                 .toString(),
             QStringLiteral("fileMissing"));
    QCOMPARE(programs[1].toObject().value(QLatin1String("outcome")).toString(),
             QStringLiteral("put"));
    QVERIFY(programs[1].toObject().value(QLatin1String("cause")).isNull());
}

void tst_CtlMediaFolder::theFolderHasToBeThere()
{
    const Fixture fixture;
    const CtlResult result =
        fixture.onDatabase({QStringLiteral("media-folder"), QStringLiteral("elsewhere")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(QStringLiteral("There is no folder")), qPrintable(result.err));
    QVERIFY(!QFile::exists(fixture.path(QStringLiteral("elsewhere"))));
}

TREL_TEST(tst_CtlMediaFolder, QCoreApplication)
#include "tst_CtlMediaFolder.moc"
