#pragma once

#include "card/ScrollPlace.h"

#include <QList>
#include <QMap>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <utility>

class QScrollArea;
class QVBoxLayout;

namespace trel::mediadispatch {
class PlanTaskWidget;
class initProcess;
struct PlayTask;
} // namespace trel::mediadispatch

/// The column of task cards, one for each task, under their ids.
///
/// The one place where cards are made and destroyed and where new tasks enter the service. A new
/// card stands last. The list is built without a parent and handed to its scroll area.
///
/// Where two tasks of the service have the same id, the card of the later one replaces that of the
/// earlier one. A card that is destroyed by somebody else leaves the list, and the count is told.
/// The list and what it stands in may be destroyed in answer to any of its signals. While a card is
/// being destroyed, other cards may be added, destroyed and built again; but not the list, as the
/// toolkit would destroy the card once more with its parent.
class PlanList : public QWidget
{
    Q_OBJECT

public:
    explicit PlanList(QWidget* parent = nullptr);
    /// Destroys the cards in ascending id order and tells the count of 0. The service is not
    /// touched.
    ~PlanList() override;

    /// The cards as they stand, from the top. The list owns them.
    QList<trel::mediadispatch::PlanTaskWidget*> cards() const;
    /// Whether there is a row of that plan to be shown; also when a rebuild has yet to tell.
    bool hasPlan(int taskId, int planId) const;

signals:
    /// A rebuild begins; no task can be added until sigCloseProcess.
    void sigShowProcess();
    /// The rebuild has ended.
    void sigCloseProcess();
    /// Every card fetches its texts again.
    void sigTranslation();
    /// The number of cards, after every change of it.
    void sigGetMapCount(int count);

public slots:
    /// Adds a task of one day, after the last day of all others, and its card, the only open one,
    /// which scrolls into sight. Does nothing, and folds nothing, in the first second after a
    /// rebuild, when the list is full, or when there is no number behind the largest id.
    void slotAddOutput();
    /// Removes the card, then the task; the task also when there is no such card. Asks nothing.
    void slotDeleteTask(int taskId);
    /// Adds a copy of a task, of one day, after the last day of its source, and its card, the only
    /// open one. Refuses as slotAddOutput does.
    void slotCopyTask(int taskId);
    /// Announces a rebuild and lets the window paint it.
    void slotShowProcess();
    /// Announces the end of a rebuild and starts the second in which nothing is added.
    void slotCloseProcess();
    /// Drops every card and the service's working set, and builds folded cards from the stored
    /// set, in ascending id order. What was in sight stays there as far as it still exists. Handles
    /// pending events before it reads that set, so that a call from one of those has nothing left
    /// to do.
    void refreshPlanList();
    /// Takes every card out of the layout and destroys it, one after the other in ascending id
    /// order. The service is not touched. Cards that are added meanwhile stay.
    void slotclearPlanList();
    /// Shows one task as the working set has it now. Its card is built anew in its place, folded or
    /// open as it was, with its table as far scrolled; what is half typed in it is dropped, and a
    /// focus that it had is that of the same field again. A task that has no card gets one, folded,
    /// before the first card with a larger id; the card of a task that is no more goes. Other cards
    /// stay as they are.
    ///
    /// For a host that edits the working set by itself, once it has done so: not from within a call
    /// of the service or a signal of the card. Does nothing while a rebuild has its cards still to
    /// make, which are those of the stored set then.
    void slotShowTask(int taskId);
    /// Unfolds the card of a task, brings it and the row of one of its plans into sight, marks that
    /// row and gives the focus to the field of its start; as soon as the list is in sight
    /// itself. The mark is the selection of the table, and that of the former call goes. Does
    /// nothing when there is no such card or row. While a rebuild has its cards still to make it
    /// waits for the end of it; the last call counts.
    void slotShowPlan(int taskId, int planId);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    using PlanTaskWidget = trel::mediadispatch::PlanTaskWidget;
    using PlayTask = trel::mediadispatch::PlayTask;

    void rebuild();
    void takeRoom();
    QScrollArea* scrollArea() const;
    void layOutIn(QScrollArea& area);
    void rememberPlace();
    void scrollToPlace();
    bool mayAdd() const;
    void foldAll();
    void addTask(const PlayTask& task);
    /// Puts the card before another one, or last. It, or the list with it, may be gone afterwards.
    void addCard(const PlayTask& task, bool folded, PlanTaskWidget* before = nullptr);
    void showCard(const PlayTask& task);
    void dropCard(int taskId);
    void showPlan(PlanTaskWidget& card, int row);
    void mark(PlanTaskWidget& card, int row);
    static void tellSelection(PlanTaskWidget& card, int row);
    void takeOutOfLayout(PlanTaskWidget& card);
    void destroyCard(int taskId);
    void forgetDestroyedCard(int taskId, const QObject* card);

    QMap<int, PlanTaskWidget*> m_taskWidgets;
    QVBoxLayout* m_layout;
    trel::mediadispatch::initProcess* m_process;
    qint64 m_lastRefreshMSecs = 0;
    bool m_refreshing = false;
    /// A rebuild has begun and has its cards still to make.
    bool m_areCardsDue = false;
    /// Where to scroll when the list is in sight again, and the card that has to come into sight.
    std::optional<trel::mediadispatch::ScrollPlace> m_place;
    QPointer<QWidget> m_newCard;
    /// A task and its plan, to be shown once there are cards again.
    std::optional<std::pair<int, int>> m_planDue;
    QPointer<PlanTaskWidget> m_marked; ///< The card with the row that was shown last.
};
