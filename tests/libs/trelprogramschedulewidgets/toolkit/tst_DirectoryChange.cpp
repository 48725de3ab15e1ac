#include "support/TestProgram.h"
#include "toolkit/DirectoryChange.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

#include <algorithm>

using trel::mediadispatch::DirectoryChange;
using trel::mediadispatch::directoryChange;

namespace {

QStringList words(const QString& line)
{
    return line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString sorted(QStringList names)
{
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// The comparison by its plain steps: a set of either list, what one has and the other lacks, and
/// back to lists.
DirectoryChange byPlainSteps(const QStringList& former, const QStringList& fresh)
{
    const QSet<QString> currentSet(former.begin(), former.end());
    const QSet<QString> freshSet(fresh.begin(), fresh.end());
    QSet<QString> added = freshSet;
    added.subtract(currentSet);
    QSet<QString> removed = currentSet;
    removed.subtract(freshSet);
    return {added.values(), removed.values()};
}

/// What one list has and the other lacks, with no set at all.
QStringList lacking(const QStringList& names, const QStringList& others)
{
    QStringList result;
    std::copy_if(names.begin(), names.end(), std::back_inserter(result),
                 [&](const QString& name) { return !others.contains(name); });
    result.removeDuplicates();
    return result;
}

} // namespace

class tst_DirectoryChange : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatCameAndWhatWent_data();
    void tellsWhatCameAndWhatWent();
    void agreesWithThePlainSteps();
    void takesLargeDirectories();
};

void tst_DirectoryChange::tellsWhatCameAndWhatWent_data()
{
    QTest::addColumn<QString>("former");
    QTest::addColumn<QString>("fresh");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QString>("removed");

    const auto row = [](const char* name, const char* former, const char* fresh, const char* added,
                        const char* removed) {
        QTest::newRow(name) << QString::fromLatin1(former) << QString::fromLatin1(fresh)
                            << QString::fromLatin1(added) << QString::fromLatin1(removed);
    };
    row("nothing at all", "", "", "", "");
    row("the same", "a b", "a b", "", "");
    row("another order", "a b", "b a", "", "");
    row("from nothing", "", "a b", "a b", "");
    row("to nothing", "a b", "", "", "a b");
    row("one more", "a c", "a b c", "b", "");
    row("one less", "a b c", "a c", "", "b");
    row("renamed", "a b", "a c", "c", "b");
    row("all others", "a b", "c d e", "c d e", "a b");
    row("case counts", "a", "A", "A", "a");
}

void tst_DirectoryChange::tellsWhatCameAndWhatWent()
{
    QFETCH(const QString, former);
    QFETCH(const QString, fresh);
    QFETCH(const QString, added);
    QFETCH(const QString, removed);
    const DirectoryChange change = directoryChange(words(former), words(fresh));
    QCOMPARE(sorted(change.added), added);
    QCOMPARE(sorted(change.removed), removed);
}

void tst_DirectoryChange::agreesWithThePlainSteps()
{
    QRandomGenerator random(20240229);
    const auto someNames = [&random] {
        QStringList names;
        const int count = random.bounded(40);
        for (int i = 0; i < count; ++i)
            names << QString::number(random.bounded(60));
        return names;
    };
    for (int round = 0; round < 2000; ++round) {
        const QStringList former = someNames();
        const QStringList fresh = someNames();
        const DirectoryChange change = directoryChange(former, fresh);
        const DirectoryChange expected = byPlainSteps(former, fresh);
        QCOMPARE(change.added, expected.added);
        QCOMPARE(change.removed, expected.removed);
        QCOMPARE(sorted(change.added), sorted(lacking(fresh, former)));
        QCOMPARE(sorted(change.removed), sorted(lacking(former, fresh)));
    }
}

void tst_DirectoryChange::takesLargeDirectories()
{
    // A comparison of every name with every other would not come back before the test is ended.
    constexpr int kEntries = 500000;
    QStringList former;
    QStringList fresh;
    for (int i = 0; i < kEntries; ++i) {
        former << QStringLiteral("clip-%1.mp4").arg(i);
        fresh << QStringLiteral("clip-%1.mp4").arg(i + 2);
    }
    const DirectoryChange change = directoryChange(former, fresh);
    QCOMPARE(sorted(change.removed), QStringLiteral("clip-0.mp4 clip-1.mp4"));
    QCOMPARE(sorted(change.added), QStringLiteral("clip-500000.mp4 clip-500001.mp4"));
}

TREL_TEST(tst_DirectoryChange, QCoreApplication)

#include "tst_DirectoryChange.moc"
