#include "FreedMemory.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <memory>
#include <vector>

using namespace trel::desktop;

/// What becomes of small pieces of memory that are given back.
class tst_FreedMemory : public QObject
{
    Q_OBJECT

private slots:
    void smallPiecesAreNotLeftLying();
};

namespace {

/// Bytes in small pieces that were given back and lie apart.
std::size_t bytesApart()
{
#ifdef __GLIBC__
    return mallinfo2().fsmblks;
#else
    return 0;
#endif
}

struct Piece
{
    char bytes[40];
};

} // namespace

void tst_FreedMemory::smallPiecesAreNotLeftLying()
{
    joinFreedMemoryAtOnce();
    const std::size_t before = bytesApart();
    std::vector<std::unique_ptr<Piece>> pieces(1000);
    for (auto& piece : pieces) {
        piece = std::make_unique<Piece>();
    }
    for (auto& piece : pieces) {
        piece.reset();
    }
    QCOMPARE(bytesApart(), before);
}

TREL_TEST(tst_FreedMemory, trel::tests::NoApplication)
#include "tst_FreedMemory.moc"
