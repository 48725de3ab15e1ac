#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "card/PlanColumns.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTimeEdit>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// Keeps a window open, as what is answered in its own closing does.
class RefusedClosing : public QObject
{
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Close) {
            return false;
        }
        event->ignore();
        return true;
    }
};

} // namespace

/// The host's window around the editor: databases, languages, the catalogue and the way out.
class tst_EditorWindow : public QObject
{
    Q_OBJECT

private slots:
    void aNewDatabaseIsFilledOnce();
    void withoutADemonstrationANewDatabaseIsEmpty();
    void theTitlesNameTheDatabase();
    void aFileThatIsNoDatabaseIsRefusedInWords();
    void anotherDatabaseTakesThePlaceInAnOpenEditor();
    void aWrongFileLeavesThePresentScheduleOpen_data();
    void aWrongFileLeavesThePresentScheduleOpen();
    void theLanguageChangesEverywhereAtOnce();
    void anotherLanguageClearsTheStatus();
    void theLanguageInUseIsMarked();
    void anUnknownLanguageChangesNothing();
    void removingAProgramAsksFirst();
    void aRemovalTakesWhatTheQuestionNamed();
    void closingWithUnsavedChangesAsks_data();
    void closingWithUnsavedChangesAsks();
    void closingWhileATimeIsTypedAsks();
    void closingWithoutChangesAsksNothing();
    void closesWithItsEditorOnly();

private:
    static QAction* action(const QWidget& window, const QString& text)
    {
        const QList<QAction*> actions = window.findChildren<QAction*>();
        for (QAction* action : actions) {
            if (action->text().remove(QLatin1Char('&')) == text) {
                return action;
            }
        }
        return nullptr;
    }
    static QAction* languageAction(const QWidget& window, const char* language)
    {
        const QList<QAction*> actions = window.findChildren<QAction*>();
        for (QAction* action : actions) {
            if (action->data().toString() == QLatin1String(language)) {
                return action;
            }
        }
        return nullptr;
    }
};

void tst_EditorWindow::aNewDatabaseIsFilledOnce()
{
    HostFixture fixture;

    QCOMPARE(fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION)),
             QString());
    QCOMPARE(fixture.manager.getgTaskMap().size(), std::size_t(3));

    QVERIFY(fixture.host.replaceSchedule({}));
    QCOMPARE(fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION)),
             QString());
    QVERIFY(fixture.manager.getgTaskMap().empty());
}

void tst_EditorWindow::withoutADemonstrationANewDatabaseIsEmpty()
{
    HostFixture fixture;

    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());

    QVERIFY(fixture.manager.getgTaskMap().empty());
    QVERIFY(fixture.window.findChild<QTableView*>(QStringLiteral("programTable"))->isHidden());
    QVERIFY(!fixture.window.findChild<QLabel*>(QStringLiteral("programHint"))->isHidden());
}

void tst_EditorWindow::theTitlesNameTheDatabase()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database);

    QCOMPARE(fixture.window.windowTitle(), QStringLiteral("screen.db – Schedule editor"));
    QVERIFY(fixture.editor->windowTitle().endsWith(QStringLiteral(" – screen.db")));
    fixture.languages.select(QStringLiteral("zh_CN"));
    QVERIFY(fixture.editor->windowTitle().endsWith(QStringLiteral(" – screen.db")));
}

void tst_EditorWindow::aFileThatIsNoDatabaseIsRefusedInWords()
{
    HostFixture fixture;
    QFile file(fixture.database);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("This is a letter to a friend, and nothing that a store could be made of.");
    file.close();

    const QString error = fixture.window.openDatabase(fixture.database);

    QVERIFY2(error.contains(fixture.database), qPrintable(error));
    QVERIFY(!fixture.host.isOpen());
}

void tst_EditorWindow::anotherDatabaseTakesThePlaceInAnOpenEditor()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.showEditor();
    const auto cards = [&fixture] {
        return fixture.editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget")).size();
    };
    QCOMPARE(cards(), 3);

    fixture.window.openDatabase(fixture.folder.filePath(QStringLiteral("other.db")));

    QCOMPARE(cards(), 0);
}

