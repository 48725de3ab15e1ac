#include "common/SentenceText.h"

#include "HostFixture.h"
#include "support/TestProgram.h"

#include <QApplication>

using trel::hosts::SentenceText;

/// Sentences in a line, in each language.
class tst_SentenceText : public QObject
{
    Q_OBJECT

private slots:
    void followOneAnother_data();
    void followOneAnother();
    void areTakenAsTheyAre();
};

void tst_SentenceText::followOneAnother_data()
{
    QTest::addColumn<QString>("between");
    const QStringList files =
        QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")});
    QCOMPARE(files.size(), 10);
    for (const QString& file : files) {
        const QString language = file.left(5);
        // Their full stop has its room in itself.
        const bool isTight =
            language.startsWith(QLatin1String("zh")) || language.startsWith(QLatin1String("ja"));
        QTest::newRow(qPrintable(language)) << (isTight ? QString() : QStringLiteral(" "));
    }
}

void tst_SentenceText::followOneAnother()
{
    QFETCH(const QString, between);
    HostFixture fixture;
    fixture.languages.select(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(
        SentenceText::joined({QStringLiteral("A."), QStringLiteral("B."), QStringLiteral("C.")}),
        QStringLiteral("A.") + between + QStringLiteral("B.") + between + QStringLiteral("C."));
}

void tst_SentenceText::areTakenAsTheyAre()
{
    const HostFixture english;
    QCOMPARE(SentenceText::joined({}), QString());
    QCOMPARE(SentenceText::joined({QStringLiteral("One.")}), QStringLiteral("One."));
    QCOMPARE(SentenceText::joined({QString(), QStringLiteral("One."), QString()}),
             QStringLiteral("One."));
    // What looks like a place for another text is none.
    QCOMPARE(SentenceText::joined({QStringLiteral("%1 %2."), QStringLiteral("%1%3 & <b>.")}),
             QStringLiteral("%1 %2. %1%3 & <b>."));
}

TREL_TEST(tst_SentenceText, QApplication)
#include "tst_SentenceText.moc"
