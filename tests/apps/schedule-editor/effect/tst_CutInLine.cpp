#include "EffectFixture.h"
#include "support/TestProgram.h"

#include <QApplication>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What the panel confirms of each insertion: what it cuts off, and what comes back when.
class tst_CutInLine : public QObject
{
    Q_OBJECT

private slots:
    void atOnce();
    void delayed();
    void skipped();
    void canceled();
    void theOneBeforeComesBackWhenOneThatWaitsIsCanceled();
    void whereNothingPlays_data();
    void whereNothingPlays();
    void atTheEndOfAPlayNothingIsCutOff();
    void whatComesBack_data();
    void whatComesBack();
    void anotherProgramsInsertion();
    void aNewWindowSaysItAgain();
    void namesAreTakenToTheLetter();
    void theLineFollowsTheLanguage();
};

namespace {

const char* const kLine = "nowCutIn";
const QString kHidden = QStringLiteral("-");

} // namespace

void tst_CutInLine::atOnce()
{
    EffectFixture fixture("08:00:00-08:00:30 A B / 08:00:30-09:00:00 B");
    fixture.start();
    QCOMPARE(fixture.text(kLine), kHidden);
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    const QString said =
        QString::fromUtf8("“Opening” was cut off at 08:00:03; “News” comes at 08:00:30.");
    QCOMPARE(fixture.text(kLine), said);
    fixture.clock.advance(26000);
    QCOMPARE(fixture.text(kLine), said);
    fixture.clock.advance(1000);
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("News"));
    QCOMPARE(fixture.text(kLine), kHidden);
}

void tst_CutInLine::delayed()
{
    EffectFixture fixture("08:00:00-08:01:00 A B");
    fixture.start();
    fixture.insertDelayed(fixture.inserted("07:00:00-07:30:00 D", true));
    QCOMPARE(fixture.text(kLine),
             QString::fromUtf8("“Spot” comes after “Opening”, at 08:00:10; “Opening” comes back at "
                               "08:00:16."));
    fixture.clock.advance(8000);
    QCOMPARE(fixture.text(kLine),
             QString::fromUtf8("“Spot” was cut in at 08:00:10; “Opening” comes back at 08:00:16."));
    fixture.clock.advance(6000);
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("Opening"));
    QCOMPARE(fixture.text(kLine), kHidden);
}

void tst_CutInLine::skipped()
{
    EffectFixture fixture("08:00:00-08:00:30 A B / 08:00:30-09:00:00 D");
    fixture.start();
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(fixture.text(kLine),
             QString::fromUtf8("“Opening” was cut off at 08:00:03; “Spot” comes at 08:00:30."));
    fixture.clock.advance(1000);
    QVERIFY(fixture.host.skipPlay());
    QCOMPARE(fixture.text(kLine),
             QString::fromUtf8("“News” was cut off at 08:00:04; “Spot” comes at 08:00:30."));
}

void tst_CutInLine::canceled()
{
    EffectFixture fixture;
    fixture.start();
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    QVERIFY(fixture.text(kLine) != kHidden);
    fixture.clock.advance(1000);
    QVERIFY(fixture.host.cancelInsertion());
    QCOMPARE(fixture.text(kLine), kHidden);
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    QVERIFY(fixture.text(kLine) != kHidden);
    QVERIFY(fixture.host.stopSchedule());
    QCOMPARE(fixture.text(kLine), kHidden);
}

void tst_CutInLine::theOneBeforeComesBackWhenOneThatWaitsIsCanceled()
{
    EffectFixture fixture;
    fixture.start();
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    const QString first = fixture.text(kLine);
    fixture.insertDelayed(fixture.inserted("08:00:00-08:01:00 B"));
    QVERIFY(fixture.text(kLine).startsWith(
        QString::fromUtf8("“News” comes after “Spot”, at 08:00:09;")));
    QVERIFY(fixture.host.cancelInsertion());
    QCOMPARE(fixture.text(kLine), first);
}

void tst_CutInLine::whereNothingPlays_data()
{
    QTest::addColumn<QString>("plan");
    QTest::addColumn<QString>("inserted");
    QTest::addColumn<bool>("isOneProgram");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* name, const char* plan, const char* inserted, bool isOneProgram,
                        const char* said) {
        QTest::newRow(name) << QString::fromLatin1(plan) << QString::fromLatin1(inserted)
                            << isOneProgram << QString::fromUtf8(said);
    };
    row("before the plan", "08:30:00-09:00:00 A", "08:30:00-09:00:00 D", true,
        "“Spot” was cut in at 08:00:03; a black screen comes back at 08:00:09.");
    row("behind it", "07:00:00-08:00:00 A freeze", "07:00:00-08:00:00 D", true,
        "“Spot” was cut in at 08:00:03; the last frame of “Opening” comes back at 08:00:09.");
    row("nothing in nothing", "08:30:00-09:00:00 A", "08:30:00-09:00:00 !D", false,
        "A black screen was cut in at 08:00:03; a black screen comes back at 09:00:00.");
}

void tst_CutInLine::whereNothingPlays()
{
    QFETCH(QString, plan);
    QFETCH(QString, inserted);
    QFETCH(bool, isOneProgram);
    EffectFixture fixture(plan.toLatin1().constData());
    fixture.start();
    fixture.insert(fixture.inserted(inserted.toLatin1().constData(), isOneProgram));
    QTEST(fixture.text(kLine), "said");
}

