// A host with a schedule service, a style sheet and a language of its own.

#include "Station.h"

#include <scheduleControlUI.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>

using namespace trel::mediadispatch;

namespace {

int refuse(const QString& reason)
{
    QTextStream(stderr) << reason << Qt::endl;
    return 1;
}

QString beside(const QString& name)
{
    return QDir(QApplication::applicationDirPath()).filePath(name);
}

/// Colours of the host, for the hooks of the editor.
bool setLooks(QApplication& application, const QString& path)
{
    QFile sheet(path);
    if (!sheet.open(QIODevice::ReadOnly)) {
        return false;
    }
    application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    return true;
}

/// By a click on the bar of a card, as an operator does it.
void unfoldFirst(const scheduleControlUI& editor)
{
    if (auto* const bar = editor.findChild<QAbstractButton*>(QStringLiteral("title"))) {
        bar->click();
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption picture(QStringLiteral("picture"),
                                     QStringLiteral("Save a picture of the editor, and end."),
                                     QStringLiteral("file"));
    parser.addOption(picture);
    const QCommandLineOption sheet(QStringLiteral("sheet"),
                                   QStringLiteral("Take the looks from here."),
                                   QStringLiteral("file"), beside(QStringLiteral("station.qss")));
    parser.addOption(sheet);
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("schedule"),
                                 QStringLiteral("The file of the schedule, in JSON."));
    parser.process(application);
    if (parser.positionalArguments().size() != 1) {
        parser.showHelp(2);
    }
    const QString refused = Station::instance().file.open(parser.positionalArguments().first());
    if (!refused.isEmpty()) {
        return refuse(refused);
    }
    if (!setLooks(application, parser.value(sheet))) {
        return refuse(QStringLiteral("The style sheet cannot be read: ") + parser.value(sheet));
    }

    scheduleControlUI editor;
    Station::instance().refused = [&editor](const QString& reason) {
        QMessageBox box(QMessageBox::Warning, editor.windowTitle(), reason, QMessageBox::Ok,
                        &editor);
        box.setTextFormat(Qt::PlainText);
        box.exec();
    };
    editor.loadLanguageFiles({beside(QStringLiteral("it_IT.qm"))});
    editor.switchLanguage(QStringLiteral("it_IT"));
    editor.translate();

    // The editor drops a show in the first second of its life.
    QTimer::singleShot(1000, &editor, [&] {
        editor.slotShow();
        if (parser.isSet(picture)) {
            unfoldFirst(editor);
            const bool isSaved = editor.grab().save(parser.value(picture));
            QTextStream(stdout) << editor.windowTitle() << Qt::endl;
            QApplication::exit(isSaved ? 0 : 1);
        }
    });
    return QApplication::exec();
}
