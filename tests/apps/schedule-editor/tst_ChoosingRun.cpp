#include "EditorRun.h"
#include "ScheduleLines.h"
#include "support/ChooserAnswer.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QSpinBox>

using namespace trel::desktop;

/// An operator chooses programs for a plan in the editor, from the first click to the file, which
/// another process and the editor itself read afterwards.
class tst_ChoosingRun : public QObject
{
    Q_OBJECT

private slots:
    void aPlanFromTheChooserToTheFile_data();
    void aPlanFromTheChooserToTheFile();

private:
    NoPlatformNotes m_quiet;
};

namespace {

/// Rows of the list of programs on offer.
enum Offer { BrandFilm = 0, CityNews = 1, LunchMenu = 4, Weather = 6 };

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList strings;
    for (const char* text : texts) {
        strings.append(QString::fromUtf8(text));
    }
    return strings;
}

/// Opens the box of a play count by a double click and steps it up once.
void stepCount(const ChooserWindow& chooser, int row)
{
    QSpinBox* const box = chooser.openCount(row);
    const int count = box->value() + 1;
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(box->value(), count);
    QTest::keyClick(box, Qt::Key_Return);
}

} // namespace

void tst_ChoosingRun::aPlanFromTheChooserToTheFile_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("en_US") << QStringLiteral("en_US");
    QTest::newRow("zh_CN") << QStringLiteral("zh_CN");
}

void tst_ChoosingRun::aPlanFromTheChooserToTheFile()
{
    QFETCH(QString, language);
    EditorRun run(QStringLiteral("choosing"), language);
    const CardOnScreen card = run.card(1);
    card.toggleFold();
    QCOMPARE(card.rowCount(), 2);

    ChooserAnswer answer;
    answer.expect([&](const ChooserWindow& chooser) {
        QVERIFY(!chooser.canConfirm());
        chooser.checkPrograms({Weather, BrandFilm, CityNews});
        chooser.choose();
        QCOMPARE(chooser.planRows(),
                 list({"[ ]01 Weather x1", "[ ]02 Brand film x1", "[ ]03 City news x1"}));
        chooser.setCount(1, 3);
        stepCount(chooser, 0);
        chooser.checkPlan(2);
        chooser.moveUp();
        QTRY_COMPARE(chooser.planRows(),
                     list({"[ ]01 Weather x2", "[x]02 City news x1", "[ ]03 Brand film x3"}));
        chooser.moveDown();
        chooser.moveUp();
        QCOMPARE(chooser.planRows(),
                 list({"[ ]01 Weather x2", "[x]02 City news x1", "[ ]03 Brand film x3"}));
        QVERIFY2(chooser.total().contains(QStringLiteral("00:02:55")), qPrintable(chooser.total()));
        run.picture(*chooser.frame(), QStringLiteral("1-chosen"));
        chooser.confirm();
    });
    card.addPlan();
    QCOMPARE(card.rowCount(), 3);
    QCOMPARE(card.line(2), QStringLiteral("3: 22:00:00-23:00:00 time days 0 black "
                                          "[Weather,City news,Brand film]"));
    QVERIFY2(card.programField(2).startsWith(QStringLiteral("Weather,City")),
             qPrintable(card.programField(2)));
    card.choose(card.mode(2), 1);
    QCOMPARE(card.endTime(2).text(), QStringLiteral("22:02:55"));
    run.picture(QStringLiteral("2-new-row"));

    answer.expect([&](const ChooserWindow& chooser) {
        QCOMPARE(chooser.planRows(),
                 list({"[ ]01 Weather x2", "[ ]02 City news x1", "[ ]03 Brand film x3"}));
        chooser.checkPlan(2);
        chooser.remove();
        QCOMPARE(chooser.planRows(), list({"[ ]01 Weather x2", "[ ]02 City news x1"}));
        run.picture(*chooser.frame(), QStringLiteral("3-deleted"));
        chooser.confirm();
    });
    card.openChooser(2);
    const QString chosen =
        QStringLiteral("3: 22:00:00-22:01:25 frequency x1 days 0 black [Weather,City news]");
    QCOMPARE(card.line(2), chosen);
    QCOMPARE(card.programField(2), QStringLiteral("Weather,City news"));

    answer.expect([&](const ChooserWindow& chooser) {
        chooser.checkPrograms({LunchMenu});
        chooser.choose();
        chooser.checkPlan(0);
        chooser.remove();
        QCOMPARE(chooser.planRows(), list({"[ ]01 City news x1", "[ ]02 Lunch menu x1"}));
        chooser.cancel();
    });
    card.openChooser(2);
    QCOMPARE(card.line(2), chosen);
    QCOMPARE(card.programField(2), QStringLiteral("Weather,City news"));
    QVERIFY(card.mode(2).isEnabled());
    QCOMPARE(answer.count(), 3);
    run.picture(QStringLiteral("4-edited"));
    const QStringList edited = run.lines();

    run.press("pushButtonSave");

    QVERIFY(!run.editor->isVisible());
    QCOMPARE(shownBySchedulectl(run.database), edited);
    QCOMPARE(entriesShownBySchedulectl(run.database, 2, 3), list({"Weather x2", "City news x1"}));
    run.openAgain();
    QCOMPARE(run.lines(), edited);
}

TREL_TEST(tst_ChoosingRun, QApplication)
#include "tst_ChoosingRun.moc"