void tst_EditorWindow::aWrongFileLeavesThePresentScheduleOpen_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("a text") << QByteArray("{}") << false;
    // Only when it is opened.
    QTest::newRow("a damaged database")
        << QByteArray("SQLite format 3", 16).append(200, 'x') << true;
}

void tst_EditorWindow::aWrongFileLeavesThePresentScheduleOpen()
{
    QFETCH(const QByteArray, content);
    QFETCH(const bool, isAsked);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    fixture.showEditor();
    PlayTask task = fixture.manager.getTask(3);
    task.id = 7;
    fixture.manager.addTask(task);
    fixture.editor->slotShowTask(7);
    const auto cards = [&fixture] {
        return fixture.editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget")).size();
    };
    QCOMPARE(cards(), 4);
    QFile file(fixture.folder.filePath(QStringLiteral("wrong.db")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    answerFileDialog(file.fileName());
    PromptAnswer answer;
    if (isAsked) {
        answer.expect(1); // Save.
    }
    answer.expect(1);

    action(fixture.window, QStringLiteral("Open database…"))->trigger();

    QCOMPARE(answer.count(), isAsked ? 2 : 1);
    QVERIFY2(answer.texts().last().contains(QStringLiteral("wrong.db")),
             qPrintable(answer.texts().last()));
    QCOMPARE(fixture.host.path(), fixture.database);
    QCOMPARE(fixture.host.hasUnsavedChanges(), !isAsked);
    QCOMPARE(cards(), 4);
    QCOMPARE(fixture.manager.getAllTask().size(), std::size_t(4));
}

void tst_EditorWindow::theLanguageChangesEverywhereAtOnce()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database);
    auto* save = fixture.editor->findChild<QPushButton*>(QStringLiteral("pushButtonSave"));
    QVERIFY(save != nullptr);
    const QString english = save->text();
    QAction* chinese = languageAction(fixture.window, "zh_CN");
    QVERIFY(chinese != nullptr);
    QVERIFY(action(fixture.window, QStringLiteral("Import files…")) != nullptr);

    chinese->trigger();

    QVERIFY(save->text() != english);
    QTRY_VERIFY(action(fixture.window, QStringLiteral("Import files…")) == nullptr);
    QVERIFY(action(fixture.window, QStringLiteral("导入文件(I)…")) != nullptr);
    fixture.languages.select(QStringLiteral("en_US"));
    QCOMPARE(save->text(), english);
    QTRY_VERIFY(action(fixture.window, QStringLiteral("Import files…")) != nullptr);
}

void tst_EditorWindow::anotherLanguageClearsTheStatus()
{
    HostFixture fixture;
    fixture.window.statusBar()->showMessage(EditorWindow::tr("Written to %1."));
    fixture.languages.select(QStringLiteral("de_DE"));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.window.statusBar()->currentMessage(), QString());
}

void tst_EditorWindow::theLanguageInUseIsMarked()
{
    HostFixture fixture;
    const QAction* english = languageAction(fixture.window, "en_US");
    const QAction* chinese = languageAction(fixture.window, "zh_CN");

    QVERIFY(english->isChecked());
    QVERIFY(!chinese->isChecked());
    fixture.languages.select(QStringLiteral("zh_CN"));
    QVERIFY(!english->isChecked());
    QVERIFY(chinese->isChecked());
}

void tst_EditorWindow::anUnknownLanguageChangesNothing()
{
    HostFixture fixture;
    QSignalSpy changed(&fixture.languages, &Languages::changed);
    QVERIFY(changed.isValid());

    fixture.languages.select(QStringLiteral("xx_XX"));

    QCOMPARE(changed.count(), 0);
    QCOMPARE(fixture.languages.current(), QStringLiteral("en_US"));
}

