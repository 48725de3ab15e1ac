#include "Monkey.h"

#include "Desk.h"
#include "DeskRules.h"
#include "FlightRecorder.h"
#include "Hand.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelwidgets/TipDialog.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QProgressDialog>
#include <QSizeGrip>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <array>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using trel::widgets::TipDialog;

namespace {

/// Turns inside each other, above which prompts are only answered.
constexpr int kDeepest = 8;
/// A program that ends is gone long before.
constexpr int kTurnsAtEnd = 1000;
constexpr int kMostPromptsAtEnd = 40;
/// The system hands the focus on after a window has gone; so many turns it may take.
constexpr int kMostFocusMisses = 200;
constexpr int kConsoleMSecs = 60000;
constexpr qint64 kActionMSecs = 150;

struct Key
{
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
};

const std::vector<Key>& keys()
{
    static const std::vector<Key> all = [] {
        std::vector<Key> list;
        for (const int key :
             {Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Up,       Qt::Key_Down, Qt::Key_Left,
              Qt::Key_Right,     Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
              Qt::Key_Backspace, Qt::Key_Delete,  Qt::Key_F2,       Qt::Key_F3,   Qt::Key_F4,
              Qt::Key_F5,        Qt::Key_F10,     Qt::Key_F11,      Qt::Key_Menu, Qt::Key_Escape}) {
            list.push_back({key, Qt::NoModifier, ""});
        }
        list.push_back({Qt::Key_Return, Qt::NoModifier, "\r"});
        list.push_back({Qt::Key_Space, Qt::NoModifier, " "});
        for (const int key : {Qt::Key_N, Qt::Key_D, Qt::Key_Delete, Qt::Key_Return, Qt::Key_PageUp,
                              Qt::Key_PageDown, Qt::Key_Up, Qt::Key_Down, Qt::Key_A, Qt::Key_Z,
                              Qt::Key_V, Qt::Key_X, Qt::Key_W, Qt::Key_E}) {
            list.push_back({key, Qt::ControlModifier, ""});
        }
        for (const int key : {Qt::Key_N, Qt::Key_D, Qt::Key_Delete, Qt::Key_Tab}) {
            list.push_back({key, Qt::ControlModifier | Qt::ShiftModifier, ""});
        }
        for (const int key : {Qt::Key_S, Qt::Key_P, Qt::Key_V, Qt::Key_L, Qt::Key_Down}) {
            list.push_back({key, Qt::AltModifier, ""});
        }
        return list;
    }();
    return all;
}

QString described(const QWidget& widget)
{
    return QStringLiteral("%1 '%2'").arg(QLatin1String(widget.metaObject()->className()),
                                         widget.objectName());
}

/// Entries that lead out of the desk: file dialogs are met with a hand of their own.
QList<QAction*> menuActions(const QMenuBar& bar)
{
    QList<QAction*> all;
    const QList<QAction*> menus = bar.actions();
    for (const QAction* const menu : menus) {
        all += menu->menu() ? menu->menu()->actions() : QList<QAction*>();
    }
    return all;
}

QStringList makeMedia(const QString& folder)
{
    const QDir target(folder);
    const QDir media(QStringLiteral(DEMONSTRATION "/media"));
    QStringList made;
    const QStringList names = media.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        made.append(target.filePath(name));
        QFile::copy(media.filePath(name), made.last());
    }
    const std::pair<const char*, QByteArray> others[] = {
        {"empty.mp4", {}},
        {"<b>letter.mkv", "This is a letter to a friend."},
        {"list.mp4", "#EXTM3U\n#EXTINF:-1,\nlist.mp4\n"}};
    for (const auto& [name, content] : others) {
        made.append(target.filePath(QLatin1String(name)));
        QFile file(made.last());
        if (file.open(QIODevice::WriteOnly)) {
            file.write(content);
        }
    }
    made.append(target.filePath(QStringLiteral("gone.mp4")));
    made.append(folder);
    return made;
}

} // namespace

Monkey::Monkey(Desk& desk, TestClock& clock, const TrialOptions& options, const QString& folder,
               int actions)
    : m_desk(desk)
    , m_clock(clock)
    , m_options(options)
    , m_folder(folder)
    , m_media(makeMedia(folder))
    , m_actionsLeft(actions)
{}

void Monkey::start()
{
    // With what the end of a program hangs on, for one that does not end.
    connect(qApp, &QGuiApplication::lastWindowClosed, this,
            [] { FlightRecorder::note(QStringLiteral("the last window has closed")); });
    QTimer::singleShot(0, this, &Monkey::takeTurn);
}

