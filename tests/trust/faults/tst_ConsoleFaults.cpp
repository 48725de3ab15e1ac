#include "FaultTrial.h"

#include <QtTest>

/// What a command of the console makes of a disk that fails at one of its questions: some of the
/// faults that trust_faults tries in full.
class tst_ConsoleFaults : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyCallFailsOnce_data();
    void everyCallFailsOnce();
};

void tst_ConsoleFaults::init()
{
    if (!WatchedProcess::isPossible()) {
        QSKIP("This system does not tell of the calls of a process.");
    }
}

void tst_ConsoleFaults::everyCallFailsOnce_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("call");
    for (const char* command :
         {"import, new", "import, empty file", "remove-program", "export", "export --bundle"}) {
        for (const FileCall call : {FileCall::Look, FileCall::Rename, FileCall::Mode}) {
            QTest::addRow("%s: %s", command, nameOf(call))
                << QString::fromLatin1(command) << int(call);
        }
    }
}

void tst_ConsoleFaults::everyCallFailsOnce()
{
    QFETCH(QString, command);
    QFETCH(int, call);
    static const TrialFolder folder(QStringLiteral(SCHEDULECTL));
    TrialProgram program("faults");
    FaultTrial trial(program, folder);
    for (const WritingCommand& one : writingCommands()) {
        if (command != QLatin1String(one.name)) {
            continue;
        }
        for (const Fault& fault : trial.find(one)) {
            if (fault.call == FileCall(call) && !fault.isForGood) {
                trial.attempt(fault);
            }
        }
    }
    QVERIFY(!program.hasFaults());
}

QTEST_GUILESS_MAIN(tst_ConsoleFaults)
#include "tst_ConsoleFaults.moc"
