#include "CutTexts.h"
#include "EditorMenus.h"
#include "FileDialogAnswer.h"
#include "HostFixture.h"
#include "SaveRescue.h"
#include "card/PlanColumns.h"
#include "draft/DraftKeeper.h"
#include "merge/ConflictsDialog.h"
#include "support/PlatformNotes.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelprogramschedule/merge/ScheduleMerge.h"
#include "week/WeekPage.h"
#include "week/WeekPanel.h"
#include "week/WeekView.h"
#include "week/moves/CopyDayMenu.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <utility>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

constexpr char kNoDraft[] = "a letter";
constexpr char kFormerFile[] = "former.json";
/// More than any question has widgets.
constexpr int kMostSteps = 40;

/// The windows on the demonstration, with all that an operator can lose in them.
struct PromptFixture : HostFixture
{
    PromptFixture()
    {
        window.show();
        showDemonstration();
    }

    EditorMenus& menus() const { return *window.findChild<EditorMenus*>(); }

    void edit() const
    {
        PlayTask task = manager.getAllTask().begin()->second;
        task.endDate = "2050.01.01";
        manager.addTask(task);
        QVERIFY(host.hasUnsavedChanges());
    }

    /// Leaves changes as a program leaves them that ends without a save.
    void leaveDraft()
    {
        edit();
        QVERIFY(window.drafts().keep());
        window.openDatabase(database);
    }

    QString draft() const
    {
        const QStringList files =
            QDir(folder.path()).entryList({QStringLiteral("*.unsaved-*")}, QDir::Files);
        return files.isEmpty() ? QString() : folder.filePath(files.first());
    }

    /// Another desk empties the schedule, and saves it.
    void saveElsewhere() const
    {
        const QString file = folder.filePath(QStringLiteral("theirs.json"));
        QVERIFY(!writeScheduleFile(file, {}));
        QCOMPARE(QProcess::execute(QStringLiteral(SCHEDULECTL),
                                   {QStringLiteral("import-schedule"), file,
                                    QStringLiteral("--database"), database}),
                 0);
    }

    /// Reads a schedule without tasks from a file.
    void readEmptySchedule() const
    {
        const QString file = folder.filePath(QStringLiteral("empty.json"));
        QVERIFY(!writeScheduleFile(file, {}));
        answerFileDialog(file);
        menus().importSchedule()->trigger();
    }

    /// Does something with the newest version, which is chosen at first.
    void withVersion(const char* button) const
    {
        menus().versions()->trigger();
        const auto* versions = window.findChild<QDialog*>(QStringLiteral("versionsWindow"));
        const auto* table = versions->findChild<QTableView*>(QStringLiteral("versionTable"));
        QTRY_VERIFY(table->currentIndex().isValid());
        auto* pressed = versions->findChild<QPushButton*>(QLatin1String(button));
        QTRY_VERIFY(pressed->isEnabled());
        pressed->click();
    }

    /// Writes the schedule to a file that there is, and does not choose again where that is not
    /// meant.
    void writeOverFile() const
    {
        const QString file = folder.filePath(QLatin1String(kFormerFile));
        QFile former(file);
        QVERIFY(former.open(QIODevice::WriteOnly) && former.write(kNoDraft) > 0);
        former.close();
        int dialogs = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&dialogs, file] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                return;
            }
            if (++dialogs > 1) {
                dialog->reject();
                return;
            }
            auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(file);
            QTest::keyClick(name, Qt::Key_Return);
        });
        timer.start(10);
        menus().exportSchedule()->trigger();
        QCOMPARE(dialogs, 2);
    }

    /// A line for each thing that somebody could miss.
    QStringList things() const
    {
        QStringList lines;
        for (const auto& [id, task] : manager.getAllTask()) {
            lines.append(QStringLiteral("task %1").arg(id));
            for (const PlayPlan& plan : task.plans) {
                lines.append(QStringLiteral("plan %1 of task %2").arg(plan.id).arg(id));
            }
        }
        for (const auto& [index, program] : *host.catalogue()) {
            lines.append(QStringLiteral("program %1").arg(index));
        }
        if (host.started()) {
            lines.append(QStringLiteral("what is in effect"));
        }
        QFile left(draft());
        if (left.open(QIODevice::ReadOnly) && left.readAll() == kNoDraft) {
            lines.append(QStringLiteral("a draft that cannot be read"));
        }
        QFile former(folder.filePath(QLatin1String(kFormerFile)));
        if (former.open(QIODevice::ReadOnly) && former.readAll() == kNoDraft) {
            lines.append(QStringLiteral("a file"));
        }
        return lines;
    }

    const NoPlatformNotes quiet;
};

