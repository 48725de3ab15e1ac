#include "service/ProgramOffers.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

ProgramIten program(int progIndex, const char* name, bool isNull = false)
{
    ProgramIten item;
    item.progIndex = progIndex;
    item.progName = name;
    item.isNull = isNull;
    return item;
}

} // namespace

class tst_ProgramOffers : public QObject
{
    Q_OBJECT

private slots:
    void emptyCatalogueOffersNothing();
    void existingProgramsAreOfferedInTheOrderOfTheCatalogue();
    void aCatalogueThatIsKeptStaysWhole();
};

void tst_ProgramOffers::emptyCatalogueOffersNothing()
{
    QVERIFY(offeredPrograms({}).empty());
}

void tst_ProgramOffers::existingProgramsAreOfferedInTheOrderOfTheCatalogue()
{
    // The index is that of the record, not the key under which it stands.
    const std::vector<struProgInfo> expected = {{9, false, "C", 1}, {2, false, "A", 1}};
    QVERIFY(
        offeredPrograms({{8, program(2, "A")}, {5, program(5, "B", true)}, {1, program(9, "C")}}) ==
        expected);
}

void tst_ProgramOffers::aCatalogueThatIsKeptStaysWhole()
{
    const std::map<int, ProgramIten> catalogue = {{1, program(1, "A")}};
    QCOMPARE(offeredPrograms(catalogue).front().progName, std::string("A"));
    QCOMPARE(catalogue.at(1).progName, std::string("A"));
}

TREL_TEST(tst_ProgramOffers, trel::tests::NoApplication)
#include "tst_ProgramOffers.moc"
