#include "ScheduleLimits.h"
#include "service/ScheduleRecords.h"
#include "support/TestProgram.h"
#include "json/JsonTree.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

int depthOf(const JsonValue& value)
{
    return value.children.empty() ? 1 : 1 + depthOf(value.children.front());
}

QByteArray nested(int levels, const char* inside = "")
{
    return QByteArray(levels, '[') + inside + QByteArray(levels, ']');
}

} // namespace

/// What a text in JSON may have of everything, to the last one.
class tst_JsonTree : public QObject
{
    Q_OBJECT

private slots:
    void whatIsTooDeepIsLeftOut();
    void valuesAlone();
    void textsAndNamesHaveALength();
    void theWholeHasALength();
    void membersAreFoundInObjects();
};

void tst_JsonTree::whatIsTooDeepIsLeftOut()
{
    constexpr int deepest = int(kDeepestJson);
    for (const int levels : {1, 2, deepest - 1, deepest, deepest + 1, deepest + 7}) {
        const ParsedJson parsed = parseJson(nested(levels));
        QVERIFY(!parsed.fault);
        QCOMPARE(depthOf(parsed.top), std::min(levels, deepest));
    }
    QCOMPARE(depthOf(parseJson(nested(deepest, "7")).top), deepest + 1);
    QCOMPARE(depthOf(parseJson(nested(deepest + 1, "7")).top), deepest);
    // What follows is where it belongs.
    const ParsedJson parsed = parseJson("[" + nested(deepest + 3, "7") + ", \"last\"]");
    QCOMPARE(parsed.top.children.size(), std::size_t(2));
    QCOMPARE(parsed.top.children.back().text, std::string("last"));
}

void tst_JsonTree::valuesAlone()
{
    const ParsedJson number = parseJson("7");
    QVERIFY(!number.fault);
    QVERIFY(number.top.kind == JsonValue::Kind::Number);
    QCOMPARE(number.top.text, std::string("7"));
    QCOMPARE(number.top.line, 1);
    const ParsedJson text = parseJson("\n\n\"a\"");
    QVERIFY(text.top.kind == JsonValue::Kind::Text);
    QCOMPARE(text.top.line, 3);
}

void tst_JsonTree::textsAndNamesHaveALength()
{
    // In Base64, a text takes four bytes for three.
    constexpr int most = int(kLongestText / 3 * 4 + 4);
    const auto quoted = [](int length) { return '"' + QByteArray(length, 'x') + '"'; };
    QVERIFY(!parseJson(quoted(most)).fault);
    QCOMPARE(int(parseJson(quoted(most + 1)).fault.code), int(FaultCode::JsonStringTooLong));
    QVERIFY(!parseJson('{' + quoted(most) + ":1}").fault);
    QCOMPARE(int(parseJson('{' + quoted(most + 1) + ":1}").fault.code),
             int(FaultCode::JsonNameTooLong));
}

void tst_JsonTree::theWholeHasALength()
{
    QByteArray json = "7" + QByteArray(int(kLargestJson) - 1, ' ');
    QCOMPARE(parseJson(json).top.text, std::string("7"));
    json += ' ';
    QVERIFY(parseJson(json).fault);
}

void tst_JsonTree::membersAreFoundInObjects()
{
    const ParsedJson parsed = parseJson(R"({"a": 1, "b": [2], "a": 3})");
    QCOMPARE(parsed.top.member("a")->text, std::string("1"));
    QCOMPARE(parsed.top.member("b")->children.front().text, std::string("2"));
    QVERIFY(parsed.top.member("c") == nullptr);
    // The elements of an array have no names, and a number has no members.
    QVERIFY(parsed.top.member("b")->member("") == nullptr);
    QVERIFY(parsed.top.member("a")->member("a") == nullptr);
}

TREL_TEST(tst_JsonTree, trel::tests::NoApplication)
#include "tst_JsonTree.moc"
