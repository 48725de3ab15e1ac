#include "EditorMenus.h"
#include "HostFixture.h"
#include "HostPrompts.h"
#include "PseudoLanguage.h"
#include "WindowTexts.h"
#include "card/PlanColumns.h"
#include "catalogue/CatalogueImport.h"
#include "draft/DraftKeeper.h"
#include "support/PlatformNotes.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"

#include <QAction>
#include <QDateEdit>
#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// Every window of host and editor in the made-up language, on a schedule with two tasks.
struct PseudoFixture : HostFixture
{
    PseudoFixture()
        : language(*editor)
    {
        window.openDatabase(database);
        host.addPrograms(samplePrograms(3));
        host.replaceSchedule(sampleSchedule(2, 3, 2));
        window.resize(1180, 720);
        window.show();
        QCoreApplication::processEvents();
    }

    void showCards()
    {
        showEditor();
        const QList<QWidget*> cards =
            editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget"));
        for (const QWidget* card : cards) {
            card->findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(false);
        }
        QCoreApplication::processEvents();
    }

    template <typename T>
    T* part(int column) const
    {
        return cell(0, column)->findChild<T*>();
    }

    /// Looks at the window that an action opens and blocks in, and closes it.
    template <typename Open>
    void lookAtDialog(const QString& name, Open open)
    {
        bool isSeen = false;
        const auto look = [&] {
            const QPointer<QWidget> dialog = QApplication::activePopupWidget() != nullptr
                                                 ? QApplication::activePopupWidget()
                                                 : QApplication::activeModalWidget();
            if (dialog) {
                isSeen = true;
                texts.lookAt(*dialog, name);
                dialog->close();
            }
        };
        QTimer::singleShot(0, &window, look);
        open();
        QVERIFY2(isSeen, qPrintable(name));
    }

    QAction* action(const char* english) const
    {
        const QString text = PseudoLanguage::longer(QString::fromUtf8(english));
        const QList<QAction*> actions = window.findChildren<QAction*>();
        for (QAction* action : actions) {
            if (action->text() == text) {
                return action;
            }
        }
        return nullptr;
    }

    /// A plan as it is cut in outside its own time.
    static PlayPlan onePlay(PlayPlan plan)
    {
        plan.serviceFlagA = true;
        plan.serviceFlagB = true;
        return plan;
    }

    const NoPlatformNotes quiet;
    PseudoLanguage language;
    WindowTexts texts;
};

} // namespace

/// Walks through every window in a language that is half as long again, and looks for texts that
/// are not translated or do not fit.
class tst_PseudoLanguage : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<PseudoFixture>(); }
    void cleanup() { m_fixture.reset(); }
    void bracketsAreFound();
    void window();
    void menus();
    void versions();
    void editor();
    void chooser();
    void menuOfTheChooser();
    void importProgress();
    void promptsOfTheEditor();
    void promptsOfTheHost();
    void fileDialogs();

private:
    void verifyTexts(int least) const
    {
        const WindowTexts& texts = m_fixture->texts;
        const QStringList found = texts.untranslated() + texts.cut();
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
        QVERIFY2(texts.count() >= least, qPrintable(QString::number(texts.count())));
    }

    std::unique_ptr<PseudoFixture> m_fixture;
};

void tst_PseudoLanguage::bracketsAreFound()
{
    QWidget window;
    QLabel plain(QStringLiteral("⟦a label⟧ 12:00 label"), &window);
    plain.adjustSize();
    QLabel cut(QStringLiteral("⟦⟦nested⟧ label⟧ 3"), &window);
    cut.setGeometry(0, 40, 20, 20);
    WindowTexts texts;
    texts.lookAt(window, QStringLiteral("w"));
    QCOMPARE(texts.untranslated(), QStringList{QStringLiteral("w, QLabel: ⟦a label⟧ 12:00 label")});
    QCOMPARE(texts.cut().size(), 1);
    QVERIFY(texts.cut().first().contains(QStringLiteral("nested")));
}

