#include "LanguageMessages.h"
#include "LanguageNames.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

namespace {

int pluralForms(const QString& language)
{
    const QString name = language.left(2);
    if (name == QLatin1String("ru")) {
        return 3;
    }
    const QStringList withoutPlural = {QStringLiteral("ja"), QStringLiteral("ko"),
                                       QStringLiteral("zh")};
    return withoutPlural.contains(name) ? 1 : 2;
}

/// The letter that opens a menu or chooses an entry; empty when there is none.
QString mnemonic(const QString& text)
{
    const QRegularExpression sign(QStringLiteral("&(.)"));
    return sign.match(text).captured(1).toLower();
}

QStringList placeMarkers(const QString& text)
{
    QStringList markers;
    auto matches = QRegularExpression(QStringLiteral("%[0-9n]")).globalMatch(text);
    while (matches.hasNext()) {
        markers.append(matches.next().captured());
    }
    markers.sort();
    return markers;
}

} // namespace

class tst_HostLanguages : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguageOfTheEditorHasAFile();
    void everyTextOfTheCodeIsTranslated_data() { languageRows(true); }
    void everyTextOfTheCodeIsTranslated();
    void textsAreFinished_data() { languageRows(false); }
    void textsAreFinished();
    void pluralsHaveTheFormsOfTheLanguage_data() { languageRows(false); }
    void pluralsHaveTheFormsOfTheLanguage();
    void placeMarkersAreKept_data() { languageRows(false); }
    void placeMarkersAreKept();
    void menusKeepTheirLetters_data() { languageRows(true); }
    void menusKeepTheirLetters();
    void englishHoldsThePlurals();

private:
    /// English is the language that the host is written in.
    static void languageRows(bool withoutEnglish)
    {
        QTest::addColumn<QString>("language");
        const QStringList names = languages();
        for (const QString& name : names) {
            if (!withoutEnglish || name != QLatin1String("en_US")) {
                QTest::newRow(qPrintable(name)) << name;
            }
        }
    }
};

void tst_HostLanguages::everyLanguageOfTheEditorHasAFile()
{
    QStringList files;
    const QStringList names = languages();
    for (const QString& name : names) {
        files.append(QStringLiteral("schedule-editor_%1.ts").arg(name));
    }
    QCOMPARE(QDir(QStringLiteral(LANGUAGE_SOURCE_DIR "/host")).entryList({QStringLiteral("*.ts")}),
             files);
}

void tst_HostLanguages::everyTextOfTheCodeIsTranslated()
{
    QFETCH(QString, language);
    QCOMPARE(QStringList(readHostLanguage(language).keys()),
             QStringList(messagesOfTheCode().keys()));
}

void tst_HostLanguages::textsAreFinished()
{
    QFETCH(QString, language);
    const Messages messages = readHostLanguage(language);
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        QVERIFY2(message->isFinished, qPrintable(message.key()));
        for (const QString& form : message->forms) {
            QVERIFY2(!form.trimmed().isEmpty(), qPrintable(message.key()));
        }
    }
}

void tst_HostLanguages::pluralsHaveTheFormsOfTheLanguage()
{
    QFETCH(QString, language);
    const Messages messages = readHostLanguage(language);
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        const bool isPlural = messagesOfTheCode().value(message.key()).isPlural;
        QCOMPARE(message->isPlural, isPlural);
        QCOMPARE(message->forms.size(), isPlural ? pluralForms(language) : 1);
    }
}

void tst_HostLanguages::placeMarkersAreKept()
{
    QFETCH(QString, language);
    const Messages messages = readHostLanguage(language);
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        const QStringList expected = placeMarkers(message.key());
        for (int i = 0; i < message->forms.size(); ++i) {
            const QStringList markers = placeMarkers(message->forms[i]);
            // A form that stands for one thing alone need not count it.
            const bool isSingular = message->isPlural && i == 0 && pluralForms(language) == 2;
            QVERIFY2(markers == expected || (isSingular && markers.isEmpty()),
                     qPrintable(message->forms[i]));
        }
    }
}

void tst_HostLanguages::menusKeepTheirLetters()
{
    QFETCH(QString, language);
    const Messages messages = readHostLanguage(language);
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        QVERIFY2(mnemonic(message->forms.first()).isEmpty() == mnemonic(message.key()).isEmpty(),
                 qPrintable(message->forms.first()));
    }
}

void tst_HostLanguages::englishHoldsThePlurals()
{
    QStringList plurals;
    const Messages& messages = messagesOfTheCode();
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        if (message->isPlural) {
            plurals.append(message.key());
        }
    }
    QCOMPARE(QStringList(readHostLanguage(QStringLiteral("en_US")).keys()), plurals);
}

QTEST_GUILESS_MAIN(tst_HostLanguages)
#include "tst_HostLanguages.moc"
