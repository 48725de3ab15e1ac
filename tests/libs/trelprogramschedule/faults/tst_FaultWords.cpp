#include "support/TestProgram.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// A fault with more arguments than any code takes. Errors of the system are numbers.
Fault faultWith(FaultCode code, const QString& text)
{
    return {code, {text, text, QStringLiteral("5")}};
}

} // namespace

/// The English words and the names for machines of everything that can go wrong.
class tst_FaultWords : public QObject
{
    Q_OBJECT

private slots:
    void everyCodeHasANameOfItsOwn();
    void everyCodeHasWords();
    void everyStoreProblemHasANameAndWords();
    void anAnswerThatIsLostIsNoMatterOfDisks();
    void whatLooksLikeAPlaceStaysAsItIs();
    void aClauseBecomesASentence();
    void theErrorOfTheSystemIsWorded();
    void kindsOfValuesAreWorded();
    void aPlaceInAFileStandsInFront();
    void nothingHasNoWords();
};

void tst_FaultWords::everyCodeHasANameOfItsOwn()
{
    const QRegularExpression form(QStringLiteral("^[a-z][A-Za-z0-9]+$"));
    QSet<QString> names;
    for (int code = 1; code < kFaultCodes; ++code) {
        const QString name = faultName(static_cast<FaultCode>(code));
        QVERIFY2(form.match(name).hasMatch() && !names.contains(name), qPrintable(name));
        names.insert(name);
    }
}

void tst_FaultWords::everyCodeHasWords()
{
    const QRegularExpression place(QStringLiteral("%\\d"));
    QSet<QString> clauses;
    for (int code = 1; code < kFaultCodes; ++code) {
        const QString clause =
            englishClause(faultWith(static_cast<FaultCode>(code), QStringLiteral("17")));
        QVERIFY2(!clause.isEmpty() && !clause.contains(place) && !clause.endsWith(QLatin1Char('.')),
                 qPrintable(clause));
        clauses.insert(clause);
    }
    QVERIFY2(clauses.size() > kFaultCodes - 5, qPrintable(QString::number(clauses.size())));
}

void tst_FaultWords::everyStoreProblemHasANameAndWords()
{
    QSet<QString> names;
    for (int number = 1; number < kStoreProblems; ++number) {
        const auto problem = static_cast<StoreProblem>(number);
        names.insert(storeProblemName(problem));
        const QString text = englishText(
            StoreResult{problem, QStringLiteral("/a %2.db"), {FaultCode::NoMemory, {}}});
        QVERIFY2(text.endsWith(QLatin1Char('.')), qPrintable(text));
        QVERIFY2(problem == StoreProblem::NotOpen || text.contains(QStringLiteral("/a %2.db")),
                 qPrintable(text));
    }
    QCOMPARE(names.size(), kStoreProblems - 1);
    QVERIFY(!names.contains(QString()));
}

void tst_FaultWords::anAnswerThatIsLostIsNoMatterOfDisks()
{
    const StoreResult onServer{
        StoreProblem::Unclear, QStringLiteral("postgresql:%2"), {FaultCode::AnswerLost, {}}};
    QCOMPARE(englishText(onServer),
             QStringLiteral("postgresql:%2 may have been written, or not: the connection was lost "
                            "before the server answered. Once the server can be reached again, see "
                            "whether the change is there before you go on."));
    const StoreResult onDisk{
        StoreProblem::Unclear, QStringLiteral("/a.db"), {FaultCode::DiskError, {}}};
    QVERIFY(englishText(onDisk).contains(QLatin1String("another disk")));
}

void tst_FaultWords::whatLooksLikeAPlaceStaysAsItIs()
{
    QCOMPARE(
        englishClause(faultOf(FaultCode::OtherFormat, QStringLiteral("%2"), QStringLiteral("%1"))),
        QStringLiteral("this is \"%2\", not \"%1\""));
}

void tst_FaultWords::aClauseBecomesASentence()
{
    QCOMPARE(englishSentence({FaultCode::EmptyFile, {}}), QStringLiteral("It is empty."));
}

void tst_FaultWords::theErrorOfTheSystemIsWorded()
{
    QCOMPARE(englishClause(faultOf(FaultCode::System, ENOENT)), qt_error_string(ENOENT));
    QCOMPARE(englishClause(faultOf(FaultCode::CannotOpen, EMFILE)),
             QStringLiteral("it cannot be opened: ") + qt_error_string(EMFILE));
    QCOMPARE(englishClause(
                 faultOf(FaultCode::DatabaseOnSystem, 10, QStringLiteral("disk I/O error"), EIO)),
             QStringLiteral("disk I/O error (%1)").arg(qt_error_string(EIO)));
}

void tst_FaultWords::kindsOfValuesAreWorded()
{
    for (const char* kind :
         {"null", "boolean", "number", "text", "array", "object", "wholeNumber", "wholeNumberText",
          "programNumber", "otherNumber", "hash", "otherText", "size"}) {
        const QString clause = englishClause(
            faultOf(FaultCode::OtherKind, QString::fromLatin1(kind), QStringLiteral("array")));
        QVERIFY2(clause.endsWith(QStringLiteral(" is expected here, not an array")) &&
                     !clause.startsWith(QLatin1Char(' ')),
                 qPrintable(clause));
    }
}

void tst_FaultWords::aPlaceInAFileStandsInFront()
{
    ScheduleFromJson schedule;
    schedule.fault = {FaultCode::NotBase64, {}};
    QCOMPARE(englishText(schedule), QStringLiteral("this text is not in Base64"));
    schedule.place = QStringLiteral("tasks[0]");
    schedule.line = 7;
    QCOMPARE(englishText(schedule),
             QStringLiteral("tasks[0] (line 7): this text is not in Base64"));
}

void tst_FaultWords::nothingHasNoWords()
{
    QCOMPARE(englishSentence({}), QString());
    QCOMPARE(englishText(StoreResult()), QString());
    QCOMPARE(englishText(ScheduleFromJson()), QString());
    QCOMPARE(faultName(FaultCode::None), QString());
    QVERIFY(!Fault());
}

TREL_TEST(tst_FaultWords, trel::tests::NoApplication)
#include "tst_FaultWords.moc"