void Monkey::takeTurn()
{
    // First, so that a turn comes in each event loop that this one may run.
    QTimer::singleShot(0, this, &Monkey::takeTurn);
    ++m_depth;
    look();
    if (m_isEnding) {
        waitForEnd();
    } else if (!m_desk.window().isVisible()) {
        m_isEnding = true;
    } else {
        Dice dice(m_options.seed, FlightRecorder::count());
        m_clock.advance(kActionMSecs);
        const qint64 count = FlightRecorder::count();
        if (--m_actionsLeft < 0) {
            end(dice);
        } else {
            act(dice);
        }
        if (FlightRecorder::count() == count) {
            // The next one draws from other dice.
            FlightRecorder::note(QStringLiteral("nothing"));
        }
    }
    --m_depth;
}

void Monkey::look()
{
    QWidget* const modal = QApplication::activeModalWidget();
    // No system is there to hand the focus on, and a menu that has closed may have it.
    const QWidget* const active = QApplication::activeWindow();
    if ((!active || !active->isVisible()) && !QApplication::activePopupWidget()) {
        QWidget* next = modal;
        if (!next) {
            next = m_desk.editor().isVisible() ? static_cast<QWidget*>(&m_desk.editor())
                                               : &m_desk.window();
        }
        if (next->isVisible()) {
            next->activateWindow();
        }
    }
    const auto expect = [](const QString& broken) {
        if (!broken.isEmpty()) {
            FlightRecorder::fail(broken);
        }
    };
    expect(rules::brokenByPrompts());
    expect(rules::brokenByPlaces());
    if (m_depth > 1 || modal || m_isEnding || m_desk.isRefreshing()) {
        return;
    }
    expect(rules::brokenByCards(m_desk));
    const QString withoutFocus = rules::brokenByFocus();
    m_focusMisses = withoutFocus.isEmpty() ? 0 : m_focusMisses + 1;
    if (m_focusMisses > kMostFocusMisses) {
        FlightRecorder::fail(withoutFocus);
    }
}

void Monkey::act(Dice& dice)
{
    if (m_held && dice.oneIn(3)) {
        letGo();
        return;
    }
    QWidget* const modal = QApplication::activeModalWidget();
    if (auto* const dialog = qobject_cast<QFileDialog*>(modal)) {
        actInFileDialog(dice, *dialog);
    } else if (modal && (m_depth > kDeepest || !dice.oneIn(3)) &&
               !QApplication::activePopupWidget()) {
        actInPrompt(dice, *modal);
    } else if (m_depth <= kDeepest) {
        actInWindows(dice);
    }
}

void Monkey::actInPrompt(Dice& dice, QWidget& prompt)
{
    QList<QAbstractButton*> buttons;
    const auto all = prompt.findChildren<QAbstractButton*>();
    std::copy_if(
        all.begin(), all.end(), std::back_inserter(buttons),
        [](const QAbstractButton* button) { return button->isVisible() && button->isEnabled(); });
    const bool isSimple = qobject_cast<TipDialog*>(&prompt) != nullptr;
    if (isSimple && dice.oneIn(6)) {
        FlightRecorder::note(QStringLiteral("answer by Escape"));
        hand::pressKey(Qt::Key_Escape, Qt::NoModifier);
    } else if (!buttons.isEmpty() && (isSimple || dice.oneIn(4))) {
        click(dice, *dice.of(buttons));
    } else if (qobject_cast<QProgressDialog*>(&prompt)) {
        FlightRecorder::note(QStringLiteral("wait for the import"));
    } else {
        actInWindows(dice);
    }
}

void Monkey::actInFileDialog(Dice& dice, QFileDialog& dialog)
{
    auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!name || dice.oneIn(3)) {
        FlightRecorder::note(QStringLiteral("leave the file dialog"));
        dialog.reject();
        return;
    }
    QString file;
    if (dialog.acceptMode() == QFileDialog::AcceptSave) {
        file = QDir(m_folder).filePath(QStringLiteral("written%1.json").arg(dice.below(3)));
    } else if (dialog.fileMode() == QFileDialog::Directory) {
        file = m_folder;
    } else if (dialog.fileMode() == QFileDialog::ExistingFiles) {
        file = dice.of(m_media);
    } else if (dialog.nameFilters().join(QString()).contains(QStringLiteral("json"))) {
        file = QDir(m_folder).filePath(QStringLiteral("read.json"));
        writeSchedule(dice, file);
    } else {
        file = dice.oneIn(4)
                   ? dice.of(m_media)
                   : QDir(m_folder).filePath(
                         dice.of(QStringList{QStringLiteral("screen.db"), QStringLiteral("b.db")}));
    }
    FlightRecorder::note(QStringLiteral("choose file ") + file);
    name->setText(file);
    static_cast<QDialog&>(dialog).accept();
}

