#include "EditorApplication.h"

#include "EditorWindow.h"
#include "HostPrompts.h"
#include "Languages.h"
#include "SaveRescue.h"
#include "ScheduleSummary.h"
#include "access/AccessibleParts.h"
#include "common/DefaultDatabase.h"
#include "common/StopSignals.h"
#include "common/ZoneError.h"
#include "fit/ScrolledEditor.h"
#include "fit/WindowsOnScreen.h"
#include "look/ThemeImages.h"
#include "look/Themes.h"
#include "memory/RecentDatabases.h"
#include "memory/RememberedWindow.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryFile>
#include <QTextStream>
#include <QTimer>

#include <csignal>
#include <cstdio>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

const QLatin1String kLanguageSetting("language");
const QLatin1String kThemeSetting("theme");

/// The editor drops a show in the first second of its life.
constexpr int kShowGuardMSecs = 1000;

/// Lets the toolkit fall back to drawing off screen where it finds no display, instead of ending
/// the program. A platform that was asked for by name is left alone.
void allowOffScreen()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        return;
    }
    QByteArrayList platforms;
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        platforms.append("wayland");
    }
    if (!qEnvironmentVariableIsEmpty("DISPLAY")) {
        platforms.append("xcb");
    }
    platforms.append("offscreen");
    qputenv("QT_QPA_PLATFORM", platforms.join(';'));
}

bool isOffScreen()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen") ||
           QGuiApplication::platformName() == QLatin1String("minimal");
}

QString languageFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/trelprogramschedulewidgets/languages"));
}

/// What was not asked for by name is what was open last; for a run without windows, and for one
/// that fills a new database, the user's own.
QString databaseToOpen(const EditorOptions& options, const QString& last)
{
    if (!options.database.isEmpty()) {
        return options.database;
    }
    return last.isEmpty() || !options.demonstration.isEmpty() ? hosts::makeDefaultDatabaseFolder()
                                                              : last;
}

/// A file for the picture of a run that was given none: in the user's own data, under a name that
/// cannot be guessed, readable by its owner alone. Empty where none can be made.
QString freshPictureFile()
{
    const QDir folder(QFileInfo(hosts::makeDefaultDatabaseFolder()).absolutePath());
    QTemporaryFile file(folder.filePath(QStringLiteral("schedule-editor-XXXXXX.png")));
    file.setAutoRemove(false);
    return file.open() ? file.fileName() : QString();
}

/// Opens the first card, so that the picture shows plans, and writes the picture.
bool writePicture(scheduleControlUI& editor, const QString& file)
{
    if (auto* title = editor.findChild<QAbstractButton*>(QStringLiteral("title"))) {
        title->setChecked(false);
    }
    QCoreApplication::processEvents();
    return editor.grab().save(file);
}

/// Prints and draws what the operator would see, for a machine without a display.
int report(scheduleControlUI& editor, const QString& picture)
{
    QTextStream out(stdout);
    out << scheduleSummary(ScheduleHost::instance().path(),
                           scheduleManage::getInstance().getgTaskMap(),
                           scheduleManage::getInstance().getPrograms());
    out.flush();
    if (!writePicture(editor, picture)) {
        QTextStream(stderr) << "The picture could not be written to " << picture << Qt::endl;
        return 1;
    }
    out << "A picture of the editor was written to " << QDir(picture).absolutePath() << Qt::endl;
    return 0;
}

} // namespace

int EditorApplication::run(int argc, char** argv, const EditorOptions& options)
{
    // A file that may not grow is refused like a full disk, with a message.
    std::signal(SIGXFSZ, SIG_IGN);
    allowOffScreen();
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("trel"));
    QCoreApplication::setApplicationName(QStringLiteral("schedule-editor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TREL_VERSION));
    // How a desktop finds the entry that a window belongs to.
    QGuiApplication::setDesktopFileName(QStringLiteral("schedule-editor"));
    QGuiApplication::setWindowIcon(look::imageIcon(QStringLiteral("schedule-editor"), QColor()));
    Themes themes(application);
    // Before there is anything that a screen reader asks for.
    access::installAccessibleParts();

    const bool unattended = isOffScreen() || !options.screenshot.isEmpty();
    if (isOffScreen()) {
        QTextStream(stdout) << "There is no display; running off screen." << Qt::endl;
    }

    scheduleControlUI editor;
    editor.setCheckBoxImagePath(QStringLiteral(":/qss/img/checked.png"),
                                QStringLiteral(":/qss/img/unchecked.png"));
    if (!unattended) {
        new fit::WindowsOnScreen(application);
        new fit::ScrolledEditor(editor);
    }
    Languages languages(languageFolder(), editor);
    QSettings settings;
    languages.select(languages.startLanguage(options.language.isEmpty()
                                                 ? settings.value(kLanguageSetting).toString()
                                                 : options.language));
    themes.select(options.theme.isEmpty() ? settings.value(kThemeSetting).toString()
                                          : options.theme);
    QObject::connect(&themes, &Themes::changed, &settings,
                     [&settings, &themes] { settings.setValue(kThemeSetting, themes.current()); });
    QObject::connect(&languages, &Languages::changed, &settings, [&settings, &languages] {
        settings.setValue(kLanguageSetting, languages.current());
    });

    const QString zoneError = hosts::ZoneError::sentence();
    if (!zoneError.isEmpty()) {
        if (unattended) {
            QTextStream(stderr) << zoneError << Qt::endl;
        } else {
            prompts::notice(zoneError);
        }
        return 1;
    }

    EditorWindow window(editor, languages, themes);
    const SaveRescue rescue(ScheduleHost::instance(), window.drafts(), &window);
    const hosts::StopSignals stop;
    QObject::connect(&stop, &hosts::StopSignals::stopped, &application, &QCoreApplication::quit);
    RecentDatabases recent(settings, window.recentDatabases());
    QObject::connect(&recent, &RecentDatabases::chosen, &window, &EditorWindow::openChosen);
    if (!unattended) {
        QObject::connect(&window, &EditorWindow::databaseOpened, &recent, &RecentDatabases::add);
    }
    const QString error = window.openDatabase(
        databaseToOpen(options, unattended ? QString() : recent.last()), options.demonstration);
    if (unattended && !error.isEmpty()) {
        QTextStream(stderr) << error << Qt::endl;
        return 1;
    }

    int status = 0;
    const auto reportAndLeave = [&] {
        status =
            report(editor, options.screenshot.isEmpty() ? freshPictureFile() : options.screenshot);
        QCoreApplication::exit(status);
    };
    QTimer::singleShot(kShowGuardMSecs, &window, [&] {
        // Off screen it is what the picture shows.
        if (options.edit || unattended) {
            window.showEditor();
        }
        if (!error.isEmpty()) {
            window.tell(error);
        }
        if (!unattended) {
            window.offerDrafts();
        }
        if (unattended && options.imports.isEmpty()) {
            reportAndLeave();
        }
        window.importMedia(options.imports);
    });
    if (unattended) {
        QObject::connect(&window, &EditorWindow::importEnded, &application, reportAndLeave);
    }
    if (!unattended) {
        window.takeRoomOnScreen();
        new RememberedWindow(settings, window);
        window.show();
    }
    const int result = QApplication::exec();
    // The store goes while the application still stands.
    ScheduleHost::instance().close();
    return status != 0 ? status : result;
}

} // namespace trel::desktop
