#include "EditorMenus.h"
#include "HostFixture.h"
#include "LookSupport.h"
#include "common/VersionText.h"
#include "help/GuideWindow.h"
#include "help/HelpMenu.h"
#include "help/KeySheet.h"
#include "look/ThemeImages.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "week/WeekKeys.h"
#include "week/WeekMenu.h"
#include "week/moves/MoveKeys.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

struct Desk : HostFixture
{
    Desk() { window.openDatabase(database); }

    HelpMenu& help() const { return *window.findChild<HelpMenu*>(); }

private:
    NoPlatformNotes m_quiet;
};

void addKeys(const QList<QAction*>& actions, QStringList& keys)
{
    for (const QAction* action : actions) {
        if (action->menu() != nullptr) {
            addKeys(action->menu()->actions(), keys);
        } else if (!action->shortcut().isEmpty()) {
            keys.append(action->shortcut().toString(QKeySequence::NativeText));
        }
    }
}

QStringList keysOf(const KeySection& section)
{
    QStringList keys;
    for (const KeyLine& line : section.lines) {
        keys.append(line.keys);
    }
    return keys;
}

} // namespace

/// The guide, the sheet of keys and what the program says of itself.
class tst_HelpMenu : public QObject
{
    Q_OBJECT

private slots:
    void isTheLastMenu();
    void theGuideNeedsNoFiles();
    void theGuideFollowsItsLinks();
    void picturesOfTheGuideAreSharp();
    void linksCanBeRead_data() { addThemes(); }
    void linksCanBeRead();
    void theSheetKnowsAllMenus();
    void theSheetKnowsAllShortcutsOfTheEditor();
    void theSheetKnowsTheKeysOfTheWeek();
    void whatIsDoneDailyHasKeys();
    void theSheetKnowsTheKeysOfTheChooser();
    void theSheetIsOnScreen();
    void pictures_data();
    void pictures();
    void saysWhatItIs();
    void showsItsOwnSign();
    void speaksTheLanguageInUse();
};

void tst_HelpMenu::isTheLastMenu()
{
    const Desk desk;
    const QList<QAction*> menus = desk.window.menuBar()->actions();
    QCOMPARE(menus.last()->text(), QStringLiteral("&Help"));
    QVERIFY(menus.last()->menu()->actions().contains(desk.help().guide()));
    QCOMPARE(desk.help().guide()->shortcut(), QKeySequence(Qt::Key_F1));
}