void Monkey::actInWindows(Dice& dice)
{
    switch (dice.below(24)) {
    case 0:
        turnWheel(dice);
        break;
    case 1:
    case 2:
    case 3:
        typeNumber(dice);
        break;
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
        pressKey(dice);
        break;
    case 9:
        openMenu(dice);
        break;
    case 10:
        changeHost(dice);
        break;
    case 11:
        if (dice.oneIn(3)) {
            letTimePass(dice);
        } else {
            turnWheel(dice);
        }
        break;
    case 12:
        if (dice.oneIn(12)) {
            changeStore(dice);
        } else {
            typeNumber(dice);
        }
        break;
    case 13:
        if (dice.oneIn(25)) {
            dropFiles(dice);
        } else if (dice.oneIn(4)) {
            runAction(dice);
        } else {
            pressKey(dice);
        }
        break;
    default:
        if (QWidget* const widget = target(dice)) {
            click(dice, *widget);
        }
        break;
    }
}

QWidget* Monkey::front(Dice& dice) const
{
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        return popup;
    }
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal && !dice.oneIn(20)) {
        return modal;
    }
    if (m_desk.editor().isVisible() && !dice.oneIn(4)) {
        return &m_desk.editor();
    }
    return &m_desk.window();
}

QWidget* Monkey::target(Dice& dice) const
{
    QWidget* const window = front(dice);
    QWidgetList seen;
    const auto all = window->findChildren<QWidget*>();
    for (QWidget* const widget : all) {
        // Fields and buttons rather than what holds them.
        const bool isUseful = widget->focusPolicy() != Qt::NoFocus ||
                              qobject_cast<QAbstractButton*>(widget) || dice.oneIn(10);
        // The size of a window is the operator's own business.
        const bool isGrip = qobject_cast<QSizeGrip*>(widget) != nullptr;
        if (widget->window() == window && isUseful && !isGrip && widget->isVisible() &&
            !widget->visibleRegion().isEmpty()) {
            seen.append(widget);
        }
    }
    return seen.isEmpty() ? window : dice.of(seen);
}

void Monkey::click(Dice& dice, QWidget& widget)
{
    const QPoint place = hand::visiblePlace(widget, dice.below(100), dice.below(100));
    const Qt::MouseButton button = dice.oneIn(12) ? Qt::RightButton : Qt::LeftButton;
    const bool isHeld = button == Qt::LeftButton && dice.oneIn(10);
    FlightRecorder::note(QStringLiteral("%1 %2 at %3,%4")
                             .arg(QLatin1String(isHeld                      ? "press"
                                                : button == Qt::RightButton ? "right click"
                                                                            : "click"),
                                  described(widget))
                             .arg(place.x())
                             .arg(place.y()));
    const QPointer<QWidget> alive(&widget);
    letGo();
    if (!alive) {
        return;
    }
    // Turns within the press let it go.
    m_held = alive;
    m_heldPlace = place;
    m_heldButton = button;
    hand::press(widget, place, button, Qt::NoModifier);
    if (!isHeld) {
        letGo();
    }
}

void Monkey::letGo()
{
    if (QWidget* const held = m_held) {
        m_held.clear();
        hand::release(*held, m_heldPlace, m_heldButton, Qt::NoModifier);
    }
}

void Monkey::pressKey(Dice& dice)
{
    const Key& key = dice.of(keys());
    FlightRecorder::note(QStringLiteral("key ") +
                         QKeySequence(static_cast<int>(key.modifiers) + key.key)
                             .toString(QKeySequence::PortableText));
    hand::pressKey(key.key, key.modifiers, QLatin1String(key.text));
    if (*key.text != '\0') {
        hand::dropTypedDate();
    }
}

void Monkey::typeNumber(Dice& dice)
{
    QString number;
    const int length = dice.between(1, 4);
    for (int i = 0; i < length; ++i) {
        number.append(QString::number(dice.below(10)));
    }
    FlightRecorder::note(QStringLiteral("type ") + number);
    hand::type(number);
    hand::dropTypedDate();
}

