#include "undo/EditHistory.h"

#include "HostPrompts.h"
#include "follow/EditedSchedule.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "undo/EditCommand.h"
#include "undo/EditWords.h"
#include "undo/ListAtRest.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <memory>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::undo {

namespace {

follow::SharedTask workingTask(int taskId)
{
    const auto& tasks = ScheduleHost::instance().workingSet();
    const auto task = tasks.find(taskId);
    return task == tasks.end() ? nullptr : std::make_shared<const PlayTask>(task->second);
}

std::map<int, follow::SharedTask> shared(const std::map<int, PlayTask>& tasks)
{
    std::map<int, follow::SharedTask> made;
    for (const auto& [id, task] : tasks) {
        made.emplace_hint(made.end(), id, std::make_shared<const PlayTask>(task));
    }
    return made;
}

/// Entries go bad when their program leaves the catalog, which is no save.
follow::SharedTask withSoundEntries(const follow::SharedTask& task)
{
    if (!task) {
        return nullptr;
    }
    auto sound = std::make_shared<PlayTask>(*task);
    for (PlayPlan& plan : sound->plans) {
        for (struProgInfo& entry : plan.programs) {
            entry.isInvalid = false;
        }
    }
    return sound;
}

/// The keys of the menu, which a field would take for its own text.
bool isOfHistory(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    return event.key() == Qt::Key_Z &&
           (held == Qt::ControlModifier || held == (Qt::ControlModifier | Qt::ShiftModifier));
}

} // namespace

EditHistory::EditHistory(follow::EditedSchedule& edited, scheduleControlUI& editor, QObject* parent)
    : QObject(parent)
    , m_editor(editor)
{
    m_known = edited.everything().tasks;
    m_lastSaved = m_known;
    connect(&edited, &follow::EditedSchedule::edited, this, &EditHistory::take);
    connect(&ScheduleHost::instance(), &ScheduleHost::storedSetChanged, this,
            &EditHistory::markSaved);
    // Both behind the list, which does as it is told before this hears of it. Between the two the
    // working set is reset, and pending events are handled.
    connect(&editor, &scheduleControlUI::sigclearPlanList, this, [this] {
        catchUp();
        m_isReadAgain = true;
    });
    connect(&editor, &scheduleControlUI::signalUpdatePlanList, this, [this] {
        m_isReadAgain = true;
        catchUp();
        m_isReadAgain = false;
        m_openedNow.reset();
    });
    connect(&ScheduleHost::instance(), &ScheduleHost::catalogueChanged, this,
            [this] { ++m_catalogue; });
    connect(&m_stack, &QUndoStack::indexChanged, this, &EditHistory::showWhatWasPut);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { leaveKeysTo(now); });
    editor.installEventFilter(this);
    setAtWork(editor.isVisible());
}

EditHistory::~EditHistory()
{
    // Its commands refer to what goes before it.
    m_stack.disconnect(this);
    m_stack.clear();
}

void EditHistory::clear()
{
    m_known = shared(ScheduleHost::instance().workingSet());
    m_lastSaved = m_known;
    m_saved = {0};
    m_opened.clear();
    m_openedNow.reset();
    m_lastNumber = 0;
    m_stack.clear();
    emit changed();
}

const EditCommand& EditHistory::step(int index) const
{
    return static_cast<const EditCommand&>(*m_stack.command(index));
}

QString EditHistory::name(int step) const
{
    const EditCommand& command = this->step(step);
    return EditWords::name(command.field(), command.edits(), m_locale);
}

void EditHistory::setLanguage(const QLocale& locale)
{
    m_locale = locale;
    emit changed();
}

int EditHistory::stateNumber(int steps) const
{
    return steps == 0 ? 0 : step(steps - 1).number();
}

bool EditHistory::isSaved(int steps) const
{
    return m_saved.count(stateNumber(steps)) > 0;
}

bool EditHistory::isOpened(int steps) const
{
    return m_opened.count(stateNumber(steps)) > 0;
}

void EditHistory::take(const follow::ScheduleEdits& edits)
{
    TaskEdits step;
    for (const auto& [id, task] : edits.tasks) {
        follow::SharedTask before = std::exchange(m_known[id], task);
        if (!isSameToOperator(before, task)) {
            step.push_back({id, std::move(before), task});
        }
        if (!task) {
            m_known.erase(id);
        }
    }
    add(std::move(step));
}

void EditHistory::catchUp()
{
    std::set<int> ids;
    for (const auto& known : m_known) {
        ids.insert(ids.end(), known.first);
    }
    for (const auto& working : ScheduleHost::instance().workingSet()) {
        ids.insert(working.first);
    }
    TaskEdits step;
    for (const int id : ids) {
        follow::SharedTask now = workingTask(id);
        const auto known = m_known.find(id);
        follow::SharedTask before = known == m_known.end() ? nullptr : known->second;
        if (isSameToOperator(before, now)) {
            continue;
        }
        if (now) {
            m_known[id] = now;
        } else {
            m_known.erase(id);
        }
        step.push_back({id, std::move(before), std::move(now)});
    }
    add(std::move(step));
}

void EditHistory::add(TaskEdits edits)
{
    if (edits.empty()) {
        return;
    }
    const EditedField field = fieldOf(edits);
    const auto put = [this, catalogue = m_catalogue](int taskId, const follow::SharedTask& task) {
        this->put(taskId, task, catalogue);
    };
    // What has a mark stays the state that it was.
    const auto joined = isSaved(index()) || isOpened(index()) ? EditCommand::Joined::Never
                                                              : EditCommand::Joined::ToSameField;
    m_stack.push(new EditCommand(put, std::move(edits), field, ++m_lastNumber, joined));
    if (m_isReadAgain) {
        markSaved();
        if (m_openedNow) {
            m_opened.erase(*m_openedNow);
            markOpened();
        }
    }
}

