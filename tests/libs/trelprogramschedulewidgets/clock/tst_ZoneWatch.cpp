#include "clock/ZoneWatch.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

using namespace trel::mediadispatch;

namespace {

/// A machine's zone: a link in one folder into the zones in another.
struct Zones
{
    Zones()
    {
        QDir(folder.path()).mkpath(QStringLiteral("etc"));
        QDir(folder.path()).mkpath(QStringLiteral("zones"));
        write(QStringLiteral("zones/Berlin"), "a zone");
        write(QStringLiteral("zones/Lisbon"), "another zone");
        QVERIFY(QFile::link(path(QStringLiteral("zones/Berlin")), link()));
    }

    QString path(const QString& name) const { return folder.filePath(name); }
    QString link() const { return path(QStringLiteral("etc/localtime")); }

    void write(const QString& name, const char* text) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    /// As the system does it: the new one takes the place of the old one in one go.
    void replaceBy(const QString& name) const
    {
        const QString made = path(QStringLiteral("etc/localtime.new"));
        QVERIFY(QFile::link(path(name), made));
        QCOMPARE(std::rename(qPrintable(made), qPrintable(link())), 0);
    }

    QTemporaryDir folder;
};

} // namespace

/// The machine is moved to another time zone.
class tst_ZoneWatch : public QObject
{
    Q_OBJECT

private slots:
    void tellsOfALinkThatIsReplaced();
    void tellsOfEachMove();
    void tellsOfANewVersionOfTheZone();
    void tellsOfAFileThatIsWrittenOver();
    void tellsOfAZoneThatGoesAndComes();
    void doesNotTellOfItsNeighbours();
    void mayBeDoneAwayWithWhileItTells();
};

void tst_ZoneWatch::tellsOfALinkThatIsReplaced()
{
    const Zones zones;
    int changes = 0;
    const ZoneWatch watch([&changes] { ++changes; }, zones.link());
    zones.replaceBy(QStringLiteral("zones/Lisbon"));
    QTRY_COMPARE(changes, 1);
}

void tst_ZoneWatch::tellsOfEachMove()
{
    const Zones zones;
    int changes = 0;
    const ZoneWatch watch([&changes] { ++changes; }, zones.link());
    for (int move = 1; move < 4; ++move) {
        zones.replaceBy(move % 2 == 0 ? QStringLiteral("zones/Berlin")
                                      : QStringLiteral("zones/Lisbon"));
        QTRY_COMPARE(changes, move);
    }
}

void tst_ZoneWatch::tellsOfANewVersionOfTheZone()
{
    const Zones zones;
    int changes = 0;
    zones.replaceBy(QStringLiteral("zones/Lisbon"));
    const ZoneWatch watch([&changes] { ++changes; }, zones.link());
    zones.write(QStringLiteral("zones/New"), "another zone, corrected");
    QCOMPARE(std::rename(qPrintable(zones.path(QStringLiteral("zones/New"))),
                         qPrintable(zones.path(QStringLiteral("zones/Lisbon")))),
             0);
    QTRY_COMPARE(changes, 1);
}

void tst_ZoneWatch::tellsOfAFileThatIsWrittenOver()
{
    const Zones zones;
    QVERIFY(QFile::remove(zones.link()));
    zones.write(QStringLiteral("etc/localtime"), "a zone");
    int changes = 0;
    const ZoneWatch watch([&changes] { ++changes; }, zones.link());
    zones.write(QStringLiteral("etc/localtime"), "quite another zone");
    QTRY_VERIFY(changes > 0);
}

void tst_ZoneWatch::tellsOfAZoneThatGoesAndComes()
{
    const Zones zones;
    int changes = 0;
    const ZoneWatch watch([&changes] { ++changes; }, zones.link());
    QVERIFY(QFile::remove(zones.link()));
    QTRY_COMPARE(changes, 1);
    QVERIFY(QFile::link(zones.path(QStringLiteral("zones/Lisbon")), zones.link()));
    QTRY_COMPARE(changes, 2);
    zones.write(QStringLiteral("zones/Lisbon"), "another zone, corrected");
    QTRY_VERIFY(changes > 2);
}

void tst_ZoneWatch::doesNotTellOfItsNeighbours()
{
    const Zones zones;
    int changes = 0;
    QFileSystemWatcher folder({zones.path(QStringLiteral("etc"))});
    QSignalSpy seen(&folder, &QFileSystemWatcher::directoryChanged);
    QVERIFY(seen.isValid());
    const ZoneWatch watch([&changes] { ++changes; }, zones.link());
    zones.write(QStringLiteral("etc/hosts"), "127.0.0.1 localhost");
    QTRY_VERIFY(!seen.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(changes, 0);
}

void tst_ZoneWatch::mayBeDoneAwayWithWhileItTells()
{
    const Zones zones;
    bool isTold = false;
    std::unique_ptr<ZoneWatch> watch;
    watch = std::make_unique<ZoneWatch>(
        [&] {
            watch.reset();
            isTold = true;
        },
        zones.link());
    zones.replaceBy(QStringLiteral("zones/Lisbon"));
    QTRY_VERIFY(isTold);
}

TREL_TEST(tst_ZoneWatch, QCoreApplication)
#include "tst_ZoneWatch.moc"
