#include "CardOnScreen.h"
#include "EditorMenus.h"
#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "LookSupport.h"
#include "air/AirLight.h"
#include "catalogue/ProgramDrag.h"
#include "problems/ProblemDock.h"
#include "support/ChooserAnswer.h"
#include "support/PlatformNotes.h"
#include "support/PromptAnswer.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "week/WeekView.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMimeData>
#include <QStatusBar>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// A Wednesday.
const QDate kToday(2026, 3, 11);

/// The time, before anything asks for it.
struct FirstMorning
{
    TestClock clock{QDateTime(kToday, QTime(9, 20))};
};

/// A new user at the windows, with nothing there yet. Keeps what is seen of each step, for people
/// to look at.
class NewUser : public FirstMorning, public HostFixture
{
public:
    explicit NewUser(const QString& theme)
        : m_theme(theme)
        , view(*window.findChild<week::WeekView*>())
    {
        editor->setCheckBoxImagePath(QStringLiteral(":/qss/img/checked.svg"),
                                     QStringLiteral(":/qss/img/unchecked.svg"));
        themes.select(theme);
        window.openDatabase(database);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    void picture(QWidget& shown, const char* moment) const
    {
        QCoreApplication::processEvents();
        const QDir pictures(QStringLiteral(PICTURES));
        const QString file =
            QStringLiteral("first-week-%1-%2.png").arg(m_theme, QLatin1String(moment));
        QVERIFY(pictures.mkpath(QStringLiteral(".")) && shown.grab().save(pictures.filePath(file)));
    }

    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        // Behind a dialog, off screen no window is at work.
        QApplication::setActiveWindow(&window);
        QTest::keyClick(&window, key, held);
    }
    /// The first card of the editor.
    CardOnScreen card() const { return CardOnScreen(*firstCard()); }
    int cards() const
    {
        return editor->findChild<QWidget*>(QStringLiteral("widget"))
            ->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget"))
            .size();
    }
    QTableView& programs() const
    {
        return *window.findChild<QTableView*>(QStringLiteral("programTable"));
    }
    /// What the picture says of a drop of a program there; it is dropped when that is asked for.
    bool drag(int row, const QDate& day, const QTime& time, bool isDropped) const
    {
        const std::unique_ptr<QMimeData> data(
            programs().model()->mimeData({programs().model()->index(row, 0)}));
        const week::WeekGeometry& geometry = view.geometryOfWeek();
        const QRect column = geometry.inside(*view.layoutOfWeek().dayOf(day));
        const QPoint place =
            QPoint(column.left() + 12, geometry.top(QTime(0, 0).secsTo(time))) - view.offset();
        QDragEnterEvent enter(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view.viewport(), &enter);
        QDragMoveEvent move(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(view.viewport(), &move);
        if (isDropped) {
            QDropEvent drop(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
            QCoreApplication::sendEvent(view.viewport(), &drop);
        } else {
            QDragLeaveEvent leave;
            picture(*view.window(), "3-dragged");
            QCoreApplication::sendEvent(view.viewport(), &leave);
        }
        return move.isAccepted();
    }
    /// How many blocks a day of the week has that is shown.
    int blocks(const QDate& day) const
    {
        const week::WeekLayout& shown = view.layoutOfWeek();
        return static_cast<int>(
            shown.days[static_cast<std::size_t>(*shown.dayOf(day))].blocks.size());
    }
    QString label(const char* name) const
    {
        return window.findChild<QLabel*>(QLatin1String(name))->text();
    }

private:
    NoPlatformNotes m_quiet;
    QString m_theme;

public:
    week::WeekView& view;
};

} // namespace

/// The first quarter of an hour, from nothing to a week on air: with what stands on the windows,
/// and without reading anything.
class tst_FirstWeek : public QObject
{
    Q_OBJECT

private slots:
    void fromNothingToAWeekOnAir_data() { addThemes(); }
    void fromNothingToAWeekOnAir();

private:
    static void import(NewUser& user);
    static void makeATask(NewUser& user);
    static void planInTheEditor(NewUser& user);
    static void planByDragging(NewUser& user);
    static void start(NewUser& user);
};

void tst_FirstWeek::import(NewUser& user)
{
    // The place of the catalogue says what to do.
    const auto* hint = user.window.findChild<QLabel*>(QStringLiteral("programHint"));
    QVERIFY(hint->isVisible());
    QVERIFY2(hint->text().contains(QStringLiteral("Import files")), qPrintable(hint->text()));
    user.picture(user.window, "1-nothing");
    const QDir media(user.copyMedia(QStringLiteral("media")));
    QStringList files;
    const QFileInfoList found = media.entryInfoList(QDir::Files);
    for (const QFileInfo& file : found) {
        files.append(QLatin1Char('"') + file.filePath() + QLatin1Char('"'));
    }
    QSignalSpy ended(&user.window, &EditorWindow::importEnded);
    answerFileDialog(files.join(QLatin1Char(' ')));
    user.key(Qt::Key_I, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);
    QTRY_COMPARE(user.programs().model()->rowCount(), found.size());
    QVERIFY(!hint->isVisible());
    user.picture(user.window, "2-imported");
}

void tst_FirstWeek::makeATask(NewUser& user)
{
    // A program cannot be planned where no task is valid, which is said.
    QVERIFY(!user.drag(0, kToday, QTime(10, 0), false));
    // And the window says what to do about it.
    const auto* reason = user.window.findChild<QLabel*>(QStringLiteral("weekReason"));
    QVERIFY2(reason->text().contains(QStringLiteral("“Edit”")), qPrintable(reason->text()));
    // The editor stays away in the first second of its life.
    user.clock.advance(2000);
    user.key(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(user.editor->isVisible());
    user.picture(*user.editor, "4-editor");
    const auto hasTask = [&] {
        // It takes no task in the first moment after it has filled its list.
        user.clock.advance(1000);
        if (user.cards() == 0) {
            click(*user.editor->findChild<QPushButton*>(QStringLiteral("pushButtonAddTask")));
        }
        return user.cards() == 1;
    };
    QTRY_VERIFY(hasTask());
    if (user.card().isFolded()) {
        user.card().toggleFold();
    }
    QDateEdit& last = user.card().lastDay();
    QCOMPARE(last.date(), kToday);
    last.setFocus();
    last.setCurrentSection(QDateTimeEdit::DaySection);
    for (int day = 0; day < 6; ++day) {
        QTest::keyClick(&last, Qt::Key_Up);
    }
    QCOMPARE(last.date(), kToday.addDays(6));
}

void tst_FirstWeek::planInTheEditor(NewUser& user)
{
    ChooserAnswer answer([&](const ChooserWindow& chooser) {
        chooser.checkPrograms({0, 1, 2});
        chooser.choose();
        user.picture(*chooser.frame(), "5-chooser");
        chooser.confirm();
    });
    user.card().addPlan();
    QCOMPARE(user.card().rowCount(), 1);
    // Behind a dialog, off screen no window is at work.
    QApplication::setActiveWindow(user.editor.get());
    user.card().type(user.card().endTime(0), "18:00:00");
    user.picture(*user.editor, "6-planned");
}

void tst_FirstWeek::planByDragging(NewUser& user)
{
    user.view.showNow();
    QTRY_VERIFY(user.blocks(kToday) > 0);
    QVERIFY(user.drag(4, kToday, QTime(19, 0), true));
    QTRY_COMPARE(user.card().rowCount(), 2);
    QTRY_COMPARE(user.blocks(kToday), 2);
    user.picture(user.window, "7-dragged-in");
}

void tst_FirstWeek::start(NewUser& user)
{
    const auto& light = *user.window.findChild<air::AirLight*>();
    QVERIFY(!light.isOn());
    const auto* problems = user.window.findChild<ProblemDock*>();
    QTRY_VERIFY(problems->count() > 0);
    PromptAnswer answer(1);
    user.key(Qt::Key_F5);
    QVERIFY2(
        answer.texts().first().contains(QStringLiteral("Open problems: %1").arg(problems->count())),
        qPrintable(answer.texts().first()));
    QTRY_VERIFY(light.isOn());
    QVERIFY(user.window.statusBar()->currentMessage().startsWith(
        QStringLiteral("The schedule is on air.")));
    QVERIFY(!user.host.hasUnsavedChanges());
    QTRY_VERIFY(user.host.dispatch().state().isPlaying());
    const QStringList planned{QStringLiteral("Brand film"), QStringLiteral("City news"),
                              QStringLiteral("Closing time")};
    QTRY_VERIFY2(planned.contains(user.label("nowProgram")), qPrintable(user.label("nowProgram")));
    user.picture(user.window, "8-on-air");
}

void tst_FirstWeek::fromNothingToAWeekOnAir()
{
    QFETCH(QString, theme);
    NewUser user(theme);
    for (const auto step : {import, makeATask, planInTheEditor, planByDragging, start}) {
        step(user);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
    // It is on air to the last day of the week, and is there when it is looked at another time.
    const PlayTask task = user.manager.getgTaskMap().at(1);
    QCOMPARE(task.endDate, std::string("2026.03.17"));
    QCOMPARE(task.plans.size(), std::size_t(2));
}

TREL_TEST(tst_FirstWeek, QApplication)
#include "tst_FirstWeek.moc"
