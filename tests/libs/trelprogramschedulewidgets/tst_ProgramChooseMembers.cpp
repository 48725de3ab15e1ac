#include "ChooserFixture.h"

#include "support/PrivateMember.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QCoreApplication>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

struct CheckedCount
{
    using Type = int ProgramChoose::*;
    friend Type revealed(CheckedCount);
};

struct CheckOrderMap
{
    using Type = QMap<int, int> ProgramChoose::*;
    friend Type revealed(CheckOrderMap);
};

template struct RevealedMember<CheckedCount, &ProgramChoose::m_checkedCount>;
template struct RevealedMember<CheckOrderMap, &ProgramChoose::m_checkOrder>;

namespace {

using Places = QMap<int, int>;

int& countOf(const ChooserWindow& chooser)
{
    return qobject_cast<ProgramChoose*>(chooser.chooser())->*revealed(CheckedCount());
}

Places& placesOf(const ChooserWindow& chooser)
{
    return qobject_cast<ProgramChoose*>(chooser.chooser())->*revealed(CheckOrderMap());
}

/// A chooser that takes down the events which come to it as an event filter.
class FilteringChooser : public ProgramChoose
{
public:
    using ProgramChoose::ProgramChoose;

    QList<QObject*> watched;

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::User) {
            watched.append(object);
        }
        return ProgramChoose::eventFilter(object, event);
    }
};

} // namespace

/// What the chooser keeps of its left table: the order of checking in members of its own, and a
/// filter on the events of the table.
class tst_ProgramChooseMembers : public QObject
{
    Q_OBJECT

private slots:
    void theOrderOfCheckingIsKeptInMembers();
    void theMembersHoldTheTruth();
    void theLeftTableIsFiltered();
};

void tst_ProgramChooseMembers::theOrderOfCheckingIsKeptInMembers()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        QCOMPARE(countOf(chooser), -1);
        QCOMPARE(placesOf(chooser), Places());
        chooser.checkPrograms({5, 1, 3});
        QCOMPARE(countOf(chooser), 3);
        QCOMPARE(placesOf(chooser), (Places{{5, 1}, {1, 2}, {3, 3}}));
        chooser.checkProgram(1);
        QCOMPARE(countOf(chooser), 2);
        QCOMPARE(placesOf(chooser), (Places{{5, 1}, {3, 2}}));
        chooser.checkAllPrograms();
        QCOMPARE(countOf(chooser), 6);
        QCOMPARE(placesOf(chooser), (Places{{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}}));
        chooser.checkAllPrograms();
        QCOMPARE(countOf(chooser), 0);
        QCOMPARE(placesOf(chooser), Places());
        // Unchecked again, row by row.
        auto* const dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
        dialog->slotChecked(ProgramListCheck, 0, false);
        dialog->slotChecked(ProgramListCheck, 1, false);
        QCOMPARE(countOf(chooser), -1);
        chooser.cancel();
    });
}

void tst_ProgramChooseMembers::theMembersHoldTheTruth()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkPrograms({0, 1});
        placesOf(chooser) = {{4, 1}, {2, 2}};
        countOf(chooser) = 7;
        chooser.checkProgram(5);
        QCOMPARE(chooser.programRows().at(5), QStringLiteral("[x]08 F"));
        QCOMPARE(countOf(chooser), 8);
        chooser.choose();
        QCOMPARE(chooser.planRows().join(QLatin1Char('|')),
                 QStringLiteral("[ ]01 E x1|[ ]02 C x1|[ ]03 F x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseMembers::theLeftTableIsFiltered()
{
    ChooserFixture fixture;
    FilteringChooser chooser(&fixture.task, ChooserFixture::kTask, ChooserFixture::kPlan,
                             &fixture.caller, true);
    const auto tables = chooser.findChildren<QTableView*>();
    QCOMPARE(tables.size(), 2);
    for (QTableView* const table : tables) {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(table, &event);
    }
    QCOMPARE(chooser.watched, QList<QObject*>{tables.first()});
}

TREL_TEST(tst_ProgramChooseMembers, QApplication)

#include "tst_ProgramChooseMembers.moc"
