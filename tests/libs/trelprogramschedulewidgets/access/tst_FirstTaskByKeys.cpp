#include "access/FirstTask.h"
#include "access/SpeechRecord.h"
#include "support/ChooserAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QKeySequence>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// Presses keys one after the other, whichever window has them, and notes what is said.
class Keyboard
{
public:
    explicit Keyboard(SpeechRecord& record)
        : m_record(record)
    {}

    void press(const char* keys, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            m_record.doing(QLatin1String(keys));
            const QKeySequence sequence = QKeySequence(QLatin1String(keys));
            constexpr uint kModifiers = Qt::KeyboardModifierMask;
            const auto key = static_cast<uint>(sequence[0]);
            hit(static_cast<Qt::Key>(key & ~kModifiers),
                static_cast<Qt::KeyboardModifiers>(key & kModifiers));
        }
    }

    void type(const char* digits)
    {
        m_record.doing(QStringLiteral("types ") + QLatin1String(digits));
        for (const char* digit = digits; *digit != '\0'; ++digit) {
            hit(static_cast<Qt::Key>(Qt::Key_0 + (*digit - '0')), Qt::NoModifier);
        }
    }

    /// Goes on with Tab until the name of what has the focus ends so.
    void tabTo(const QString& end)
    {
        constexpr int kMost = 30;
        for (int i = 0; i < kMost && !focusedName().endsWith(end); ++i) {
            press("Tab");
        }
        QVERIFY2(focusedName().endsWith(end), qPrintable(end));
    }

    static QString focusedName()
    {
        QWidget* const focused = QApplication::focusWidget();
        const QAccessibleInterface* const said =
            focused ? QAccessible::queryAccessibleInterface(focused) : nullptr;
        return said ? said->text(QAccessible::Name) : QString();
    }

private:
    static void hit(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(QApplication::activeWindow()->windowHandle(), key, modifiers);
        QCoreApplication::processEvents();
    }

    SpeechRecord& m_record;
};

} // namespace

/// The first task of an operator by keys alone, in the shown editor, in every language.
class tst_FirstTaskByKeys : public QObject
{
    Q_OBJECT

private slots:
    void isMade_data();
    void isMade();
    void withAllCardsFolded();
};

void tst_FirstTaskByKeys::isMade_data()
{
    QTest::addColumn<QString>("language");
    QVERIFY(FirstTask::languages().size() > 5);
    for (const QString& language : FirstTask::languages()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_FirstTaskByKeys::isMade()
{
    QFETCH(const QString, language);
    FirstTask first(language);
    SpeechRecord record(QStringLiteral("first task by keys, ") + language);
    Keyboard keys(record);

    keys.press("Ctrl+Shift+N");
    QCOMPARE(Keyboard::focusedName(), scheduleText("zhPlayTaskStr") + QLatin1Char('1'));
    if (first.panel().planList()->cards().front()->isFolded()) {
        keys.press("Space");
    }
    // The end first: a start may not come after it.
    keys.tabTo(scheduleText("zhToStr"));
    keys.type("20240430");
    // Said as a whole once the last digit stands there.
    QVERIFY2(record.news().last().endsWith(QLatin1String(", 2024.04.30")),
             qPrintable(record.lines().last()));
    keys.press("Shift+Tab");
    while (!Keyboard::focusedName().endsWith(scheduleText("zhFromStr"))) {
        keys.press("Shift+Tab");
    }
    // Tab has come in at the day.
    keys.press("Shift+Tab", 2);
    keys.type("20240401");

    const ChooserAnswer chooser([&keys](ChooserWindow& window) {
        QTRY_COMPARE(QApplication::activeWindow(), window.frame());
        keys.press("Down");
        keys.press("Space");
        keys.press("Up");
        keys.press("Space");
        keys.press("Return");
        keys.press("Tab", 5);
        keys.press("Down");
        keys.press("Ctrl+Return");
    });
    keys.press("Ctrl+N");
    first.comeBack();

    keys.tabTo(scheduleText("zhToStr"));
    keys.type("113000");
    QVERIFY2(record.news().last().endsWith(QLatin1String(", 11:30:00")),
             qPrintable(record.lines().last()));
    keys.press("Shift+Tab");
    while (!Keyboard::focusedName().endsWith(scheduleText("zhFromStr"))) {
        keys.press("Shift+Tab");
    }
    keys.press("Shift+Tab", 2);
    keys.type("100000");
    keys.tabTo(scheduleText("szDateStr"));
    first.wait();
    keys.press("Alt+Down");
    // The entry is said after its list, or one would not know where one is; and not before it.
    const QStringList opened = record.news();
    QCOMPARE(opened.size(), 2);
    QVERIFY2(opened.first().endsWith(QLatin1String(", list")), qPrintable(opened.first()));
    QCOMPARE(opened.last(),
             QStringLiteral("  %1, list item, checked").arg(scheduleText("szEveryDayStr")));
    keys.press("Down");
    keys.press("Space");
    keys.press("Down", 2);
    keys.press("Space");
    keys.press("Escape");
    const QString days = record.news().last();
    QVERIFY2(days.endsWith(QLatin1String(", collapsed")), qPrintable(days));
    keys.press("Ctrl+Return");

    QCOMPARE(FirstTask::saved(), QStringList(FirstTask::wanted()));
    QVERIFY(!first.dialog().isVisible());
    for (const QString& line : record.lines()) {
        QVERIFY2(!line.startsWith(QLatin1String("  ,")) && !line.contains(QLatin1String("role ")) &&
                     !line.contains(QLatin1String("not shown")),
                 qPrintable(line));
    }
}

void tst_FirstTaskByKeys::withAllCardsFolded()
{
    FirstTask first(QStringLiteral("en_US"));
    SpeechRecord record(QStringLiteral("folded cards by keys"));
    Keyboard keys(record);
    keys.press("Ctrl+Shift+N");
    keys.press("Ctrl+Shift+N");
    for (PlanTaskWidget* const card : first.panel().planList()->cards()) {
        card->setFolded(true);
    }
    const QString task = scheduleText("zhPlayTaskStr");
    const auto bar = [&task](int number, const char* state) {
        return QStringLiteral("  %1, button, %2 (F3)")
            .arg(task + QString::number(number), QLatin1String(state));
    };
    keys.press("Ctrl+PgUp");
    QCOMPARE(record.news().last(), bar(1, "collapsed"));
    keys.press("Ctrl+PgDown");
    QCOMPARE(record.news().last(), bar(2, "collapsed"));
    keys.press("F3");
    QCOMPARE(record.news().last(), bar(2, "expanded"));
    keys.press("F3");
    QCOMPARE(record.news().last(), bar(2, "collapsed"));
    keys.press("Ctrl+Shift+D");
    QVERIFY2(Keyboard::focusedName().startsWith(task + QLatin1Char('3')),
             qPrintable(Keyboard::focusedName()));
    QCOMPARE(first.panel().planList()->cards().size(), 3);
}

TREL_TEST(tst_FirstTaskByKeys, QApplication)
#include "tst_FirstTaskByKeys.moc"
