#include "service/ProgramText.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace trel::mediadispatch;

namespace {

struProgInfo entry(int progIndex, bool isInvalid, const char* name)
{
    struProgInfo info;
    info.progIndex = progIndex;
    info.isInvalid = isInvalid;
    info.progName = name;
    return info;
}

ProgramIten lookup(int progIndex)
{
    ProgramIten program;
    program.progIndex = progIndex;
    program.progName = "catalogue " + std::to_string(progIndex);
    program.isNull = progIndex < 0 || progIndex > 100;
    return program;
}

const ProgramSuffixes kSuffixes{QStringLiteral("(invalid)"), QStringLiteral("(null)")};

} // namespace

class tst_ProgramText : public QObject
{
    Q_OBJECT

private slots:
    void textOfOneEntry_data();
    void textOfOneEntry();
    void namesAreUtf8();
    void badEntriesAreNotLookedUp();
    void textOfAList();
    void textOfAnEntryInACatalogue();
};

void tst_ProgramText::textOfOneEntry_data()
{
    QTest::addColumn<int>("progIndex");
    QTest::addColumn<bool>("isInvalid");
    QTest::addColumn<QString>("expected");

    QTest::newRow("in the catalogue") << 3 << false << QStringLiteral("catalogue 3");
    QTest::newRow("gone") << 101 << false << QStringLiteral("catalogue 101(null)");
    QTest::newRow("gone, beyond the last index")
        << 65536 << false << QStringLiteral("catalogue 65536(null)");
    QTest::newRow("bad, still in the catalogue") << 3 << true << QStringLiteral("own(invalid)");
    QTest::newRow("bad and gone") << 101 << true << QStringLiteral("own(invalid)");
    QTest::newRow("bad, last index") << 65535 << true << QStringLiteral("own(invalid)");
    QTest::newRow("tombstone") << 65536 << true << QStringLiteral("own");
    QTest::newRow("tombstone, further up") << 70000 << true << QStringLiteral("own");
    QTest::newRow("bad, no index") << -1 << true << QStringLiteral("own(invalid)");
}

void tst_ProgramText::textOfOneEntry()
{
    QFETCH(int, progIndex);
    QFETCH(bool, isInvalid);
    QFETCH(QString, expected);

    QCOMPARE(programText(entry(progIndex, isInvalid, "own"), lookup, kSuffixes), expected);
}

void tst_ProgramText::namesAreUtf8()
{
    QCOMPARE(programText(entry(65536, true, "\xe8\x8a\x82\xe7\x9b\xae"), lookup, kSuffixes),
             QString::fromUtf8("\xe8\x8a\x82\xe7\x9b\xae"));
}

void tst_ProgramText::badEntriesAreNotLookedUp()
{
    std::vector<int> asked;
    const ProgramLookup recorded = [&asked](int progIndex) {
        asked.push_back(progIndex);
        return lookup(progIndex);
    };
    programListText({entry(1, true, "a"), entry(2, false, "b"), entry(65536, true, "c")}, recorded,
                    kSuffixes);
    QCOMPARE(asked, (std::vector<int>{2}));
}

void tst_ProgramText::textOfAList()
{
    QCOMPARE(programListText({}, lookup, kSuffixes), QString());
    QCOMPARE(programListText({entry(1, false, "")}, lookup, kSuffixes),
             QStringLiteral("catalogue 1"));
    QCOMPARE(programListText({entry(1, false, ""), entry(1, true, "own"), entry(200, false, "")},
                             lookup, kSuffixes),
             QStringLiteral("catalogue 1,own(invalid),catalogue 200(null)"));
    QCOMPARE(programListText({entry(65536, true, ""), entry(65536, true, "")}, lookup, kSuffixes),
             QStringLiteral(","));
}

void tst_ProgramText::textOfAnEntryInACatalogue()
{
    std::map<int, ProgramIten> catalogue = {{3, lookup(3)}, {200, lookup(200)}};
    QCOMPARE(entryText(entry(3, false, "own"), catalogue, kSuffixes),
             QStringLiteral("catalogue 3"));
    QCOMPARE(entryText(entry(200, false, "own"), catalogue, kSuffixes),
             QStringLiteral("catalogue 200(null)"));
    QCOMPARE(entryText(entry(4, false, "own"), catalogue, kSuffixes), QStringLiteral("own(null)"));
    QCOMPARE(entryText(entry(4, true, "own"), catalogue, kSuffixes),
             QStringLiteral("own(invalid)"));
    QCOMPARE(entryText(entry(65536, true, "own"), catalogue, kSuffixes), QStringLiteral("own"));
}

TREL_TEST(tst_ProgramText, trel::tests::NoApplication)
#include "tst_ProgramText.moc"
