#include "ProgramSheduleWidgetTranslateManager.h"
#include "ScheduleText.h"
#include "support/TestProgram.h"
#include "tstranslate/Translator.h"

#include <QCoreApplication>
#include <QtTest>

#include <type_traits>

using trel::mediadispatch::ProgramSheduleWidgetTranslateManager;
using trel::mediadispatch::scheduleText;

class tst_ProgramSheduleWidgetTranslateManager : public QObject
{
    Q_OBJECT

private slots:
    void thereIsOneManagerWithOneTranslator();
    void nobodyElseMakesOrCopiesAManager();
    void aKeyThatNoFileHoldsIsShownItself();
};

void tst_ProgramSheduleWidgetTranslateManager::thereIsOneManagerWithOneTranslator()
{
    auto& first = ProgramSheduleWidgetTranslateManager::instance();
    auto& second = ProgramSheduleWidgetTranslateManager::instance();
    QCOMPARE(&first, &second);
    QCOMPARE(&first.translator(), &second.translator());
}

void tst_ProgramSheduleWidgetTranslateManager::nobodyElseMakesOrCopiesAManager()
{
    using Manager = ProgramSheduleWidgetTranslateManager;
    QVERIFY(!std::is_default_constructible_v<Manager>);
    QVERIFY(!std::is_copy_constructible_v<Manager>);
    QVERIFY(!std::is_move_constructible_v<Manager>);
    QVERIFY(!std::is_polymorphic_v<Manager>);
    QVERIFY(std::is_destructible_v<Manager>);
}

void tst_ProgramSheduleWidgetTranslateManager::aKeyThatNoFileHoldsIsShownItself()
{
    QCOMPARE(scheduleText("zhNoSuchKey"), QStringLiteral("zhNoSuchKey"));
}

TREL_TEST(tst_ProgramSheduleWidgetTranslateManager, QCoreApplication)

#include "tst_ProgramSheduleWidgetTranslateManager.moc"