void tst_EditorWindow::removingAProgramAsksFirst()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    auto* table = fixture.window.findChild<QTableView*>(QStringLiteral("programTable"));
    QAction* remove = action(fixture.window, QStringLiteral("Remove from catalog"));
    QVERIFY(!remove->isEnabled());
    table->selectRow(1);
    QVERIFY(remove->isEnabled());

    {
        PromptAnswer answer({2, 1});
        remove->trigger();
        QCOMPARE(fixture.manager.getPrograms().size(), std::size_t(8));
        remove->trigger();
        QCOMPARE(answer.count(), 2);
    }
    QCOMPARE(fixture.manager.getPrograms().size(), std::size_t(7));
    QCOMPARE(fixture.manager.getPrograms().count(2), std::size_t(0));
    QCOMPARE(table->model()->rowCount(), 7);
}

/// Also when the rows are others by the time of the answer.
void tst_EditorWindow::aRemovalTakesWhatTheQuestionNamed()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    auto* table = fixture.window.findChild<QTableView*>(QStringLiteral("programTable"));
    table->selectRow(1);
    // The prompt's loop handles this before it comes to the answer.
    QTimer::singleShot(0, &fixture.window, [&fixture] { QVERIFY(fixture.host.removeProgram(1)); });
    {
        const PromptAnswer answer(1);
        action(fixture.window, QStringLiteral("Remove from catalog"))->trigger();
        QCOMPARE(answer.count(), 1);
    }
    const auto programs = fixture.manager.getPrograms();
    QCOMPARE(programs.size(), std::size_t(6));
    QCOMPARE(programs.count(2), std::size_t(0));
    QCOMPARE(programs.count(3), std::size_t(1));
}

void tst_EditorWindow::closingWithUnsavedChangesAsks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<int>("storedTasks");

    QTest::newRow("save") << 1 << true << 4;
    QTest::newRow("keep as draft") << 2 << true << 3;
    QTest::newRow("discard") << 3 << true << 3;
    QTest::newRow("escape") << static_cast<int>(PromptAnswer::Escape) << false << 3;
}

void tst_EditorWindow::closingWithUnsavedChangesAsks()
{
    QFETCH(int, button);
    QFETCH(bool, closed);
    QFETCH(int, storedTasks);
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    fixture.showEditor();
    PlayTask task;
    task.id = 9;
    fixture.manager.addTask(task);

    PromptAnswer answer(button);
    fixture.window.close();

    QCOMPARE(answer.count(), 1);
    QCOMPARE(fixture.window.isHidden(), closed);
    QCOMPARE(fixture.editor->isHidden(), closed);
    QCOMPARE(static_cast<int>(fixture.manager.getgTaskMap().size()), storedTasks);
}

void tst_EditorWindow::closingWhileATimeIsTypedAsks()
{
    HostFixture fixture;
    fixture.window.show();
    fixture.showDemonstration();
    QApplication::setActiveWindow(fixture.editor.get());
    auto* const start = fixture.cell(0, StartTimeColumn)->findChild<QTimeEdit*>();
    start->setFocus();
    start->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(start, Qt::Key_0);
    QVERIFY(!fixture.host.hasUnsavedChanges());

    const PromptAnswer stay(PromptAnswer::Escape);
    fixture.window.close();

    QCOMPARE(stay.count(), 1);
    QVERIFY(!fixture.window.isHidden());
    QVERIFY(fixture.host.hasUnsavedChanges());
    QCOMPARE(start->time().hour(), 0);
}

void tst_EditorWindow::closingWithoutChangesAsksNothing()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    // Building the cards marks collisions afresh; that is no change of the operator's.
    fixture.showEditor();

    const PromptAnswer nothing;
    fixture.window.close();

    QVERIFY(fixture.window.isHidden());
}

// The editor may be in the middle of its own end, or be kept open by something else: without its
// window the program could not be left any more.
void tst_EditorWindow::closesWithItsEditorOnly()
{
    HostFixture fixture;
    fixture.showDemonstration();
    fixture.window.show();
    {
        RefusedClosing refusal;
        fixture.editor->installEventFilter(&refusal);
        QVERIFY(!fixture.window.close());
        QVERIFY(fixture.editor->isVisible());
        QVERIFY(fixture.window.isVisible());
    }
    QVERIFY(fixture.window.close());
    QVERIFY(!fixture.editor->isVisible());
    QVERIFY(!fixture.window.isVisible());
}

TREL_TEST(tst_EditorWindow, QApplication)
#include "tst_EditorWindow.moc"
