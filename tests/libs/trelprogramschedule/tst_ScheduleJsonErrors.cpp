#include "faults/FaultWords.h"
#include "support/TestProgram.h"
#include "json/ScheduleJson.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// Two tasks, the second with a plan, on lines that the expectations can count.
QByteArray schedule()
{
    return R"({
  "format": "trel-schedule",
  "version": 1,
  "tasks": [
    { "id": 1, "startDate": "2024.01.01", "endDate": "2024.01.31", "plans": [] },
    { "id": 2, "startDate": "2024.02.01", "endDate": "2024.02.29", "plans": [
      {
        "id": 4,
        "mode": "time",
        "weeks": "1,3",
        "startTime": "08:00:00",
        "endTime": "09:00:00",
        "times": 1,
        "endAction": "black",
        "programs": [
          { "progIndex": 7, "progName": "News", "playCount": 2, "isInvalid": false }
        ],
        "hasNoDuration": false,
        "isConflict": false,
        "serviceCount": 0,
        "serviceList": ["1", "2"],
        "serviceTime": "23:59:59",
        "serviceFlagA": false,
        "serviceFlagB": false
      }
    ] }
  ]
}
)";
}

QByteArray replaced(const char* before, const char* after)
{
    QByteArray json = schedule();
    const int at = json.indexOf(before);
    if (at < 0) {
        qFatal("the schedule does not hold %s", before);
    }
    return json.replace(at, static_cast<int>(qstrlen(before)), after);
}

} // namespace

class tst_ScheduleJsonErrors : public QObject
{
    Q_OBJECT

private slots:
    void theScheduleItselfIsFine();
    void errors_data();
    void errors();
    void everyMissingMemberIsNamed_data();
    void everyMissingMemberIsNamed();
    void everyCutIsNoticed();
    void deepNestingIsHarmless();
    void longTextsAreNotQuoted();
    void keyThatIsNotTheIdIsWrittenAndNamed();

private:
    void addFormErrors();
    void addHeadingErrors();
    void addMemberErrors();
    void addValueErrors();
};

void tst_ScheduleJsonErrors::theScheduleItselfIsFine()
{
    const ScheduleFromJson read = scheduleFromJson(schedule());
    QCOMPARE(englishText(read), QString());
    QCOMPARE(read.tasks.size(), std::size_t(2));
}

void tst_ScheduleJsonErrors::errors_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    addFormErrors();
    addHeadingErrors();
    addMemberErrors();
    addValueErrors();
}

