#include "FurnitureWindow.h"

#include "ProgramSheduleWidgetTranslateManager.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QImage>

/// Shows the title bar and the dialog that stand beside the editor, for a look and a try by hand.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the title bar and the dialog."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Write a picture of everything and leave."),
                                        QStringLiteral("file"));
    parser.addOption(screenshot);
    parser.process(application);

    auto& texts =
        trel::mediadispatch::ProgramSheduleWidgetTranslateManager::instance().translator();
    texts.load(QStringLiteral(ENGLISH_LANGUAGE));
    texts.load(QStringLiteral(CHINESE_LANGUAGE));
    texts.switchLanguage(QStringLiteral("en_GB"));

    FurnitureWindow window;
    if (parser.isSet(screenshot))
        return window.picture().save(parser.value(screenshot)) ? 0 : 1;
    window.show();
    return QApplication::exec();
}
