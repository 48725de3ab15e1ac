#include <QProcess>
#include <QtTest>

class TestPromptAnswer : public QObject
{
    Q_OBJECT

private slots:
    void failsAndEnds_data();
    void failsAndEnds();
};

void TestPromptAnswer::failsAndEnds_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("unexpectedPrompt") << QStringLiteral("a prompt that nobody expected: Refused");
    QTest::newRow("oneAnswerTooFew") << QStringLiteral("a prompt that nobody expected: Refused");
    QTest::newRow("promptThatNeverCame") << QStringLiteral("1 expected prompt(s) did not appear");
    QTest::newRow("buttonThatIsNotShown") << QStringLiteral("the prompt did not take its answer");
}

void TestPromptAnswer::failsAndEnds()
{
    QFETCH(QString, words);
    QProcess process;
    process.start(QStringLiteral(FAILURES), {QLatin1String(QTest::currentDataTag())});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(output.contains(words), qPrintable(output));
}

QTEST_GUILESS_MAIN(TestPromptAnswer)
#include "tst_PromptAnswer.moc"
