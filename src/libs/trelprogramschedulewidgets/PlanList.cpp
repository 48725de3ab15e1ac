#include "PlanList.h"

#include "PlanTaskWidget.h"
#include "card/AnswerCatalogue.h"
#include "card/CardFields.h"
#include "card/CardPlace.h"
#include "card/EditorInUse.h"
#include "card/PlanColumns.h"
#include "clock/Clock.h"
#include "initProcess.h"
#include "service/NextId.h"
#include "service/scheduleManage.h"
#include "toolkit/NewWidgets.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QScrollArea>
#include <QShowEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

using trel::mediadispatch::AnswerCatalogue;
using trel::mediadispatch::CardPlace;
using trel::mediadispatch::Clock;
using trel::mediadispatch::fieldNear;
using trel::mediadispatch::idAfter;
using trel::mediadispatch::initProcess;
using trel::mediadispatch::kDateFormat;
using trel::mediadispatch::paintAsAWhole;
using trel::mediadispatch::PlanTaskWidget;
using trel::mediadispatch::scheduleManage;
using trel::mediadispatch::scrollIntoSight;
using trel::mediadispatch::StartTimeColumn;
using trel::mediadispatch::tableOf;
using trel::mediadispatch::takeOverTyping;

namespace {

constexpr int kCardSpacing = 2;
/// The layout starts with a stretch and ends with a spacer; the cards stand between them.
constexpr int kFirstCard = 1;
constexpr QSize kSpacerSize(1100, 480);

constexpr qint64 kLockAfterRefreshMSecs = 1000;
/// Cards, stretch and spacer together, above which nothing is added any more.
constexpr int kMostLayoutItems = 10000;

scheduleManage& service()
{
    return scheduleManage::getInstance();
}

std::string dateText(const QDate& date)
{
    return date.toString(kDateFormat).toStdString();
}

QDate dayAfter(const std::string& date)
{
    return QDate::fromString(QString::fromStdString(date), kDateFormat).addDays(1);
}

/// Gives a task the next free id and one day: the one after the last day of all known tasks, or
/// today when none of them has a readable one. The rest of the task stays as it is, and all of it
/// when no id is left: false then.
bool applyNewTaskDefaults(trel::mediadispatch::PlayTask& task)
{
    int largestId = 0;
    std::string lastDate;
    for (const auto& [id, known] : service().getAllTask()) {
        largestId = std::max(largestId, known.id);
        lastDate = std::max(lastDate, known.endDate);
    }
    const std::optional<int> id = idAfter(largestId);
    if (!id) {
        return false;
    }
    const QDate next = dayAfter(lastDate);
    task.id = *id;
    task.startDate = dateText(next.isValid() ? next : Clock::current().today());
    task.endDate = task.startDate;
    return true;
}

} // namespace

PlanList::PlanList(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->addStretch(0);
    m_layout->setSpacing(kCardSpacing);
    m_layout->addItem(new QSpacerItem(kSpacerSize.width(), kSpacerSize.height(),
                                      QSizePolicy::Expanding, QSizePolicy::Expanding));
    setLayout(m_layout);
    m_process = new initProcess(this);
    // In front of the cards, which all answer it.
    connect(this, &PlanList::sigTranslation, this, [this] { AnswerCatalogue::beginRound(*this); });
    connect(this, &PlanList::sigTranslation, m_process, &initProcess::translate);
}

PlanList::~PlanList()
{
    // Until none is left: a card that is added meanwhile must not outlive the map that knows it.
    while (!m_taskWidgets.isEmpty()) {
        delete m_taskWidgets.take(m_taskWidgets.firstKey());
    }
    emit sigGetMapCount(m_taskWidgets.size());
}

QList<PlanTaskWidget*> PlanList::cards() const
{
    QList<PlanTaskWidget*> cards;
    for (int item = 0; item < m_layout->count(); ++item) {
        if (auto* const card = qobject_cast<PlanTaskWidget*>(m_layout->itemAt(item)->widget())) {
            cards.append(card);
        }
    }
    return cards;
}

