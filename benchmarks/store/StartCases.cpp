#include "StartCases.h"

#include "Comparison.h"
#include "EditorWindow.h"
#include "FirstPaint.h"
#include "Languages.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QApplication>
#include <QIcon>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <stdexcept>

using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kAgainstDialog = 1.5;

/// The processor time in which a program has come to its first painting.
double startSeconds(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    bool isNumber = false;
    if (process.waitForFinished() && process.exitCode() == 0) {
        const double seconds = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
        if (isNumber) {
            return seconds;
        }
    }
    throw std::runtime_error("The start of " + program.toStdString() + " could not be measured.");
}

/// A store with the demonstration, made once for all starts.
class Demonstration
{
public:
    Demonstration()
        : m_path(m_folder.filePath(QStringLiteral("station.db")))
    {
        scheduleControlUI editor;
        Languages languages(QStringLiteral(LANGUAGES), editor);
        Themes themes(*qApp);
        EditorWindow window(editor, languages, themes);
        const QString error = window.openDatabase(m_path, QStringLiteral(DEMONSTRATION));
        if (!error.isEmpty()) {
            throw std::runtime_error(error.toStdString());
        }
        for (const auto& [id, task] : scheduleManage::getInstance().getgTaskMap()) {
            m_planCounts.append(QString::number(task.plans.size()));
        }
        ScheduleHost::instance().close();
    }

    double startEditor() const
    {
        return startSeconds(QCoreApplication::applicationFilePath(),
                            {QStringLiteral("--start"), m_path});
    }

    double startWidgets() const { return startSeconds(QStringLiteral(BARE), m_planCounts); }

private:
    QTemporaryDir m_folder;
    QString m_path;
    QStringList m_planCounts;
};

double startDialog()
{
    return startSeconds(QStringLiteral(BARE), {});
}

} // namespace

void addStartCases()
{
    const auto demonstration = [] {
        static const Demonstration made;
        return &made;
    };
    add({"Start to first paint less its widgets, against an empty dialog", "demonstration schedule",
         kAgainstDialog,
         [demonstration] {
             const double widgets = demonstration()->startWidgets() - startDialog();
             return demonstration()->startEditor() - widgets;
         },
         startDialog, 15});
}

void startEditor(int argc, char** argv, const QString& database)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/qss/img/schedule-editor.svg")));
    Themes themes(application);
    scheduleControlUI editor;
    editor.setCheckBoxImagePath(QStringLiteral(":/qss/img/checked.png"),
                                QStringLiteral(":/qss/img/unchecked.png"));
    Languages languages(QStringLiteral(LANGUAGES), editor);
    languages.select(QStringLiteral("en_US"));
    EditorWindow window(editor, languages, themes);
    window.openDatabase(database, QString());
    window.show();
    editor.show();
    emit editor.signalUpdatePlanList();
    waitForPaint(editor);
    reportStart();
}

} // namespace bench
