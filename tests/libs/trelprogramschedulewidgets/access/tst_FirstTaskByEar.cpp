#include "access/FirstTask.h"
#include "access/SpeechRecord.h"
#include "support/ChooserAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

using Actions = QAccessibleActionInterface;

/// What an aid finds in the active window and does there, through its accessible tree alone.
class Aid
{
public:
    explicit Aid(SpeechRecord& record)
        : m_record(record)
    {}

    /// The first thing of a role in the active window whose name ends so; null when there is none.
    /// What is not shown is passed over.
    QAccessibleInterface* find(QAccessible::Role role, const QString& end) const
    {
        QAccessibleInterface* const window =
            QAccessible::queryAccessibleInterface(QApplication::activeWindow());
        return window ? findBelow(*window, role, end) : nullptr;
    }

    QAccessibleInterface* wanted(QAccessible::Role role, const QString& end) const
    {
        QAccessibleInterface* const found = find(role, end);
        if (!found) {
            qFatal("nothing is named %s", qPrintable(end));
        }
        return found;
    }

    void act(QAccessible::Role role, const QString& end, const QString& action)
    {
        QAccessibleInterface* const what = wanted(role, end);
        m_record.doing(action + QLatin1Char(' ') + SpeechRecord::said(*what));
        QVERIFY2(what->actionInterface() && what->actionInterface()->actionNames().contains(action),
                 qPrintable(end));
        what->actionInterface()->doAction(action);
        QCoreApplication::processEvents();
    }

    void set(const QString& end, double value)
    {
        QAccessibleInterface* const what = wanted(QAccessible::SpinBox, end);
        m_record.doing(
            QStringLiteral("sets %1 %2").arg(value, 0, 'f', 0).arg(SpeechRecord::said(*what)));
        QVERIFY2(what->valueInterface(), qPrintable(end));
        what->valueInterface()->setCurrentValue(value);
        QTRY_COMPARE(what->valueInterface()->currentValue().toDouble(), value);
        m_record.doing(QStringLiteral("reads ") + SpeechRecord::said(*what));
    }

    void write(const QString& end, const QString& text)
    {
        QAccessibleInterface* const what = wanted(QAccessible::SpinBox, end);
        m_record.doing(QStringLiteral("writes %1 into %2").arg(text, SpeechRecord::said(*what)));
        QVERIFY2(what->editableTextInterface(), qPrintable(end));
        const int size = what->textInterface()->characterCount();
        what->editableTextInterface()->replaceText(0, size, text);
        QTRY_COMPARE(what->textInterface()->text(0, size), text);
        m_record.doing(QStringLiteral("reads ") + SpeechRecord::said(*what));
    }

private:
    static QAccessibleInterface* findBelow(QAccessibleInterface& above, QAccessible::Role role,
                                           const QString& end)
    {
        for (int i = 0; i < above.childCount(); ++i) {
            QAccessibleInterface* const child = above.child(i);
            if (!child || !child->isValid() || child->state().invisible) {
                continue;
            }
            if (child->role() == role && child->text(QAccessible::Name).endsWith(end)) {
                return child;
            }
            if (QAccessibleInterface* const found = findBelow(*child, role, end)) {
                return found;
            }
        }
        return nullptr;
    }

    SpeechRecord& m_record;
};

double julian(int year, int month, int day)
{
    return static_cast<double>(QDate(year, month, day).toJulianDay());
}

} // namespace

/// The first task of an operator through the accessible tree alone, in every language.
class tst_FirstTaskByEar : public QObject
{
    Q_OBJECT

private slots:
    void isMade_data();
    void isMade();
};

void tst_FirstTaskByEar::isMade_data()
{
    QTest::addColumn<QString>("language");
    QVERIFY(FirstTask::languages().size() > 5);
    for (const QString& language : FirstTask::languages()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_FirstTaskByEar::isMade()
{
    QFETCH(const QString, language);
    FirstTask first(language);
    SpeechRecord record(QStringLiteral("first task by ear, ") + language);
    Aid aid(record);
    const QString press = Actions::pressAction();
    const QString toggle = Actions::toggleAction();
    const QString task = scheduleText("zhPlayTaskStr") + QLatin1Char('1');
    const auto count = [&first] { return first.panel().planList()->cards().size(); };

    aid.act(QAccessible::Button, scheduleText("zhSchedulePlayStrAdd"), press);
    QTRY_COMPARE(count(), 1);
    if (aid.wanted(QAccessible::Button, task)->state().collapsed) {
        aid.act(QAccessible::Button, task, press);
        QTRY_VERIFY(!aid.wanted(QAccessible::Button, task)->state().collapsed);
    }
    aid.set(scheduleText("zhToStr"), julian(2024, 4, 30));
    aid.write(scheduleText("zhFromStr"), QStringLiteral("2024.04.01"));

    const ChooserAnswer chooser([&](ChooserWindow& window) {
        QTRY_COMPARE(QApplication::activeWindow(), window.frame());
        aid.act(QAccessible::CheckBox, QStringLiteral("News"), toggle);
        aid.act(QAccessible::CheckBox, QStringLiteral("Film"), toggle);
        aid.act(QAccessible::Button, scheduleText("zhSelectProgramsStr"), press);
        QTRY_VERIFY(window.canConfirm());
        QVERIFY(aid.find(QAccessible::SpinBox,
                         QStringLiteral("Film, ") + scheduleText("zhPlayCounts")));
        aid.act(QAccessible::Button, scheduleText("zhFixAct"), press);
        QTRY_VERIFY(!window.frame()->isVisible());
    });
    aid.act(QAccessible::Button, scheduleText("zhSelectProgramsStr"), press);
    QTRY_COMPARE(chooser.count(), 1);
    QTRY_VERIFY(QApplication::activeModalWidget() == &first.dialog() ||
                !QApplication::activeModalWidget());
    first.comeBack();
    const QString plan =
        task + QStringLiteral(", ") + scheduleText("zhPlanTimeStr") + QStringLiteral("1: ");
    QTRY_VERIFY(aid.find(QAccessible::SpinBox, plan + scheduleText("zhFromStr")));

    constexpr double kHour = 3600;
    aid.set(plan + scheduleText("zhToStr"), 11.5 * kHour);
    aid.set(plan + scheduleText("zhFromStr"), 10 * kHour);
    first.wait();
    const QString days = plan + scheduleText("szDateStr");
    aid.act(QAccessible::ComboBox, days, Actions::showMenuAction());
    QTRY_VERIFY(aid.wanted(QAccessible::ComboBox, days)->state().expanded);
    aid.act(QAccessible::ListItem, scheduleText("szMondayStr"), toggle);
    aid.act(QAccessible::ListItem, scheduleText("szWednesdayStr"), toggle);
    aid.act(QAccessible::ComboBox, days, Actions::showMenuAction());
    QTRY_VERIFY(aid.wanted(QAccessible::ComboBox, days)->state().collapsed);
    record.doing(QStringLiteral("reads ") +
                 SpeechRecord::said(*aid.wanted(QAccessible::ComboBox, days)));
    record.doing(QStringLiteral("reads ") +
                 SpeechRecord::said(
                     *aid.wanted(QAccessible::Button, plan + scheduleText("zhSelectProgramsStr"))));
    aid.act(QAccessible::Button, scheduleText("zhFixAct"), press);

    QTRY_COMPARE(FirstTask::saved(), QStringList(FirstTask::wanted()));
    QTRY_VERIFY(!first.dialog().isVisible());
}

TREL_TEST(tst_FirstTaskByEar, QApplication)
#include "tst_FirstTaskByEar.moc"
