#include "Utf8.h"

#include <QtTest>

#include <string>

using namespace trel::mediadispatch;

/// What counts as well-formed UTF-8: exactly what any decoder turns into characters and back.
class tst_Utf8 : public QObject
{
    Q_OBJECT

private slots:
    void length_data();
    void length();
    void everyCharacterIsWellFormed();
    void textsAreJudgedWhole();
};

void tst_Utf8::length_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("length");

    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("ASCII") << QByteArray("a") << 1;
    QTest::newRow("NUL") << QByteArray(1, '\0') << 1;
    QTest::newRow("two bytes") << QByteArray("\xC3\xA9") << 2;
    QTest::newRow("three bytes") << QByteArray("\xE6\x96\xB0") << 3;
    QTest::newRow("four bytes") << QByteArray("\xF0\x9F\x8E\xAC") << 4;
    QTest::newRow("only the first sequence") << QByteArray("\xC3\xA9\xFF") << 2;
    QTest::newRow("last character of all") << QByteArray("\xF4\x8F\xBF\xBF") << 4;
    QTest::newRow("beyond the last character") << QByteArray("\xF4\x90\x80\x80") << 0;
    QTest::newRow("lead byte that does not exist") << QByteArray("\xF5\x80\x80\x80") << 0;
    QTest::newRow("continuation alone") << QByteArray("\x80") << 0;
    QTest::newRow("lead byte alone") << QByteArray("\xE6") << 0;
    QTest::newRow("cut off in the third byte") << QByteArray("\xE6\x96") << 0;
    QTest::newRow("third byte is no continuation") << QByteArray("\xE6\x96z") << 0;
    QTest::newRow("overlong in two bytes") << QByteArray("\xC0\xAF") << 0;
    QTest::newRow("overlong in three bytes") << QByteArray("\xE0\x80\xAF") << 0;
    QTest::newRow("overlong in four bytes") << QByteArray("\xF0\x80\x80\xAF") << 0;
    QTest::newRow("before the surrogates") << QByteArray("\xED\x9F\xBF") << 3;
    QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80") << 0;
    QTest::newRow("Latin-1") << QByteArray("\xE9t\xE9") << 0;
}

void tst_Utf8::length()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, length);

    QCOMPARE(static_cast<int>(utf8SequenceLength(bytes.toStdString())), length);
}

void tst_Utf8::everyCharacterIsWellFormed()
{
    for (uint code = 0; code <= 0x10FFFF; ++code) {
        if (code == 0xD800) {
            code = 0xE000;
        }
        const std::string utf8 = QString::fromUcs4(&code, 1).toStdString();
        if (utf8SequenceLength(utf8) != utf8.size()) {
            QFAIL(qPrintable(QStringLiteral("U+%1").arg(code, 4, 16)));
        }
    }
}

void tst_Utf8::textsAreJudgedWhole()
{
    QVERIFY(isUtf8(""));
    QVERIFY(isUtf8("abc \xE6\x96\xB0\xE9\x97\xBB"));
    QVERIFY(!isUtf8("abc \xE6\x96\xB0\xE9\x97"));
    QVERIFY(!isUtf8("\xFF"
                    "abc"));
}

QTEST_APPLESS_MAIN(tst_Utf8)
#include "tst_Utf8.moc"
