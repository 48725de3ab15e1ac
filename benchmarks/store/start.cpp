// Starts the program and tells what it has cost until its window is painted.
//
// bench_start DATABASE LANGUAGE
//
// Does everything that the application does.

#include "EditorWindow.h"
#include "FirstPaint.h"
#include "FreedMemory.h"
#include "Languages.h"
#include "look/ThemeImages.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"

#include <QApplication>

using namespace trel::desktop;
using namespace trel::mediadispatch;

int main(int argc, char** argv)
{
    joinFreedMemoryAtOnce();
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QGuiApplication::setWindowIcon(look::imageIcon(QStringLiteral("schedule-editor"), QColor()));
    Themes themes(application);
    scheduleControlUI editor;
    editor.setCheckBoxImagePath(QStringLiteral(":/qss/img/checked.png"),
                                QStringLiteral(":/qss/img/unchecked.png"));
    Languages languages(QStringLiteral(LANGUAGES), editor);
    languages.select(arguments.value(2));
    EditorWindow window(editor, languages, themes);
    window.openDatabase(arguments.value(1), QString());
    window.show();
    bench::waitForPaint(window);
    bench::reportStart();
}