void tst_PseudoLanguage::window()
{
    PseudoFixture& fixture = *m_fixture;
    fixture.texts.lookAt(fixture.window, QStringLiteral("window"));
    fixture.manager.slotOpen();
    // What is saved differs from what is in effect, and something is cut in.
    PlayTask task = fixture.manager.getTask(1);
    task.plans[0].weeks = "2";
    fixture.manager.addTask(task);
    QVERIFY(fixture.host.trySave());
    QVERIFY(
        fixture.host.insertPlan(1, task.plans[0].id, PseudoFixture::onePlay(task.plans[0]), false));
    const auto isShown = [&fixture](const char* name) {
        return !fixture.window.findChild<QLabel*>(QLatin1String(name))->isHidden();
    };
    QTRY_VERIFY(isShown("effectSince") && isShown("effectDiffering") && isShown("nowCutIn"));
    const QList<QDockWidget*> panels = fixture.window.findChildren<QDockWidget*>();
    QCOMPARE(panels.size(), 7);
    for (QDockWidget* panel : panels) {
        panel->show();
        panel->raise();
        QCoreApplication::processEvents();
        fixture.texts.lookAt(*panel, panel->objectName());
    }
    fixture.host.removePrograms({1, 2, 3});
    QCoreApplication::processEvents();
    fixture.texts.lookAt(fixture.window, QStringLiteral("without programs"));
    verifyTexts(80);
}

void tst_PseudoLanguage::versions()
{
    PseudoFixture& fixture = *m_fixture;
    PlayTask task = fixture.manager.getTask(1);
    task.plans.pop_back();
    fixture.manager.addTask(task);
    QVERIFY(fixture.host.trySave());
    fixture.window.findChild<EditorMenus*>()->versions()->trigger();
    auto* const list = fixture.window.findChild<QDialog*>(QStringLiteral("versionsWindow"));
    const auto* const table = list->findChild<QTableView*>(QStringLiteral("differenceTable"));
    auto* const tabs = list->findChild<QTabWidget*>(QStringLiteral("versionTabs"));
    QTRY_COMPARE(table->model()->rowCount(), 1);
    fixture.texts.lookAt(*list, QStringLiteral("versions"));
    tabs->setCurrentIndex(1);
    QCoreApplication::processEvents();
    fixture.texts.lookAt(*list, QStringLiteral("versions on the screen"));
    fixture.lookAtDialog(QStringLiteral("name of a version"), [list] {
        list->findChild<QPushButton*>(QStringLiteral("versionNameButton"))->click();
    });
    fixture.lookAtDialog(QStringLiteral("restoring"), [list] {
        list->findChild<QPushButton*>(QStringLiteral("versionRestoreButton"))->click();
    });
    fixture.lookAtDialog(QStringLiteral("writing"), [list] {
        list->findChild<QPushButton*>(QStringLiteral("versionWriteButton"))->click();
    });
    verifyTexts(40);
}

void tst_PseudoLanguage::menus()
{
    PseudoFixture& fixture = *m_fixture;
    const QList<QAction*> entries = fixture.window.menuBar()->actions();
    for (const QAction* entry : entries) {
        fixture.texts.lookAt(*entry->menu(), entry->text());
    }
    verifyTexts(15);
}

void tst_PseudoLanguage::editor()
{
    PseudoFixture& fixture = *m_fixture;
    fixture.showCards();
    fixture.texts.lookAt(*fixture.editor, QStringLiteral("editor"));
    QMetaObject::invokeMethod(fixture.editor.get(), "sigclearPlanList");
    QCoreApplication::processEvents();
    fixture.texts.lookAt(*fixture.editor, QStringLiteral("editor without tasks"));
    verifyTexts(100);
}

void tst_PseudoLanguage::chooser()
{
    PseudoFixture& fixture = *m_fixture;
    fixture.showCards();
    auto* field = fixture.part<QPushButton>(ProgramsColumn);
    fixture.lookAtDialog(QStringLiteral("chooser"), [field] { field->click(); });
    verifyTexts(30);
}