bool PlanList::hasPlan(int taskId, int planId) const
{
    const PlanTaskWidget* const card = m_taskWidgets.value(taskId);
    return m_areCardsDue || (card && card->rowOfPlan(planId) >= 0);
}

bool PlanList::mayAdd() const
{
    const qint64 sinceRefresh = Clock::current().msecsSinceEpoch() - m_lastRefreshMSecs;
    return sinceRefresh >= kLockAfterRefreshMSecs && m_layout->count() <= kMostLayoutItems;
}

void PlanList::slotAddOutput()
{
    if (!mayAdd() || !takeOverTyping(*this)) {
        return;
    }
    PlayTask task;
    if (applyNewTaskDefaults(task)) {
        foldAll();
        addTask(task);
    }
}

void PlanList::slotCopyTask(int taskId)
{
    if (!mayAdd() || !takeOverTyping(*this)) {
        return;
    }
    PlayTask copy = service().getTask(taskId);
    const QDate next = dayAfter(copy.endDate);
    if (!applyNewTaskDefaults(copy)) {
        return;
    }
    // The copy follows its source and may well run into another task; that is told at save time.
    // A source whose end cannot be read leaves the dates open.
    copy.endDate = dateText(next);
    copy.startDate = copy.endDate;
    foldAll();
    addTask(copy);
}

void PlanList::foldAll()
{
    for (PlanTaskWidget* card : qAsConst(m_taskWidgets)) {
        card->setFolded(true);
    }
}

void PlanList::addTask(const PlayTask& task)
{
    const QPointer<PlanList> self(this);
    service().addTask(task);
    addCard(task, false);
    if (self) {
        m_newCard = m_taskWidgets.value(task.id);
        scrollToPlace();
    }
}

void PlanList::addCard(const PlayTask& task, bool folded, PlanTaskWidget* before)
{
    const QPointer<PlanTaskWidget> next = before;
    const QPointer<PlanTaskWidget> card =
        folded ? PlanTaskWidget::makeFolded(task, this) : new PlanTaskWidget(task, this);
    // A set that was written elsewhere may hold an id twice. The service tells tasks apart by their
    // ids only, so that two cards would overwrite each other's edits.
    destroyCard(task.id);
    if (!card) {
        return;
    }
    const int place = next ? m_layout->indexOf(next) : m_layout->count() - 1;
    m_layout->insertWidget(place, card);
    m_taskWidgets[task.id] = card;
    emit sigGetMapCount(m_taskWidgets.size());
    if (!card) {
        return;
    }
    connect(card, &PlanTaskWidget::signalDeleteTask, this, &PlanList::slotDeleteTask);
    connect(card, &PlanTaskWidget::signalCopyTask, this, &PlanList::slotCopyTask);
    connect(this, &PlanList::sigTranslation, card, &PlanTaskWidget::slotTranslation);
    connect(card, &QObject::destroyed, this, [this, taskId = task.id](const QObject* destroyed) {
        forgetDestroyedCard(taskId, destroyed);
    });
}

void PlanList::takeOutOfLayout(PlanTaskWidget& card)
{
    // Mostly it is the first: cards stand in the order of their ids and go in that order.
    QLayoutItem* const first = m_layout->itemAt(kFirstCard);
    if (first->widget() == &card) {
        const std::unique_ptr<QLayoutItem> item(m_layout->takeAt(kFirstCard));
    } else {
        m_layout->removeWidget(&card);
    }
}

void PlanList::destroyCard(int taskId)
{
    if (PlanTaskWidget* const card = m_taskWidgets.take(taskId)) {
        takeOutOfLayout(*card);
        delete card;
    }
}

// The list itself takes a card out of the map before it destroys it.
void PlanList::forgetDestroyedCard(int taskId, const QObject* card)
{
    const auto known = m_taskWidgets.constFind(taskId);
    if (known == m_taskWidgets.constEnd() || known.value() != card) {
        return;
    }
    m_layout->removeWidget(known.value());
    m_taskWidgets.remove(taskId);
    emit sigGetMapCount(m_taskWidgets.size());
}