void tst_HelpMenu::theGuideNeedsNoFiles()
{
    const Desk desk;
    desk.help().guide()->trigger();
    auto* const guide = desk.window.findChild<GuideWindow*>();
    QVERIFY(guide->isVisible());
    const auto* text = guide->findChild<QTextBrowser*>(QStringLiteral("guideText"));
    QVERIFY(text->toPlainText().startsWith(QLatin1String("The guide")));
    QFile source(QStringLiteral(":/guide/guide.md"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QString markdown = QString::fromUtf8(source.readAll());
    // Every picture and every document that it names is there.
    QRegularExpressionMatchIterator links =
        QRegularExpression(QStringLiteral("\\]\\(([^):]+)\\)")).globalMatch(markdown);
    int count = 0;
    while (links.hasNext()) {
        const QString link = links.next().captured(1);
        const bool isDrawn =
            QFile::exists(QStringLiteral(LANGUAGE_SOURCE_DIR "/../../docs/") + link);
        QVERIFY2(QFile::exists(QStringLiteral(":/guide/") + link) == isDrawn, qPrintable(link));
        ++count;
    }
    QVERIFY(count > 5);
    // One window, however often it is asked for.
    desk.help().guide()->trigger();
    QCOMPARE(desk.window.findChildren<GuideWindow*>().size(), 1);
    QTest::keyClick(guide->findChild<QTextBrowser*>(), Qt::Key_Escape);
    QVERIFY(!guide->isVisible());
}

void tst_HelpMenu::theGuideFollowsItsLinks()
{
    const Desk desk;
    desk.help().guide()->trigger();
    auto* const text = desk.window.findChild<GuideWindow*>()->findChild<QTextBrowser*>(
        QStringLiteral("guideText"));
    emit text->anchorClicked(QUrl(QStringLiteral("schedule-json.md")));
    QCOMPARE(text->source(), QUrl(QStringLiteral("qrc:/guide/schedule-json.md")));
    QVERIFY(!text->toPlainText().isEmpty());
    // Nothing of the disk is shown.
    emit text->anchorClicked(QUrl(QStringLiteral("file:///etc/hostname")));
    QCOMPARE(text->source(), QUrl(QStringLiteral("qrc:/guide/schedule-json.md")));
}

/// No picture is wider than its window, and none has fewer dots than it could have.
void tst_HelpMenu::picturesOfTheGuideAreSharp()
{
    const Desk desk;
    desk.help().guide()->trigger();
    const auto& text = *desk.window.findChild<GuideWindow*>()->findChild<QTextBrowser*>();
    const QTextDocument& document = *text.document();
    constexpr int kRoom = 820;
    int pictures = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (!format.isImageFormat()) {
                continue;
            }
            const QUrl name(format.toImageFormat().name());
            const QImage shown =
                document.resource(QTextDocument::ImageResource, name).value<QImage>();
            const QImage whole(QStringLiteral(":/guide/") + name.toString());
            QVERIFY(!whole.isNull());
            // What is drawn for fine screens is as large as the window was.
            const int points = whole.dotsPerMeterX() > 7000 ? whole.width() / 2 : whole.width();
            const int width = qMin(points, kRoom);
            QCOMPARE(shown.width(), qMin(whole.width(), qRound(width * qApp->devicePixelRatio())));
            QCOMPARE(qRound(shown.width() / shown.devicePixelRatio()), width);
            const double height = shown.height() / shown.devicePixelRatio();
            const QRectF place = document.documentLayout()->blockBoundingRect(block);
            QVERIFY2(qAbs(place.height() - height) < 40,
                     qPrintable(QStringLiteral("%1 is %2 high, and not %3")
                                    .arg(name.toString())
                                    .arg(place.height())
                                    .arg(height)));
            ++pictures;
        }
    }
    QVERIFY(pictures >= 5);
    QVERIFY(text.horizontalScrollBar()->maximum() == 0);
}

/// Of a guide that is open while the theme changes.
void tst_HelpMenu::linksCanBeRead()
{
    QFETCH(QString, theme);
    Desk desk;
    for (const QString& name : Themes::names()) {
        if (name != theme) {
            desk.themes.select(name);
        }
    }
    desk.help().guide()->trigger();
    const auto& text = *desk.window.findChild<GuideWindow*>()->findChild<QTextBrowser*>();
    QScrollBar& bar = *text.verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    const int place = bar.value();
    desk.themes.select(theme);
    QCoreApplication::processEvents();
    QCOMPARE(bar.value(), place);
    QVERIFY(place > 0);
    const QColor ground = text.palette().color(QPalette::Base);
    int links = 0;
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isAnchor() && !format.isImageFormat()) {
                const QColor colour = format.foreground().color();
                QVERIFY2(contrast(colour, ground) >= kLeastContrast, qPrintable(colour.name()));
                ++links;
            }
        }
    }
    QVERIFY(links > 0);
}

void tst_HelpMenu::theSheetKnowsAllMenus()
{
    const Desk desk;
    QStringList expected;
    addKeys(desk.window.menuBar()->actions(), expected);
    QVERIFY(expected.size() > 8);
    const KeySection section = KeyTable::sections(*desk.window.menuBar(), *desk.editor).front();
    QCOMPARE(keysOf(section), expected);
    for (const KeyLine& line : section.lines) {
        QVERIFY2(!line.text.isEmpty() && !line.text.contains(QLatin1Char('&')),
                 qPrintable(line.text));
    }
}

void tst_HelpMenu::theSheetKnowsAllShortcutsOfTheEditor()
{
    const Desk desk;
    const QStringList known =
        keysOf(KeyTable::sections(*desk.window.menuBar(), *desk.editor).at(1));
    QStringList told = known;
    const QList<QShortcut*> shortcuts = desk.editor->findChildren<QShortcut*>();
    QVERIFY(shortcuts.size() > 10);
    for (const QShortcut* shortcut : shortcuts) {
        const QString keys = shortcut->key().toString(QKeySequence::NativeText);
        // The second key that saves is on the number pad.
        if (shortcut->key() != QKeySequence(QStringLiteral("Ctrl+Enter"))) {
            QVERIFY2(told.removeOne(keys), qPrintable(keys));
        }
    }
    QCOMPARE(told, QStringList());
}

