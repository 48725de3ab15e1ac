#include "HostFixture.h"
#include "LanguageFont.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QTableView>

/// Which language the host starts in, what it calls the languages, and the fonts it gives them.
class tst_HostLanguage : public QObject
{
    Q_OBJECT

private slots:
    void nativeNames_data();
    void nativeNames();
    void startLanguage_data();
    void startLanguage();
    void fontBeginsWithTheOwnFace_data();
    void fontBeginsWithTheOwnFace();
    void fontKeepsItsSize();
    void selectingGivesTheApplicationTheFont();
    void anUnknownLanguageKeepsTheFont();
    void aSwitchLeavesNoTextOfTheOldOne_data();
    void aSwitchLeavesNoTextOfTheOldOne();
};

namespace {

/// The editor and the host's window on the demonstration's schedule.
struct LanguageFixture : HostFixture
{
    explicit LanguageFixture(const QString& language)
    {
        languages.select(language);
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        showEditor();
        window.show();
        QCoreApplication::processEvents();
    }

    /// Every text of both windows, whether it is seen, comes up over a widget, or is read out.
    QStringList texts() const
    {
        // The editors of a folded card come when somebody asks for its rows.
        for (const QTableView* table : editor->findChildren<QTableView*>()) {
            table->model()->rowCount();
        }
        QStringList found;
        for (const QWidget* top :
             {static_cast<const QWidget*>(editor.get()), static_cast<const QWidget*>(&window)}) {
            found.append(top->windowTitle());
            const QList<QWidget*> widgets = top->findChildren<QWidget*>();
            for (const QWidget* widget : widgets) {
                addTexts(*widget, found);
            }
        }
        found = found.replaceInStrings(folder.path(), QString());
        // A title of a plan that has been translated once is set in by one blank more.
        for (QString& text : found) {
            text = text.trimmed();
        }
        found.removeAll(QString());
        // A menu bar may keep some of its menus a second time, for when it gets too narrow.
        found.removeDuplicates();
        return found;
    }

private:
    static void addTexts(const QWidget& widget, QStringList& found)
    {
        // A day box goes on showing the days as they were called when they were chosen.
        const bool isDayBox = widget.inherits("trel::mediadispatch::MultiComboBox");
        const bool isInDayBox =
            widget.parentWidget()->inherits("trel::mediadispatch::MultiComboBox");
        if (!isDayBox && !isInDayBox) {
            found << widget.toolTip() << widget.property("text").toString();
        }
        found << widget.accessibleName() << widget.property("title").toString();
        if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
            for (int i = 0; i < box->count(); ++i) {
                found.append(box->itemText(i));
            }
        }
        if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
            addCells(*table->model(), found);
        }
        const QList<QAction*> actions = widget.actions();
        for (const QAction* action : actions) {
            found.append(action->text());
        }
    }

    static void addCells(const QAbstractItemModel& model, QStringList& found)
    {
        for (int column = 0; column < model.columnCount(); ++column) {
            found.append(model.headerData(column, Qt::Horizontal).toString());
            for (int row = 0; row < model.rowCount(); ++row) {
                found.append(model.index(row, column).data().toString());
            }
        }
    }
};

} // namespace

void tst_HostLanguage::nativeNames_data()
{
    QTest::addColumn<QString>("name");
    const auto row = [](const char* language, const char* name) {
        QTest::newRow(language) << QString::fromUtf8(name);
    };
    row("de_DE", "Deutsch");
    row("en_US", "English");
    row("es_ES", "Español");
    row("fr_FR", "Français");
    row("ja_JP", "日本語");
    row("ko_KR", "한국어");
    row("pt_BR", "Português (Brasil)");
    row("ru_RU", "Русский");
    row("zh_CN", "简体中文");
    row("zh_TW", "繁體中文");
    row("it_IT", "italiano (Italia)");
    row("house style", "house style");
}

void tst_HostLanguage::nativeNames()
{
    QFETCH(QString, name);
    QCOMPARE(Languages::nativeName(QString::fromUtf8(QTest::currentDataTag())), name);
}

void tst_HostLanguage::startLanguage_data()
{
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* wanted, const char* expected) {
        QTest::newRow(wanted) << QString::fromLatin1(expected);
    };
    row("fr_FR", "fr_FR");
    row("de_AT", "de_DE");
    row("es_MX", "es_ES");
    row("pt_PT", "pt_BR");
    row("zh_HK", "zh_TW");
    row("zh_SG", "zh_CN");
    row("ja", "ja_JP");
}