void tst_CutInLine::atTheEndOfAPlayNothingIsCutOff()
{
    EffectFixture fixture("08:00:00-08:01:00 A B");
    fixture.start();
    fixture.clock.advance(7000);
    QCOMPARE(fixture.text("nowProgram"), QStringLiteral("News"));
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    QVERIFY2(fixture.text(kLine).startsWith(QString::fromUtf8("“Spot” was cut in at 08:00:10;")),
             qPrintable(fixture.text(kLine)));
}

void tst_CutInLine::whatComesBack_data()
{
    QTest::addColumn<QString>("plans");
    QTest::addColumn<QString>("inserted");
    QTest::addColumn<bool>("isOneProgram");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* name, const char* plans, const char* inserted,
                        bool isOneProgram, const char* said) {
        QTest::newRow(name) << QString::fromLatin1(plans) << QString::fromLatin1(inserted)
                            << isOneProgram << QString::fromUtf8(said);
    };
    row("black", "08:00:00-08:00:30 A", "08:00:00-08:00:30 D", false,
        "“Opening” was cut off at 08:00:03; a black screen comes at 08:00:30.");
    row("frozen", "08:00:00-08:00:30 A freeze", "08:00:00-08:00:30 D", false,
        "“Opening” was cut off at 08:00:03; the last frame of “Opening” comes at 08:00:30.");
    row("the same again", "08:00:00-08:00:30 A", "07:00:00-07:30:00 D", true,
        "“Opening” was cut off at 08:00:03; “Opening” comes at 08:00:09.");
    // A picture stays until a plan next takes the screen.
    row("another day", "07:00:00-08:00:20 A C", "07:00:00-07:30:00 C", true,
        "“Poster” was cut off at 08:00:03; “Opening” comes at 07:00:00 on \u20662024.03.05\u2069.");
    row("nothing to play", "08:00:00-08:00:30 A", "08:00:00-08:00:30 !D", false,
        "“Opening” was cut off at 08:00:03; a black screen comes at 08:00:30.");
    row("never", "08:00:00-08:00:20 A on=1", "07:00:00-07:30:00 C", true,
        "“Opening” was cut off at 08:00:03.");
}

void tst_CutInLine::whatComesBack()
{
    QFETCH(QString, plans);
    QFETCH(QString, inserted);
    QFETCH(bool, isOneProgram);
    EffectFixture fixture(plans.toLatin1().constData());
    if (plans.contains(QLatin1String("on=1"))) {
        fixture.save(QStringLiteral("1 2024.03.04-2024.03.04 / ") + plans);
    }
    fixture.start();
    fixture.insert(fixture.inserted(inserted.toLatin1().constData(), isOneProgram));
    QTEST(fixture.text(kLine), "said");
}

void tst_CutInLine::anotherProgramsInsertion()
{
    EffectFixture fixture("08:00:00-08:00:30 A B / 08:00:30-09:00:00 B");
    fixture.start();
    OtherProgram other(fixture.database);
    fixture.insertElsewhere(other, fixture.inserted("08:00:00-08:00:30 D"));
    QTRY_COMPARE_WITH_TIMEOUT(
        fixture.text(kLine),
        QString::fromUtf8("“Opening” was cut off at 08:00:03; “News” comes at 08:00:30."), 2000);
}

void tst_CutInLine::aNewWindowSaysItAgain()
{
    EffectFixture fixture;
    fixture.start();
    fixture.insert(fixture.inserted("08:00:00-08:01:00 D"));
    fixture.clock.advance(1000);
    fixture.insert(fixture.inserted("08:00:00-08:01:00 B"));
    const QString said = fixture.text(kLine);
    QVERIFY(said.startsWith(QString::fromUtf8("“Spot” was cut off at 08:00:04;")));
    fixture.host.close();
    QCOMPARE(fixture.text(kLine), kHidden);
    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
    QCOMPARE(fixture.text(kLine), said);
}

void tst_CutInLine::namesAreTakenToTheLetter()
{
    const QString name = QStringLiteral("100%2 <b>&amp;</b> ") + QString(300, QLatin1Char('x'));
    EffectFixture fixture("08:00:00-08:00:30 A / 08:00:30-09:00:00 B",
                          {name, QStringLiteral("%1"), QStringLiteral("c"), QStringLiteral("d")});
    fixture.start();
    const int width = fixture.window.width();
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    QCOMPARE(fixture.text(kLine),
             QString::fromUtf8("“%1” was cut off at 08:00:03; “%2” comes at 08:00:30.")
                 .arg(name, QStringLiteral("%1")));
    QCOMPARE(fixture.label(kLine).textFormat(), Qt::PlainText);
    QVERIFY(fixture.toolTip(kLine).contains(QLatin1String("&lt;b&gt;")));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.window.width(), width);
}

void tst_CutInLine::theLineFollowsTheLanguage()
{
    EffectFixture fixture("08:00:00-08:00:30 A");
    fixture.start();
    fixture.insert(fixture.inserted("08:00:00-08:00:30 D"));
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(fixture.text(kLine),
                 QString::fromUtf8(
                     "„Opening“ wurde um 08:00:03 abgebrochen; um 08:00:30 kommt Schwarzbild."));
}

TREL_TEST(tst_CutInLine, QApplication)
#include "tst_CutInLine.moc"
