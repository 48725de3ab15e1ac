#include "history/FormerTasks.h"
#include "history/PackedBytes.h"
#include "history/TaskAspects.h"
#include "support/RandomEdits.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

constexpr unsigned kSeed = 20261123;

/// All aspects of a task put into another one, as they come out of a store.
bool putAll(const PlayTask& from, PlayTask& into)
{
    BytePacker packer;
    bool isRead = true;
    for (const TaskAspect aspect : kTaskAspects) {
        const auto bytes = unpacked(packer.packed(aspectBytes(aspect, from)));
        isRead = isRead && bytes && readAspect(aspect, *bytes, into);
    }
    return isRead;
}

} // namespace

/// The bytes in which former tasks are kept.
class tst_TaskAspects : public QObject
{
    Q_OBJECT

private slots:
    void everyTaskComesBack();
    void anAspectTellsItsFieldsAlone();
    void whatIsCutOrAlteredDoesNotCrash();
    void whatIsNotWholeIsRefused();
    void piecesComeBackInParts();
    void packingIsSmallerOrPlain();
    void hugeClaimsAreRefused();
};

void tst_TaskAspects::everyTaskComesBack()
{
    std::mt19937 random(kSeed);
    TaskMap tasks;
    PlayTask former;
    int seen = 0;
    for (int round = 0; round < 3000; ++round) {
        editAtRandom(tasks, random);
        for (const auto& [id, task] : tasks) {
            // Into whatever was there before.
            PlayTask read = former;
            read.id = id;
            QVERIFY(putAll(task, read));
            QVERIFY2(read == task, qPrintable(QString::number(round)));
            former = task;
            ++seen;
        }
    }
    QVERIFY(seen > 3000);
}

void tst_TaskAspects::anAspectTellsItsFieldsAlone()
{
    std::mt19937 random(kSeed);
    TaskMap tasks = sampleSchedule(5, 2, 2);
    int differences = 0;
    for (int round = 0; round < 3000; ++round) {
        const TaskMap before = tasks;
        editAtRandom(tasks, random);
        for (const auto& [id, task] : tasks) {
            const auto former = before.find(id);
            if (former == before.end()) {
                continue;
            }
            bool isAllSame = true;
            for (const TaskAspect aspect : kTaskAspects) {
                const bool isSameHere = isSame(aspect, former->second, task);
                QCOMPARE(aspectBytes(aspect, former->second) == aspectBytes(aspect, task),
                         isSameHere);
                isAllSame = isAllSame && isSameHere;
            }
            QCOMPARE(isAllSame, former->second == task);
            differences += isAllSame ? 0 : 1;
        }
    }
    QVERIFY(differences > 300);
}

void tst_TaskAspects::whatIsCutOrAlteredDoesNotCrash()
{
    std::mt19937 random(kSeed);
    const PlayTask task = everyFieldTask(3);
    for (const TaskAspect aspect : kTaskAspects) {
        const QByteArray whole = aspectBytes(aspect, task);
        for (int size = 0; size < whole.size(); ++size) {
            PlayTask read;
            QVERIFY(!readAspect(aspect, whole.left(size), read));
        }
        PlayTask read;
        QVERIFY(!readAspect(aspect, whole + 'x', read));
        for (int round = 0; round < 5000; ++round) {
            QByteArray other = whole;
            for (int change = 0; change < 3; ++change) {
                other[int(random() % unsigned(other.size()))] = char(random());
            }
            PlayTask any;
            readAspect(aspect, other, any);
            QVERIFY(any.plans.size() <= std::size_t(other.size()));
        }
    }
}

