#include "ConsoleTrial.h"

#include "service/scheduleManage.h"
#include "support/SampleSchedule.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace trel::mediadispatch;

namespace {

constexpr char kStore[] = "work/schedule.db";
constexpr char kExport[] = "work/out.json";

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray modeOf(const QString& path)
{
    return QByteArray::number(int(QFile::permissions(path)), 16) + '\n';
}

bool write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

[[noreturn]] void giveUp(const char* what)
{
    std::fprintf(stderr, "The trial cannot be made ready: %s.\n", what);
    std::exit(2);
}

/// What is in effect in the store that is open, but for the moments.
QByteArray effectText()
{
    const ScheduleHost& host = ScheduleHost::instance();
    if (!host.started()) {
        return "in effect: nothing\n";
    }
    ScreenDispatch& dispatch = ScheduleHost::instance().dispatch();
    QByteArray text = "in effect, of save " + QByteArray::number(host.started()->saved) + ":\n" +
                      scheduleToJson(dispatch.tasks());
    for (const ScreenInsertion& insertion : dispatch.insertions()) {
        const bool isOver = insertion.ends <= QDateTime::currentMSecsSinceEpoch();
        text += QByteArray(isOver ? "ended: " : "inserted: ") +
                QByteArray::number(insertion.plan.programs.front().progIndex) + '\n';
    }
    return text;
}

} // namespace

const std::vector<WritingCommand>& writingCommands()
{
    const auto onStore = [](const QStringList& words) {
        return words + QStringList{QStringLiteral("--database"), QStringLiteral("@/schedule.db")};
    };
    const QStringList import = onStore({QStringLiteral("import"), QStringLiteral("rtsp://host/3"),
                                        QStringLiteral("rtsp://host/1")});
    const QStringList replace =
        onStore({QStringLiteral("import-schedule"), QStringLiteral("@/../second.json")});
    const QStringList take = onStore({QStringLiteral("export"), QStringLiteral("@/out.json")});
    static const std::vector<WritingCommand> commands = {
        {"import, new", import, "nothing"},
        {"import", import, "store"},
        {"import, empty file", import, "empty file"},
        {"import, after a crash", import, "crashed"},
        {"import-schedule, new", replace, "nothing"},
        {"import-schedule", replace, "store"},
        {"import-schedule, after a crash", replace, "crashed"},
        {"remove-program", onStore({QStringLiteral("remove-program"), QStringLiteral("1")}),
         "store"},
        {"start", onStore({QStringLiteral("start")}), "store"},
        {"start, of another", onStore({QStringLiteral("start")}), "inserted"},
        {"stop", onStore({QStringLiteral("stop")}), "inserted"},
        {"insert", onStore({QStringLiteral("insert"), QStringLiteral("1")}), "started"},
        {"cancel-insertion", onStore({QStringLiteral("cancel-insertion")}), "inserted"},
        {"export, new", take, "store", true},
        {"export --bundle",
         onStore(
             {QStringLiteral("export"), QStringLiteral("--bundle"), QStringLiteral("@/out.json")}),
         "exported", true},
        {"export", take, "exported", true},
    };
    return commands;
}