void Monkey::turnWheel(Dice& dice)
{
    QWidget* const widget = target(dice);
    const int delta = dice.oneIn(2) ? 120 : -120;
    FlightRecorder::note(QStringLiteral("wheel %1 on %2").arg(delta).arg(described(*widget)));
    hand::turnWheel(*widget, hand::visiblePlace(*widget, 50, 50), delta);
}

void Monkey::dropFiles(Dice& dice)
{
    QWidget& window = m_desk.editor().isVisible() && dice.oneIn(2)
                          ? static_cast<QWidget&>(m_desk.editor())
                          : m_desk.window();
    QStringList files{dice.of(m_media)};
    if (dice.oneIn(2)) {
        files.append(dice.of(m_media));
    }
    FlightRecorder::note(
        QStringLiteral("drop %1 on %2").arg(files.join(QLatin1Char(' ')), described(window)));
    hand::drop(window, window.rect().center(), files);
}

void Monkey::openMenu(Dice& dice)
{
    QMenuBar& bar = *m_desk.window().menuBar();
    const QList<QAction*> menus = bar.actions();
    const QRect place = bar.actionGeometry(dice.of(menus));
    FlightRecorder::note(QStringLiteral("menu at %1").arg(place.x()));
    hand::press(bar, place.center(), Qt::LeftButton, Qt::NoModifier);
    hand::release(bar, place.center(), Qt::LeftButton, Qt::NoModifier);
}

void Monkey::runAction(Dice& dice)
{
    // What a modal window blocks cannot be reached.
    if (QApplication::activeModalWidget()) {
        return;
    }
    const QList<QAction*> actions = menuActions(*m_desk.window().menuBar());
    QAction* const action = dice.of(actions);
    if (action->shortcut() == QKeySequence(QKeySequence::Quit)) {
        return;
    }
    FlightRecorder::note(QStringLiteral("menu entry ") + action->text());
    action->trigger();
}

void Monkey::runConsole(const QStringList& arguments)
{
    FlightRecorder::note(QStringLiteral("console: ") + arguments.join(QLatin1Char(' ')));
    QProcess console;
    console.start(QStringLiteral(SCHEDULECTL),
                  QStringList{QStringLiteral("--database"), m_desk.database()} + arguments);
    if (!console.waitForFinished(kConsoleMSecs)) {
        FlightRecorder::fail(QStringLiteral("the console does not end"));
    }
}

void Monkey::writeSchedule(Dice& dice, const QString& file) const
{
    std::map<int, PlayTask> tasks;
    const int count = dice.between(0, 4);
    for (int i = 0; i < count; ++i) {
        PlayTask task;
        task.id = dice.between(1, 9);
        const QDate first = QDate(2024, 3, 1).addDays(dice.below(40));
        task.startDate = first.toString(kDateFormat).toStdString();
        task.endDate = first.addDays(dice.below(30)).toString(kDateFormat).toStdString();
        const int plans = dice.below(5);
        for (int id = 1; id <= plans; ++id) {
            PlayPlan plan;
            plan.id = id;
            plan.mode = dice.oneIn(2) ? TimeMode : FrequencyMode;
            const QTime start(dice.below(20), dice.below(60));
            plan.startTime = start.toString(kTimeFormat).toStdString();
            plan.endTime = start.addSecs(dice.below(3600)).toString(kTimeFormat).toStdString();
            plan.times = dice.between(1, 20);
            plan.weeks = dice.oneIn(2) ? "0" : "1,3,5";
            plan.programs.resize(static_cast<std::size_t>(dice.below(4)));
            for (struProgInfo& entry : plan.programs) {
                entry.progIndex = dice.between(1, 8);
                entry.playCount = dice.between(1, 3);
            }
            task.plans.push_back(plan);
        }
        tasks[task.id] = task;
    }
    if (const Fault fault = writeScheduleFile(file, tasks)) {
        FlightRecorder::fail(englishSentence(fault));
    }
}

void Monkey::changeStore(Dice& dice)
{
    const QString file = QDir(m_folder).filePath(QStringLiteral("elsewhere.json"));
    switch (dice.below(3)) {
    case 0:
        writeSchedule(dice, file);
        runConsole({QStringLiteral("import-schedule"), file});
        break;
    case 1:
        runConsole({QStringLiteral("remove-program"), QString::number(dice.between(1, 12))});
        break;
    default:
        runConsole({QStringLiteral("import"), dice.of(m_media)});
        break;
    }
}