void tst_TaskAspects::whatIsNotWholeIsRefused()
{
    const PlayTask task = everyFieldTask(3);
    PlayTask shorter = task;
    shorter.plans.pop_back();
    const auto piece = [](TaskAspect aspect, const PlayTask& of) {
        return FormerPiece{3, aspect, aspectBytes(aspect, of)};
    };
    {
        FormerTasks former({});
        QVERIFY(former.put(piece(TaskAspect::Lists, task)));
        QVERIFY(former.put(piece(TaskAspect::Fields, task)));
        QVERIFY(former.put(piece(TaskAspect::Dates, task)));
        // The first of a name counts.
        QVERIFY(former.put(piece(TaskAspect::Fields, shorter)));
        QVERIFY(former.put({3, TaskAspect::Dates, {}}));
        QVERIFY(former.take() == TaskMap({{3, task}}));
    }
    {
        FormerTasks former({});
        QVERIFY(former.put(piece(TaskAspect::Dates, task)));
        QVERIFY(former.put(piece(TaskAspect::Lists, task)));
        QVERIFY(!former.take());
    }
    {
        FormerTasks former({{3, task}});
        QVERIFY(former.put(piece(TaskAspect::Fields, shorter)));
        QVERIFY(!former.take());
    }
    {
        FormerTasks former({{3, task}});
        QVERIFY(former.put({3, TaskAspect::Dates, {}}));
        QVERIFY(former.take()->empty());
    }
    FormerTasks former({{3, task}});
    QVERIFY(!former.put({3, TaskAspect::Fields, {}}));
    QVERIFY(!former.put({4, TaskAspect::Lists, "what"}));
}

void tst_TaskAspects::piecesComeBackInParts()
{
    std::mt19937 random(kSeed);
    for (int round = 0; round < 30; ++round) {
        PieceWriter writer;
        std::vector<FormerPiece> pieces;
        for (int id = 0; id < round; ++id) {
            QByteArray noise(int(random() % (id % 7 == 6 ? 900000U : 3000U)), 'a');
            for (int place = 0; place < noise.size(); place += 2) {
                noise[place] = char(random());
            }
            pieces.push_back({id - 5, TaskAspect(id % 3), noise});
            writer.add(pieces.back());
        }
        const std::vector<QByteArray> parts = writer.take();
        QVERIFY(!parts.empty());
        PieceReader reader;
        for (const QByteArray& part : parts) {
            QVERIFY(!reader.isWhole());
            QVERIFY(part.size() < 768 * 1024);
            QVERIFY(reader.add(part));
        }
        QVERIFY(reader.isWhole());
        QVERIFY(!reader.add(parts.back()));
        QCOMPARE(reader.pieces().size(), pieces.size());
        for (std::size_t place = 0; place < pieces.size(); ++place) {
            QCOMPARE(reader.pieces()[place].taskId, pieces[place].taskId);
            QCOMPARE(reader.pieces()[place].aspect, pieces[place].aspect);
            QVERIFY(reader.pieces()[place].bytes == pieces[place].bytes);
        }
    }
}

void tst_TaskAspects::packingIsSmallerOrPlain()
{
    std::mt19937 random(kSeed);
    BytePacker packer;
    for (int size = 0; size < 9000; size += 7) {
        QByteArray noise(size, 'a');
        for (int place = 0; place < size && size % 2 == 0; ++place) {
            noise[place] = char(random());
        }
        const QByteArray packed = packer.packed(noise);
        QVERIFY(packed.size() <= size + 1);
        QVERIFY(size < 3000 || size % 2 == 0 || packed.size() < size / 4);
        QVERIFY(unpacked(packed) == noise);
    }
}

void tst_TaskAspects::hugeClaimsAreRefused()
{
    BytePacker packer;
    QByteArray packed = packer.packed(QByteArray(100000, 'a'));
    QVERIFY(packed.size() < 1000);
    QVERIFY(unpacked(packed));
    packed[1] = 0x7f;
    QVERIFY(!unpacked(packed));
    packed[1] = 0;
    packed[4] = char(packed[4] + 1);
    QVERIFY(!unpacked(packed));
    packed[4] = char(packed[4] - 2);
    QVERIFY(!unpacked(packed));
}

TREL_TEST(tst_TaskAspects, QCoreApplication)
#include "tst_TaskAspects.moc"