using Provoke = void (*)(PromptFixture&);

struct Case
{
    const char* name;
    /// The button for what is asked about: its name, or none for the one of a box of buttons.
    const char* primary;
    Provoke provoke;
};

const Case kCases[] = {
    {"a plan is deleted", "tipButton1",
     [](PromptFixture& fixture) {
         fixture.cell(0, DeleteColumn)->findChild<QAbstractButton*>()->click();
     }},
    {"a task is deleted", "tipButton1",
     [](PromptFixture& fixture) {
         fixture.firstCard()
             ->findChild<QAbstractButton*>(QStringLiteral("pushButtonDelete"))
             ->click();
     }},
    {"programs are removed", "tipButton1",
     [](PromptFixture& fixture) {
         fixture.window.findChild<QTableView*>(QStringLiteral("programTable"))->selectAll();
         fixture.menus().removePrograms()->trigger();
     }},
    {"a file replaces all", "tipButton1",
     [](PromptFixture& fixture) { fixture.readEmptySchedule(); }},
    {"a file replaces what is not saved", "tipButton1",
     [](PromptFixture& fixture) {
         fixture.edit();
         fixture.readEmptySchedule();
     }},
    {"a file is written over", "tipButton1",
     [](PromptFixture& fixture) { fixture.writeOverFile(); }},
    {"the schedule is started", "tipButton1",
     [](PromptFixture& fixture) { fixture.menus().startSchedule()->trigger(); }},
    {"the schedule is stopped", "tipButton1",
     [](PromptFixture& fixture) {
         QVERIFY(fixture.host.startSchedule());
         fixture.menus().stopSchedule()->trigger();
     }},
    {"the window is closed", "tipButton1",
     [](PromptFixture& fixture) {
         fixture.edit();
         fixture.window.close();
     }},
    {"a draft was left", "answer1",
     [](PromptFixture& fixture) {
         fixture.leaveDraft();
         fixture.window.offerDrafts();
     }},
    {"a draft cannot be read", "tipButton1",
     [](PromptFixture& fixture) {
         fixture.leaveDraft();
         QFile file(fixture.draft());
         QVERIFY(file.open(QIODevice::WriteOnly) && file.write(kNoDraft) > 0);
         file.close();
         fixture.window.offerDrafts();
     }},
    {"a save is refused", "tipButton1",
     [](PromptFixture& fixture) {
         const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
         fixture.edit();
         const QFile::Permissions former = QFile::permissions(fixture.database);
         QVERIFY(QFile::setPermissions(fixture.database, QFile::ReadOwner));
         fixture.manager.save();
         QVERIFY(QFile::setPermissions(fixture.database, former));
     }},
    {"another desk has saved", "answer1",
     [](PromptFixture& fixture) {
         const SaveRescue rescue(fixture.host, fixture.window.drafts(), &fixture.window);
         fixture.edit();
         fixture.saveElsewhere();
         fixture.manager.save();
     }},
    {"a version is restored", "tipButton1",
     [](PromptFixture& fixture) { fixture.withVersion("versionRestoreButton"); }},
    {"a version is named", nullptr,
     [](PromptFixture& fixture) { fixture.withVersion("versionNameButton"); }},
    {"an address is asked for", "addressOpen",
     [](PromptFixture& fixture) { fixture.menus().openFromServer()->trigger(); }},
    {"a day is copied", "copyDayConfirm",
     [](PromptFixture& fixture) {
         const auto* view = fixture.window.findChild<week::WeekPage*>()->panel()->view();
         view->findChild<week::CopyDayMenu*>()->ask(view->firstDay());
     }},
    {"two desks are merged", "mergeChosen",
     [](PromptFixture& fixture) {
         const ScheduleMerge::Tasks base = fixture.manager.getAllTask();
         ScheduleMerge::Tasks mine = base;
         ScheduleMerge::Tasks theirs = base;
         mine.begin()->second.endDate = "2050.01.01";
         theirs.begin()->second.endDate = "2051.01.01";
         const ScheduleMerge merge(base, theirs, mine);
         merge::ConflictsDialog(merge, *fixture.host.catalogue(), {}, &fixture.window).ask();
     }},
};

