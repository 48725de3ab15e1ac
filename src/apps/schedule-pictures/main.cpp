#include "DocumentPicture.h"
#include "EditorWindow.h"
#include "HostPictures.h"
#include "Languages.h"
#include "PictureBook.h"
#include "PictureFiles.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTemporaryDir>
#include <QTextStream>

using namespace trel::mediadispatch;
using namespace trel::desktop;
using namespace trel::pictures;

/// schedule-pictures FOLDER DEMONSTRATION [LANGUAGE...]: draws every window of host and editor, in
/// these languages or in all of them, and in every theme, into the folder. The toolkit's own option
/// -reverse draws them for those who read from the right.
///
/// schedule-pictures --document FROM TO: makes one of them small enough for a document.
int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == QLatin1String("--document")) {
        return writeDocumentPicture(arguments[2], arguments[3]) ? 0 : 1;
    }
    if (arguments.size() < 3 || !QDir().mkpath(arguments[1])) {
        QTextStream(stderr) << "Usage: schedule-pictures FOLDER DEMONSTRATION [LANGUAGE...]"
                            << Qt::endl;
        return 2;
    }
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/qss/img/schedule-editor.svg")));

    Themes themes(application);
    scheduleControlUI editor;
    editor.setCheckBoxImagePath(QStringLiteral(":/qss/img/checked.png"),
                                QStringLiteral(":/qss/img/unchecked.png"));
    Languages languages(
        QDir::cleanPath(QCoreApplication::applicationDirPath() +
                        QStringLiteral("/../share/trelprogramschedulewidgets/languages")),
        editor);
    EditorWindow window(editor, languages, themes);
    const QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("station-XXXXXX")));
    const QString error =
        window.openDatabase(folder.filePath(QStringLiteral("station.db")), arguments[2]);
    bool isComplete = error.isEmpty();
    editor.show();
    QApplication::setActiveWindow(&editor);
    const QStringList wanted = arguments.mid(3);
    for (const QString& language : languages.names()) {
        if (!wanted.isEmpty() && !wanted.contains(language)) {
            continue;
        }
        languages.select(language);
        for (const QString& theme : Themes::names()) {
            themes.select(theme);
            PictureFiles files(QDir(arguments[1]), QStringLiteral("-%1-%2").arg(language, theme));
            HostPictures(window, editor, files).drawAll();
            PictureBook(editor, files).drawAll();
            isComplete = files.isComplete() && isComplete;
        }
    }
    editor.close();
    ScheduleHost::instance().close();
    if (!isComplete) {
        QTextStream(stderr) << "Not every picture could be drawn. " << error << Qt::endl;
        return 1;
    }
    return 0;
}