void PlanList::slotDeleteTask(int taskId)
{
    destroyCard(taskId);
    emit sigGetMapCount(m_taskWidgets.size());
    service().deleteTask(taskId);
}

void PlanList::slotShowProcess()
{
    emit sigShowProcess();
    QCoreApplication::processEvents();
}

void PlanList::slotCloseProcess()
{
    const QPointer<PlanList> self(this);
    emit sigCloseProcess();
    if (self) {
        m_lastRefreshMSecs = Clock::current().msecsSinceEpoch();
    }
}

void PlanList::refreshPlanList()
{
    // A second rebuild from inside the first would show every task twice, and the one that runs
    // already has yet to read the stored set.
    if (m_refreshing) {
        return;
    }
    const QPointer<PlanList> self(this);
    m_refreshing = true;
    m_areCardsDue = true;
    slotShowProcess();
    if (self) {
        slotclearPlanList();
    }
    if (self) {
        QCoreApplication::processEvents();
    }
    if (self) {
        rebuild();
    }
    if (self) {
        slotCloseProcess();
    }
    if (!self) {
        return;
    }
    m_refreshing = false;
    if (const auto plan = std::exchange(m_planDue, std::nullopt)) {
        slotShowPlan(plan->first, plan->second);
    }
}

void PlanList::rebuild()
{
    setUpdatesEnabled(false);
    // A list that is shown with all its cards lays them out once; one that is visible already does
    // so for every card again.
    const bool wasVisible = isVisible();
    if (wasVisible) {
        hide();
    }
    const auto tasks = service().getgTaskMap();
    service().updateUItask();
    const QPointer<PlanList> self(this);
    for (const auto& [key, task] : tasks) {
        addCard(task, true);
        if (!self) {
            return;
        }
    }
    m_areCardsDue = false;
    // Before the list is shown: on show, every widget would ask for its own painting once more.
    setUpdatesEnabled(true);
    if (wasVisible) {
        takeRoom();
        show();
    }
    scrollToPlace();
}

// Has the scroll area give the list the height of all its cards. When they come into sight they are
// in their places and need not move one by one.
void PlanList::takeRoom()
{
    m_layout->activate();
    if (parentWidget()) {
        QCoreApplication::sendPostedEvents(parentWidget(), QEvent::LayoutRequest);
    }
}

QScrollArea* PlanList::scrollArea() const
{
    const QWidget* const viewport = parentWidget();
    auto* const area = viewport ? qobject_cast<QScrollArea*>(viewport->parentWidget()) : nullptr;
    return area && area->widget() == this ? area : nullptr;
}

// Has the range of the scroll bar follow at once.
void PlanList::layOutIn(QScrollArea& area)
{
    m_layout->activate();
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(&area, &request);
}

void PlanList::rememberPlace()
{
    const QScrollArea* const area = scrollArea();
    // A place that was not scrolled to yet is what the operator saw last.
    if (area && !m_place && !m_taskWidgets.isEmpty()) {
        m_place.emplace(*area, m_taskWidgets);
    }
}

// While the list is out of sight its cards have no places, and what is to be done waits.
void PlanList::scrollToPlace()
{
    QScrollArea* const area = scrollArea();
    if (!area || !isVisible() || (!m_newCard && !m_place)) {
        return;
    }
    if (m_newCard) {
        // The layout would show it later, and leaves it out until then.
        m_newCard->show();
    }
    layOutIn(*area);
    if (m_newCard) {
        scrollIntoSight(*area, *m_newCard);
    } else {
        m_place->restore(*area, m_taskWidgets);
    }
    m_newCard.clear();
    m_place.reset();
}

bool PlanList::event(QEvent* event)
{
    // That a prompt blocks the window is of no use to a card, and to hand it on through the tens of
    // thousands of widgets in a long list takes longer than the prompt itself.
    const QEvent::Type type = event->type();
    return type == QEvent::WindowBlocked || type == QEvent::WindowUnblocked ||
           QWidget::event(event);
}

void PlanList::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        scrollToPlace();
        paintAsAWhole(*this);
    }
}