void tst_HostLanguage::startLanguage()
{
    QFETCH(QString, expected);
    const HostFixture fixture;
    QCOMPARE(fixture.languages.startLanguage(QString::fromLatin1(QTest::currentDataTag())),
             expected);
}

void tst_HostLanguage::fontBeginsWithTheOwnFace_data()
{
    QTest::addColumn<QString>("face");
    QTest::newRow("zh_CN") << QStringLiteral("Noto Sans CJK SC");
    QTest::newRow("zh_TW") << QStringLiteral("Noto Sans CJK TC");
    QTest::newRow("ja_JP") << QStringLiteral("Noto Sans CJK JP");
    QTest::newRow("ko_KR") << QStringLiteral("Noto Sans CJK KR");
    QTest::newRow("fr_FR") << QStringLiteral("Noto Sans CJK KR");
}

void tst_HostLanguage::fontBeginsWithTheOwnFace()
{
    QFETCH(QString, face);
    const QStringList families =
        languageFont(QFont(), QString::fromLatin1(QTest::currentDataTag())).families();
    QStringList shipped = families.filter(QStringLiteral("Noto Sans CJK"));
    QCOMPARE(shipped.takeFirst(), face);
    // Names of programs are in any language.
    QVERIFY(face == QLatin1String("Noto Sans CJK SC") ||
            shipped.contains(QStringLiteral("Noto Sans CJK SC")));
    QVERIFY(families.contains(QStringLiteral("Microsoft YaHei")));
}

void tst_HostLanguage::fontKeepsItsSize()
{
    QFont font;
    font.setPixelSize(17);
    font.setBold(true);
    const QFont japanese = languageFont(font, QStringLiteral("ja_JP"));
    QCOMPARE(japanese.pixelSize(), 17);
    QVERIFY(japanese.bold());
}

void tst_HostLanguage::selectingGivesTheApplicationTheFont()
{
    HostFixture fixture;
    fixture.languages.select(QStringLiteral("ja_JP"));
    QCOMPARE(QApplication::font().families(),
             languageFont(QFont(), QStringLiteral("ja_JP")).families());
    QCOMPARE(fixture.editor->font().families(), QApplication::font().families());
    fixture.languages.select(QStringLiteral("zh_CN"));
    QCOMPARE(QApplication::font().families(),
             languageFont(QFont(), QStringLiteral("zh_CN")).families());
}

void tst_HostLanguage::anUnknownLanguageKeepsTheFont()
{
    HostFixture fixture;
    fixture.languages.select(QStringLiteral("ja_JP"));
    fixture.languages.select(QStringLiteral("xx_XX"));
    QCOMPARE(QApplication::font().families(),
             languageFont(QFont(), QStringLiteral("ja_JP")).families());
}

void tst_HostLanguage::aSwitchLeavesNoTextOfTheOldOne_data()
{
    QTest::addColumn<QString>("before");
    for (const char* language : {"de_DE", "en_US", "es_ES", "fr_FR", "ja_JP", "ko_KR", "pt_BR",
                                 "ru_RU", "zh_CN", "zh_TW"}) {
        const bool isChinese = QLatin1String(language) == QLatin1String("zh_CN");
        QTest::newRow(language) << (isChinese ? QStringLiteral("ru_RU") : QStringLiteral("zh_CN"));
    }
}

void tst_HostLanguage::aSwitchLeavesNoTextOfTheOldOne()
{
    QFETCH(QString, before);
    const QString language = QString::fromLatin1(QTest::currentDataTag());
    QStringList switched;
    {
        LanguageFixture fixture(before);
        const QStringList old = fixture.texts();
        fixture.languages.select(language);
        QCoreApplication::processEvents();
        switched = fixture.texts();
        QVERIFY(switched != old);
    }
    LanguageFixture fresh(language);
    // Some tool tips come with the first translation.
    fresh.languages.select(language);
    QCoreApplication::processEvents();
    const QStringList wanted = fresh.texts();
    QVERIFY(wanted.size() > 60);
    QCOMPARE(switched, wanted);
}

QTEST_MAIN(tst_HostLanguage)
#include "tst_HostLanguage.moc"
