#include "EditorRun.h"
#include "screen/PreviewScreen.h"
#include "service/DateText.h"
#include "support/PlatformNotes.h"
#include "support/TestClock.h"

#include <QLabel>

using namespace trel::mediadispatch;

/// An operator starts the schedule in the editor and watches the host's panels.
class tst_DispatchRun : public QObject
{
    Q_OBJECT

private slots:
    void theStartButtonBringsThePanelsToLife();
    void thePreviewFillsAScreenAndComesBack();

private:
    static QString text(const EditorRun& run, const char* name)
    {
        const auto* label = run.window.findChild<QLabel*>(QLatin1String(name));
        return label->isHidden() ? QStringLiteral("-") : label->text();
    }
    /// On which the first task plays its plan of eight o'clock.
    static QDate firstMonday(const EditorRun& run)
    {
        const PlayTask task = run.manager.getgTaskMap().at(1);
        const QDate first = dateFromText(task.startDate);
        return first.addDays((Qt::Monday + 7 - first.dayOfWeek()) % 7);
    }

    NoPlatformNotes m_quiet;
};

void tst_DispatchRun::theStartButtonBringsThePanelsToLife()
{
    TestClock clock(QDateTime(QDate(2026, 11, 21), QTime(12, 0)));
    EditorRun run(QStringLiteral("dispatch"), QStringLiteral("en_US"));
    const QDate monday = firstMonday(run);
    clock.set(QDateTime(monday, QTime(8, 0)));
    run.window.show();
    QCOMPARE(text(run, "nowProgram"), QStringLiteral("Not started"));
    QVERIFY(text(run, "nowReason").contains(QLatin1String("start button")));
    run.picture(run.window, QStringLiteral("1-not-started"));

    run.press("pushButtonStart");
    QVERIFY(text(run, "nowProgram") != QLatin1String("Not started"));
    run.picture(run.window, QStringLiteral("2-started"));
}

void tst_DispatchRun::thePreviewFillsAScreenAndComesBack()
{
    EditorRun run(QStringLiteral("dispatch"), QStringLiteral("en_US"));
    run.window.show();
    auto* preview = run.window.findChild<PreviewScreen*>(QStringLiteral("previewScreen"));
    const auto large = [&run] {
        return run.window.findChild<PreviewScreen*>(QStringLiteral("previewFullScreen"));
    };
    QTest::mouseDClick(preview, Qt::LeftButton);
    QVERIFY(large() != nullptr && large()->isFullScreen());
    QTest::keyClick(large(), Qt::Key_Escape);
    QTRY_VERIFY(large() == nullptr);
    QTest::mouseDClick(preview, Qt::LeftButton);
    QVERIFY(large() != nullptr);
    QTest::mouseDClick(large(), Qt::LeftButton);
    QTRY_VERIFY(large() == nullptr);
}

QTEST_MAIN(tst_DispatchRun)
#include "tst_DispatchRun.moc"