/// What is no prompt like all others, whose own test holds them, or comes from a window that has to
/// know what is chosen in it.
bool isSpecial(const Case& one)
{
    const QByteArray primary(one.primary);
    return primary != "tipButton1" || QByteArray(one.name).contains("version");
}

/// Looks at the first question that comes up while it lives, and closes those after it.
class FirstQuestion : public QObject
{
public:
    explicit FirstQuestion(std::function<void(QWidget&)> look)
        : m_look(std::move(look))
    {
        connect(&m_timer, &QTimer::timeout, this, &FirstQuestion::meet);
        m_timer.start(0);
    }

    bool isMet() const { return m_isMet; }
    static bool isClosed() { return QApplication::activeModalWidget() == nullptr; }

private:
    void meet()
    {
        QWidget* const question = QApplication::activeModalWidget();
        if (question == nullptr || !question->isVisible() ||
            qobject_cast<QFileDialog*>(question) != nullptr) {
            return;
        }
        if (m_isMet) {
            question->close();
            return;
        }
        m_isMet = true;
        m_look(*question);
    }

    QTimer m_timer;
    std::function<void(QWidget&)> m_look;
    bool m_isMet = false;
};

QRect placeIn(const QWidget& window, const QWidget& part)
{
    return {part.mapTo(&window, QPoint()), part.size()};
}

/// The text of the button that ends the row in which one stands; with two rows none does.
QString endOfRow(const QWidget& window, const QWidget& primary)
{
    const bool isRightToLeft = window.layoutDirection() == Qt::RightToLeft;
    const QRect row = placeIn(window, primary);
    const QPushButton* last = nullptr;
    const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        const QRect place = placeIn(window, *button);
        if (!button->isVisible() || place.bottom() < row.top() || place.top() > row.bottom()) {
            continue;
        }
        const int end = last == nullptr ? 0 : placeIn(window, *last).center().x();
        const bool isFurther = isRightToLeft ? place.center().x() < end : place.center().x() > end;
        last = last == nullptr || isFurther ? button : last;
    }
    return last == nullptr ? QString() : last->text();
}

/// The buttons that look as what is most likely wanted.
QStringList prominentIn(const QWidget& window)
{
    QStringList texts;
    const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        if (button->isVisible() &&
            button->property("style").toString() == QLatin1String("general")) {
            texts.append(button->text());
        }
    }
    return texts;
}

/// Whether all that is there to be read in a question has been filled.
bool hasNoEmptyText(const QWidget& window)
{
    const QList<QPlainTextEdit*> texts = window.findChildren<QPlainTextEdit*>();
    return std::none_of(texts.begin(), texts.end(),
                        [](const QPlainTextEdit* text) { return text->toPlainText().isEmpty(); });
}

/// The buttons whose text comes close to their edges.
QStringList tightIn(const QWidget& window)
{
    constexpr int kLeastBeside = 8;
    QStringList texts;
    const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        const int width = button->fontMetrics().horizontalAdvance(button->text());
        if (button->isVisible() && !button->text().isEmpty() &&
            button->width() < width + 2 * kLeastBeside) {
            texts.append(button->text());
        }
    }
    return texts;
}

