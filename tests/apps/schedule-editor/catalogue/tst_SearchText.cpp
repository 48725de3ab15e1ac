#include "catalogue/SearchText.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::desktop;

/// What people expect to find by what they type.
class tst_SearchText : public QObject
{
    Q_OBJECT

private slots:
    void finds_data();
    void finds();
};

void tst_SearchText::finds_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char* typed, const char* text, bool isFound) {
        const QString name =
            QStringLiteral("%1 in %2").arg(QString::fromUtf8(typed), QString::fromUtf8(text));
        QTest::newRow(qPrintable(name))
            << QString::fromUtf8(typed) << QString::fromUtf8(text) << isFound;
    };
    row("", "anything", true);
    row("  ", "anything", true);
    row("new", "Evening NEWS", true);
    row("NEW", "evening news", true);
    row("news evening", "Evening news", true);
    row("news morning", "Evening news", false);
    row("cafe", "Café", true);
    row("CAFÉ", "cafe", true);
    row("cafe", "Cafe\u0301", true);
    row("uber", "Über uns", true);
    row("strasse", "Straße", true);
    row("ß", "STRASSE", true);
    row("lodz", "Łódź", true);
    row("o", "Ørsted", true);
    row("ae", "Ærø", true);
    row("istanbul", "İstanbul", true);
    row("елка", "Ёлка", true);
    row("film", "ﬁlm", true);
    row("abc1", "ＡＢＣ１", true);
    row("ガイド", "ｶﾞｲﾄﾞ", true);
    row("カイト", "ガイド", false);
    row("欢迎", "欢迎光临", true);
    row("한국", "한국", true);
    row("a\tb", "b a", true);
    row("100%", "100 %", false);
    row(".*", "anything", false);
}

void tst_SearchText::finds()
{
    QFETCH(QString, typed);
    QFETCH(QString, text);
    QTEST(SearchWords(typed).areIn(foldedText(text)), "isFound");
    QCOMPARE(SearchWords(typed).isEmpty(), typed.trimmed().isEmpty());
}

TREL_TEST(tst_SearchText, trel::tests::NoApplication)
#include "tst_SearchText.moc"
