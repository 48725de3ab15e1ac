#include "PlanList.h"

#include "PlanTaskWidget.h"
#include "WaitingRequests.h"
#include "initProcess.h"
#include "service/Clock.h"
#include "service/scheduleManage.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

using trel::mediadispatch::Clock;
using trel::mediadispatch::finishWaitingWork;
using trel::mediadispatch::forgetPaintRequestsIn;
using trel::mediadispatch::initProcess;
using trel::mediadispatch::kDateFormat;
using trel::mediadispatch::scheduleManage;

namespace {

constexpr int kCardSpacing = 2;
/// The layout starts with a stretch and ends with a spacer; the cards stand between them.
constexpr int kFirstCard = 1;
constexpr int kFrameItems = 2;
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
/// today when none of them has a readable one. The rest of the task stays as it is.
void applyNewTaskDefaults(trel::mediadispatch::PlayTask& task)
{
    int largestId = 0;
    std::string lastDate;
    for (const auto& [id, known] : service().getAllTask()) {
        largestId = std::max(largestId, known.id);
        lastDate = std::max(lastDate, known.endDate);
    }
    const QDate next = dayAfter(lastDate);
    task.id = largestId + 1;
    task.startDate = dateText(next.isValid() ? next : Clock::current().today());
    task.endDate = task.startDate;
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
}

PlanList::~PlanList()
{
    destroyCards();
}

bool PlanList::mayAdd() const
{
    const qint64 sinceRefresh = Clock::current().msecsSinceEpoch() - m_lastRefreshMSecs;
    return sinceRefresh >= kLockAfterRefreshMSecs && m_layout->count() <= kMostLayoutItems;
}

void PlanList::slotAddOutput()
{
    if (!mayAdd()) {
        return;
    }
    foldAll();
    PlayTask task;
    applyNewTaskDefaults(task);
    addTask(task);
}

void PlanList::slotCopyTask(int taskId)
{
    if (!mayAdd()) {
        return;
    }
    foldAll();
    PlayTask copy = service().getTask(taskId);
    const QDate next = dayAfter(copy.endDate);
    applyNewTaskDefaults(copy);
    // The copy follows its source and may well run into another task; that is told at save time.
    // A source whose end cannot be read leaves the dates open.
    copy.endDate = dateText(next);
    copy.startDate = copy.endDate;
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
    service().addTask(task);
    addCard(task, false);
}

void PlanList::addCard(const PlayTask& task, bool folded)
{
    auto* card = new PlanTaskWidget(task, this);
    card->setFolded(folded);
    m_layout->insertWidget(m_layout->count() - 1, card);
    m_taskWidgets[task.id] = card;
    emit sigGetMapCount(m_taskWidgets.size());
    connect(card, &PlanTaskWidget::signalDeleteTask, this, &PlanList::slotDeleteTask);
    connect(card, &PlanTaskWidget::signalCopyTask, this, &PlanList::slotCopyTask);
    connect(this, &PlanList::sigTranslation, card, &PlanTaskWidget::slotTranslation);
}

void PlanList::slotDeleteTask(int taskId)
{
    if (PlanTaskWidget* card = m_taskWidgets.take(taskId)) {
        m_layout->removeWidget(card);
        delete card;
    }
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
    emit sigCloseProcess();
    m_lastRefreshMSecs = Clock::current().msecsSinceEpoch();
}

void PlanList::refreshPlanList()
{
    // A second rebuild from inside the first would show every task twice, and the one that runs
    // already has yet to read the stored set.
    if (m_refreshing) {
        return;
    }
    const QScopedValueRollback<bool> refreshing(m_refreshing, true);
    slotShowProcess();
    slotclearPlanList();
    QCoreApplication::processEvents();
    rebuild();
    slotCloseProcess();
}

void PlanList::rebuild()
{
    setUpdatesEnabled(false);
    // A list that is shown with all its cards lays them out once; one that is visible already does
    // so for every card anew.
    const bool wasVisible = isVisible();
    if (wasVisible) {
        hide();
    }
    const auto tasks = service().getgTaskMap();
    service().updateUItask();
    for (const auto& [id, task] : tasks) {
        addCard(task, true);
        finishWaitingWork(*m_taskWidgets[id]);
    }
    // Before the list is shown: on show, every widget would ask for its own painting once more.
    setUpdatesEnabled(true);
    if (wasVisible) {
        takeRoom();
        show();
    }
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

void PlanList::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        forgetPaintRequestsIn(*this);
    }
}

void PlanList::slotclearPlanList()
{
    takeCardsOutOfLayout();
    destroyCards();
}

void PlanList::takeCardsOutOfLayout()
{
    // All at once and from the front: the layout looks through all its items both for a widget to
    // remove and for a widget that is deleted.
    while (m_layout->count() > kFrameItems) {
        delete m_layout->takeAt(kFirstCard);
    }
}

void PlanList::destroyCards()
{
    for (PlanTaskWidget* card : qAsConst(m_taskWidgets)) {
        delete card;
    }
    m_taskWidgets.clear();
    emit sigGetMapCount(m_taskWidgets.size());
}