EditedField EditHistory::fieldOf(const TaskEdits& edits) const
{
    if (m_isMerged) {
        EditedField field;
        field.kind = EditKind::SavedElsewhere;
        return field;
    }
    return m_isReadAgain ? fieldOfReading(edits) : editedField(edits);
}

EditedField EditHistory::fieldOfReading(const TaskEdits& edits) const
{
    const bool isOwn = std::all_of(edits.begin(), edits.end(), [this](const TaskEdit& edit) {
        const auto saved = m_lastSaved.find(edit.taskId);
        return isSameToOperator(
            withSoundEntries(edit.after),
            withSoundEntries(saved == m_lastSaved.end() ? nullptr : saved->second));
    });
    EditedField field;
    field.kind = isOwn ? EditKind::ReadAgain : EditKind::SavedElsewhere;
    return field;
}

void EditHistory::beginMerge()
{
    catchUp();
    m_isMerged = true;
}

void EditHistory::endMerge(const std::map<int, PlayTask>& saved)
{
    catchUp();
    m_isMerged = false;
    // Or what is read again later would be taken for a save of another program once more.
    m_lastSaved = shared(saved);
}

void EditHistory::markSaved()
{
    catchUp();
    if (ScheduleHost::instance().hasUnsavedChanges()) {
        return;
    }
    m_lastSaved = m_known;
    m_saved.insert(stateNumber(index()));
    emit changed();
}

void EditHistory::markOpened()
{
    const int state = stateNumber(index());
    m_openedNow.reset();
    if (m_opened.insert(state).second) {
        m_openedNow = state;
    }
    emit changed();
}

void EditHistory::put(int taskId, const follow::SharedTask& task, int catalogue)
{
    scheduleManage& service = scheduleManage::getInstance();
    if (!task) {
        service.deleteTask(taskId);
    } else if (catalogue == m_catalogue) {
        // To the letter: the end of a plan that was just copied need not be the one that follows.
        service.addTask(*task);
    } else {
        ScheduleHost::instance().restoreTask(*task);
    }
    if (follow::SharedTask now = workingTask(taskId)) {
        m_known[taskId] = std::move(now);
    } else {
        m_known.erase(taskId);
    }
    m_due.insert(taskId);
}

void EditHistory::showWhatWasPut()
{
    const QPointer<EditHistory> self(this);
    for (const int taskId : std::exchange(m_due, {})) {
        m_editor.slotShowTask(taskId);
        if (!self) {
            return;
        }
    }
    emit changed();
}

bool EditHistory::begin()
{
    const QPointer<EditHistory> self(this);
    const QWidget* const prompt = QApplication::activeModalWidget();
    if (!m_isAtWork || (prompt && prompt != &m_editor)) {
        return false;
    }
    auto* const field = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget());
    if (field && m_editor.isAncestorOf(field)) {
        field->interpretText();
    }
    // What was typed may have been refused, and anything may have happened until that was read.
    if (!self || !m_isAtWork) {
        return false;
    }
    catchUp();
    return true;
}

void EditHistory::undo()
{
    if (begin()) {
        walkTo(index() - 1);
    }
}

void EditHistory::redo()
{
    if (begin()) {
        walkTo(index() + 1);
    }
}

void EditHistory::goTo(int steps)
{
    if (begin()) {
        walkTo(steps);
    }
}

void EditHistory::walkTo(int steps)
{
    if (steps < 0 || steps > count()) {
        return;
    }
    const QPointer<EditHistory> self(this);
    const int state = stateNumber(index());
    // While a question stands, anything may happen.
    if (mayWalkTo(steps) && self && m_isAtWork && stateNumber(index()) == state) {
        moveTo(steps);
    }
}

bool EditHistory::mayWalkTo(int steps) const
{
    std::set<int> tasks;
    for (int i = steps; i < index(); ++i) {
        if (step(i).field().kind != EditKind::SavedElsewhere) {
            continue;
        }
        for (const TaskEdit& edit : step(i).edits()) {
            tasks.insert(edit.taskId);
        }
    }
    return tasks.empty() || prompts::confirmLoss(EditWords::takingBackOfOther(tasks),
                                                 EditWords::takeBack(), EditWords::leave());
}

void EditHistory::moveTo(int steps)
{
    std::set<int> tasks;
    for (int i = std::min(steps, index()); i < std::max(steps, index()); ++i) {
        for (const TaskEdit& edit : step(i).edits()) {
            tasks.insert(edit.taskId);
        }
    }
    const ListAtRest rest(m_editor, tasks.size());
    m_stack.setIndex(steps);
}

void EditHistory::setAtWork(bool isAtWork)
{
    m_isAtWork = isAtWork;
    emit changed();
}

void EditHistory::leaveKeysTo(QWidget* field)
{
    if (m_field && m_field != &m_editor) {
        m_field->removeEventFilter(this);
    }
    m_field = field && m_editor.isAncestorOf(field) ? field : nullptr;
    if (m_field) {
        m_field->installEventFilter(this);
    }
}

bool EditHistory::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_editor && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
        setAtWork(event->type() == QEvent::Show);
        if (event->type() == QEvent::Show && !event->spontaneous()) {
            markOpened();
        }
    }
    if (event->type() == QEvent::ShortcutOverride && watched == m_field &&
        isOfHistory(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace trel::desktop::undo
