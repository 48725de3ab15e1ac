#include "EditorMenus.h"
#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "PseudoLanguage.h"
#include "SaveRescue.h"
#include "WindowTexts.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QAction>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStatusBar>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// A file that another program works on.
class OtherProgram
{
public:
    explicit OtherProgram(const QString& file)
        : m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name()))
    {
        m_database.setDatabaseName(file);
        if (!m_database.open()) {
            qFatal("the other program cannot open the file");
        }
    }
    ~OtherProgram()
    {
        m_database.close();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(name());
    }
    Q_DISABLE_COPY(OtherProgram)

    void run(const char* statement)
    {
        QSqlQuery query(m_database);
        if (!query.exec(QLatin1String(statement))) {
            qFatal("the other program fails at %s", statement);
        }
    }

private:
    static QString name() { return QStringLiteral("other program"); }

    QSqlDatabase m_database;
};

/// The windows of the host, with what the operator is told read from the prompts themselves.
struct PromptFixture : HostFixture
{
    PromptFixture()
    {
        window.openDatabase(database);
        window.show();
        const QString other = path("other.db");
        host.open(other);
        host.open(database);
    }

    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    QString write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0) {
            qFatal("cannot write %s", name);
        }
        return file.fileName();
    }

    /// Runs a statement on a database that no window has open.
    QString altered(const char* statement) const
    {
        OtherProgram(path("other.db")).run(statement);
        return path("other.db");
    }

    /// Chooses a file through an entry of the menu.
    void choose(QAction* (EditorMenus::*entry)() const, const QString& file)
    {
        answerFileDialog(file);
        (window.findChild<EditorMenus*>()->*entry)()->trigger();
    }

    void import(const QStringList& paths)
    {
        QSignalSpy ended(&window, &EditorWindow::importEnded);
        window.importMedia(paths);
        QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);
    }

    void edit()
    {
        PlayTask task;
        task.id = 7;
        task.startDate = task.endDate = "2030.01.01";
        manager.updateUItask();
        manager.addTask(task);
    }
};

using Provoke = void (*)(PromptFixture&);

/// One way in which the host has to tell that something went wrong.
struct Case
{
    const char* name;
    Provoke provoke;
    const char* german; ///< What the prompt says, without the folder of the test.
};

constexpr auto kOpen = &EditorMenus::openDatabase;
constexpr auto kRead = &EditorMenus::importSchedule;
constexpr auto kWrite = &EditorMenus::exportSchedule;

void readSchedule(PromptFixture& fixture, const QByteArray& json)
{
    fixture.choose(kRead, fixture.write("plan.json", json));
}

