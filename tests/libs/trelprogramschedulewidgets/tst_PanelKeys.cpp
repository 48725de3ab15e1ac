#include "KeyboardWindow.h"

#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "trelwidgets/ComboBox.h"

#include <QAccessible>
#include <QApplication>
#include <QHash>
#include <QShortcut>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

} // namespace

/// The keys of the buttons of the panel, and what is told of all keys.
class tst_PanelKeys : public QObject, private KeyboardWindow
{
    Q_OBJECT

private slots:
    void init() { setUpWindow(); }
    void cleanup() { tearDownWindow(); }

    void panelKeys_data();
    void panelKeys();
    void noKeyClashesWithAnother();
    void theFixedShortcutStays();
    void keysAreTold();
    void addTask();
    void addTaskDoesNothingWhileTheListLoads();
};

void tst_PanelKeys::panelKeys_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("place");
    const std::pair<const char*, const char*> keys[] = {{"Ctrl+Return", "pushButtonSave"},
                                                        {"Ctrl+Enter", "pushButtonSave"},
                                                        {"F5", "pushButtonStart"},
                                                        {"Ctrl+W", "pushButtonClose"}};
    for (const auto& [key, button] : keys) {
        for (const char* const place : {"area", "bar", "day", "time", "count", "box"}) {
            QTest::addRow("%s in %s", key, place)
                << QString::fromLatin1(key) << QString::fromLatin1(button)
                << QString::fromLatin1(place);
        }
    }
}

void tst_PanelKeys::panelKeys()
{
    QFETCH(const QString, keys);
    QFETCH(const QString, button);
    QFETCH(const QString, place);
    // No two tasks may share a day.
    const PromptAnswer noPrompt;
    service().working.clear();
    QPushButton* const pressed = m_window->button(button.toLatin1().constData());
    QSignalSpy clicks(pressed, &QPushButton::clicked);
    QVERIFY(clicks.isValid());
    card(0).setFolded(false);
    const QHash<QString, QWidget*> places{
        {QStringLiteral("area"), area()},
        {QStringLiteral("bar"), bar(0)},
        {QStringLiteral("day"),
         card(0).findChild<QWidget*>(QStringLiteral("dateEditVaildEndTime"))},
        {QStringLiteral("time"), &rows(0).startTime(0)},
        {QStringLiteral("count"), &rows(0).times(1)},
        {QStringLiteral("box"), &rows(0).mode(0)}};
    focus(*places[place]);
    pressed->setEnabled(false);
    press(keys.toLatin1().constData());
    QCOMPARE(clicks.count(), 0);
    pressed->setEnabled(true);
    press(keys.toLatin1().constData());
    QCOMPARE(clicks.count(), 1);
}

void tst_PanelKeys::noKeyClashesWithAnother()
{
    // Those of the delete button of a card, of a host's menus and of any text.
    QList<QKeySequence> keys;
    for (const char* const text :
         {"Ctrl+S, Ctrl+S", "F11", "Ctrl+E", "Ctrl+I", "Ctrl+Shift+I", "Ctrl+O", "Ctrl+Q", "Del",
          "Ctrl+C", "Ctrl+X", "Ctrl+V", "Ctrl+Z", "Ctrl+Shift+Z", "Ctrl+Y", "Ctrl+A"}) {
        keys << QKeySequence(QLatin1String(text));
    }
    const auto shortcuts = m_window->panel().findChildren<QShortcut*>();
    QVERIFY(shortcuts.size() > 10);
    for (const QShortcut* const shortcut : shortcuts) {
        for (const QKeySequence& other : qAsConst(keys)) {
            QCOMPARE(shortcut->key().matches(other), QKeySequence::NoMatch);
            QCOMPARE(other.matches(shortcut->key()), QKeySequence::NoMatch);
        }
        QCOMPARE(shortcut->context(), Qt::WidgetWithChildrenShortcut);
        keys << shortcut->key();
    }
}

void tst_PanelKeys::theFixedShortcutStays()
{
    const PromptAnswer deletions({1, 1, 2});
    // With one card there is no doubt which one it means.
    card(2).slotDeleteTask();
    card(1).slotDeleteTask();
    comeBack();
    area()->setFocus();
    press("Ctrl+S");
    QCOMPARE(deletions.count(), 2);
    press("Ctrl+S");
    QTRY_COMPARE(deletions.count(), 3);
}

void tst_PanelKeys::keysAreTold()
{
    m_window->dialog.translate();
    const auto native = [](const char* keys) {
        return QKeySequence(QLatin1String(keys)).toString(QKeySequence::NativeText);
    };
    const auto toolTip = [this](const char* button) { return m_window->button(button)->toolTip(); };
    QCOMPARE(toolTip("pushButtonAddTask"),
             QStringLiteral("zhSchedulePlayStrAdd (%1)").arg(native("Ctrl+Shift+N")));
    QCOMPARE(toolTip("pushButtonSave"), QStringLiteral("zhFixAct (%1)").arg(native("Ctrl+Return")));
    QCOMPARE(toolTip("pushButtonStart"), QStringLiteral("zhEnable (%1)").arg(native("F5")));
    QCOMPARE(toolTip("pushButtonClose"), QStringLiteral("zhCancelAct (%1)").arg(native("Ctrl+W")));
    QCOMPARE(toolTip("pushButtonAdd"),
             QStringLiteral("zhSelectProgramsStr (%1)").arg(native("Ctrl+N")));

    const auto description = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
    };
    card(0).setFolded(false);
    QCOMPARE(description(bar(0)), native("F3"));
    QCOMPARE(description(m_window->button("pbtCreatCopy")), native("Ctrl+Shift+D"));
    QCOMPARE(description(m_window->button("pushButtonDelete")), native("Ctrl+Shift+Del"));
    QCOMPARE(description(&rows(0).copyButton(1)), native("Ctrl+D"));
    QCOMPARE(description(&rows(0).deleteButton(1)), native("Ctrl+Del"));
    QCOMPARE(
        description(
            rows(0).cell(1, ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("pushButton"))),
        QStringLiteral("Film (%1)").arg(native("F2")));
}

void tst_PanelKeys::addTask()
{
    press("Ctrl+Shift+N");
    QCOMPARE(cards(), 4);
    QCOMPARE(QApplication::focusWidget(), bar(3));
    QVERIFY(!card(3).isFolded());
}

void tst_PanelKeys::addTaskDoesNothingWhileTheListLoads()
{
    m_window->panel().slotShowProcess();
    press("Ctrl+Shift+N");
    QCOMPARE(cards(), 3);
    m_window->panel().slotCloseProcess();
}

TREL_TEST(tst_PanelKeys, QApplication)
#include "tst_PanelKeys.moc"
