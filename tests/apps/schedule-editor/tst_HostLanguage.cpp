#include "EditorMenus.h"
#include "HostFixture.h"
#include "LanguageFont.h"
#include "PaintedTexts.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelwidgets/Dialog.h"
#include "tstranslate/Translator.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>

using namespace trel::desktop;

/// Which language the host starts in, what it calls the languages, and the fonts it gives them.
class tst_HostLanguage : public QObject
{
    Q_OBJECT

private slots:
    void nativeNames_data();
    void nativeNames();
    void offersWhatTheEditorCanSpeak();
    void startLanguage_data();
    void startLanguage();
    void fontBeginsWithTheOwnFace_data();
    void fontBeginsWithTheOwnFace();
    void fontKeepsItsSize();
    void selectingGivesTheApplicationTheFont();
    void titlesOfPanelsHaveTheFont();
    void anUnknownLanguageKeepsTheFont();
    void theToolkitSpeaksTheLanguage_data();
    void theToolkitSpeaksTheLanguage();
    void everyEntryHasALetterOfItsOwn_data() { languageRows(); }
    void everyEntryHasALetterOfItsOwn();
    void aLetterChoosesItsEntry();
    void titleButtonsOfPromptsAreNamed_data() { languageRows(); }
    void titleButtonsOfPromptsAreNamed();
    void aSwitchLeavesNoTextOfTheOldOne_data();
    void aSwitchLeavesNoTextOfTheOldOne();

private:
    static void languageRows()
    {
        QTest::addColumn<bool>("unused");
        const QStringList files =
            QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")});
        QCOMPARE(files.size(), 10);
        for (const QString& file : files) {
            QTest::newRow(qPrintable(file.left(5))) << true;
        }
    }
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

/// The entries of the menu bar, of its menus and of those that come with a right click.
std::vector<QList<QAction*>> menusOf(const EditorWindow& window)
{
    std::vector<QList<QAction*>> menus{window.menuBar()->actions()};
    for (const QAction* entry : window.menuBar()->actions()) {
        menus.push_back(entry->menu()->actions());
    }
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->contextMenuPolicy() == Qt::ActionsContextMenu) {
            menus.push_back(widget->actions());
        }
    }
    return menus;
}