const Case kCases[] = {
    {"no database",
     [](PromptFixture& fixture) { fixture.choose(kOpen, fixture.write("a.db", "text")); },
     "a.db ist keine Wiedergabeplan-Datenbank."},
    {"a foreign database",
     [](PromptFixture& fixture) {
         fixture.choose(kOpen, fixture.altered("PRAGMA application_id = 5"));
     },
     "other.db ist eine Datenbank einer anderen Anwendung."},
    {"a newer database",
     [](PromptFixture& fixture) {
         fixture.choose(kOpen, fixture.altered("PRAGMA user_version = 999"));
     },
     "other.db wurde von einer neueren Version dieser Anwendung geschrieben."},
    {"a database with more in it",
     [](PromptFixture& fixture) {
         fixture.choose(kOpen, fixture.altered("CREATE TABLE extra (a)"));
     },
     "other.db ist keine Wiedergabeplan-Datenbank, wie diese Anwendung sie anlegt. Sie enthält "
     "„extra“, das dort nicht hingehört."},
    {"a database with less in it",
     [](PromptFixture& fixture) {
         fixture.choose(kOpen, fixture.altered("DROP TABLE plan_value"));
     },
     "other.db ist beschädigt. „plan_value“ fehlt."},
    {"a read-only database",
     [](PromptFixture& fixture) {
         QFile::setPermissions(fixture.path("other.db"), QFile::ReadOwner);
         fixture.choose(kOpen, fixture.path("other.db"));
     },
     "other.db kann nicht geschrieben werden. Die Datei oder ihr Ordner ist schreibgeschützt."},
    {"no JSON", [](PromptFixture& fixture) { readSchedule(fixture, "{ \"format\": \n tru"); },
     "plan.json konnte nicht gelesen werden. Sie enthält kein gültiges JSON (Zeile 2, Spalte 5)."},
    {"JSON of another kind", [](PromptFixture& fixture) { readSchedule(fixture, "[]"); },
     "plan.json konnte nicht gelesen werden. Sie enthält JSON anderer Art, keinen "
     "Wiedergabeplan."},
    {"no format", [](PromptFixture& fixture) { readSchedule(fixture, "{}"); },
     "plan.json konnte nicht gelesen werden. Sie ist kein Wiedergabeplan: „format“ fehlt."},
    {"a newer version",
     [](PromptFixture& fixture) {
         readSchedule(fixture, R"({ "format": "trel-schedule", "version": 7, "tasks": [] })");
     },
     "plan.json konnte nicht gelesen werden. Zeile 1, version: Version 7 ist neuer als Version 2, "
     "die neueste, die diese Anwendung liest."},
    {"a member that is missing",
     [](PromptFixture& fixture) {
         readSchedule(fixture, R"({ "format": "trel-schedule", "version": 1, "tasks": [{}] })");
     },
     "plan.json konnte nicht gelesen werden. Zeile 1, tasks[0]: „id“ fehlt."},
    {"a member of another kind",
     [](PromptFixture& fixture) {
         readSchedule(fixture, R"({ "format": "trel-schedule", "version": 1, "tasks": "none" })");
     },
     "plan.json konnte nicht gelesen werden. Zeile 1, tasks: Falsche Art von Wert: erwartet Liste, "
     "gefunden Text."},
    {"a file that cannot be written",
     [](PromptFixture& fixture) {
         QFile::link(fixture.path("no/such.json"), fixture.path("link.json"));
         fixture.choose(kWrite, fixture.path("link.json"));
     },
     "link.json kann nicht geschrieben werden. Die Datei oder ein Ordner ihres Pfads existiert "
     "nicht."},
    {"a schedule that cannot be read for a file",
     [](PromptFixture& fixture) {
         fixture.edit();
         QVERIFY(fixture.host.trySave());
         OtherProgram(fixture.database).run("DROP TABLE plan_value");
         fixture.choose(kWrite, fixture.path("saved.json"));
         // What was read before is not taken for what is saved.
         QVERIFY(!QFile::exists(fixture.path("saved.json")));
         QCOMPARE(fixture.window.statusBar()->currentMessage(), QString());
     },
     "screen.db ist beschädigt. Die Datenbank meldet den Fehler 1."},
    {"media that are none",
     [](PromptFixture& fixture) {
         fixture.import({fixture.write("a.mp4", "text"), fixture.write("b.mp4", ""),
                         fixture.path("c.mp4"), QStringLiteral("tape://host"),
                         QStringLiteral("http://host/d.mp4")});
     },
     "Einige Dateien konnten nicht importiert werden:\n"
     "a.mp4: Es ist keine Mediendatei, oder sie ist beschädigt.\n"
     "b.mp4: Die Datei ist leer.\n"
     "c.mp4: Die Datei existiert nicht.\n"
     "tape://host: Adressen dieser Art können nicht abgespielt werden.\n"
     "http://host/d.mp4: Die Datei liegt auf einem anderen Computer. Kopieren Sie sie zuerst auf "
     "diesen."},
    {"an import that is not stored",
     [](PromptFixture& fixture) {
         QFile::remove(fixture.database);
         fixture.import({fixture.copyMedia(QStringLiteral("media"))});
     },
     "screen.db konnte nicht gelesen oder geschrieben werden. Sie wurde nach dem Öffnen entfernt "
     "oder ersetzt."},
    {"a start that is not stored",
     [](PromptFixture& fixture) {
         QFile::remove(fixture.database);
         fixture.manager.slotOpen();
     },
     "Was in Kraft ist, konnte nicht geändert werden. screen.db konnte nicht gelesen oder "
     "geschrieben werden. Sie wurde nach dem Öffnen entfernt oder ersetzt."},
    {"a save that another program keeps away",
     [](PromptFixture& fixture) {
         const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
         OtherProgram other(fixture.database);
         other.run("BEGIN IMMEDIATE");
         fixture.edit();
         fixture.manager.save();
     },
     "Der Wiedergabeplan wurde nicht gespeichert. screen.db wird von einer anderen Anwendung "
     "verwendet. Versuchen Sie es erneut, wenn diese geschlossen ist.\n\n"
     "Was soll mit Ihren Änderungen geschehen?"},
};

/// What the prompts of a save are answered with, which ask again: to give up.
int answerTo(const Case& one)
{
    return QByteArray(one.name).startsWith("a save") ? 3 : 1;
}

} // namespace

/// What goes wrong is told in the language of the host, whoever found it out.
class tst_ProblemPrompts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void theHostTellsItInGerman_data() { addRows(); }
    void theHostTellsItInGerman();
    void nothingStaysUntranslated_data() { addRows(); }
    void nothingStaysUntranslated();

private:
    static void addRows()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const Case& one : kCases) {
            QTest::newRow(one.name) << index++;
        }
    }
};

void tst_ProblemPrompts::theHostTellsItInGerman()
{
    QFETCH(int, index);
    PromptFixture fixture;
    fixture.languages.select(QStringLiteral("de_DE"));
    PromptAnswer answer(answerTo(kCases[index]));

    kCases[index].provoke(fixture);

    QTRY_COMPARE(answer.count(), 1);
    QCOMPARE(answer.texts().first().remove(fixture.folder.path() + QLatin1Char('/')),
             QString::fromUtf8(kCases[index].german));
}

void tst_ProblemPrompts::nothingStaysUntranslated()
{
    QFETCH(int, index);
    PromptFixture fixture;
    const PseudoLanguage language(*fixture.editor);
    PromptAnswer answer(answerTo(kCases[index]));

    kCases[index].provoke(fixture);

    QTRY_COMPARE(answer.count(), 1);
    QVERIFY2(!WindowTexts::hasUntranslated(answer.texts().first()),
             qPrintable(answer.texts().first()));
}

TREL_TEST(tst_ProblemPrompts, QApplication)
#include "tst_ProblemPrompts.moc"