QStringList otherLanguages()
{
    QStringList languages =
        QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")}, QDir::Files);
    for (QString& language : languages) {
        language.chop(3);
    }
    languages.removeOne(QStringLiteral("en_US"));
    return languages;
}

/// The title of a question and what stands on its buttons, in the order of their names.
QStringList captionsOf(const QWidget& window)
{
    QStringList captions{window.windowTitle()};
    const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        if (button->isVisible() && !button->text().isEmpty()) {
            captions.append(button->text());
        }
    }
    return captions;
}

/// What a language says in the same letters.
bool isSameAsInEnglish(const QString& language, const QString& caption)
{
    const QStringList same{QStringLiteral("fr_FR Question"), QStringLiteral("de_DE Version 0"),
                           QStringLiteral("fr_FR Version 0")};
    return caption == QLatin1String("OK") || same.contains(language + QLatin1Char(' ') + caption);
}

/// Asks in a language, and closes the question. The faults are texts without room.
void askIn(PromptFixture& fixture, const QString& language, const Case& asked,
           QStringList& captions, QStringList& faults)
{
    fixture.languages.select(language);
    QCoreApplication::processEvents();
    const FirstQuestion question([&](QWidget& window) {
        captions = captionsOf(window);
        faults = cutIn(window) + tightIn(window);
        constexpr int kButtonsOfTitle = 60;
        if (window.fontMetrics().horizontalAdvance(captions.first()) + kButtonsOfTitle >
            window.width()) {
            faults.append(captions.first());
        }
        window.close();
    });
    asked.provoke(fixture);
    QTRY_VERIFY(question.isMet());
    QTRY_VERIFY(question.isClosed());
}

} // namespace

/// All questions of host and editor: what is asked about is done by the button that ends the row
/// and stands out, Enter takes nothing away, each has a title of its own, and its captions are
/// there as a whole in every language.
class tst_PromptButtons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    void whatIsMeantEndsTheRow_data();
    void whatIsMeantEndsTheRow();
    void tabGoesFromTheStartOfTheRow_data() { addCases(isSpecial); }
    void tabGoesFromTheStartOfTheRow();
    void enterTakesNothingAway_data()
    {
        addCases([](const Case& /*any*/) { return true; });
    }
    void enterTakesNothingAway();
    void captionsFollowTheLanguage_data()
    {
        addCases([](const Case& /*any*/) { return true; });
    }
    void captionsFollowTheLanguage();

private:
    static void addCases(bool (*isWanted)(const Case&));
};

void tst_PromptButtons::whatIsMeantEndsTheRow_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("isRightToLeft");
    int index = 0;
    for (const Case& one : kCases) {
        QTest::addRow("%s", one.name) << index << false;
        if (isSpecial(one)) {
            QTest::addRow("%s, right to left", one.name) << index << true;
        }
        ++index;
    }
}

void tst_PromptButtons::whatIsMeantEndsTheRow()
{
    QFETCH(int, index);
    QFETCH(bool, isRightToLeft);
    PromptFixture fixture;
    if (isRightToLeft) {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
    QString found;
    QString wanted;
    QStringList prominent;
    QStringList tight;
    bool isFilled = false;
    QString title;
    const FirstQuestion question([&](QWidget& window) {
        title = window.windowTitle();
        const char* const name = kCases[index].primary;
        const QWidget* const primary =
            name != nullptr ? window.findChild<QWidget*>(QLatin1String(name))
                            : window.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        if (primary != nullptr) {
            wanted = primary->property("text").toString();
            found = endOfRow(window, *primary);
            prominent = prominentIn(window);
            tight = tightIn(window);
            isFilled = hasNoEmptyText(window);
        }
        window.close();
    });
    kCases[index].provoke(fixture);
    QTRY_VERIFY(question.isMet());
    QTRY_VERIFY(question.isClosed());
    QVERIFY(!wanted.isEmpty());
    QCOMPARE(found, wanted);
    QCOMPARE(prominent, QStringList{wanted});
    QCOMPARE(tight, QStringList());
    QVERIFY(isFilled);
    // Who hears the title alone knows that there is another window.
    QVERIFY(!title.isEmpty());
    QVERIFY(title != fixture.window.windowTitle() && title != fixture.editor->windowTitle());
}

void tst_PromptButtons::addCases(bool (*isWanted)(const Case&))
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Case& one : kCases) {
        if (isWanted(one)) {
            QTest::newRow(one.name) << index;
        }
        ++index;
    }
}

