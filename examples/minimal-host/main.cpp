// The least that a host has to do: open a store, build the editor, show it.

#include <scheduleControlUI.h>
#include <trelprogramschedule/ScheduleHost.h>
#include <trelprogramschedule/faults/FaultWords.h>

#include <QApplication>
#include <QTextStream>
#include <QTimer>

using namespace trel::mediadispatch;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        QTextStream(stderr) << "Usage: minimal-host DATABASE [LANGUAGE-FILE...]\n";
        return 2;
    }

    const StoreResult opened = ScheduleHost::instance().open(arguments.at(1));
    if (!opened) {
        QTextStream(stderr) << englishText(opened) << '\n';
        return 1;
    }

    scheduleControlUI editor;
    std::vector<QString> languages;
    for (int i = 2; i < arguments.size(); ++i) {
        languages.push_back(arguments.at(i));
    }
    editor.loadLanguageFiles(languages);
    editor.translate();

    // The editor drops a show in the first second of its life.
    QTimer::singleShot(1000, &editor, [&editor] { editor.slotShow(); });
    const int status = QApplication::exec();
    ScheduleHost::instance().close();
    return status;
}
