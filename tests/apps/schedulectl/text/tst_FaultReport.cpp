#include "support/TestProgram.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QtTest>

using namespace trel::console;
using namespace trel::mediadispatch;

/// How the console words what a store has refused.
class tst_FaultReport : public QObject
{
    Q_OBJECT

private slots:
    void whereAnotherProgramWasQuickerThereIsAWayOn();
};

void tst_FaultReport::whereAnotherProgramWasQuickerThereIsAWayOn()
{
    for (int problem = 1; problem < kStoreProblems; ++problem) {
        const StoreResult result{static_cast<StoreProblem>(problem), QStringLiteral("/a/b.db"), {}};
        const QString text = refusalText(result);
        QVERIFY(text.startsWith(englishText(result)));
        QCOMPARE(text.endsWith(QStringLiteral(
                     "Look at what is saved now, and run the command again to replace that.")),
                 result.problem == StoreProblem::MovedOn);
    }
}

TREL_TEST(tst_FaultReport, QCoreApplication)
#include "tst_FaultReport.moc"
