#include "EditorMenus.h"
#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QAction>
#include <QApplication>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// The host on the demonstration, and a schedule of one task in a file.
class Desk : public HostFixture
{
public:
    Desk()
        : file(folder.filePath(QStringLiteral("plan.json")))
    {
        if (!window.openDatabase(database, QStringLiteral(DEMONSTRATION)).isEmpty()) {
            qFatal("no database");
        }
        PlayTask task;
        task.id = 5;
        task.startDate = "2030.01.01";
        task.endDate = "2030.12.31";
        if (writeScheduleFile(file, {{5, task}})) {
            qFatal("no file");
        }
        window.show();
    }

    void edit(int taskId) const
    {
        PlayTask edited = host.workingSet().at(taskId);
        edited.endDate = "2050.01.01";
        manager.addTask(edited);
        QCoreApplication::processEvents();
    }

    void read() const
    {
        answerFileDialog(file);
        menus().importSchedule()->trigger();
        QCoreApplication::processEvents();
    }

    EditorMenus& menus() const { return *window.findChild<EditorMenus*>(); }
    int versions() const
    {
        std::vector<ScheduleVersion> found;
        host.versions(found);
        return static_cast<int>(found.size());
    }

    QString file;

private:
    NoPlatformNotes m_quiet;
};

const QString kQuestion =
    QStringLiteral("Replace the whole schedule with the 1 task in this file?");

} // namespace

/// A schedule in a file takes the place of the one in the editor.
class tst_ScheduleImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void asksBeforeItReplaces();
    void namesWhatIsNotSaved();
    void savesFirstWhatIsNotSaved();
    void whatWasNotSavedComesBack();
    void aHiddenEditorHasNothingToLose();
};

void tst_ScheduleImport::asksBeforeItReplaces()
{
    Desk desk;
    desk.showEditor();
    const auto before = desk.host.workingSet();
    {
        PromptAnswer answer({PromptAnswer::Enter, PromptAnswer::Escape});
        desk.read();
        desk.read();
        QCOMPARE(answer.texts().first(), kQuestion);
        QCOMPARE(answer.buttons().first(), QStringLiteral("Replace|Cancel"));
    }
    QVERIFY(desk.host.workingSet() == before);
    const PromptAnswer answer(1);
    desk.read();
    QCOMPARE(desk.host.workingSet().size(), std::size_t(1));
    QVERIFY(!desk.host.hasUnsavedChanges());
}

void tst_ScheduleImport::namesWhatIsNotSaved()
{
    Desk desk;
    desk.showEditor();
    desk.edit(1);
    desk.edit(3);
    PromptAnswer answer({3, PromptAnswer::Escape});
    desk.read();
    QCOMPARE(answer.texts().first(),
             kQuestion + QStringLiteral("\n\nChanges in the editor that are not saved go with it "
                                        "(tasks 1, 3). Undo brings them back."));
    QCOMPARE(answer.buttons().first(),
             QStringLiteral("Save, then replace|Replace without saving|Cancel"));
    desk.read();
    QVERIFY(desk.host.hasUnsavedChanges());
    QCOMPARE(desk.host.workingSet().at(3).endDate, std::string("2050.01.01"));
}

void tst_ScheduleImport::savesFirstWhatIsNotSaved()
{
    Desk desk;
    desk.showEditor();
    desk.edit(1);
    const int before = desk.versions();
    const PromptAnswer answer(1);
    desk.read();
    QCOMPARE(desk.host.workingSet().size(), std::size_t(1));
    // What was edited is a version of its own.
    QCOMPARE(desk.versions(), before + 2);
    std::vector<ScheduleVersion> versions;
    QVERIFY(desk.host.versions(versions));
    std::map<int, PlayTask> edited;
    QVERIFY(desk.host.versionTasks(versions.at(1).number, edited));
    QCOMPARE(edited.at(1).endDate, std::string("2050.01.01"));
}

void tst_ScheduleImport::whatWasNotSavedComesBack()
{
    Desk desk;
    desk.showEditor();
    desk.edit(1);
    const auto edited = scheduleToJson(desk.host.workingSet());
    const PromptAnswer answer(2);
    desk.read();
    QCOMPARE(desk.host.workingSet().size(), std::size_t(1));
    QVERIFY(!desk.host.hasUnsavedChanges());
    desk.menus().undo()->trigger();
    QCOMPARE(scheduleToJson(desk.host.workingSet()), edited);
    QVERIFY(desk.host.hasUnsavedChanges());
    desk.menus().redo()->trigger();
    QCOMPARE(desk.host.workingSet().size(), std::size_t(1));
    QVERIFY(!desk.host.hasUnsavedChanges());
}

void tst_ScheduleImport::aHiddenEditorHasNothingToLose()
{
    Desk desk;
    desk.edit(1);
    PromptAnswer answer(1);
    desk.read();
    QCOMPARE(answer.texts().first(), kQuestion);
    QCOMPARE(desk.host.workingSet().size(), std::size_t(1));
}

TREL_TEST(tst_ScheduleImport, QApplication)
#include "tst_ScheduleImport.moc"
