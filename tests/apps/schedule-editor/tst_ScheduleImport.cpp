#include "EditorMenus.h"
#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/json/NamedSchedule.h"
#include "trelprogramschedule/json/ProgramMatch.h"

#include <QAction>
#include <QApplication>
#include <QFile>

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
    void programsAreFoundUnderOtherNumbers();
    void whatIsDoubtfulIsTold();
    void whatIsWrittenIsReadAgain();
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

// Each has the number of the one behind it in the file.
void tst_ScheduleImport::programsAreFoundUnderOtherNumbers()
{
    const Desk desk;
    std::map<int, PlayTask> tasks = desk.host.workingSet();
    std::vector<NamedProgram> programs =
        namedPrograms(programsInEntries(tasks), *desk.host.catalogue(), ProgramContents());
    std::map<int, int> shifted;
    for (NamedProgram& program : programs) {
        shifted[program.progIndex] = program.progIndex + 1;
        ++program.progIndex;
    }
    const std::map<int, PlayTask> before = tasks;
    renumberEntries(tasks, shifted);
    QVERIFY(tasks != before);
    QVERIFY(!writeNamedScheduleFile(desk.file, tasks, programs));
    const PromptAnswer answer(1);
    desk.read();
    QVERIFY(desk.host.workingSet() == before);
    QCOMPARE(answer.texts().first().count(QLatin1Char('\n')), 0);
}

void tst_ScheduleImport::whatIsDoubtfulIsTold()
{
    const Desk desk;
    PlayTask task;
    task.id = 5;
    task.startDate = "2030.01.01";
    task.endDate = "2030.12.31";
    task.plans.emplace_back().programs = {{1, false, "Elsewhere", 1}, {900, false, "Gone", 1}};
    // By its number alone, as in files of the first version.
    QVERIFY(!writeScheduleFile(desk.file, {{5, task}}));
    PromptAnswer answer({PromptAnswer::Escape, 1});
    desk.read();
    QCOMPARE(answer.texts().first(),
             kQuestion + QStringLiteral(
                             "\n\n1 program in this file is not in the catalog. Its entries will "
                             "be invalid: Gone\n\n1 program has another name in the catalog than "
                             "in this file: Elsewhere"));
    NamedProgram elsewhere;
    elsewhere.progIndex = 1;
    elsewhere.name = "Elsewhere";
    elsewhere.path = "/nowhere";
    QVERIFY(!writeNamedScheduleFile(desk.file, {{5, task}}, {elsewhere}));
    desk.read();
    QCOMPARE(answer.texts().last(),
             kQuestion +
                 QStringLiteral("\n\n2 programs in this file are not in the catalog. Their entries "
                                "will be invalid: Elsewhere, Gone"));
    for (const struProgInfo& entry : desk.host.workingSet().at(5).plans.at(0).programs) {
        QVERIFY(entry.isInvalid);
        QCOMPARE(entry.progIndex, kInvalidProgIndex);
    }
}

void tst_ScheduleImport::whatIsWrittenIsReadAgain()
{
    const Desk desk;
    const std::map<int, PlayTask> before = desk.host.workingSet();
    QVERIFY(QFile::remove(desk.file));
    answerFileDialog(desk.file);
    desk.menus().exportSchedule()->trigger();
    QCoreApplication::processEvents();
    QFile file(desk.file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray json = file.readAll();
    const NamedScheduleFromJson written = namedScheduleFromJson(json);
    QVERIFY(written.isNamed);
    QCOMPARE(written.programs.size(), programsInEntries(before).size());
    QCOMPARE(written.programs.front().sha256.size(), std::size_t(64));
    QVERIFY(desk.host.replaceSchedule({}));
    const PromptAnswer answer(1);
    desk.read();
    QVERIFY(desk.host.workingSet() == before);
}

TREL_TEST(tst_ScheduleImport, QApplication)
#include "tst_ScheduleImport.moc"