void tst_PseudoLanguage::menuOfTheChooser()
{
    PseudoFixture& fixture = *m_fixture;
    // The menu is there for a plan in use.
    fixture.manager.slotOpen();
    fixture.showCards();
    bool isSeen = false;
    QTimer::singleShot(0, &fixture.window, [&] {
        const QPointer<QWidget> chooser = QApplication::activeModalWidget();
        auto* chosen = chooser->findChildren<QTableView*>(QStringLiteral("schedule")).last();
        QTimer::singleShot(0, &fixture.window, [&] {
            if (QWidget* menu = QApplication::activePopupWidget()) {
                isSeen = true;
                fixture.texts.lookAt(*menu, QStringLiteral("menu of the chooser"));
                menu->close();
            }
        });
        emit chosen->customContextMenuRequested(
            chosen->visualRect(chosen->model()->index(0, 2)).center());
        chooser->close();
    });
    fixture.part<QPushButton>(ProgramsColumn)->click();
    QVERIFY(isSeen);
    verifyTexts(3);
}

/// The window comes after a while; it is looked at while files are searched for, and while they are
/// read.
void tst_PseudoLanguage::importProgress()
{
    PseudoFixture& fixture = *m_fixture;
    fixture.window.importMedia({fixture.copyMedia(QStringLiteral("media"))});
    auto* progress = fixture.window.findChild<QProgressDialog*>(QStringLiteral("importProgress"));
    QVERIFY(progress != nullptr);
    progress->show();
    fixture.texts.lookAt(*progress, QStringLiteral("progress of an import"));
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);
    const QString said = fixture.window.statusBar()->currentMessage();
    QVERIFY2(!said.isEmpty() && !WindowTexts::hasUntranslated(said), qPrintable(said));
    verifyTexts(3);
}

void tst_PseudoLanguage::promptsOfTheEditor()
{
    PseudoFixture& fixture = *m_fixture;
    fixture.showCards();
    fixture.lookAtDialog(QStringLiteral("delete a plan"),
                         [&fixture] { fixture.part<QAbstractButton>(DeleteColumn)->click(); });
    const QWidget* card = fixture.firstCard();
    fixture.lookAtDialog(QStringLiteral("delete a task"), [card] {
        card->findChild<QAbstractButton*>(QStringLiteral("pushButtonDelete"))->click();
    });
    fixture.lookAtDialog(QStringLiteral("refused dates"), [card] {
        auto* start = card->findChild<QDateEdit*>(QStringLiteral("dateEditVaildStartTime"));
        const auto* end = card->findChild<QDateEdit*>(QStringLiteral("dateEditVaildEndTime"));
        start->setDate(end->date().addDays(1));
    });
    verifyTexts(10);
}

void tst_PseudoLanguage::promptsOfTheHost()
{
    PseudoFixture& fixture = *m_fixture;
    fixture.window.findChild<QTableView*>(QStringLiteral("programTable"))->selectAll();
    fixture.lookAtDialog(QStringLiteral("remove programs"),
                         [&fixture] { fixture.action("&Remove from catalog")->trigger(); });
    fixture.showCards();
    fixture.part<QAbstractButton>(CopyColumn)->click();
    fixture.lookAtDialog(QStringLiteral("unsaved changes"), [&fixture] { fixture.window.close(); });
    QVERIFY(fixture.host.startSchedule());
    fixture.lookAtDialog(QStringLiteral("stop the schedule"),
                         [&fixture] { fixture.action("S&top the schedule…")->trigger(); });
    QVERIFY(fixture.window.drafts().keep());
    fixture.window.openDatabase(fixture.database);
    fixture.lookAtDialog(QStringLiteral("draft"), [&fixture] { fixture.window.offerDrafts(); });
    fixture.lookAtDialog(QStringLiteral("address"),
                         [&fixture] { fixture.action("Open &from a server…")->trigger(); });
    fixture.lookAtDialog(QStringLiteral("notice"), [] {
        prompts::notice(CatalogueImport::tr("Some files could not be imported:"));
    });
    verifyTexts(12);
}

void tst_PseudoLanguage::fileDialogs()
{
    PseudoFixture& fixture = *m_fixture;
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    for (const char* entry :
         {"&Open database…", "&Read schedule from a file…", "&Write schedule to a file…"}) {
        fixture.lookAtDialog(QString::fromUtf8(entry), [&] { fixture.action(entry)->trigger(); });
    }
    verifyTexts(30);
}

TREL_TEST(tst_PseudoLanguage, QApplication)
#include "tst_PseudoLanguage.moc"