QString editorText(const char* key)
{
    return tessark::trans::translate(
        trel::mediadispatch::ProgramSheduleWidgetTranslateManager::instance().translator(),
        QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"), QString::fromLatin1(key));
}

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

/// Of what may lie in a folder of languages.
void tst_HostLanguage::offersWhatTheEditorCanSpeak()
{
    HostFixture fixture;
    QTemporaryDir folder;
    const auto put = [&folder](const QString& source) {
        return QFile::copy(source, folder.filePath(QFileInfo(source).fileName()));
    };
    QVERIFY(put(QStringLiteral(LANGUAGES "/de_DE.qm")));
    QVERIFY(put(QStringLiteral(LANGUAGES "/../host-languages/schedule-editor_fr_FR.qm")));
    QFile damaged(folder.filePath(QStringLiteral("es_ES.qm")));
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("no language") > 0);
    damaged.close();
    const Languages languages(folder.path(), *fixture.editor);
    QCOMPARE(languages.names(), QStringList{QStringLiteral("de_DE")});
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

void tst_HostLanguage::titlesOfPanelsHaveTheFont()
{
    LanguageFixture fixture(QStringLiteral("zh_CN"));
    fixture.languages.select(QStringLiteral("fr_FR"));
    QCoreApplication::processEvents();
    auto* panel = fixture.window.findChild<QDockWidget*>(QStringLiteral("clockChangeDock"));
    PaintedTexts painted(panel->size());
    panel->render(&painted, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(painted.texts(), QStringList{QStringLiteral("Changements d’heure")});
    QCOMPARE(painted.families(), QStringList{panel->font().families().join(QLatin1Char(','))});
}

void tst_HostLanguage::anUnknownLanguageKeepsTheFont()
{
    HostFixture fixture;
    fixture.languages.select(QStringLiteral("ja_JP"));
    fixture.languages.select(QStringLiteral("xx_XX"));
    QCOMPARE(QApplication::font().families(),
             languageFont(QFont(), QStringLiteral("ja_JP")).families());
}

void tst_HostLanguage::theToolkitSpeaksTheLanguage_data()
{
    QTest::addColumn<QString>("lookIn");
    QTest::addColumn<QString>("cancel");
    QTest::addColumn<QString>("undo");
    const auto row = [](const char* language, const char* lookIn, const char* cancel,
                        const char* undo) {
        QTest::newRow(language) << QString::fromUtf8(lookIn) << QString::fromUtf8(cancel)
                                << QString::fromUtf8(undo);
    };
    row("de_DE", "Suchen in:", "Abbrechen", "Rückgängig");
    row("en_US", "Look in:", "Cancel", "Undo");
    row("es_ES", "Ver en:", "Cancelar", "Deshacer");
    row("fr_FR", "Voir dans :", "Annuler", "Annuler");
    row("ja_JP", "アドレス:", "キャンセル", "元に戻す(U)");
    row("ko_KR", "다음에서 찾기:", "취소", "실행 취소(U)");
    row("pt_BR", "Procurar em:", "Cancelar", "Desfazer");
    row("ru_RU", "Перейти к:", "Отмена", "Отменить действие");
    row("zh_CN", "查找范围：", "取消", "撤消(U)");
    row("zh_TW", "尋找於：", "取消", "復原(U)");
}

void tst_HostLanguage::theToolkitSpeaksTheLanguage()
{
    QFETCH(QString, lookIn);
    QFETCH(QString, cancel);
    QFETCH(QString, undo);
    HostFixture fixture;
    // From another language, so that nothing of it may be left.
    fixture.languages.select(QStringLiteral("ru_RU"));
    fixture.languages.select(QString::fromLatin1(QTest::currentDataTag()));
    const auto plain = [](QString text) {
        return text.remove(QLatin1Char('&')).replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    };
    QFileDialog dialog(&fixture.window);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    QLineEdit line;
    const std::unique_ptr<QMenu> menu(line.createStandardContextMenu());
    QCOMPARE(plain(dialog.findChild<QLabel*>(QStringLiteral("lookInLabel"))->text()), lookIn);
    const auto* buttons = dialog.findChild<QDialogButtonBox*>();
    QCOMPARE(plain(buttons->button(QDialogButtonBox::Cancel)->text()), cancel);
    QCOMPARE(plain(menu->actions().constFirst()->text().section(QLatin1Char('\t'), 0, 0)), undo);
}

void tst_HostLanguage::everyEntryHasALetterOfItsOwn()
{
    HostFixture fixture;
    fixture.languages.select(QString::fromLatin1(QTest::currentDataTag()));
    QCoreApplication::processEvents();
    const std::vector<QList<QAction*>> menus = menusOf(fixture.window);
    // The bar with its six menus, that of the table and that of the preview.
    QCOMPARE(menus.size(), std::size_t(9));
    for (const QList<QAction*>& menu : menus) {
        QHash<QKeySequence, QString> taken;
        for (const QAction* action : menu) {
            const QKeySequence letter = QKeySequence::mnemonic(action->text());
            if (action->isSeparator()) {
                continue;
            }
            QVERIFY2(!letter.isEmpty(), qPrintable(action->text()));
            QVERIFY2(!taken.contains(letter),
                     qPrintable(action->text() + QStringLiteral(", ") + taken[letter]));
            taken.insert(letter, action->text());
        }
        QVERIFY(!taken.isEmpty());
    }
}

void tst_HostLanguage::aLetterChoosesItsEntry()
{
    HostFixture fixture;
    fixture.window.show();
    auto* programs = fixture.window.findChild<QDockWidget*>(QStringLiteral("catalogueDock"));
    QVERIFY(!programs->isHidden());
    // A new title does not take the letter away.
    programs->setWindowTitle(QStringLiteral("Days"));
    fixture.languages.select(QStringLiteral("de_DE"));
    QCoreApplication::processEvents();
    QMenu* view = fixture.window.findChild<EditorMenus*>()->viewMenu()->menu();
    view->popup(QPoint(0, 0));
    QTest::keyClick(view, Qt::Key_K);
    QVERIFY(programs->isHidden());
}

void tst_HostLanguage::titleButtonsOfPromptsAreNamed()
{
    HostFixture fixture;
    fixture.languages.select(QStringLiteral("ru_RU"));
    trel::widgets::Dialog dialog;
    dialog.setScaleSwitch({300, 200}, {500, 300});
    fixture.languages.select(QString::fromLatin1(QTest::currentDataTag()));
    QCoreApplication::processEvents();
    const auto spoken = [&dialog](const char* name) {
        return dialog.findChild<QAbstractButton*>(QLatin1String(name))->accessibleName();
    };
    QCOMPARE(spoken("ButtonMin"), editorText("zhMinAct"));
    QCOMPARE(spoken("ButtonScale"), editorText("zhMaxAct"));
    QCOMPARE(spoken("ButtonClose"), editorText("zhCloseAct"));
    dialog.findChild<QAbstractButton*>(QStringLiteral("ButtonScale"))->click();
    QCOMPARE(spoken("ButtonScale"), editorText("zhReductionAct"));
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
    // The window shows the time of day.
    const TestClock clock(QDateTime(QDate(2026, 3, 11), QTime(12, 0)));
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

TREL_TEST(tst_HostLanguage, QApplication)
#include "tst_HostLanguage.moc"