void tst_ScheduleJsonErrors::addFormErrors()
{
    const auto row = [](const char* name, const QByteArray& json, int line, int column,
                        const char* reason) {
        QTest::newRow(name) << json
                            << QStringLiteral("not JSON at line %1, column %2: %3")
                                   .arg(line)
                                   .arg(column)
                                   .arg(QString::fromUtf8(reason));
    };
    row("empty", "", 1, 1,
        "syntax error while parsing value - unexpected end of input; expected '[', '{', or a "
        "literal");
    row("blanks", " \n ", 2, 2,
        "syntax error while parsing value - unexpected end of input; expected '[', '{', or a "
        "literal");
    row("plain text", "hello", 1, 1, "syntax error while parsing value - invalid literal");
    row("UTF-16", QByteArray("\xFF\xFE{\0", 4), 1, 1,
        "syntax error while parsing value - invalid literal");
    row("comma too many", replaced("\"isInvalid\": false }", "\"isInvalid\": false, }"), 16, 85,
        "syntax error while parsing object key - unexpected '}'; expected string literal");
    row("comma too many in a list", replaced("[\"1\", \"2\"]", "[\"1\", ]"), 21, 30,
        "syntax error while parsing value - unexpected ']'; expected '[', '{', or a literal");
    row("comma missing", replaced("\"times\": 1,", "\"times\": 1"), 14, 19,
        "syntax error while parsing object - unexpected string literal; expected '}'");
    row("comma missing in a list", replaced("\"1\", \"2\"", "\"1\" \"2\""), 21, 31,
        "syntax error while parsing array - unexpected string literal; expected ']'");
    row("colon missing", replaced("\"times\": 1", "\"times\" 1"), 13, 17,
        "syntax error while parsing object separator - unexpected number literal; expected ':'");
    row("name without quotes", replaced("\"times\"", "times"), 13, 10,
        "syntax error while parsing object key - invalid literal; expected string literal");
    row("text without end", replaced("\"1,3\",", "\"1,3"), 10, 22,
        "syntax error while parsing value - invalid string: control character U+000A (LF) must be "
        "escaped to \\u000A or \\n");
    row("text to the end of the file", "{ \"format", 1, 10,
        "syntax error while parsing object key - invalid string: missing closing quote; expected "
        "string literal");
    row("columns are characters", replaced("\"1,3\",", "\"\xE6\x96\xB0\xE9\x97\xBB\"?"), 10, 22,
        "syntax error while parsing object - invalid literal; expected '}'");
    row("no UTF-8", replaced("News", "caf\xE9"), 16, 46,
        "syntax error while parsing value - invalid string: ill-formed UTF-8 byte");
    row("unknown escape", replaced("News", "\\x"), 16, 43,
        "syntax error while parsing value - invalid string: forbidden character after backslash");
    row("escape cut off", replaced("News", "\\u12"), 16, 46,
        "syntax error while parsing value - invalid string: '\\u' must be followed by 4 hex "
        "digits");
    row("lone high surrogate", replaced("News", "\\ud83cx"), 16, 48,
        "syntax error while parsing value - invalid string: surrogate U+D800..U+DBFF must be "
        "followed by U+DC00..U+DFFF");
    row("lone low surrogate", replaced("News", "\\udfac"), 16, 47,
        "syntax error while parsing value - invalid string: surrogate U+DC00..U+DFFF must follow "
        "U+D800..U+DBFF");
    row("two high surrogates", replaced("News", "\\ud83c\\ud83c"), 16, 53,
        "syntax error while parsing value - invalid string: surrogate U+D800..U+DBFF must be "
        "followed by U+DC00..U+DFFF");
    row("zero too many", replaced("\"times\": 1", "\"times\": 01"), 13, 19,
        "syntax error while parsing object - unexpected number literal; expected '}'");
    row("plus sign", replaced("\"times\": 1", "\"times\": +1"), 13, 18,
        "syntax error while parsing value - invalid literal");
    row("minus alone", replaced("\"times\": 1", "\"times\": -"), 13, 19,
        "syntax error while parsing value - invalid number; expected digit after '-'");
    row("point without digits", replaced("\"times\": 1", "\"times\": 1."), 13, 20,
        "syntax error while parsing value - invalid number; expected digit after '.'");
    row("exponent without digits", replaced("\"times\": 1", "\"times\": 1e+"), 13, 21,
        "syntax error while parsing value - invalid number; expected digit after exponent sign");
    row("word misspelt", replaced("\"isConflict\": false", "\"isConflict\": fals"), 19, 27,
        "syntax error while parsing value - invalid literal");
    row("comment", replaced("\"times\"", "// often\n\"times\""), 13, 9,
        "syntax error while parsing object key - invalid literal; expected string literal");
    row("more behind the end", schedule() + "{}", 29, 1,
        "syntax error while parsing value - unexpected '{'; expected end of input");
    row("number beyond all bounds", replaced("\"times\": 1", "\"times\": -1e400"), 13, 23,
        "number overflow");
}