TrialFolder::TrialFolder(QString console)
    : m_console(std::move(console))
{
    QDir(m_folder.path()).mkpath(QStringLiteral("work"));
    const QString store = filePath(kStore);
    const QString first = filePath("first.json");
    const QString second = filePath("second.json");
    const QStringList database = {QStringLiteral("--database"), store};
    if (!write(first, scheduleToJson(sampleSchedule(3, 2, 2, 1))) ||
        !write(second, scheduleToJson(sampleSchedule(4, 2, 2, 2)))) {
        giveUp("its files cannot be written");
    }
    keepState("nothing");
    if (!runConsole(QStringList{QStringLiteral("import"), QStringLiteral("rtsp://host/1"),
                                QStringLiteral("rtsp://host/2")} +
                    database) ||
        !runConsole(QStringList{QStringLiteral("import-schedule"), first} + database)) {
        giveUp("the console does not make a store");
    }
    keepState("store");
    write(filePath(kExport), "[]");
    keepState("exported");
    QFile::remove(filePath(kExport));

    if (!runConsole(QStringList{QStringLiteral("start")} + database)) {
        giveUp("the console does not start a schedule");
    }
    keepState("started");
    if (!runConsole(QStringList{QStringLiteral("insert"), QStringLiteral("1")} + database)) {
        giveUp("the console does not insert a program");
    }
    keepState("inserted");

    // A store whose last save stands in its log alone, as a crash leaves it.
    ScheduleHost& host = ScheduleHost::instance();
    if (!host.open(store) || !host.replaceSchedule(sampleSchedule(5, 1, 2, 3))) {
        giveUp("the store cannot be written");
    }
    const QByteArray file = contentOf(store);
    const QByteArray log = contentOf(store + QStringLiteral("-wal"));
    host.close();
    if (log.isEmpty()) {
        giveUp("the store has no log");
    }
    m_states[QStringLiteral("crashed")] = {{QStringLiteral("schedule.db"), file},
                                           {QStringLiteral("schedule.db-wal"), log}};
    m_states[QStringLiteral("empty file")] = {{QStringLiteral("schedule.db"), QByteArray()}};
}

QString TrialFolder::path() const
{
    return QDir(m_folder.filePath(QStringLiteral("work"))).canonicalPath();
}

QString TrialFolder::filePath(const char* name) const
{
    return m_folder.filePath(QLatin1String(name));
}

QStringList TrialFolder::argumentsOf(const WritingCommand& command) const
{
    QStringList arguments = command.words;
    arguments.replaceInStrings(QStringLiteral("@"), path());
    return arguments;
}

void TrialFolder::reset(const WritingCommand& command) const
{
    const QDir dir(path());
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden)) {
        QFile::remove(dir.filePath(name));
    }
    const auto& files = m_states.at(QLatin1String(command.start));
    for (const auto& [name, content] : files) {
        // Another mode than a new file gets.
        constexpr QFile::Permissions mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        if (!write(dir.filePath(name), content) ||
            !QFile::setPermissions(dir.filePath(name), mode)) {
            giveUp("its files cannot be written");
        }
    }
}

QByteArray TrialFolder::contents(const WritingCommand& command) const
{
    const QByteArray store = storeContents();
    if (!command.isExport) {
        return store;
    }
    const QFile file(filePath(kExport));
    return store + (file.exists()
                        ? "exported: " + modeOf(file.fileName()) + contentOf(file.fileName())
                        : "not exported");
}

QStringList TrialFolder::leftovers() const
{
    QStringList names = QDir(path()).entryList(QDir::Files | QDir::Hidden);
    names.removeAll(QStringLiteral("schedule.db"));
    names.removeAll(QStringLiteral("out.json"));
    return names;
}

void TrialFolder::keepState(const char* name)
{
    const QDir dir(path());
    std::map<QString, QByteArray> files;
    for (const QString& file : dir.entryList(QDir::Files | QDir::Hidden)) {
        files[file] = contentOf(dir.filePath(file));
    }
    m_states[QLatin1String(name)] = files;
}

bool TrialFolder::runConsole(const QStringList& words) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(m_console, words);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

QByteArray TrialFolder::storeContents() const
{
    const QString store = filePath(kStore);
    const QByteArray none = "programs:\ntasks:\n" + scheduleToJson({}) + effectText();
    ScheduleHost& host = ScheduleHost::instance();
    const StoreResult opened = host.open(store, ScheduleHost::OpenMode::MustExist);
    if (!opened) {
        const bool isNone = !QFile::exists(store) || QFileInfo(store).size() == 0;
        return isNone ? none : "!" + englishText(opened).toUtf8();
    }
    scheduleManage& manager = scheduleManage::getInstance();
    QByteArray text = "programs:\n";
    for (const auto& [index, program] : manager.getPrograms()) {
        text +=
            QByteArray::number(index) + ' ' + QByteArray::fromStdString(program.mediaPath) + '\n';
    }
    text += "tasks:\n" + scheduleToJson(manager.getgTaskMap()) + effectText();
    host.close();
    return text;
}