/// Pressed, and back to where it began. What is no button comes before them.
void tst_PromptButtons::tabGoesFromTheStartOfTheRow()
{
    QFETCH(int, index);
    PromptFixture fixture;
    QList<const QWidget*> reached;
    QList<QPair<int, int>> places;
    QStringList names;
    const FirstQuestion question([&](QWidget& window) {
        for (int step = 0; step < kMostSteps; ++step) {
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            if (reached.contains(window.focusWidget())) {
                break;
            }
            reached.append(window.focusWidget());
        }
        const auto isButton = [](const QWidget* widget) {
            return qobject_cast<const QPushButton*>(widget) != nullptr;
        };
        std::rotate(reached.begin(), std::find_if_not(reached.begin(), reached.end(), isButton),
                    reached.end());
        for (const QWidget* widget : qAsConst(reached)) {
            names.append(widget->objectName());
            if (isButton(widget)) {
                const QPoint place = placeIn(window, *widget).center();
                places.append({place.y(), place.x()});
            }
        }
        if (places.size() == reached.size()) {
            // Nothing but buttons: around from wherever it began.
            std::rotate(places.begin(), std::min_element(places.begin(), places.end()),
                        places.end());
        }
        window.close();
    });
    kCases[index].provoke(fixture);
    QTRY_VERIFY(question.isMet());
    QTRY_VERIFY(question.isClosed());
    QVERIFY(!places.isEmpty());
    QVERIFY2(std::is_sorted(places.begin(), places.end()),
             qPrintable(names.join(QLatin1Char(' '))));
}

void tst_PromptButtons::enterTakesNothingAway()
{
    QFETCH(int, index);
    PromptFixture fixture;
    QStringList before;
    const FirstQuestion question([&](QWidget& window) {
        before = fixture.things();
        QWidget* const focused = window.focusWidget();
        QTest::keyClick(focused != nullptr ? focused : &window, Qt::Key_Return);
    });
    kCases[index].provoke(fixture);
    QTRY_VERIFY(question.isMet());
    QTRY_VERIFY(question.isClosed());
    QVERIFY(before.size() > 10);
    const QStringList after = fixture.things();
    for (const QString& thing : qAsConst(before)) {
        QVERIFY2(after.contains(thing), qPrintable(thing));
    }
}

void tst_PromptButtons::captionsFollowTheLanguage()
{
    QFETCH(int, index);
    QStringList english;
    QStringList faults;
    PromptFixture fixture;
    askIn(fixture, QStringLiteral("en_US"), kCases[index], english, faults);
    QVERIFY(english.size() > 2);
    QCOMPARE(faults, QStringList());
    const QStringList languages = otherLanguages();
    QCOMPARE(languages.size(), 9);
    for (const QString& language : languages) {
        QStringList captions;
        askIn(fixture, language, kCases[index], captions, faults);
        QVERIFY2(faults.isEmpty(), qPrintable(language + QLatin1Char(' ') + faults.join(u'|')));
        QCOMPARE(captions.size(), english.size());
        for (const QString& caption : qAsConst(captions)) {
            QVERIFY2(!english.contains(caption) || isSameAsInEnglish(language, caption),
                     qPrintable(language + QLatin1Char(' ') + caption));
        }
    }
}

TREL_TEST(tst_PromptButtons, QApplication)
#include "tst_PromptButtons.moc"