void tst_ScheduleJsonErrors::addHeadingErrors()
{
    const auto row = [](const char* name, const QByteArray& json, const char* error) {
        QTest::newRow(name) << json << QString::fromUtf8(error);
    };
    row("a list", "[]", "the top of a schedule is an object; this is JSON of another kind");
    row("a number", "5", "the top of a schedule is an object; this is JSON of another kind");
    row("no format", "{}", "the member \"format\" is missing; this is no schedule");
    row("other format", replaced("trel-schedule", "playlist"),
        "format (line 2): this is \"playlist\", not \"trel-schedule\"");
    row("format of the wrong kind", replaced("\"trel-schedule\"", "1"),
        "format (line 2): a text is expected here, not a number");
    row("no version", replaced("  \"version\": 1,\n", ""), "the member \"version\" is missing");
    row("newer version", replaced("\"version\": 1", "\"version\": 3"),
        "version (line 3): 3 is newer than 2, the newest that this program reads");
    row("newer version with new members",
        R"({ "format": "trel-schedule", "tasks": [ { "new": 1 } ], "more": [], "version": 3 })",
        "version (line 1): 3 is newer than 2, the newest that this program reads");
    row("version 0", replaced("\"version\": 1", "\"version\": 0"),
        "version (line 3): there is no version 0");
    row("version as text", replaced("\"version\": 1", "\"version\": \"1\""),
        "version (line 3): a whole number is expected here, not a text");
    row("no tasks", R"({ "format": "trel-schedule", "version": 1 })",
        "the member \"tasks\" is missing");
    row("tasks as object", R"({ "format": "trel-schedule", "version": 1, "tasks": {} })",
        "tasks (line 1): an array is expected here, not an object");
    row("unknown member at the top",
        replaced("\"version\": 1", "\"version\": 1, \"author\": \"x\""),
        "author (line 3): there is no member \"author\" here");
    row("format twice", replaced("\"version\": 1", "\"version\": 1, \"format\": \"y\""),
        "format (line 3): the member \"format\" stands here for the second time");
}

void tst_ScheduleJsonErrors::addMemberErrors()
{
    const auto row = [](const char* name, const QByteArray& json, const char* error) {
        QTest::newRow(name) << json << QString::fromUtf8(error);
    };
    row("unknown member of a task", replaced("\"id\": 1", "\"id\": 1, \"name\": \"x\""),
        "tasks[0].name (line 5): there is no member \"name\" here");
    row("unknown member with a percent sign", replaced("\"id\": 1", "\"id\": 1, \"%1%2\": \"x\""),
        "tasks[0].%1%2 (line 5): there is no member \"%1%2\" here");
    row("unknown member of a plan", replaced("\"times\": 1", "\"times\": 1, \"Times\": 1"),
        "tasks[1].plans[0].Times (line 13): there is no member \"Times\" here");
    row("unknown member of an entry", replaced("\"playCount\": 2", "\"playcount\": 2"),
        "tasks[1].plans[0].programs[0].playcount (line 16): "
        "there is no member \"playcount\" here");
    row("member twice", replaced("\"times\": 1", "\"times\": 1, \"times\": 1"),
        "tasks[1].plans[0].times (line 13): "
        "the member \"times\" stands here for the second time");
    row("id twice", replaced("\"id\": 2", "\"id\": 1"),
        "tasks[1] (line 6): the id 1 is the one of tasks[0] already");
    row("key that is not the id", replaced("\"id\": 2", "\"id\": 2, \"key\": 3"),
        "tasks[1] (line 6): the key 3 is not the task's id, which is 2");
    row("key twice", replaced("\"id\": 2", "\"key\": 2, \"id\": 2, \"key\": 2"),
        "tasks[1].key (line 6): the member \"key\" stands here for the second time");
}