void PlanList::slotclearPlanList()
{
    rememberPlace();
    std::vector<std::pair<int, QPointer<PlanTaskWidget>>> cards;
    cards.reserve(static_cast<std::size_t>(m_taskWidgets.size()));
    for (auto card = m_taskWidgets.cbegin(); card != m_taskWidgets.cend(); ++card) {
        cards.emplace_back(card.key(), card.value());
    }
    // The layout would look for each card among all that are left, where it is no more.
    m_layout->setEnabled(false);
    for (const auto& [taskId, card] : cards) {
        // A listener may have destroyed it or put another one in its place.
        if (card && m_taskWidgets.value(taskId) == card) {
            destroyCard(taskId);
        }
    }
    m_layout->setEnabled(true);
    // What asked to be laid out meanwhile was not heard.
    m_layout->activate();
    emit sigGetMapCount(m_taskWidgets.size());
}

void PlanList::slotShowTask(int taskId)
{
    if (m_areCardsDue) {
        return;
    }
    const PlayTask task = service().getTask(taskId);
    if (task.id == taskId && taskId != PlayTask().id) {
        showCard(task);
    } else if (m_taskWidgets.contains(taskId)) {
        dropCard(taskId);
    }
}

void PlanList::showCard(const PlayTask& task)
{
    rememberPlace();
    std::optional<CardPlace> place;
    if (const PlanTaskWidget* const former = m_taskWidgets.value(task.id)) {
        place.emplace(*former);
    }
    const auto next = qAsConst(m_taskWidgets).upperBound(task.id);
    const QPointer<PlanList> self(this);
    addCard(task, !place || place->isFolded(),
            next == m_taskWidgets.cend() ? nullptr : next.value());
    const QPointer<PlanTaskWidget> card = self ? m_taskWidgets.value(task.id) : nullptr;
    if (card && isVisible()) {
        // The layout would show it later, and leaves it out until then.
        card->show();
        scrollToPlace();
    }
    if (card && place) {
        place->restore(*card);
    }
}

void PlanList::dropCard(int taskId)
{
    rememberPlace();
    destroyCard(taskId);
    const QPointer<PlanList> self(this);
    emit sigGetMapCount(m_taskWidgets.size());
    if (self) {
        scrollToPlace();
    }
}

void PlanList::slotShowPlan(int taskId, int planId)
{
    if (m_areCardsDue) {
        m_planDue.emplace(taskId, planId);
        return;
    }
    if (hasPlan(taskId, planId)) {
        PlanTaskWidget& card = *m_taskWidgets.value(taskId);
        showPlan(card, card.rowOfPlan(planId));
    }
}

void PlanList::showPlan(PlanTaskWidget& card, int row)
{
    const QPointer<PlanTaskWidget> shown = &card;
    card.setFolded(false);
    if (!shown) {
        return;
    }
    mark(card, row);
    m_newCard = &card;
    scrollToPlace();
    QTableView& table = *tableOf(card);
    table.scrollTo(table.model()->index(row, 0));
    // Last: the field that loses the focus may raise a prompt, in which everything may go.
    if (QWidget* const field = fieldNear(table, row, StartTimeColumn)) {
        field->setFocus(Qt::OtherFocusReason);
    }
}

void PlanList::tellSelection(PlanTaskWidget& card, int row)
{
    QAccessibleInterface* const table =
        QAccessible::isActive() ? QAccessible::queryAccessibleInterface(tableOf(card)) : nullptr;
    if (QAccessibleInterface* const plan = table ? table->child(row) : nullptr) {
        QAccessibleEvent event(plan, QAccessible::Selection);
        QAccessible::updateAccessibility(&event);
    }
}

void PlanList::mark(PlanTaskWidget& card, int row)
{
    if (m_marked && m_marked != &card) {
        tableOf(*m_marked)->clearSelection();
    }
    m_marked = &card;
    const QTableView& table = *tableOf(card);
    // Not made the current one: a cell that becomes current is edited.
    table.selectionModel()->select(table.model()->index(row, 0),
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    tellSelection(card, row);
}
