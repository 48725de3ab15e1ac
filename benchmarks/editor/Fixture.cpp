#include "Fixture.h"

#include "ProgramSheduleWidgetTranslateManager.h"
#include "look/Themes.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QLocale>
#include <QStyle>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace bench {

void loadLanguage()
{
    auto& translator = ProgramSheduleWidgetTranslateManager::instance().translator();
    translator.load(QDir(QStringLiteral(LANGUAGES)).filePath(QStringLiteral("en_US.qm")));
    translator.switchLanguage(QStringLiteral("en_US"));
}

void setLook(Look look)
{
    static Look current = Look::Plain;
    static const QFont font = QApplication::font();
    if (look == current) {
        return;
    }
    current = look;
    if (look == Look::Theme) {
        const Themes themes(*qApp);
        return;
    }
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(font);
}

std::string count(int number, const char* of)
{
    return QLocale(QLocale::English).toString(number).toStdString() + ' ' + of;
}

std::string planCount(int plans, PlanMode mode)
{
    return count(plans, plans == 1 ? "plan, " : "plans, ") +
           (mode == TimeMode ? "TimeMode" : "FrequencyMode");
}

} // namespace bench