void tst_ScheduleJsonErrors::addValueErrors()
{
    const auto row = [](const char* name, const QByteArray& json, const char* error) {
        QTest::newRow(name) << json << QString::fromUtf8(error);
    };
    row("text for a number", replaced("\"times\": 1", "\"times\": \"1\""),
        "tasks[1].plans[0].times (line 13): a whole number is expected here, not a "
        "text");
    row("null for a number", replaced("\"times\": 1", "\"times\": null"),
        "tasks[1].plans[0].times (line 13): a whole number is expected here, not null");
    row("number for a text", replaced("\"08:00:00\"", "8"),
        "tasks[1].plans[0].startTime (line 11): a text is expected here, not a number");
    row("number for a truth value", replaced("\"isConflict\": false", "\"isConflict\": 0"),
        "tasks[1].plans[0].isConflict (line 19): "
        "true or false is expected here, not a number");
    row("text for a list", replaced("[\"1\", \"2\"]", "\"1,2\""),
        "tasks[1].plans[0].serviceList (line 21): an array is expected here, not a "
        "text");
    row("number for an entry", replaced("{ \"progIndex\"", "5, { \"progIndex\""),
        "tasks[1].plans[0].programs[0] (line 16): "
        "an object is expected here, not a number");
    row("fraction", replaced("\"times\": 1", "\"times\": 1.5"),
        "tasks[1].plans[0].times (line 13): 1.5 is not written as a whole number");
    row("exponent", replaced("\"times\": 1", "\"times\": 1e3"),
        "tasks[1].plans[0].times (line 13): 1e3 is not written as a whole number");
    row("above 32 bits", replaced("\"times\": 1", "\"times\": 2147483648"),
        "tasks[1].plans[0].times (line 13): 2147483648 does not fit into 32 bits");
    row("below 32 bits", replaced("\"progIndex\": 7", "\"progIndex\": -2147483649"),
        "tasks[1].plans[0].programs[0].progIndex (line 16): "
        "-2147483649 does not fit into 32 bits");
    row("mode above 32 bits", replaced("\"time\"", "99999999999999999999"),
        "tasks[1].plans[0].mode (line 9): 99999999999999999999 does not fit into 32 "
        "bits");
    row("above 64 bits", replaced("\"2\"", "\"9223372036854775808\""),
        "tasks[1].plans[0].serviceList[1] (line 21): "
        "\"9223372036854775808\" does not fit into 64 bits");
    row("64 bits as a number", replaced("\"2\"", "2"),
        "tasks[1].plans[0].serviceList[1] (line 21): "
        "a whole number written as a text is expected here, not a number");
    row("64 bits with a blank", replaced("\"2\"", "\" 2\""),
        "tasks[1].plans[0].serviceList[1] (line 21): \" 2\" is no whole number");
    row("64 bits with more behind", replaced("\"2\"", "\"2.0\""),
        "tasks[1].plans[0].serviceList[1] (line 21): \"2.0\" is no whole number");
    row("64 bits empty", replaced("\"2\"", "\"\""),
        "tasks[1].plans[0].serviceList[1] (line 21): \"\" is no whole number");
    row("unknown mode", replaced("\"time\"", "\"Time\""),
        "tasks[1].plans[0].mode (line 9): "
        "\"time\", \"frequency\" or a number is expected here, not \"Time\"");
    row("mode of the wrong kind", replaced("\"time\"", "true"),
        "tasks[1].plans[0].mode (line 9): "
        "\"time\", \"frequency\" or a number is expected here, not true or false");
    row("unknown end action", replaced("\"black\"", "\"dark\""),
        "tasks[1].plans[0].endAction (line 14): "
        "\"black\", \"freeze\" or a number is expected here, not \"dark\"");
    row("damaged Base64", replaced("\"News\"", "{ \"base64\": \"a?b\" }"),
        "tasks[1].plans[0].programs[0].progName.base64 (line 16): "
        "this text is not in Base64");
    row("Base64 missing", replaced("\"News\"", "{}"),
        "tasks[1].plans[0].programs[0].progName (line 16): "
        "the member \"base64\" is missing");
    row("list for a text", replaced("\"News\"", "[]"),
        "tasks[1].plans[0].programs[0].progName (line 16): "
        "a text is expected here, not an array");
}

void tst_ScheduleJsonErrors::errors()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);

    const ScheduleFromJson read = scheduleFromJson(json);
    QCOMPARE(englishText(read), error);
    QVERIFY(read.tasks.empty());
}

