#include "schedule/OtherNames.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::console;
using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

std::map<int, ProgramIten> programs(const std::map<int, const char*>& names)
{
    std::map<int, ProgramIten> made;
    for (const auto& [index, name] : names) {
        made[index].progIndex = index;
        made[index].progName = name;
    }
    return made;
}

/// A task of plans with these entries each.
PlayTask task(int id, const std::vector<std::vector<struProgInfo>>& lists)
{
    PlayTask made;
    made.id = id;
    for (const std::vector<struProgInfo>& list : lists) {
        made.plans.emplace_back().programs = list;
    }
    return made;
}

/// Such as "2 Sports Weather", a line each.
QStringList lines(const std::vector<OtherName>& names)
{
    QStringList all;
    for (const OtherName& name : names) {
        all.append(QStringLiteral("%1 %2 %3")
                       .arg(QString::number(name.progIndex), name.inEntries, name.inCatalogue));
    }
    return all;
}

} // namespace

/// Programs that a schedule calls otherwise than the catalogue.
class tst_OtherNames : public QObject
{
    Q_OBJECT

private slots:
    void theFirstOfEachProgram();
    void whatIsNoOtherName();
    void eightAreTold();
};

void tst_OtherNames::theFirstOfEachProgram()
{
    const auto catalogue = programs({{1, "News"}, {2, "Weather"}, {3, "Spot"}});
    const Tasks tasks = {{1, task(1, {{{1, false, "News", 1}}, {{3, false, "Film", 1}}})},
                         {2, task(2, {{{3, false, "Song", 1}, {2, false, "weather", 2}}})}};
    QCOMPARE(lines(otherNames(tasks, catalogue)),
             (QStringList{QStringLiteral("2 weather Weather"), QStringLiteral("3 Film Spot")}));
}

void tst_OtherNames::whatIsNoOtherName()
{
    const auto catalogue = programs({{1, "News"}, {2, "Weather"}});
    const Tasks tasks = {{1, task(1, {{{1, false, "News", 1},
                                       {2, true, "Sports", 1},
                                       {2, false, "", 1},
                                       {3, false, "Film", 1},
                                       {65536, true, "gone", 1}}})}};
    QCOMPARE(lines(otherNames(tasks, catalogue)), QStringList());
    QCOMPARE(lines(otherNames({}, catalogue)), QStringList());
}

void tst_OtherNames::eightAreTold()
{
    QCOMPARE(otherNamesTexts({}), QStringList());
    std::vector<OtherName> names;
    for (int index = 1; index <= 8; ++index) {
        names.push_back({index, QStringLiteral("a\nb"), QStringLiteral("c")});
    }
    QCOMPARE(otherNamesTexts(names).size(), 8);
    QCOMPARE(otherNamesTexts(names).first(),
             QStringLiteral("Program 1 is \"a\\nb\" in this schedule, and \"c\" in the catalog:"
                            " what plays is the latter."));
    names.push_back(names.back());
    QCOMPARE(otherNamesTexts(names).size(), 9);
    QCOMPARE(otherNamesTexts(names).last(), QStringLiteral("So it is with 1 program more."));
    names.push_back(names.back());
    QCOMPARE(otherNamesTexts(names).last(), QStringLiteral("So it is with 2 programs more."));
}

TREL_TEST(tst_OtherNames, trel::tests::NoApplication)
#include "tst_OtherNames.moc"