void tst_HelpMenu::theSheetKnowsTheKeysOfTheWeek()
{
    const Desk desk;
    const QStringList lines =
        keysOf(KeyTable::sections(*desk.window.menuBar(), *desk.editor).at(2));
    QSet<QString> told;
    for (const QString& line : lines) {
        const QStringList keys = line.split(QStringLiteral(", "));
        told.unite(QSet<QString>(keys.begin(), keys.end()));
    }
    // Each key that means something by itself is told; those that mean the same twice are told
    // once.
    const QSet<int> twins{Qt::Key_Equal, Qt::Key_Enter};
    int count = 0;
    // Between the last letter and the first key without one there are no keys, but many numbers.
    const auto after = [](int key) {
        return key == Qt::Key_ydiaeresis ? static_cast<int>(Qt::Key_Escape) : key + 1;
    };
    for (int key = Qt::Key_Space; key < Qt::Key_F35; key = after(key)) {
        for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ControlModifier}) {
            const QKeyEvent event(QEvent::KeyPress, key, held);
            const bool means = week::commandOf(event, Qt::LeftToRight) != week::WeekCommand::None;
            const QKeyEvent plain(QEvent::KeyPress, key, Qt::NoModifier);
            const bool meansPlain =
                week::commandOf(plain, Qt::LeftToRight) != week::WeekCommand::None;
            if (!means || twins.contains(key) || (held != Qt::NoModifier && meansPlain)) {
                continue;
            }
            const QString name =
                QKeySequence(static_cast<int>(held) + key).toString(QKeySequence::NativeText);
            QVERIFY2(told.contains(name), qPrintable(name));
            ++count;
        }
    }
    QCOMPARE(count, 12);
    // And each that moves a block, by itself and in its line.
    for (const week::MoveKey& key : week::moveKeys()) {
        const QString name = QKeySequence(key.keys).toString(QKeySequence::NativeText);
        QVERIFY2(told.contains(name), qPrintable(name));
    }
    QVERIFY2(lines.contains(QStringLiteral("Ctrl+Up, Ctrl+Down")),
             qPrintable(lines.join(QLatin1Char('\n'))));
    QVERIFY2(lines.contains(QStringLiteral("Up, Down, Left, Right")),
             qPrintable(lines.join(QLatin1Char('\n'))));
}

/// What is done daily stands in a menu and has a key.
void tst_HelpMenu::whatIsDoneDailyHasKeys()
{
    const Desk desk;
    const auto& menus = *desk.window.findChild<EditorMenus*>();
    const auto& week = *desk.window.findChild<week::WeekMenu*>();
    const std::vector<std::pair<QAction*, const char*>> daily = {
        {menus.startSchedule(), "F5"},   {menus.stopSchedule(), "Shift+F5"},
        {menus.undo(), "Ctrl+Z"},        {menus.searchPrograms(), "Ctrl+F"},
        {menus.importFiles(), "Ctrl+I"}, {menus.editSchedule(), "Ctrl+E"},
        {menus.previewProgram(), "F4"},  {week.today(), "Alt+Home"},
        {week.former(), "Alt+PgUp"},     {week.next(), "Alt+PgDown"},
        {week.choose(), "Ctrl+G"},
    };
    QStringList keys;
    addKeys(desk.window.menuBar()->actions(), keys);
    for (const auto& [action, key] : daily) {
        QCOMPARE(action->shortcut(), QKeySequence(QLatin1String(key)));
        QCOMPARE(keys.count(action->shortcut().toString(QKeySequence::NativeText)), 1);
    }
    // No key does two things in the window.
    QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
}