void Monkey::changeHost(Dice& dice)
{
    switch (dice.below(8)) {
    case 0:
    case 1:
        FlightRecorder::note(QStringLiteral("host: clear and initialize"));
        m_desk.editor().clearAndInitialize();
        break;
    case 2:
    case 3:
        FlightRecorder::note(QStringLiteral("host: show the editor"));
        m_desk.window().showEditor();
        break;
    case 4: {
        const QStringList names = m_desk.languages().names();
        const QString name = dice.of(names);
        FlightRecorder::note(QStringLiteral("host: language ") + name);
        m_desk.languages().select(name);
        break;
    }
    case 5: {
        const QStringList names = Themes::names();
        const QString name = dice.of(names);
        FlightRecorder::note(QStringLiteral("host: theme ") + name);
        m_desk.themes().select(name);
        break;
    }
    case 6: {
        const QString gone = m_media.first();
        const QString away = gone + QStringLiteral(".away");
        FlightRecorder::note(QStringLiteral("host: a file comes or goes"));
        if (!QFile::rename(gone, away)) {
            QFile::rename(away, gone);
        }
        break;
    }
    default:
        if (dice.oneIn(4)) {
            FlightRecorder::note(QStringLiteral("host: close the editor"));
            m_desk.editor().close();
        } else {
            FlightRecorder::note(QStringLiteral("host: remove a program"));
            ScheduleHost::instance().removeProgram(dice.between(1, 12));
        }
        break;
    }
}

void Monkey::letTimePass(Dice& dice)
{
    const int seconds = dice.of(std::vector<int>{1, 30, 600, 7200, 86400});
    FlightRecorder::note(QStringLiteral("%1 seconds pass").arg(seconds));
    constexpr int kMostBySeconds = 600;
    if (seconds <= kMostBySeconds) {
        m_clock.advance(qint64(seconds) * 1000);
    } else {
        // As after the sleep of the machine, and not with each of the seconds.
        m_clock.set(m_clock.now().addSecs(seconds));
    }
}

void Monkey::end(Dice& dice)
{
    // A file that was begun to be saved may keep the window; then it is tried again.
    m_actionsLeft = 0;
    if (dice.oneIn(4)) {
        // As the system ends it: no question is asked, whatever stands open.
        FlightRecorder::note(QStringLiteral("end: quit"));
        m_isEnding = true;
        QCoreApplication::quit();
        return;
    }
    QWidget* const modal = QApplication::activeModalWidget();
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        FlightRecorder::note(QStringLiteral("end: close a menu"));
        popup->close();
    } else if (auto* const dialog = qobject_cast<QFileDialog*>(modal)) {
        FlightRecorder::note(QStringLiteral("end: leave the file dialog"));
        dialog->reject();
    } else if (modal) {
        actInPrompt(dice, *modal);
    } else {
        FlightRecorder::note(QStringLiteral("end: close the window"));
        m_desk.window().close();
    }
}

/// Once, so that a program that does not end says which windows keep it.
void Monkey::tellWhatKeepsIt()
{
    if (++m_turnsAtEnd != kTurnsAtEnd) {
        return;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->isVisible()) {
            FlightRecorder::note(
                QStringLiteral("still there: %1 '%2'%3")
                    .arg(QLatin1String(window->metaObject()->className()), window->objectName(),
                         window->parentWidget() ? QStringLiteral(" of another") : QString()));
        }
    }
    // One of the system's without a widget keeps it as well.
    const QWindowList places = QGuiApplication::topLevelWindows();
    for (const QWindow* place : places) {
        if (place->isVisible()) {
            FlightRecorder::note(
                QStringLiteral("still open: %1 '%2', type %3%4")
                    .arg(QLatin1String(place->metaObject()->className()), place->objectName())
                    .arg(place->type())
                    .arg(place->transientParent() ? QStringLiteral(" of another") : QString()));
        }
    }
}

void Monkey::waitForEnd()
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (!modal) {
        tellWhatKeepsIt();
        return;
    }
    if (++m_promptsAtEnd > kMostPromptsAtEnd) {
        FlightRecorder::fail(QStringLiteral("it asks again and again instead of ending"));
    }
    FlightRecorder::note(QStringLiteral("answer at the end"));
    if (auto* const dialog = qobject_cast<QDialog*>(modal)) {
        dialog->reject();
    }
}