void tst_ScheduleJsonErrors::everyMissingMemberIsNamed_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<QString>("place");

    const auto row = [](const char* member, const char* place) {
        QTest::newRow(member) << QByteArray(member) << QString::fromUtf8(place);
    };
    const char* const task = "tasks[0] (line 5)";
    row("\"startDate\": \"2024.01.01\", ", task);
    row("\"endDate\": \"2024.01.31\", ", task);
    row(", \"plans\": []", task);
    const char* const plan = "tasks[1].plans[0] (line 7)";
    row("\"id\": 4,", plan);
    row("\"mode\": \"time\",", plan);
    row("\"weeks\": \"1,3\",", plan);
    row("\"startTime\": \"08:00:00\",", plan);
    row("\"endTime\": \"09:00:00\",", plan);
    row("\"times\": 1,", plan);
    row("\"endAction\": \"black\",", plan);
    row("\"hasNoDuration\": false,", plan);
    row("\"isConflict\": false,", plan);
    row("\"serviceCount\": 0,", plan);
    row("\"serviceList\": [\"1\", \"2\"],", plan);
    row("\"serviceTime\": \"23:59:59\",", plan);
    row("\"serviceFlagA\": false,", plan);
    const char* const entry = "tasks[1].plans[0].programs[0] (line 16)";
    row("\"progIndex\": 7,", entry);
    row("\"progName\": \"News\",", entry);
    row("\"playCount\": 2,", entry);
    row(", \"isInvalid\": false", entry);
}

void tst_ScheduleJsonErrors::everyMissingMemberIsNamed()
{
    QFETCH(QByteArray, member);
    QFETCH(QString, place);

    const QByteArray name = member.split('"').at(1);
    QCOMPARE(
        englishText(scheduleFromJson(replaced(member.constData(), ""))),
        QStringLiteral("%1: the member \"%2\" is missing").arg(place, QString::fromUtf8(name)));
}

void tst_ScheduleJsonErrors::everyCutIsNoticed()
{
    const QByteArray whole = schedule().trimmed();
    for (int length = 0; length < whole.size(); ++length) {
        const ScheduleFromJson read = scheduleFromJson(whole.left(length));
        QVERIFY2(englishText(read).startsWith(QStringLiteral("not JSON at line ")),
                 qPrintable(QStringLiteral("%1: %2").arg(length).arg(englishText(read))));
        QVERIFY(read.tasks.empty());
    }
}

void tst_ScheduleJsonErrors::deepNestingIsHarmless()
{
    const int depth = 1000000;
    const QByteArray nested = QByteArray(depth, '[') + QByteArray(depth, ']');
    const QByteArray json = "{ \"format\": " + nested + " }";
    QCOMPARE(englishText(scheduleFromJson(json)),
             QStringLiteral("format (line 1): a text is expected here, not an array"));
    QCOMPARE(englishText(scheduleFromJson("{ \"other\": " + nested + " }")),
             QStringLiteral("the member \"format\" is missing; this is no schedule"));
    QVERIFY(englishText(scheduleFromJson("{ \"other\": " + QByteArray(depth, '[') + " }"))
                .startsWith(QStringLiteral("not JSON at line 1, ")));
}

void tst_ScheduleJsonErrors::longTextsAreNotQuoted()
{
    const QByteArray inText = "{ \"" + QByteArray(100000, 'x') + "\xE9\": 1 }";
    QCOMPARE(
        englishText(scheduleFromJson(inText)),
        QStringLiteral("not JSON at line 1, column 100005: syntax error while parsing object "
                       "key - invalid string: ill-formed UTF-8 byte; expected string literal"));
    const QByteArray number = "[-" + QByteArray(100000, '9') + "]";
    QCOMPARE(englishText(scheduleFromJson(number)),
             QStringLiteral("not JSON at line 1, column 100002: number overflow"));
}

void tst_ScheduleJsonErrors::keyThatIsNotTheIdIsWrittenAndNamed()
{
    PlayTask task;
    task.id = 2;
    const QByteArray json = scheduleToJson({{5, task}});
    QCOMPARE(englishText(scheduleFromJson(json)),
             QStringLiteral("tasks[0] (line 5): the key 5 is not the task's id, which is "
                            "2"));
}

TREL_TEST(tst_ScheduleJsonErrors, trel::tests::NoApplication)
#include "tst_ScheduleJsonErrors.moc"
