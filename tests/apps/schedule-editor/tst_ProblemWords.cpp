#include "HostFixture.h"
#include "ProblemWords.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QRegularExpression>

#include <cerrno>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// A fault with more arguments than any code takes, which are all numbers.
Fault faultWith(FaultCode code)
{
    return {code, {QStringLiteral("17"), QStringLiteral("17"), QStringLiteral("17")}};
}

/// Every text that the host has for a reason, in the language that is selected.
QStringList sentences()
{
    QStringList texts;
    for (int code = 1; code < kFaultCodes; ++code) {
        texts.append(problems::sentence(faultWith(static_cast<FaultCode>(code))));
    }
    for (int number = 1; number < kStoreProblems; ++number) {
        texts.append(problems::sentence(StoreResult{
            static_cast<StoreProblem>(number), QStringLiteral("/17"), {FaultCode::NoMemory, {}}}));
    }
    texts.append(problems::sentence(
        StoreResult{StoreProblem::Unclear, QStringLiteral("/17"), {FaultCode::AnswerLost, {}}}));
    for (const int error : {EACCES, ENOENT, EROFS, ENAMETOOLONG, EMFILE, EBUSY, 17}) {
        texts.append(problems::sentence(faultOf(FaultCode::System, error)));
    }
    for (const char* kind :
         {"null", "boolean", "number", "text", "array", "object", "wholeNumber", "wholeNumberText",
          "programNumber", "otherNumber", "hash", "otherText"}) {
        texts.append(problems::sentence(
            faultOf(FaultCode::OtherKind, QString::fromLatin1(kind), QString::fromLatin1(kind))));
    }
    return texts;
}

} // namespace

/// The host's words for what the service reports, in all languages.
class tst_ProblemWords : public QObject
{
    Q_OBJECT

private slots:
    void everyReasonHasWordsInEveryLanguage_data();
    void everyReasonHasWordsInEveryLanguage();
    void numbersHaveTheirPlural_data();
    void numbersHaveTheirPlural();
    void anAnswerThatIsLostIsNoMatterOfDisks();
    void whatLooksLikeAPlaceStaysAsItIs();
    void aPlaceInAFileIsNamed();
    void nothingHasNoWords();
};

void tst_ProblemWords::everyReasonHasWordsInEveryLanguage_data()
{
    QTest::addColumn<bool>("isEnglish");
    const QStringList files =
        QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")});
    QCOMPARE(files.size(), 10);
    for (const QString& file : files) {
        QTest::newRow(qPrintable(file.left(5))) << file.startsWith(QLatin1String("en"));
    }
}

void tst_ProblemWords::everyReasonHasWordsInEveryLanguage()
{
    QFETCH(bool, isEnglish);
    HostFixture fixture;
    const QStringList english = sentences();
    fixture.languages.select(QLatin1String(QTest::currentDataTag()));
    const QStringList texts = sentences();
    // A whole sentence without an empty place, which ends as one does or in a path.
    const QRegularExpression whole(QStringLiteral("^[^%]*\\p{L}[^%]*[.。7]$"));
    for (int i = 0; i < texts.size(); ++i) {
        QVERIFY2(whole.match(texts[i]).hasMatch(), qPrintable(texts[i]));
        QVERIFY2((texts[i] == english[i]) == isEnglish, qPrintable(texts[i]));
    }
    QVERIFY(QSet<QString>(texts.begin(), texts.end()).size() > kFaultCodes + kStoreProblems - 10);
}

void tst_ProblemWords::numbersHaveTheirPlural_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("many");

    QTest::newRow("en_US") << "There is more than 1 task."
                           << "There are more than 5 tasks.";
    QTest::newRow("de_DE") << "Es gibt mehr als 1 Auftrag."
                           << "Es gibt mehr als 5 Aufträge.";
    QTest::newRow("ru_RU") << "Более 1 задания."
                           << "Более 5 заданий.";
    QTest::newRow("ja_JP") << "タスクが 1 件を超えています。"
                           << "タスクが 5 件を超えています。";
}

void tst_ProblemWords::numbersHaveTheirPlural()
{
    QFETCH(QString, one);
    QFETCH(QString, many);
    HostFixture fixture;
    fixture.languages.select(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(problems::sentence(faultOf(FaultCode::TooManyTasks, 1)), one);
    QCOMPARE(problems::sentence(faultOf(FaultCode::TooManyTasks, 5)), many);
}

void tst_ProblemWords::anAnswerThatIsLostIsNoMatterOfDisks()
{
    HostFixture fixture;
    const StoreResult onServer{
        StoreProblem::Unclear, QStringLiteral("postgresql:%2"), {FaultCode::AnswerLost, {}}};
    QCOMPARE(
        problems::sentence(onServer),
        QStringLiteral("It is not certain whether postgresql:%2 has been written. The "
                       "connection was lost before the server answered. Once the server can be "
                       "reached again, see whether the change is there before you go on."));
    const StoreResult onDisk{
        StoreProblem::Unclear, QStringLiteral("/a.db"), {FaultCode::DiskError, {}}};
    QVERIFY(problems::sentence(onDisk).contains(QLatin1String("another disk")));
    fixture.languages.select(QStringLiteral("de_DE"));
    QVERIFY(problems::sentence(onServer).contains(QLatin1String("Server")));
}

void tst_ProblemWords::whatLooksLikeAPlaceStaysAsItIs()
{
    QCOMPARE(problems::unwritable(QStringLiteral("/a %2 %1"), {FaultCode::DiskFull, {}}),
             QStringLiteral("/a %2 %1 cannot be written. The disk is full."));
    QCOMPARE(problems::sentence(
                 faultOf(FaultCode::OtherFormat, QStringLiteral("%2"), QStringLiteral("%n"))),
             QStringLiteral("The format is “%2” instead of “%n”."));
}

void tst_ProblemWords::aPlaceInAFileIsNamed()
{
    ScheduleFromJson schedule;
    schedule.fault = faultOf(FaultCode::MemberUnknown, QStringLiteral("colour"));
    schedule.place = QStringLiteral("tasks[2]");
    schedule.line = 40;
    QCOMPARE(problems::unreadable(QStringLiteral("/a.json"), schedule),
             QStringLiteral("/a.json could not be read. Line 40, tasks[2]: “colour” is not known "
                            "here."));
}

void tst_ProblemWords::nothingHasNoWords()
{
    QCOMPARE(problems::sentence(Fault()), QString());
    QCOMPARE(problems::sentence(StoreResult()), QString());
    QCOMPARE(problems::sentence(ScheduleFromJson()), QString());
}

TREL_TEST(tst_ProblemWords, QApplication)
#include "tst_ProblemWords.moc"
