#pragma once

#include <QMap>
#include <QWidget>

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
class PlanList : public QWidget
{
    Q_OBJECT

public:
    explicit PlanList(QWidget* parent = nullptr);
    /// Destroys the cards in ascending id order and tells the count of 0. The service is not
    /// touched.
    ~PlanList() override;

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
    /// Adds a task of one day, after the last day of all others, and its card, the only open one.
    /// Does nothing in the first second after a rebuild, or when the list is full.
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
    /// set, in ascending id order. Handles pending events before it reads that set, so that a call
    /// from one of those has nothing left to do.
    void refreshPlanList();
    /// Destroys every card. The service is not touched.
    void slotclearPlanList();

protected:
    void showEvent(QShowEvent* event) override;

private:
    using PlanTaskWidget = trel::mediadispatch::PlanTaskWidget;
    using PlayTask = trel::mediadispatch::PlayTask;

    void rebuild();
    void takeRoom();
    bool mayAdd() const;
    void foldAll();
    void addTask(const PlayTask& task);
    void addCard(const PlayTask& task, bool folded);
    void takeCardsOutOfLayout();
    void destroyCards();

    QMap<int, PlanTaskWidget*> m_taskWidgets;
    QVBoxLayout* m_layout;
    trel::mediadispatch::initProcess* m_process;
    qint64 m_lastRefreshMSecs = 0;
    bool m_refreshing = false;
};