void tst_HelpMenu::theSheetIsOnScreen()
{
    const Desk desk;
    desk.help().keys()->trigger();
    auto* const sheet = desk.window.findChild<KeySheet*>();
    QVERIFY(sheet->isVisible());
    const auto* list = sheet->findChild<QTreeWidget*>(QStringLiteral("keyList"));
    QCOMPARE(list->topLevelItemCount(), 4);
    QCOMPARE(list->topLevelItem(1)->text(0), QStringLiteral("Editor"));
    QCOMPARE(list->topLevelItem(1)->childCount(), 13);
    // A close ends it for good.
    QTest::keyClick(sheet, Qt::Key_Escape);
    QTRY_VERIFY(desk.window.findChild<KeySheet*>() == nullptr);
}

void tst_HelpMenu::pictures_data()
{
    QTest::addColumn<QString>("theme");
    const QStringList themes = Themes::names();
    for (const QString& theme : themes) {
        QTest::newRow(qPrintable(theme)) << theme;
    }
}

void tst_HelpMenu::pictures()
{
    QFETCH(QString, theme);
    Desk desk;
    desk.themes.select(theme);
    desk.help().keys()->trigger();
    desk.help().guide()->trigger();
    QCoreApplication::processEvents();
    QDir().mkpath(QStringLiteral(PICTURES));
    const QString name = QStringLiteral(PICTURES "/help-%1-%2.png").arg(theme);
    QVERIFY(desk.window.findChild<KeySheet*>()->grab().save(name.arg(QStringLiteral("keys"))));
    QVERIFY(desk.window.findChild<GuideWindow*>()->grab().save(name.arg(QStringLiteral("guide"))));
}

void tst_HelpMenu::saysWhatItIs()
{
    const Desk desk;
    PromptAnswer answer(1);
    desk.help().about()->trigger();
    QVERIFY2(answer.texts().front().contains(trel::hosts::versionText("schedule-editor")),
             qPrintable(answer.texts().front()));
}

/// The sign of the program, and none of a warning.
void tst_HelpMenu::showsItsOwnSign()
{
    const Desk desk;
    const PromptAnswer answer(1);
    QImage sign;
    QString title;
    QTimer::singleShot(0, &desk.window, [&] {
        const QWidget* const prompt = QApplication::activeModalWidget();
        const auto* const label = prompt->findChild<QLabel*>(QStringLiteral("dialogTipIcon"));
        sign = label->pixmap(Qt::ReturnByValue).toImage();
        title = prompt->windowTitle();
    });
    desk.help().about()->trigger();
    QCOMPARE(title, QStringLiteral("About this program"));
    QVERIFY(!sign.isNull());
    const QImage own =
        look::imageIcon(QStringLiteral("schedule-editor"), QColor()).pixmap(sign.size()).toImage();
    QCOMPARE(sign.convertToFormat(QImage::Format_ARGB32),
             own.convertToFormat(QImage::Format_ARGB32));
}

void tst_HelpMenu::theSheetKnowsTheKeysOfTheChooser()
{
    const Desk desk;
    const KeySection section = KeyTable::sections(*desk.window.menuBar(), *desk.editor).at(3);
    const QStringList keys = keysOf(section);
    QCOMPARE(keys.join(u'|'),
             QStringLiteral("Up, Down|Space|Ctrl+A|Return|Del|Alt+Up, Alt+Down|F2|Ctrl+Return"));
    for (const KeyLine& line : section.lines) {
        QVERIFY(!line.text.isEmpty());
    }
}

void tst_HelpMenu::speaksTheLanguageInUse()
{
    Desk desk;
    desk.languages.select(QStringLiteral("de_DE"));
    QCoreApplication::processEvents();
    QCOMPARE(desk.help().guide()->text(), QStringLiteral("&Anleitung"));
    const KeySection section = KeyTable::sections(*desk.window.menuBar(), *desk.editor).at(1);
    QCOMPARE(section.lines.front().text.isEmpty(), false);
    desk.languages.select(QStringLiteral("ja_JP"));
    QCoreApplication::processEvents();
    const auto first =
        KeyTable::sections(*desk.window.menuBar(), *desk.editor).front().lines.front();
    QVERIFY2(!first.text.contains(QLatin1Char('(')), qPrintable(first.text));
}

TREL_TEST(tst_HelpMenu, QApplication)
#include "tst_HelpMenu.moc"
