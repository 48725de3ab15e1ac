#include "catalogue/ProgramFileWatch.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <memory>

using namespace trel::mediadispatch;
using namespace std::chrono_literals;

namespace {

/// Long enough for a test not to live to see it.
constexpr std::chrono::milliseconds kNotInThisTest = 24h;

bool isFile(const QString& path)
{
    return QFileInfo(path).isFile();
}

/// Looks at once when the system tells of a change, and otherwise not at all.
FileScanHabits promptly()
{
    FileScanHabits habits;
    habits.gather = 1ms;
    habits.rest = 0;
    habits.round = kNotInThisTest;
    return habits;
}

/// Looks again and again, without any help of the system.
FileScanHabits roundAndRound()
{
    FileScanHabits habits;
    habits.rest = 0;
    habits.round = 20ms;
    habits.mostFolders = 0;
    return habits;
}

} // namespace

/// Files that come and go under a watch.
class tst_ProgramFileWatch : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void removed_data();
    void removed();
    void comesBackWithItsFolder();
    void severalAtOnce();
    void knownFilesAreNotTold();
    void onlyTheFolderThatChanged();
    void foldersBeyondTheBound();
    void formerFilesAreNotTold();
    void answersWhileAServerDoesNot();
    void manyFiles();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString touch(const QString& name) const
    {
        QFile file(path(name));
        QFileInfo(file).dir().mkpath(QStringLiteral("."));
        [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
        return file.fileName();
    }
    static void note(QStringList& lines, const ProgramFiles& files)
    {
        for (const ProgramFile& file : files) {
            lines.append(QStringLiteral("%1 %2")
                             .arg(file.progIndex)
                             .arg(QLatin1String(file.isThere ? "came" : "went")));
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ProgramFileWatch::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_ProgramFileWatch::removed_data()
{
    QTest::addColumn<bool>("isTold");
    QTest::newRow("the system tells") << true;
    QTest::newRow("found by a round") << false;
}

void tst_ProgramFileWatch::removed()
{
    QFETCH(bool, isTold);
    const QString film = touch(QStringLiteral("film"));
    QStringList lines;
    ProgramFileWatch watch(
        [&] {
            return ProgramFiles{{7, film, true}, {8, path({}), false}};
        },
        isTold ? promptly() : roundAndRound());
    connect(&watch, &ProgramFileWatch::found, this, [&](const auto& files) { note(lines, files); });
    watch.renew();

    QVERIFY(QFile::remove(film));
    QTRY_COMPARE(lines, QStringList{QStringLiteral("7 went")});
    touch(QStringLiteral("film"));
    QTRY_COMPARE(lines.mid(1), QStringList{QStringLiteral("7 came")});
    // Another name is as good as none, and a folder is no film.
    QVERIFY(QFile::rename(film, path(QStringLiteral("other"))));
    QTRY_COMPARE(lines.mid(2), QStringList{QStringLiteral("7 went")});
    QVERIFY(QDir().mkdir(film));
    touch(QStringLiteral("film/inside"));
    QVERIFY(QDir(film).removeRecursively());
    QVERIFY(QFile::rename(path(QStringLiteral("other")), film));
    QTRY_COMPARE(lines.mid(3), QStringList{QStringLiteral("7 came")});
}

void tst_ProgramFileWatch::comesBackWithItsFolder()
{
    const QString film = touch(QStringLiteral("disk/films/film"));
    QStringList lines;
    ProgramFileWatch watch([&] { return ProgramFiles{{7, film, true}}; }, promptly());
    connect(&watch, &ProgramFileWatch::found, this, [&](const auto& files) { note(lines, files); });
    watch.renew();

    for (int round = 0; round < 2; ++round) {
        lines.clear();
        QVERIFY(QDir(path(QStringLiteral("disk"))).removeRecursively());
        QTRY_COMPARE(lines, QStringList{QStringLiteral("7 went")});
        touch(QStringLiteral("disk/films/film"));
        QTRY_COMPARE(lines.mid(1), QStringList{QStringLiteral("7 came")});
    }
}

void tst_ProgramFileWatch::severalAtOnce()
{
    ProgramFiles files;
    for (int number = 0; number < 50; ++number) {
        files.push_back({number, touch(QStringLiteral("%1").arg(number)), true});
    }
    FileScanHabits habits = promptly();
    habits.gather = 300ms;
    QStringList lines;
    ProgramFileWatch watch([&] { return files; }, habits);
    connect(&watch, &ProgramFileWatch::found, this, [&](const auto& some) { note(lines, some); });
    watch.renew();
    for (const ProgramFile& file : files) {
        QVERIFY(QFile::remove(file.path));
    }
    QTRY_COMPARE(lines.size(), 50);
}

/// What the source knows is told only where it is not so.
void tst_ProgramFileWatch::knownFilesAreNotTold()
{
    const ProgramFiles files = {{1, touch(QStringLiteral("there")), true},
                                {2, touch(QStringLiteral("came meanwhile")), false},
                                {3, path(QStringLiteral("missing")), false},
                                {4, path(QStringLiteral("went meanwhile")), true},
                                {5, QString(), false}};
    int asked = 0;
    QStringList lines;
    ProgramFileWatch watch(
        [&] {
            ++asked;
            return files;
        },
        promptly());
    connect(&watch, &ProgramFileWatch::found, this, [&](const auto& some) { note(lines, some); });
    watch.renew();
    watch.renew();
    QCOMPARE(asked, 0);
    QTRY_COMPARE(lines, (QStringList{QStringLiteral("2 came"), QStringLiteral("4 went")}));
    QCOMPARE(asked, 1);
}

void tst_ProgramFileWatch::onlyTheFolderThatChanged()
{
    const QString left = touch(QStringLiteral("left/film"));
    const QString right = touch(QStringLiteral("right/film"));
    std::atomic<int> looksLeft{0};
    std::atomic<int> looksRight{0};
    FileScanHabits habits = promptly();
    habits.isThere = [&](const QString& path) {
        ++(path == left ? looksLeft : looksRight);
        return isFile(path);
    };
    QStringList lines;
    ProgramFileWatch watch([&] { return ProgramFiles{{1, left, true}, {2, right, true}}; }, habits);
    connect(&watch, &ProgramFileWatch::found, this, [&](const auto& some) { note(lines, some); });
    watch.renew();
    QTRY_COMPARE(looksRight.load(), 1);
    QVERIFY(QFile::remove(left));
    QTRY_COMPARE(lines, QStringList{QStringLiteral("1 went")});
    QVERIFY(looksLeft.load() > 1);
    QCOMPARE(looksRight.load(), 1);
}

/// The folders with the most files have the watches; the others have the rounds.
void tst_ProgramFileWatch::foldersBeyondTheBound()
{
    const ProgramFiles files = {{1, touch(QStringLiteral("a/film")), true},
                                {2, touch(QStringLiteral("b/film")), true},
                                {3, touch(QStringLiteral("b/other")), true}};
    FileScanHabits habits = promptly();
    habits.mostFolders = 1;
    std::atomic<int> looks{0};
    habits.isThere = [&looks](const QString& path) {
        ++looks;
        return isFile(path);
    };
    QStringList lines;
    ProgramFileWatch watch([&] { return files; }, habits);
    connect(&watch, &ProgramFileWatch::found, this, [&](const auto& some) { note(lines, some); });
    watch.renew();
    QTRY_COMPARE(looks.load(), 3);
    QVERIFY(QFile::remove(files[0].path));
    QVERIFY(QFile::remove(files[1].path));
    QTRY_COMPARE(lines, QStringList{QStringLiteral("2 went")});
}

void tst_ProgramFileWatch::formerFilesAreNotTold()
{
    QSemaphore answers;
    QSemaphore asked;
    FileScanHabits habits = promptly();
    habits.isThere = [&](const QString& path) {
        asked.release();
        answers.acquire();
        return isFile(path);
    };
    ProgramFiles files = {{1, path(QStringLiteral("former")), true}};
    QStringList lines;
    ProgramFileWatch watch([&] { return files; }, habits);
    connect(&watch, &ProgramFileWatch::found, this, [&](const auto& some) { note(lines, some); });
    watch.renew();
    QTRY_VERIFY(asked.available() > 0);
    files = {{2, path(QStringLiteral("new")), true}};
    watch.renew();
    answers.release(2);
    QTRY_COMPARE(lines, QStringList{QStringLiteral("2 went")});
    answers.release(100);
}

/// A call that does not come back keeps neither the owner nor its end waiting.
void tst_ProgramFileWatch::answersWhileAServerDoesNot()
{
    // Outlive the watch in the thread that is left to its own.
    const auto answers = std::make_shared<QSemaphore>();
    const auto asked = std::make_shared<QSemaphore>();
    const auto ended = std::make_shared<QSemaphore>();
    FileScanHabits habits = promptly();
    std::shared_ptr<void> end(nullptr, [ended](void*) { ended->release(); });
    habits.isThere = [answers, asked, end](const QString&) {
        asked->release();
        answers->acquire();
        return false;
    };
    bool isTold = false;
    auto watch = std::make_unique<ProgramFileWatch>(
        [&] {
            return ProgramFiles{{1, path(QStringLiteral("film")), true}};
        },
        habits);
    connect(watch.get(), &ProgramFileWatch::found, this, [&] { isTold = true; });
    watch->renew();
    QTRY_VERIFY(asked->available() > 0);
    watch.reset();
    answers->release();
    habits = FileScanHabits();
    end.reset();
    QTRY_VERIFY(ended->available() > 0);
    QVERIFY(!isTold);
}

void tst_ProgramFileWatch::manyFiles()
{
    constexpr int kCount = 100000;
    ProgramFiles files;
    files.reserve(kCount);
    for (int number = 0; number < kCount; ++number) {
        files.push_back(
            {number, path(QStringLiteral("%1/%2").arg(number % 1000).arg(number)), true});
    }
    int count = 0;
    ProgramFileWatch watch([&] { return files; }, promptly());
    connect(&watch, &ProgramFileWatch::found, this,
            [&](const ProgramFiles& some) { count += static_cast<int>(some.size()); });
    watch.renew();
    QTRY_COMPARE_WITH_TIMEOUT(count, kCount, 60000);
}

TREL_TEST(tst_ProgramFileWatch, QCoreApplication)
#include "tst_ProgramFileWatch.moc"
