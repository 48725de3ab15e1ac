#include "StartCases.h"

#include "Comparison.h"
#include "EditorWindow.h"
#include "LanguageFont.h"
#include "Languages.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QApplication>
#include <QFont>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <stdexcept>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace bench {

namespace {

constexpr double kAgainstDialog = 1.5;
constexpr char kLanguage[] = "en_US";

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
        const QStringList families = languageFont(QFont(), QLatin1String(kLanguage)).families();
        m_widgets =
            QStringList{families.join(QLatin1Char(',')),
                        QString::number(scheduleManage::getInstance().getPrograms().size())};
        ScheduleHost::instance().close();
    }

    double startEditor() const
    {
        return startSeconds(QStringLiteral(START), {m_path, QLatin1String(kLanguage)});
    }

    double startWidgets() const { return startSeconds(QStringLiteral(BARE), m_widgets); }

private:
    QTemporaryDir m_folder;
    QString m_path;
    QStringList m_widgets; ///< What the bare program is told of them.
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

} // namespace bench
