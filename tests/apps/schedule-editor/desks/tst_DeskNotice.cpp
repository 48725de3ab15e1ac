#include "../HostFixture.h"
#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/desks/DeskWatch.h"

#include <QApplication>
#include <QLabel>
#include <QShowEvent>

#include <algorithm>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

constexpr std::chrono::milliseconds kQuick{10};
/// Two rounds of a watch, and some more on a busy machine.
constexpr int kPatience = 30000;

/// Without the marks that keep a time together where one reads from the right.
QString plain(QString text)
{
    return text.remove(QChar(0x2066)).remove(QChar(0x2069));
}

} // namespace

/// The window tells what other desks have open for editing.
class tst_DeskNotice : public QObject
{
    Q_OBJECT

private slots:
    void tellsOfOthers();
    void othersAreTold();
    void onlyChangesAreNews();
};

void tst_DeskNotice::tellsOfOthers()
{
    TestClock clock(QDateTime(QDate(2026, 11, 23), QTime(14, 3)));
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.window.show();
    const auto* const notice = fixture.window.findChild<QLabel*>(QStringLiteral("deskNotice"));
    QVERIFY(notice);
    QVERIFY(!notice->isVisible());
    DeskWatch anna(QStringLiteral("<b>anna@studio"), nullptr, kQuick);
    anna.begin(fixture.host.path());
    anna.tellEdited({1, 3});
    clock.set(QDateTime(QDate(2026, 11, 23), QTime(14, 9)));
    anna.tellEdited({1, 3, 4});
    QTRY_VERIFY_WITH_TIMEOUT(notice->isVisible(), kPatience);
    QTRY_COMPARE_WITH_TIMEOUT(
        plain(notice->accessibleDescription()),
        QStringLiteral("<b>anna@studio: since 14:03, last changed at 14:09, tasks 1, 3, 4"),
        kPatience);
    QCOMPARE(plain(notice->text()), QStringLiteral("Also edited at <b>anna@studio since 14:03"));
    QCOMPARE(notice->textFormat(), Qt::PlainText);
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(plain(notice->text()),
                 QStringLiteral("Auch bearbeitet an <b>anna@studio seit 14:03"));
    fixture.languages.select(QStringLiteral("en_US"));
    QDir().mkpath(QStringLiteral(PICTURES));
    for (const char* const theme : {"dark", "high-contrast", "light"}) {
        fixture.themes.select(QLatin1String(theme));
        QCoreApplication::processEvents();
        QVERIFY(fixture.window.grab().save(
            QStringLiteral(PICTURES "/desks-%1.png").arg(QLatin1String(theme))));
        // Whole, on a small screen too.
        QVERIFY(notice->width() >= notice->sizeHint().width());
        QVERIFY(fixture.window.minimumSizeHint().width() <= 1024);
    }
    DeskWatch bert(QStringLiteral("bert@hall"), nullptr, kQuick);
    bert.begin(fixture.host.path());
    bert.tellEdited({2});
    QTRY_COMPARE_WITH_TIMEOUT(notice->text(), QStringLiteral("Also edited at 2 other desks"),
                              kPatience);
    anna.tellEdited({});
    bert.tellEdited({});
    QTRY_VERIFY_WITH_TIMEOUT(!notice->isVisible(), kPatience);
}

void tst_DeskNotice::othersAreTold()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.showEditor();
    DeskWatch bert(QStringLiteral("bert@hall"), nullptr, kQuick);
    bert.begin(fixture.host.path());
    fixture.manager.addTask(makeTask(9, "2040.01.01", "2040.01.02"));
    QTRY_COMPARE(bert.others().size(), std::size_t(1));
    QVERIFY(bert.others().front().taskIds == std::vector<int>{9});
    QVERIFY(bert.others().front().desk.contains(QLatin1Char('@')));
    fixture.manager.save();
    QTRY_VERIFY(bert.others().empty());
    fixture.manager.addTask(makeTask(10, "2041.01.01", "2041.01.02"));
    QTRY_COMPARE(bert.others().size(), std::size_t(1));
    // What is canceled is not open any more.
    fixture.editor->close();
    QTRY_VERIFY(bert.others().empty());
}

void tst_DeskNotice::onlyChangesAreNews()
{
    TestClock clock(QDateTime(QDate(2026, 11, 23), QTime(14, 3)));
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database, QStringLiteral(DEMONSTRATION));
    fixture.showEditor();
    DeskWatch bert(QStringLiteral("bert@hall"), nullptr, kQuick);
    bert.begin(fixture.host.path());
    const Instant first = clock.msecsSinceEpoch();
    fixture.manager.addTask(makeTask(9, "2040.01.01", "2040.01.02"));
    QTRY_COMPARE(bert.others().size(), std::size_t(1));
    clock.set(QDateTime(QDate(2026, 11, 23), QTime(14, 9)));
    const Instant second = clock.msecsSinceEpoch();
    // What is shown once more is no change. What is told is told in turn.
    QShowEvent shown;
    QCoreApplication::sendEvent(fixture.editor.get(), &shown);
    fixture.manager.addTask(makeTask(10, "2041.01.01", "2041.01.02"));
    QTRY_COMPARE(bert.others().front().taskIds.size(), std::size_t(2));
    QCOMPARE(bert.others().front().changed, second);
    clock.set(QDateTime(QDate(2026, 11, 23), QTime(14, 20)));
    QCoreApplication::sendEvent(fixture.editor.get(), &shown);
    // The same tasks with another date are one.
    DeskWatch carl(QStringLiteral("carl@office"), nullptr, kQuick);
    carl.begin(fixture.host.path());
    carl.tellEdited({3});
    QTRY_COMPARE(bert.others().size(), std::size_t(2));
    for (const DeskNote& note : bert.others()) {
        if (!note.desk.startsWith(QLatin1String("carl"))) {
            QCOMPARE(note.changed, second);
            QCOMPARE(note.since, first);
        }
    }
    fixture.manager.addTask(makeTask(10, "2041.01.01", "2041.01.03"));
    const auto isMoved = [&bert, &clock] {
        const auto& notes = bert.others();
        return std::any_of(notes.begin(), notes.end(), [&clock](const DeskNote& note) {
            return note.taskIds.size() == 2 && note.changed == clock.msecsSinceEpoch();
        });
    };
    QTRY_VERIFY(isMoved());
}

TREL_TEST(tst_DeskNotice, QApplication)
#include "tst_DeskNotice.moc"
